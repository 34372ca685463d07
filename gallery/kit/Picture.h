#pragma once

#include <QPixmap>
#include <QWidget>

#include <functional>

namespace Gallery {

/// Shows what a pop-up window such as a menu, a tool tip or the list of a combo box looks like
/// while it is open, without opening it.
class Picture : public QWidget
{
public:
    /// `popup` is painted at the size it has; `owner`, which is the pop-up itself or a widget that
    /// it belongs to, becomes a hidden child of the picture.
    Picture(QWidget* popup, QWidget* owner);

    QSize sizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QWidget* m_popup;
    QPixmap m_pixmap;
};

} // namespace Gallery
