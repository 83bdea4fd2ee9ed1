#include "wrappers/web/containers.h"

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

// An object map whose containers go round in a circle would have no end.
const int maxDepth = 100;

std::list<ObjectName> split(ObjectName name, int depth) {
  if (!name.hasProperty(containerProperty()) || depth == maxDepth) {
    return {name};
  }
  const QString container = name.property(containerProperty()).value();
  const QString realName = ObjectMap::self()->realName(container);
  std::list<ObjectName> names = split(ObjectName(realName.isEmpty() ? container : realName), depth + 1);
  name.removeProperty(containerProperty());
  names.push_back(name);
  return names;
}

}  // namespace

std::list<ObjectName> splitByContainer(ObjectName name) { return split(name, 0); }

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
