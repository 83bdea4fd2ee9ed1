#include "webhook/recorder/symbolicnames.h"

#include "corvexhook/objectmap.h"
#include "corvexhook/objectname.h"

#include <QStringList>

namespace Corvex::Webhook {

namespace {

const int mostCharacters = 40;

/// What people know an object by, the best first.
const char* const tellingProperties[] = {
    "label", "simplifiedInnerText", "innerText", "text", "alt", "title", "placeholder", "id", "name", "value", "href",
    "src"};

/// Equal for names that mean the same.
QString keyOf(const QString& realName) {
  const ObjectName name(realName);
  if (!name.isMultiProperty()) {
    return realName;
  }
  QStringList parts;
  const QMap<QString, PropertyValue> properties = name.properties();
  for (auto property = properties.begin(); property != properties.end(); ++property) {
    const PropertyValue& value = property.value();
    const QString text = value.type() == PropertyValue::NestedName ? keyOf(value.value()) : value.value();
    parts << QStringLiteral("%1 %2 %3 %4")
                 .arg(property.key(), QString::number(value.modifiers()), QString::number(value.type()), text);
  }
  return QLatin1Char('{') + parts.join(QLatin1Char('\n'));
}

/// What can be read in one glance: words of letters and digits and what stands between them, without controls.
QString readable(const QString& text) {
  QString result;
  for (const uint character : text.toUcs4()) {
    result += QChar::isPrint(character) ? QString::fromUcs4(&character, 1) : QStringLiteral(" ");
  }
  result = result.simplified();
  if (result.size() <= mostCharacters) {
    return result;
  }
  const int end = result.lastIndexOf(QLatin1Char(' '), mostCharacters);
  result.truncate(end > mostCharacters / 2 ? end : mostCharacters);
  // Half of a character is none.
  if (result.at(result.size() - 1).isHighSurrogate()) {
    result.chop(1);
  }
  return result.trimmed();
}

QString tellingText(const ObjectName& name) {
  // The value of a button is what is written on it.
  static const QStringList buttons{QStringLiteral("button"), QStringLiteral("submit"), QStringLiteral("reset")};
  const QString value = readable(name.property(QStringLiteral("value")).value());
  if (!value.isEmpty() && buttons.contains(name.property(QStringLiteral("type")).value())) {
    return value;
  }
  for (const char* property : tellingProperties) {
    const QString text = readable(name.property(QLatin1String(property)).value());
    if (!text.isEmpty()) {
      return text;
    }
  }
  return readable(name.property(QStringLiteral("tagName")).value().toLower());
}

}  // namespace

SymbolicNames::SymbolicNames(const ObjectMap& map) {
  const QStringList known = map.symbolicNames();
  for (const QString& symbolic : known) {
    const QString key = keyOf(map.realName(symbolic));
    if (!m_symbolicNames.contains(key)) {
      m_symbolicNames.insert(key, symbolic);
    }
    m_taken.insert(symbolic);
  }
}

SymbolicNames::Answer SymbolicNames::nameFor(const QString& realName) {
  const QString key = keyOf(realName);
  const QString known = m_symbolicNames.value(key);
  if (!known.isEmpty()) {
    return {known, false};
  }
  const QString made = makeName(realName);
  m_symbolicNames.insert(key, made);
  m_taken.insert(made);
  return {made, true};
}

QString SymbolicNames::makeName(const QString& realName) const {
  const ObjectName name(realName);
  const QString telling = name.isMultiProperty() ? tellingText(name) : readable(realName.section(QLatin1Char('.'), -1));
  const QString base = QLatin1Char(':') + (telling.isEmpty() ? QStringLiteral("object") : telling);
  QString candidate = base;
  for (int number = 2; m_taken.contains(candidate); ++number) {
    candidate = base + QLatin1Char(' ') + QString::number(number);
  }
  return candidate;
}

}  // namespace Corvex::Webhook
