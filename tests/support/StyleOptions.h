#pragma once

#include <QtWidgets>

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

/// "name=value" or, for what is true, "name", between blanks; "_" stands for a blank in a name. Of
/// all samples "size=120x28" and of those with icons "icon=none" is understood.
Settings settingsOf(const QByteArray& words);

/// A state that a widget can be painted in, as it differs from the one at rest.
struct State
{
    const char* name;
    QStyle::State added = QStyle::State_None;
    QStyle::State removed = QStyle::State_None;
    Qt::LayoutDirection direction = Qt::LeftToRight;
};

constexpr State AtRest{"at rest"};
constexpr State Hovered{"hovered", QStyle::State_MouseOver};
constexpr State Pressed{"pressed", QStyle::State_MouseOver | QStyle::State_Sunken};
constexpr State Checked{"checked", QStyle::State_On};
constexpr State Selected{"selected", QStyle::State_Selected};
constexpr State Focused{"focused", QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange};
constexpr State Disabled{"disabled", {}, QStyle::State_Enabled};
constexpr State RightToLeft{"right to left", {}, {}, Qt::RightToLeft};

/// By the name of an element, as "CE_PushButton".
Sample sampleNamed(const QByteArray& element, const Settings& settings = {},
                   const State& state = AtRest);

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
    /// Measures it with all its parts and tells of it; of what is only painted it tells nothing.
    std::function<QByteArray(const QStyle& style, const Sample& sample)> measure;
    std::function<void(const QStyle& style, const Sample& sample, QPainter* painter)> paint;

    QByteArray use(const QStyle& style, const Sample& sample, QPainter* painter) const
    {
        const QByteArray measured = measure(style, sample);
        paint(style, sample, painter);
        return measured;
    }
};

/// Everything that is painted or measured with an option.
const QVector<Element>& elements();

const Element& elementNamed(const QByteArray& name);

} // namespace StyleOptions
