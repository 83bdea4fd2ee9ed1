#pragma once

#include "corvexhook/export.h"

#include <QMap>
#include <QString>
#include <QVector>

namespace Corvex {

/// The value of a property in an object name, with its matching mode.
class CORVEXHOOK_EXPORT PropertyValue {
public:
  /// How the value is compared: name operator "=", "~=" or "?=".
  enum Modifiers { StrictMatch = 0, RegExp = 1, Wildcard = 2 };
  /// A quoted text, or a nested name in braces.
  enum Type { Text = 0, NestedName = 1 };

  PropertyValue() = default;
  PropertyValue(const QString& value, Modifiers modifiers = StrictMatch, Type type = Text)
      : m_value(value), m_modifiers(modifiers), m_type(type) {}

  const QString& value() const { return m_value; }
  Modifiers modifiers() const { return m_modifiers; }
  Type type() const { return m_type; }

private:
  QString m_value;
  Modifiers m_modifiers = StrictMatch;
  Type m_type = Text;
};

/// The name of an object. A multi-property name reads {a='b' c~='d.*' container={e='f'}}: properties in their order,
/// the operators "=" exact, "?=" wildcard, "~=" regular expression; inside quotes a backslash escapes a quote or a
/// backslash. The other end of this text is the page's parser of such names. Any other text is a plain name.
///
/// Names come from pages and scripts, so their length, the depth of their containers and the number of their properties
/// are limited.
class CORVEXHOOK_EXPORT ObjectName {
public:
  static constexpr int MostCharacters = 1000000;
  static constexpr int MostLevels = 100;
  static constexpr int MostProperties = 1000;

  ObjectName() = default;
  explicit ObjectName(const QString& text);

  /// The text of the name. A text that could not be parsed comes back as it was given.
  QString qualifiedName() const;
  bool isMultiProperty() const { return m_multiProperty; }
  /// What is wrong with the text and where; empty for a good name. A name with an error has no properties.
  const QString& parseError() const { return m_parseError; }

  QMap<QString, PropertyValue> properties() const;
  bool hasProperty(const QString& name) const;
  /// An empty exact value for a property that the name lacks.
  PropertyValue property(const QString& name) const;
  /// A property that the name has keeps its place; a new one goes to the end.
  void setProperty(const QString& name, const PropertyValue& value);
  void removeProperty(const QString& name);

private:
  friend class ObjectNameParser;
  struct Entry {
    QString name;
    PropertyValue value;
  };

  int indexOf(const QString& name) const;

  QString m_text;
  QString m_parseError;
  QVector<Entry> m_entries;
  bool m_multiProperty = false;
};

}  // namespace Corvex
