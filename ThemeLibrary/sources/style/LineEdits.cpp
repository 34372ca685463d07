#include "ButtonContent.h"
#include "Families.h"
#include "Shapes.h"
#include "ThemeNames.h"
#include "WidgetTraits.h"

#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLineEdit>

// Line edits, and the frames that text editors and views share with them.
//
// Properties: "drawErrorIndicator".

namespace BRELK::LineEdits {

namespace {

/// What makes a spin box as high as the controls beside it: its size is that of its editor and of
/// its frame.
int heightToFill(const BaseStyle& style, const QLineEdit& editor, const QWidget& spinBox)
{
    const int frameWidth =
        style.proxy()->pixelMetric(QStyle::PM_SpinBoxFrameWidth, nullptr, &spinBox);
    const int height = editor.sizeHint().height() + 2 * frameWidth;
    return qMax(0, MeasureContext{style, nullptr, &editor}.controlHeight() - height);
}

} // namespace

void placeText(const BaseStyle& style, QLineEdit& editor)
{
    // How far from the border of its input an editor lies, and how much of the room between text
    // and border that a box does not have.
    constexpr int InComboBox = 3;
    constexpr int InSpinBox = 1;
    constexpr int BeforeButtons = 1;
    const QWidget* owner = editor.parentWidget();
    if (!editor.textMargins().isNull()) // the application's, or set already
        return;
    const int padding = style.proxy()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, &editor);
    const int inComboBox = padding - InComboBox;
    const int inSpinBox = padding - InSpinBox;
    if (qobject_cast<const QComboBox*>(owner))
        editor.setTextMargins(inComboBox, 0, inComboBox, 0);
    const auto* spinBox = qobject_cast<const QAbstractSpinBox*>(owner);
    if (!spinBox || !spinBox->hasFrame())
        return;
    const int fill = heightToFill(style, editor, *spinBox);
    if (WidgetTraits::isCalendarPopupEditor(owner))
        editor.setTextMargins(inComboBox, (fill + 1) / 2, inComboBox, fill / 2);
    else
        editor.setTextMargins(inSpinBox, (fill + 1) / 2, inSpinBox - BeforeButtons, fill / 2);
}

QSize lineEditSize(const MeasureContext& context, const QStyleOptionFrame& frame,
                   const QSize& contents, const QSize&)
{
    if (frame.lineWidth <= 0)
        return contents;
    return {contents.width() + 2 * frame.lineWidth,
            qMax(contents.height() + 2 * frame.lineWidth, context.controlHeight())};
}

namespace {

bool isEditorOfOther(const QWidget* widget)
{
    const QWidget* parent = widget ? widget->parentWidget() : nullptr;
    return qobject_cast<const QComboBox*>(parent) || qobject_cast<const QAbstractSpinBox*>(parent);
}

/// An editable combo box, or a date edit that looks like one: its frame meets the arrow's panel.
bool isComboBox(const QWidget* widget)
{
    return qobject_cast<const QComboBox*>(widget) || WidgetTraits::isCalendarPopupEditor(widget);
}

/// What lies between the border and the contents.
QBrush background(const PaintContext& context, const QBrush& themed)
{
    if (const auto* area = qobject_cast<const QAbstractScrollArea*>(context.widget)) {
        const QWidget* viewport = area->viewport();
        return viewport->palette().brush(viewport->backgroundRole());
    }
    return ButtonContent::textBrush(context.option, context.widget, QPalette::Base, themed);
}

QBrush inputBackground(const PaintContext& context)
{
    if (context.has(QStyle::State_HasFocus) && !context.has(QStyle::State_ReadOnly))
        return context.brush(ThemeNames::InputBackgroundActiveBrush);
    // A read-only field stands back like a disabled one, but its text does not.
    const bool editable = context.enabled() && !context.has(QStyle::State_ReadOnly);
    return FrozenTheme::brush(ThemeNames::InputUncheckedBackgroundBrush, editable);
}

QBrush inputBorder(const PaintContext& context)
{
    return context.brush(context.has(QStyle::State_HasFocus) ? ThemeNames::InputBorderActiveBrush
                                                             : ThemeNames::InputBorderBrush);
}

/// Covers all but a thin frame: there is no place for an error mark.
bool isScrollArea(const QWidget* widget)
{
    return qobject_cast<const QAbstractScrollArea*>(widget);
}

} // namespace

void paintFrame(const PaintContext& context, const QStyleOptionFrame& frame)
{
    if (WidgetTraits::isInComboBoxPopup(context.widget)
        || WidgetTraits::isComboBoxPopup(context.widget)) {
        Shapes::drawBox(context, frame.rect, 0, Qt::NoBrush, context.borderBrush());
        return;
    }
    BaseStyle::ButtonBrushes brushes;
    const bool ofComboBox = isComboBox(context.widget);
    if (ofComboBox) {
        brushes = BaseStyle::buttonBrushes(&frame, context.widget);
    } else {
        brushes.borderBrush = inputBorder(context);
        // A line edit's panel is filled already, and a plain frame shows what it stands on.
        if (isScrollArea(context.widget))
            brushes.backgroundBrush = background(context, inputBackground(context));
    }

    const int radius = Shapes::cornerRadius(ThemeNames::BaseSize);
    const QColor errorColor = context.color(ThemeNames::StatusDangerColor);
    const bool hasError = context.flag(WidgetProperties::DrawErrorIndicator);
    if (hasError)
        brushes.borderBrush = errorColor;
    Shapes::drawBox(context, frame.rect, radius, brushes.backgroundBrush, brushes.borderBrush,
                    ofComboBox ? Helpers::RightCorners : Helpers::None);
    // The arrow's panel has the mark of a combo box, unless that is in the corner on this side.
    const bool hasMark = !ofComboBox || context.rightToLeft();
    if (hasError && hasMark && !isScrollArea(context.widget))
        Helpers::drawInputStatusIndicator(frame.rect, radius, errorColor, &context.painter);
}

void paintPanel(const PaintContext& context, const QStyleOptionFrame& frame)
{
    if (isEditorOfOther(context.widget))
        return;
    const QBrush fill = background(context, inputBackground(context));
    if (frame.lineWidth <= 0) {
        context.painter.fillRect(frame.rect, fill);
        return;
    }
    Shapes::drawGround(context, frame.rect, Shapes::cornerRadius(ThemeNames::BaseSize), fill);
    context.draw(QStyle::PE_FrameLineEdit, frame);
}

} // namespace BRELK::LineEdits
