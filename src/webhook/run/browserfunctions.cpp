#include "webhook/run/browserfunctions.h"

#include "corvexhook/arrayclass.h"
#include "corvexhook/inspector.h"
#include "shared/wait.h"
#include "webhook/pages/contexts.h"
#include "webhook/run/browsercontrol.h"
#include "webhook/run/credentialfunctions.h"
#include "webhook/run/downloadfunctions.h"
#include "webhook/run/filedialog.h"
#include "webhook/run/functionrow.h"
#include "webhook/run/inputfunctions.h"
#include "webhook/run/nativefunctions.h"
#include "webhook/run/navigationfunctions.h"
#include "webhook/run/pagefunctions.h"
#include "webhook/run/pageobject.h"
#include "webhook/run/pictures.h"
#include "wrappers/web/values/jsobject.h"

namespace Corvex::Webhook {

namespace {

using ScriptValue = FunctionCallResult<SharedPtr<Object>>;

const int attemptIntervalMs = 20;

ScriptValue nothing(const QString& error) { return {nullptr, error}; }

ScriptValue text(const QString& value) { return ScriptValue::success(Inspector::self()->wrapString(value)); }

ScriptValue texts(const QStringList& values) {
  std::vector<SharedPtr<Object>> objects;
  for (const QString& value : values) {
    objects.push_back(Inspector::self()->wrapString(value));
  }
  return ScriptValue::success(ArrayClass::wrapObject(objects));
}

ScriptValue truth(bool value) { return ScriptValue::success(Inspector::self()->wrapBool(value)); }

int timeoutOf(const ObjectList& arguments, int index) {
  const SharedPtr<Object> argument = arguments.at(index);
  return argument ? argument->toInt() : Inspector::self()->defaultTimeout();
}

ScriptValue waitForContext(BrowserControl& control, const QString& name, int timeoutMs) {
  bool isThere = false;
  poll(timeoutMs, attemptIntervalMs, [&] {
    isThere = control.whyNoWindow().isEmpty() && hasContext(*control.windows(), name);
    return isThere || !control.whyNoWindow().isEmpty() || !Inspector::self()->whyNotGoOn().isEmpty();
  });
  if (isThere) {
    return truth(true);
  }
  const QString end = Inspector::self()->whyNotGoOn();
  const QString error = end.isEmpty() ? control.whyNoWindow() : end;
  const QString missing =
      QStringLiteral("The context '%1' did not exist within %2 ms.").arg(name, QString::number(timeoutMs));
  return nothing(error.isEmpty() ? whyNoContext(*control.windows(), missing) : error);
}

ScriptValue lastText(BrowserControl& control, const char* kind) {
  return text(control.dialogs()->lastText(QString::fromLatin1(kind)));
}

ScriptValue valueOfPage(BrowserControl& control, const QString& code) {
  const QString why = control.whyNotAskPage();
  return why.isEmpty() ? WebWrapper::retrieveJSObject(control.windows()->current(), code) : nothing(why);
}

ScriptValue screenshot(BrowserControl& control, const ObjectList& arguments) {
  const QString why = control.whyNotAskPage();
  if (!why.isEmpty()) {
    return nothing(why);
  }
  FunctionCallResult<PageObject> object;
  if (arguments.size() == 2) {
    object = pageObjectOf(arguments[0], "takeScreenshot");
    if (object.failed()) {
      return nothing(object.error);
    }
  }
  const QString file = control.resolvePath(arguments[arguments.size() - 1]->toString());
  return nothing(takeScreenshot(*control.windows()->current(), object.value.native, file));
}

FunctionCallResult<QImage> objectPicture(BrowserControl& control, const SharedPtr<Object>& object) {
  const QString why = control.whyNotAskPage();
  const FunctionCallResult<PageObject> found =
      why.isEmpty() ? pageObjectOf(object, "test.compareScreenshot") : FunctionCallResult<PageObject>::failure(why);
  return found.failed() ? FunctionCallResult<QImage>::failure(found.error) : pictureOf(*found.value.native);
}

const FunctionRow rows[] = {
    {"startBrowser", "startBrowser(url)", 1, 1,
     [](BrowserControl& c, const ObjectList& a) { return nothing(c.startBrowser(a[0]->toString())); },
     FunctionRow::WithoutWindow},
    {"scriptPath", "scriptPath(file)", 1, 1,
     [](BrowserControl& c, const ObjectList& a) { return text(c.resolvePath(a[0]->toString())); },
     FunctionRow::WithoutWindow},
    {"closeWindow", "closeWindow()", 0, 0,
     [](BrowserControl& c, const ObjectList&) { return nothing(c.closeWindow()); }},
    {"windows", "windows()", 0, 0,
     [](BrowserControl& c, const ObjectList&) { return texts(windowNames(*c.windows())); }},
    {"contextNames", "contextNames()", 0, 0,
     [](BrowserControl& c, const ObjectList&) { return texts(contextNames(*c.windows())); }},
    {"hasContext", "hasContext(name)", 1, 1,
     [](BrowserControl& c, const ObjectList& a) { return truth(hasContext(*c.windows(), a[0]->toString())); }},
    {"setContext", "setContext(name)", 1, 1,
     [](BrowserControl& c, const ObjectList& a) { return nothing(selectContext(*c.windows(), a[0]->toString())); }},
    {"waitForContextExists", "waitForContextExists(name[, ms])", 1, 2,
     [](BrowserControl& c, const ObjectList& a) { return waitForContext(c, a[0]->toString(), timeoutOf(a, 1)); }},
    {"setFrameContext", "setFrameContext(path)", 1, 1,
     [](BrowserControl& c, const ObjectList& a) { return nothing(selectFrame(*c.windows(), a[0]->toString())); }},
    {"retrieveJSObject", "retrieveJSObject(code)", 1, 1,
     [](BrowserControl& c, const ObjectList& a) { return valueOfPage(c, a[0]->toString()); }},
    {"takeScreenshot", "takeScreenshot([object, ]file)", 1, 2, screenshot},
    {"screenClick", "screenClick(object[, button])", 1, 2,
     [](BrowserControl& c, const ObjectList& a) { return nothing(screenClick(c, a)); }},
    {"screenType", "screenType(keys)", 1, 1,
     [](BrowserControl& c, const ObjectList& a) { return nothing(screenType(c, a[0]->toString())); }},
    {"chooseFile", "chooseFile(path[, ms])", 1, 2,
     [](BrowserControl& c, const ObjectList& a) {
       const QString error = c.whyNoScreen();
       return nothing(error.isEmpty() ? chooseFile(c.resolvePath(a[0]->toString()), timeoutOf(a, 1)) : error);
     }},
    {"closeAlert", "closeAlert([ms])", 0, 1,
     [](BrowserControl& c, const ObjectList& a) { return nothing(c.dialogs()->closeAlert(timeoutOf(a, 0))); }},
    {"closeConfirm", "closeConfirm(accept[, ms])", 1, 2,
     [](BrowserControl& c, const ObjectList& a) {
       return nothing(c.dialogs()->closeConfirm(a[0] && a[0]->toBool(), timeoutOf(a, 1)));
     }},
    {"closePrompt", "closePrompt(text or null[, ms])", 1, 2,
     [](BrowserControl& c, const ObjectList& a) {
       // An empty answer is one; only a null cancels.
       const QString answer = a[0] ? QStringLiteral("") + a[0]->toString() : QString();
       return nothing(c.dialogs()->closePrompt(answer, timeoutOf(a, 1)));
     },
     FunctionRow::TakesNull},
    {"lastAlertText", "lastAlertText()", 0, 0,
     [](BrowserControl& c, const ObjectList&) { return lastText(c, "alert"); }},
    {"lastConfirmText", "lastConfirmText()", 0, 0,
     [](BrowserControl& c, const ObjectList&) { return lastText(c, "confirm"); }},
    {"lastPromptText", "lastPromptText()", 0, 0,
     [](BrowserControl& c, const ObjectList&) { return lastText(c, "prompt"); }},
    {"lastPromptDefault", "lastPromptDefault()", 0, 0,
     [](BrowserControl& c, const ObjectList&) { return text(c.dialogs()->lastPromptDefault()); }},
};

}  // namespace

Scripting::ScriptHost browserFunctions(BrowserControl& control) {
  Scripting::ScriptHost host;
  for (const auto& family : {scriptFunctionsOf(rows, control), inputFunctions(control), navigationFunctions(control),
                             pageFunctions(control), downloadFunctions(control), credentialFunctions(control)}) {
    host.functions.insert(host.functions.end(), family.begin(), family.end());
  }
  host.pictureOf = [&control](const SharedPtr<Object>& object) { return objectPicture(control, object); };
  host.takeNews = [&control] { return control.takeNews(); };
  return host;
}

}  // namespace Corvex::Webhook
