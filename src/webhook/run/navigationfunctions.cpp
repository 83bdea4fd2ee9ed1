#include "webhook/run/navigationfunctions.h"

#include "corvexhook/inspector.h"
#include "webhook/protocol/inpagetext.h"
#include "webhook/run/browsercontrol.h"
#include "webhook/run/functionrow.h"

namespace Corvex::Webhook {

namespace {

using ScriptValue = FunctionCallResult<SharedPtr<Object>>;

ScriptValue nothing(const QString& error) { return {nullptr, error}; }

ScriptValue openUrl(BrowserControl& control, const ObjectList& arguments) {
  const QString address = arguments[0]->toString();
  return nothing(address.trimmed().isEmpty()
                     ? QStringLiteral("openUrl needs an address, or a file beside the script, but got an empty text.")
                     : control.openUrl(address));
}

ScriptValue currentUrl(BrowserControl& control, const ObjectList&) {
  return ScriptValue::success(Inspector::self()->wrapString(control.windows()->current()->address()));
}

ScriptValue pageTitle(BrowserControl& control, const ObjectList&) {
  control.finishLoad();
  const QString why = control.whyNotAskPage();
  if (!why.isEmpty()) {
    return nothing(why);
  }
  const JavaScriptAnswer title = control.windows()->current()->evaluateInAnyDocument(inPageText("pagetitle.js"), 0);
  return title.succeeded() ? ScriptValue::success(Inspector::self()->wrapString(title.text)) : nothing(title.text);
}

const FunctionRow rows[] = {
    {"openUrl", "openUrl(url)", 1, 1, openUrl},
    {"goBack", "goBack()", 0, 0, [](BrowserControl& c, const ObjectList&) { return nothing(c.goThroughHistory(-1)); }},
    {"goForward", "goForward()", 0, 0,
     [](BrowserControl& c, const ObjectList&) { return nothing(c.goThroughHistory(1)); }},
    {"reload", "reload()", 0, 0, [](BrowserControl& c, const ObjectList&) { return nothing(c.reload()); }},
    {"currentUrl", "currentUrl()", 0, 0, currentUrl},
    {"pageTitle", "pageTitle()", 0, 0, pageTitle},
};

}  // namespace

std::vector<Scripting::ScriptFunction> navigationFunctions(BrowserControl& control) {
  return scriptFunctionsOf(rows, control);
}

}  // namespace Corvex::Webhook
