#include "StateSheet.h"

#include <QSlider>
#include <QtTest>

#include <limits>

using namespace StateSheet;

namespace {

QStyleOptionSlider optionOfSlider(const Open<QSlider>& slider)
{
    const bool horizontal = slider.orientation() == Qt::Horizontal;
    return optionOf<QStyleOptionSlider>(slider, horizontal ? QSize(120, 28) : QSize(28, 120));
}

QRect partOf(const Open<QSlider>& slider, QStyle::SubControl part)
{
    const QStyleOptionSlider option = optionOfSlider(slider);
    return slider.style()->subControlRect(QStyle::CC_Slider, &option, part, &slider);
}

} // namespace

class tst_Sliders : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void initTestCase() { StateSheet::applyProbeTheme(); }

    void states_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::addColumn<bool>("inverted");
        QTest::addColumn<QByteArray>("property");
        QTest::newRow("plain") << Qt::Horizontal << false << QByteArray("none");
        QTest::newRow("highlighted") << Qt::Horizontal << false << QByteArray("slider_highlighted");
        QTest::newRow("inverted") << Qt::Horizontal << true << QByteArray("slider_highlighted");
        QTest::newRow("contrast") << Qt::Horizontal << false << QByteArray("slider_high_contrast");
        QTest::newRow("upright") << Qt::Vertical << false << QByteArray("slider_highlighted");
    }

    void states()
    {
        QFETCH(Qt::Orientation, orientation);
        QFETCH(bool, inverted);
        QFETCH(QByteArray, property);
        Open<QSlider> slider(orientation);
        slider.setRange(0, 4);
        slider.setValue(1);
        slider.setInvertedAppearance(inverted);
        slider.setTickPosition(QSlider::TicksBelow);
        slider.setTickInterval(2);
        slider.setProperty(property, true);
        const QByteArray name = QByteArray("Sliders.") + QTest::currentDataTag();
        COMPARE_TRANSCRIPT(
            name, sheetOf(QStyle::CC_Slider, optionOfSlider(slider), slider, {AtRest, Focused}));
    }

    void grooveAndHandleShareAnAxis()
    {
        Open<QSlider> slider(Qt::Horizontal);
        QCOMPARE(partOf(slider, QStyle::SC_SliderHandle).size(), QSize(16, 16));
        QCOMPARE(partOf(slider, QStyle::SC_SliderHandle).top(), 6);
        QCOMPARE(partOf(slider, QStyle::SC_SliderGroove), QRect(0, 12, 120, 4));
        slider.setMinimumHeight(24);
        slider.setProperty("rangeSlider", true);
        QCOMPARE(partOf(slider, QStyle::SC_SliderHandle).size(), QSize(16, 24));
        QCOMPARE(partOf(slider, QStyle::SC_SliderGroove).height(), 24);
    }

    void ticksHaveRoomBesideTheHandle()
    {
        for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
            QSlider slider(orientation);
            slider.setTickPosition(QSlider::TicksBothSides);
            const QSize size = slider.sizeHint();
            QCOMPARE(orientation == Qt::Horizontal ? size.height() : size.width(), 28);
        }
    }

    void uncountableTicksAreLeftOut()
    {
        Open<QSlider> slider(Qt::Horizontal);
        slider.setRange(0, std::numeric_limits<int>::max());
        slider.setTickPosition(QSlider::TicksBelow);
        slider.setTickInterval(1);
        QVERIFY(drawn(QStyle::CC_Slider, optionOfSlider(slider), &slider).size() < 5);
    }
};

QTEST_MAIN(tst_Sliders)
#include "tst_Sliders.moc"
