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

class ObjectNameParser {
public:
  ObjectNameParser(const QString& text, ObjectName* name) : m_text(text), m_name(name) {}

  /// The error, or an empty text.
  QString parse() {
    m_pos = 1;
    for (;;) {
      skipBlanks();
      if (atEnd()) {
        return error(QStringLiteral("the closing brace is missing"));
      }
      if (current() == QLatin1Char('}')) {
        ++m_pos;
        return trailing();
      }
      const QString problem = parseProperty();
      if (!problem.isEmpty()) {
        return problem;
      }
    }
  }

private:
  bool atEnd() const { return m_pos >= m_text.size(); }
  QChar current() const { return m_text.at(m_pos); }
  QString error(const QString& what) const {
    return QStringLiteral("%1 at position %2").arg(what, QString::number(m_pos + 1));
  }

  void skipBlanks() {
    while (!atEnd() && isBlank(current())) {
      ++m_pos;
    }
  }

  QString trailing() {
    skipBlanks();
    return atEnd() ? QString() : error(QStringLiteral("there is text behind the closing brace"));
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
      return error(QStringLiteral("one of the operators =, ~= or ?= is missing behind the property '%1'").arg(name));
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
    int depth = 0;
    bool inQuotes = false;
    for (; !atEnd(); ++m_pos) {
      if (inQuotes && current() == QLatin1Char('\\')) {
        ++m_pos;
      } else if (current() == QLatin1Char('\'')) {
        inQuotes = !inQuotes;
      } else if (!inQuotes && current() == QLatin1Char('{')) {
        ++depth;
      } else if (!inQuotes && current() == QLatin1Char('}') && --depth == 0) {
        ++m_pos;
        const QString value = m_text.mid(start, m_pos - start);
        const QString nestedError = ObjectName(value).parseError();
        m_name->setProperty(name, PropertyValue(value, modifiers, PropertyValue::NestedName));
        return nestedError.isEmpty() ? QString() : QStringLiteral("in the value of '%1': %2").arg(name, nestedError);
      }
    }
    return error(QStringLiteral("the closing brace of the property '%1' is missing").arg(name));
  }

  const QString& m_text;
  ObjectName* m_name;
  int m_pos = 0;
};

ObjectName::ObjectName(const QString& text) : m_text(text), m_multiProperty(text.startsWith(QLatin1Char('{'))) {
  if (m_multiProperty) {
    m_parseError = ObjectNameParser(text, this).parse();
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
