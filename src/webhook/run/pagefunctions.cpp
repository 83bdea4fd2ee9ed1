#include "webhook/run/pagefunctions.h"

#include "corvexhook/inspector.h"
#include "webhook/run/browsercontrol.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace Corvex::Webhook {

namespace {

using ScriptValue = FunctionCallResult<SharedPtr<Object>>;

ScriptValue nothing(const QString& error) { return {nullptr, error}; }

ScriptValue json(const QJsonArray& array) {
  return ScriptValue::success(
      Inspector::self()->wrapString(QString::fromUtf8(QJsonDocument(array).toJson(QJsonDocument::Compact))));
}

ScriptValue consoleMessages(BrowserControl& control, const ObjectList&) {
  QJsonArray messages;
  const BrowserPage* const page = control.windows()->current()->page();
  for (const ConsoleMessage& message : page ? page->consoleMessages() : QVector<ConsoleMessage>()) {
    messages.append(QJsonObject{{QStringLiteral("level"), message.level},
                                {QStringLiteral("text"), message.text},
                                {QStringLiteral("url"), message.url},
                                {QStringLiteral("line"), message.line},
                                {QStringLiteral("uncaught"), message.isUncaught}});
  }
  return json(messages);
}

struct Row {
  const char* name;
  const char* usage;
  int minArguments;
  int maxArguments;
  ScriptValue (*call)(BrowserControl& control, const ObjectList& arguments);
  bool givesJson = false;
  bool takesOptions = false;
};

const Row rows[] = {
    {"consoleMessages", "consoleMessages()", 0, 0, consoleMessages, true},
};

ScriptValue run(const Row& row, BrowserControl& control, const ObjectList& arguments) {
  const QString before = control.whyNoWindow();
  const ScriptValue result = before.isEmpty() ? row.call(control, arguments) : nothing(before);
  // A browser or window that went meanwhile says more than what then failed.
  const QString after = result.failed() ? control.whyNoWindow() : QString();
  return after.isEmpty() ? result : nothing(after);
}

}  // namespace

std::vector<Scripting::ScriptFunction> pageFunctions(BrowserControl& control) {
  std::vector<Scripting::ScriptFunction> functions;
  for (const Row& row : rows) {
    Scripting::ScriptFunction function;
    function.name = QLatin1String(row.name);
    function.usage = QLatin1String(row.usage);
    function.minArguments = row.minArguments;
    function.maxArguments = row.maxArguments;
    function.call = [&control, &row](const ObjectList& arguments) { return run(row, control, arguments); };
    function.givesJson = row.givesJson;
    function.takesOptions = row.takesOptions;
    functions.push_back(function);
  }
  return functions;
}

}  // namespace Corvex::Webhook
