#include "StyleOptions.h"

#include "SampleWidgets.h"

namespace StyleOptions {

namespace {

/// The elements that a kind of widget paints with and is measured by: their names without the
/// prefix, in which "*" stands for any ending.
struct Row
{
    Sample (*make)();
    QByteArray elements;
};

const Row Rows[] = {
    {frame, "Frame ShapedFrame FrameContents ShapedFrameContents FrameLayoutItem"},
    {button<QPushButton>, "FrameDefaultButton FrameButtonBevel PanelButtonCommand "
                          "PanelButtonBevel PushButton*"},
    {button<QCheckBox>, "IndicatorCheckBox CheckBox*"},
    {button<QRadioButton>, "IndicatorRadioButton RadioButton*"},
    {toolButton, "FrameButtonTool PanelButtonTool IndicatorArrow* IndicatorButtonDropDown "
                 "ToolButton*"},
    {comboBox, "ComboBox*"},
    {filled<QLineEdit, QStyleOptionFrame>, "FrameLineEdit PanelLineEdit LineEdit*"},
    {filled<QSpinBox, QStyleOptionSpinBox>, "IndicatorSpin* SpinBox* DateTimeEditLayoutItem"},
    {slider<QScrollBar>, "ScrollBar*"},
    {slider<QDial>, "Dial"},
    {ticks, "Slider*"},
    {progressBar, "IndicatorProgressChunk ProgressBar*"},
    {groupBox, "GroupBox*"},
    {plain<QGroupBox, QStyleOptionFrame>, "FrameGroupBox"},
    {plain<QLabel, QStyleOptionFrame>, "PanelTipLabel LabelLayoutItem"},
    {plain<QLineEdit, QStyleOptionFocusRect>, "FrameFocusRect"},
    {widgetAlone<QFocusFrame>, "FocusFrame"},
    {rubberBand, "RubberBand"},
    {sizeGrip, "SizeGrip"},
    {splitterHandle, "Splitter"},

    {tab, "IndicatorTabTear* TabBarTab* TabBarTear* TabBarScroll*"},
    {tabBarBase, "FrameTabBarBase"},
    {tabWidget, "FrameTabWidget TabWidget*"},
    {widgetAlone<QTabBar>, "IndicatorTabClose"},
    {toolBox, "ToolBoxTab*"},
    {filled<QToolBar, QStyleOptionToolBar>, "PanelToolBar ToolBar ToolBarHandle"},
    {widgetAlone<QToolBar>, "IndicatorToolBar*"},
    {menuItem<QMenuBar>, "MenuBar*"},
    {menuItem<QMenu>, "IndicatorMenuCheckMark PanelMenu Menu*"},
    {plain<QMenuBar, QStyleOptionFrame>, "PanelMenuBar"},
    {plain<QMenu, QStyleOptionFrame>, "FrameMenu"},
    {widgetAlone<QStatusBar>, "FrameStatusBar* PanelStatusBar"},

    {viewItem, "IndicatorViewItemCheck IndicatorItemViewItemCheck IndicatorColumnViewArrow "
               "PanelItemView* ViewItem* ItemViewItem* TreeViewDisclosureItem"},
    {widgetAlone<QTreeView>, "IndicatorBranch IndicatorItemViewItemDrop"},
    {header, "IndicatorHeaderArrow Header HeaderSection HeaderLabel HeaderArrow"},
    {widgetAlone<QScrollArea>, "PanelScrollAreaCorner"},

    {widgetAlone<QMainWindow>, "IndicatorDockWidgetResizeHandle"},
    {dockWidget, "DockWidget*"},
    {plain<QDockWidget, QStyleOptionFrame>, "FrameDockWidget"},
    {plain<QMdiSubWindow, QStyleOptionFrame>, "FrameWindow"},
    {titleBar, "TitleBar"},
    {mdiControls, "MdiControls"},
};

template <class Enum>
Sample sampleNamed(Enum value)
{
    constexpr int PrefixLength = 3;
    const QByteArray name = QByteArray(nameOf(value)).mid(PrefixLength);
    for (const Row& row : Rows)
        for (const QByteArray& element : row.elements.split(' '))
            if (name == element || (element.endsWith('*') && name.startsWith(element.chopped(1))))
                return row.make();
    return widgetAlone<QWidget>();
}

} // namespace

Sample sampleFor(QStyle::PrimitiveElement element)
{
    return sampleNamed(element);
}

Sample sampleFor(QStyle::ControlElement element)
{
    return sampleNamed(element);
}

Sample sampleFor(QStyle::ComplexControl control)
{
    return sampleNamed(control);
}

Sample sampleFor(QStyle::SubElement element)
{
    return sampleNamed(element);
}

Sample sampleFor(QStyle::ContentsType type)
{
    return sampleNamed(type);
}

QByteArray nameOf(QStyle::ComplexControl control, QStyle::SubControl part)
{
    return QByteArray(nameOf(control)) + ' ' + QByteArray::number(unsigned(part), 16);
}

QVector<QStyle::SubControl> subControlsOf(QStyle::ComplexControl control)
{
    const auto upTo = [](QStyle::SubControl last) {
        QVector<QStyle::SubControl> parts;
        for (unsigned part = 1; part <= unsigned(last); part <<= 1)
            parts.append(QStyle::SubControl(part));
        return parts;
    };
    switch (control) {
    case QStyle::CC_SpinBox: return upTo(QStyle::SC_SpinBoxEditField);
    case QStyle::CC_ComboBox: return upTo(QStyle::SC_ComboBoxListBoxPopup);
    case QStyle::CC_ScrollBar: return upTo(QStyle::SC_ScrollBarGroove);
    case QStyle::CC_Slider: return upTo(QStyle::SC_SliderTickmarks);
    case QStyle::CC_ToolButton: return upTo(QStyle::SC_ToolButtonMenu);
    case QStyle::CC_TitleBar: return upTo(QStyle::SC_TitleBarLabel);
    case QStyle::CC_GroupBox: return upTo(QStyle::SC_GroupBoxFrame);
    case QStyle::CC_MdiControls: return upTo(QStyle::SC_MdiCloseButton);
    default: return {};
    }
}

namespace {

template <class Enum, class Use>
void appendAll(QVector<Element>& elements, Use use)
{
    for (const Enum element : all<Enum>())
        elements.append({nameOf(element), [element] { return sampleFor(element); },
                         [element, use](const QStyle& style, const Sample& sample, QPainter* to) {
                             use(style, element, sample.option.get(), to, sample.widget.get());
                         }});
}

void useComplex(const QStyle& style, QStyle::ComplexControl control, const QStyleOption* option,
                QPainter* painter, const QWidget* widget)
{
    const auto* complex = static_cast<const QStyleOptionComplex*>(option);
    for (const QStyle::SubControl part : subControlsOf(control))
        style.subControlRect(control, complex, part, widget);
    style.hitTestComplexControl(control, complex, QPoint(5, 5), widget);
    style.drawComplexControl(control, complex, painter, widget);
}

} // namespace

const QVector<Element>& elements()
{
    static const QVector<Element> sElements = [] {
        QVector<Element> all;
        appendAll<QStyle::PrimitiveElement>(all, std::mem_fn(&QStyle::drawPrimitive));
        appendAll<QStyle::ControlElement>(all, std::mem_fn(&QStyle::drawControl));
        appendAll<QStyle::ComplexControl>(all, useComplex);
        appendAll<QStyle::SubElement>(
            all, [](const QStyle& style, auto element, auto* option, QPainter*, auto* widget) {
                style.subElementRect(element, option, widget);
            });
        appendAll<QStyle::ContentsType>(
            all, [](const QStyle& style, auto type, auto* option, QPainter*, auto* widget) {
                for (const QSize contents : {QSize(40, 16), QSize(), QSize(20000, 20000)}) {
                    style.sizeFromContents(type, option, contents, widget);
                    style.sizeFromContents(type, nullptr, contents, nullptr);
                }
            });
        return all;
    }();
    return sElements;
}

} // namespace StyleOptions
