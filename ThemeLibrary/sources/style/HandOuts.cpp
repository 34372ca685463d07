#include "HandOuts.h"

#include "Shapes.h"
#include "ThemeValues.h"
#include "WidgetProperties.h"

#include <QWidget>

namespace BRELK::HandOuts {

namespace {

namespace Properties = WidgetProperties;

/// A theme brush that a widget library reads from one of its widgets' properties, and the twin for
/// disabled ones from the property that is named so.
struct HandedBrush
{
    const char* property;
    ThemeNames::BrushName name;
    bool hasTwin = true;
};

template <size_t Count>
void handOut(QWidget& widget, const HandedBrush (&brushes)[Count])
{
    for (const auto& [property, name, hasTwin] : brushes) {
        widget.setProperty(property, themeValues().brushes.value(name));
        if (hasTwin)
            widget.setProperty(ThemeNames::twin(QLatin1String(property)).toLatin1(),
                               themeValues().brushes.value(name, false));
    }
}

} // namespace

void setCardTitleFonts(BaseStyle&, QWidget& widget)
{
    const QFont minimized = themeValues().fonts.value(ThemeNames::BaseFont);
    const QFont normal = themeValues().fonts.value(ThemeNames::MediumFont);
    widget.setProperty(Properties::CardTitleMinimizedFont, minimized);
    widget.setProperty(Properties::CardTitleDefaultFont, normal);
    if (const QObject* card = widget.parent())
        widget.setFont(Properties::flag(card, Properties::Minimized) ? minimized : normal);
}

void dressCard(BaseStyle&, QWidget& widget)
{
    // Deliberate: the hover brush of foregrounds is the background of cards.
    handOut(widget, {{Properties::BackgroundBrush, ThemeNames::ForegroundMouseOverBrush}});
}

void roundGroupContainer(BaseStyle&, QWidget& widget)
{
    widget.setProperty(Properties::CornerRadius, Shapes::cornerRadius(ThemeNames::BaseSize));
}

void dressButtonGroup(BaseStyle&, QWidget& widget)
{
    handOut(widget, {{Properties::BackgroundBrush, ThemeNames::ListBackgroundBrush},
                     {Properties::BorderBrush, ThemeNames::ListBorderBrush},
                     {Properties::WorkflowLinkBrush, ThemeNames::PrioritySecondaryUpLevel1Brush}});
}

void dressRoundedPixmap(BaseStyle&, QWidget& widget)
{
    handOut(widget, {{Properties::BorderBrush, ThemeNames::BackgroundSubLevel1Brush, false}});
    widget.setProperty(Properties::CornerRadius, Shapes::cornerRadius(ThemeNames::MediumSize));
}

void setPillFont(BaseStyle&, QWidget& widget)
{
    QFont font = themeValues().fonts.value(ThemeNames::SmallFont);
    font.setBold(true);
    widget.setFont(font);
}

void dressPeriodicTable(BaseStyle&, QWidget& widget)
{
    const auto hand = [&](const char* property, ThemeNames::ColorName name) {
        widget.setProperty(property, themeValues().colors.value(name));
    };
    hand(Properties::PeriodicTableBackgroundColor, ThemeNames::StatusConfigColor);
    hand(Properties::PeriodicTableBorderColor, ThemeNames::StatusConfigColor);
    hand(Properties::PeriodicTableForegroundColor, ThemeNames::ForegroundColor);
    hand(Properties::PeriodicTableForegroundSubLevelColor, ThemeNames::ForegroundSubLevel1Color);
    hand(Properties::PeriodicTableForegroundUpLevelColor, ThemeNames::ForegroundUpLevel1Color);

    constexpr ThemeNames::ColorName Series[] = {
        ThemeNames::Series01Color, ThemeNames::Series02Color, ThemeNames::Series03Color,
        ThemeNames::Series04Color, ThemeNames::Series05Color, ThemeNames::Series06Color,
        ThemeNames::Series07Color, ThemeNames::Series08Color, ThemeNames::Series09Color,
        ThemeNames::Series10Color, ThemeNames::Series11Color};
    QList<QColor> colors;
    for (const auto name : Series)
        colors.append(themeValues().colors.value(name));
    widget.setProperty(Properties::PeriodicTableColorList, QVariant::fromValue(colors));
}

void dressRangeSlider(BaseStyle&, QWidget& widget)
{
    widget.setProperty(Properties::Orientation, Qt::Horizontal);
    widget.setProperty(Properties::InvertedAppearance, false);
    widget.setProperty(Properties::InvertedControls, false);
    widget.setProperty(Properties::Tracking, true);
    widget.setProperty(Properties::TickPosition, 0);
    handOut(widget, {{Properties::SunkenBrush, ThemeNames::SliderThumbNailPressedBrush, false},
                     {Properties::HoverBrush, ThemeNames::SliderThumbNailHoverBrush, false},
                     {Properties::DefaultBrush, ThemeNames::InputForegroundBrush},
                     {Properties::BackgroundBrush, ThemeNames::InputBackgroundBrush},
                     {Properties::BorderBrush, ThemeNames::InputBorderBrush},
                     {Properties::RangeBrush, ThemeNames::MainBrush}});
    widget.setProperty(Properties::CornerRadius, Shapes::cornerRadius(ThemeNames::BaseSize));
}

} // namespace BRELK::HandOuts
