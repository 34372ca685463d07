#include "StateSheet.h"

#include <QSpinBox>
#include <QtTest>

using namespace StateSheet;

namespace {

QStyleOptionSpinBox optionOfBox(const Open<QSpinBox>& box)
{
    return optionOf<QStyleOptionSpinBox>(box, QSize(100, 24));
}

QByteArray paintedAt(const Open<QSpinBox>& box, QStyle::SubControl active, QStyle::State state)
{
    QStyleOptionSpinBox option = optionOfBox(box);
    option.activeSubControls = active;
    option.state |= state;
    return transcriptOf(drawn(QStyle::CC_SpinBox, option, &box));
}

} // namespace

class tst_SpinBoxes : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void initTestCase() { StateSheet::applyProbeTheme(); }

    void states_data()
    {
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<QVariant>("value");
        QTest::newRow("plain") << QByteArray("none") << QVariant(true);
        QTest::newRow("signs") << QByteArray("buttonSymbols")
                               << QVariant(int(QAbstractSpinBox::PlusMinus));
        QTest::newRow("error") << QByteArray("drawErrorIndicator") << QVariant(true);
        QTest::newRow("frameless") << QByteArray("frame") << QVariant(false);
    }

    void states()
    {
        QFETCH(QByteArray, property);
        QFETCH(QVariant, value);
        Open<QSpinBox> box;
        box.setProperty(property, value);
        box.resize(100, 24);
        box.setValue(50);
        const QByteArray name = QByteArray("SpinBoxes.") + QTest::currentDataTag();
        COMPARE_TRANSCRIPT(name,
                           sheetOf(QStyle::CC_SpinBox, optionOfBox(box), box, {AtRest, Focused})
                               + "[upper button hovered]\n"
                               + paintedAt(box, QStyle::SC_SpinBoxUp, QStyle::State_MouseOver)
                               + "[lower button pressed]\n"
                               + paintedAt(box, QStyle::SC_SpinBoxDown,
                                           QStyle::State_MouseOver | QStyle::State_Sunken));
    }

    void partsHaveTheirPlaces()
    {
        Open<QSpinBox> box;
        QStyleOptionSpinBox option = optionOfBox(box);
        const auto rectOf = [&](QStyle::SubControl part) {
            return box.style()->subControlRect(QStyle::CC_SpinBox, &option, part, &box);
        };
        QCOMPARE(rectOf(QStyle::SC_SpinBoxUp), QRect(85, 0, 14, 12));
        QCOMPARE(rectOf(QStyle::SC_SpinBoxDown), QRect(85, 12, 14, 11));
        QCOMPARE(rectOf(QStyle::SC_SpinBoxEditField), QRect(1, 1, 84, 22));
        option.direction = Qt::RightToLeft;
        QCOMPARE(rectOf(QStyle::SC_SpinBoxUp), QRect(1, 0, 14, 12));
        QCOMPARE(rectOf(QStyle::SC_SpinBoxEditField), QRect(15, 1, 84, 22));

        option.buttonSymbols = QAbstractSpinBox::NoButtons;
        QCOMPARE(rectOf(QStyle::SC_SpinBoxUp), QRect());
        QCOMPARE(rectOf(QStyle::SC_SpinBoxDown), QRect());
        option.direction = Qt::LeftToRight;
        QCOMPARE(rectOf(QStyle::SC_SpinBoxEditField), QRect(1, 1, 100, 22));
    }

    void buttonThatCannotStepIsDisabledAlone()
    {
        Open<QSpinBox> box;
        box.setValue(box.maximum());
        QByteArrayList arrows;
        for (const Shape& shape : drawn(QStyle::CC_SpinBox, optionOfBox(box), &box))
            if (shape.kind == Shape::Polygon)
                arrows.append(shape.brush);
        QCOMPARE(arrows.size(), 2);
        QVERIFY(arrows.at(0) != arrows.at(1));
    }
};

QTEST_MAIN(tst_SpinBoxes)
#include "tst_SpinBoxes.moc"
