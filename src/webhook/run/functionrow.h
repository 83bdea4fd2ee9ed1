#pragma once

#include "scripting/scriptfunction.h"

namespace Corvex::Webhook {

class BrowserControl;

/// A global function of test scripts about a browser: a line of a family's table, which has to outlive the functions.
struct FunctionRow {
  enum Trait { WithoutWindow = 1, TakesNull = 2, GivesJson = 4, TakesOptions = 8 };

  const char* name;
  const char* usage;
  int minArguments;
  int maxArguments;
  FunctionCallResult<SharedPtr<Object>> (*call)(BrowserControl& control, const ObjectList& arguments);
  /// Of `Trait`. A function needs a window unless they say else.
  int traits = 0;
};

/// The row and `control` outlive the function.
Scripting::ScriptFunction scriptFunctionOf(const FunctionRow& row, BrowserControl& control);

template <std::size_t Count>
std::vector<Scripting::ScriptFunction> scriptFunctionsOf(const FunctionRow (&rows)[Count], BrowserControl& control) {
  std::vector<Scripting::ScriptFunction> functions;
  for (const FunctionRow& row : rows) {
    functions.push_back(scriptFunctionOf(row, control));
  }
  return functions;
}

}  // namespace Corvex::Webhook
