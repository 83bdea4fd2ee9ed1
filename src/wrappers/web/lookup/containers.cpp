#include "wrappers/web/lookup/containers.h"

#include "corvexhook/inspector.h"
#include "corvexhook/objectmap.h"

namespace Corvex::WebWrapper {

namespace {

const QString& containerProperty() {
  static const QString name = QStringLiteral("container");
  return name;
}

PropertyValue containerValue(const QString& container) {
  const bool isNested = container.startsWith(QLatin1Char('{'));
  return PropertyValue(container, PropertyValue::StrictMatch,
                       isNested ? PropertyValue::NestedName : PropertyValue::Text);
}

/// How a name stands as the value of a property.
QString asValue(const QString& name) {
  if (name.startsWith(QLatin1Char('{'))) {
    return name;
  }
  QString escaped = name;
  escaped.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
  escaped.replace(QLatin1Char('\''), QLatin1String("\\'"));
  return QLatin1Char('\'') + escaped + QLatin1Char('\'');
}

}  // namespace

std::list<ObjectName> splitByContainer(ObjectName name) {
  std::list<ObjectName> names;
  while (name.hasProperty(containerProperty()) && names.size() + 1 < maxContainerChain) {
    const QString container = name.property(containerProperty()).value();
    const QString realName = ObjectMap::self()->realName(container);
    name.removeProperty(containerProperty());
    names.push_front(name);
    name = ObjectName(realName.isEmpty() ? container : realName);
  }
  name.removeProperty(containerProperty());
  names.push_front(name);
  return names;
}

bool isEndlessChain(const std::list<ObjectName>& parts, const ObjectName& name) {
  if (parts.size() < maxContainerChain) {
    return false;
  }
  Inspector::self()->reportScriptError(
      QStringLiteral("Invalid object name '%1': its containers go round in a circle. Correct the object map.")
          .arg(name.qualifiedName()));
  return true;
}

ObjectName joinByContainer(const std::list<ObjectName>& names) {
  QString text;
  for (const ObjectName& name : names) {
    const QString container = text;
    text = name.qualifiedName();
    if (!container.isEmpty()) {
      text.insert(1, QStringLiteral("container=%1 ").arg(asValue(container)));
    }
  }
  return ObjectName(text);
}

ObjectName setObjectNameContainer(ObjectName name, QString container) {
  if (!name.isMultiProperty()) {
    return ObjectName(container + QLatin1Char('.') + name.qualifiedName());
  }
  const QString inner = name.property(containerProperty()).value();
  const QString outer =
      inner.isEmpty() ? container : setObjectNameContainer(ObjectName(inner), container).qualifiedName();
  name.setProperty(containerProperty(), containerValue(outer));
  return name;
}

}  // namespace Corvex::WebWrapper
