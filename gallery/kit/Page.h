#pragma once

#include <QFrame>
#include <QVector>

#include <initializer_list>

class QLabel;
class QVBoxLayout;

namespace Gallery {

/// The step of all distances, in logical pixels.
constexpr int Unit = 8;
/// The least width of the labels at the left of rows, so that they line up between sections.
constexpr int LabelWidth = 18 * Unit;

/// A line of text in the theme's base font.
QLabel* makeLabel(const QString& text);
/// A line of small, quiet text that explains what stands below or beside it.
QLabel* makeCaption(const QString& text);

/// `widget` with a caption above it.
QWidget* captioned(const QString& caption, QWidget* widget);

/// `widgets` in a row, as tall and wide as they want to be.
QWidget* row(std::initializer_list<QWidget*> widgets);
/// `widgets` below one another.
QWidget* column(std::initializer_list<QWidget*> widgets);
/// `first` and `second` side by side, sharing the width.
QWidget* halves(QWidget* first, QWidget* second);
/// `enabled` beside `disabled`, which is disabled here, both captioned; they share the width.
QWidget* pair(QWidget* enabled, QWidget* disabled);

/// A rounded surface with a border, both of the theme.
class Panel : public QFrame
{
protected:
    void paintEvent(QPaintEvent* event) override;
};

/// A titled panel of a page.
class Section : public Panel
{
public:
    Section(const QString& title, const QString& description);

    /// Adds `widget` below what is there; `stretched` widgets take the whole width.
    void add(QWidget* widget, bool stretched = false);

private:
    QVBoxLayout* m_contents;
};

/// A page of the gallery: a heading and sections.
class Page : public QWidget
{
public:
    Page(const QString& title, const QString& description);

    /// Adds a section with one sentence of `description`, which may be empty.
    Section& addSection(const QString& title, const QString& description = {});
    /// Adds a widget that is a section of its own.
    void addWidget(QWidget* widget);

private:
    QVBoxLayout* m_sections;
};

} // namespace Gallery
