#include "BaseStyle.h"

#include "Texts.h"
#include "ThemeResources.h"
#include "ThemeValues.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPainter>
#include <QStyleOption>

namespace BRELK {

BaseStyle::BaseStyle() : QProxyStyle(QStringLiteral("fusion"))
{
    m_palette = baseStyle()->standardPalette();
    m_expanderHeaderBrush = themeValues().brushes.value(ThemeNames::ExpanderHeaderBrush);
    m_windowBackgroundBrush = themeValues().brushes.value(ThemeNames::BackgroundBrush);
}

BaseStyle::~BaseStyle() = default;

bool BaseStyle::event(QEvent* event)
{
    // A proxy hands its events to the style below, and deleteLater() would delete that.
    return event && event->type() == QEvent::DeferredDelete ? QObject::event(event)
                                                            : QProxyStyle::event(event);
}

void BaseStyle::polish(QPalette& palette)
{
    palette = m_palette;
}

QPalette BaseStyle::standardPalette() const
{
    return m_palette;
}

void BaseStyle::setPalette(const QPalette& palette)
{
    if (palette == m_palette)
        return;
    m_palette = palette;
    Q_EMIT paletteChanged(m_palette);
}

const QBrush& BaseStyle::lightOutlineBrush(const QPalette& palette) const
{
    return palette.midlight();
}

const QBrush& BaseStyle::grooveBackgroundBrush(bool enabled) const
{
    return themeValues().groove.value(enabled);
}

const QBrush& BaseStyle::getBorderBrush(bool enabled)
{
    return themeValues().border.value(enabled);
}

QBrush BaseStyle::getBrush(QString name, bool enabled)
{
    return ThemeResources::getBrush(enabled ? name : ThemeNames::twin(name));
}

QColor BaseStyle::getColor(QString name, bool enabled)
{
    return ThemeResources::getColor(enabled ? name : ThemeNames::twin(name));
}

// NOLINTNEXTLINE(readability-function-size): Qt's
void BaseStyle::drawItemText(QPainter* painter, const QRect& rect, int flags,
                             const QPalette& palette, bool, const QString& text,
                             QPalette::ColorRole role) const
{
    if (!painter || text.isEmpty())
        return;
    const QPen pen = painter->pen();
    if (role != QPalette::NoRole)
        painter->setPen(QPen(palette.brush(role), pen.widthF()));
    Texts::draw(*painter, rect, flags, text);
    painter->setPen(pen);
}

void BaseStyle::drawItemPixmap(QPainter* painter, const QRect& rect, int alignment,
                               const QPixmap& pixmap) const
{
    if (!painter || pixmap.isNull())
        return;
    const QRect place = alignedRect(QGuiApplication::layoutDirection(), Qt::Alignment(alignment),
                                    pixmap.size() / pixmap.devicePixelRatio(), rect);
    if (rect.contains(place)) // as most do: copying all of a pixmap is quicker than copying a part
        painter->drawPixmap(place.topLeft(), pixmap);
    else
        QProxyStyle::drawItemPixmap(painter, rect, alignment, pixmap);
}

BaseStyle::ButtonBackgroundState
BaseStyle::getButtonBackgroundState(const QStyleOption& option) const
{
    if (isDown(option))
        return ButtonBackground_Down;
    return isButtonHovered(&option) ? ButtonBackground_Highlighted : ButtonBackground_Normal;
}

BaseStyle::TabBackgroundState BaseStyle::getTabBackgroundState(const QStyleOptionTab& option) const
{
    constexpr State FocusShown = State_HasFocus | State_KeyboardFocusChange;
    if (option.state & State_Selected)
        return TabBackground_Selected;
    const bool pointedAt =
        option.state & State_MouseOver || (option.state & FocusShown) == FocusShown;
    return option.state & State_Enabled && pointedAt ? TabBackground_Highlighted
                                                     : TabBackground_Unselected;
}

// NOLINTNEXTLINE(readability-function-size): applications call it with these
void BaseStyle::drawGrips(QPainter& painter, Qt::Orientation orientation, int from, int to, int pos,
                          int step, int size, int darkSize) const
{
    const QColor light(255, 255, 255, 90);
    const QColor dark(0, 0, 0, 60);
    if (step <= 0)
        return;
    for (int at = from; at < to; at += step) {
        if (orientation == Qt::Vertical) {
            painter.fillRect(pos, at, size, size, light);
            // Deliberate: vertical grips have a one-pixel dark dot, whatever `darkSize` is.
            painter.fillRect(pos, at, 1, 1, dark);
        } else {
            painter.fillRect(at, pos, size, size, light);
            painter.fillRect(at, pos, darkSize, darkSize, dark);
        }
    }
}

bool BaseStyle::isPressed(const QStyleOption& option)
{
    return option.state & State_Sunken;
}

bool BaseStyle::isPressed(const QStyleOption* option)
{
    return isPressed(*option);
}

bool BaseStyle::isChecked(const QStyleOption& option)
{
    return option.state & State_On;
}

bool BaseStyle::isChecked(const QStyleOption* option)
{
    return isChecked(*option);
}

bool BaseStyle::isDown(const QStyleOption& option)
{
    return isPressed(option) || isChecked(option);
}

bool BaseStyle::isHovered(const QStyleOption* option)
{
    return option->state & State_Enabled && option->state & State_MouseOver;
}

bool BaseStyle::isFlatButton(const QStyleOptionButton* option)
{
    return option->features & QStyleOptionButton::Flat;
}

bool BaseStyle::isFlatButton(const QStyleOption* option)
{
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    return button && isFlatButton(button);
}

bool BaseStyle::isDefaultButton(const QStyleOptionButton* option)
{
    return option->features & QStyleOptionButton::DefaultButton && option->state & State_Enabled;
}

bool BaseStyle::isDefaultButton(const QStyleOption* option)
{
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    return button && isDefaultButton(button);
}

bool BaseStyle::isButtonHovered(const QStyleOption* option)
{
    return isHovered(option) && !isPressed(option) && !isFlatButton(option);
}

} // namespace BRELK
