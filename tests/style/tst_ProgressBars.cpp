#include "PaintCounter.h"
#include "StateSheet.h"

#include <QProgressBar>
#include <QtTest>

#include <limits>

using namespace StateSheet;

namespace {

/// What is filled of a bar that shows `value` of 0 to 100.
QRectF filled(int value, Qt::Orientation orientation, bool inverted,
              Qt::LayoutDirection direction = Qt::LeftToRight)
{
    Open<QProgressBar> bar;
    bar.setOrientation(orientation);
    bar.setInvertedAppearance(inverted);
    bar.setValue(value);
    auto option = optionOf<QStyleOptionProgressBar>(
        bar, orientation == Qt::Horizontal ? QSize(101, 21) : QSize(21, 101));
    option.direction = direction;
    return drawn(QStyle::CE_ProgressBarContents, option, &bar).value(0).rect;
}

} // namespace

class tst_ProgressBars : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void initTestCase() { StateSheet::applyProbeTheme(); }

    void states_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::newRow("horizontal") << Qt::Horizontal;
        QTest::newRow("vertical") << Qt::Vertical;
    }

    void states()
    {
        QFETCH(Qt::Orientation, orientation);
        Open<QProgressBar> bar;
        bar.setOrientation(orientation);
        bar.setValue(50);
        const QSize size = orientation == Qt::Horizontal ? QSize(101, 21) : QSize(21, 101);
        const QByteArray name = QByteArray("ProgressBars.") + QTest::currentDataTag();
        COMPARE_TRANSCRIPT(name,
                           sheetOf(QStyle::CE_ProgressBar,
                                   optionOf<QStyleOptionProgressBar>(bar, size), bar, {AtRest}));
    }

    void fillGrowsFromItsSide()
    {
        QVERIFY(filled(0, Qt::Horizontal, false).isNull());
        QCOMPARE(filled(25, Qt::Horizontal, false), QRectF(0.5, 0.5, 25, 20));
        QCOMPARE(filled(25, Qt::Horizontal, true), QRectF(75.5, 0.5, 25, 20));
        QCOMPARE(filled(25, Qt::Horizontal, false, Qt::RightToLeft), QRectF(75.5, 0.5, 25, 20));
        QCOMPARE(filled(25, Qt::Vertical, false), QRectF(0.5, 75.5, 20, 25));
        QCOMPARE(filled(25, Qt::Vertical, true), QRectF(0.5, 0.5, 20, 25));
    }

    void hugeRangesDoNotOverflow()
    {
        Open<QProgressBar> bar;
        bar.setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
        bar.setValue(0);
        const auto option = optionOf<QStyleOptionProgressBar>(bar, QSize(101, 21));
        const QRectF rect = drawn(QStyle::CE_ProgressBarContents, option, &bar).value(0).rect;
        QVERIFY(rect.width() > 45 && rect.width() < 55);
    }

    void onlyABusyBarInSightMoves()
    {
        QWidget window;
        auto* bar = new QProgressBar(&window);
        bar->setRange(0, 0);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        PaintCounter counter;
        QTRY_VERIFY(counter.paintsOf(bar) > 2);
        bar->setRange(0, 100);
        counter.settle();
        QTest::qWait(150);
        QCOMPARE(counter.all(), 0);
    }
};

QTEST_MAIN(tst_ProgressBars)
#include "tst_ProgressBars.moc"
