#include "PaintCounter.h"
#include "StateSheet.h"

#include <limits>

// Buttons, inputs, sliders and bars: what their looks do not tell.

using namespace StateSheet;

namespace {

constexpr QSize BoxSize(120, 24);

} // namespace

class tst_Inputs : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void initTestCase() { applyProbeTheme(); }

    void labelsFitIntoTheirSizeHint()
    {
        const auto room = [](const QAbstractButton& button, QStyle::SubElement contents) {
            QStyleOptionButton option;
            option.initFrom(&button);
            option.rect.setSize(button.sizeHint());
            return button.style()->subElementRect(contents, &option, &button).width()
                   - option.fontMetrics.horizontalAdvance(button.text());
        };
        QVERIFY(room(QCheckBox(QStringLiteral("Text")), QStyle::SE_CheckBoxContents) > 0);
        QVERIFY(room(QRadioButton(QStringLiteral("Text")), QStyle::SE_RadioButtonContents) > 0);
    }

    void inputsAreEquallyHighInEveryFont()
    {
        QLineEdit line;
        QComboBox box;
        QDateEdit calendar;
        calendar.setCalendarPopup(true);
        QSpinBox spin;
        QDateTimeEdit date;
        for (const int points : {9, 14, 16}) {
            QFont font = qApp->font();
            font.setPointSize(points);
            // Under a style sheet editors do not take the font of the input they are in.
            for (const QString& sheet : {QStringLiteral("QHeaderView { color: red }"), QString()}) {
                qApp->setStyleSheet(sheet);
                line.setFont(font);
                for (QWidget* input :
                     {static_cast<QWidget*>(&box), static_cast<QWidget*>(&calendar),
                      static_cast<QWidget*>(&spin), static_cast<QWidget*>(&date)}) {
                    input->setFont(font);
                    QCOMPARE(input->sizeHint().height(), line.sizeHint().height());
                }
            }
        }
    }

    void popupIsAsWideAsItsLongestItem()
    {
        const QString text = QStringLiteral("An item that is very much longer than the box");
        QComboBox box;
        box.addItem(QStringLiteral("a"));
        box.setFixedWidth(60);
        box.show();
        box.showPopup();
        QCOMPARE(box.view()->window()->width(), 60);
        box.hidePopup();
        box.addItem(text);
        box.showPopup();
        QVERIFY(box.view()->viewport()->width() >= box.fontMetrics().horizontalAdvance(text));
        box.hidePopup();
    }

    void bordersFillWholePixelsAtAnyScale()
    {
        constexpr int AlmostWhite = 240;
        QLineEdit field;
        for (const qreal scale : {1.0, 1.25, 1.5, 1.75, 2.0}) {
            for (const QPoint& place : {QPoint(0, 0), QPoint(1, 1), QPoint(2, 3)}) {
                QImage image(QSize(160, 100), QImage::Format_RGB32);
                image.setDevicePixelRatio(scale);
                image.fill(Qt::white);
                QStyleOptionFrame option;
                option.initFrom(&field);
                option.rect = QRect(place, QSize(41, 27));
                option.lineWidth = 1;
                QPainter painter(&image);
                field.style()->drawPrimitive(QStyle::PE_FrameLineEdit, &option, &painter, &field);
                painter.end();
                int borderPixels = 0;
                const int y = qRound((place.y() + 14) * scale);
                for (int x = 0; x < image.width(); ++x)
                    borderPixels += qRed(image.pixel(x, y)) < AlmostWhite;
                QCOMPARE(borderPixels, 2 * int(scale));
            }
        }
    }

    void arrowsNeedAWidgetThatWantsThem()
    {
        QStyleOption option;
        option.rect = QRect(0, 0, 16, 16);
        QWidget widget;
        QCOMPARE(drawn(QStyle::PE_IndicatorArrowDown, option), "");
        QVERIFY(!drawn(QStyle::PE_IndicatorArrowDown, option, &widget).isEmpty());
        widget.setProperty("no menu arrow", true);
        QCOMPARE(drawn(QStyle::PE_IndicatorArrowDown, option, &widget), "");
        option.state |= QStyle::State_Children; // a branch draws its arrow itself
        QVERIFY(!drawn(QStyle::PE_IndicatorBranch, option).isEmpty());
    }

    void rangesHaveNoLimits()
    {
        constexpr int Huge = std::numeric_limits<int>::max();
        Open<QSlider> slider(Qt::Horizontal);
        slider.setRange(0, Huge);
        slider.setTickPosition(QSlider::TicksBelow);
        slider.setTickInterval(1);
        QVERIFY(drawn(QStyle::CC_Slider, optionOf<QStyleOptionSlider>(slider, BoxSize), &slider)
                    .count('\n')
                < 10);

        Open<QDial> dial;
        dial.setNotchesVisible(true);
        auto notched = optionOf<QStyleOptionSlider>(dial, {60, 60});
        notched.minimum = 10;
        notched.maximum = 0;
        notched.tickInterval = -1; // from which the toolkit counts less than no notches
        QVERIFY(!drawn(QStyle::CC_Dial, notched, &dial).isEmpty());

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

QTEST_MAIN(tst_Inputs)
#include "tst_Inputs.moc"
