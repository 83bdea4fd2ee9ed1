#include "scripting/engine/evaluation.h"

#include <QJSEngine>

namespace Corvex::Scripting {

namespace {

// The value of a script that ran to its end: an error that is no Error object
// cannot be told from a value otherwise.
const QLatin1String completed("\x01script completed");

}  // namespace

Evaluation evaluateFile(QJSEngine* engine, ScriptFiles* files, const QString& absolutePath) {
  const FunctionCallResult<QString> text = files->read(absolutePath);
  if (text.failed()) {
    return {engine->newErrorObject(QJSValue::GenericError, text.error), true};
  }
  const QString program = text.value + QLatin1String("\n;'") + completed + QLatin1String("'");
  const QJSValue value = engine->evaluate(program, absolutePath);
  return {value, !value.isString() || value.toString() != completed};
}

}  // namespace Corvex::Scripting
