#include "BaseStyle.h"
#include "EmbeddedIcons.h"
#include "OwnColors.h"
#include "Revocable.h"
#include "ThemeColorHelper.h"
#include "ThemeValues.h"
#include "WidgetProperties.h"
#include "WidgetTraits.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QCommandLinkButton>
#include <QKeyEvent>
#include <QMenuBar>
#include <QToolButton>

#include <algorithm>

namespace {

/// What the style last gave to a button: setting an icon repaints the button, so it is set only
/// when this changes.
struct AppliedIcon
{
    qint64 source = 0; ///< cache key of the icon that was recolored
    QBrush brush;
    qint64 result = 0; ///< cache key of the icon that was set
};

} // namespace

Q_DECLARE_METATYPE(AppliedIcon)

namespace BRELK {

namespace {

constexpr char AppliedIconProperty[] = "_varn_appliedIcon";

AppliedIcon appliedIcon(const QAbstractButton& button)
{
    return button.property(AppliedIconProperty).value<AppliedIcon>();
}

void applyIcon(QAbstractButton& button, const QIcon& source, const QBrush& brush)
{
    AppliedIcon applied = appliedIcon(button);
    const bool isCurrent = applied.result != 0 && button.icon().cacheKey() == applied.result;
    if (isCurrent && applied.source == source.cacheKey() && applied.brush == brush)
        return;
    button.setIcon(ThemeColorHelper::getModifiedIconWithForegroundBrush(source, brush));
    applied = {source.cacheKey(), brush, button.icon().cacheKey()};
    button.setProperty(AppliedIconProperty, QVariant::fromValue(applied));
}

/// The button's own icon: the one it had, or was given since, before the style recolored it.
QIcon originalIcon(QAbstractButton& button)
{
    auto original = WidgetProperties::value(&button, WidgetProperties::OriginalIcon).value<QIcon>();
    const bool isOurs = button.icon().cacheKey() == appliedIcon(button).result;
    if (original.isNull() || !isOurs) {
        original = button.icon();
        button.setProperty(WidgetProperties::OriginalIcon, original);
    }
    return original;
}

void colorLineEditButton(QToolButton& button)
{
    const bool pointedAt = button.underMouse() && button.isEnabled();
    const QBrush brush = pointedAt ? QBrush(themeValues().colors.value(ThemeNames::MainColor))
                                   : QBrush(button.palette().color(QPalette::WindowText));
    const bool keepsIcon =
        (WidgetProperties::flag(button.parent(), WidgetProperties::CustomActionIcons)
         || WidgetProperties::flag(qApp, WidgetProperties::CustomActionIcons))
        && !WidgetTraits::isLineEditClearButton(&button);
    const EmbeddedIcons::StyleIcon clear(QStringLiteral("action.close"));
    applyIcon(button, keepsIcon ? originalIcon(button) : QIcon(clear), brush);
}

void colorCommandLink(const BaseStyle& style, QCommandLinkButton& button)
{
    if (button.icon().isNull())
        return;
    const bool pointedAt =
        !button.isChecked() && !button.isDown() && button.underMouse() && button.isEnabled();
    const QBrush words = button.palette().brush(QPalette::ButtonText);
    const QBrush brush =
        pointedAt && !OwnColors::isForAll(style, QPalette::ButtonText)
            ? themeValues().brushes.value(ThemeNames::ButtonUncheckedHoverForegroundBrush)
            : words;
    applyIcon(button, originalIcon(button), brush);
}

void colorIconBeforePaint(const BaseStyle& style, QWidget& widget)
{
    if (auto* commandLink = qobject_cast<QCommandLinkButton*>(&widget))
        colorCommandLink(style, *commandLink);
    else if (auto* toolButton = qobject_cast<QToolButton*>(&widget);
             WidgetTraits::isLineEditIconButton(toolButton))
        colorLineEditButton(*toolButton);
}

bool isAlt(const QEvent& event)
{
    return static_cast<const QKeyEvent&>(event).key() == Qt::Key_Alt;
}

void updateMnemonics(const QWidget& window)
{
    QList<QWidget*> widgets = window.findChildren<QWidget*>();
    // Deliberate: the entry that slides into a removed place is not looked at.
    for (int i = 0; i < widgets.size(); ++i) {
        const QWidget* widget = widgets.at(i);
        if (widget->isWindow() || !widget->isVisible()
            || widget->style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, widget))
            widgets.removeAt(i);
    }
    for (QWidget* widget : qAsConst(widgets))
        widget->update();
}

} // namespace

bool BaseStyle::eventFilter(QObject* watched, QEvent* event)
{
    auto* widget = qobject_cast<QWidget*>(watched);
    if (!widget || !event)
        return QObject::eventFilter(watched, event);

    switch (event->type()) {
    case QEvent::StyleChange: // already, as a change that comes with the paint asks for another one
    case QEvent::Paint: colorIconBeforePaint(*this, *widget); break;
    case QEvent::EnabledChange:
    case QEvent::PaletteChange:
        if (qobject_cast<QCalendarWidget*>(widget))
            Revocable::calmCalendar(*this, *widget);
        break;
    case QEvent::KeyPress:
        if (isAlt(*event)) {
            const QWidget* window = widget->window();
            // One that is deleted unclosed must not speak for the next at its address.
            connect(window, &QObject::destroyed, this, &BaseStyle::forgetWindow,
                    Qt::UniqueConnection);
            m_seenAlt.append(window);
            m_alt_down = true;
            updateMnemonics(*widget->window());
        }
        break;
    case QEvent::KeyRelease:
        if (isAlt(*event)) {
            m_alt_down = false;
            for (QMenuBar* menuBar : widget->window()->findChildren<QMenuBar*>())
                menuBar->update();
        }
        break;
    case QEvent::Close:
        m_seenAlt.removeAll(widget);
        m_seenAlt.removeAll(widget->window());
        break;
    default: break;
    }
    return QObject::eventFilter(watched, event);
}

void BaseStyle::forgetWindow(const QObject* window)
{
    m_seenAlt.erase(std::remove(m_seenAlt.begin(), m_seenAlt.end(), window), m_seenAlt.end());
}

bool BaseStyle::hasSeenAlt(const QWidget* widget) const
{
    return widget && m_seenAlt.contains(widget->window());
}

} // namespace BRELK
