#include "kit/Specimen.h"

#include <QAbstractButton>
#include <QApplication>
#include <QBasicTimer>
#include <QCoreApplication>
#include <QCursor>
#include <QHoverEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QVector>

#include <functional>

namespace Gallery {

namespace {

/// Makes any number of widgets answer `hasFocus()` at once: each names the widget that has the
/// focus as its proxy, and follows it.
class SharedFocus : public QObject
{
public:
    static SharedFocus& instance()
    {
        static QPointer<SharedFocus> sInstance;
        if (!sInstance)
            sInstance = new SharedFocus;
        return *sInstance;
    }

    void add(QWidget& widget)
    {
        m_widgets.append(&widget);
        widget.setFocusProxy(QApplication::focusWidget());
    }

private:
    SharedFocus() : QObject(qApp)
    {
        connect(qApp, &QApplication::focusChanged, this,
                [this](QWidget*, QWidget* now) { follow(now); });
    }

    void follow(QWidget* focused)
    {
        m_widgets.removeAll(nullptr);
        if (m_widgets.contains(focused))
            return;
        for (const QPointer<QWidget>& widget : m_widgets) {
            if (focused)
                widget->setFocusProxy(focused);
            // The focus mark is drawn once the keyboard was used, which a specimen claims.
            widget->window()->setAttribute(Qt::WA_KeyboardFocusChange);
            widget->update();
        }
    }

    QVector<QPointer<QWidget>> m_widgets;
};

/// Repeats a mouse position to a widget whenever its layout changes.
class PointerAt : public QObject
{
public:
    using Place = std::function<QPoint()>;

    PointerAt(QWidget& widget, State state, Place place)
        : QObject(&widget), m_state(state), m_place(std::move(place))
    {
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show || event->type() == QEvent::Resize)
            m_layoutSettled.start(0, this);
        // A slider asks where the pointer is, not where it was told that it is.
        static const bool sHasNoPointer =
            QGuiApplication::platformName() == QLatin1String("offscreen");
        if (event->type() == QEvent::Paint && m_state == State::Hovered && sHasNoPointer)
            QCursor::setPos(qobject_cast<QWidget*>(watched)->mapToGlobal(m_place()));
        return QObject::eventFilter(watched, event);
    }

protected:
    void timerEvent(QTimerEvent* event) override
    {
        Q_UNUSED(event)
        m_layoutSettled.stop();
        point();
    }

private:
    void point()
    {
        auto& widget = *qobject_cast<QWidget*>(parent());
        const QPoint place = m_place();
        widget.setAttribute(Qt::WA_UnderMouse);
        QHoverEvent hover(QEvent::HoverEnter, place, QPoint(-1, -1));
        QCoreApplication::sendEvent(&widget, &hover);
        QMouseEvent move(QEvent::MouseMove, place, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&widget, &move);
        if (m_state == State::Pressed && !m_pressed) {
            QMouseEvent press(QEvent::MouseButtonPress, place, Qt::LeftButton, Qt::LeftButton,
                              Qt::NoModifier);
            QCoreApplication::sendEvent(&widget, &press);
            m_pressed = true;
        }
    }

    State m_state;
    Place m_place;
    bool m_pressed = false;
    QBasicTimer m_layoutSettled;
};

QPoint handleCenter(const QSlider& slider)
{
    QStyleOptionSlider option;
    option.initFrom(&slider);
    option.orientation = slider.orientation();
    option.minimum = slider.minimum();
    option.maximum = slider.maximum();
    option.sliderPosition = slider.sliderPosition();
    option.sliderValue = slider.value();
    option.subControls = QStyle::SC_All;
    const bool startsAtFarEnd = slider.orientation() == Qt::Vertical || slider.isRightToLeft();
    option.upsideDown = slider.invertedAppearance() != startsAtFarEnd;
    return slider.style()
        ->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, &slider)
        .center();
}

/// Where a person would point: at a slider's handle, at a spin box's upper button, else the middle.
QPoint usualPlace(const QWidget& widget)
{
    if (const auto* slider = qobject_cast<const QSlider*>(&widget))
        return handleCenter(*slider);
    if (widget.inherits("QAbstractSpinBox")) {
        const bool mirrored = widget.layoutDirection() == Qt::RightToLeft;
        const int inset = widget.height() / 4;
        return {mirrored ? inset : widget.width() - inset, inset};
    }
    return widget.rect().center();
}

void freeze(QWidget& widget)
{
    widget.setAttribute(Qt::WA_TransparentForMouseEvents);
    widget.setFocusPolicy(Qt::NoFocus);
}

} // namespace

QString nameOf(State state)
{
    switch (state) {
    case State::Normal: return QStringLiteral("Normal");
    case State::Hovered: return QStringLiteral("Hovered");
    case State::Pressed: return QStringLiteral("Pressed");
    case State::Focused: return QStringLiteral("Focused");
    case State::Disabled: return QStringLiteral("Disabled");
    }
    return {};
}

void force(QWidget& widget, State state)
{
    forceAt(widget, state, [&widget] { return usualPlace(widget); });
}

void forceAt(QWidget& widget, State state, std::function<QPoint()> place)
{
    switch (state) {
    case State::Normal: return;
    case State::Disabled: widget.setEnabled(false); return;
    case State::Focused:
        freeze(widget);
        SharedFocus::instance().add(widget);
        return;
    case State::Pressed:
    case State::Hovered: break;
    }
    freeze(widget);
    widget.setAttribute(Qt::WA_UnderMouse);
    auto* button = qobject_cast<QAbstractButton*>(&widget);
    if (button)
        button->setDown(state == State::Pressed);
    new PointerAt(widget, button ? State::Hovered : state, std::move(place));
}

} // namespace Gallery
