#include "Families.h"
#include "StyleContext.h"

#include <QAbstractScrollArea>
#include <QLineEdit>

// Focus marks, tool tips and the frames of QFrame.

namespace BRELK::Frames {

namespace {

constexpr int FrameWidth = 1;
constexpr int ScrollAreaFrameWidth = 2;
constexpr int LineEditPadding = 4;
constexpr int ToolTipPadding = 4;
constexpr int FocusMargin = 2;

} // namespace

int metric(QStyle::PixelMetric metric, const MeasureContext& context)
{
    switch (metric) {
    case QStyle::PM_ToolTipLabelFrameWidth: return context.dpiScaled(ToolTipPadding);
    case QStyle::PM_FocusFrameHMargin:
    case QStyle::PM_FocusFrameVMargin: return context.dpiScaled(FocusMargin);
    default:
        // The square viewport of a scroll area stays clear of the frame's round corners.
        if (qobject_cast<const QAbstractScrollArea*>(context.widget))
            return ScrollAreaFrameWidth;
        // A line edit counts the room between border and text as part of its frame.
        return qobject_cast<const QLineEdit*>(context.widget) ? context.dpiScaled(LineEditPadding)
                                                              : FrameWidth;
    }
}

void paintFocusRect(const PaintContext& context)
{
    context.drawByBase(QStyle::PE_FrameFocusRect);
}

void paintToolTip(const PaintContext& context)
{
    context.drawByBase(QStyle::PE_PanelTipLabel);
}

void paintShapedFrame(const PaintContext& context, const QStyleOptionFrame&)
{
    context.drawByBase(QStyle::CE_ShapedFrame);
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
