#include "Families.h"
#include "Foregrounds.h"
#include "OwnColors.h"
#include "PainterSaver.h"
#include "Pictures.h"
#include "Shapes.h"
#include "ThemeNames.h"
#include "WidgetTraits.h"

// Spin boxes, date and time editors.
//
// Properties: "drawErrorIndicator".

namespace BRELK::SpinBoxes {

namespace {

constexpr int ButtonWidth = 14;
constexpr int ButtonMargin = 1; ///< between the buttons and the right border

bool hasButtons(const QStyleOptionSpinBox& spinBox)
{
    return spinBox.buttonSymbols != QAbstractSpinBox::NoButtons;
}

} // namespace

/// As a style sheet sizes them, without asking the style: with the room of a frame also where none
/// is drawn.
QSize spinBoxSize(const MeasureContext& context, const QStyleOptionSpinBox& spinBox,
                  const QSize& contents)
{
    QStyleOptionSpinBox framed = spinBox;
    framed.frame = true;
    return context.style.QCommonStyle::sizeFromContents(QStyle::CT_SpinBox, &framed, contents,
                                                        context.widget);
}

QRect partRect(const StyleContext& context, const QStyleOptionSpinBox& spinBox,
               QStyle::SubControl part)
{
    const QRect& box = spinBox.rect;
    const int buttonLeft = box.width() - ButtonWidth - ButtonMargin;
    const int half = box.height() / 2;
    switch (part) {
    case QStyle::SC_SpinBoxUp:
        return hasButtons(spinBox) ? context.visual({buttonLeft, 0, ButtonWidth, half}) : QRect();
    case QStyle::SC_SpinBoxDown:
        return hasButtons(spinBox)
                   ? context.visual({buttonLeft, half, ButtonWidth, box.bottom() - half})
                   : QRect();
    case QStyle::SC_SpinBoxFrame: return context.visual(box);
    case QStyle::SC_SpinBoxEditField: {
        const int width = hasButtons(spinBox) ? buttonLeft - 1 : box.width();
        return context.visual({1, 1, width, box.height() - 2});
    }
    default: return context.visual(context.baseRect(QStyle::CC_SpinBox, spinBox, part));
    }
}

namespace {

constexpr int BarLength = 6;
constexpr int BarThickness = 2;

/// By how much arrows and signs of large texts reach, on both sides, into the margins that those of
/// other texts leave in their buttons.
int growth(const PaintContext& context)
{
    constexpr int UsualIndicator = 16;
    constexpr int Largest = 2;
    if (context.option.rect.height() <= UsualIndicator) // quicker than measuring the font
        return 0;
    return qBound(0, (context.measure().indicatorSize() - UsualIndicator) / 2, Largest);
}

QRect centredBar(const QRect& rect, int width, int height)
{
    return {rect.x() + (rect.width() - width) / 2, rect.y() + (rect.height() - height) / 2, width,
            height};
}

int barLength(const PaintContext& context)
{
    const QRect& rect = context.option.rect;
    return qMin(BarLength + 2 * growth(context), qMin(rect.width(), rect.height()) - 2);
}

/// One of the two buttons: what tells the upper from the lower.
struct StepButton
{
    QStyle::SubControl part;
    QAbstractSpinBox::StepEnabledFlag step;
    QStyle::PrimitiveElement arrow;
    QStyle::PrimitiveElement sign;
    int shift; ///< of its rectangle, downwards
};

constexpr StepButton UpButton{QStyle::SC_SpinBoxUp, QAbstractSpinBox::StepUpEnabled,
                              QStyle::PE_IndicatorSpinUp, QStyle::PE_IndicatorSpinPlus, 1};
constexpr StepButton DownButton{QStyle::SC_SpinBoxDown, QAbstractSpinBox::StepDownEnabled,
                                QStyle::PE_IndicatorSpinDown, QStyle::PE_IndicatorSpinMinus, 0};

/// Most of the time it has the palette already, and comparing is quicker than assigning.
void setPalette(QStyleOption& option, const QPalette& palette)
{
    if (!option.palette.isCopyOf(palette)
        || option.palette.currentColorGroup() != palette.currentColorGroup())
        option.palette = palette;
}

/// Makes `copy` of the spin box the option of one of its buttons.
void setUpStep(const PaintContext& context, const QStyleOptionSpinBox& spinBox,
               const StepButton& button, QStyleOptionSpinBox& copy)
{
    copy.subControls = button.part;
    copy.state = spinBox.state;
    setPalette(copy, spinBox.palette);
    if (!(spinBox.stepEnabled & button.step)) {
        copy.palette.setCurrentColorGroup(QPalette::Disabled);
        copy.state &= ~QStyle::State_Enabled;
    }
    const bool isActive = spinBox.activeSubControls == button.part;
    if (isActive && BaseStyle::isPressed(spinBox)) {
        copy.state |= QStyle::State_On | QStyle::State_Sunken;
    } else {
        copy.state |= QStyle::State_Raised;
        copy.state &= ~QStyle::State_Sunken;
    }
    if (!isActive && context.has(QStyle::State_MouseOver))
        copy.state &= ~QStyle::State_MouseOver;
    copy.rect = context.part(QStyle::CC_SpinBox, spinBox, button.part).translated(0, button.shift);
}

void paintStepButton(const PaintContext& context, const StepButton& button,
                     QStyleOptionSpinBox& copy, QStyleOptionButton& bevel)
{
    bevel.rect = copy.rect;
    bevel.state = copy.state;
    setPalette(bevel, copy.palette);
    // For another widget it would be that of a button that stands alone.
    if (WidgetTraits::isSpinBox(context.widget) || BaseStyle::isDown(bevel))
        context.draw(QStyle::PE_PanelButtonBevel, bevel);

    if (context.style.getButtonBackgroundState(bevel) == BaseStyle::ButtonBackground_Highlighted)
        Foregrounds::set(copy, copy.palette.brush(QPalette::HighlightedText));
    if (BaseStyle::isButtonHovered(&bevel))
        Foregrounds::set(copy, context.brush(ThemeNames::MainBrush));
    if (BaseStyle::isDown(bevel)) // Deliberate: an arrow fades while its step is held.
        Foregrounds::set(copy, context.brush(ThemeNames::MainSubLevel1Brush));
    const bool hasSigns = copy.buttonSymbols == QAbstractSpinBox::PlusMinus;
    context.draw(hasSigns ? button.sign : button.arrow, copy);
}

QColor borderColor(const PaintContext& context, bool hasError)
{
    if (hasError)
        return context.color(ThemeNames::StatusDangerColor);
    return context.has(QStyle::State_HasFocus)
               ? context.color(ThemeNames::MainColor)
               : context.brush(ThemeNames::InputBorderBrush).color();
}

void paintStepButtons(const PaintContext& context, const QStyleOptionSpinBox& spinBox,
                      const QRect& frame)
{
    QStyleOptionSpinBox copy = spinBox;
    auto bevel = optionFrom<QStyleOptionButton>(spinBox);
    for (const StepButton& button : {UpButton, DownButton}) {
        if (!(spinBox.subControls & button.part))
            continue;
        setUpStep(context, spinBox, button, copy);
        const QRect clip = frame.adjusted(0, button.shift, -1, -1);
        if (clip.contains(copy.rect)) { // clipping takes longer than painting
            paintStepButton(context, button, copy, bevel);
        } else {
            const PainterSaver saver(context.painter);
            context.painter.setClipRect(clip);
            paintStepButton(context, button, copy, bevel);
        }
    }
}

/// The base style draws the arrows, as polygons.
void paintArrow(const PaintContext& context, QStyle::PrimitiveElement arrow, Pictures::Kind kind)
{
    const int wider = growth(context);
    const QRect rect = context.option.rect.adjusted(-wider, 0, wider, 0);
    Pictures::draw(
        context.painter, kind, rect, context.option.palette.brush(QPalette::ButtonText),
        [&](QPainter& onto) {
            QStyleOption option = context.option;
            option.rect = rect;
            PaintContext{{context.style, option, context.widget}, onto}.drawByBase(arrow);
        });
}

/// In the usual corner, or in the one that the buttons leave free.
void paintErrorMark(const PaintContext& context, const QStyleOptionSpinBox& spinBox,
                    const QRect& frame, int radius)
{
    QPainter& painter = context.painter;
    const Qt::LayoutDirection direction = painter.layoutDirection();
    if (hasButtons(spinBox))
        painter.setLayoutDirection(direction == Qt::RightToLeft ? Qt::LeftToRight
                                                                : Qt::RightToLeft);
    Helpers::drawInputStatusIndicator(frame, radius, context.color(ThemeNames::StatusDangerColor),
                                      &painter);
    painter.setLayoutDirection(direction);
}

} // namespace

void paintUp(const PaintContext& context)
{
    const bool pressed = BaseStyle::isPressed(context.option); // may be shifted
    paintArrow(context, QStyle::PE_IndicatorSpinUp,
               pressed ? Pictures::Kind::SpinUpPressed : Pictures::Kind::SpinUp);
}

void paintDown(const PaintContext& context)
{
    const bool pressed = BaseStyle::isPressed(context.option);
    paintArrow(context, QStyle::PE_IndicatorSpinDown,
               pressed ? Pictures::Kind::SpinDownPressed : Pictures::Kind::SpinDown);
}

void paintMinus(const PaintContext& context)
{
    const QRect& rect = context.option.rect;
    const QBrush brush = context.option.palette.brush(QPalette::ButtonText);
    context.painter.fillRect(centredBar(rect, barLength(context), BarThickness), brush);
}

void paintPlus(const PaintContext& context)
{
    const QRect& rect = context.option.rect;
    const QBrush brush = context.option.palette.brush(QPalette::ButtonText);
    const QRect horizontal = centredBar(rect, barLength(context), BarThickness);
    const QRect vertical = centredBar(rect, BarThickness, barLength(context));
    context.painter.fillRect(horizontal, brush);
    // Above and below the horizontal bar, so that a translucent brush does not show the crossing.
    context.painter.fillRect(
        QRect(vertical.topLeft(), QPoint(vertical.right(), horizontal.top() - 1)), brush);
    context.painter.fillRect(
        QRect(QPoint(vertical.left(), horizontal.bottom() + 1), vertical.bottomRight()), brush);
}

void paintSpinBox(const PaintContext& context, const QStyleOptionSpinBox& spinBox)
{
    if (!spinBox.rect.topLeft().isNull()) { // the upper button is known by where it is
        QStyleOptionSpinBox atOrigin = spinBox;
        atOrigin.rect.moveTo(0, 0);
        const PainterSaver saver(context.painter);
        context.painter.translate(spinBox.rect.topLeft());
        paintSpinBox({{context.style, atOrigin, context.widget}, context.painter}, atOrigin);
        return;
    }
    const QRect frame = context.part(QStyle::CC_SpinBox, spinBox, QStyle::SC_SpinBoxFrame);
    const bool hasError = context.flag(WidgetProperties::DrawErrorIndicator);
    const int radius = Shapes::cornerRadius(ThemeNames::BaseSize);
    const QBrush own = OwnColors::controlGround(context);
    const QBrush ground =
        own.style() == Qt::NoBrush ? context.brush(ThemeNames::InputUncheckedBackgroundBrush) : own;
    if (spinBox.frame && spinBox.subControls & QStyle::SC_SpinBoxFrame)
        Shapes::drawBox(context, frame, radius, ground, borderColor(context, hasError));
    paintStepButtons(context, spinBox, frame);
    // Deliberate: a second line, or a mark where there is no frame, tells the focus without colors.
    if (spinBox.frame && context.has(QStyle::State_HasFocus))
        Shapes::drawInnerBorder(context, frame, radius, borderColor(context, hasError));
    if (!spinBox.frame && context.has(QStyle::State_HasFocus))
        context.draw(QStyle::PE_FrameFocusRect, optionFrom<QStyleOptionFocusRect>(spinBox));
    if (hasError && spinBox.frame)
        paintErrorMark(context, spinBox, frame, radius);
}

} // namespace BRELK::SpinBoxes
