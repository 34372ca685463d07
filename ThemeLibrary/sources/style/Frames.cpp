#include "Families.h"
#include "InputMetrics.h"
#include "Shapes.h"
#include "StyleContext.h"
#include "ThemeNames.h"
#include "WidgetTraits.h"

#include <QAbstractScrollArea>
#include <QLineEdit>
#include <QToolTip>
#include <qdrawutil.h>

// Focus marks, tool tips and the frames of QFrame.
//
// Properties: "hideFocusRect".

namespace BRELK::Frames {

namespace {

constexpr int FrameWidth = 1;
constexpr int ScrollAreaFrameWidth = 2;

/// The popup of a combo box has a line around its list that the library's style sheet draws where
/// it is in force: Qt then asks for no frame.
bool hasInnerLine(const QStyleOptionFrame& popup)
{
    return popup.frameShape != QFrame::NoFrame;
}

} // namespace

int frameWidth(const MeasureContext& context)
{
    // The square viewport of a scroll area stays clear of the frame's round corners.
    if (qobject_cast<const QAbstractScrollArea*>(context.widget))
        return ScrollAreaFrameWidth;
    // A line edit counts the room between border and text as part of its frame.
    return qobject_cast<const QLineEdit*>(context.widget)
               ? context.dpiScaled(InputMetrics::TextPadding)
               : FrameWidth;
}

int focusMargin(const MeasureContext& context)
{
    const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(context.option);
    if (!item || !WidgetTraits::isComboBoxList(context.widget))
        return context.metric(QStyle::PM_FocusFrameVMargin);
    constexpr auto Marked =
        QStyleOptionViewItem::HasDecoration | QStyleOptionViewItem::HasCheckIndicator;
    return context.dpiScaled(item->features & Marked ? InputMetrics::PopupMarkMargin
                                                     : InputMetrics::PopupTextMargin);
}

QRect contentsRect(const StyleContext& context, const QStyleOptionFrame& frame,
                   QStyle::SubElement element)
{
    if (!WidgetTraits::isComboBoxPopup(context.widget))
        return context.baseRect(element);
    const int lines = hasInnerLine(frame) ? 2 : 1;
    return frame.rect.adjusted(lines, lines, -lines, -lines);
}

namespace {

/// The outer line stands out from the window.
void paintPopupFrame(const PaintContext& context, const QStyleOptionFrame& frame)
{
    context.draw(QStyle::PE_Frame, frame);
    if (hasInnerLine(frame))
        Shapes::drawInnerBorder(context, frame.rect, 0,
                                context.brush(ThemeNames::BackgroundSubLevel1Brush));
}

/// Raised and sunken frames need a light that is lighter than the window.
bool isPlain(const QStyleOptionFrame& frame)
{
    const bool isFlat =
        frame.palette.color(QPalette::Light) == frame.palette.color(QPalette::Window);
    return isFlat || !(frame.state & (QStyle::State_Sunken | QStyle::State_Raised));
}

/// A program that wants no line moves it out of the widget, where round corners would stay seen.
bool isOutside(const PaintContext& context)
{
    return context.widget
           && context.option.rect.adjusted(FrameWidth, FrameWidth, -FrameWidth, -FrameWidth)
                  .contains(context.widget->rect());
}

/// A line across the middle of the frame; sunken and raised ones are as plain as the rest.
void paintLine(const PaintContext& context, const QStyleOptionFrame& frame)
{
    const int width = qBound(1, frame.lineWidth, QWIDGETSIZE_MAX);
    QRect line = frame.rect;
    if (frame.frameShape == QFrame::HLine)
        line.setHeight(width);
    else
        line.setWidth(width);
    line.moveCenter(frame.rect.center());
    context.painter.fillRect(line, context.borderBrush());
}

/// As much of the lines as the frame has room for.
int fittingWidth(const QStyleOptionFrame& frame, int width)
{
    return qBound(0, width, (qMin(frame.rect.width(), frame.rect.height()) + 1) / 2);
}

void paintBox(const PaintContext& context, const QStyleOptionFrame& frame)
{
    const int width = fittingWidth(frame, frame.lineWidth);
    if (isPlain(frame)) {
        qDrawPlainRect(&context.painter, frame.rect, context.borderBrush().color(), width);
        return;
    }
    const QPalette palette = context.style.generateShadeBorderPalette(frame.palette);
    const bool sunken = BaseStyle::isPressed(frame);
    if (frame.frameShape == QFrame::Box)
        qDrawShadeRect(&context.painter, frame.rect, palette, sunken, width,
                       fittingWidth(frame, frame.midLineWidth));
    else
        qDrawShadePanel(&context.painter, frame.rect, palette, sunken, width);
}

} // namespace

void paintFocusRect(const PaintContext& context)
{
    constexpr qreal Dash = 2;
    constexpr int Radius = 1;
    if (context.flag(WidgetProperties::HideFocusRect)
        || !context.has(QStyle::State_KeyboardFocusChange))
        return;
    const QColor color = context.option.palette.color(QPalette::Text);
    Shapes::Border border = Shapes::borderInside(context.painter, context.option.rect, color);
    border.pen.setWidth(0);
    border.pen.setJoinStyle(Qt::BevelJoin);
    border.pen.setDashPattern({Dash, Dash});
    Helpers::drawRoundedBox(border.line, Radius, Helpers::None, border.pen, QBrush(),
                            &context.painter);
}

void paintToolTip(const PaintContext& context)
{
    const QPalette& palette = context.option.palette;
    const bool isError = QToolTip::text().contains(QLatin1String("errorTooltip"));
    const QBrush border = isError
                              ? QBrush(themeValues().colors.value(ThemeNames::StatusDangerColor))
                              : palette.brush(QPalette::Shadow);
    const QPen pen = context.painter.pen();
    const QBrush brush = context.painter.brush();
    context.painter.setPen(QPen(border, 0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    context.painter.setBrush(palette.brush(QPalette::ToolTipBase));
    context.painter.drawRect(context.option.rect.adjusted(0, 0, -1, -1));
    context.painter.setPen(pen);
    context.painter.setBrush(brush);
}

void paintShapedFrame(const PaintContext& context, const QStyleOptionFrame& frame)
{
    if (frame.rect.isEmpty())
        return;
    if (WidgetTraits::isComboBoxPopup(context.widget)) {
        paintPopupFrame(context, frame);
        return;
    }
    switch (frame.frameShape) {
    case QFrame::StyledPanel:
        if (!isOutside(context))
            context.draw(QStyle::PE_Frame, frame);
        break;
    case QFrame::HLine:
    case QFrame::VLine: paintLine(context, frame); break;
    case QFrame::Box:
    case QFrame::Panel: paintBox(context, frame); break;
    case QFrame::WinPanel:
        if (isPlain(frame))
            paintBox(context, frame);
        else
            qDrawWinPanel(&context.painter, frame.rect,
                          context.style.generateWinBorderPalette(frame.palette),
                          BaseStyle::isPressed(frame));
        break;
    default: break;
    }
}

} // namespace BRELK::Frames

namespace BRELK {

namespace {

constexpr int BorderShade = 115; ///< percent

} // namespace

QPalette BaseStyle::generateShadeBorderPalette(const QPalette& palette) const
{
    QPalette shaded = palette;
    const QPalette::ColorGroup group = palette.currentColorGroup();
    shaded.setBrush(group, QPalette::Light, palette.light().color().lighter(BorderShade));
    shaded.setBrush(group, QPalette::Dark, palette.dark().color().darker(BorderShade));
    return shaded;
}

QPalette BaseStyle::generateWinBorderPalette(const QPalette& palette) const
{
    QPalette shaded = palette;
    const QPalette::ColorGroup group = palette.currentColorGroup();
    shaded.setBrush(group, QPalette::Light, palette.light().color().lighter(BorderShade));
    shaded.setBrush(group, QPalette::Midlight, palette.midlight().color().darker(BorderShade));
    // Deliberate: the dark role is lightened.
    shaded.setBrush(group, QPalette::Dark, palette.dark().color().lighter(BorderShade));
    return shaded;
}

} // namespace BRELK
