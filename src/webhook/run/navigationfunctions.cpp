#include "webhook/run/navigationfunctions.h"

#include "corvexhook/inspector.h"
#include "webhook/protocol/inpagetext.h"
#include "webhook/run/windowcall.h"

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

struct Row {
  const char* name;
  const char* usage;
  int arguments;
  ScriptValue (*call)(BrowserControl& control, const ObjectList& arguments);
};

const Row rows[] = {
    {"openUrl", "openUrl(url)", 1, openUrl},
    {"goBack", "goBack()", 0, [](BrowserControl& c, const ObjectList&) { return nothing(c.goThroughHistory(-1)); }},
    {"goForward", "goForward()", 0,
     [](BrowserControl& c, const ObjectList&) { return nothing(c.goThroughHistory(1)); }},
    {"reload", "reload()", 0, [](BrowserControl& c, const ObjectList&) { return nothing(c.reload()); }},
    {"currentUrl", "currentUrl()", 0, currentUrl},
    {"pageTitle", "pageTitle()", 0, pageTitle},
};

ScriptValue run(const Row& row, BrowserControl& control, const ObjectList& arguments) {
  return withWindow(control, [&] { return row.call(control, arguments); });
}

}  // namespace

std::vector<Scripting::ScriptFunction> navigationFunctions(BrowserControl& control) {
  std::vector<Scripting::ScriptFunction> functions;
  for (const Row& row : rows) {
    functions.push_back({QString::fromLatin1(row.name), QString::fromLatin1(row.usage), row.arguments, row.arguments,
                         [&control, &row](const ObjectList& arguments) { return run(row, control, arguments); }});
  }
  return functions;
}

}  // namespace Corvex::Webhook
