#pragma once

#include <QLabel>
#include <QListView>
#include <QScrollBar>
#include <QWidget>

class QVBoxLayout;

/// Small stand-ins for the widgets of a companion library. The style knows such widgets only by
/// class name and by properties, so these serve to show what it does for them.
namespace BRELK::Components {

/// A card: a header with title and subtitle, contents, and a footer.
class CardWidget : public QWidget
{
    Q_OBJECT
    // QWidget has a read-only property of this name.
    Q_PROPERTY(bool minimized READ isCollapsed WRITE setCollapsed)

public:
    CardWidget(const QString& title, const QString& subtitle);

    void setContents(QWidget* contents);
    void setFooter(QWidget* footer);

    bool isCollapsed() const { return m_collapsed; }

    void setCollapsed(bool collapsed);

private:
    QWidget* addPart(const char* property);

    QVBoxLayout* m_layout;
    QWidget* m_header;
    QWidget* m_contents;
    QWidget* m_footer = nullptr;
    bool m_collapsed = false;
};

/// Buttons side by side or below one another that are drawn as one.
class ButtonGroupWidget : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int orientation READ orientation)

public:
    ButtonGroupWidget(Qt::Orientation orientation, const QStringList& texts);

    int orientation() const { return m_orientation; }

private:
    Qt::Orientation m_orientation;
};

/// A slider with two handles, painted with the brushes that the style hands to it.
class RangeSlider : public QWidget
{
    Q_OBJECT

public:
    RangeSlider();

    /// The positions of the handles, from 0 to 100.
    void setRange(int lower, int upper);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QBrush brush(const char* property) const;

    int m_lower = 0;
    int m_upper = 100;
};

/// A picture with the border and the round corners that the style hands to it.
class RoundedPicture : public QWidget
{
    Q_OBJECT

public:
    explicit RoundedPicture(const QPixmap& picture);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap m_picture;
};

/// A scroll bar without arrows and pages.
class MinimizedScrollBar : public QScrollBar
{
    Q_OBJECT
    Q_PROPERTY(bool minimized READ isSmall)

public:
    using QScrollBar::QScrollBar;

    bool isSmall() const { return true; }
};

/// A column of a cascading list.
class CascadingListViewPanel : public QListView
{
    Q_OBJECT
};

} // namespace BRELK::Components
