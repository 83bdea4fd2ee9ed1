#include "webhook/run/credentialfunctions.h"

#include "webhook/browser/authentication.h"
#include "webhook/run/browsercontrol.h"
#include "webhook/run/functionrow.h"

namespace Corvex::Webhook {

namespace {

FunctionCallResult<SharedPtr<Object>> setCredentials(BrowserControl& control, const ObjectList& arguments) {
  const QString wish = arguments.at(2) ? arguments.at(2)->toString() : QString();
  const Credentials credentials{arguments.at(0)->toString(), arguments.at(1)->toString(),
                                Authentication::originOf(wish)};
  if (credentials.user.isEmpty() || (!wish.isEmpty() && credentials.origin.isEmpty())) {
    return {nullptr, QStringLiteral("setCredentials needs a user, a password and, for one server alone, its origin, "
                                    "such as https://example.com.")};
  }
  control.addCredentials(credentials);
  return {};
}

const FunctionRow row{"setCredentials",          "setCredentials(user, password[, origin])", 2, 3, setCredentials,
                      FunctionRow::WithoutWindow};

}  // namespace

std::vector<Scripting::ScriptFunction> credentialFunctions(BrowserControl& control) {
  Scripting::ScriptFunction function = scriptFunctionOf(row, control);
  function.shownArguments = 1;
  return {function};
}

}  // namespace Corvex::Webhook
