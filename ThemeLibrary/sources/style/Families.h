#pragma once

#include <QStyle>

class QComboBox;
class QStyleOptionButton;
class QStyleOptionComboBox;
class QStyleOptionComplex;
class QStyleOptionDockWidget;
class QStyleOptionFrame;
class QStyleOptionGroupBox;
class QStyleOptionHeader;
class QStyleOptionMenuItem;
class QStyleOptionProgressBar;
class QStyleOptionRubberBand;
class QStyleOptionSlider;
class QStyleOptionSpinBox;
class QStyleOptionTab;
class QStyleOptionTabBarBase;
class QStyleOptionTabWidgetFrame;
class QStyleOptionTitleBar;
class QStyleOptionToolBar;
class QStyleOptionToolBox;
class QStyleOptionToolButton;
class QStyleOptionViewItem;

/// What the widget families offer to the tables. A family is one file: its sizes, its rectangles,
/// its painting. Families meet only through the proxy.
namespace BRELK {

class BaseStyle;
struct MeasureContext;
struct PaintContext;
struct StyleContext;

namespace Arrows {
int indicatorWidth(const MeasureContext& context);
void paintDown(const PaintContext& context);
void paintLeft(const PaintContext& context);
void paintRight(const PaintContext& context);
void paintUp(const PaintContext& context);
} // namespace Arrows

namespace Buttons {
QSize buttonSize(const MeasureContext& context, const QStyleOptionButton& button,
                 const QSize& contents);
void paintDefaultFrame(const PaintContext& context);
void paintPanel(const PaintContext& context);
void paintButton(const PaintContext& context, const QStyleOptionButton& button);
void paintBevel(const PaintContext& context, const QStyleOptionButton& button);
void paintLabel(const PaintContext& context, const QStyleOptionButton& button);
} // namespace Buttons

namespace Cards {
void paintWidget(const PaintContext& context);
}

namespace CheckBoxes {
int indicatorWidth(const MeasureContext& context);
int labelSpacing(const MeasureContext& context);
QSize checkBoxSize(const MeasureContext& context, const QStyleOptionButton& button,
                   const QSize& contents);
QSize radioButtonSize(const MeasureContext& context, const QStyleOptionButton& button,
                      const QSize& contents);
QRect indicatorRect(const StyleContext& context, const QStyleOptionButton& button,
                    QStyle::SubElement element);
QRect contentsRect(const StyleContext& context, const QStyleOptionButton& button,
                   QStyle::SubElement element);
void paintIndicator(const PaintContext& context);
void paintRadioIndicator(const PaintContext& context);
void paintCheckBox(const PaintContext& context, const QStyleOptionButton& button);
void paintLabel(const PaintContext& context, const QStyleOptionButton& button);
} // namespace CheckBoxes

namespace ComboBoxes {
/// Gives the list of a combo box, when it is made, the library's delegate in the place of the
/// toolkit's.
void replaceDelegate(QComboBox& comboBox);
QSize comboBoxSize(const MeasureContext& context, const QStyleOptionComboBox& comboBox,
                   const QSize& contents);
QRect partRect(const StyleContext& context, const QStyleOptionComboBox& comboBox,
               QStyle::SubControl part);
void paintLabel(const PaintContext& context, const QStyleOptionComboBox& comboBox);
void paintComboBox(const PaintContext& context, const QStyleOptionComboBox& comboBox);
} // namespace ComboBoxes

namespace Frames {
int frameWidth(const MeasureContext& context);
int focusMargin(const MeasureContext& context);
QRect contentsRect(const StyleContext& context, const QStyleOptionFrame& frame,
                   QStyle::SubElement element);
void paintFocusRect(const PaintContext& context);
void paintToolTip(const PaintContext& context);
void paintShapedFrame(const PaintContext& context, const QStyleOptionFrame& frame);
} // namespace Frames

namespace GroupBoxes {
QRect partRect(const StyleContext& context, const QStyleOptionGroupBox& groupBox,
               QStyle::SubControl part);
void paintFrame(const PaintContext& context, const QStyleOptionFrame& frame);
void paintGroupBox(const PaintContext& context, const QStyleOptionGroupBox& groupBox);
} // namespace GroupBoxes

namespace Headers {
QSize sectionSize(const MeasureContext& context, const QStyleOptionHeader& header,
                  const QSize& contents);
QRect labelRect(const StyleContext& context, QStyle::SubElement element);
QRect markRect(const StyleContext& context, QStyle::SubElement element);
void paintHeader(const PaintContext& context, const QStyleOptionHeader& header);
void paintSection(const PaintContext& context);
void paintEmptyArea(const PaintContext& context);
void paintLabel(const PaintContext& context, const QStyleOptionHeader& header);
} // namespace Headers

namespace ItemViews {
QSize itemSize(const MeasureContext& context, const QStyleOptionViewItem& item,
               const QSize& contents);
/// Of an item's check box or icon.
QRect markRect(const StyleContext& context, QStyle::SubElement element);
QRect textRect(const StyleContext& context, QStyle::SubElement element);
void paintPanel(const PaintContext& context, const QStyleOptionViewItem& item);
void paintRow(const PaintContext& context, const QStyleOptionViewItem& item);
void paintBranch(const PaintContext& context);
void paintColumnViewArrow(const PaintContext& context);
void paintItem(const PaintContext& context, const QStyleOptionViewItem& item);
void paintColumnViewGrip(const PaintContext& context);
} // namespace ItemViews

namespace LineEdits {
int iconSize(const MeasureContext& context);
QSize lineEditSize(const MeasureContext& context, const QStyleOptionFrame& frame,
                   const QSize& contents);
QRect contentsRect(const StyleContext& context, const QStyleOptionFrame& frame,
                   QStyle::SubElement element);
void paintFrame(const PaintContext& context, const QStyleOptionFrame& frame);
void paintPanel(const PaintContext& context, const QStyleOptionFrame& frame);
} // namespace LineEdits

namespace Menus {
int panelMargin(const MeasureContext& context);
QSize itemSize(const MeasureContext& context, const QStyleOptionMenuItem& item,
               const QSize& contents);
QSize barItemSize(const MeasureContext& context, const QStyleOptionMenuItem& item,
                  const QSize& contents);
void paintPanel(const PaintContext& context);
void paintItem(const PaintContext& context, const QStyleOptionMenuItem& item);
void paintTearoff(const PaintContext& context, const QStyleOptionMenuItem& item);
void paintBarItem(const PaintContext& context, const QStyleOptionMenuItem& item);
void paintBarEmptyArea(const PaintContext& context);
} // namespace Menus

namespace ProgressBars {
/// Of a busy bar, which a style that goes takes with it.
void endAnimation(QWidget& bar);
QSize progressBarSize(const MeasureContext& context, const QStyleOptionProgressBar& bar,
                      const QSize& contents);
void paintGroove(const PaintContext& context);
void paintContents(const PaintContext& context, const QStyleOptionProgressBar& bar);
void paintLabel(const PaintContext& context, const QStyleOptionProgressBar& bar);
} // namespace ProgressBars

namespace ScrollBars {
QRect partRect(const StyleContext& context, const QStyleOptionSlider& bar, QStyle::SubControl part);
void paintCorner(const PaintContext& context);
void paintAddLine(const PaintContext& context, const QStyleOptionSlider& bar);
void paintSubLine(const PaintContext& context, const QStyleOptionSlider& bar);
void paintSlider(const PaintContext& context, const QStyleOptionSlider& bar);
void paintScrollBar(const PaintContext& context, const QStyleOptionSlider& bar);
} // namespace ScrollBars

namespace Sliders {
int spaceAvailable(const MeasureContext& context);
QSize sliderSize(const MeasureContext& context, const QStyleOptionSlider& slider,
                 const QSize& contents);
QRect partRect(const StyleContext& context, const QStyleOptionSlider& slider,
               QStyle::SubControl part);
void paintDial(const PaintContext& context, const QStyleOptionSlider& dial);
void paintSlider(const PaintContext& context, const QStyleOptionSlider& slider);
} // namespace Sliders

namespace SpinBoxes {
QSize spinBoxSize(const MeasureContext& context, const QStyleOptionSpinBox& spinBox,
                  const QSize& contents);
QRect partRect(const StyleContext& context, const QStyleOptionSpinBox& spinBox,
               QStyle::SubControl part);
void paintDown(const PaintContext& context);
void paintMinus(const PaintContext& context);
void paintPlus(const PaintContext& context);
void paintUp(const PaintContext& context);
void paintSpinBox(const PaintContext& context, const QStyleOptionSpinBox& spinBox);
} // namespace SpinBoxes

namespace Tabs {
QRect barRect(const StyleContext& context, const QStyleOptionTabWidgetFrame& frame,
              QStyle::SubElement element);
QRect textRect(const StyleContext& context, const QStyleOptionTab& tab, QStyle::SubElement element);
QRect rightButtonRect(const StyleContext& context, const QStyleOptionTab& tab,
                      QStyle::SubElement element);
void paintFrame(const PaintContext& context);
void paintBarBase(const PaintContext& context, const QStyleOptionTabBarBase& bar);
void paintCloseButton(const PaintContext& context);
void paintShape(const PaintContext& context, const QStyleOptionTab& tab);
void paintLabel(const PaintContext& context, const QStyleOptionTab& tab);
} // namespace Tabs

namespace TitleBars {
/// Of the buttons of a maximized sub-window.
QRect controlRect(const StyleContext& context, const QStyleOptionComplex& controls,
                  QStyle::SubControl part);
void paintWindowFrame(const PaintContext& context);
void paintDockTitle(const PaintContext& context, const QStyleOptionDockWidget& dock);
void paintTitleBar(const PaintContext& context, const QStyleOptionTitleBar& titleBar);
void paintMdiControls(const PaintContext& context, const QStyleOptionComplex& controls);
} // namespace TitleBars

namespace ToolBars {
void paintHandle(const PaintContext& context);
void paintSeparator(const PaintContext& context);
void paintToolBar(const PaintContext& context, const QStyleOptionToolBar& toolBar);
} // namespace ToolBars

namespace ToolBoxes {
void paintTabShape(const PaintContext& context, const QStyleOptionToolBox& tab);
void paintTabLabel(const PaintContext& context, const QStyleOptionToolBox& tab);
} // namespace ToolBoxes

namespace ToolButtons {
QSize toolButtonSize(const MeasureContext& context, const QStyleOptionToolButton& button,
                     const QSize& contents);
void paintLabel(const PaintContext& context, const QStyleOptionToolButton& button);
void paintToolButton(const PaintContext& context, const QStyleOptionToolButton& button);
} // namespace ToolButtons

namespace WindowParts {
int layoutMargin(const MeasureContext& context);
void paintStatusBar(const PaintContext& context);
void paintSplitter(const PaintContext& context);
void paintRubberBand(const PaintContext& context, const QStyleOptionRubberBand& band);
} // namespace WindowParts

} // namespace BRELK
