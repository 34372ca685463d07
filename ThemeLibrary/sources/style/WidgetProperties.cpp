#include "WidgetProperties.h"

#include <QMetaProperty>

#include <array>

namespace BRELK::WidgetProperties {

namespace {

/// What a class said when it was asked for a property by name.
struct Answer
{
    const QMetaObject* meta = nullptr;
    const char* className = nullptr;
    const char* property = nullptr;
    int index = -1;
};

/// The number of the property among those that the class declares, or -1.
int declaredIndex(const QMetaObject* meta, const char* property)
{
    // Two that meet in one place take turns in it. Names are compared by their address.
    static std::array<Answer, 1024> sAnswers;

    const auto mixed =
        quint32(quintptr(meta) >> 4) * 0x9e3779b1U + quint32(quintptr(property)) * 0x85ebca6bU;
    Answer& answer = sAnswers.at(mixed >> 22);
    // A class that is gone may have left its address to another.
    if (answer.meta != meta || answer.property != property || answer.className != meta->className())
        answer = {meta, meta->className(), property, meta->indexOfProperty(property)};
    return answer.index;
}

} // namespace

QVariant value(const QObject* object, const char* property)
{
    if (!object)
        return {};
    const QMetaObject* meta = object->metaObject();
    const int index = declaredIndex(meta, property);
    if (index >= 0)
        return meta->property(index).read(object);
    const QList<QByteArray> names = object->dynamicPropertyNames();
    for (const QByteArray& name : names) {
        if (name == property)
            return object->property(property);
    }
    return {};
}

} // namespace BRELK::WidgetProperties
