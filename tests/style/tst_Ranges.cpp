#include "PaintCounter.h"
#include "StateSheet.h"

#include <limits>

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

QSize oriented(const QSize& size, Qt::Orientation orientation)
{
    return orientation == Qt::Horizontal ? size : size.transposed();
}

QStyleOptionSlider optionOfSlider(const Open<QSlider>& slider)
{
    return optionOf<QStyleOptionSlider>(slider, oriented({120, 28}, slider.orientation()));
}

QByteArray sliderSheet(const char* property, bool inverted = false,
                       Qt::Orientation orientation = Qt::Horizontal)
{
    Open<QSlider> slider(orientation);
    slider.setRange(0, 4);
    slider.setValue(1);
    slider.setInvertedAppearance(inverted);
    slider.setTickPosition(QSlider::TicksBelow);
    slider.setTickInterval(2);
    slider.setProperty(property, true);
    return sheetOf(QStyle::CC_Slider, optionOfSlider(slider), slider, {AtRest, Focused});
}

template <class Bar>
QByteArray scrollBarSheet(Qt::Orientation orientation)
{
    Open<Bar> bar(orientation);
    bar.setRange(0, 100);
    bar.setPageStep(100);
    auto option = optionOf<QStyleOptionSlider>(bar, oriented({120, 14}, orientation));
    option.activeSubControls = QStyle::SC_ScrollBarSlider;
    return sheetOf(QStyle::CC_ScrollBar, option, bar, {AtRest, Hovered});
}

QByteArray progressBarSheet(Qt::Orientation orientation)
{
    Open<QProgressBar> bar;
    bar.setOrientation(orientation);
    bar.setValue(50);
    return sheetOf(QStyle::CE_ProgressBar,
                   optionOf<QStyleOptionProgressBar>(bar, oriented({101, 21}, orientation)), bar,
                   {AtRest});
}

/// What is filled of progress bars, growing from either side.
QByteArray fillings()
{
    QByteArray text;
    for (const auto orientation : {Qt::Horizontal, Qt::Vertical})
        for (const bool inverted : {false, true})
            for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
                Open<QProgressBar> bar;
                bar.setOrientation(orientation);
                bar.setInvertedAppearance(inverted);
                bar.setValue(25);
                auto option =
                    optionOf<QStyleOptionProgressBar>(bar, oriented({101, 21}, orientation));
                option.direction = direction;
                text += drawn(QStyle::CE_ProgressBarContents, option, &bar);
            }
    return text;
}

} // namespace

class tst_Ranges : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void initTestCase() { applyProbeTheme(); }

    void states_data()
    {
        QTest::addColumn<QByteArray>("sheet");
        QTest::newRow("Sliders.plain") << sliderSheet("none");
        QTest::newRow("Sliders.highlighted") << sliderSheet("slider_highlighted");
        QTest::newRow("Sliders.inverted") << sliderSheet("slider_highlighted", true);
        QTest::newRow("Sliders.contrast") << sliderSheet("slider_high_contrast");
        QTest::newRow("Sliders.upright") << sliderSheet("slider_highlighted", false, Qt::Vertical);
        QTest::newRow("ScrollBars.horizontal") << scrollBarSheet<QScrollBar>(Qt::Horizontal);
        QTest::newRow("ScrollBars.vertical") << scrollBarSheet<QScrollBar>(Qt::Vertical);
        QTest::newRow("ScrollBars.horizontal-minimized")
            << scrollBarSheet<MinimizedScrollBar>(Qt::Horizontal);
        QTest::newRow("ScrollBars.vertical-minimized")
            << scrollBarSheet<MinimizedScrollBar>(Qt::Vertical);
        QTest::newRow("ProgressBars.horizontal") << progressBarSheet(Qt::Horizontal);
        QTest::newRow("ProgressBars.vertical") << progressBarSheet(Qt::Vertical);
        QTest::newRow("ProgressBars.fillings") << fillings();
    }

    void states()
    {
        QFETCH(QByteArray, sheet);
        COMPARE_TRANSCRIPT(QTest::currentDataTag(), sheet);
    }

    void partsOfSpecialKinds()
    {
        Open<QSlider> slider(Qt::Horizontal);
        slider.setMinimumHeight(24);
        slider.setProperty("rangeSlider", true);
        QCOMPARE(partsOf(QStyle::CC_Slider, optionOfSlider(slider), slider),
                 "CC_Slider 1: 0,2 120x24\nCC_Slider 2: 0,2 16x24\n");

        Open<MinimizedScrollBar> bar(Qt::Vertical);
        bar.setRange(0, 100);
        QCOMPARE(
            partsOf(QStyle::CC_ScrollBar, optionOf<QStyleOptionSlider>(bar, QSize(14, 120)), bar),
            "CC_ScrollBar 40: 0,1 14x58\nCC_ScrollBar 80: 0,0 14x120\n");
    }

    void ticksHaveRoomBesideTheHandle()
    {
        for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
            QSlider slider(orientation);
            slider.setTickPosition(QSlider::TicksBothSides);
            QCOMPARE(oriented(slider.sizeHint(), orientation).height(), 28);
        }
    }

    void rangesHaveNoLimits()
    {
        constexpr int Huge = std::numeric_limits<int>::max();
        Open<QSlider> slider(Qt::Horizontal);
        slider.setRange(0, Huge);
        slider.setTickPosition(QSlider::TicksBelow);
        slider.setTickInterval(1);
        QVERIFY(drawn(QStyle::CC_Slider, optionOfSlider(slider), &slider).count('\n') < 5);

        Open<QScrollBar> scrollBar(Qt::Horizontal);
        scrollBar.setRange(0, 0);
        const auto scroll = optionOf<QStyleOptionSlider>(scrollBar, QSize(120, 14));
        QVERIFY(!drawn(QStyle::CC_ScrollBar, scroll, &scrollBar).contains("rounded"));

        Open<QProgressBar> bar;
        bar.setRange(std::numeric_limits<int>::min(), Huge);
        bar.setValue(0);
        const auto option = optionOf<QStyleOptionProgressBar>(bar, QSize(101, 21));
        QVERIFY(drawn(QStyle::CE_ProgressBarContents, option, &bar).contains(" 0.5,0.5 50x20 "));
    }

    void onlyABusyBarInSightMoves()
    {
        QWidget window;
        auto* bar = new QProgressBar(&window);
        bar->setRange(0, 0);
        window.show();
        PaintCounter counter;
        QTRY_VERIFY(counter.paintsOf(bar) > 2);
        bar->setRange(0, 100);
        counter.settle();
        QTest::qWait(150);
        QCOMPARE(counter.all(), 0);
    }
};

QTEST_MAIN(tst_Ranges)
#include "tst_Ranges.moc"
