#include "StateSheet.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDateEdit>
#include <QtTest>

using namespace StateSheet;

namespace {

constexpr QSize Size(120, 24);

QStyleOptionComboBox optionOfBox(const Open<QComboBox>& box)
{
    return optionOf<QStyleOptionComboBox>(box, Size);
}

} // namespace

class tst_ComboBoxes : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void initTestCase() { StateSheet::applyProbeTheme(); }

    void states_data()
    {
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<bool>("value");
        QTest::newRow("plain") << QByteArray("none") << true;
        QTest::newRow("editable") << QByteArray("editable") << true;
        QTest::newRow("frameless") << QByteArray("frame") << false;
    }

    void states()
    {
        QFETCH(QByteArray, property);
        QFETCH(bool, value);
        Open<QComboBox> box;
        box.addItem(QStringLiteral("Text"));
        box.resize(Size);
        box.setProperty(property, value);
        const QStyleOptionComboBox option = optionOfBox(box);
        const QByteArray name = QByteArray("ComboBoxes.") + QTest::currentDataTag();
        COMPARE_TRANSCRIPT(
            name, sheetOf(QStyle::CC_ComboBox, option, box, {AtRest, Hovered, Pressed, Focused})
                      + "[label]\n"
                      + sheetOf(QStyle::CE_ComboBoxLabel, option, box, {AtRest, Hovered, Pressed}));
    }

    void sidesStayInBothDirections_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::newRow("left to right") << Qt::LeftToRight;
        QTest::newRow("right to left") << Qt::RightToLeft;
    }

    void sidesStayInBothDirections()
    {
        QFETCH(Qt::LayoutDirection, direction);
        Open<QComboBox> box;
        box.setLayoutDirection(direction);
        QStyleOptionComboBox option = optionOfBox(box);
        const auto rectOf = [&](QStyle::SubControl part) {
            return box.style()->subControlRect(QStyle::CC_ComboBox, &option, part, &box);
        };
        QCOMPARE(rectOf(QStyle::SC_ComboBoxArrow), QRect(100, 0, 18, 24));
        QCOMPARE(rectOf(QStyle::SC_ComboBoxEditField).right(), 96);
        option.editable = true;
        const QRect field = rectOf(QStyle::SC_ComboBoxEditField);
        QCOMPARE(field.right(), 98);
        QVERIFY(field.left() > 0 && field.left() < 8);
    }

    void popupIsAsWideAsItsLongestItem()
    {
        const QString text = QStringLiteral("An item that is very much longer than the box");
        QComboBox box;
        box.addItem(QStringLiteral("a"));
        box.setFixedWidth(60);
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        box.showPopup();
        QCOMPARE(box.view()->window()->width(), 60);
        box.hidePopup();
        box.addItem(text);
        box.showPopup();
        QVERIFY(box.view()->viewport()->width() >= box.fontMetrics().horizontalAdvance(text));
        box.hidePopup();
    }

    void placeholderIsDimmed()
    {
        Open<QComboBox> box;
        box.setPlaceholderText(QStringLiteral("Text"));
        auto option = optionOfBox(box);
        option.currentText = box.placeholderText();
        option.palette.setColor(QPalette::PlaceholderText, Qt::red);
        const auto shapes = drawn(QStyle::CE_ComboBoxLabel, option, &box);
        QCOMPARE(shapes.size(), 1);
        QCOMPARE(shapes.at(0).pen, "#ff0000");
    }
};

QTEST_MAIN(tst_ComboBoxes)
#include "tst_ComboBoxes.moc"
