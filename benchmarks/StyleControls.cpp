#include "StyleCases.h"
#include "StyleSubjects.h"

#include <QtWidgets>

// Every control in its states, by the samples that the tests of the style look at.

namespace StyleBenchmark {

namespace {

using namespace StyleOptions;

using States = QVector<State>;

constexpr State Normal{"normal"};

const States InputStates{Normal, Hovered, Focused, Disabled};
const States ButtonStates{Normal, Hovered, Pressed, Focused, Disabled};
const States MovedStates{Normal, Hovered, Pressed, Disabled};
const States PlainStates{Normal, Disabled};
const States ItemStates{Normal, Selected, Disabled};
const States RowStates{Normal, Hovered, Selected, Disabled};

/// A kind of control: the elements that it is painted by, and the settings of its sample. A part
/// that is active is so under the mouse only.
struct Control
{
    const char* name;
    const char* elements;
    const char* settings;
    States states;
};

const Control Controls[] = {
    {"PushButton", "CE_PushButton", "size=100x28 icon=none", ButtonStates},
    {"PushButtonChecked", "CE_PushButton", "size=100x28 icon=none checkable checked", ButtonStates},
    {"PushButtonDefault", "CE_PushButton", "size=100x28 icon=none autoDefault default",
     ButtonStates},
    {"PushButtonFlat", "CE_PushButton", "size=100x28 icon=none flat", ButtonStates},
    {"PushButtonIcon", "CE_PushButton", "size=100x28", PlainStates},
    {"PushButtonMenu", "CE_PushButton", "size=100x28 icon=none option.features=2", PlainStates},

    {"ToolButton", "CC_ToolButton",
     "size=28x28 popupMode=DelayedPopup toolButtonStyle=ToolButtonIconOnly "
     "option.activeSubControls=1",
     ButtonStates},
    {"ToolButtonFlat", "CC_ToolButton",
     "size=28x28 popupMode=DelayedPopup toolButtonStyle=ToolButtonIconOnly autoRaise "
     "option.activeSubControls=1",
     ButtonStates},
    {"ToolButtonChecked", "CC_ToolButton",
     "size=28x28 popupMode=DelayedPopup toolButtonStyle=ToolButtonIconOnly checkable checked",
     PlainStates},
    {"ToolButtonText", "CC_ToolButton", "size=100x28 popupMode=DelayedPopup", PlainStates},
    {"ToolButtonMenu", "CC_ToolButton",
     "size=44x28 toolButtonStyle=ToolButtonIconOnly option.activeSubControls=1", ButtonStates},
    {"ToolButtonArrow", "CC_ToolButton", "size=20x20 popupMode=DelayedPopup arrowType=RightArrow",
     PlainStates},

    {"CheckBox", "CE_CheckBox", "size=120x20 icon=none", ButtonStates},
    {"CheckBoxChecked", "CE_CheckBox", "size=120x20 icon=none checked", ButtonStates},
    {"CheckBoxPartial", "CE_CheckBox", "size=120x20 icon=none State_NoChange State_Off=false",
     PlainStates},
    {"RadioButton", "CE_RadioButton", "size=120x20 icon=none", ButtonStates},
    {"RadioButtonChecked", "CE_RadioButton", "size=120x20 icon=none checked", ButtonStates},

    {"LineEditPanel", "PE_PanelLineEdit", "size=140x28", InputStates},
    {"ComboBox", "CC_ComboBox CE_ComboBoxLabel", "size=140x28 icon=none option.activeSubControls=4",
     ButtonStates},
    {"ComboBoxEditable", "CC_ComboBox", "size=140x28 editable option.activeSubControls=4",
     ButtonStates},
    {"SpinBox", "CC_SpinBox", "size=140x28 option.activeSubControls=1", ButtonStates},
    {"SpinBoxPlusMinus", "CC_SpinBox", "size=140x28 buttonSymbols=PlusMinus", PlainStates},

    {"Slider", "CC_Slider", "size=200x24 tickPosition=NoTicks option.activeSubControls=2",
     InputStates},
    {"SliderVertical", "CC_Slider",
     "size=24x200 orientation=Vertical tickPosition=NoTicks option.activeSubControls=2",
     MovedStates},
    {"SliderTicks", "CC_Slider", "size=200x36 tickInterval=10", PlainStates},
    {"ScrollBar", "CC_ScrollBar", "size=300x14 option.activeSubControls=64", MovedStates},
    {"ScrollBarVertical", "CC_ScrollBar",
     "size=14x300 orientation=Vertical option.activeSubControls=64", MovedStates},

    {"ProgressBar", "CE_ProgressBar", "size=200x20 value=40", PlainStates},
    {"ProgressBarFull", "CE_ProgressBar", "size=200x20 value=100", PlainStates},
    {"ProgressBarBusy", "CE_ProgressBar", "size=200x20 maximum=0", {Normal}},
    {"ProgressBarVertical", "CE_ProgressBar", "size=20x200 orientation=Vertical value=40",
     PlainStates},

    {"Tab", "CE_TabBarTab", "size=100x32 icon=none tabsClosable=false", RowStates},
    {"TabIcon", "CE_TabBarTab", "size=120x32", {Normal, Selected}},
    {"TabWidgetFrame", "PE_FrameTabWidget", "size=300x200", PlainStates},

    {"MenuItem", "CE_MenuItem", "size=220x24 icon=none", ItemStates},
    {"MenuItemIcon", "CE_MenuItem", "size=220x24", ItemStates},
    {"MenuItemChecked", "CE_MenuItem", "size=220x24 option.checkType=1 option.checked=1",
     ItemStates},
    {"MenuItemSubmenu", "CE_MenuItem", "size=220x24 icon=none option.menuItemType=3", ItemStates},
    {"MenuSeparator", "CE_MenuItem", "size=220x24 option.menuItemType=2", {Normal}},
    {"MenuBarItem",
     "CE_MenuBarItem",
     "size=60x28 icon=none",
     {Normal, Selected, Pressed, Disabled}},

    {"ViewItem", "CE_ItemViewItem", "size=160x22 option.features=8", RowStates},
    {"ViewItemFull", "CE_ItemViewItem", "size=160x22", RowStates},
    {"ItemBranch",
     "PE_IndicatorBranch",
     "size=20x22 State_Children State_Item",
     {Normal, Selected}},
    {"HeaderSection", "CE_Header", "size=120x24 icon=none State_Raised", MovedStates},

    {"GroupBox", "CC_GroupBox", "size=200x120 checkable=false", PlainStates},
    {"GroupBoxCheckable", "CC_GroupBox", "size=200x120 option.activeSubControls=1", InputStates},
    {"GroupBoxFlat", "CC_GroupBox", "size=200x120 checkable=false flat", {Normal}},
    {"Frame", "CE_ShapedFrame", "size=200x120", PlainStates},
    {"ToolBarHandle", "PE_IndicatorToolBarHandle", "size=10x34 State_Horizontal", {Normal}},
    {"StatusBar", "PE_PanelStatusBar", "size=400x34", {Normal}},
    {"Splitter", "CE_Splitter", "size=6x200", {Normal, Hovered}},
    {"ToolBoxTab", "CE_ToolBoxTab", "size=200x42", {Normal, Hovered, Selected}},

    {"DockTitle", "CE_DockWidgetTitle", "size=200x26", PlainStates},
    {"TitleBar", "CC_TitleBar", "size=300x28 option.titleBarState=8", {Normal}},
    {"ToolTip", "PE_PanelTipLabel", "size=160x26", {Normal}},
    {"FocusRect",
     "PE_FrameFocusRect",
     "size=100x28 State_HasFocus State_KeyboardFocusChange",
     {Normal}},
    {"Arrow", "PE_IndicatorArrowDown", "size=16x16", PlainStates},
};

Work prepare(const Control& control, const State& state)
{
    Settings settings = settingsOf(control.settings);
    if (!(state.added & (QStyle::State_MouseOver | QStyle::State_Sunken)))
        settings.remove("option.activeSubControls");
    const QByteArrayList names = QByteArray(control.elements).split(' ');
    const Sample sample = sampleNamed(names.first(), settings, state);
    sample.option->state.setFlag(QStyle::State_Raised,
                                 !(state.added & QStyle::State_Sunken)
                                     && sample.option->state & QStyle::State_Raised);
    QVector<Element> elements;
    for (const QByteArray& name : names)
        elements.append(elementNamed(name));
    auto canvas = std::make_shared<Canvas>(sample.option->rect.size());
    return {[=] {
        for (const Element& element : elements)
            element.paint(*sample.widget->style(), sample, &canvas->painter);
    }};
}

} // namespace

void addControls(std::vector<Case>& cases)
{
    for (const Control& control : Controls)
        for (const State& state : control.states)
            cases.push_back({std::string("controls/") + control.name + '/' + state.name,
                             [&control, state] { return prepare(control, state); }});
}

} // namespace StyleBenchmark
