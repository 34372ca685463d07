#include "BaseStyle.h"
#include "ProbeTheme.h"
#include "States.h"

#include <QApplication>
#include <QToolTip>
#include <QtTest>

using namespace BRELK;

// Title bars, docks, frames, cards and what else windows are made of.

namespace {

/// A card around one of its parts.
struct Card
{
    QWidget card;
    QWidget* part = new QWidget(&card);

    explicit Card(const char* property)
    {
        part->resize(100, 40);
        part->setProperty(property, true);
    }

    QVector<Shape> shapes() const
    {
        QStyleOption option;
        option.initFrom(part);
        return drawn(QStyle::PE_Widget, option, part);
    }
};

} // namespace

class tst_Windows : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void initTestCase() { applyProbeStyle(); }

    void parts()
    {
        const QVector<PaintedState> states = {{"enabled"}, {"disabled", {}, QStyle::State_Enabled}};
        QByteArray text;
        for (const QStyle::PrimitiveElement element :
             {QStyle::PE_FrameWindow, QStyle::PE_FrameGroupBox, QStyle::PE_PanelStatusBar,
              QStyle::PE_PanelTipLabel})
            text += transcriptOfStates(element, states);
        for (const QStyle::ControlElement element :
             {QStyle::CE_ToolBoxTabShape, QStyle::CE_RubberBand, QStyle::CE_ShapedFrame})
            text += transcriptOfStates(element, states);
        text += transcriptOfStates(QStyle::CE_Splitter, states, QRect(0, 0, 6, 100));
        COMPARE_TRANSCRIPT("Windows.parts", text);
    }

    void titleBarButtons()
    {
        const StyleOptions::Sample sample = StyleOptions::sampleFor(QStyle::CC_TitleBar);
        auto& bar = static_cast<QStyleOptionTitleBar&>(*sample.option);
        bar.rect = QRect(0, 0, 300, 28);
        QByteArray text;
        for (const Qt::WindowState state :
             {Qt::WindowNoState, Qt::WindowMinimized, Qt::WindowMaximized, Qt::WindowActive}) {
            bar.titleBarState = state == Qt::WindowActive ? int(QStyle::State_Active) : int(state);
            text += "# window state " + QByteArray::number(int(state)) + '\n'
                    + transcriptOf(drawn(QStyle::CC_TitleBar, bar, sample.widget.get()));
        }
        COMPARE_TRANSCRIPT("Windows.titleBar", text);
    }

    void activeCaptionsAreReadable()
    {
        const StyleOptions::Sample sample = StyleOptions::sampleFor(QStyle::CC_TitleBar);
        auto& bar = static_cast<QStyleOptionTitleBar&>(*sample.option);
        bar.rect = QRect(0, 0, 300, 28);
        bar.titleBarState = int(QStyle::State_Active);
        bar.subControls = QStyle::SC_TitleBarLabel;
        const auto hasBacking = [&](const QColor& light, const QColor& window) {
            bar.palette.setColor(QPalette::Light, light);
            bar.palette.setColor(QPalette::Window, window);
            bool found = false;
            for (const Shape& shape : drawn(QStyle::CC_TitleBar, bar, sample.widget.get()))
                found = found || shape.brush == "ButtonDefaultBackgroundBrush";
            return found;
        };
        QVERIFY(hasBacking(Qt::white, Qt::black));
        QVERIFY(hasBacking(Qt::black, Qt::black));
        QVERIFY(!hasBacking(Qt::black, Qt::white));
    }

    void focusMarks()
    {
        QWidget widget;
        QStyleOptionFocusRect option;
        option.rect = QRect(0, 0, 40, 20);
        option.palette = ProbeTheme::palette();
        option.state = QStyle::State_None;
        QVERIFY(drawn(QStyle::PE_FrameFocusRect, option, &widget).isEmpty());
        option.state = QStyle::State_KeyboardFocusChange;
        COMPARE_TRANSCRIPT("Windows.focus",
                           transcriptOf(drawn(QStyle::PE_FrameFocusRect, option, &widget)));
        widget.setProperty("hideFocusRect", true);
        QVERIFY(drawn(QStyle::PE_FrameFocusRect, option, &widget).isEmpty());
    }

    void errorToolTipsHaveADangerBorder()
    {
        const StyleOptions::Sample sample = StyleOptions::sampleFor(QStyle::PE_PanelTipLabel);
        QToolTip::showText({}, QStringLiteral("<p class='errorTooltip'>Wrong</p>"));
        QCOMPARE(drawn(QStyle::PE_PanelTipLabel, *sample.option, nullptr).at(0).pen,
                 "StatusDangerColor");
        QToolTip::hideText();
    }

    void cardsAreRoundAtTheirEnds()
    {
        Card header("CardWidgetBase_Header");
        QCOMPARE(header.shapes().at(0).squareCorners, 12);
        QCOMPARE(header.shapes().at(0).brush, "BackgroundUpLevel1Brush");
        header.card.setProperty("invertedAppearance", true);
        QCOMPARE(header.shapes().at(0).squareCorners, 3);
        header.card.setProperty("CardWidget_NoCornerRadius", true);
        QCOMPARE(header.shapes().at(0).kind, Shape::Rect);

        Card contents("CardWidgetBase_Contents");
        QCOMPARE(contents.shapes().at(0).squareCorners, 0);
        contents.card.setProperty("headerVisible", true);
        QCOMPARE(contents.shapes().at(0).squareCorners, 3);
        contents.card.setProperty("footerVisible", true);
        QCOMPARE(contents.shapes().at(0).kind, Shape::Rect);
    }

    void borderPalettes()
    {
        const auto* style = qobject_cast<BaseStyle*>(QApplication::style());
        const QPalette palette = ProbeTheme::palette();
        const QPalette shade = style->generateShadeBorderPalette(palette);
        QCOMPARE(shade.light().color(), palette.light().color().lighter(115));
        QCOMPARE(shade.dark().color(), palette.dark().color().darker(115));
        const QPalette win = style->generateWinBorderPalette(palette);
        QCOMPARE(win.midlight().color(), palette.midlight().color().darker(115));
        QCOMPARE(win.dark().color(), palette.dark().color().lighter(115));
    }
};

QTEST_MAIN(tst_Windows)
#include "tst_Windows.moc"
