#include "ArrowIcons.h"
#include "Families.h"
#include "Foregrounds.h"
#include "PainterSaver.h"
#include "Shapes.h"
#include "ThemeNames.h"

// Tool buttons.
//
// Properties: "ButtonType", "circular", "no menu arrow".

namespace BRELK::ToolButtons {

namespace {

constexpr int HorizontalPadding = 6;
constexpr int VerticalPadding = 4;

bool hasMenuPart(const QStyleOptionToolButton& button)
{
    return button.features & QStyleOptionToolButton::MenuButtonPopup;
}

/// Whether room beside the label is kept for the arrow that tells of a menu.
bool hasMenuMark(const QStyleOptionToolButton& button, const QWidget* widget)
{
    return button.features & QStyleOptionToolButton::HasMenu && !hasMenuPart(button)
           && !WidgetProperties::flag(widget, WidgetProperties::NoMenuArrow);
}

} // namespace

QSize toolButtonSize(const MeasureContext& context, const QStyleOptionToolButton& button,
                     const QSize& contents)
{
    const int markWidth =
        hasMenuMark(button, context.widget) ? context.metric(QStyle::PM_MenuButtonIndicator) : 0;
    const int width = contents.width() + markWidth + 2 * context.dpiScaled(HorizontalPadding);
    const int height =
        qMax(contents.height() + 2 * context.dpiScaled(VerticalPadding), context.controlHeight());
    const bool iconOnly = button.toolButtonStyle == Qt::ToolButtonIconOnly;
    return {iconOnly ? qMax(width, height) : width, height};
}

namespace {

constexpr int IconSpacing = 4;
constexpr int FocusInset = 3;
constexpr QStyle::State PanelStates =
    QStyle::State_Sunken | QStyle::State_On | QStyle::State_Raised;

/// The states of the button part and of the menu part: only the one that is pressed is sunken.
struct PartStates
{
    QStyle::State button;
    QStyle::State menu;
};

PartStates partStates(const QStyleOptionToolButton& option)
{
    QStyle::State state = option.state & ~QStyle::State_Sunken;
    constexpr QStyle::State Pointed = QStyle::State_MouseOver | QStyle::State_Enabled;
    if (state & QStyle::State_AutoRaise && (state & Pointed) != Pointed)
        state &= ~QStyle::State_Raised;
    PartStates states{state, state};
    if (option.state & QStyle::State_Sunken) {
        if (option.activeSubControls & QStyle::SC_ToolButton)
            states.button |= QStyle::State_Sunken;
        states.menu |= QStyle::State_Sunken;
    }
    return states;
}

void paintButtonPanel(const PaintContext& context, const QStyleOptionToolButton& button,
                      const QRect& rect, QStyle::State state, int menuWidth)
{
    QStyleOptionToolButton panel = button;
    panel.rect = rect;
    panel.state = state;
    // One circle, or pill, behind both parts.
    if (context.flag(WidgetProperties::Circular) && hasMenuPart(button)) {
        panel.rect.setWidth(rect.width() + menuWidth);
        if (context.rightToLeft())
            panel.rect.moveRight(rect.right());
    }
    context.draw(QStyle::PE_PanelButtonTool, panel);
}

void paintFocus(const PaintContext& context, const QStyleOptionToolButton& button)
{
    auto focus = optionFrom<QStyleOptionFocusRect>(button);
    focus.rect.adjust(FocusInset, FocusInset, -FocusInset, -FocusInset);
    if (hasMenuPart(button))
        focus.rect = context.visual(
            focus.rect.adjusted(0, 0, -context.metric(QStyle::PM_MenuButtonIndicator), 0));
    context.draw(QStyle::PE_FrameFocusRect, focus);
}

void paintMenuPart(const PaintContext& context, const QStyleOptionToolButton& button,
                   const QRect& area, QStyle::State state)
{
    QStyleOptionToolButton menu = button;
    // Deliberate: it is mirrored with the button, whose border it shares.
    menu.rect = context.rightToLeft() ? area.adjusted(0, 0, 1, 0) : area.adjusted(-1, 0, 0, 0);
    menu.state = state;
    menu.subControls = QStyle::SC_ToolButtonMenu;
    if (state & PanelStates && !context.flag(WidgetProperties::Circular))
        context.draw(QStyle::PE_IndicatorButtonDropDown, menu);
    if (context.rightToLeft()) // what is left over by centring the arrow goes to the border
        menu.rect.translate(1, 0);
    ArrowIcons::drawOf(context, QStyle::PE_IndicatorArrowDown, menu);
}

void paintMenuMark(const PaintContext& context, const QStyleOptionToolButton& button)
{
    const int side = context.metric(QStyle::PM_MenuButtonIndicator);
    QStyleOptionToolButton mark = button;
    mark.rect = context.visual({button.rect.right() - side,
                                button.rect.y() + (button.rect.height() - side) / 2, side, side});
    ArrowIcons::drawOf(context, QStyle::PE_IndicatorArrowDown, mark);
}

QBrush textBrush(const QStyleOptionToolButton& button)
{
    return button.palette.brush(QPalette::ButtonText);
}

void paintIcon(const PaintContext& context, const QStyleOptionToolButton& button, const QRect& rect)
{
    if (button.features & QStyleOptionToolButton::Arrow) {
        context.style.drawToolButtonArrow(&context.proxy(), &button, rect, &context.painter,
                                          context.widget);
        return;
    }
    const QIcon::State state = BaseStyle::isChecked(button) ? QIcon::On : QIcon::Off;
    const QSize size = button.icon.actualSize(button.iconSize.boundedTo(rect.size()));
    Shapes::drawIcon(context, button.icon, QBrush(), rect, size, state); // has its color
}

QSize textSize(const QStyleOptionToolButton& button)
{
    return button.fontMetrics.size(Qt::TextShowMnemonic, button.text);
}

/// The icon and the text stand together in the middle.
void paintBeside(const PaintContext& context, const QStyleOptionToolButton& button,
                 const QRect& rect)
{
    const int iconWidth = button.iconSize.width();
    const int width = qMin(iconWidth + IconSpacing + textSize(button).width(), rect.width());
    const QRect block(rect.x() + (rect.width() - width) / 2, rect.y(), width, rect.height());
    const QRect icon(block.x(), block.y(), qMin(iconWidth, width), block.height());
    const QRect text = block.adjusted(iconWidth + IconSpacing, 0, 0, 0);
    const auto mirrored = [&](const QRect& part) {
        return QStyle::visualRect(button.direction, rect, part);
    };
    paintIcon(context, button, mirrored(icon));
    const auto flags = QStyle::visualAlignment(button.direction, Qt::AlignLeft | Qt::AlignVCenter);
    Shapes::drawText(context, mirrored(text), int(flags) | Qt::TextShowMnemonic, button.text,
                     textBrush(button));
}

void paintUnder(const PaintContext& context, const QStyleOptionToolButton& button,
                const QRect& rect)
{
    const int textHeight = textSize(button).height();
    const int height = qMin(button.iconSize.height() + IconSpacing + textHeight, rect.height());
    const QRect block(rect.x(), rect.y() + (rect.height() - height) / 2, rect.width(), height);
    paintIcon(context, button, block.adjusted(0, 0, 0, -textHeight - IconSpacing));
    Shapes::drawText(context,
                     QRect(block.x(), block.bottom() + 1 - textHeight, block.width(), textHeight),
                     Qt::AlignCenter | Qt::TextShowMnemonic, button.text, textBrush(button));
}

/// What the menu mark leaves of the label's place.
QRect contentsRect(const PaintContext& context, const QStyleOptionToolButton& button)
{
    if (!hasMenuMark(button, context.widget))
        return button.rect;
    const int markWidth = context.metric(QStyle::PM_MenuButtonIndicator);
    // In a button that is too small for both, an icon alone shares its place with the arrow.
    if (button.toolButtonStyle == Qt::ToolButtonIconOnly
        && button.rect.width() < button.iconSize.width() + markWidth)
        return button.rect;
    return context.visual(button.rect.adjusted(0, 0, -markWidth, 0));
}

} // namespace

void paintLabel(const PaintContext& context, const QStyleOptionToolButton& button)
{
    const bool hasIcon = !button.icon.isNull() || button.features & QStyleOptionToolButton::Arrow;
    const bool isWithoutText =
        button.text.isEmpty() || button.toolButtonStyle == Qt::ToolButtonIconOnly;
    const QRect rect = contentsRect(context, button);
    if (hasIcon && isWithoutText && button.toolButtonStyle != Qt::ToolButtonTextOnly) {
        paintIcon(context, button, rect);
        return;
    }
    const PainterSaver saver(context.painter);
    context.painter.setFont(button.font);
    if (!hasIcon || button.toolButtonStyle == Qt::ToolButtonTextOnly) {
        // A connector names what it leads to: its text begins at the start.
        const bool isConnector = context.property(WidgetProperties::ButtonType).toString()
                                 == ThemeNames::UserConnector.text;
        const auto flags = QStyle::visualAlignment(button.direction,
                                                   isConnector ? Qt::AlignLeft : Qt::AlignHCenter);
        Shapes::drawText(context, rect, int(flags) | Qt::AlignVCenter | Qt::TextShowMnemonic,
                         button.text, textBrush(button));
    } else if (button.toolButtonStyle == Qt::ToolButtonTextUnderIcon) {
        paintUnder(context, button, rect);
    } else {
        paintBeside(context, button, rect);
    }
}

void paintToolButton(const PaintContext& context, const QStyleOptionToolButton& button)
{
    const auto part = [&](QStyle::SubControl subControl) {
        return context.part(QStyle::CC_ToolButton, button, subControl);
    };
    const QRect buttonRect = part(QStyle::SC_ToolButton);
    const QRect menuArea = part(QStyle::SC_ToolButtonMenu);
    const PartStates states = partStates(button);

    if (button.subControls & QStyle::SC_ToolButton && states.button & PanelStates)
        paintButtonPanel(context, button, buttonRect, states.button, menuArea.width());
    if (context.has(QStyle::State_HasFocus))
        paintFocus(context, button);

    QStyleOptionToolButton label = button;
    label.state = states.button;
    const int frameWidth = context.metric(QStyle::PM_DefaultFrameWidth);
    label.rect = buttonRect.adjusted(frameWidth, frameWidth, -frameWidth, -frameWidth);
    Foregrounds::commonCallButtonText(context.style, label, context.widget);
    context.draw(QStyle::CE_ToolButtonLabel, label);

    if (button.subControls & QStyle::SC_ToolButtonMenu)
        paintMenuPart(context, button, menuArea, states.menu);
    else if (button.features & QStyleOptionToolButton::HasMenu)
        paintMenuMark(context, button);
}

} // namespace BRELK::ToolButtons

namespace BRELK {

void BaseStyle::drawToolButtonArrow(const QStyle* style, const QStyleOptionToolButton* option,
                                    const QRect& rect, QPainter* painter,
                                    const QWidget* widget) const
{
    if (!style || !option || !painter)
        return;
    PrimitiveElement element;
    switch (option->arrowType) {
    case Qt::UpArrow: element = PE_IndicatorArrowUp; break;
    case Qt::DownArrow: element = PE_IndicatorArrowDown; break;
    case Qt::LeftArrow: element = PE_IndicatorArrowLeft; break;
    case Qt::RightArrow: element = PE_IndicatorArrowRight; break;
    default: return;
    }
    QStyleOption arrow = *option;
    arrow.rect = rect;
    Foregrounds::commonCallButtonText(*this, arrow, widget);
    style->drawPrimitive(element, &arrow, painter, widget);
}

} // namespace BRELK
