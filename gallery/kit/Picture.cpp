#include "kit/Picture.h"

#include <QEvent>
#include <QPainter>

namespace Gallery {

Picture::Picture(QWidget* popup, QWidget* owner) : m_popup(popup)
{
    owner->setParent(this, owner->windowFlags());
    owner->hide();
    m_popup->ensurePolished();
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize Picture::sizeHint() const
{
    return m_popup->size();
}

bool Picture::event(QEvent* event)
{
    const bool looksChanged = event->type() == QEvent::LayoutDirectionChange
                              || event->type() == QEvent::PaletteChange
                              || event->type() == QEvent::StyleChange;
    if (looksChanged) {
        m_pixmap = {};
        update();
    }
    return QWidget::event(event);
}

void Picture::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    if (m_pixmap.isNull())
        m_pixmap = m_popup->grab();
    QPainter(this).drawPixmap(0, 0, m_pixmap);
}

} // namespace Gallery
