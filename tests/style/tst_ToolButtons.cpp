#include "States.h"

#include <QApplication>
#include <QHash>
#include <QPainter>
#include <QProxyStyle>
#include <QToolButton>
#include <QtTest>

namespace {

constexpr QRect ButtonRect(0, 0, 100, 28);

QStyleOptionToolButton optionOf(const QToolButton& button, QStyle::State state)
{
    QStyleOptionToolButton option;
    option.initFrom(&button);
    option.rect = ButtonRect;
    option.state = QStyle::State_Enabled | QStyle::State_Active | state;
    option.subControls = QStyle::SC_ToolButton;
    option.text = QStringLiteral("Crop");
    option.iconSize = QSize(16, 16);
    return option;
}

/// Which elements paint the parts of a tool button, and where.
class PartsStyle : public QProxyStyle
{
public:
    using QProxyStyle::QProxyStyle;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter*,
                       const QWidget*) const override
    {
        rects.insert(element, option->rect);
        states.insert(element, option->state);
    }

    mutable QHash<int, QRect> rects;
    mutable QHash<int, State> states;
};

} // namespace

class tst_ToolButtons : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void initTestCase() { applyProbeStyle(); }

    void toolBarParts()
    {
        const QVector<PaintedState> states = {{"upright", {}, QStyle::State_Horizontal},
                                              {"lying", QStyle::State_Horizontal}};
        COMPARE_TRANSCRIPT(
            "ToolBars.parts",
            transcriptOfStates(QStyle::PE_IndicatorToolBarHandle, states, QRect(0, 0, 24, 24))
                + transcriptOfStates(QStyle::PE_IndicatorToolBarSeparator, states,
                                     QRect(0, 0, 24, 24))
                + transcriptOfStates(QStyle::CE_ToolBar, {{"floating"}}));
    }

    void panelsOfAutoRaisedButtons_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<bool>("panel");
        const auto row = [](const char* name, QStyle::State state, bool panel) {
            QTest::newRow(name) << int(state) << panel;
        };
        constexpr QStyle::State Raised = QStyle::State_AutoRaise | QStyle::State_Raised;
        row("at rest", Raised, false);
        row("hovered", Raised | QStyle::State_MouseOver, true);
        row("checked", Raised | QStyle::State_On, true);
        row("pressed", Raised | QStyle::State_Sunken, true);
        row("not auto-raised", QStyle::State_Raised, true);
    }

    void panelsOfAutoRaisedButtons()
    {
        QFETCH(int, state);
        QFETCH(bool, panel);
        QToolButton button;
        QStyleOptionToolButton option = optionOf(button, QStyle::State(state));
        option.activeSubControls = QStyle::SC_ToolButton;
        QCOMPARE(partsOf(option, button).rects.contains(QStyle::PE_PanelButtonTool), panel);
    }

    void menuPart()
    {
        QToolButton button;
        QStyleOptionToolButton option =
            optionOf(button, QStyle::State_Raised | QStyle::State_HasFocus);
        option.subControls |= QStyle::SC_ToolButtonMenu;
        option.features = QStyleOptionToolButton::MenuButtonPopup;
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            option.direction = direction;
            const QRect area = QApplication::style()->subControlRect(
                QStyle::CC_ToolButton, &option, QStyle::SC_ToolButtonMenu, &button);
            const auto rects = partsOf(option, button).rects;
            const QRect joined = direction == Qt::LeftToRight ? area.adjusted(-1, 0, 0, 0)
                                                              : area.adjusted(0, 0, 1, 0);
            QCOMPARE(rects[QStyle::PE_IndicatorButtonDropDown], joined);
            QCOMPARE(rects[QStyle::PE_IndicatorArrowDown], joined);
            QVERIFY(!rects[QStyle::PE_FrameFocusRect].intersects(area));
        }
    }

    void onePanelLiesBehindACircularButton()
    {
        QToolButton button;
        button.setProperty("circular", true);
        QStyleOptionToolButton option = optionOf(button, QStyle::State_Raised);
        option.subControls |= QStyle::SC_ToolButtonMenu;
        option.features = QStyleOptionToolButton::MenuButtonPopup;
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            option.direction = direction;
            const auto rects = partsOf(option, button).rects;
            QCOMPARE(rects[QStyle::PE_PanelButtonTool], ButtonRect);
            QVERIFY(!rects.contains(QStyle::PE_IndicatorButtonDropDown));
        }
    }

    void pressingTheMenuPartLeavesTheButtonUp()
    {
        QToolButton button;
        QStyleOptionToolButton option =
            optionOf(button, QStyle::State_Raised | QStyle::State_Sunken);
        option.subControls |= QStyle::SC_ToolButtonMenu;
        option.activeSubControls = QStyle::SC_ToolButtonMenu;
        option.features = QStyleOptionToolButton::MenuButtonPopup;
        const auto states = partsOf(option, button).states;
        QVERIFY(!(states[QStyle::PE_PanelButtonTool] & QStyle::State_Sunken));
        QVERIFY(states[QStyle::PE_IndicatorButtonDropDown] & QStyle::State_Sunken);
    }

    void menuMarksHaveRoomOfTheirOwn()
    {
        QToolButton button;
        QStyleOptionToolButton option = optionOf(button, QStyle::State_Raised);
        option.toolButtonStyle = Qt::ToolButtonTextOnly;
        const auto width = [&] {
            return QApplication::style()
                ->sizeFromContents(QStyle::CT_ToolButton, &option, QSize(40, 16), &button)
                .width();
        };
        const int without = width();
        option.features = QStyleOptionToolButton::HasMenu;
        const int mark =
            QApplication::style()->pixelMetric(QStyle::PM_MenuButtonIndicator, &option, &button);
        QCOMPARE(width(), without + mark);
        QCOMPARE(partsOf(option, button).rects[QStyle::PE_IndicatorArrowDown],
                 QRect(ButtonRect.right() - mark, (ButtonRect.height() - mark) / 2, mark, mark));
        button.setProperty("no menu arrow", true);
        QCOMPARE(width(), without);
    }

private:
    /// The parts that a style around the application's is asked to paint.
    static PartsStyle& partsOf(const QStyleOptionToolButton& option, const QToolButton& button)
    {
        static PartsStyle* sStyle = nullptr;
        if (!sStyle) {
            sStyle = new PartsStyle(QApplication::style());
            QApplication::setStyle(sStyle);
        }
        sStyle->rects.clear();
        sStyle->states.clear();
        QPixmap pixmap(ButtonRect.size());
        QPainter painter(&pixmap);
        sStyle->drawComplexControl(QStyle::CC_ToolButton, &option, &painter, &button);
        return *sStyle;
    }
};

QTEST_MAIN(tst_ToolButtons)
#include "tst_ToolButtons.moc"
