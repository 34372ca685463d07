#include "ArrowIcons.h"
#include "Families.h"
#include "Foregrounds.h"
#include "OwnColors.h"
#include "PainterSaver.h"
#include "Shapes.h"
#include "Texts.h"
#include "ThemeNames.h"
#include "WidgetTraits.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>

// Push buttons, command links, and the panels of everything that looks like a button.
//
// Properties: "circular", "drawErrorIndicator", "frameless", "outline", and those that compose the
// brushes.

namespace BRELK::Buttons {

namespace {

constexpr int HorizontalPadding = 12;
constexpr int VerticalPadding = 4;
constexpr int IconOnlyPadding = 6;
constexpr int SmallestTextWidth = 72;
constexpr int IconSpacing = 4;
constexpr int ArrowMargin = 2; ///< between a menu arrow and the border
constexpr int ElisionMargin = 3; ///< keeps an elided text off the border

/// Half the shorter side makes a circle, or a pill.
int panelRadius(const StyleContext& context, const QRect& rect)
{
    if (context.flag(WidgetProperties::Circular))
        return qMin(rect.width(), rect.height()) / 2;
    return Shapes::cornerRadius(ThemeNames::BaseSize);
}

} // namespace

QSize buttonSize(const MeasureContext& context, const QStyleOptionButton& button,
                 const QSize& contents)
{
    const bool hasText = !button.text.isEmpty();
    const int padding = context.dpiScaled(hasText ? HorizontalPadding : IconOnlyPadding);
    const int smallestWidth = hasText ? context.dpiScaled(SmallestTextWidth) : 0;
    const int height = contents.height() + 2 * context.dpiScaled(VerticalPadding);
    const QSize size(qMax(contents.width() + 2 * padding, smallestWidth),
                     qMax(height, context.controlHeight()));
    if (!WidgetProperties::flag(context.widget, WidgetProperties::Circular))
        return size;
    const int diameter = hasText ? qMax(size.width(), size.height()) : size.height();
    return {diameter, diameter};
}

namespace {

using Corners = Helpers::StraightCornerFlags;

/// A part that joins another one at its left or, in a right-to-left layout, its right.
Corners joinedBehind(const StyleContext& context)
{
    return context.rightToLeft() ? Helpers::RightCorners : Helpers::LeftCorners;
}

Corners joinedBefore(const StyleContext& context)
{
    return context.rightToLeft() ? Helpers::LeftCorners : Helpers::RightCorners;
}

/// The two buttons of a spin box at the origin lie inside its border: each has one round corner.
Corners spinButtonCorners(const StyleContext& context)
{
    const bool isUpper = context.option.rect.top() < context.option.rect.height();
    return joinedBehind(context) | (isUpper ? Helpers::BottomCorners : Helpers::TopCorners);
}

Corners toolButtonCorners(const StyleContext& context, const QStyleOptionToolButton& button)
{
    if (!(button.features & QStyleOptionToolButton::MenuButtonPopup)
        || context.flag(WidgetProperties::Circular))
        return Helpers::None;
    const bool isMenuPart = button.subControls == QStyle::SC_ToolButtonMenu;
    return isMenuPart ? joinedBehind(context) : joinedBefore(context);
}

bool isArrowOfEditor(const QWidget* widget)
{
    const auto* comboBox = qobject_cast<const QComboBox*>(widget);
    return (comboBox && comboBox->isEditable()) || WidgetTraits::isCalendarPopupEditor(widget);
}

bool hasFrame(const QWidget* editor)
{
    const auto* comboBox = qobject_cast<const QComboBox*>(editor);
    return comboBox ? comboBox->hasFrame()
                    : static_cast<const QAbstractSpinBox*>(editor)->hasFrame();
}

/// The arrow of an editable combo box ends before the box does, its panel with it.
QRect panelRect(const StyleContext& context)
{
    if (!isArrowOfEditor(context.widget))
        return context.option.rect;
    QStyleOptionComboBox comboBox;
    comboBox.initFrom(context.widget);
    comboBox.rect = QRect(QPoint(), context.widget->size());
    comboBox.frame = hasFrame(context.widget);
    const QRect arrow = context.part(QStyle::CC_ComboBox, comboBox, QStyle::SC_ComboBoxArrow);
    return context.option.rect.adjusted(0, 0, comboBox.rect.right() - arrow.right(), 0);
}

Corners straightCorners(const StyleContext& context)
{
    if (const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(&context.option))
        return toolButtonCorners(context, *button);
    // Deliberate: combo boxes keep their sides in right-to-left layouts.
    if (isArrowOfEditor(context.widget))
        return Helpers::LeftCorners;
    return context.widget && WidgetTraits::isSpinBox(context.widget) ? spinButtonCorners(context)
                                                                     : Corners(Helpers::None);
}

/// The ground of a spin box is also that of its buttons, until one is pressed or blinks.
bool isSpinButtonOnGround(const StyleContext& context)
{
    if (!context.widget || !WidgetTraits::isSpinBox(context.widget)
        || WidgetTraits::isCalendarPopupEditor(context.widget) || BaseStyle::isDown(context.option))
        return false;
    const WidgetProperties::Reader properties(context.widget);
    return BaseStyle::isHovered(&context.option)
           || (properties.kind().isEmpty() && !properties.flag(WidgetProperties::Blinking));
}

/// An outline button is empty until it is pointed at, pressed or checked; a flat one shows nothing
/// at all then.
bool isFilled(const StyleContext& context)
{
    const bool isIdle =
        !BaseStyle::isDown(context.option) && !BaseStyle::isHovered(&context.option);
    return !isIdle
           || !(context.flag(WidgetProperties::Outline)
                || BaseStyle::isFlatButton(&context.option));
}

/// An application's own ground takes the place of the theme's, and of a border of that color.
bool showOwnGround(const StyleContext& context, BaseStyle::ButtonBrushes& brushes)
{
    const QBrush own = OwnColors::controlGround(context);
    if (own.style() == Qt::NoBrush)
        return false;
    // What the theme tells by the filling, the border tells.
    const bool isAccented =
        (BaseStyle::isChecked(context.option) || BaseStyle::isDefaultButton(&context.option))
        && !WidgetTraits::isSpinBox(context.widget);
    if (brushes.borderBrush == brushes.backgroundBrush)
        brushes.borderBrush = isAccented ? context.brush(ThemeNames::MainBrush) : own;
    brushes.backgroundBrush = own;
    return true;
}

/// A flat button at rest is not filled: a text that is made for its filling may not be seen.
bool isMeantForFilling(const StyleContext& context, const QBrush& background)
{
    return BaseStyle::isFlatButton(&context.option) && !isFilled(context) && background.isOpaque();
}

/// What a button writes in.
QBrush wordsBrush(const StyleContext& context)
{
    const BaseStyle::ButtonBrushes brushes =
        BaseStyle::buttonBrushes(&context.option, context.widget);
    QBrush themed = brushes.foregroundBrush;
    if (isMeantForFilling(context, brushes.backgroundBrush))
        themed = context.brush(ThemeNames::ButtonUncheckedForegroundBrush);
    if (themed.style() == Qt::NoBrush)
        themed = context.color(ThemeNames::ForegroundColor);
    return Foregrounds::ofText(context, QPalette::ButtonText, themed,
                               isFilled(context) ? brushes.backgroundBrush : QBrush());
}

/// Deliberate: the keyboard's place is seen without colors too: there the border takes the accent
/// and is two pixels wide, and the mark inside it comes second.
bool showsFocus(const StyleContext& context)
{
    constexpr QStyle::State Shown = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    return (context.option.state & Shown) == Shown
           && qobject_cast<const QAbstractButton*>(context.widget);
}

/// A spin box shows on its frame, not on its buttons, that it holds an error.
bool showsError(const StyleContext& context)
{
    return context.flag(WidgetProperties::DrawErrorIndicator)
           && (!WidgetTraits::isSpinBox(context.widget)
               || WidgetTraits::isCalendarPopupEditor(context.widget));
}

bool isInRow(const QWidget* segment)
{
    return WidgetProperties::value(segment->parent(), WidgetProperties::Orientation).toInt()
           == Qt::Horizontal;
}

/// Of two borders that meet, that of the earlier segment is seen; the later one's lies outside.
QRect segmentRect(const StyleContext& context)
{
    const QWidget* segment = context.widget;
    const bool isLater =
        WidgetProperties::value(segment, WidgetProperties::ButtonVisibleIndex).toInt() > 0
        && !WidgetProperties::flag(segment->parent(), WidgetProperties::ButtonGroupWorkflow);
    const bool inRow = isInRow(segment);
    return context.option.rect.adjusted(isLater && inRow ? -1 : 0, isLater && !inRow ? -1 : 0, 0,
                                        0);
}

void paintSegment(const PaintContext& context, const BaseStyle::ButtonBrushes& brushes)
{
    const PainterSaver saver(context.painter);
    context.painter.setRenderHint(QPainter::Antialiasing);
    context.painter.setBrush(brushes.backgroundBrush);
    if (context.rightToLeft() && isInRow(context.widget)) {
        // Deliberate: the layout has mirrored the row, so its first segment is round at the right.
        context.painter.translate(2 * context.option.rect.x() + context.option.rect.width(), 0);
        context.painter.scale(-1, 1);
    }
    const Shapes::Border border =
        Shapes::borderInside(context.painter, segmentRect(context), brushes.borderBrush);
    context.painter.setPen(border.pen);
    context.style.drawButtonGroup(border.line, &context.painter, &context.option,
                                  Shapes::cornerRadius(ThemeNames::BaseSize), brushes,
                                  context.widget);
}

/// Where the label goes: left of the menu arrow, right of it in a right-to-left layout.
QRect labelRect(const StyleContext& context, const QStyleOptionButton& button)
{
    if (!(button.features & QStyleOptionButton::HasMenu))
        return button.rect;
    const int indicator = context.metric(QStyle::PM_MenuButtonIndicator);
    return context.visual(button.rect.adjusted(0, 0, -indicator, 0));
}

/// The largest square whose corners a circle inside `rect` reaches.
QRect squareInside(const QRect& rect)
{
    constexpr qreal SideOfDiameter = 0.7071;
    const int side = int(qMin(rect.width(), rect.height()) * SideOfDiameter);
    QRect square(0, 0, side, side);
    square.moveCenter(rect.center());
    return square;
}

QSize shownIconSize(const QStyleOptionButton& button, const QRect& rect)
{
    return button.icon.isNull() ? QSize()
                                : button.icon.actualSize(button.iconSize.boundedTo(rect.size()));
}

} // namespace

void paintDefaultFrame(const PaintContext& context)
{
    if (!BaseStyle::isFlatButton(&context.option))
        return;
    const QRect& rect = context.option.rect;
    Shapes::drawBox(context, rect, panelRadius(context, rect), QBrush(),
                    BaseStyle::buttonBrushes(&context.option, context.widget).borderBrush);
}

void paintPanel(const PaintContext& context)
{
    if (isSpinButtonOnGround(context))
        return;
    BaseStyle::ButtonBrushes brushes = BaseStyle::buttonBrushes(&context.option, context.widget);
    const bool hasOwnGround = showOwnGround(context, brushes);
    if (context.widget && WidgetTraits::isSegmentedGroup(context.widget->parentWidget())) {
        paintSegment(context, brushes);
        return;
    }
    const bool filled =
        isFilled(context) || (hasOwnGround && !BaseStyle::isFlatButton(&context.option));
    const bool hasError = showsError(context);
    const bool isFocused = showsFocus(context);
    if (!filled && !hasError && !isFocused && BaseStyle::isFlatButton(&context.option))
        return;
    const QColor errorColor = context.color(ThemeNames::StatusDangerColor);
    if (hasError)
        brushes.borderBrush = errorColor;
    else if (isFocused)
        brushes.borderBrush = context.brush(ThemeNames::MainBrush);
    else if (context.flag(WidgetProperties::Frameless))
        brushes.borderBrush = QBrush();

    const QRect rect = panelRect(context);
    const int radius = panelRadius(context, rect);
    const Corners corners = straightCorners(context);
    Shapes::drawBox(context, rect, radius, filled ? brushes.backgroundBrush : QBrush(),
                    brushes.borderBrush, corners);
    if (isFocused)
        Shapes::drawInnerBorder(context, rect, radius, brushes.borderBrush, corners);
    if (hasError && !(context.rightToLeft() && isArrowOfEditor(context.widget)))
        Helpers::drawInputStatusIndicator(rect, radius, errorColor, &context.painter);
}

void paintButton(const PaintContext& context, const QStyleOptionButton& button)
{
    context.draw(QStyle::CE_PushButtonBevel, button);

    QStyleOptionButton label = button;
    label.rect = context.part(QStyle::SE_PushButtonContents);
    context.draw(QStyle::CE_PushButtonLabel, label);

    if (context.has(QStyle::State_HasFocus)) {
        auto focus = optionFrom<QStyleOptionFocusRect>(button);
        focus.rect = context.flag(WidgetProperties::Circular)
                         ? squareInside(button.rect)
                         : context.part(QStyle::SE_PushButtonFocusRect);
        // The mark lies on the button's body, so it takes the color of the words there.
        Foregrounds::set(focus, wordsBrush(context), QPalette::Text);
        context.draw(QStyle::PE_FrameFocusRect, focus);
    }
}

void paintBevel(const PaintContext& context, const QStyleOptionButton& button)
{
    context.draw(QStyle::PE_PanelButtonCommand, button);
    if (button.features & QStyleOptionButton::DefaultButton)
        context.draw(QStyle::PE_FrameDefaultButton, button);
    if (button.features & QStyleOptionButton::HasMenu) {
        const int indicator = context.metric(QStyle::PM_MenuButtonIndicator);
        QStyleOptionButton arrow = button;
        arrow.rect = context.visual({button.rect.right() - indicator - ArrowMargin,
                                     button.rect.y() + (button.rect.height() - indicator) / 2,
                                     indicator, indicator});
        Foregrounds::commonCallButtonText(context.style, arrow, context.widget);
        ArrowIcons::drawOf(context, QStyle::PE_IndicatorArrowDown, arrow);
    }
}

void paintLabel(const PaintContext& context, const QStyleOptionButton& button)
{
    const QBrush foreground = wordsBrush(context);
    constexpr int Flags = Qt::AlignCenter | Qt::TextShowMnemonic;
    const int textWidth = Texts::width(context.painter, Flags, button.text);
    QRect rect = labelRect(context, button);
    const QSize iconSize = shownIconSize(button, rect);
    if (!iconSize.isEmpty()) {
        const int spacing = textWidth > 0 ? IconSpacing : 0;
        const int width = qMin(iconSize.width() + spacing + textWidth, rect.width());
        const QRect content(rect.x() + (rect.width() - width) / 2, rect.y(), width, rect.height());
        const QRect iconRect(content.x(), content.y() + (content.height() - iconSize.height()) / 2,
                             iconSize.width(), iconSize.height());
        const QIcon::State state = BaseStyle::isChecked(button) ? QIcon::On : QIcon::Off;
        Shapes::drawIcon(context, button.icon, foreground, context.visual(iconRect), iconSize,
                         state);
        rect = context.visual(content.adjusted(iconSize.width() + spacing, 0, 0, 0));
    }
    if (textWidth > rect.width())
        rect.adjust(ElisionMargin, 0, -ElisionMargin, 0);
    Shapes::drawText(context, rect, Flags, button.text, foreground);
}

} // namespace BRELK::Buttons
