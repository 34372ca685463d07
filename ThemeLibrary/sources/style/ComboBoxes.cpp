#include "ArrowIcons.h"
#include "ComboBoxDefaultItemDelegate.h"
#include "Families.h"
#include "Foregrounds.h"
#include "InputMetrics.h"
#include "OwnColors.h"
#include "PainterSaver.h"
#include "Shapes.h"
#include "ThemeNames.h"
#include "WidgetTraits.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QScrollBar>

#include <algorithm>

// Combo boxes and calendar-popup date editors.

namespace BRELK::ComboBoxes {

namespace {

constexpr int IconSpacing = 4;
constexpr int ArrowRoom = 12; ///< what the text leaves to the arrow before its middle
constexpr int FocusInset = 3;

/// How far the text is from the border: as far as in a line edit.
int textInset(const MeasureContext& context)
{
    return context.dpiScaled(InputMetrics::TextPadding) + InputMetrics::EditorMargin;
}

/// The arrow area is a square of the box's height, but never narrower than the arrow.
int arrowExtent(const StyleContext& context, const QRect& box)
{
    return qMax(box.height(), context.metric(QStyle::PM_MenuButtonIndicator));
}

/// The width of the longest of the items, or of those around the current one when measuring all
/// would keep the user waiting.
int longestItem(const QComboBox& comboBox, const QAbstractItemView& view)
{
    constexpr int MostItems = 1000;
    const int count = comboBox.count();
    if (count <= MostItems)
        return view.sizeHintForColumn(comboBox.modelColumn());
    const int first = qBound(0, comboBox.currentIndex() - MostItems / 2, count - MostItems);
    int width = 0;
    for (int row = first; row < first + MostItems; ++row) {
        const QModelIndex item =
            comboBox.model()->index(row, comboBox.modelColumn(), comboBox.rootModelIndex());
        width = qMax(width, view.sizeHintForIndex(item).width());
    }
    return width;
}

/// Whether the list of the popup was made already, which the toolkit does when it is asked for.
bool hasList(const QComboBox& comboBox)
{
    const QObjectList& children = comboBox.children();
    return std::any_of(children.begin(), children.end(), WidgetTraits::isComboBoxPopup);
}

/// As wide as the longest item at least; the combo box keeps it on the screen.
QRect popupRect(const StyleContext& context, const QRect& box)
{
    const auto* comboBox = qobject_cast<const QComboBox*>(context.widget);
    if (!comboBox)
        return box;
    const QAbstractItemView* view = comboBox->view();
    const auto* popup = qobject_cast<const QFrame*>(view->parentWidget());
    const int frames = view->frameWidth() + (popup ? popup->frameWidth() : 0);
    const bool scrolls = comboBox->count() > comboBox->maxVisibleItems();
    const int bar = scrolls ? view->verticalScrollBar()->sizeHint().width() : 0;
    const int width = longestItem(*comboBox, *view) + 2 * frames + bar;
    QRect rect = box;
    rect.setWidth(qMax(qMax(width, box.width()), popup ? popup->minimumWidth() : 0));
    if (context.rightToLeft())
        rect.moveRight(box.right());
    return rect;
}

} // namespace

void replaceDelegate(QComboBox& comboBox)
{
    // The combo box owns the delegate: owned by the style it would leak with every combo box that
    // goes, and be missed by every one that outlives the style.
    if (!hasList(comboBox) || !WidgetTraits::isDefaultComboBoxDelegate(comboBox.itemDelegate()))
        return;
    comboBox.setItemDelegate(new ComboBoxDefaultItemDelegate(&comboBox, &comboBox));
    comboBox.view()->parentWidget()->ensurePolished();
}

QSize comboBoxSize(const MeasureContext& context, const QStyleOptionComboBox& comboBox,
                   const QSize& contents)
{
    const int padding = 2 * textInset(context);
    if (!comboBox.frame)
        return {contents.width() + padding + context.metric(QStyle::PM_MenuButtonIndicator),
                contents.height()};
    const int height = qMax(contents.height() + 2, context.controlHeight());
    return {contents.width() + padding + height, height};
}

QRect partRect(const StyleContext& context, const QStyleOptionComboBox& comboBox,
               QStyle::SubControl part)
{
    // Deliberate: nothing is mirrored, combo boxes keep their sides in right-to-left layouts.
    const QRect& box = comboBox.rect;
    const QRect base = context.baseRect(QStyle::CC_ComboBox, comboBox, part);
    QRect rect = context.visual(base); // the base style has mirrored it
    switch (part) {
    case QStyle::SC_ComboBoxEditField:
        if (comboBox.editable) {
            rect.setRight(box.width() - box.height());
            return rect.adjusted(1, 1, 2, -1);
        }
        rect.setRight(box.width() - context.metric(QStyle::PM_MenuButtonIndicator));
        return rect.adjusted(2, 0, 0, 0);
    case QStyle::SC_ComboBoxArrow:
        rect.setLeft(box.width() + 4 - arrowExtent(context, box));
        return rect;
    case QStyle::SC_ComboBoxListBoxPopup: return popupRect(context, base);
    default: return base;
    }
}

namespace {

bool showsPlaceholder(const QWidget* widget)
{
    const auto* comboBox = qobject_cast<const QComboBox*>(widget);
    return comboBox && comboBox->currentIndex() < 0 && !comboBox->placeholderText().isEmpty();
}

void paintArrow(const PaintContext& context, const QStyleOptionComboBox& comboBox,
                const QRect& rect)
{
    auto arrow = optionFrom<QStyleOptionButton>(comboBox);
    arrow.rect = rect;
    Foregrounds::commonCallButtonText(context.style, arrow, context.widget);
    ArrowIcons::drawOf(context, QStyle::PE_IndicatorArrowDown, arrow);
}

/// A combo box without a frame shows by its ground that it is pointed at or open. That covers the
/// arrow, which is then drawn again.
void paintQuietBackground(const PaintContext& context, const QStyleOptionComboBox& comboBox)
{
    if (!BaseStyle::isHovered(&comboBox) && !BaseStyle::isDown(comboBox))
        return;
    const auto name = BaseStyle::isDown(comboBox) ? ThemeNames::BackgroundSubLevel2Brush
                                                  : ThemeNames::BackgroundUpLevel1Brush;
    const QBrush own = OwnColors::controlGround(context);
    Shapes::drawBox(context, comboBox.rect, Shapes::cornerRadius(ThemeNames::SmallSize),
                    own.style() == Qt::NoBrush ? context.brush(name) : own,
                    context.borderBrush()); // the ground alone may be as dark as around it
    if (comboBox.subControls & QStyle::SC_ComboBoxArrow)
        paintArrow(context, comboBox,
                   context.part(QStyle::CC_ComboBox, comboBox, QStyle::SC_ComboBoxArrow));
}

QBrush labelBrush(const PaintContext& context, const QStyleOptionComboBox& comboBox)
{
    if (showsPlaceholder(context.widget))
        return context.enabled() ? comboBox.palette.brush(QPalette::PlaceholderText)
                                 : context.brush(ThemeNames::ForegroundBrush);
    const BaseStyle::ButtonBrushes brushes = BaseStyle::buttonBrushes(&comboBox, context.widget);
    const QBrush themed =
        comboBox.frame ? brushes.foregroundBrush : context.brush(ThemeNames::ForegroundBrush);
    return Foregrounds::ofText(context, QPalette::ButtonText, themed, brushes.backgroundBrush);
}

/// The base style moves the field of a pressed box; a text that jumps is hard to read.
QRect fieldRect(const PaintContext& context, const QStyleOptionComboBox& comboBox)
{
    QStyleOptionComboBox steady = comboBox;
    steady.state &= ~(QStyle::State_Sunken | QStyle::State_On);
    QRect rect = context.part(QStyle::CC_ComboBox, steady, QStyle::SC_ComboBoxEditField);
    // In a tall box the arrow stands farther in.
    const int arrowMiddle =
        comboBox.rect.x() + comboBox.rect.width() + 2 - arrowExtent(context, comboBox.rect) / 2;
    rect.setRight(qMin(rect.right(), arrowMiddle - ArrowRoom));
    const int start = comboBox.rect.x() + textInset(context.measure());
    if (!context.rightToLeft())
        rect.setLeft(qMax(rect.left(), start));
    return rect;
}

/// Draws the current icon at the start of `rect` and returns what remains for the text.
QRect paintIcon(const PaintContext& context, const QStyleOptionComboBox& comboBox,
                const QRect& rect, const QBrush& brush)
{
    const QSize size = comboBox.currentIcon.actualSize(comboBox.iconSize.boundedTo(rect.size()));
    QRect iconRect(rect.x(), rect.y(), size.width(), rect.height());
    if (context.rightToLeft())
        iconRect.moveRight(comboBox.editable ? rect.right() - IconSpacing : rect.right());
    // The line edit leaves this place open; a box that is pointed at shows its own ground there.
    if (comboBox.editable && !BaseStyle::isHovered(&comboBox) && !BaseStyle::isDown(comboBox))
        context.painter.fillRect(
            iconRect, OwnColors::ground(context, QPalette::Base,
                                        context.brush(ThemeNames::InputUncheckedBackgroundBrush)));
    Shapes::drawIcon(context, comboBox.currentIcon, brush, iconRect, size);
    const int taken = size.width() + IconSpacing;
    return context.rightToLeft() ? rect.adjusted(0, 0, -taken, 0) : rect.adjusted(taken, 0, 0, 0);
}

/// Deliberate: besides the mark inside, a border of two pixels tells the focus without colors.
void paintFocusBorder(const PaintContext& context, const QStyleOptionComboBox& comboBox)
{
    const bool hasError = context.flag(WidgetProperties::DrawErrorIndicator);
    const QBrush border = hasError ? QBrush(context.color(ThemeNames::StatusDangerColor))
                                   : context.brush(ThemeNames::MainBrush);
    const int radius = Shapes::cornerRadius(ThemeNames::BaseSize);
    if (!hasError && !comboBox.editable)
        Shapes::drawBox(context, comboBox.rect, radius, QBrush(), border);
    Shapes::drawInnerBorder(context, comboBox.rect, radius, border);
}

} // namespace

void paintLabel(const PaintContext& context, const QStyleOptionComboBox& comboBox)
{
    if (comboBox.editable && comboBox.currentIcon.isNull())
        return; // the text is the line edit's
    QRect rect = fieldRect(context, comboBox);
    if (!comboBox.frame && !comboBox.editable)
        paintQuietBackground(context, comboBox);

    const PainterSaver saver(context.painter);
    // Letters may reach a little out of their place.
    constexpr int Overhang = 2;
    context.painter.setClipRect(rect.adjusted(-Overhang, 0, Overhang, 0), Qt::IntersectClip);
    const QBrush brush = labelBrush(context, comboBox);
    if (!comboBox.currentIcon.isNull())
        rect = paintIcon(context, comboBox, rect, brush);
    if (comboBox.editable)
        return;
    const auto flags =
        QStyle::visualAlignment(comboBox.direction, Qt::AlignLeft | Qt::AlignVCenter);
    Shapes::drawText(context, rect, int(flags), comboBox.currentText, brush);
}

void paintComboBox(const PaintContext& context, const QStyleOptionComboBox& comboBox)
{
    const QRect arrowRect = context.part(QStyle::CC_ComboBox, comboBox, QStyle::SC_ComboBoxArrow);
    const bool hasArrow = comboBox.subControls & QStyle::SC_ComboBoxArrow;

    if (comboBox.editable) {
        auto frame = optionFrom<QStyleOptionFrame>(comboBox);
        if (hasArrow)
            frame.rect.setRight(arrowRect.left());
        context.draw(QStyle::PE_FrameLineEdit, frame);
        frame.rect = arrowRect.adjusted(-1, 0, 0, 0);
        context.draw(QStyle::PE_PanelButtonCommand, frame);
    } else {
        context.draw(QStyle::PE_PanelButtonCommand, optionFrom<QStyleOptionButton>(comboBox));
    }
    if (hasArrow)
        paintArrow(context, comboBox, arrowRect);
    if (comboBox.frame && context.has(QStyle::State_HasFocus))
        paintFocusBorder(context, comboBox);
    if (!(comboBox.editable && comboBox.frame) && context.has(QStyle::State_HasFocus)) {
        auto focus = optionFrom<QStyleOptionFocusRect>(comboBox);
        const int inset = comboBox.frame ? FocusInset : 0;
        focus.rect.adjust(inset, inset, -inset, -inset);
        context.draw(QStyle::PE_FrameFocusRect, focus);
    }
}

} // namespace BRELK::ComboBoxes
