#include "BaseStyle.h"
#include "ProbeTheme.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCalendarWidget>
#include <QComboBox>
#include <QCommandLinkButton>
#include <QCursor>
#include <QDateTimeEdit>
#include <QLineEdit>
#include <QPushButton>
#include <QStyleOption>
#include <QTabBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <QtTest>

using namespace BRELK;

namespace {

using State = QStyle::State;

constexpr State Enabled = QStyle::State_Enabled;
constexpr State Hovered = Enabled | QStyle::State_MouseOver;
constexpr State Pressed = Enabled | QStyle::State_Sunken;
constexpr State Checked = Enabled | QStyle::State_On;

using Properties = QVariantMap;

/// Properties that are true, or a word where one follows: "checkable Order=Primary".
Properties with(const char* words)
{
    Properties properties;
    for (const QByteArray& word : QByteArray(words).simplified().split(' ')) {
        const QList<QByteArray> pair = word.split('=');
        const QVariant value = pair.size() == 2 ? QVariant(QString::fromLatin1(pair.last())) : true;
        properties.insert(QLatin1String(pair.first()), value);
    }
    return properties;
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

    void initTestCase()
    {
        ProbeTheme::publish();
        QApplication::setStyle(new BaseStyle);
    }

    void namesAreComposedOfWhatTheWidgetIsAndHowItStands_data()
    {
        QTest::addColumn<Properties>("properties");
        QTest::addColumn<int>("state");
        QTest::addColumn<int>("features");
        QTest::addColumn<QByteArray>("brushes");
        constexpr int Default = QStyleOptionButton::DefaultButton;
        constexpr int Flat = QStyleOptionButton::Flat;
        constexpr State Active = QStyle::State_Active;
        const auto row = [](const char* properties, const char* title, State state,
                            const char* brushes, int features = 0) {
            QTest::newRow(
                qPrintable(QLatin1String(properties) + QLatin1String(": ") + QLatin1String(title)))
                << with(properties) << int(state) << features << QByteArray(brushes);
        };
        row("", "at rest", Enabled, "ButtonUnchecked");
        row("", "pressed and hovered", Pressed | Hovered, "ButtonUncheckedPressed");
        row("", "checked and hovered", Checked | Hovered, "ButtonCheckedHover");
        row("", "hovered but disabled", QStyle::State_MouseOver, "ButtonUnchecked");

        row("", "default", Enabled | Active, "ButtonDefault", Default);
        row("", "default, checked", Checked | Pressed | Active, "ButtonDefaultPressed", Default);
        row("", "default in an inactive window", Enabled, "ButtonUnchecked", Default);
        row("", "default but disabled", Active, "ButtonUnchecked", Default);
        row("blinking", "default, checked", Checked | Active, "ButtonUnchecked", Default);
        row("blinking blink_checked", "pressed", Pressed, "ButtonCheckedPressed");

        row("checkable", "at rest", Enabled, "ToggleButtonUnchecked");
        row("checkable highlighted Status=Danger Order=Primary", "pressed", Checked | Pressed,
            "ToggleButtonHighlightedCheckedPressed");
        row("Status=Danger Order=Primary", "at rest", Enabled, "ButtonDangerUnchecked");
        row("Order=Primary ButtonType=Info", "at rest", Enabled, "ButtonPrimaryUnchecked");
        row("Status= ButtonType=Tarrin", "hovered", Hovered, "ButtonTarrinUncheckedHover");
        row("ButtonType=Unheard", "at rest", Enabled, "none");

        row("", "flat", Pressed,
            "ButtonUncheckedPressed ButtonUncheckedPressedBackgroundBrush ButtonUncheckedPressed",
            Flat);
        row("highlighted", "flat, pressed", Pressed,
            "ButtonHighlightedUncheckedPressed ButtonHighlightedUncheckedPressedBackgroundBrush "
            "ButtonHighlightedUncheckedHover",
            Flat);
        row("ButtonType=Tarrin", "flat, pressed", Pressed,
            "ButtonTarrinUncheckedPressed ButtonTarrinUncheckedPressedBackgroundBrush "
            "ButtonHighlightedUncheckedHover",
            Flat);
        row("outline", "at rest", Enabled, "ButtonUnchecked ButtonUncheckedBackgroundBrush none");
        row("outline", "pressed", Pressed,
            "ButtonUncheckedPressed ButtonUncheckedPressedBackgroundBrush ButtonUncheckedPressed");
        row("outline checkable Order=Primary", "checked and hovered", Checked | Hovered,
            "ToggleButtonPrimaryCheckedHover ButtonPrimaryUncheckedHoverBackgroundBrush "
            "ToggleButtonPrimaryCheckedHover");

        row("workflow", "at rest", Enabled, "ButtonUnchecked");
        row("workflow", "hovered", Hovered, "ButtonUncheckedHover MainBrush ButtonUncheckedHover");
        row("workflow exclusive checkable", "at rest", Enabled,
            "ToggleButtonUnchecked ToggleButtonUnchecked ButtonUncheckedBorderBrush");
        row("workflow exclusive checkable", "hovered", Hovered,
            "ToggleButtonUncheckedHover MainBrush MainBrush");
        row("workflow exclusive checkable checked", "pressed", Checked | Pressed | Hovered,
            "ToggleButtonCheckedPressed ForegroundBrush ForegroundBrush");
    }

    void namesAreComposedOfWhatTheWidgetIsAndHowItStands()
    {
        QFETCH(Properties, properties);
        QFETCH(int, state);
        QFETCH(int, features);
        QFETCH(QByteArray, brushes);

        QWidget group;
        group.setProperty("ButtonGroupWidget_Workflow",
                          properties.take(QStringLiteral("workflow")));
        group.setProperty("ButtonGroupWidget_Exclusive",
                          properties.take(QStringLiteral("exclusive")));
        // A plain widget, since "checkable" is a property that buttons have of their own.
        QWidget widget(&group);
        for (auto entry = properties.cbegin(); entry != properties.cend(); ++entry)
            widget.setProperty(entry.key().toLatin1().constData(), entry.value());
        auto option = optionOf(State(state));
        option.features = QStyleOptionButton::ButtonFeatures(features);
        QCOMPARE(brushesOf(option, &widget), brushes);

        widget.setEnabled(false);
        if (!brushes.contains("none"))
            QCOMPARE(brushesOf(option, &widget), brushes + " Disabled");
    }

    void withoutWidgetTheOptionDecides()
    {
        QCOMPARE(brushesOf(optionOf(Checked | Hovered), nullptr), "ButtonCheckedHover");
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
