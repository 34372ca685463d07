#pragma once

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QWidget>

#include <memory>

/// Widgets with their options, and a place to paint them.
namespace StyleBenchmark {

/// An image like the raster backing store, being painted on.
class Canvas
{
public:
    explicit Canvas(QSize size, qreal scale = 1)
        : m_image(size * scale, QImage::Format_ARGB32_Premultiplied)
    {
        m_image.setDevicePixelRatio(scale);
        m_image.fill(Qt::transparent);
        painter.begin(&m_image);
    }

private:
    QImage m_image;

public:
    QPainter painter; ///< Ends before the image goes.
};

/// Lets others fill the widget's option as the widget itself does.
template <class Widget>
struct Exposed : Widget
{
    using Widget::initStyleOption;
    using Widget::Widget;
};

/// How a control stands, in its option.
struct ControlState
{
    const char* name;
    QStyle::State added = QStyle::State_None;
    bool enabled = true;
};

constexpr QStyle::State ShownFocus = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;

constexpr ControlState Normal{"normal"};
constexpr ControlState Hovered{"hovered", QStyle::State_MouseOver};
constexpr ControlState Pressed{"pressed", QStyle::State_Sunken | QStyle::State_MouseOver};
constexpr ControlState Focused{"focused", ShownFocus};
constexpr ControlState Selected{"selected", QStyle::State_Selected};
constexpr ControlState Disabled{"disabled", QStyle::State_None, false};

/// Makes the state of a filled option that of a control of the active window.
inline void apply(const ControlState& state, QStyleOption& option)
{
    option.state |= QStyle::State_Active | state.added;
    option.state.setFlag(QStyle::State_Enabled, state.enabled);
    if (state.added & QStyle::State_Sunken)
        option.state &= ~QStyle::State_Raised;
}

inline QIcon sampleIcon()
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setBrush(Qt::darkCyan);
    painter.drawEllipse(2, 2, 12, 12);
    return pixmap;
}

} // namespace StyleBenchmark
