#include "StyleOptions.h"
#include "Transcript.h"

#include <QStyleOption>

namespace StyleOptions {

namespace {

/// The last of the parts that `control` has a rectangle for; a dial has none.
QStyle::SubControl lastPartOf(QStyle::ComplexControl control)
{
    switch (control) {
    case QStyle::CC_SpinBox: return QStyle::SC_SpinBoxEditField;
    case QStyle::CC_ComboBox: return QStyle::SC_ComboBoxListBoxPopup;
    case QStyle::CC_ScrollBar: return QStyle::SC_ScrollBarGroove;
    case QStyle::CC_Slider: return QStyle::SC_SliderTickmarks;
    case QStyle::CC_ToolButton: return QStyle::SC_ToolButtonMenu;
    case QStyle::CC_TitleBar: return QStyle::SC_TitleBarLabel;
    case QStyle::CC_GroupBox: return QStyle::SC_GroupBoxFrame;
    case QStyle::CC_MdiControls: return QStyle::SC_MdiCloseButton;
    default: return QStyle::SC_None;
    }
}

/// Also of a rectangle that is wider than a number says.
QByteArray toText(const QRect& rect)
{
    return ::toText({QPointF(rect.topLeft()), QPointF(rect.right() + 1.0, rect.bottom() + 1.0)});
}

template <class Painted>
QByteArray measure(Painted, const QStyle&, const Sample&)
{
    return {};
}

QByteArray measure(QStyle::ComplexControl control, const QStyle& style, const Sample& sample)
{
    const auto* option = static_cast<const QStyleOptionComplex*>(sample.option.get());
    QByteArray text = "parts";
    for (unsigned part = 1; part <= lastPartOf(control); part <<= 1)
        text += " " + QByteArray::number(part, 16) + ": "
                + toText(style.subControlRect(control, option, QStyle::SubControl(part),
                                              sample.widget.get()));
    style.hitTestComplexControl(control, option, QPoint(5, 5), sample.widget.get());
    return text + '\n';
}

QByteArray measure(QStyle::SubElement element, const QStyle& style, const Sample& sample)
{
    return toText(style.subElementRect(element, sample.option.get(), sample.widget.get())) + '\n';
}

QByteArray measure(QStyle::ContentsType type, const QStyle& style, const Sample& sample)
{
    QByteArray text = "sizes";
    for (const QSize contents : {QSize(40, 16), QSize(), QSize(20000, 20000)}) {
        style.sizeFromContents(type, nullptr, contents, nullptr);
        const QSize size =
            style.sizeFromContents(type, sample.option.get(), contents, sample.widget.get());
        text += ' ' + toText(QRect(QPoint(), size)).mid(4);
    }
    return text + '\n';
}

template <class Measured>
void paint(Measured, const QStyle&, const Sample&, QPainter*)
{ }

void paint(QStyle::PrimitiveElement element, const QStyle& style, const Sample& sample,
           QPainter* painter)
{
    style.drawPrimitive(element, sample.option.get(), painter, sample.widget.get());
}

void paint(QStyle::ControlElement element, const QStyle& style, const Sample& sample,
           QPainter* painter)
{
    style.drawControl(element, sample.option.get(), painter, sample.widget.get());
}

void paint(QStyle::ComplexControl control, const QStyle& style, const Sample& sample,
           QPainter* painter)
{
    style.drawComplexControl(control, static_cast<const QStyleOptionComplex*>(sample.option.get()),
                             painter, sample.widget.get());
}

template <class Enum>
void appendAll(QVector<Element>& elements)
{
    for (const Enum element : all<Enum>())
        elements.append({nameOf(element),
                         [element](const QStyle& style, const Sample& sample) {
                             return measure(element, style, sample);
                         },
                         [element](const QStyle& style, const Sample& sample, QPainter* painter) {
                             paint(element, style, sample, painter);
                         }});
}

} // namespace

QByteArray nameOf(QStyle::ComplexControl control, QStyle::SubControl part)
{
    return QByteArray(nameOf(control)) + ' ' + QByteArray::number(unsigned(part), 16);
}

const QVector<Element>& elements()
{
    static const QVector<Element> sElements = [] {
        QVector<Element> elements;
        appendAll<QStyle::PrimitiveElement>(elements);
        appendAll<QStyle::ControlElement>(elements);
        appendAll<QStyle::ComplexControl>(elements);
        appendAll<QStyle::SubElement>(elements);
        appendAll<QStyle::ContentsType>(elements);
        return elements;
    }();
    return sElements;
}

const Element& elementNamed(const QByteArray& name)
{
    return *std::find_if(elements().cbegin(), elements().cend(),
                         [&](const Element& element) { return element.name == name; });
}

} // namespace StyleOptions
