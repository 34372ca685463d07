#pragma once

#include <QMap>
#include <QMetaEnum>
#include <QStyle>
#include <QVariant>
#include <QVector>
#include <QWidget>

#include <functional>
#include <memory>

class QPainter;
class QStyleOption;

/// Options and widgets for every element that the toolkit has, as its own widgets would pass them.
namespace StyleOptions {

/// What an element is asked or painted with. The option has the type that the toolkit passes for
/// the element, filled from the widget; both live as long as a copy of the sample does.
struct Sample
{
    std::shared_ptr<QWidget> parent; ///< null if nothing is set of it
    std::shared_ptr<QWidget> widget;
    std::shared_ptr<QStyleOption> option;
};

/// Lets a test read a widget's protected way to fill its option.
template <class Widget>
struct Open : Widget
{
    using Widget::initStyleOption;
    using Widget::Widget;
};

/// What makes a sample a special one: properties of the widget by their names, those of a group of
/// buttons around it as "parent.name", colors of its palette as "palette.role", fields of the
/// option as "option.name" and "State_name", and as "class" that of the widget, where several kinds
/// paint with the element.
using Settings = QMap<QByteArray, QVariant>;

/// By the name of an element, as "CE_PushButton".
Sample sampleNamed(const QByteArray& element, const Settings& settings = {});

/// Every value of one of QStyle's enums, without its aliases and without the custom base.
template <class Enum>
QVector<Enum> all()
{
    constexpr unsigned CustomBase = 0x0f000000; // of primitives; those of others are above it
    const auto meta = QMetaEnum::fromType<Enum>();
    QVector<Enum> values;
    for (int i = 0; i < meta.keyCount(); ++i) {
        const auto value = Enum(meta.value(i));
        if (unsigned(meta.value(i)) < CustomBase && !values.contains(value))
            values.append(value);
    }
    return values;
}

/// The name of a value of one of QStyle's enums; "custom" if it is none of them.
template <class Enum>
const char* nameOf(Enum value)
{
    const char* name = QMetaEnum::fromType<Enum>().valueToKey(int(value));
    return name ? name : "custom";
}

/// "CC_SpinBox 1": a part by its value, as parts of different controls share their values.
QByteArray nameOf(QStyle::ComplexControl control, QStyle::SubControl part);

/// A primitive, control, complex control, sub-element or kind of contents.
struct Element
{
    QByteArray name;
    /// Paints it or measures it, with all its parts, and tells what it measured.
    std::function<QByteArray(const QStyle& style, const Sample& sample, QPainter* painter)> use;
};

/// Everything that is painted or measured with an option.
const QVector<Element>& elements();

} // namespace StyleOptions
