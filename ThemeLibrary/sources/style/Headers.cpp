#include "Families.h"
#include "OwnColors.h"
#include "PainterSaver.h"
#include "Shapes.h"
#include "StyleContext.h"
#include "ThemeNames.h"

#include <QApplication>
#include <QLinearGradient>
#include <QMargins>

// The headers of tables and trees, and the button in a table's corner.
//
// Deliberate: the style paints and measures them itself, since applications take the style sheet
// away that made the base style's headers look right.
//
// They look the same whether the application style sheet that comes with the library is in force or
// not. Where a sheet gives sections a box, it paints them and adds its padding to what is measured
// here.

namespace BRELK::Headers {

namespace {

constexpr int Spacing = 4; ///< between icon, text and sort mark
constexpr int Line = 1; ///< at the right and lower edge of a section
constexpr int Leading = 1; ///< above and below the text

/// Whether a style sheet lays sections out: it then finds a place for the label even in an empty
/// one, where this style finds none.
bool isBoxedBySheet(const MeasureContext& context)
{
    if (!context.widget || !context.widget->testAttribute(Qt::WA_StyleSheet))
        return false;
    const QStyleOptionHeader empty;
    return context.widget->style()->subElementRect(QStyle::SE_HeaderLabel, &empty, context.widget)
           != empty.rect;
}

/// What surrounds the contents of a section: as much as the letter x is high, and the lines. A
/// style sheet takes that letter from the application's font, whatever the header's is.
QMargins box()
{
    // Three times for each section, measuring it took a fourteenth of what painting one does.
    static QFont sMeasured;
    static int sHeight = 0;
    if (const QFont font = QApplication::font(); sHeight == 0 || !font.isCopyOf(sMeasured)) {
        sMeasured = font;
        sHeight = QFontMetrics(font).xHeight();
    }
    const int padding = sHeight;
    return {padding, padding, padding + Line, padding + Line};
}

int iconExtent(const StyleContext& context, const QStyleOptionHeader& header)
{
    return header.icon.isNull() ? 0 : context.metric(QStyle::PM_SmallIconSize);
}

/// What a sorted section gives up to its mark, which keeps its distance from the words by reaching
/// as far into the padding.
int markRoom(const MeasureContext& context, const QStyleOptionHeader& header)
{
    return header.sortIndicator == QStyleOptionHeader::None
               ? 0
               : context.metric(QStyle::PM_HeaderMarkSize);
}

} // namespace

QSize sectionSize(const MeasureContext& context, const QStyleOptionHeader& header, const QSize&)
{
    const int icon = iconExtent({context.style, header, context.widget}, header);
    const int gap = icon > 0 && !header.text.isEmpty() ? context.dpiScaled(Spacing) : 0;
    const QSize text = header.fontMetrics.size(0, header.text);
    QSize size(icon + gap + text.width(),
               qMax(icon, text.height() + 2 * context.dpiScaled(Leading)));
    if (header.orientation == Qt::Horizontal)
        size.rwidth() += markRoom(context, header);
    else
        size.rheight() += markRoom(context, header);
    return isBoxedBySheet(context) ? size : size.grownBy(box());
}

QRect labelRect(const StyleContext& context, QStyle::SubElement)
{
    const QRect& section = context.option.rect;
    return section.isEmpty() ? section : section.marginsRemoved(box());
}

QRect markRect(const StyleContext& context, QStyle::SubElement)
{
    constexpr int Sinking = 2; ///< the base style draws the mark above the middle
    const int size = context.metric(QStyle::PM_HeaderMarkSize);
    const int reach = context.measure().dpiScaled(Spacing);
    const QRect label = labelRect(context, QStyle::SE_HeaderLabel);
    if (!context.has(QStyle::State_Horizontal))
        return {label.center().x() - size / 2, label.bottom() + 1 + reach - size, size, size};
    const int x = context.rightToLeft() ? label.left() - reach : label.right() + 1 + reach - size;
    return {x, label.center().y() - size / 2 + Sinking, size, size};
}

namespace {

/// A section that its model or its application colors keeps that color.
bool hasOwnGround(const PaintContext& context)
{
    const QPalette& themed = context.style.getPalette();
    const QPalette::ColorGroup group = context.option.palette.currentColorGroup();
    return context.option.palette.brush(QPalette::Button) != themed.brush(group, QPalette::Button);
}

QBrush themedGround(const PaintContext& context)
{
    // Deliberate: disabled headers are of one color, and that of enabled ones, since disabled
    // colors let shine through what lies below.
    const QColor& below = themeValues().colors.value(ThemeNames::BackgroundSubLevel2Color, true);
    if (!context.enabled())
        return below;
    QLinearGradient ground(0, 0, 0, 1);
    ground.setCoordinateMode(QGradient::ObjectBoundingMode);
    ground.setColorAt(0, themeValues().colors.value(ThemeNames::BackgroundSubLevel1Color, true));
    ground.setColorAt(1, below);
    return ground;
}

/// Rows are often lower than their label's box: the text is whole as long as the section is as
/// high.
QRect textRect(const QStyleOptionHeader& label, QRect rect)
{
    const int missing = label.fontMetrics.height() - rect.height();
    return missing > 0 ? rect.adjusted(0, -missing / 2, 0, missing - missing / 2) : rect;
}

QRect withoutMark(const StyleContext& context, const QStyleOptionHeader& label)
{
    const int room = markRoom(context.measure(), label);
    return label.orientation == Qt::Horizontal ? label.rect.adjusted(0, 0, -room, 0)
                                               : label.rect.adjusted(0, 0, 0, -room);
}

void paintIcon(const PaintContext& context, const QStyleOptionHeader& label, const QRect& rect)
{
    const int extent = iconExtent(context, label);
    context.proxy().drawItemPixmap(
        &context.painter, rect, int(QStyle::visualAlignment(label.direction, label.iconAlignment)),
        Shapes::iconPixmap(context, label.icon, Qt::NoBrush, {extent, extent}));
}

} // namespace

void paintHeader(const PaintContext& context, const QStyleOptionHeader& header)
{
    const PainterSaver saver(context.painter);
    context.painter.setClipRect(header.rect, Qt::IntersectClip);
    context.draw(QStyle::CE_HeaderSection, header);
    QStyleOptionHeader part = header;
    part.rect = context.part(QStyle::SE_HeaderLabel);
    if (part.rect.isValid())
        context.draw(QStyle::CE_HeaderLabel, part);
    if (header.sortIndicator == QStyleOptionHeader::None)
        return;
    part.rect = context.part(QStyle::SE_HeaderArrow);
    context.draw(QStyle::PE_IndicatorHeaderArrow, part);
}

void paintSection(const PaintContext& context)
{
    const QRect& rect = context.option.rect;
    const auto color = [&](ThemeNames::ColorName name) {
        return themeValues().colors.value(
            context.enabled() ? name : ThemeNames::BackgroundSubLevel2Color, true);
    };
    context.painter.fillRect(rect, hasOwnGround(context)
                                       ? context.option.palette.brush(QPalette::Button)
                                       : themedGround(context));
    Shapes::drawLine(context, rect.bottomLeft(), rect.bottomRight(),
                     color(ThemeNames::BackgroundSubLevel2Color));
    Shapes::drawLine(context, rect.topRight(), rect.bottomRight(),
                     color(ThemeNames::BackgroundUpLevel1Color));
}

void paintEmptyArea(const PaintContext& context)
{
    context.painter.fillRect(context.option.rect, themeValues().colors.value(
                                                      ThemeNames::BackgroundSubLevel2Color, true));
}

namespace {

/// Under the application's own palette the words are read on what the section is filled with: the
/// theme's style sheet fills it with the theme's color, and the style with the application's.
QBrush textBrush(const PaintContext& context)
{
    const QBrush& given = context.option.palette.brush(QPalette::ButtonText);
    const bool isOwn =
        OwnColors::has(context, QPalette::ButtonText) || OwnColors::has(context, QPalette::Button);
    if (!isOwn || OwnColors::isForThis(context, QPalette::ButtonText))
        return given;
    const bool isFilledBySheet = qApp->styleSheet().contains(QLatin1String("QHeaderView::section"));
    const QColor& themed = themeValues().colors.value(ThemeNames::BackgroundSubLevel2Color, true);
    const QBrush ground = !isFilledBySheet && hasOwnGround(context)
                              ? context.option.palette.brush(QPalette::Button)
                              : QBrush(themed);
    return OwnColors::readable(ground,
                               {given, context.style.getPalette().brush(QPalette::ButtonText)});
}

} // namespace

void paintLabel(const PaintContext& context, const QStyleOptionHeader& header)
{
    QStyleOptionHeader label = header;
    // Models that name one side only, as that of the file dialog does, do not mean the top.
    if (!(label.textAlignment & Qt::AlignVertical_Mask))
        label.textAlignment |= Qt::AlignVCenter;
    QRect rect = withoutMark(context, label);
    const PainterSaver saver(context.painter);
    if (!label.icon.isNull()) {
        paintIcon(context, label, context.visual(rect));
        rect.setLeft(rect.left() + iconExtent(context, label)
                     + context.measure().dpiScaled(Spacing));
    }
    if (context.has(QStyle::State_On)) {
        QFont bold = context.painter.font();
        bold.setBold(true);
        context.painter.setFont(bold);
    }
    const auto flags = QStyle::visualAlignment(label.direction, label.textAlignment);
    Shapes::drawText(context, textRect(label, context.visual(rect)), int(flags), label.text,
                     textBrush(context));
}

} // namespace BRELK::Headers
