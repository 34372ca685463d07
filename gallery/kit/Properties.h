#pragma once

#include <QVariant>

namespace Gallery {

/// Sets the dynamic property `name` of `object` and returns the object.
template <class Object>
Object* with(Object* object, const char* name, const QVariant& value = true)
{
    object->setProperty(name, value);
    return object;
}

} // namespace Gallery
