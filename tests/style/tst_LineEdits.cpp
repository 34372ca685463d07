#include "StateSheet.h"

#include <QLineEdit>
#include <QtTest>

using namespace StateSheet;

class tst_LineEdits : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void initTestCase() { StateSheet::applyProbeTheme(); }

    void states_data()
    {
        QTest::addColumn<QByteArray>("property");
        for (const char* property : {"", "readOnly", "drawErrorIndicator"})
            QTest::newRow(*property ? property : "plain") << QByteArray(property);
    }

    void states()
    {
        QFETCH(QByteArray, property);
        Open<QLineEdit> edit;
        edit.setProperty(property, true);
        const QByteArray name = QByteArray("LineEdits.") + QTest::currentDataTag();
        COMPARE_TRANSCRIPT(name, sheetOf(QStyle::PE_PanelLineEdit,
                                         optionOf<QStyleOptionFrame>(edit, QSize(100, 28)), edit,
                                         {AtRest, Hovered, Focused}));
    }

    void applicationsOwnGroundIsKept()
    {
        Open<QLineEdit> edit;
        QPalette palette = edit.palette();
        palette.setColor(QPalette::Base, Qt::red);
        edit.setPalette(palette);
        const auto shapes = drawn(QStyle::PE_PanelLineEdit,
                                  optionOf<QStyleOptionFrame>(edit, QSize(100, 28)), &edit);
        QCOMPARE(shapes.at(0).brush, "#ff0000");
    }
};

QTEST_MAIN(tst_LineEdits)
#include "tst_LineEdits.moc"
