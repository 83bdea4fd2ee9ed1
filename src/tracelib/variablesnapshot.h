#pragma once

#include <QString>
#include <cstddef>
#include <vector>

#include "tracelib/export.h"

namespace brantholt::tracelib {

/// A value at the moment a trace point is visited: a text or a number.
class TRACELIB_EXPORT VariableValue {
public:
  static VariableValue stringValue(const QString& value);
  static VariableValue numberValue(qlonglong value);

  bool isNumber() const { return m_isNumber; }
  QString convertToString() const { return m_text; }

private:
  VariableValue(const QString& text, bool isNumber) : m_text(text), m_isNumber(isNumber) {}

  QString m_text;
  bool m_isNumber;
};

struct Variable {
  QString name;
  VariableValue value;
};

/// The variables that one visit of a trace point writes, in the order they were added.
class TRACELIB_EXPORT VariableSnapshot {
public:
  VariableSnapshot& add(const QString& name, const QString& value);
  VariableSnapshot& add(const QString& name, qlonglong value);

  std::size_t size() const { return m_variables.size(); }
  const Variable& operator[](std::size_t index) const { return m_variables[index]; }

  /// "name = value" items, parted by ", "; the empty text for an empty snapshot.
  QString toString() const;

private:
  std::vector<Variable> m_variables;
};

}  // namespace brantholt::tracelib
