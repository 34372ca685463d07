#include "EventCounter.h"
#include "StateSheet.h"

using namespace BRELK;

namespace {

/// The style, with an answer of the test's own to whether mnemonics are underlined.
class Style : public BaseStyle
{
public:
    int underlineShortcut = 1;

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returnData) const override
    {
        return hint == SH_UnderlineShortcut
                   ? underlineShortcut
                   : BaseStyle::styleHint(hint, option, widget, returnData);
    }
};

void point(QWidget& widget, bool at)
{
    QEvent event(at ? QEvent::Enter : QEvent::Leave);
    widget.setAttribute(Qt::WA_UnderMouse, at);
    QApplication::sendEvent(&widget, &event);
}

void sendAlt(QWidget& widget, QEvent::Type type)
{
    QKeyEvent event(type, Qt::Key_Alt, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

/// The color of the button's icon once it was painted.
QByteArray painted(QAbstractButton& button)
{
    button.window()->show();
    (void)QTest::qWaitForWindowExposed(button.window());
    button.repaint();
    return ProbeTheme::nameOf(button.icon().pixmap(16, 16).toImage());
}

qint64 originalOf(const QAbstractButton& button)
{
    return button.property("originalIcon").value<QIcon>().cacheKey();
}

/// A window with both kinds of widgets whose icons the style colors.
struct Window : QWidget
{
    QLineEdit* lineEdit = new QLineEdit(QStringLiteral("Text"));
    QCommandLinkButton* link = new QCommandLinkButton(QStringLiteral("Link"));

    Window()
    {
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(lineEdit);
        layout->addWidget(link);
        lineEdit->setClearButtonEnabled(true);
        link->setIcon(ProbeTheme::pixmap());
        setFocusPolicy(Qt::StrongFocus);
        setFocus();
    }

    QToolButton& clearButton() const { return *lineEdit->findChild<QToolButton*>(); }
};

} // namespace

class tst_EventFilter : public QObject
{
    Q_OBJECT

private:
    QPointer<Style> m_style;

private Q_SLOTS:

    void initTestCase()
    {
        StateSheet::applyProbeTheme();
        m_style = new Style;
        m_style->setPalette(ProbeTheme::palette());
        QApplication::setStyle(m_style);
    }

    void iconsAreInTheColorOfTheButton()
    {
        const Window window;
        QByteArray colors;
        const auto paint = [&](QAbstractButton& button) { colors += painted(button) + '\n'; };
        QToolButton& clear = window.clearButton();
        QCommandLinkButton& link = *window.link;
        link.setCheckable(true);
        const qint64 original = link.icon().cacheKey();
        for (const bool at : {false, true}) {
            point(clear, at);
            point(link, at);
            paint(clear);
            paint(link);
        }
        QCOMPARE(clear.icon().name(), QStringLiteral("action.close"));
        link.setDown(true);
        paint(link);
        link.setDown(false);
        link.setChecked(true);
        paint(link);
        link.setChecked(false);
        link.setEnabled(false);
        window.lineEdit->setEnabled(false);
        paint(clear);
        paint(link);
        QCOMPARE(originalOf(link), original);
        const QIcon later = ProbeTheme::pixmap(Qt::red);
        link.setIcon(later);
        paint(link);
        QCOMPARE(originalOf(link), later.cacheKey());
        COMPARE_TRANSCRIPT("EventFilter.icons", colors);
    }

    void lineEditsMayKeepTheirActionsIcons()
    {
        for (const bool kept : {false, true}) {
            QLineEdit lineEdit;
            lineEdit.setProperty("customActionIcons", kept);
            lineEdit.addAction(ProbeTheme::pixmap(), QLineEdit::TrailingPosition);
            auto* button = lineEdit.findChild<QToolButton*>();
            painted(*button);
            QCOMPARE(button->icon().name().isEmpty(), kept);
        }
    }

    void aWindowThatNobodyTouchesIsNotRepainted()
    {
        for (const bool iconsFound : {true, false}) {
            if (!iconsFound)
                QIcon::setFallbackSearchPaths({});
            const Window window;
            point(window.clearButton(), iconsFound);
            point(*window.link, iconsFound);
            EventCounter paints;
            painted(*window.link);
            painted(window.clearButton());
            QVERIFY(paints.of(window.link) > 0);
            QVERIFY(paints.of(&window.clearButton()) > 0);
            paints.settle();
            QTest::qWait(200);
            QCOMPARE(paints.all(), 0);
        }
        QIcon::setFallbackSearchPaths({QStringLiteral(":/Icons")});
    }

    void altUnderlinesMnemonics()
    {
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        QVector<QWidget*> widgets{new QCommandLinkButton};
        for (int i = 0; i < 3; ++i) {
            widgets.append(new QWidget);
            widgets.last()->setMinimumSize(10, 10);
        }
        for (QWidget* widget : qAsConst(widgets))
            layout->addWidget(widget);
        window.show();
        EventCounter paints;
        const auto paintedAfterAlt = [&] {
            paints.settle();
            sendAlt(*widgets.first(), QEvent::KeyPress);
            QTest::qWait(50);
            QByteArray text;
            for (const QWidget* widget : qAsConst(widgets))
                text += paints.of(widget) ? 'x' : '-';
            return text;
        };
        m_style->underlineShortcut = 0;
        QCOMPARE(paintedAfterAlt(), "xxxx");
        // Each widget that is left out keeps the next one from being looked at.
        m_style->underlineShortcut = 1;
        QCOMPARE(paintedAfterAlt(), "-x-x");
        m_style->underlineShortcut = 0;
        widgets.at(1)->hide();
        QCOMPARE(paintedAfterAlt(), "x-xx");
        sendAlt(*widgets.first(), QEvent::KeyRelease);
    }

    void altIsRememberedUntilTheWindowCloses()
    {
        Window window;
        auto* menuBar = new QMenuBar;
        menuBar->addAction(QStringLiteral("&File"));
        window.layout()->setMenuBar(menuBar);
        window.show();
        sendAlt(*window.link, QEvent::KeyPress);
        QVERIFY(m_style->altDown() && m_style->hasSeenAlt(menuBar));

        EventCounter paints;
        paints.settle();
        sendAlt(*window.link, QEvent::KeyRelease);
        QTest::qWait(50);
        QVERIFY(!m_style->altDown() && m_style->hasSeenAlt(window.link));
        QVERIFY(paints.of(menuBar) > 0);
        QCOMPARE(paints.of(window.link), 0);

        QCloseEvent close;
        QApplication::sendEvent(window.link, &close);
        QVERIFY(!m_style->hasSeenAlt(window.link));
    }

    void aWindowThatIsGoneHasNotSeenAlt()
    {
        alignas(QWidget) char place[sizeof(QWidget)];
        auto* first = new (place) QWidget;
        QCommandLinkButton link(first);
        link.ensurePolished();
        sendAlt(link, QEvent::KeyPress);
        sendAlt(link, QEvent::KeyRelease);
        link.setParent(nullptr);
        first->~QWidget();
        auto* second = new (place) QWidget;
        QVERIFY(!m_style->hasSeenAlt(second));
        second->~QWidget();
    }

    /// The last test: it takes the style away.
    void widgetsOutliveTheStyle()
    {
        const Window window;
        painted(window.clearButton());
        QApplication::setStyle(QStringLiteral("fusion"));
        QVERIFY(!m_style);
        painted(*window.link);
        sendAlt(*window.link, QEvent::KeyPress);
        QTest::mouseClick(&window.clearButton(), Qt::LeftButton);
        QCOMPARE(window.lineEdit->text(), QString());
        // Qt fades the button out, and leaks what does so if it is not let finish.
        QTest::qWait(300);
    }
};

QTEST_MAIN(tst_EventFilter)
#include "tst_EventFilter.moc"
