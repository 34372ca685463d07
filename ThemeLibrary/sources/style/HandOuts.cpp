#include "HandOuts.h"

#include "Shapes.h"
#include "ThemeValues.h"
#include "WidgetProperties.h"

#include <QWidget>

namespace BRELK::HandOuts {

namespace {

namespace Properties = WidgetProperties;

/// A theme brush that a widget library reads from one of its widgets' properties.
struct HandedBrush
{
    const char* property;
    ThemeNames::BrushName name;
    bool enabled;
};

template <size_t Count>
void handOut(QWidget& widget, const HandedBrush (&brushes)[Count])
{
    for (const HandedBrush& brush : brushes)
        widget.setProperty(brush.property, themeValues().brushes.value(brush.name, brush.enabled));
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
    handOut(widget,
            {{Properties::BackgroundBrush, ThemeNames::ForegroundMouseOverBrush, true},
             {Properties::BackgroundBrushDisabled, ThemeNames::ForegroundMouseOverBrush, false}});
}

void roundGroupContainer(BaseStyle&, QWidget& widget)
{
    widget.setProperty(Properties::CornerRadius, Shapes::cornerRadius(ThemeNames::BaseSize));
}

void dressButtonGroup(BaseStyle&, QWidget& widget)
{
    handOut(widget,
            {{Properties::BackgroundBrush, ThemeNames::ListBackgroundBrush, true},
             {Properties::BackgroundBrushDisabled, ThemeNames::ListBackgroundBrush, false},
             {Properties::BorderBrush, ThemeNames::ListBorderBrush, true},
             {Properties::BorderBrushDisabled, ThemeNames::ListBorderBrush, false},
             {Properties::WorkflowLinkBrush, ThemeNames::PrioritySecondaryUpLevel1Brush, true},
             {Properties::WorkflowLinkBrushDisabled, ThemeNames::PrioritySecondaryUpLevel1Brush,
              false}});
}

void dressRoundedPixmap(BaseStyle&, QWidget& widget)
{
    handOut(widget, {{Properties::BorderBrush, ThemeNames::BackgroundSubLevel1Brush, true}});
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
    handOut(widget, {{Properties::SunkenBrush, ThemeNames::SliderThumbNailPressedBrush, true},
                     {Properties::HoverBrush, ThemeNames::SliderThumbNailHoverBrush, true},
                     {Properties::DefaultBrush, ThemeNames::InputForegroundBrush, true},
                     {Properties::DefaultBrushDisabled, ThemeNames::InputForegroundBrush, false},
                     {Properties::BackgroundBrush, ThemeNames::InputBackgroundBrush, true},
                     {Properties::BackgroundBrushDisabled, ThemeNames::InputBackgroundBrush, false},
                     {Properties::BorderBrush, ThemeNames::InputBorderBrush, true},
                     {Properties::BorderBrushDisabled, ThemeNames::InputBorderBrush, false},
                     {Properties::RangeBrush, ThemeNames::MainBrush, true},
                     {Properties::RangeBrushDisabled, ThemeNames::MainBrush, false}});
    widget.setProperty(Properties::CornerRadius, Shapes::cornerRadius(ThemeNames::BaseSize));
}

} // namespace BRELK::HandOuts
