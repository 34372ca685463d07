#include "BaseStyle.h"
#include "MessageRecorder.h"
#include "Pages.h"
#include "ThemeQApplication.h"
#include "ThemeSwitcher.h"
#include "kit/Page.h"

#include <QProxyStyle>
#include <QRandomGenerator>
#include <QStyleFactory>
#include <QtTest>
#include <QtWidgets>

#include <memory>

// Whatever users, programs and desktops do to the pages of the gallery, by lot, and one thing in
// the midst of another: nothing crashes and the toolkit warns of nothing. VARN_STORMS says how many
// there are, and VARN_STORM the number of the first.

namespace {

constexpr int Steps = 60;
constexpr int Deepest = 2;

/// Does one thing after another to a window, also while loops of its dialogs, menus and drags run.
class Storm : public QObject
{
    Q_OBJECT

public:
    Storm(int number, QWidget& window) : m_random(quint32(number)), m_window(window)
    {
        const QMetaMethod act =
            staticMetaObject.method(staticMetaObject.indexOfSlot("actInBetween()"));
        for (QWidget* widget : window.findChildren<QWidget*>())
            for (int i = 0; i < widget->metaObject()->methodCount(); ++i)
                if (const QMetaMethod method = widget->metaObject()->method(i);
                    method.methodType() == QMetaMethod::Signal && method.name() != "destroyed")
                    connect(widget, method, this, act);
    }

    void run()
    {
        qApp->installEventFilter(this);
        step();
        while (m_left > 0)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        qApp->removeEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* widget = qobject_cast<QWidget*>(watched);
        if (!widget)
            return false;
        switch (event->type()) {
        case QEvent::Paint:
            if (oneOutOf(200))
                destroyLater(*widget);
            Q_FALLTHROUGH();
        case QEvent::UpdateRequest:
        case QEvent::DeferredDelete: {
            // The toolkit does not bear other acts while it paints or destroys.
            const QScopedValueRollback<int> rollback(m_depth, Deepest);
            watched->event(event);
            return true;
        }
        default:
            if (oneOutOf(500))
                actInBetween();
            return false;
        }
    }

private Q_SLOTS:

    void step()
    {
        QTimer::singleShot(0, this, &Storm::step);
        if (--m_left > 0 && !oneOutOf(10))
            act();
        else
            closeWhatWaits();
    }

    void actInBetween()
    {
        constexpr int ThoseOfTheEnd = 1;
        if (m_depth < Deepest && oneOutOf(20))
            act(ThoseOfTheEnd);
    }

private:
    QRandomGenerator m_random;
    QWidget& m_window;
    int m_left = Steps;
    int m_depth = 0;

    bool oneOutOf(int times) { return m_random.bounded(times) == 0; }

    int upTo(int most) { return m_random.bounded(most + 1); }

    template <class Value>
    Value oneOf(std::initializer_list<Value> values)
    {
        return values.begin()[m_random.bounded(int(values.size()))];
    }

    static void closeWhatWaits()
    {
        QDrag::cancel();
        if (QWidget* popup = QApplication::activePopupWidget())
            popup->close();
        else if (QWidget* dialog = QApplication::activeModalWidget())
            dialog->close();
    }

    void act(int butLast = 0)
    {
        static constexpr void (Storm::*Acts[])(QWidget&) = {
            &Storm::click,       &Storm::click,        &Storm::click,  &Storm::move,
            &Storm::type,        &Storm::type,         &Storm::turn,   &Storm::dress,
            &Storm::switchTheme, &Storm::destroyLater, &Storm::resize, &Storm::toggle,
            &Storm::changeStyle};
        const QWidgetList widgets = m_window.findChildren<QWidget*>();
        if (widgets.isEmpty())
            return;
        ++m_depth;
        (this->*Acts[m_random.bounded(int(std::size(Acts)) - butLast)])(
            *widgets.at(m_random.bounded(widgets.size())));
        --m_depth;
    }

    QPoint placeIn(const QWidget& widget)
    {
        return {upTo(qMax(0, widget.width()) + 2) - 1, upTo(qMax(0, widget.height()) + 2) - 1};
    }

    void send(QWidget& widget, QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons buttons)
    {
        const QPoint place = placeIn(widget);
        QMouseEvent event(type, place, widget.mapToGlobal(place), button, buttons,
                          oneOf({Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier}));
        QCoreApplication::sendEvent(&widget, &event);
    }

    void click(QWidget& widget)
    {
        const QPointer<QWidget> guard = &widget;
        const auto button = oneOf({Qt::LeftButton, Qt::LeftButton, Qt::RightButton});
        for (const auto type : {oneOf({QEvent::MouseButtonPress, QEvent::MouseButtonDblClick}),
                                QEvent::MouseMove, QEvent::MouseButtonRelease})
            if (guard && !oneOutOf(10))
                send(widget, type, type == QEvent::MouseMove ? Qt::NoButton : button,
                     type == QEvent::MouseButtonRelease ? Qt::NoButton : button);
        if (guard && button == Qt::RightButton) {
            QContextMenuEvent event(QContextMenuEvent::Mouse, placeIn(widget));
            QCoreApplication::sendEvent(&widget, &event);
        }
    }

    void move(QWidget& widget)
    {
        QEvent event(oneOf({QEvent::Enter, QEvent::Leave}));
        widget.setAttribute(Qt::WA_UnderMouse, event.type() == QEvent::Enter);
        const QPointer<QWidget> guard = &widget;
        QCoreApplication::sendEvent(&widget, &event);
        if (guard)
            send(widget, QEvent::MouseMove, Qt::NoButton, Qt::NoButton);
    }

    void type(QWidget& widget)
    {
        const QPointer<QWidget> guard = &widget;
        widget.setFocus(oneOf({Qt::TabFocusReason, Qt::MouseFocusReason}));
        const int key =
            oneOf({Qt::Key_Tab, Qt::Key_Space, Qt::Key_Return, Qt::Key_Escape, Qt::Key_Up,
                   Qt::Key_Down, Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_PageDown,
                   Qt::Key_F2, Qt::Key_F4, Qt::Key_Delete, Qt::Key_A, Qt::Key_5, Qt::Key_Menu});
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease})
            if (guard) {
                const QString text = key < 128 ? QString(QChar(key)) : QString();
                QKeyEvent event(type, key, oneOf({Qt::NoModifier, Qt::AltModifier}), text);
                QCoreApplication::sendEvent(&widget, &event);
            }
    }

    void turn(QWidget& widget)
    {
        const QPoint place = placeIn(widget);
        QWheelEvent event(place, widget.mapToGlobal(place), {}, {0, oneOf({120, -120, 7})},
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&widget, &event);
    }

    void resize(QWidget& widget)
    {
        // The toolkit's picker of colors crashes where it is narrower than its frame.
        QWidget& resized = oneOutOf(3) || widget.inherits("QColorPicker") ? m_window : widget;
        resized.resize(upTo(oneOf({0, 20, 1500})), upTo(oneOf({0, 20, 1500})));
    }

    void toggle(QWidget& widget)
    {
        QWidget& toggled = oneOutOf(5) ? m_window : widget;
        switch (upTo(3)) {
        case 0: widget.setEnabled(!widget.isEnabled()); break;
        case 1: widget.repaint(); break;
        case 2: widget.grab(); break;
        default: toggled.setVisible(!toggled.isVisible());
        }
    }

    void dress(QWidget& widget)
    {
        switch (upTo(2)) {
        case 0: widget.setLayoutDirection(oneOf({Qt::LeftToRight, Qt::RightToLeft})); break;
        case 1: widget.setFont(QFont(QStringLiteral("Serif"), 1 + upTo(30))); break;
        default: widget.setPalette(QColor::fromRgba(m_random.generate()));
        }
    }

    void switchTheme(QWidget&)
    {
        const QScopedValueRollback<int> rollback(m_depth, Deepest);
        BRELK::ThemeSwitcher::getInstance().switchTo(
            QLatin1String(oneOf({"Dark", "Light", "HighContrast"})));
    }

    /// Widgets do not own their styles.
    static QStyle* keptStyle(QStyle* style)
    {
        style->setParent(qApp);
        return style;
    }

    /// Not in between: the toolkit does not bear that by itself either.
    void changeStyle(QWidget& widget)
    {
        const QScopedValueRollback<int> rollback(m_depth, Deepest);
        // Under a style sheet dialogs give their buttons and pages styles that are gone then.
        switch (upTo(m_window.findChild<QDialog*>() ? 4 : 7)) {
        case 0: QApplication::setPalette(widget.palette()); break;
        case 1: QApplication::setFont(QFont(QStringLiteral("Sans"), 5 + upTo(20))); break;
        case 2:
            widget.setStyleSheet(oneOf({QString(), QStringLiteral("* { color: red; }")}));
            break;
        case 3: widget.setStyle(oneOutOf(3) ? nullptr : keptStyle(new BRELK::BaseStyle)); break;
        case 4: widget.setStyle(keptStyle(QStyleFactory::create(QStringLiteral("fusion")))); break;
        case 5: QApplication::setStyle(QStyleFactory::create(QStringLiteral("fusion"))); break;
        case 6: QApplication::setStyle(new BRELK::BaseStyle); break;
        default: QApplication::setStyle(new QProxyStyle(new BRELK::BaseStyle));
        }
    }

    /// The toolkit's own widgets need their parts.
    bool mayGo(QWidget& widget) const
    {
        QWidget* around = widget.parentWidget();
        if (!around || !around->layout() || around->layout()->indexOf(&widget) < 0)
            return false;
        for (; around && around != &m_window; around = around->parentWidget())
            if (around->objectName().startsWith(QLatin1String("qt_"))
                || (around->metaObject() != &QWidget::staticMetaObject
                    && around->metaObject() != &QFrame::staticMetaObject
                    && !qobject_cast<const QGroupBox*>(around)))
                return false;
        return around;
    }

    void destroyLater(QWidget& widget)
    {
        if (mayGo(widget))
            widget.deleteLater();
    }
};

} // namespace

class tst_Storms : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void nothingBreaksThePages_data()
    {
        QTest::addColumn<int>("number");
        static int sNumber = qEnvironmentVariableIntValue("VARN_STORM");
        constexpr int Few = 4;
        const int asked = qEnvironmentVariableIntValue("VARN_STORMS");
        for (int count = (asked ? asked : Few) / 2; count > 0; --count)
            QTest::newRow(QByteArray::number(++sNumber)) << sNumber;
    }

    void nothingBreaksThePages()
    {
        QFETCH(int, number);
        const MessageRecorder messages;
        const auto& pages = Gallery::allPages();
        const std::unique_ptr<QWidget> page(Gallery::buildPage(pages.at(number % pages.size())));
        delete page->findChild<QFileDialog*>(); // a storm there would make directories
        page->resize(1100, 800);
        page->show();
        Storm(number, *page).run();
        // The toolkit's bar of colors paints its frame without looking for room.
        QStringList told = messages.take().filter(QRegularExpression(
            QStringLiteral("^(?!This plugin does not|Unimplemented code|A theme is being switched"
                           "|qDrawShadePanel: Invalid parameters)")));
        told.removeDuplicates();
        QVERIFY2(told.isEmpty(), qPrintable(told.join(QLatin1String("; "))));
    }
};

/// Half of them with another application.
int main(int argc, char** argv)
{
    int failures = 0;
    for (int times = 0; times < 2; ++times) {
        BRELK::ThemeQApplication application(argc, argv, QStringLiteral("Dark"),
                                             QStringLiteral(VARN_THEME_REPOSITORY));
        tst_Storms test;
        failures += QTest::qExec(&test, argc, argv);
    }
    return failures;
}

#include "tst_Storms.moc"
