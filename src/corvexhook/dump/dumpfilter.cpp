#include "corvexhook/dump/dumpfilter.h"

#include "corvexhook/primitives.h"

#include <QRegularExpression>

#include <algorithm>

namespace Corvex {

namespace {

bool fits(const QString& pattern, const QString& name) {
  if (!pattern.contains(QLatin1Char('*'))) {
    return pattern == name;
  }
  QStringList parts = pattern.split(QLatin1Char('*'));
  for (QString& part : parts) {
    part = QRegularExpression::escape(part);
  }
  return QRegularExpression(QRegularExpression::anchoredPattern(parts.join(QLatin1String(".*"))))
      .match(name)
      .hasMatch();
}

}  // namespace

FilterObject::FilterObject(const QString& className, const QStringList& properties, const QStringList& identifying)
    : m_className(className), m_properties(properties), m_identifying(identifying) {}

bool FilterObject::isMatchedProperty(const QString& name, PropertyInfo* info) const {
  const bool isMatched = std::any_of(m_properties.begin(), m_properties.end(),
                                     [&name](const QString& pattern) { return fits(pattern, name); });
  if (isMatched && info) {
    info->isIdentifying = m_identifying.contains(name);
  }
  return isMatched;
}

const FilterObject* filterObjectForCorvexObject(const SharedPtr<Object>& object, const DumpFilter& filters) {
  for (const Class* cls = object ? object->objectClass() : nullptr; cls; cls = cls->superClass()) {
    const auto found = std::find_if(filters.objects.begin(), filters.objects.end(),
                                    [cls](const FilterObject& filter) { return filter.className() == cls->name(); });
    if (found != filters.objects.end()) {
      return &*found;
    }
  }
  return nullptr;
}

bool hasSimpleValue(const Property& property) {
  return dynamic_cast<const PrimitiveClass*>(property.type().type()) != nullptr;
}

}  // namespace Corvex
