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
#include <QSpinBox>
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

const Properties ToggleProperty{{QStringLiteral("checkable"), true}};
const Properties HighlightedProperty{{QStringLiteral("highlighted"), true}};
const Properties OutlineProperty{{QStringLiteral("outline"), true}};

Properties kind(const char* property, const char* word)
{
    return {{QLatin1String(property), QLatin1String(word)}};
}

Properties operator+(Properties first, const Properties& second)
{
    for (auto entry = second.cbegin(); entry != second.cend(); ++entry)
        first.insert(entry.key(), entry.value());
    return first;
}

void setProperties(QObject& object, const Properties& properties)
{
    for (auto entry = properties.cbegin(); entry != properties.cend(); ++entry)
        object.setProperty(entry.key().toLatin1().constData(), entry.value());
}

QByteArray brushesOf(const QStyleOption& option, const QWidget* widget)
{
    const BaseStyle::ButtonBrushes brushes = BaseStyle::buttonBrushes(&option, widget);
    return ProbeTheme::nameOf(brushes.backgroundBrush) + '\n'
           + ProbeTheme::nameOf(brushes.borderBrush) + '\n'
           + ProbeTheme::nameOf(brushes.foregroundBrush);
}

/// What `brushesOf` gives for three names.
QByteArray three(const QByteArray& background, const QByteArray& border,
                 const QByteArray& foreground)
{
    return background + '\n' + border + '\n' + foreground;
}

/// The three brushes whose names begin alike.
QByteArray family(const QByteArray& words, const QByteArray& twin = {})
{
    return three(words + "BackgroundBrush" + twin, words + "BorderBrush" + twin,
                 words + "ForegroundBrush" + twin);
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
        constexpr State Active = QStyle::State_Active;
        const auto row = [](const char* title, const Properties& properties, State state,
                            const QByteArray& brushes, int features = 0) {
            QTest::newRow(title) << properties << int(state) << features << brushes;
        };
        const Properties blinking{{QStringLiteral("blinking"), true}};
        const Properties blinkingOn{{QStringLiteral("blinking"), true},
                                    {QStringLiteral("blink_checked"), true}};
        const Properties allKinds =
            kind("Status", "Danger") + kind("Order", "Primary") + kind("ButtonType", "Info");

        row("at rest", {}, Enabled, family("ButtonUnchecked"));
        row("hovered", {}, Hovered, family("ButtonUncheckedHover"));
        row("pressed wins over hovered", {}, Pressed | Hovered, family("ButtonUncheckedPressed"));
        row("checked", {}, Checked, family("ButtonChecked"));
        row("checked hovered", {}, Checked | Hovered, family("ButtonCheckedHover"));
        row("checked pressed", {}, Checked | Pressed, family("ButtonCheckedPressed"));
        row("hovered but not enabled by its option", {}, QStyle::State_MouseOver,
            family("ButtonUnchecked"));

        row("default", {}, Enabled | Active, family("ButtonDefault"), Default);
        row("default hovered", {}, Hovered | Active, family("ButtonDefaultHover"), Default);
        row("default checked and pressed", {}, Checked | Pressed | Active,
            family("ButtonDefaultPressed"), Default);
        row("default in an inactive window", {}, Enabled, family("ButtonUnchecked"), Default);
        row("default but not enabled by its option", {}, Active, family("ButtonUnchecked"),
            Default);

        row("blinking hides default and checked", blinking, Checked | Active,
            family("ButtonUnchecked"), Default);
        row("blinking, lit", blinkingOn, Enabled | Active, family("ButtonChecked"), Default);
        row("blinking, lit and pressed", blinkingOn, Pressed, family("ButtonCheckedPressed"));

        row("toggle", ToggleProperty, Enabled, family("ToggleButtonUnchecked"));
        row("highlighted toggle", ToggleProperty + HighlightedProperty, Checked | Pressed,
            family("ToggleButtonHighlightedCheckedPressed"));
        row("highlighted wins over kinds", HighlightedProperty + allKinds, Enabled,
            family("ButtonHighlightedUnchecked"));
        row("status wins over order", allKinds, Enabled, family("ButtonDangerUnchecked"));
        row("order wins over type", kind("Order", "Primary") + kind("ButtonType", "Info"), Enabled,
            family("ButtonPrimaryUnchecked"));
        row("an empty status is none", kind("Status", "") + kind("ButtonType", "Tarrin"), Hovered,
            family("ButtonTarrinUncheckedHover"));
        row("an unknown kind has no brushes", kind("ButtonType", "Unheard"), Enabled,
            three("none", "none", "none"));
    }

    void namesAreComposedOfWhatTheWidgetIsAndHowItStands()
    {
        QFETCH(Properties, properties);
        QFETCH(int, state);
        QFETCH(int, features);
        QFETCH(QByteArray, brushes);

        // A plain widget, since "checkable" is a property that buttons have of their own.
        QWidget widget;
        setProperties(widget, properties);
        auto option = optionOf(State(state));
        option.features = QStyleOptionButton::ButtonFeatures(features);
        QCOMPARE(brushesOf(option, &widget), brushes);

        if (properties.isEmpty())
            QCOMPARE(brushesOf(option, nullptr), brushes);

        widget.setEnabled(false);
        if (!brushes.contains("none"))
            QCOMPARE(brushesOf(option, &widget),
                     QByteArray(QByteArray(brushes).replace('\n', "Disabled\n") + "Disabled"));
    }

    void realButtonsHaveTheirOwnCheckable()
    {
        QPushButton button;
        button.setCheckable(true);
        QCOMPARE(brushesOf(optionOf(Enabled), &button), family("ToggleButtonUnchecked"));
    }

    void calendarButtonsLookHoveredUntilPressed()
    {
        QCalendarWidget calendar;
        const auto* next =
            calendar.findChild<QToolButton*>(QStringLiteral("qt_calendar_nextmonth"));
        QVERIFY(next);
        QCOMPARE(brushesOf(optionOf(Enabled), next), family("ButtonUncheckedHover"));
        QCOMPARE(brushesOf(optionOf(Checked), next), family("ButtonUncheckedHover"));
        QCOMPARE(brushesOf(optionOf(Pressed), next), family("ButtonUncheckedPressed"));
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
        QCOMPARE(brushesOf(option, &button), family("ButtonUncheckedHover"));
        QCOMPARE(brushesOf(option, nullptr), family("ButtonUncheckedPressed"));
        option.state |= QStyle::State_On;
        QCOMPARE(brushesOf(option, &button), family("ButtonCheckedPressed"));

        option.state = Pressed;
        pointAt(QStyle::SC_ToolButton);
        QCOMPARE(brushesOf(option, &button), family("ButtonUncheckedPressed"));
        pointAt(QStyle::SC_ToolButtonMenu);
        option.subControls = QStyle::SC_ToolButton;
        QCOMPARE(brushesOf(option, &button), family("ButtonUncheckedPressed"));
    }

    void flatButtonsHaveNoBorderOfTheirOwn()
    {
        const auto flat = [](const Properties& properties, State state) {
            QWidget widget;
            setProperties(widget, properties);
            auto option = optionOf(state);
            option.features = QStyleOptionButton::Flat;
            return brushesOf(option, &widget);
        };
        const QByteArray lit = "ButtonHighlightedUncheckedHoverForegroundBrush";

        QCOMPARE(flat({}, Hovered),
                 three("ButtonUncheckedHoverBackgroundBrush", "ButtonUncheckedHoverBackgroundBrush",
                       "ButtonUncheckedHoverForegroundBrush"));
        QCOMPARE(flat({}, Pressed).split('\n').last(), "ButtonUncheckedPressedForegroundBrush");
        QCOMPARE(flat(HighlightedProperty, Pressed).split('\n').last(), lit);
        QCOMPARE(flat(kind("ButtonType", "Tarrin"), Pressed).split('\n').last(), lit);
        QCOMPARE(flat(kind("ButtonType", "Tarrin"), Hovered).split('\n').last(),
                 "ButtonTarrinUncheckedHoverForegroundBrush");
    }

    void outlineButtonsShowTheirTextWhenTheyAreUsed()
    {
        const auto outline = [](const Properties& properties, State state) {
            QWidget widget;
            setProperties(widget, OutlineProperty + properties);
            return brushesOf(optionOf(state), &widget);
        };
        QCOMPARE(outline({}, Enabled),
                 three("ButtonUncheckedBackgroundBrush", "ButtonUncheckedBackgroundBrush", "none"));
        QCOMPARE(outline({}, Pressed), three("ButtonUncheckedPressedBackgroundBrush",
                                             "ButtonUncheckedPressedBackgroundBrush",
                                             "ButtonUncheckedPressedForegroundBrush"));
        QCOMPARE(outline(ToggleProperty + kind("Order", "Primary"), Checked | Hovered),
                 three("ToggleButtonPrimaryCheckedHoverBackgroundBrush",
                       "ButtonPrimaryUncheckedHoverBackgroundBrush",
                       "ToggleButtonPrimaryCheckedHoverForegroundBrush"));
        QCOMPARE(outline({}, Checked | Hovered | Pressed).split('\n').at(1),
                 "ButtonCheckedPressedBackgroundBrush");
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
        const QByteArray background = "InputUncheckedHoverBackgroundBrush";
        const QByteArray foreground = "ButtonUncheckedHoverForegroundBrush";

        QCOMPARE(brushesOf(option, editor),
                 three(background, "InputUncheckedHoverBorderBrush", foreground));
        showFocused(*editor);
        QCOMPARE(brushesOf(option, editor), three(background, "MainBrush", foreground));
        editor->setFrame(false);
        QCOMPARE(brushesOf(option, editor), three(background, background, foreground));
    }

    void spinBoxesHaveNoBorderOfTheirOwn()
    {
        const QByteArray plain = "InputUncheckedBackgroundBrush";
        const auto check = [&](QAbstractSpinBox& spinBox) {
            QCOMPARE(brushesOf(optionOf(Pressed), &spinBox),
                     three("InputUncheckedPressedBackgroundBrush",
                           "InputUncheckedPressedBackgroundBrush",
                           "ButtonUncheckedPressedForegroundBrush"));
            QCOMPARE(brushesOf(optionOf(Hovered), &spinBox),
                     three(plain, plain, "ButtonUncheckedHoverForegroundBrush"));
            spinBox.setProperty("Status", QStringLiteral("Danger"));
            QCOMPARE(brushesOf(optionOf(Enabled), &spinBox),
                     three("InputDangerUncheckedBackgroundBrush",
                           "InputDangerUncheckedBackgroundBrush",
                           "ButtonDangerUncheckedForegroundBrush"));
        };
        QSpinBox number;
        check(number);
        QTimeEdit timeWithPopup;
        timeWithPopup.setCalendarPopup(true);
        check(timeWithPopup);
        QDateEdit dateWithoutPopup;
        check(dateWithoutPopup);
    }

    void comboBoxesShowFocusAndPopupInTheirBorder()
    {
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        auto* comboBox = new QComboBox;
        layout->addWidget(comboBox);
        comboBox->addItems({QStringLiteral("One"), QStringLiteral("Two")});
        comboBox->setProperty("Order", QStringLiteral("Primary"));
        const auto option = optionOf<QStyleOptionComboBox>(Hovered);
        const QByteArray all = family("InputPrimaryUncheckedHover");
        const auto withBorder = [&](const QByteArray& border) {
            return QByteArray(all).replace("InputPrimaryUncheckedHoverBorderBrush", border);
        };

        QCOMPARE(brushesOf(option, comboBox), all);
        showFocused(*comboBox);
        QCOMPARE(brushesOf(option, comboBox), all);
        comboBox->setEditable(true);
        comboBox->lineEdit()->setFocus();
        QVERIFY(comboBox->lineEdit()->hasFocus());
        QCOMPARE(brushesOf(option, comboBox), withBorder("MainBrush"));

        comboBox->showPopup();
        QTRY_VERIFY(comboBox->view()->isVisible());
        comboBox->lineEdit()->setFocus();
        QCOMPARE(brushesOf(option, comboBox), withBorder("CardBorderBrush"));
        QCOMPARE(brushesOf(optionOf<QStyleOptionComboBox>(State()), comboBox).split('\n').at(1),
                 "CardBorderBrushDisabled");
        comboBox->setFrame(false);
        QCOMPARE(brushesOf(option, comboBox),
                 withBorder("InputPrimaryUncheckedHoverBackgroundBrush"));
        comboBox->hidePopup();
    }

    void askingForBrushesDoesNotBuildThePopup()
    {
        const QComboBox comboBox;
        brushesOf(optionOf<QStyleOptionComboBox>(Enabled), &comboBox);
        QVERIFY(comboBox.findChildren<QAbstractItemView*>().isEmpty());
    }

    void defaultCommandLinksAreQuietAtRest()
    {
        const QCommandLinkButton button(QStringLiteral("Link"));
        auto option = optionOf(Enabled | QStyle::State_Active);
        QCOMPARE(brushesOf(option, &button), family("ButtonUnchecked"));
        option.features = QStyleOptionButton::DefaultButton | QStyleOptionButton::CommandLinkButton;
        QCOMPARE(brushesOf(option, &button),
                 three("ButtonDefaultBackgroundBrush", "ButtonDefaultBorderBrush", "none"));
        option.state |= QStyle::State_MouseOver;
        QCOMPARE(brushesOf(option, &button), family("ButtonDefaultHover"));
    }

    void tabBarButtonsHaveTheCardBorder()
    {
        QTabBar tabBar;
        const QToolButton button(&tabBar);
        QCOMPARE(brushesOf(optionOf(Hovered), &button),
                 three("ButtonUncheckedHoverBackgroundBrush", "CardBorderBrush",
                       "ButtonUncheckedHoverForegroundBrush"));
        QCOMPARE(brushesOf(optionOf(State()), &button).split('\n').at(1),
                 "CardBorderBrushDisabled");
    }

    void workflowGroupsColorTheirSteps()
    {
        QWidget group;
        group.setProperty("ButtonGroupWidget_Workflow", true);
        QWidget step(&group);
        const QByteArray background = "ButtonUncheckedBackgroundBrush";
        const QByteArray hovered = "ButtonUncheckedHoverBackgroundBrush";

        QCOMPARE(brushesOf(optionOf(Enabled), &step), family("ButtonUnchecked"));
        QCOMPARE(brushesOf(optionOf(Hovered), &step),
                 three(hovered, "MainBrush", "ButtonUncheckedHoverForegroundBrush"));

        group.setProperty("ButtonGroupWidget_Exclusive", true);
        QCOMPARE(brushesOf(optionOf(Enabled), &step),
                 three(background, "ButtonUncheckedBorderBrush", "ButtonUncheckedBorderBrush"));
        step.setProperty("checkable", true);
        QCOMPARE(brushesOf(optionOf(Enabled), &step),
                 three("ToggleButtonUncheckedBackgroundBrush", "ToggleButtonUncheckedBorderBrush",
                       "ButtonUncheckedBorderBrush"));
        QCOMPARE(brushesOf(optionOf(Hovered), &step),
                 three("ToggleButtonUncheckedHoverBackgroundBrush", "MainBrush", "MainBrush"));
        step.setProperty("checked", true);
        QCOMPARE(brushesOf(optionOf(Checked | Pressed | Hovered), &step),
                 three("ToggleButtonCheckedPressedBackgroundBrush", "ForegroundBrush",
                       "ForegroundBrush"));
    }
};

QTEST_MAIN(tst_ButtonBrushes)
#include "tst_ButtonBrushes.moc"
