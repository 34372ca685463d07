#include "StateSheet.h"

using namespace StateSheet;

// Title bars, tool bars, frames, cards and what else windows are made of.

namespace {

constexpr State Enabled{"enabled"};

QByteArray parts()
{
    QByteArray text;
    for (const auto element : {QStyle::PE_FrameWindow, QStyle::PE_FrameGroupBox,
                               QStyle::PE_PanelStatusBar, QStyle::PE_PanelTipLabel})
        text += sampleSheet(element, {Enabled, Disabled});
    for (const auto element :
         {QStyle::CE_ToolBoxTabShape, QStyle::CE_RubberBand, QStyle::CE_ShapedFrame})
        text += sampleSheet(element, {Enabled, Disabled});
    return text + sampleSheet(QStyle::CE_Splitter, {Enabled, Disabled}, QRect(0, 0, 6, 100));
}

QPixmap referencePixmap()
{
    QPixmap pixmap(16, 16);
    pixmap.fill(QColor(0xE5, 0xEE, 0xF4));
    return pixmap;
}

QByteArray toolBoxLabels()
{
    const Sample sample = StyleOptions::sampleNamed("CE_ToolBoxTabLabel");
    auto& tab = static_cast<QStyleOptionToolBox&>(*sample.option);
    tab.rect = QRect(0, 0, 200, 40);
    tab.text = QStringLiteral("Text");
    tab.icon = referencePixmap();
    QByteArray text = drawn(QStyle::CE_ToolBoxTabLabel, tab, sample.widget.get());
    tab.direction = Qt::RightToLeft;
    return text + "# right to left\n" + drawn(QStyle::CE_ToolBoxTabLabel, tab, sample.widget.get());
}

QByteArray toolBarParts()
{
    const QVector<State> states{{"upright", {}, QStyle::State_Horizontal},
                                {"lying", QStyle::State_Horizontal}};
    const QRect rect(0, 0, 24, 24);
    return sampleSheet(QStyle::PE_IndicatorToolBarHandle, states, rect)
           + sampleSheet(QStyle::PE_IndicatorToolBarSeparator, states, rect)
           + sampleSheet(QStyle::CE_ToolBar, {{"floating"}});
}

QByteArray titleBars()
{
    const Sample sample = StyleOptions::sampleNamed("CC_TitleBar");
    auto& bar = static_cast<QStyleOptionTitleBar&>(*sample.option);
    bar.rect = QRect(0, 0, 300, 28);
    QByteArray text;
    for (const Qt::WindowState state :
         {Qt::WindowNoState, Qt::WindowMinimized, Qt::WindowMaximized, Qt::WindowActive}) {
        bar.titleBarState = state == Qt::WindowActive ? int(QStyle::State_Active) : int(state);
        text += "# window state " + QByteArray::number(int(state)) + '\n'
                + drawn(QStyle::CC_TitleBar, bar, sample.widget.get());
    }
    return text;
}

/// The parts of cards with all combinations of these properties of theirs.
QByteArray cards()
{
    const QByteArrayList properties{"headerVisible", "footerVisible", "invertedAppearance",
                                    "CardWidget_NoCornerRadius"};
    QByteArray text;
    for (const char* name :
         {"CardWidgetBase_Header", "CardWidgetBase_Contents", "CardWidgetBase_Footer"})
        for (int combination = 0; combination < 1 << properties.size(); ++combination) {
            QWidget card;
            QWidget part(&card);
            part.resize(100, 40);
            part.setProperty(name, true);
            text += QByteArray("# ") + name;
            for (int i = 0; i < properties.size(); ++i)
                if (combination & 1 << i) {
                    card.setProperty(properties.at(i), true);
                    text += ' ' + properties.at(i);
                }
            QStyleOption option;
            option.initFrom(&part);
            text += '\n' + drawn(QStyle::PE_Widget, option, &part);
        }
    return text;
}

/// Tool buttons of each kind in the states that show which of their parts is meant.
QByteArray toolButtons()
{
    constexpr QStyle::State Raised = QStyle::State_AutoRaise | QStyle::State_Raised;
    const State states[] = {{"flat", Raised},
                            {"flat, hovered", Raised | QStyle::State_MouseOver},
                            {"flat, checked", Raised | QStyle::State_On},
                            {"raised", QStyle::State_Raised},
                            {"focused", QStyle::State_Raised | Focused.added},
                            {"pressed", Raised | QStyle::State_Sunken}};
    QToolButton button;
    QByteArray text;
    const auto add = [&](const char* name, QStyle::SubControls parts,
                         QStyleOptionToolButton::ToolButtonFeatures features) {
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft})
            for (const State& state : states) {
                QStyleOptionToolButton option;
                option.initFrom(&button);
                option.rect = QRect(0, 0, 100, 28);
                option.direction = direction;
                option.state = QStyle::State_Enabled | QStyle::State_Active | state.added;
                option.subControls = parts;
                option.activeSubControls = parts & ~QStyle::SC_ToolButton
                                               ? QStyle::SC_ToolButtonMenu
                                               : QStyle::SC_ToolButton;
                option.features = features;
                option.text = QStringLiteral("Crop");
                option.iconSize = QSize(16, 16);
                text += QByteArray("# ") + name + (direction ? ", right to left" : "") + ", "
                        + state.name + '\n' + drawn(QStyle::CC_ToolButton, option, &button);
            }
    };
    add("plain", QStyle::SC_ToolButton, QStyleOptionToolButton::None);
    add("with a mark", QStyle::SC_ToolButton, QStyleOptionToolButton::HasMenu);
    const auto both = QStyle::SC_ToolButton | QStyle::SC_ToolButtonMenu;
    add("with a menu part", both, QStyleOptionToolButton::MenuButtonPopup);
    button.setProperty("circular", true);
    add("circular", both, QStyleOptionToolButton::MenuButtonPopup);
    return text;
}

} // namespace

class tst_Windows : public QObject
{
    Q_OBJECT

private:
    BRELK::BaseStyle* m_style = nullptr;

private Q_SLOTS:

    void initTestCase()
    {
        m_style = applyProbeTheme();
        QFont font = QApplication::font();
        font.setPixelSize(ProbeTheme::BaseFont);
        QApplication::setFont(font);
    }

    void states_data()
    {
        QTest::addColumn<QByteArray>("sheet");
        QTest::newRow("Windows.parts") << parts();
        QTest::newRow("Windows.titleBar") << titleBars();
        QTest::newRow("Windows.cards") << cards();
        QTest::newRow("ToolBoxes.labels") << toolBoxLabels();
        QTest::newRow("ToolBars.parts") << toolBarParts();
        QTest::newRow("ToolButtons.parts") << toolButtons();
    }

    void states()
    {
        QFETCH(QByteArray, sheet);
        COMPARE_TRANSCRIPT(QTest::currentDataTag(), sheet);
    }

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

    void focusMarks()
    {
        QWidget widget;
        QStyleOptionFocusRect option;
        option.rect = QRect(0, 0, 40, 20);
        option.palette = ProbeTheme::palette();
        option.state = QStyle::State_None;
        QCOMPARE(drawn(QStyle::PE_FrameFocusRect, option, &widget), "");
        option.state = QStyle::State_KeyboardFocusChange;
        COMPARE_TRANSCRIPT("Windows.focus", drawn(QStyle::PE_FrameFocusRect, option, &widget));
        widget.setProperty("hideFocusRect", true);
        QCOMPARE(drawn(QStyle::PE_FrameFocusRect, option, &widget), "");
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
        box.addItem(new QWidget, referencePixmap(), {});
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
