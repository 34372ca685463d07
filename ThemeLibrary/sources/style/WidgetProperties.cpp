#include "WidgetProperties.h"

#include <QHash>
#include <QMetaProperty>

namespace BRELK::WidgetProperties {

namespace {

struct Declaration
{
    const char* className = nullptr;
    int index = -1;
};

/// The number of the property among those that the class declares, or -1.
int declaredIndex(const QMetaObject* meta, const char* property)
{
    // Names are compared by their address: of equal ones each is asked once.
    static QHash<QPair<const QMetaObject*, const char*>, Declaration> sDeclarations;

    Declaration& declaration = sDeclarations[{meta, property}];
    if (declaration.className != meta->className()) // new, or of a class that is gone
        declaration = {meta->className(), meta->indexOfProperty(property)};
    return declaration.index;
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
    for (const QByteArray& name : object->dynamicPropertyNames()) {
        if (name == property)
            return object->property(property);
    }
    return {};
}

} // namespace BRELK::WidgetProperties
