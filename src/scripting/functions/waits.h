#pragma once

#include <QJSValue>
#include <QStringList>
#include <functional>

#include "scripting/objects/values.h"
#include "shared/functioncallresult.h"

namespace Corvex::Scripting {

/// The functions that repeat an attempt of the script until it has found what it looks for. As the checks do, they take
/// script values as they are.
class Waits {
public:
  using Answer = FunctionCallResult<QJSValue>;
  using ErrorText = std::function<QString(const QJSValue& thrown)>;

  explicit Waits(const Values& values) : m_values(values) {}

  static QStringList names();
  /// What is wrong with the number of arguments, or with the time among them; empty when nothing is.
  QString whyNot(const QString& name, const QJSValueList& arguments) const;
  /// `attempt` answers an object: the `value` that it saw and whether that is `found`, or the `error` that it threw.
  /// The answer is the value that was found.
  Answer wait(const QString& name, const QJSValueList& arguments, const QJSValue& attempt,
              const ErrorText& errorText) const;

private:
  const Values& m_values;
};

}  // namespace Corvex::Scripting
