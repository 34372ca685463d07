#include "BaseStyle.h"
#include "PaintCounter.h"
#include "ProbeTheme.h"

#include <QAction>
#include <QApplication>
#include <QCommandLinkButton>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <QtTest>

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

QByteArray colorOf(const QAbstractButton& button)
{
    return ProbeTheme::nameOf(button.icon().pixmap(16, 16).toImage());
}

/// An icon in the color that stands for the theme's.
QIcon icon()
{
    QPixmap pixmap(16, 16);
    pixmap.fill(QColor(0xE5, 0xEE, 0xF4));
    return pixmap;
}

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
        link->setIcon(icon());
        setFocusPolicy(Qt::StrongFocus);
        setFocus();
    }

    QToolButton* clearButton() const { return lineEdit->findChild<QToolButton*>(); }
};

} // namespace

class tst_EventFilter : public QObject
{
    Q_OBJECT

private:
    Style* m_style = nullptr;

    /// Shows the widget and paints it.
    static void paint(QWidget& widget)
    {
        widget.window()->show();
        QVERIFY(QTest::qWaitForWindowExposed(widget.window()));
        widget.repaint();
    }

private Q_SLOTS:

    void initTestCase()
    {
        ProbeTheme::publish();
        m_style = new Style;
        m_style->setPalette(ProbeTheme::palette());
        QApplication::setStyle(m_style);
        QApplication::setPalette(ProbeTheme::palette());
    }

    void lineEditButtonsShowTheCloseIconInTheirColor()
    {
        QLineEdit lineEdit(QStringLiteral("Text"));
        lineEdit.addAction(icon(), QLineEdit::TrailingPosition);
        auto* button = lineEdit.findChild<QToolButton*>();
        QVERIFY(button);
        const auto colorAfterPaint = [&] {
            paint(*button);
            return colorOf(*button);
        };
        QCOMPARE(colorAfterPaint(), "palette.WindowText");
        QCOMPARE(button->icon().name(), QStringLiteral("action.close"));
        point(*button, true);
        QCOMPARE(colorAfterPaint(), "MainColor");
        lineEdit.setEnabled(false);
        QCOMPARE(colorAfterPaint(), "palette.Disabled.WindowText");
        lineEdit.setEnabled(true);
        point(*button, false);
        QCOMPARE(colorAfterPaint(), "palette.WindowText");
    }

    void lineEditsMayKeepTheirActionsIcons()
    {
        QLineEdit lineEdit(QStringLiteral("Text"));
        lineEdit.setProperty("customActionIcons", true);
        lineEdit.addAction(icon(), QLineEdit::TrailingPosition);
        auto* button = lineEdit.findChild<QToolButton*>();
        paint(*button);
        QCOMPARE(button->icon().name(), QString());
    }

    void commandLinksAreRecoloredFromTheirOriginalIcon()
    {
        QCommandLinkButton button(QStringLiteral("Link"));
        button.setCheckable(true);
        const QIcon original = icon();
        button.setIcon(original);
        const auto colorAfterPaint = [&] {
            paint(button);
            return colorOf(button);
        };
        QCOMPARE(colorAfterPaint(), "palette.ButtonText");
        QCOMPARE(button.property("originalIcon").value<QIcon>().cacheKey(), original.cacheKey());

        point(button, true);
        QCOMPARE(colorAfterPaint(), "ButtonUncheckedHoverForegroundBrush");
        button.setDown(true);
        QCOMPARE(colorAfterPaint(), "palette.ButtonText");
        button.setDown(false);
        button.setChecked(true);
        QCOMPARE(colorAfterPaint(), "palette.ButtonText");
        button.setChecked(false);
        button.setEnabled(false);
        QCOMPARE(colorAfterPaint(), "palette.Disabled.ButtonText");
        button.setEnabled(true);
        QCOMPARE(colorAfterPaint(), "ButtonUncheckedHoverForegroundBrush");
        QCOMPARE(button.property("originalIcon").value<QIcon>().cacheKey(), original.cacheKey());
    }

    void anIconSetLaterIsANewOriginal()
    {
        QCommandLinkButton button(QStringLiteral("Link"));
        button.setIcon(icon());
        paint(button);
        QPixmap pixmap(16, 16);
        pixmap.fill(Qt::red);
        const QIcon later(pixmap);
        button.setIcon(later);
        paint(button);
        QCOMPARE(button.property("originalIcon").value<QIcon>().cacheKey(), later.cacheKey());
        QCOMPARE(colorOf(button), "#ff0000");
    }

    void aWindowThatNobodyTouchesIsNotRepainted_data()
    {
        QTest::addColumn<bool>("pointedAt");
        QTest::addColumn<bool>("iconsFound");
        QTest::newRow("under the mouse") << true << true;
        QTest::newRow("without icons") << false << false;
    }

    void aWindowThatNobodyTouchesIsNotRepainted()
    {
        QFETCH(bool, pointedAt);
        QFETCH(bool, iconsFound);
        if (!iconsFound)
            QIcon::setFallbackSearchPaths({});
        Window window;
        window.show();
        if (pointedAt) {
            point(*window.clearButton(), true);
            point(*window.link, true);
        }

        PaintCounter paints;
        QTest::qWait(100);
        QVERIFY(paints.paintsOf(window.link) > 0);
        QVERIFY(paints.paintsOf(window.clearButton()) > 0);
        paints.settle();
        QTest::qWait(300);
        QCOMPARE(paints.all(), 0);
        if (!iconsFound)
            QIcon::setFallbackSearchPaths({QStringLiteral(":/Icons")});
    }

    void altUnderlinesMnemonics()
    {
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        auto* link = new QCommandLinkButton(QStringLiteral("Link"));
        layout->addWidget(link);
        QVector<QWidget*> others;
        for (int i = 0; i < 3; ++i) {
            others.append(new QWidget);
            others.last()->setMinimumSize(10, 10);
            layout->addWidget(others.last());
        }
        window.show();
        PaintCounter paints;
        const auto paintedAfterAlt = [&] {
            paints.settle();
            sendAlt(*link, QEvent::KeyPress);
            QTest::qWait(50);
            QByteArray painted;
            for (QWidget* widget : QVector<QWidget*>{link} + others)
                painted += paints.paintsOf(widget) ? 'x' : '-';
            return painted;
        };

        m_style->underlineShortcut = 0;
        QCOMPARE(paintedAfterAlt(), "xxxx");
        // Each widget that is left out keeps the next one from being looked at.
        m_style->underlineShortcut = 1;
        QCOMPARE(paintedAfterAlt(), "-x-x");
        m_style->underlineShortcut = 0;
        others.at(0)->hide();
        QCOMPARE(paintedAfterAlt(), "x-xx");
        sendAlt(*link, QEvent::KeyRelease);
    }

    void altIsRememberedUntilTheWindowCloses()
    {
        Window window;
        auto* menuBar = new QMenuBar;
        menuBar->addAction(QStringLiteral("&File"));
        window.layout()->setMenuBar(menuBar);
        window.show();
        sendAlt(window, QEvent::KeyPress);
        QVERIFY(!m_style->altDown());
        sendAlt(*window.link, QEvent::KeyPress);
        QVERIFY(m_style->altDown());
        QVERIFY(m_style->hasSeenAlt(menuBar));

        PaintCounter paints;
        paints.settle();
        sendAlt(*window.link, QEvent::KeyRelease);
        QTest::qWait(50);
        QVERIFY(!m_style->altDown());
        QVERIFY(paints.paintsOf(menuBar) > 0);
        QCOMPARE(paints.paintsOf(window.link), 0);
        QVERIFY(m_style->hasSeenAlt(window.link));

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
        QVERIFY(m_style->hasSeenAlt(first));
        link.setParent(nullptr);
        first->~QWidget();
        auto* second = new (place) QWidget;
        QVERIFY(!m_style->hasSeenAlt(second));
        second->~QWidget();
    }

    /// The last test: it takes the style away.
    void widgetsOutliveTheStyle()
    {
        Window window;
        paint(window);
        const QPointer<Style> style(m_style);
        QApplication::setStyle(QStringLiteral("fusion"));
        QVERIFY(!style);
        paint(window);
        sendAlt(*window.link, QEvent::KeyPress);
        QTest::mouseClick(window.clearButton(), Qt::LeftButton);
        QCOMPARE(window.lineEdit->text(), QString());
        // Qt fades the button out, and leaks what does so if it is not let finish.
        QTest::qWait(300);
    }
};

QTEST_MAIN(tst_EventFilter)
#include "tst_EventFilter.moc"
