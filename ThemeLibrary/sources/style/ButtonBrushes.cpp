#include "BaseStyle.h"
#include "ThemeValues.h"
#include "WidgetProperties.h"
#include "WidgetTraits.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QCommandLinkButton>
#include <QCursor>
#include <QDateTimeEdit>
#include <QHash>
#include <QLineEdit>
#include <QStyleOption>

#include <algorithm>

// How a button-like control finds its brushes: words for what it is and how it stands are joined to
// theme names, then a row of rules, each of which may override the ones before it, dresses special
// kinds.

namespace BRELK {

namespace {

enum class Family { Button, ToggleButton, Input };
enum class CheckWord { Default, Checked, Unchecked };
enum class PointerWord { None, Pressed, Hover };
enum class Part { Background, Border, Foreground };

/// The words of a composed name, but for the kind.
struct Words
{
    Family family;
    CheckWord check;
    PointerWord pointer;
    Part part;
};

QString familyName(Family family)
{
    switch (family) {
    case Family::Input: return ThemeNames::Input;
    case Family::ToggleButton: return ThemeNames::Toggle.text + ThemeNames::Button.text;
    default: return ThemeNames::Button;
    }
}

QString stateName(const Words& words)
{
    const QString check = words.check == CheckWord::Default   ? ThemeNames::Default
                          : words.check == CheckWord::Checked ? ThemeNames::Checked
                                                              : ThemeNames::Unchecked;
    const QString pointer = words.pointer == PointerWord::Pressed ? ThemeNames::Pressed
                            : words.pointer == PointerWord::Hover ? ThemeNames::Hover
                                                                  : QString();
    return check + pointer;
}

QString partName(Part part)
{
    switch (part) {
    case Part::Background: return ThemeNames::BackgroundPart;
    case Part::Border: return ThemeNames::BorderPart;
    default: return ThemeNames::ForegroundPart;
    }
}

ComposedPlaces& placesOf(ThemeValues& values, const QString& kind)
{
    constexpr int MostKinds = 64;
    if (kind.isEmpty())
        return values.composedBrushes;
    QHash<QString, ComposedPlaces>& ofKinds = values.composedBrushesOfKinds;
    if (ofKinds.size() >= MostKinds && !ofKinds.contains(kind))
        ofKinds.clear();
    return ofKinds[kind];
}

/// Each name is composed once.
const QBrush& composedBrush(const Words& words, const QString& kind, bool enabled)
{
    size_t index = enabled ? 1 : 0;
    for (const size_t word :
         {size_t(words.family), size_t(words.check), size_t(words.pointer), size_t(words.part)})
        index = index * ComposedPlaces::Words + word;
    ThemeValues& values = themeValues();
    int& place = placesOf(values, kind).places.at(index);
    if (place < 0) {
        const QString name =
            familyName(words.family) + kind + stateName(words) + partName(words.part);
        place = values.brushes.placeOf(enabled ? name : ThemeNames::twin(name));
    }
    return values.brushes.at(place);
}

/// Asking a button itself is quicker than asking for its property.
bool isCheckable(const QWidget* widget, const WidgetProperties::Reader& properties)
{
    const auto* button = qobject_cast<const QAbstractButton*>(widget);
    return button ? button->isCheckable() : properties.flag(WidgetProperties::Checkable);
}

struct ButtonLook
{
    const QStyleOption& option;
    const QWidget* widget;
    BaseStyle::ButtonBrushes& brushes;
    WidgetProperties::Reader properties = WidgetProperties::Reader(widget);
    bool enabled = !widget || widget->isEnabled();
    const QComboBox* comboBox = qobject_cast<const QComboBox*>(widget);
    bool spinBox = widget && WidgetTraits::isSpinBox(widget);
    bool checkable = isCheckable(widget, properties);
    QString kind = properties.kind();
    CheckWord check = CheckWord::Unchecked;
    PointerWord pointer = PointerWord::None;

    const QBrush& brush(ThemeNames::BrushName name) const
    {
        return themeValues().brushes.value(name, enabled);
    }

    /// The brush of a button like this one, in its state.
    const QBrush& buttonBrush(Part part) const
    {
        return composedBrush(
            {checkable ? Family::ToggleButton : Family::Button, check, pointer, part}, kind,
            enabled);
    }

    const QBrush& inputBrush(Part part) const
    {
        return composedBrush({Family::Input, check, pointer, part}, kind, enabled);
    }

    const QBrush& borderBrush() const
    {
        return BaseStyle::getBorderBrush(option.state & QStyle::State_Enabled);
    }

    bool isPressed() const { return BaseStyle::isPressed(option); }

    bool isHovered() const { return BaseStyle::isHovered(&option); }

    bool isIdle() const { return !BaseStyle::isDown(option) && !isHovered(); }
};

CheckWord checkWord(const ButtonLook& look)
{
    const auto word = [](bool checked) {
        return checked ? CheckWord::Checked : CheckWord::Unchecked;
    };
    if (look.properties.flag(WidgetProperties::Blinking))
        return word(look.properties.flag(WidgetProperties::BlinkChecked));
    if (BaseStyle::isDefaultButton(&look.option) && look.option.state & QStyle::State_Active)
        return CheckWord::Default;
    return word(BaseStyle::isChecked(look.option));
}

PointerWord pointerWord(const ButtonLook& look)
{
    if (look.isPressed())
        return PointerWord::Pressed;
    return look.isHovered() ? PointerWord::Hover : PointerWord::None;
}

/// Whether the menu part of a tool button, rather than the button, is what the mouse presses.
bool isMenuPartPressed(const QStyleOption& option, const QWidget* widget)
{
    const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(&option);
    if (!button || !widget || !(button->subControls & QStyle::SC_ToolButtonMenu)
        || !BaseStyle::isPressed(option) || BaseStyle::isChecked(option))
        return false;
    const QPoint position = widget->mapFromGlobal(QCursor::pos());
    const QStyle::SubControl part = QApplication::style()->hitTestComplexControl(
        QStyle::CC_ToolButton, button, position, widget);
    return part == QStyle::SC_ToolButtonMenu;
}

void composeByName(ButtonLook& look)
{
    const bool calendarAtRest = WidgetTraits::isCalendarButton(look.widget) && !look.isPressed();
    if (calendarAtRest || isMenuPartPressed(look.option, look.widget)) {
        look.pointer = PointerWord::Hover;
    } else {
        look.check = checkWord(look);
        look.pointer = pointerWord(look);
    }
    if (look.comboBox) // dressed below
        return;
    look.brushes.foregroundBrush = look.buttonBrush(Part::Foreground);
    if (look.spinBox)
        return;
    look.brushes.backgroundBrush = look.buttonBrush(Part::Background);
    look.brushes.borderBrush = look.buttonBrush(Part::Border);
}

void flattenBorder(ButtonLook& look)
{
    if (!BaseStyle::isFlatButton(&look.option))
        return;
    look.brushes.borderBrush = look.brushes.backgroundBrush;
    if ((look.properties.flag(WidgetProperties::Highlighted)
         || look.kind == ThemeNames::Tarrin.text)
        && look.isPressed())
        look.brushes.foregroundBrush =
            look.brush(ThemeNames::ButtonHighlightedUncheckedHoverForegroundBrush);
}

void outline(ButtonLook& look)
{
    if (!look.properties.flag(WidgetProperties::Outline))
        return;
    if (BaseStyle::isChecked(look.option) && look.isHovered() && !look.isPressed()) {
        // Deliberate: the toggle word is left out here.
        look.brushes.borderBrush = composedBrush(
            {Family::Button, CheckWord::Unchecked, PointerWord::Hover, Part::Background}, look.kind,
            look.enabled);
        return;
    }
    look.brushes.borderBrush = look.brushes.backgroundBrush;
    if (look.isIdle())
        look.brushes.foregroundBrush =
            QBrush(); // Deliberate: an idle outline button leaves its text to the palette.
}

void dressAsInput(ButtonLook& look)
{
    if (!look.spinBox)
        return;
    BaseStyle::ButtonBrushes& brushes = look.brushes;
    if (WidgetTraits::isCalendarPopupEditor(look.widget)) {
        brushes.backgroundBrush = look.inputBrush(Part::Background);
        if (!static_cast<const QDateTimeEdit*>(look.widget)->hasFrame())
            brushes.borderBrush = brushes.backgroundBrush;
        else if (look.widget->hasFocus())
            brushes.borderBrush = look.brush(ThemeNames::MainBrush);
        else
            brushes.borderBrush = look.inputBrush(Part::Border);
    } else {
        brushes.backgroundBrush = look.isHovered()
                                      ? look.brush(ThemeNames::InputUncheckedBackgroundBrush)
                                      : look.inputBrush(Part::Background);
        brushes.borderBrush = brushes.backgroundBrush;
    }
}

/// Asking the combo box for its view would build the popup.
bool isPopupVisible(const QComboBox& comboBox)
{
    const QObjectList& children = comboBox.children();
    return std::any_of(children.begin(), children.end(), [](const QObject* child) {
        const auto* widget = qobject_cast<const QWidget*>(child);
        return widget && widget->isWindow() && widget->isVisible()
               && WidgetTraits::isComboBoxPopup(widget);
    });
}

/// Quicker than looking for the editor of each combo box.
bool isFocusWithin(const QComboBox& comboBox)
{
    const QWidget* focused = QApplication::focusWidget();
    return comboBox.hasFocus() || (focused && comboBox.isAncestorOf(focused));
}

void dressAsComboBox(ButtonLook& look)
{
    const QComboBox* comboBox = look.comboBox;
    if (!comboBox)
        return;
    look.brushes.backgroundBrush = look.inputBrush(Part::Background);
    look.brushes.borderBrush = look.inputBrush(Part::Border);
    look.brushes.foregroundBrush = look.inputBrush(Part::Foreground);
    if (!comboBox->hasFrame()) {
        look.brushes.borderBrush = look.brushes.backgroundBrush;
    } else if (isPopupVisible(*comboBox)) {
        look.brushes.borderBrush = look.borderBrush();
    } else if (comboBox->isEditable() && isFocusWithin(*comboBox)) {
        const auto* editor = comboBox->findChild<QLineEdit*>();
        if (editor && editor->hasFocus())
            look.brushes.borderBrush = look.brush(ThemeNames::MainBrush);
    }
}

void quietCommandLink(ButtonLook& look)
{
    if (BaseStyle::isDefaultButton(&look.option) && look.isIdle()
        && qobject_cast<const QCommandLinkButton*>(look.widget))
        look.brushes.foregroundBrush = QBrush();
}

void borderInTabBar(ButtonLook& look)
{
    if (WidgetTraits::isInTabBar(look.widget))
        look.brushes.borderBrush = look.borderBrush();
}

void colorWorkflowGroup(ButtonLook& look)
{
    const QObject* group = look.widget ? look.widget->parent() : nullptr;
    if (!WidgetProperties::flag(group, WidgetProperties::ButtonGroupWorkflow))
        return;
    if (WidgetProperties::flag(group, WidgetProperties::ButtonGroupExclusive)) {
        if (look.properties.flag(WidgetProperties::Checked)) {
            look.brushes.foregroundBrush = look.brush(ThemeNames::ForegroundBrush);
            look.brushes.borderBrush = look.brushes.foregroundBrush;
        } else {
            // Deliberate: the name of a border brush for the foreground.
            look.brushes.foregroundBrush = composedBrush(
                {Family::Button, look.check, look.pointer, Part::Border}, look.kind, look.enabled);
        }
    }
    if (look.option.state & QStyle::State_MouseOver && !look.isPressed()) {
        look.brushes.borderBrush = look.brush(ThemeNames::MainBrush);
        if (look.checkable)
            look.brushes.foregroundBrush = look.brushes.borderBrush;
    }
}

using BrushRule = void (*)(ButtonLook&);

constexpr BrushRule Rules[] = {composeByName,  flattenBorder,     outline,
                               dressAsInput,   dressAsComboBox,   quietCommandLink,
                               borderInTabBar, colorWorkflowGroup};

} // namespace

const BaseStyle::ButtonBrushes BaseStyle::buttonBrushes(const QStyleOption* option,
                                                        const QWidget* widget)
{
    ButtonBrushes brushes;
    ButtonLook look{*option, widget, brushes};
    for (const BrushRule rule : Rules)
        rule(look);
    return brushes;
}

} // namespace BRELK
