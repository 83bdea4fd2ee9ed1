#pragma once

#include <QStringList>

namespace Corvex {

class Class;

namespace Scripting {

/// What scripts see of a class itself, in the order of the model; not what it inherits.
QStringList ownProperties(const Class* cls);
/// Each name once. Of a property and a method of one name scripts see the property.
QStringList ownMethods(const Class* cls);
QStringList ownStaticMethods(const Class* cls);

/// The names of the classes that scripts use without an object, too: for static methods, or the items of an
/// enumeration.
QStringList globalClasses();

}  // namespace Scripting
}  // namespace Corvex
