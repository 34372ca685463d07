#include "LookSheet.h"
#include "StateSheet.h"

using namespace BRELK;

namespace {

using State = QStyle::State;

constexpr State Enabled = QStyle::State_Enabled;
constexpr State Hovered = Enabled | QStyle::State_MouseOver;
constexpr State Pressed = Enabled | QStyle::State_Sunken;
constexpr State Checked = Enabled | QStyle::State_On;

/// Sets properties to true, or to a word where one follows: "checkable Order=Primary".
void setProperties(QObject& object, const QByteArray& words)
{
    for (const QByteArray& word : words.split(' ')) {
        const QList<QByteArray> pair = word.split('=');
        object.setProperty(pair.first(), pair.size() == 2 ? QVariant(pair.last()) : true);
    }
}

/// The brushes of background, border and foreground.
QByteArray brushesOf(const QStyleOption& option, const QWidget* widget)
{
    const BaseStyle::ButtonBrushes brushes = BaseStyle::buttonBrushes(&option, widget);
    return ProbeTheme::nameOf(brushes.backgroundBrush) + ' '
           + ProbeTheme::nameOf(brushes.borderBrush) + ' '
           + ProbeTheme::nameOf(brushes.foregroundBrush);
}

template <class Option = QStyleOptionButton>
Option optionOf(State state, const QWidget* widget = nullptr)
{
    Option option;
    if (widget)
        option.initFrom(widget);
    option.state = state;
    return option;
}

template <class Widget>
void showFocused(Widget& widget)
{
    widget.show();
    QApplication::setActiveWindow(widget.window());
    widget.setFocus();
    QTRY_VERIFY(widget.hasFocus());
}

} // namespace

class tst_ButtonBrushes : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void initTestCase() { StateSheet::applyProbeTheme(); }

    void namesAreComposedOfWhatTheWidgetIsAndHowItStands()
    {
        const struct
        {
            const char* name;
            State state;
            QStyleOptionButton::ButtonFeatures features = QStyleOptionButton::None;
        } states[] = {
            {"at-rest", Enabled},
            {"hovered", Hovered},
            {"pressed", Pressed | Hovered},
            {"checked", Checked},
            {"checked-hovered", Checked | Hovered},
            {"disabled", QStyle::State_MouseOver | QStyle::State_Active},
            {"default", Checked | QStyle::State_Active, QStyleOptionButton::DefaultButton},
            {"default-pressed", Pressed | QStyle::State_Active, QStyleOptionButton::DefaultButton},
            {"default-inactive", Enabled, QStyleOptionButton::DefaultButton},
            {"flat", Enabled, QStyleOptionButton::Flat},
            {"flat-pressed", Pressed, QStyleOptionButton::Flat},
        };

        const std::pair<const char*, const char*> kinds[] = {
            {"", ""},
            {"blinking", ""},
            {"blinking blink_checked", ""},
            {"highlighted Status=Danger Order=Primary", ""},
            {"Status=Danger Order=Primary", ""},
            {"Order=Primary ButtonType=Info", ""},
            {"Status= ButtonType=Tarrin", ""},
            {"ButtonType=Unheard", ""},
            {"checkable highlighted", ""},
            {"outline", ""},
            {"outline checkable Order=Primary", ""},
            {"", "ButtonGroupWidget_Workflow"},
            {"checkable", "ButtonGroupWidget_Workflow"},
            {"checkable", "ButtonGroupWidget_Workflow ButtonGroupWidget_Exclusive"},
            {"checkable checked", "ButtonGroupWidget_Workflow ButtonGroupWidget_Exclusive"},
        };
        LookSheet::States looks;
        for (const auto& [own, groups] : kinds) {
            QWidget group;
            setProperties(group, groups);
            // A plain widget, since "checkable" is a property that buttons have of their own.
            QWidget widget(&group);
            setProperties(widget, own);
            QByteArray text;
            for (const auto& [name, state, features] : states) {
                auto option = optionOf(state);
                option.features = features;
                QByteArray brushes = brushesOf(option, &widget);
                text += QByteArray(name) + ": " + brushes + '\n';
                widget.setEnabled(false);
                brushes.replace("BrushDisabled", "Brush").replace("Brush", "BrushDisabled");
                QCOMPARE(brushesOf(option, &widget), brushes);
                widget.setEnabled(true);
            }
            looks.append({QByteArray(own) + (*groups ? " in " : "") + groups, text});
        }
        LookSheet sheet;
        sheet.add("plain", looks.first().second, looks.mid(1), 0);
        COMPARE_TRANSCRIPT("ButtonBrushes.names", sheet.text());
    }

    void buttonsWithRulesOfTheirOwn()
    {
        QByteArray text;
        const auto add = [&text](const char* what, const QStyleOption& option,
                                 const QWidget* widget) {
            text += QByteArray(what) + ": " + brushesOf(option, widget) + '\n';
        };
        QCalendarWidget calendar;
        const auto* next =
            calendar.findChild<QToolButton*>(QStringLiteral("qt_calendar_nextmonth"));
        add("calendar, checked", optionOf(Checked), next);
        add("calendar, pressed", optionOf(Pressed), next);

        const QCommandLinkButton link(QStringLiteral("Link"));
        auto option = optionOf(Enabled | QStyle::State_Active);
        add("command link", option, &link);
        option.features = QStyleOptionButton::DefaultButton | QStyleOptionButton::CommandLinkButton;
        add("default command link", option, &link);
        option.state |= QStyle::State_MouseOver;
        add("default command link, hovered", option, &link);

        QTabBar tabBar;
        const QToolButton tabButton(&tabBar);
        add("tab bar, hovered", optionOf(Hovered), &tabButton);

        QToolButton button;
        button.setPopupMode(QToolButton::MenuButtonPopup);
        button.resize(80, 28);
        button.show();
        auto parts = optionOf<QStyleOptionToolButton>(Pressed, &button);
        parts.subControls = QStyle::SC_ToolButton | QStyle::SC_ToolButtonMenu;
        parts.features = QStyleOptionToolButton::MenuButtonPopup;
        for (const auto part : {QStyle::SC_ToolButtonMenu, QStyle::SC_ToolButton}) {
            const QRect rect =
                button.style()->subControlRect(QStyle::CC_ToolButton, &parts, part, &button);
            QCursor::setPos(button.mapToGlobal(rect.center()));
            for (const State state : {Pressed, Pressed | QStyle::State_On}) {
                parts.state = state;
                add(part == QStyle::SC_ToolButton ? "main part pressed" : "menu part pressed",
                    parts, &button);
            }
        }
        COMPARE_TRANSCRIPT("ButtonBrushes.rules", text);
    }

    void inputsShowFocusAndPopupInTheirBorder()
    {
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        auto* editor = new QDateEdit;
        auto* comboBox = new QComboBox;
        layout->addWidget(comboBox);
        layout->addWidget(editor);
        editor->setCalendarPopup(true);
        comboBox->addItems({QStringLiteral("One"), QStringLiteral("Two")});
        QByteArray text;
        const auto add = [&](const char* what) {
            text += QByteArray("# ") + what + '\n'
                    + brushesOf(optionOf<QStyleOptionComboBox>(Hovered), comboBox) + '\n'
                    + brushesOf(optionOf<QStyleOptionSpinBox>(Hovered), editor) + '\n';
        };
        add("not shown");
        // Asking does not build the popup.
        QVERIFY(comboBox->findChildren<QAbstractItemView*>().isEmpty());
        showFocused(*comboBox);
        add("combo box in focus");
        showFocused(*editor);
        add("editor in focus");
        editor->setFrame(false);
        comboBox->setEditable(true);
        comboBox->lineEdit()->setFocus();
        QVERIFY(comboBox->lineEdit()->hasFocus());
        add("editable combo box in focus, editor without frame");
        comboBox->showPopup();
        QTRY_VERIFY(comboBox->view()->isVisible());
        comboBox->lineEdit()->setFocus();
        add("with popup");
        comboBox->setFrame(false);
        add("with popup, without frame");
        comboBox->hidePopup();
        COMPARE_TRANSCRIPT("ButtonBrushes.inputs", text);
    }
};

QTEST_MAIN(tst_ButtonBrushes)
#include "tst_ButtonBrushes.moc"
