#pragma once

#include <QByteArray>

namespace TestSupport {

/// Sets an environment variable (or removes it, by a null value) as long as it lives.
class ScopedVariable {
public:
  ScopedVariable(const char* name, const QByteArray& value)
      : m_name(name), m_wasSet(qEnvironmentVariableIsSet(name)), m_previous(qgetenv(name)) {
    put(!value.isNull(), value);
  }
  ~ScopedVariable() { put(m_wasSet, m_previous); }

  ScopedVariable(const ScopedVariable&) = delete;
  ScopedVariable& operator=(const ScopedVariable&) = delete;

private:
  void put(bool set, const QByteArray& value) {
    if (set) {
      qputenv(m_name, value);
    } else {
      qunsetenv(m_name);
    }
  }

  const char* m_name;
  bool m_wasSet;
  QByteArray m_previous;
};

}  // namespace TestSupport
