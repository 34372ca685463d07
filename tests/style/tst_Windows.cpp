#include "StateSheet.h"

// Title bars, tool bars, frames and what else windows are made of: what their looks do not tell.

using namespace StateSheet;

class tst_Windows : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void initTestCase() { applyProbeTheme(); }

    void errorToolTipsHaveADangerBorder()
    {
        const Sample sample = StyleOptions::sampleNamed("PE_PanelTipLabel");
        QToolTip::showText({}, QStringLiteral("<p class='errorTooltip'>Wrong</p>"));
        QVERIFY(drawn(QStyle::PE_PanelTipLabel, *sample.option).contains("pen StatusDangerColor"));
        QToolTip::hideText();
    }

    void styleSheetsLeaveToolBoxLabelsToTheStyle()
    {
        QToolBox box;
        box.addItem(new QWidget, ProbeTheme::pixmap(), {});
        box.setStyleSheet(QStringLiteral("QLabel { color: red; }"));
        box.resize(200, 100);
        box.show();
        const QImage image = box.grab(QRect(0, 0, 200, 40)).toImage();
        QVERIFY(ProbeTheme::nameOf(image.pixelColor(18, 20)).endsWith("ButtonText"));
    }
};

QTEST_MAIN(tst_Windows)
#include "tst_Windows.moc"
