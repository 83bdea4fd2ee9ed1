#include "webhook/run/functionrow.h"

#include "webhook/run/windowcall.h"

namespace Corvex::Webhook {

Scripting::ScriptFunction scriptFunctionOf(const FunctionRow& row, BrowserControl& control) {
  Scripting::ScriptFunction function;
  function.name = QLatin1String(row.name);
  function.usage = QLatin1String(row.usage);
  function.minArguments = row.minArguments;
  function.maxArguments = row.maxArguments;
  function.takesNull = row.traits & FunctionRow::TakesNull;
  function.givesJson = row.traits & FunctionRow::GivesJson;
  function.takesOptions = row.traits & FunctionRow::TakesOptions;
  function.call = [&row, &control](const ObjectList& arguments) {
    const auto call = [&] { return row.call(control, arguments); };
    return row.traits & FunctionRow::WithoutWindow ? call() : withWindow(control, call);
  };
  return function;
}

}  // namespace Corvex::Webhook
