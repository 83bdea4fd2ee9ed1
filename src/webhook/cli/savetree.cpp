#include "webhook/cli/savetree.h"

#include "webhook/inspect/dumpfile.h"
#include "webhook/run/browsercontrol.h"
#include "webhook/run/functionrow.h"

namespace Corvex::Webhook {

namespace {

FunctionCallResult<SharedPtr<Object>> saveTree(BrowserControl& control, const ObjectList& arguments) {
  using Result = FunctionCallResult<SharedPtr<Object>>;
  const QString why = control.whyNotAskPage();
  if (!why.isEmpty()) {
    return Result::failure(why);
  }
  const PageDump dump = readDump(*control.windows(), *control.windows()->current(), usualProperties());
  const QString error = saveDump(dump, control.resolvePath(arguments[0]->toString()));
  return error.isEmpty() && dump.error.isEmpty() ? Result() : Result::failure(error.isEmpty() ? dump.error : error);
}

const FunctionRow row{"saveTree", "saveTree(file)", 1, 1, saveTree};

}  // namespace

Scripting::ScriptFunction saveTreeFunction(BrowserControl& control) { return scriptFunctionOf(row, control); }

}  // namespace Corvex::Webhook
