#include "tracelib/variablesnapshot.h"

#include <QStringList>

namespace brantholt::tracelib {

VariableValue VariableValue::stringValue(const QString& value) { return VariableValue(value, false); }

VariableValue VariableValue::numberValue(qlonglong value) { return VariableValue(QString::number(value), true); }

VariableSnapshot& VariableSnapshot::add(const QString& name, const QString& value) {
  m_variables.push_back({name, VariableValue::stringValue(value)});
  return *this;
}

VariableSnapshot& VariableSnapshot::add(const QString& name, qlonglong value) {
  m_variables.push_back({name, VariableValue::numberValue(value)});
  return *this;
}

QString VariableSnapshot::toString() const {
  QStringList items;
  for (const Variable& variable : m_variables) {
    items.append(variable.name + QStringLiteral(" = ") + variable.value.convertToString());
  }
  return items.join(QStringLiteral(", "));
}

}  // namespace brantholt::tracelib
