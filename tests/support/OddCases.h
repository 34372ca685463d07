#pragma once

#include "StyleOptions.h"

#include <QFrame>
#include <QPainter>
#include <QRandomGenerator>
#include <QStyleOption>

#include <functional>
#include <type_traits>

template <class Enum, class... Others>
inline constexpr bool IsOneOf = (std::is_same_v<Enum, Others> || ...);

/// How many values an enum of an option has, or a few more that need no more bits.
template <class Enum>
inline constexpr int CountOf =
    IsOneOf<Enum, Qt::ToolBarArea>                                                              ? 9
    : IsOneOf<Enum, QFrame::Shape>                                                              ? 7
    : IsOneOf<Enum, QTabBar::Shape, QStyleOptionMenuItem::MenuItemType>                         ? 8
    : IsOneOf<Enum, Qt::ArrowType, Qt::ToolButtonStyle, QStyleOptionViewItem::ViewItemPosition> ? 5
                                                                                                : 4;

/// Calls of a style as no widget of the toolkit makes them, drawn by lot: the same ones from the
/// same seed.
class OddCases
{
public:
    /// Without `far`, rectangles and sizes stay such as Qt's own painting can bear.
    OddCases(quint32 seed, bool far) : m_random(seed), m_far(far) { }

    /// Changes one or a few things of `sample`, whose element is called `name`. What was in it
    /// before has to live as long as it does.
    void spoil(const QByteArray& name, StyleOptions::Sample& sample);

    /// Lets `paint` paint on a device of any kind, transformed and clipped in any way.
    void paintAnywhere(const std::function<void(QPainter&)>& paint);

private:
    template <class Number>
    Number oneOf(std::initializer_list<Number> numbers)
    {
        return numbers.begin()[m_random.bounded(int(numbers.size()))];
    }

    bool rarely() { return m_random.bounded(4) == 0; }

    int number();
    QRect rect();
    QString text();
    QIcon icon();
    QBrush brush();
    QPalette palette();
    QVariant variant();

    template <class Enum>
    std::enable_if_t<std::is_enum_v<Enum>> set(Enum& field)
    {
        field = Enum(m_random.bounded(CountOf<Enum>));
    }

    void set(int& field) { field = number(); }

    void set(qreal& field) { field = oneOf({3.7, 0.0, -1.0, 1e-300, 1e300, qQNaN(), qInf()}); }

    void set(bool& field) { field = rarely(); }

    void set(QRect& field) { field = rect(); }

    void set(QSize& field) // there are pictures of these sizes
    {
        field = {m_random.bounded(-10, 300), m_random.bounded(-10, 300)};
    }

    void set(QString& field) { field = text(); }

    void set(QIcon& field) { field = icon(); }

    void set(QBrush& field) { field = brush(); }

    template <class Flag>
    void set(QFlags<Flag>& field)
    {
        field = QFlags<Flag>(QFlag(int(m_random.generate())));
    }

    template <class Option, class... Fields>
    void setFields(QStyleOption& option, Fields Option::*... fields);

    void spoilFields(QStyleOption& option);
    void spoilWidget(StyleOptions::Sample& sample);
    void spoilType(const QByteArray& name, StyleOptions::Sample& sample);
    void setUp(QPainter& painter);

    QRandomGenerator m_random;
    bool m_far;
};
