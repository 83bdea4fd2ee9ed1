#include "webhook/protocol/devtools/devtools.h"

#include <QJsonArray>
#include <QJsonDocument>

#include "webhook/protocol/inpagetext.h"
#include "webhook/protocol/jstext.h"
#include "webhook/protocol/startscript.h"

namespace Corvex::Webhook::DevTools {

namespace {

QByteArray write(qint64 id, const QString& session, const Command& command) {
  QJsonObject message{{QStringLiteral("id"), id},
                      {QStringLiteral("method"), command.method},
                      {QStringLiteral("params"), command.parameters}};
  if (!session.isEmpty()) {
    message.insert(QStringLiteral("sessionId"), session);
  }
  return QJsonDocument(message).toJson(QJsonDocument::Compact);
}

WireMessage read(const QByteArray& text) {
  const QJsonObject object = QJsonDocument::fromJson(text).object();
  WireMessage message;
  message.session = object.value(QLatin1String("sessionId")).toString();
  message.method = object.value(QLatin1String("method")).toString();
  const QJsonValue id = object.value(QLatin1String("id"));
  const QJsonValue error = object.value(QLatin1String("error"));
  if (!message.method.isEmpty() && id.isUndefined()) {
    message.kind = WireMessage::Event;
    message.content = object.value(QLatin1String("params")).toObject();
  } else if (id.isDouble()) {
    message.kind = error.isObject() ? WireMessage::Refusal : WireMessage::Answer;
    message.id = qint64(id.toDouble());
    message.content = object.value(QLatin1String("result")).toObject();
    message.error = error.toObject().value(QLatin1String("message")).toString();
  }
  return message;
}

Command command(const char* method, const QJsonObject& parameters = {}) {
  return {QString::fromLatin1(method), parameters};
}

QString textAt(const QJsonObject& object, const char* key) { return object.value(QLatin1String(key)).toString(); }

QJsonObject objectAt(const QJsonObject& object, const char* key) { return object.value(QLatin1String(key)).toObject(); }

Command startScript(const QString& source) {
  return command("Page.addScriptToEvaluateOnNewDocument", {{QStringLiteral("source"), source}});
}

/// A primitive that JSON cannot hold: "-0", "NaN", "Infinity", "-Infinity", or a bigint with its "n".
QString unserializableText(const QString& text) {
  if (text == QLatin1String("-0")) {
    return QStringLiteral("0");
  }
  return text.endsWith(QLatin1Char('n')) ? text.chopped(1) : text;
}

QString primitiveText(const QJsonObject& remote) {
  const QString unserializable = textAt(remote, "unserializableValue");
  if (!unserializable.isEmpty()) {
    return unserializableText(unserializable);
  }
  const QJsonValue value = remote.value(QLatin1String("value"));
  if (value.isString()) {
    return value.toString();
  }
  if (value.isDouble()) {
    return jsNumberText(value.toDouble());
  }
  if (value.isBool()) {
    return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
  }
  if (value.isNull()) {
    return QStringLiteral("null");
  }
  return QStringLiteral("undefined");
}

}  // namespace

const Dialect& dialect() {
  static const Dialect instance{write, read};
  return instance;
}

Command version() { return command("Browser.getVersion"); }

Command reportPages() {
  const QJsonArray pagesOnly{QJsonObject{{QStringLiteral("type"), QStringLiteral("page")}}};
  return command("Target.setAutoAttach", {{QStringLiteral("autoAttach"), true},
                                          {QStringLiteral("waitForDebuggerOnStart"), true},
                                          {QStringLiteral("flatten"), true},
                                          {QStringLiteral("filter"), pagesOnly}});
}

Command createPage() {
  return command("Target.createTarget", {{QStringLiteral("url"), QStringLiteral("about:blank")}});
}

Command closePage(const QString& target) {
  return command("Target.closeTarget", {{QStringLiteral("targetId"), target}});
}

Command leavePage(const QString& session) {
  return command("Target.detachFromTarget", {{QStringLiteral("sessionId"), session}});
}

Target readTarget(const QJsonObject& attached) {
  const QJsonObject info = objectAt(attached, "targetInfo");
  return {textAt(attached, "sessionId"), textAt(info, "targetId"), textAt(info, "openerId"), textAt(info, "type"),
          textAt(info, "url")};
}

QVector<Command> watchPage() {
  return {command("Page.enable"), command("Page.setLifecycleEventsEnabled", {{QStringLiteral("enabled"), true}}),
          command("Inspector.enable"),
          // A page that nobody looks at takes input as the one that is in front.
          command("Emulation.setFocusEmulationEnabled", {{QStringLiteral("enabled"), true}}),
          startScript(StartScript::frameGuard())};
}

Command resumePage() { return command("Runtime.runIfWaitingForDebugger"); }

Command addStartScript(const QString& script) { return startScript(StartScript::forTopPage(script)); }

Command ignoreCertificateErrors() {
  return command("Security.setIgnoreCertificateErrors", {{QStringLiteral("ignore"), true}});
}

Command navigate(const QString& url) { return command("Page.navigate", {{QStringLiteral("url"), url}}); }

Command reload() { return command("Page.reload"); }

Command listHistory() { return command("Page.getNavigationHistory"); }

std::optional<HistoryEntry> readHistory(const QJsonObject& answer, int steps) {
  const QJsonArray entries = answer.value(QLatin1String("entries")).toArray();
  const int index = answer.value(QLatin1String("currentIndex")).toInt() + steps;
  if (index < 0 || index >= entries.size()) {
    return {};
  }
  const QJsonObject entry = entries.at(index).toObject();
  const QString url = textAt(entry, "url");
  if (index == 0 && url == QLatin1String("about:blank")) {
    return {};
  }
  return HistoryEntry{entry.value(QLatin1String("id")).toInt(), url};
}

Command goToHistory(const HistoryEntry& entry) {
  return command("Page.navigateToHistoryEntry", {{QStringLiteral("entryId"), entry.id}});
}

Command stopLoading() { return command("Page.stopLoading"); }

Navigation readNavigation(const QJsonObject& answer) {
  return {textAt(answer, "loaderId"), textAt(answer, "errorText"), answer.value(QLatin1String("isDownload")).toBool()};
}

std::optional<NewDocument> readNewDocument(const QJsonObject& event) {
  const QJsonObject frame = objectAt(event, "frame");
  if (frame.contains(QLatin1String("parentId"))) {
    return {};
  }
  const QString unreachable = textAt(frame, "unreachableUrl");
  const QString url = unreachable.isEmpty() ? textAt(frame, "url") : unreachable;
  return NewDocument{textAt(frame, "loaderId"), url + textAt(frame, "urlFragment"), !unreachable.isEmpty()};
}

bool leavesDocument(const QJsonObject& event, const QString& page) {
  return textAt(event, "frameId") == page && textAt(event, "disposition") == QLatin1String("currentTab");
}

Command evaluate(const QString& code, const QString& group, int timeoutMs) {
  return command("Runtime.evaluate", {{QStringLiteral("expression"), code},
                                      {QStringLiteral("objectGroup"), group},
                                      {QStringLiteral("timeout"), timeoutMs},
                                      {QStringLiteral("userGesture"), true},
                                      {QStringLiteral("allowUnsafeEvalBlockedByCSP"), true}});
}

Command textOfObject(const QString& handle, const QString& group) {
  return command("Runtime.callFunctionOn", {{QStringLiteral("functionDeclaration"), inPageText("textofthis.js")},
                                            {QStringLiteral("objectId"), handle},
                                            {QStringLiteral("objectGroup"), group}});
}

Command terminate() { return command("Runtime.terminateExecution"); }

Command releaseGroup(const QString& group) {
  return command("Runtime.releaseObjectGroup", {{QStringLiteral("objectGroup"), group}});
}

Outcome readOutcome(const QJsonObject& answer) {
  const QJsonValue details = answer.value(QLatin1String("exceptionDetails"));
  const QJsonObject thrown = objectAt(details.toObject(), "exception");
  const QJsonObject remote = details.isObject() ? thrown : objectAt(answer, "result");
  Outcome outcome;
  outcome.thrown = details.isObject();
  const bool isSymbol = textAt(remote, "type") == QLatin1String("symbol");
  const QString handle = textAt(remote, "objectId");
  outcome.handle = isSymbol ? QString() : handle;
  outcome.text = handle.isEmpty() ? primitiveText(remote) : textAt(remote, "description");
  if (outcome.thrown && thrown.isEmpty()) {
    outcome.text = textAt(details.toObject(), "text");
  }
  return outcome;
}

Command metrics() { return command("Page.getLayoutMetrics"); }

Command setViewport(const QSize& size, double pixelRatio) {
  return command("Emulation.setDeviceMetricsOverride", {{QStringLiteral("width"), size.width()},
                                                        {QStringLiteral("height"), size.height()},
                                                        {QStringLiteral("deviceScaleFactor"), pixelRatio},
                                                        {QStringLiteral("mobile"), false}});
}

double readZoom(const QJsonObject& answer) {
  return objectAt(answer, "cssVisualViewport").value(QLatin1String("zoom")).toDouble(1.0);
}

Command screenshot(const std::optional<QJsonObject>& contents) {
  QJsonObject parameters{{QStringLiteral("format"), QStringLiteral("png")},
                         {QStringLiteral("optimizeForSpeed"), true},
                         {QStringLiteral("captureBeyondViewport"), contents.has_value()}};
  if (contents) {
    QJsonObject clip = objectAt(*contents, "cssContentSize");
    clip.insert(QStringLiteral("scale"), 1);
    parameters.insert(QStringLiteral("clip"), clip);
  }
  return command("Page.captureScreenshot", parameters);
}

QByteArray readScreenshot(const QJsonObject& answer) {
  return QByteArray::fromBase64(textAt(answer, "data").toLatin1());
}

Command setFiles(const QString& handle, const QStringList& paths) {
  return command("DOM.setFileInputFiles",
                 {{QStringLiteral("files"), QJsonArray::fromStringList(paths)}, {QStringLiteral("objectId"), handle}});
}

Command answerDialog(bool accept, const QString& text) {
  QJsonObject parameters{{QStringLiteral("accept"), accept}};
  if (!text.isNull()) {
    parameters.insert(QStringLiteral("promptText"), text);
  }
  return command("Page.handleJavaScriptDialog", parameters);
}

Dialog readDialog(const QJsonObject& event) {
  return {textAt(event, "type"), textAt(event, "message"), textAt(event, "defaultPrompt"), textAt(event, "url")};
}

}  // namespace Corvex::Webhook::DevTools
