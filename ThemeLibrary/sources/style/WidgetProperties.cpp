#include "WidgetProperties.h"

#include "ThemeNames.h"

#include <QMetaProperty>
#include <QTabWidget>

#include <array>
#include <utility>

namespace BRELK::WidgetProperties {

namespace {

/// What a class said when it was asked for a property by name.
struct Answer
{
    const QMetaObject* meta = nullptr;
    const char* className = nullptr;
    const char* property = nullptr;
    int index = 0; ///< as -1 the answers would stand in the file of the library
};

/// The number of the property among those that the class declares, or -1.
int declaredIndex(const QMetaObject* meta, const char* property)
{
    // A push button asks some thirty times: asking its class takes 1,330 instructions each time, a
    // QHash, which would not notice a class that is gone, 84, and this 59. Two share a place, and
    // the newer stands first. Names are compared by their address.
    static std::array<std::pair<Answer, Answer>, 1024> sAnswers;

    const auto mixed =
        quint32(quintptr(meta) >> 4) * 0x9e3779b1U + quint32(quintptr(property)) * 0x85ebca6bU;
    const char* className = meta->className(); // one that is gone may have left its address
    const auto fits = [&](const Answer& answer) {
        return answer.meta == meta && answer.property == property && answer.className == className;
    };
    auto& [first, second] = sAnswers.at(mixed >> 22);
    if (fits(first))
        return first.index;
    if (fits(second))
        return second.index;
    second = std::exchange(first, {meta, className, property, meta->indexOfProperty(property)});
    return first.index;
}

} // namespace

Reader::Reader(const QObject* object) : m_object(object)
{
    if (!object)
        return;
    m_class = object->metaObject();
    m_ownNames = object->dynamicPropertyNames();
}

QVariant Reader::value(const char* property) const
{
    if (!m_object)
        return {};
    const int index = declaredIndex(m_class, property);
    if (index >= 0)
        return m_class->property(index).read(m_object);
    for (const QByteArray& name : m_ownNames) {
        if (name == property)
            return m_object->property(property);
    }
    return {};
}

QString Reader::kind() const
{
    static const QString sHighlighted = ThemeNames::Highlighted;
    if (flag(Highlighted))
        return sHighlighted;
    for (const char* property : {Status, Order, ButtonType}) {
        if (const QString word = text(property); !word.isEmpty())
            return word;
    }
    return {};
}

bool tabFlag(const QWidget* tabs, const char* property)
{
    return flag(tabs, property)
           || (tabs && flag(qobject_cast<const QTabWidget*>(tabs->parentWidget()), property));
}

} // namespace BRELK::WidgetProperties
