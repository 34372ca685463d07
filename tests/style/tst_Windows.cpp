#include "StateSheet.h"

// Title bars, tool bars, frames and what else windows are made of: what their looks do not tell.

using namespace StateSheet;

class tst_Windows : public QObject
{
    Q_OBJECT

private:
    BRELK::BaseStyle* m_style = nullptr;

private Q_SLOTS:

    void initTestCase() { m_style = applyProbeTheme(); }

    void activeCaptionsAreReadable()
    {
        const Sample sample = StyleOptions::sampleNamed("CC_TitleBar");
        auto& bar = static_cast<QStyleOptionTitleBar&>(*sample.option);
        bar.rect = QRect(0, 0, 300, 28);
        bar.titleBarState = int(QStyle::State_Active);
        const auto hasBacking = [&](const QColor& light, const QColor& window) {
            bar.palette.setColor(QPalette::Light, light);
            bar.palette.setColor(QPalette::Window, window);
            return drawn(QStyle::CC_TitleBar, bar, sample.widget.get())
                .contains("pen palette.Highlight");
        };
        QVERIFY(hasBacking(Qt::white, Qt::black));
        QVERIFY(hasBacking(Qt::black, Qt::black));
        QVERIFY(!hasBacking(Qt::black, Qt::white));
    }

    void errorToolTipsHaveADangerBorder()
    {
        const Sample sample = StyleOptions::sampleNamed("PE_PanelTipLabel");
        QToolTip::showText({}, QStringLiteral("<p class='errorTooltip'>Wrong</p>"));
        QVERIFY(drawn(QStyle::PE_PanelTipLabel, *sample.option).contains("pen StatusDangerColor"));
        QToolTip::hideText();
    }

    void menuMarksHaveRoomOfTheirOwn()
    {
        QToolButton button;
        QStyleOptionToolButton option;
        option.initFrom(&button);
        option.text = QStringLiteral("Crop");
        option.toolButtonStyle = Qt::ToolButtonTextOnly;
        const auto width = [&] {
            return m_style->sizeFromContents(QStyle::CT_ToolButton, &option, {40, 16}, &button)
                .width();
        };
        const int without = width();
        option.features = QStyleOptionToolButton::HasMenu;
        QVERIFY(width() > without);
        button.setProperty("no menu arrow", true);
        QCOMPARE(width(), without);
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

    void borderPalettes()
    {
        const QPalette palette = ProbeTheme::palette();
        const QPalette shade = m_style->generateShadeBorderPalette(palette);
        QCOMPARE(shade.light().color(), palette.light().color().lighter(115));
        QCOMPARE(shade.dark().color(), palette.dark().color().darker(115));
        const QPalette win = m_style->generateWinBorderPalette(palette);
        QCOMPARE(win.midlight().color(), palette.midlight().color().darker(115));
        QCOMPARE(win.dark().color(), palette.dark().color().lighter(115));
    }
};

QTEST_MAIN(tst_Windows)
#include "tst_Windows.moc"
