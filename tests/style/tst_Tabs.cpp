#include "BaseStyle.h"
#include "States.h"

#include <QApplication>
#include <QTabBar>
#include <QTabWidget>
#include <QtTest>

using namespace BRELK;

namespace {

constexpr QRect TabRect(40, 0, 80, 28);

QStyleOptionTab tabOption(QTabBar::Shape shape, QStyle::State state)
{
    QStyleOptionTab tab;
    tab.rect = TabRect;
    tab.shape = shape;
    tab.state = QStyle::State_Enabled | state;
    tab.position = QStyleOptionTab::Middle;
    tab.text = QStringLiteral("Tab");
    return tab;
}

} // namespace

class tst_Tabs : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void initTestCase() { applyProbeStyle(); }

    void shapes()
    {
        const QTabBar bar;
        QByteArray text;
        for (const QTabBar::Shape shape :
             {QTabBar::RoundedNorth, QTabBar::RoundedSouth, QTabBar::RoundedWest,
              QTabBar::RoundedEast, QTabBar::TriangularNorth, QTabBar::TriangularSouth,
              QTabBar::TriangularWest, QTabBar::TriangularEast}) {
            for (const QStyle::State state :
                 {QStyle::State_None, QStyle::State_MouseOver, QStyle::State_Selected}) {
                text +=
                    "# shape " + QByteArray::number(shape) + ", state "
                    + QByteArray::number(int(state), 16) + '\n'
                    + transcriptOf(drawn(QStyle::CE_TabBarTabShape, tabOption(shape, state), &bar));
            }
        }
        COMPARE_TRANSCRIPT("Tabs.shapes", text);
    }

    void neighboursShareOneBorder()
    {
        const QTabBar bar;
        QStyleOptionTab tab = tabOption(QTabBar::RoundedNorth, QStyle::State_Selected);
        const auto bounds = [&] {
            return drawn(QStyle::CE_TabBarTabShape, tab, &bar).at(0).rect.toAlignedRect();
        };
        QCOMPARE(bounds(), TabRect.adjusted(-1, 0, 0, 0));
        tab.direction = Qt::RightToLeft;
        QCOMPARE(bounds(), TabRect.adjusted(0, 0, 1, 0));
        tab.position = QStyleOptionTab::Beginning;
        QCOMPARE(bounds(), TabRect);
    }

    void sizePropertiesOfTheBarDecideTheRadius()
    {
        QTabBar bar;
        const QStyleOptionTab tab = tabOption(QTabBar::RoundedNorth, QStyle::State_Selected);
        const auto radius = [&] {
            return int(drawn(QStyle::CE_TabBarTabShape, tab, &bar).at(0).radius);
        };
        qApp->setProperty("appLargeTabSize", true);
        QCOMPARE(radius(), 6);
        bar.setProperty("largeTabSize", true);
        QCOMPARE(radius(), 8);
        bar.setProperty("smallTabSize", true);
        QCOMPARE(radius(), 2);
        qApp->setProperty("appLargeTabSize", QVariant());
    }

    void labelsTellTheState()
    {
        QTabBar bar;
        const auto color = [&](QStyle::State state) {
            const auto tab = tabOption(QTabBar::RoundedNorth, state);
            return drawn(QStyle::CE_TabBarTabLabel, tab, &bar).at(0).pen;
        };
        QCOMPARE(color(QStyle::State_MouseOver), "TabForegroundMouseOverBrush");
        QVERIFY(color(QStyle::State_Selected) != "MainUpLevel1Color");
        bar.setProperty("currentTabHighlighted", true);
        QCOMPARE(color(QStyle::State_Selected), "MainUpLevel1Color");
        QStyleOptionTab disabled = tabOption(QTabBar::RoundedNorth, QStyle::State_None);
        disabled.state &= ~QStyle::State_Enabled;
        QCOMPARE(drawn(QStyle::CE_TabBarTabLabel, disabled, &bar).at(0).pen,
                 "ForegroundDisabledBrushDisabled");
    }

    void applicationsColorATab()
    {
        const QTabBar bar;
        QStyleOptionTab tab = tabOption(QTabBar::RoundedNorth, QStyle::State_MouseOver);
        tab.palette = bar.palette();
        tab.palette.setColor(QPalette::WindowText, Qt::red);
        QCOMPARE(drawn(QStyle::CE_TabBarTabLabel, tab, &bar).at(0).pen, "#ff0000");
    }

    void selectedTextIsWidened()
    {
        QTabBar bar;
        const BaseStyle* style = qobject_cast<BaseStyle*>(QApplication::style());
        const auto gain = [&](QTabBar::Shape shape) {
            const auto tab = tabOption(shape, QStyle::State_Selected);
            const QRect own = style->subElementRect(QStyle::SE_TabBarTabText, &tab, &bar);
            const QRect common =
                style->QCommonStyle::subElementRect(QStyle::SE_TabBarTabText, &tab, &bar);
            return QMargins(common.left() - own.left(), common.top() - own.top(),
                            own.right() - common.right(), own.bottom() - common.bottom());
        };
        QCOMPARE(gain(QTabBar::TriangularSouth), QMargins(0, 0, 2, 0));
        QCOMPARE(gain(QTabBar::RoundedWest), QMargins(0, 2, 0, 0));
        QCOMPARE(gain(QTabBar::RoundedEast), QMargins(0, 0, 0, 2));
        bar.setProperty("currentTabHighlighted", true);
        QCOMPARE(gain(QTabBar::RoundedNorth), QMargins());
    }

    void closeButtonsStandAtTheFarEdge()
    {
        const QTabBar bar;
        const auto rect = [&](QTabBar::Shape shape, Qt::LayoutDirection direction) {
            QStyleOptionTab tab = tabOption(shape, QStyle::State_None);
            tab.direction = direction;
            tab.rightButtonSize = QSize(16, 16);
            return QApplication::style()->subElementRect(QStyle::SE_TabBarTabRightButton, &tab,
                                                         &bar);
        };
        QCOMPARE(rect(QTabBar::RoundedNorth, Qt::LeftToRight).right(), TabRect.right() - 2);
        QCOMPARE(rect(QTabBar::RoundedNorth, Qt::RightToLeft).left(), TabRect.left() + 2);
        QCOMPARE(rect(QTabBar::RoundedWest, Qt::LeftToRight).top(), TabRect.top() + 2);
        QCOMPARE(rect(QTabBar::RoundedEast, Qt::LeftToRight).bottom(), TabRect.bottom() - 2);
    }

    void stretchedBarsFillTheirSide()
    {
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            QTabWidget widget;
            widget.setLayoutDirection(direction);
            widget.setProperty("stretched", true);
            widget.addTab(new QWidget, QStringLiteral("Page"));
            widget.resize(300, 200);
            widget.show();
            QCOMPARE(widget.tabBar()->x(), 0);
            QCOMPARE(widget.tabBar()->width(), 300);
        }
    }
};

QTEST_MAIN(tst_Tabs)
#include "tst_Tabs.moc"
