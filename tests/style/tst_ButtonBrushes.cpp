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

/// The brushes of background, border and foreground by the beginnings of their names, or by one
/// word if these are alike: "ButtonChecked", "ButtonChecked MainBrush none". Of disabled ones,
/// "Disabled" follows.
QByteArray brushesOf(const QStyleOption& option, const QWidget* widget)
{
    const BaseStyle::ButtonBrushes brushes = BaseStyle::buttonBrushes(&option, widget);
    const std::pair<QBrush, QByteArray> parts[] = {{brushes.backgroundBrush, "BackgroundBrush"},
                                                   {brushes.borderBrush, "BorderBrush"},
                                                   {brushes.foregroundBrush, "ForegroundBrush"}};
    QByteArrayList words;
    int disabled = 0;
    for (const auto& [brush, ending] : parts) {
        QByteArray name = ProbeTheme::nameOf(brush);
        if (name.endsWith("Disabled")) {
            name.chop(8);
            ++disabled;
        }
        if (name.endsWith(ending) && name != ending)
            name.chop(ending.size());
        words.append(name);
    }
    if (words.count(words.first()) == words.size())
        words = {words.first()};
    if (disabled > 0)
        words.append(disabled == 3 ? "Disabled" : "partly Disabled");
    return words.join(' ');
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
            {"at rest", Enabled},
            {"hovered", Hovered},
            {"pressed", Pressed | Hovered},
            {"checked", Checked},
            {"checked and hovered", Checked | Hovered},
            {"disabled", QStyle::State_MouseOver | QStyle::State_Active},
            {"default", Checked | QStyle::State_Active, QStyleOptionButton::DefaultButton},
            {"default, pressed", Pressed | QStyle::State_Active, QStyleOptionButton::DefaultButton},
            {"default in an inactive window", Enabled, QStyleOptionButton::DefaultButton},
            {"flat", Enabled, QStyleOptionButton::Flat},
            {"flat, pressed", Pressed, QStyleOptionButton::Flat},
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
        QByteArray text;
        for (const auto& [own, groups] : kinds) {
            QWidget group;
            setProperties(group, groups);
            // A plain widget, since "checkable" is a property that buttons have of their own.
            QWidget widget(&group);
            setProperties(widget, own);
            text += QByteArray("# ") + own + ' ' + groups + '\n';
            for (const auto& [name, state, features] : states) {
                auto option = optionOf(state);
                option.features = features;
                const QByteArray brushes = brushesOf(option, &widget);
                text += QByteArray(name) + ": " + brushes + '\n';
                widget.setEnabled(false);
                if (!brushes.contains("none"))
                    QCOMPARE(brushesOf(option, &widget), brushes + " Disabled");
                widget.setEnabled(true);
            }
        }
        COMPARE_TRANSCRIPT("ButtonBrushes.names", text);
    }

    void calendarButtonsLookHoveredUntilPressed()
    {
        QCalendarWidget calendar;
        const auto* next =
            calendar.findChild<QToolButton*>(QStringLiteral("qt_calendar_nextmonth"));
        QVERIFY(next);
        QCOMPARE(brushesOf(optionOf(Checked), next), "ButtonUncheckedHover");
        QCOMPARE(brushesOf(optionOf(Pressed), next), "ButtonUncheckedPressed");
    }

    void pressingTheMenuPartLeavesTheMainPartHovered()
    {
        QToolButton button;
        button.setPopupMode(QToolButton::MenuButtonPopup);
        button.resize(80, 28);
        button.show();
        auto option = optionOf<QStyleOptionToolButton>(Pressed, &button);
        option.subControls = QStyle::SC_ToolButton | QStyle::SC_ToolButtonMenu;
        option.features = QStyleOptionToolButton::MenuButtonPopup;
        const auto pointAt = [&](QStyle::SubControl part) {
            const QRect rect =
                button.style()->subControlRect(QStyle::CC_ToolButton, &option, part, &button);
            QCursor::setPos(button.mapToGlobal(rect.center()));
        };

        pointAt(QStyle::SC_ToolButtonMenu);
        QCOMPARE(brushesOf(option, &button), "ButtonUncheckedHover");
        option.state |= QStyle::State_On;
        QCOMPARE(brushesOf(option, &button), "ButtonCheckedPressed");
        option.state = Pressed;
        pointAt(QStyle::SC_ToolButton);
        QCOMPARE(brushesOf(option, &button), "ButtonUncheckedPressed");
    }

    void calendarPopupEditorsLookLikeInputs()
    {
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        auto* other = new QPushButton;
        auto* editor = new QDateEdit;
        layout->addWidget(other);
        layout->addWidget(editor);
        editor->setCalendarPopup(true);
        showFocused(*other);
        const auto option = optionOf<QStyleOptionSpinBox>(Hovered);

        QCOMPARE(brushesOf(option, editor),
                 "InputUncheckedHover InputUncheckedHover ButtonUncheckedHover");
        showFocused(*editor);
        QCOMPARE(brushesOf(option, editor), "InputUncheckedHover MainBrush ButtonUncheckedHover");
        editor->setFrame(false);
        QCOMPARE(brushesOf(option, editor),
                 "InputUncheckedHover InputUncheckedHoverBackgroundBrush ButtonUncheckedHover");
    }

    void comboBoxesShowFocusAndPopupInTheirBorder()
    {
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        auto* comboBox = new QComboBox;
        layout->addWidget(comboBox);
        comboBox->addItems({QStringLiteral("One"), QStringLiteral("Two")});
        const auto option = optionOf<QStyleOptionComboBox>(Hovered);

        // Asking does not build the popup.
        QCOMPARE(brushesOf(option, comboBox), "InputUncheckedHover");
        QVERIFY(comboBox->findChildren<QAbstractItemView*>().isEmpty());
        showFocused(*comboBox);
        QCOMPARE(brushesOf(option, comboBox), "InputUncheckedHover");
        comboBox->setEditable(true);
        comboBox->lineEdit()->setFocus();
        QVERIFY(comboBox->lineEdit()->hasFocus());
        QCOMPARE(brushesOf(option, comboBox), "InputUncheckedHover MainBrush InputUncheckedHover");

        comboBox->showPopup();
        QTRY_VERIFY(comboBox->view()->isVisible());
        comboBox->lineEdit()->setFocus();
        QCOMPARE(brushesOf(option, comboBox), "InputUncheckedHover Card InputUncheckedHover");
        comboBox->setFrame(false);
        QCOMPARE(brushesOf(option, comboBox),
                 "InputUncheckedHover InputUncheckedHoverBackgroundBrush InputUncheckedHover");
        comboBox->hidePopup();
    }

    void defaultCommandLinksAreQuietAtRest()
    {
        const QCommandLinkButton button(QStringLiteral("Link"));
        auto option = optionOf(Enabled | QStyle::State_Active);
        QCOMPARE(brushesOf(option, &button), "ButtonUnchecked");
        option.features = QStyleOptionButton::DefaultButton | QStyleOptionButton::CommandLinkButton;
        QCOMPARE(brushesOf(option, &button), "ButtonDefault ButtonDefault none");
        option.state |= QStyle::State_MouseOver;
        QCOMPARE(brushesOf(option, &button), "ButtonDefaultHover");
    }

    void tabBarButtonsHaveTheCardBorder()
    {
        QTabBar tabBar;
        const QToolButton button(&tabBar);
        QCOMPARE(brushesOf(optionOf(Hovered), &button),
                 "ButtonUncheckedHover Card ButtonUncheckedHover");
    }
};

QTEST_MAIN(tst_ButtonBrushes)
#include "tst_ButtonBrushes.moc"
