#include "scripting/objects/valuetext.h"

#include <QStringList>
#include <algorithm>

#include "corvexhook/class.h"
#include "scripting/objects/values.h"

namespace Corvex::Scripting {

namespace {

// An array may hold itself, even many times, so that entries are counted over all arrays, too.
const int maxDepth = 20;
const quint32 maxEntries = 20;
const int maxEntriesOfAll = 500;
const int maxText = 4000;

QString shortened(const QString& text) {
  return text.size() <= maxText ? text : text.left(maxText) + QStringLiteral("... (%1 characters)").arg(text.size());
}

class ValueText {
public:
  explicit ValueText(const Values& values) : m_values(values) {}

  QString of(const QJSValue& value, int depth) {
    if (value.isUndefined()) {
      return QStringLiteral("undefined");
    }
    if (value.isString()) {
      return QLatin1Char('\'') + shortened(value.toString()) + QLatin1Char('\'');
    }
    if (value.isArray()) {
      return ofArray(value, depth);
    }
    if (m_values.isPlainObject(value)) {
      return ofObject(value, depth);
    }
    if (const SharedPtr<Object> object = m_values.objectOf(value)) {
      const QString name = m_values.liveObjects().name(object);
      return name.isEmpty() ? object->objectClass()->name() : name;
    }
    return value.isCallable() ? QStringLiteral("a function") : shortened(value.toString());
  }

private:
  QString ofArray(const QJSValue& array, int depth) {
    const quint32 length = Values::lengthOf(array);
    const quint32 shown = depth < maxDepth ? std::min(length, maxEntries) : 0;
    QStringList texts;
    for (quint32 i = 0; i < shown && m_left > 0; ++i) {
      --m_left;
      texts << of(array.property(i), depth + 1);
    }
    if (static_cast<quint32>(texts.size()) < length) {
      texts << QStringLiteral("...");
    }
    return QLatin1Char('[') + texts.join(QLatin1String(", ")) + QLatin1Char(']');
  }

  QString ofObject(const QJSValue& object, int depth) {
    const QStringList keys = m_values.keysOf(object);
    const int shown = depth < maxDepth ? std::min(keys.size(), static_cast<int>(maxEntries)) : 0;
    QStringList texts;
    for (int i = 0; i < shown && m_left > 0; ++i) {
      --m_left;
      texts << shortened(keys.at(i)) + QLatin1String(": ") + of(object.property(keys.at(i)), depth + 1);
    }
    if (texts.size() < keys.size()) {
      texts << QStringLiteral("...");
    }
    return QLatin1Char('{') + texts.join(QLatin1String(", ")) + QLatin1Char('}');
  }

  const Values& m_values;
  int m_left = maxEntriesOfAll;
};

}  // namespace

QString valueText(const Values& values, const QJSValue& value) { return ValueText(values).of(value, 0); }

}  // namespace Corvex::Scripting
