#include "StateSheet.h"

#include <QScrollBar>
#include <QtTest>

using namespace StateSheet;

/// Declares what `QWidget` has read-only.
class MinimizedScrollBar : public QScrollBar
{
    Q_OBJECT
    Q_PROPERTY(bool minimized READ minimized CONSTANT)

public:
    using QScrollBar::QScrollBar;

    bool minimized() const { return true; }
};

namespace {

template <class Bar>
QStyleOptionSlider optionOfBar(Open<Bar>& bar)
{
    bar.setRange(0, 100);
    bar.setPageStep(100);
    const QSize size = bar.orientation() == Qt::Vertical ? QSize(14, 120) : QSize(120, 14);
    auto option = optionOf<QStyleOptionSlider>(bar, size);
    option.activeSubControls = QStyle::SC_ScrollBarSlider;
    return option;
}

} // namespace

class tst_ScrollBars : public QObject
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
        Open<QScrollBar> bar(orientation);
        const QStyleOptionSlider option = optionOfBar(bar);
        QByteArray name = QByteArray("ScrollBars.") + QTest::currentDataTag();
        COMPARE_TRANSCRIPT(name, sheetOf(QStyle::CC_ScrollBar, option, bar, {AtRest, Hovered}));

        Open<MinimizedScrollBar> minimized(orientation);
        name += "-minimized";
        COMPARE_TRANSCRIPT(name, sheetOf(QStyle::CC_ScrollBar, optionOfBar(minimized), minimized,
                                         {AtRest, Hovered}));
    }

    void minimizedBarIsAllSlider()
    {
        Open<MinimizedScrollBar> bar(Qt::Vertical);
        const QStyleOptionSlider option = optionOfBar(bar);
        const auto rectOf = [&](QStyle::SubControl part) {
            return bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, part, &bar);
        };
        for (const auto part : {QStyle::SC_ScrollBarAddLine, QStyle::SC_ScrollBarSubLine,
                                QStyle::SC_ScrollBarAddPage, QStyle::SC_ScrollBarSubPage})
            QVERIFY(rectOf(part).isEmpty());
        QCOMPARE(rectOf(QStyle::SC_ScrollBarGroove), option.rect);
    }

    void barWithoutRangeHasNoSlider()
    {
        Open<QScrollBar> bar(Qt::Horizontal);
        QStyleOptionSlider option = optionOfBar(bar);
        option.maximum = option.minimum;
        for (const Shape& shape : drawn(QStyle::CC_ScrollBar, option, &bar))
            QVERIFY(shape.kind != Shape::RoundedRect);
    }
};

QTEST_MAIN(tst_ScrollBars)
#include "tst_ScrollBars.moc"
