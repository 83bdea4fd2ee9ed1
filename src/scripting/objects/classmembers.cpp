#include "scripting/objects/classmembers.h"

#include "corvexhook/class.h"
#include "corvexhook/inspector.h"

#include <functional>

namespace Corvex::Scripting {

namespace {

QStringList methodsThat(const Class* cls, const std::function<bool(const Method&)>& isMeant) {
  QStringList names;
  for (int id = cls->superClassOffset(Class::MethodOffset); id < cls->numMethods(); ++id) {
    const Method* const method = cls->method(id);
    if (method && isMeant(*method)) {
      names << method->name();
    }
  }
  names.removeDuplicates();
  return names;
}

}  // namespace

QStringList ownProperties(const Class* cls) {
  QStringList names;
  for (int id = cls->superClassOffset(Class::PropertyOffset); id < cls->numProperties(); ++id) {
    if (const Property* const property = cls->property(id)) {
      names << property->name();
    }
  }
  return names;
}

QStringList ownMethods(const Class* cls) {
  return methodsThat(cls, [cls](const Method& method) { return !cls->property(method.name()); });
}

QStringList ownStaticMethods(const Class* cls) {
  return methodsThat(cls, [](const Method& method) { return method.isStatic(); });
}

QStringList globalClasses() {
  QStringList names;
  for (const Class* const cls : Inspector::self()->globalNamespace()->classes()) {
    if (cls->isPublic() && (cls->createEnum(0) || !ownStaticMethods(cls).isEmpty())) {
      names << cls->name();
    }
  }
  return names;
}

}  // namespace Corvex::Scripting
