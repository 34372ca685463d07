#include "BaseStyle.h"
#include "ThemeNames.h"
#include "WidgetProperties.h"
#include "WidgetTraits.h"

#include <QApplication>
#include <QComboBox>
#include <QCursor>
#include <QDateTimeEdit>
#include <QLineEdit>
#include <QStyleOption>

// How a button-like control finds its brushes: words for what it is and how it stands are joined to
// theme names, then a row of rules, each of which may override the ones before it, dresses special
// kinds.

namespace BRELK {

namespace {

struct ButtonLook
{
    const QStyleOption& option;
    const QWidget* widget;
    WidgetProperties::Reader properties = WidgetProperties::Reader(widget);
    bool enabled = !widget || widget->isEnabled();
    const QComboBox* comboBox = qobject_cast<const QComboBox*>(widget);
    bool spinBox = widget && WidgetTraits::isSpinBox(widget);
    bool checkable = properties.flag(WidgetProperties::Checkable);
    QString kind = properties.kind();
    QString state = {};
    BaseStyle::ButtonBrushes brushes = {};

    QBrush brush(const QString& name) const { return BaseStyle::getBrush(name, enabled); }

    const QBrush& borderBrush() const
    {
        return BaseStyle::getBorderBrush(option.state & QStyle::State_Enabled);
    }

    QBrush inputBrush(const QString& part) const
    {
        return brush(ThemeNames::input() + kind + state + part);
    }

    bool isPressed() const { return BaseStyle::isPressed(option); }

    bool isHovered() const { return BaseStyle::isHovered(&option); }

    bool isIdle() const { return !BaseStyle::isDown(option) && !isHovered(); }
};

QString stateWord(const ButtonLook& look)
{
    const QStyleOption& option = look.option;
    const auto checkWord = [](bool checked) {
        return checked ? ThemeNames::checked() : ThemeNames::unchecked();
    };
    QString word;
    if (look.properties.flag(WidgetProperties::Blinking))
        word = checkWord(look.properties.flag(WidgetProperties::BlinkChecked));
    else if (BaseStyle::isDefaultButton(&option) && option.state & QStyle::State_Active)
        word = ThemeNames::byDefault();
    else
        word = checkWord(BaseStyle::isChecked(option));

    if (BaseStyle::isPressed(option))
        return word + ThemeNames::pressed();
    return BaseStyle::isHovered(&option) ? QString(word + ThemeNames::hover()) : word;
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

void findStateWord(ButtonLook& look)
{
    const bool calendarAtRest = WidgetTraits::isCalendarButton(look.widget) && !look.isPressed();
    if (calendarAtRest || isMenuPartPressed(look.option, look.widget))
        look.state = ThemeNames::unchecked() + ThemeNames::hover();
    else
        look.state = stateWord(look);
}

void composeByName(ButtonLook& look)
{
    findStateWord(look);
    if (look.comboBox) // dressed below
        return;
    const QString toggle = look.checkable ? ThemeNames::toggle() : QString();
    const auto brush = [&](const QString& part) {
        return look.brush(toggle + ThemeNames::button() + look.kind + look.state + part);
    };
    look.brushes.foregroundBrush = brush(ThemeNames::foregroundPart());
    if (look.spinBox)
        return;
    look.brushes.backgroundBrush = brush(ThemeNames::backgroundPart());
    look.brushes.borderBrush = brush(ThemeNames::borderPart());
}

void flattenBorder(ButtonLook& look)
{
    if (!BaseStyle::isFlatButton(&look.option))
        return;
    look.brushes.borderBrush = look.brushes.backgroundBrush;
    if ((look.properties.flag(WidgetProperties::Highlighted) || look.kind == ThemeNames::tarrin())
        && look.isPressed())
        look.brushes.foregroundBrush =
            look.brush(ThemeNames::buttonHighlightedUncheckedHoverForegroundBrush());
}

void outline(ButtonLook& look)
{
    if (!look.properties.flag(WidgetProperties::Outline))
        return;
    if (BaseStyle::isChecked(look.option) && look.isHovered() && !look.isPressed()) {
        // Deliberate: the toggle word is left out here.
        look.brushes.borderBrush =
            look.brush(ThemeNames::button() + look.kind + ThemeNames::unchecked()
                       + ThemeNames::hover() + ThemeNames::backgroundPart());
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
        brushes.backgroundBrush = look.inputBrush(ThemeNames::backgroundPart());
        if (!static_cast<const QDateTimeEdit*>(look.widget)->hasFrame())
            brushes.borderBrush = brushes.backgroundBrush;
        else if (look.widget->hasFocus())
            brushes.borderBrush = look.brush(ThemeNames::mainBrush());
        else
            brushes.borderBrush = look.inputBrush(ThemeNames::borderPart());
    } else {
        brushes.backgroundBrush = look.isHovered()
                                      ? look.brush(ThemeNames::inputUncheckedBackgroundBrush())
                                      : look.inputBrush(ThemeNames::backgroundPart());
        brushes.borderBrush = brushes.backgroundBrush;
    }
}

/// Asking the combo box for its view would build the popup.
bool isPopupVisible(const QComboBox& comboBox)
{
    for (const QObject* child : comboBox.children()) {
        if (!child->isWidgetType())
            continue;
        const auto* widget = static_cast<const QWidget*>(child);
        if (widget->isWindow() && widget->isVisible() && WidgetTraits::isComboBoxPopup(widget))
            return true;
    }
    return false;
}

/// Quicker than looking for the editor of each combo box.
bool isFocusWithin(const QComboBox& comboBox)
{
    const QWidget* focused = QApplication::focusWidget();
    return focused && (focused == &comboBox || comboBox.isAncestorOf(focused));
}

void dressAsComboBox(ButtonLook& look)
{
    const QComboBox* comboBox = look.comboBox;
    if (!comboBox)
        return;
    look.brushes = {look.inputBrush(ThemeNames::backgroundPart()),
                    look.inputBrush(ThemeNames::borderPart()),
                    look.inputBrush(ThemeNames::foregroundPart())};
    if (!comboBox->hasFrame()) {
        look.brushes.borderBrush = look.brushes.backgroundBrush;
    } else if (isPopupVisible(*comboBox)) {
        look.brushes.borderBrush = look.borderBrush();
    } else if (comboBox->isEditable() && isFocusWithin(*comboBox)) {
        const auto* editor = comboBox->findChild<QLineEdit*>();
        if (editor && editor->hasFocus())
            look.brushes.borderBrush = look.brush(ThemeNames::mainBrush());
    }
}

void quietCommandLink(ButtonLook& look)
{
    if (BaseStyle::isDefaultButton(&look.option) && look.isIdle()
        && WidgetTraits::isCommandLink(look.widget))
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
            look.brushes.foregroundBrush = look.brush(ThemeNames::foregroundBrush());
            look.brushes.borderBrush = look.brushes.foregroundBrush;
        } else {
            // Deliberate: the name of a border brush for the foreground.
            look.brushes.foregroundBrush = look.brush(ThemeNames::button() + look.kind + look.state
                                                      + ThemeNames::borderPart());
        }
    }
    if (look.option.state & QStyle::State_MouseOver && !look.isPressed()) {
        look.brushes.borderBrush = look.brush(ThemeNames::mainBrush());
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
    ButtonLook look{*option, widget};
    for (const BrushRule rule : Rules)
        rule(look);
    return look.brushes;
}

} // namespace BRELK
