#include "StateSheet.h"

#include <QCheckBox>
#include <QRadioButton>
#include <QtTest>

using namespace StateSheet;

class tst_CheckBoxes : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void initTestCase() { StateSheet::applyProbeTheme(); }

    void indicators_data()
    {
        QTest::addColumn<QByteArray>("property");
        for (const char* property : {"", "switch", "drawErrorIndicator"})
            QTest::newRow(*property ? property : "plain") << QByteArray(property);
    }

    void indicators()
    {
        QFETCH(QByteArray, property);
        Open<QCheckBox> box;
        box.setProperty(property.isEmpty() ? "none" : property.constData(), true);
        const QStyle& style = *qApp->style();
        const QSize size(style.pixelMetric(QStyle::PM_IndicatorWidth, nullptr, &box),
                         style.pixelMetric(QStyle::PM_IndicatorHeight, nullptr, &box));
        const QByteArray name = QByteArray("CheckBoxes.") + QTest::currentDataTag();
        COMPARE_TRANSCRIPT(name, sheetOf(QStyle::PE_IndicatorCheckBox,
                                         optionOf<QStyleOptionButton>(box, size), box,
                                         {AtRest, Hovered, Pressed, Checked, Partly}));
    }

    void radioIndicator()
    {
        Open<QRadioButton> button;
        COMPARE_TRANSCRIPT("CheckBoxes.radio",
                           sheetOf(QStyle::PE_IndicatorRadioButton,
                                   optionOf<QStyleOptionButton>(button, QSize(16, 16)), button,
                                   {AtRest, Hovered, Pressed, Checked}));
    }

    void indicatorAndLabelShareTheBox()
    {
        Open<QCheckBox> box(QStringLiteral("Text"));
        auto option = optionOf<QStyleOptionButton>(box, QSize(100, 21));
        option.rect.translate(7, 3);
        const auto rectOf = [&](QStyle::SubElement element) {
            return box.style()->subElementRect(element, &option, &box);
        };
        QCOMPARE(rectOf(QStyle::SE_CheckBoxIndicator), QRect(7, 5, 16, 16));
        QCOMPARE(rectOf(QStyle::SE_CheckBoxContents), QRect(31, 3, 75, 21));
        option.direction = Qt::RightToLeft;
        QCOMPARE(rectOf(QStyle::SE_CheckBoxIndicator), QRect(91, 5, 16, 16));
        QCOMPARE(rectOf(QStyle::SE_CheckBoxContents), QRect(8, 3, 75, 21));
    }

    void focusMarkFitsAroundTheLabel()
    {
        QCheckBox box(QStringLiteral("Text"));
        QRadioButton radio(QStringLiteral("Text"));
        for (QAbstractButton* button :
             {static_cast<QAbstractButton*>(&box), static_cast<QAbstractButton*>(&radio)}) {
            button->resize(button->sizeHint());
            QStyleOptionButton option;
            option.initFrom(button);
            option.text = button->text();
            const bool isRadio = button == &radio;
            const QRect contents = button->style()->subElementRect(
                isRadio ? QStyle::SE_RadioButtonContents : QStyle::SE_CheckBoxContents, &option,
                button);
            QVERIFY(contents.width() > option.fontMetrics.horizontalAdvance(option.text));
        }
    }
};

QTEST_MAIN(tst_CheckBoxes)
#include "tst_CheckBoxes.moc"
