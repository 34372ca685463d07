#include "Families.h"
#include "InputMetrics.h"
#include "OwnColors.h"
#include "Shapes.h"
#include "ThemeNames.h"
#include "WidgetTraits.h"

#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLineEdit>
#include <QScrollBar>

// Line edits, and the frames that text editors and views share with them.
//
// Properties: "drawErrorIndicator".

namespace BRELK::LineEdits {

namespace {

const QAbstractSpinBox* spinBoxOf(const QWidget* editor)
{
    return editor ? qobject_cast<const QAbstractSpinBox*>(editor->parentWidget()) : nullptr;
}

bool isInComboBox(const QWidget* editor)
{
    return editor && qobject_cast<const QComboBox*>(editor->parentWidget());
}

} // namespace

int iconSize(const MeasureContext& context)
{
    constexpr int IconSize = 16;
    const QAbstractSpinBox* spinBox =
        qobject_cast<const QLineEdit*>(context.widget) ? spinBoxOf(context.widget) : nullptr;
    if (!spinBox || !spinBox->hasFrame() || !context.widget->actions().isEmpty())
        return context.dpiScaled(IconSize);
    // A spin box is as high as its editor and its frame, and an editor as its icons: under a style
    // sheet no other question tells the style of its height.
    const MeasureContext owner{context.style, nullptr, spinBox};
    return owner.controlHeight() - 2 * owner.metric(QStyle::PM_SpinBoxFrameWidth);
}

QSize lineEditSize(const MeasureContext& context, const QStyleOptionFrame& frame,
                   const QSize& contents)
{
    if (frame.lineWidth <= 0)
        return contents;
    const int borders = 2 * qMin(frame.lineWidth, QWIDGETSIZE_MAX);
    return {contents.width() + borders, qMax(contents.height() + borders, context.controlHeight())};
}

/// The text of an editor that is a part of another input begins where that of a line edit does.
QRect contentsRect(const StyleContext& context, const QStyleOptionFrame& frame,
                   QStyle::SubElement element)
{
    using namespace InputMetrics;
    const QRect base = context.baseRect(element);
    const int padding = context.measure().dpiScaled(TextPadding);
    const int inComboBox = padding - EditorInComboBox;
    const int inSpinBox = padding - EditorInSpinBox;
    const QAbstractSpinBox* spinBox = spinBoxOf(context.widget);
    if (isInComboBox(context.widget)
        || (spinBox && spinBox->hasFrame() && WidgetTraits::isCalendarPopupEditor(spinBox)))
        return base.adjusted(inComboBox, 0, -inComboBox, 0);
    if (!spinBox || !spinBox->hasFrame())
        return base;
    return QStyle::visualRect(frame.direction, base,
                              base.adjusted(inSpinBox, 0, BeforeButtons - inSpinBox, 0));
}

namespace {

/// An editable combo box, or a date edit that looks like one: its frame meets the arrow's panel.
bool isComboBox(const QWidget* widget)
{
    return qobject_cast<const QComboBox*>(widget) || WidgetTraits::isCalendarPopupEditor(widget);
}

/// What lies between the border and the contents.
QBrush background(const PaintContext& context, const QBrush& themed)
{
    if (const auto* area = qobject_cast<const QAbstractScrollArea*>(context.widget)) {
        // Qt tells a style sheet's rule for a state to the frame alone, and shows it through.
        if (OwnColors::isOfState(context, QPalette::Base))
            return context.option.palette.brush(QPalette::Base);
        const QWidget* viewport = area->viewport();
        return viewport->palette().brush(viewport->backgroundRole());
    }
    return OwnColors::ground(context, QPalette::Base, themed);
}

QBrush inputBackground(const PaintContext& context)
{
    if (context.has(QStyle::State_HasFocus) && !context.has(QStyle::State_ReadOnly))
        return context.brush(ThemeNames::InputBackgroundActiveBrush);
    // A read-only field stands back like a disabled one, but its text does not.
    const bool editable = context.enabled() && !context.has(QStyle::State_ReadOnly);
    return themeValues().brushes.value(ThemeNames::InputUncheckedBackgroundBrush, editable);
}

QBrush inputBorder(const PaintContext& context)
{
    return context.brush(context.has(QStyle::State_HasFocus) ? ThemeNames::InputBorderActiveBrush
                                                             : ThemeNames::InputBorderBrush);
}

/// A line edit without a frame takes the ground of the view that it stands in, in every state: so
/// does the toolkit, which paints it itself under any style sheet.
bool isFrameless(const QWidget* widget)
{
    const auto* lineEdit = qobject_cast<const QLineEdit*>(widget);
    return lineEdit && !lineEdit->hasFrame();
}

/// Covers all but a thin frame: there is no place for an error mark.
bool isScrollArea(const QWidget* widget)
{
    return qobject_cast<const QAbstractScrollArea*>(widget);
}

/// A line edit's panel is filled already, and a plain frame, which is a box around other widgets,
/// shows what it stands on.
bool isFilledByFrame(const QWidget* widget)
{
    return isScrollArea(widget)
           || !(qobject_cast<const QFrame*>(widget) || qobject_cast<const QLineEdit*>(widget));
}

/// Deliberate: who has the focus is seen without colors too: its border is two pixels wide.
void paintFocusBorder(const PaintContext& context, const QRect& rect, int radius,
                      const QBrush& border)
{
    if (context.has(QStyle::State_HasFocus) && rect.height() > 2)
        Shapes::drawInnerBorder(context, rect, radius, border);
}

/// The frame of a scroll area fills what lies between its bars, too.
void paintCorner(const PaintContext& context)
{
    const auto* area = qobject_cast<const QAbstractScrollArea*>(context.widget);
    if (!area || area->cornerWidget() || !area->horizontalScrollBar()->isVisible()
        || !area->verticalScrollBar()->isVisible())
        return;
    const QWidget* horizontal = area->horizontalScrollBar();
    const QWidget* vertical = area->verticalScrollBar();
    auto corner = optionFrom<QStyleOption>(context.option);
    corner.rect = QRect(vertical->mapTo(area, QPoint()).x(), horizontal->mapTo(area, QPoint()).y(),
                        vertical->width(), horizontal->height());
    context.draw(QStyle::PE_PanelScrollAreaCorner, corner);
}

} // namespace

void paintFrame(const PaintContext& context, const QStyleOptionFrame& frame)
{
    if (WidgetTraits::isInComboBoxPopup(context.widget)
        || WidgetTraits::isComboBoxPopup(context.widget)) {
        Shapes::drawBox(context, frame.rect, 0, QBrush(), context.borderBrush());
        return;
    }
    BaseStyle::ButtonBrushes brushes;
    const bool ofComboBox = isComboBox(context.widget);
    if (ofComboBox) {
        brushes = BaseStyle::buttonBrushes(&frame, context.widget);
        const QBrush own = OwnColors::controlGround(context);
        if (own.style() != Qt::NoBrush)
            brushes.backgroundBrush = own;
    } else {
        brushes.borderBrush = inputBorder(context);
        if (isFilledByFrame(context.widget))
            brushes.backgroundBrush = background(context, inputBackground(context));
    }

    // A well is filled to its corners.
    const bool isWell = WidgetTraits::isColorWell(context.widget);
    const int radius = isWell ? 0 : Shapes::cornerRadius(ThemeNames::BaseSize);
    const QColor errorColor = context.color(ThemeNames::StatusDangerColor);
    const bool hasError = context.flag(WidgetProperties::DrawErrorIndicator);
    if (hasError)
        brushes.borderBrush = errorColor;
    Shapes::drawBox(context, frame.rect, radius, brushes.backgroundBrush, brushes.borderBrush,
                    ofComboBox ? Helpers::RightCorners : Helpers::None);
    if (!ofComboBox)
        paintFocusBorder(context, frame.rect, radius, brushes.borderBrush);
    paintCorner(context);
    // The arrow's panel has the mark of a combo box, unless that is in the corner on this side.
    const bool hasMark = !ofComboBox || context.rightToLeft();
    if (hasError && hasMark && !isScrollArea(context.widget))
        Helpers::drawInputStatusIndicator(frame.rect, radius, errorColor, &context.painter);
}

void paintPanel(const PaintContext& context, const QStyleOptionFrame& frame)
{
    if (isInComboBox(context.widget) || spinBoxOf(context.widget))
        return;
    const QBrush fill = isFrameless(context.widget)
                            ? frame.palette.brush(QPalette::Active, QPalette::Base)
                            : background(context, inputBackground(context));
    if (frame.lineWidth <= 0) {
        context.painter.fillRect(frame.rect, fill);
        return;
    }
    Shapes::drawGround(context, frame.rect, Shapes::cornerRadius(ThemeNames::BaseSize), fill);
    context.draw(QStyle::PE_FrameLineEdit, frame);
}

} // namespace BRELK::LineEdits
