#include "corvexhook/objectname.h"

#include <QStringList>

namespace Corvex {

namespace {

struct Operator {
  PropertyValue::Modifiers modifiers;
  const char* text;
};

const Operator operators[] = {
    {PropertyValue::StrictMatch, "="},
    {PropertyValue::RegExp, "~="},
    {PropertyValue::Wildcard, "?="},
};

QString operatorText(PropertyValue::Modifiers modifiers) {
  for (const Operator& op : operators) {
    if (op.modifiers == modifiers) {
      return QString::fromLatin1(op.text);
    }
  }
  return QString();
}

QString quoted(QString text) {
  text.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
  text.replace(QLatin1Char('\''), QLatin1String("\\'"));
  return QLatin1Char('\'') + text + QLatin1Char('\'');
}

bool isBlank(QChar c) { return c == QLatin1Char(' ') || c == QLatin1Char('\t'); }

}  // namespace

/// Reads one name of a text, from its opening brace to its closing one, and the names that lie in it on the way, so
/// that each character is looked at once.
class ObjectNameParser {
public:
  ObjectNameParser(const QString& text, int start, int depth, ObjectName* name)
      : m_text(text), m_start(start), m_depth(depth), m_name(name), m_pos(start + 1) {}

  /// The error, or an empty text.
  QString parse() {
    if (m_depth >= ObjectName::MostLevels) {
      return QStringLiteral("names are nested more than %1 deep").arg(ObjectName::MostLevels);
    }
    for (;;) {
      skipBlanks();
      if (atEnd()) {
        return error(QStringLiteral("the closing brace is missing"));
      }
      if (current() == QLatin1Char('}')) {
        ++m_pos;
        return QString();
      }
      if (++m_properties > ObjectName::MostProperties) {
        return QStringLiteral("a name has at most %1 properties").arg(ObjectName::MostProperties);
      }
      const QString problem = parseProperty();
      if (!problem.isEmpty()) {
        return problem;
      }
    }
  }

  /// The same for a name that is all of the text.
  QString parseWhole() {
    if (m_text.size() > ObjectName::MostCharacters) {
      return QStringLiteral("it has more than %1 characters").arg(ObjectName::MostCharacters);
    }
    const QString problem = parse();
    skipBlanks();
    return !problem.isEmpty() || atEnd() ? problem : error(QStringLiteral("there is text after the closing brace"));
  }

private:
  bool atEnd() const { return m_pos >= m_text.size(); }
  QChar current() const { return m_text.at(m_pos); }
  QString error(const QString& what) const {
    return QStringLiteral("%1 at position %2").arg(what, QString::number(m_pos - m_start + 1));
  }

  void skipBlanks() {
    while (!atEnd() && isBlank(current())) {
      ++m_pos;
    }
  }

  QString parseProperty() {
    const int start = m_pos;
    while (!atEnd() && !isBlank(current()) && !QStringLiteral("=~?'{}").contains(current())) {
      ++m_pos;
    }
    const QString name = m_text.mid(start, m_pos - start);
    if (name.isEmpty()) {
      return error(QStringLiteral("a property name is missing"));
    }
    PropertyValue::Modifiers modifiers = PropertyValue::StrictMatch;
    if (!parseOperator(&modifiers)) {
      return error(QStringLiteral("one of the operators =, ~= or ?= is missing after the property '%1'").arg(name));
    }
    return parseValue(name, modifiers);
  }

  bool parseOperator(PropertyValue::Modifiers* modifiers) {
    for (const Operator& op : operators) {
      const QString text = QString::fromLatin1(op.text);
      if (m_text.midRef(m_pos, text.size()) == text) {
        m_pos += text.size();
        *modifiers = op.modifiers;
        return true;
      }
    }
    return false;
  }

  QString parseValue(const QString& name, PropertyValue::Modifiers modifiers) {
    if (!atEnd() && current() == QLatin1Char('\'')) {
      return parseQuoted(name, modifiers);
    }
    if (!atEnd() && current() == QLatin1Char('{')) {
      return parseNested(name, modifiers);
    }
    return error(QStringLiteral("the value of the property '%1' is not in single quotes").arg(name));
  }

  QString parseQuoted(const QString& name, PropertyValue::Modifiers modifiers) {
    QString value;
    for (++m_pos; !atEnd(); ++m_pos) {
      if (current() == QLatin1Char('\'')) {
        ++m_pos;
        m_name->setProperty(name, PropertyValue(value, modifiers, PropertyValue::Text));
        return QString();
      }
      if (current() == QLatin1Char('\\') && m_pos + 1 < m_text.size()) {
        ++m_pos;
      }
      value += current();
    }
    return error(QStringLiteral("the closing quote of the property '%1' is missing").arg(name));
  }

  QString parseNested(const QString& name, PropertyValue::Modifiers modifiers) {
    const int start = m_pos;
    ObjectName nested;
    ObjectNameParser parser(m_text, start, m_depth + 1, &nested);
    const QString nestedError = parser.parse();
    m_pos = parser.m_pos;
    if (nestedError.isEmpty()) {
      m_name->setProperty(name, PropertyValue(m_text.mid(start, m_pos - start), modifiers, PropertyValue::NestedName));
      return QString();
    }
    // Of a long way to the error only the beginning is told.
    return m_depth < 3 ? QStringLiteral("in the value of '%1': %2").arg(name, nestedError) : nestedError;
  }

  const QString& m_text;
  const int m_start;
  const int m_depth;
  ObjectName* m_name;
  int m_pos;
  int m_properties = 0;
};

ObjectName::ObjectName(const QString& text) : m_text(text), m_multiProperty(text.startsWith(QLatin1Char('{'))) {
  if (m_multiProperty) {
    m_parseError = ObjectNameParser(text, 0, 0, this).parseWhole();
    if (!m_parseError.isEmpty()) {
      m_entries.clear();
    }
  }
}

QString ObjectName::qualifiedName() const {
  if (!m_multiProperty || !m_parseError.isEmpty()) {
    return m_text;
  }
  QStringList parts;
  for (const Entry& entry : m_entries) {
    const bool nested = entry.value.type() == PropertyValue::NestedName;
    parts << entry.name + operatorText(entry.value.modifiers()) +
                 (nested ? entry.value.value() : quoted(entry.value.value()));
  }
  return QLatin1Char('{') + parts.join(QLatin1Char(' ')) + QLatin1Char('}');
}

QMap<QString, PropertyValue> ObjectName::properties() const {
  QMap<QString, PropertyValue> map;
  for (const Entry& entry : m_entries) {
    map.insert(entry.name, entry.value);
  }
  return map;
}

bool ObjectName::hasProperty(const QString& name) const { return indexOf(name) >= 0; }

PropertyValue ObjectName::property(const QString& name) const {
  const int index = indexOf(name);
  return index < 0 ? PropertyValue() : m_entries.at(index).value;
}

void ObjectName::setProperty(const QString& name, const PropertyValue& value) {
  const int index = indexOf(name);
  if (index < 0) {
    m_entries.append({name, value});
  } else {
    m_entries[index].value = value;
  }
}

void ObjectName::removeProperty(const QString& name) {
  const int index = indexOf(name);
  if (index >= 0) {
    m_entries.remove(index);
  }
}

int ObjectName::indexOf(const QString& name) const {
  for (int i = 0; i < m_entries.size(); ++i) {
    if (m_entries.at(i).name == name) {
      return i;
    }
  }
  return -1;
}

}  // namespace Corvex
