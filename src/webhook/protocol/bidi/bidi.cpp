#include "webhook/protocol/bidi/bidi.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

#include "webhook/protocol/inpagetext.h"
#include "webhook/protocol/jstext.h"

namespace Corvex::Webhook::Bidi {

namespace {

const char* const events[] = {
    "browsingContext.contextCreated",
    "browsingContext.contextDestroyed",
    "browsingContext.navigationStarted",
    "browsingContext.navigationCommitted",
    "browsingContext.navigationFailed",
    "browsingContext.downloadWillBegin",
    "browsingContext.domContentLoaded",
    "browsingContext.fragmentNavigated",
    "browsingContext.historyUpdated",
    "browsingContext.load",
    "browsingContext.userPromptOpened",
    "browsingContext.userPromptClosed",
    "network.fetchError",
    "script.realmCreated",
    "script.realmDestroyed",
};

// Those of downloads and questions are here as they may be of frames, or of a page that is gone.
const char* const eventsOfBrowser[] = {"browsingContext.contextCreated", "browsingContext.contextDestroyed",
                                       "browsingContext.downloadWillBegin", "browsingContext.downloadEnd",
                                       "network.authRequired"};

const char* const crashEvent = "goog:cdp.Inspector.targetCrashed";

/// A string literal.
QString jsStringText(const QString& text) {
  const QString array = QString::fromUtf8(QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact));
  return array.mid(1, array.size() - 2);
}

QString textAt(const QJsonObject& object, const char* key) { return object.value(QLatin1String(key)).toString(); }

QJsonObject objectAt(const QJsonObject& object, const char* key) { return object.value(QLatin1String(key)).toObject(); }

Command command(const char* method, const QJsonObject& parameters = {}) {
  return {QString::fromLatin1(method), parameters};
}

QByteArray write(qint64 id, const QString&, const Command& command) {
  const QJsonObject message{{QStringLiteral("id"), id},
                            {QStringLiteral("method"), command.method},
                            {QStringLiteral("params"), command.parameters}};
  return QJsonDocument(message).toJson(QJsonDocument::Compact);
}

QString errorText(const QJsonObject& refusal) {
  const QString code = textAt(refusal, "error");
  QString message = textAt(refusal, "message");
  if (message.startsWith(QLatin1String("Error: "))) {
    message = message.mid(7);
  }
  if (message.isEmpty()) {
    return code;
  }
  return code == QLatin1String("unknown error") ? message : code + QStringLiteral(": ") + message;
}

bool isOfBrowser(const QString& event) {
  for (const char* name : eventsOfBrowser) {
    if (event == QLatin1String(name)) {
      return true;
    }
  }
  return false;
}

WireMessage readEvent(const QJsonObject& object) {
  WireMessage message;
  message.method = textAt(object, "method");
  message.content = objectAt(object, "params");
  if (!isOfBrowser(message.method)) {
    const QString context = textAt(message.content, "context");
    message.session = context.isEmpty() ? textAt(objectAt(message.content, "source"), "context") : context;
  }
  message.kind = message.method.isEmpty() ? WireMessage::Malformed : WireMessage::Event;
  return message;
}

WireMessage read(const QByteArray& text) {
  const QJsonObject object = QJsonDocument::fromJson(text).object();
  const QString type = textAt(object, "type");
  if (type == QLatin1String("event")) {
    return readEvent(object);
  }
  const QJsonValue id = object.value(QLatin1String("id"));
  WireMessage message;
  if (!id.isDouble()) {
    return message;
  }
  message.id = qint64(id.toDouble());
  if (type == QLatin1String("success")) {
    message.kind = WireMessage::Answer;
    message.content = objectAt(object, "result");
  } else if (type == QLatin1String("error")) {
    message.kind = WireMessage::Refusal;
    message.error = errorText(object);
  }
  return message;
}

QString numberText(const QJsonValue& value) {
  if (value.isDouble()) {
    return jsNumberText(value.toDouble());
  }
  const QString special = value.toString();  // "NaN", "-0", "Infinity" or "-Infinity"
  return special == QLatin1String("-0") ? QStringLiteral("0") : special;
}

QString primitiveText(const QJsonObject& remote) {
  const QString type = textAt(remote, "type");
  const QJsonValue value = remote.value(QLatin1String("value"));
  if (type == QLatin1String("number")) {
    return numberText(value);
  }
  if (type == QLatin1String("boolean")) {
    return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
  }
  if (type == QLatin1String("string") || type == QLatin1String("bigint")) {
    return value.toString();
  }
  return type;  // "null" and "undefined"
}

bool isPrimitive(const QJsonObject& remote) {
  static const QStringList types{QStringLiteral("undefined"), QStringLiteral("null"),    QStringLiteral("string"),
                                 QStringLiteral("number"),    QStringLiteral("boolean"), QStringLiteral("bigint")};
  return types.contains(textAt(remote, "type"));
}

QJsonObject flatSerialization() { return {{QStringLiteral("maxDomDepth"), 0}, {QStringLiteral("maxObjectDepth"), 0}}; }

Command callFunction(const QString& function, const QString& realm, const QJsonObject& self) {
  return command("script.callFunction", {{QStringLiteral("functionDeclaration"), function},
                                         {QStringLiteral("target"), QJsonObject{{QStringLiteral("realm"), realm}}},
                                         {QStringLiteral("this"), self},
                                         {QStringLiteral("awaitPromise"), false},
                                         {QStringLiteral("serializationOptions"), flatSerialization()}});
}

Command ofPage(const char* method, const QString& page, QJsonObject parameters = {}) {
  parameters.insert(QStringLiteral("context"), page);
  return command(method, parameters);
}

}  // namespace

const Dialect& dialect() {
  static const Dialect instance{write, read};
  return instance;
}

QJsonObject neededCapabilities() {
  const QJsonObject leaveOpen{{QStringLiteral("default"), QStringLiteral("ignore")}};
  return {{QStringLiteral("unhandledPromptBehavior"), leaveOpen}};
}

Command newSession(bool ignoreCertificateErrors) {
  QJsonObject capabilities = neededCapabilities();
  capabilities.insert(QStringLiteral("acceptInsecureCerts"), ignoreCertificateErrors);
  const QJsonObject wanted{{QStringLiteral("alwaysMatch"), capabilities}};
  return command("session.new", {{QStringLiteral("capabilities"), wanted}});
}

Command watchPages() {
  QJsonArray names;
  for (const char* name : events) {
    names.append(QLatin1String(name));
  }
  return command("session.subscribe", {{QStringLiteral("events"), names}});
}

Command listPages() { return command("browsingContext.getTree"); }

Command createPage() { return command("browsingContext.create", {{QStringLiteral("type"), QStringLiteral("tab")}}); }

Command activatePage(const QString& page) { return ofPage("browsingContext.activate", page); }

Command closePage(const QString& page) { return ofPage("browsingContext.close", page); }

BrowserInfo readBrowser(const QJsonObject& capabilities) {
  return {textAt(capabilities, "browserName"), textAt(capabilities, "browserVersion")};
}

Context readContext(const QJsonObject& info) {
  return {textAt(info, "context"), textAt(info, "parent"), textAt(info, "originalOpener"), textAt(info, "url")};
}

QVector<Context> readPages(const QJsonObject& answer) {
  QVector<Context> pages;
  for (const QJsonValue& info : answer.value(QLatin1String("contexts")).toArray()) {
    pages.append(readContext(info.toObject()));
  }
  return pages;
}

Command addStartScript(const QString& page, const QString& script) {
  // The browser calls a function. Only indirect evaluation reaches the global scope from there, and at that moment it
  // is under no policy yet.
  const QString declaration = QStringLiteral("function() { (0, eval)(%1); }").arg(jsStringText(script));
  QJsonObject parameters{{QStringLiteral("functionDeclaration"), declaration}};
  if (!page.isEmpty()) {
    parameters.insert(QStringLiteral("contexts"), QJsonArray{page});
  }
  return command("script.addPreloadScript", parameters);
}

Command navigate(const QString& page, const QString& url) {
  return ofPage("browsingContext.navigate", page,
                {{QStringLiteral("url"), url}, {QStringLiteral("wait"), QStringLiteral("none")}});
}

QString readNavigation(const QJsonObject& answer) { return textAt(answer, "navigation"); }

Command reload(const QString& page) {
  return ofPage("browsingContext.reload", page, {{QStringLiteral("wait"), QStringLiteral("none")}});
}

Command goThroughHistory(const QString& page, int steps) {
  return ofPage("browsingContext.traverseHistory", page, {{QStringLiteral("delta"), steps}});
}

bool isHistoryMissing(const QString& refusal) { return refusal.startsWith(QLatin1String("no such history entry")); }

bool isStartPage(const QString& url) {
  static const QStringList addresses{QStringLiteral("about:blank"), QStringLiteral("data:,"),
                                     QStringLiteral("data:text/html,")};
  return addresses.contains(url);
}

QString readNavigationError(const QString& refusal) {
  const bool isAddressWrong = refusal.startsWith(QLatin1String("invalid argument"));
  // Firefox wraps the code of what went wrong between it and a server of https.
  static const QRegularExpression wrapped(QStringLiteral("NS_ERROR_MODULE_SECURITY, ([A-Z_]+)\\)"));
  const QString code = wrapped.match(refusal).captured(1);
  return isAddressWrong ? QStringLiteral("Cannot navigate to invalid URL") : code.isEmpty() ? refusal : code;
}

Document readDocument(const QJsonObject& event) { return {textAt(event, "navigation"), textAt(event, "url")}; }

bool isCrashNotice(const Document& document) { return document.url.startsWith(QLatin1String("about:tabcrashed")); }

bool isErrorPage(const Document& document) {
  return document.url.startsWith(QLatin1String("about:neterror")) ||
         document.url.startsWith(QLatin1String("about:certerror"));
}

QString readNewRealm(const QJsonObject& event) {
  const bool isPlain = textAt(event, "type") == QLatin1String("window") && textAt(event, "sandbox").isEmpty();
  return isPlain ? textAt(event, "realm") : QString();
}

QString readGoneRealm(const QJsonObject& event) { return textAt(event, "realm"); }

Command evaluate(const Place& place, const QString& code) {
  const QJsonObject target = place.realm.isEmpty() ? QJsonObject{{QStringLiteral("context"), place.context}}
                                                   : QJsonObject{{QStringLiteral("realm"), place.realm}};
  return command("script.evaluate", {{QStringLiteral("expression"), code},
                                     {QStringLiteral("target"), target},
                                     {QStringLiteral("awaitPromise"), false},
                                     {QStringLiteral("resultOwnership"), QStringLiteral("root")},
                                     {QStringLiteral("serializationOptions"), flatSerialization()},
                                     {QStringLiteral("userActivation"), true}});
}

Command textOfObject(const QString& realm, const QString& handle) {
  return callFunction(inPageText("textofthis.js"), realm, {{QStringLiteral("handle"), handle}});
}

Command release(const QString& realm, const QString& handle) {
  return command("script.disown", {{QStringLiteral("handles"), QJsonArray{handle}},
                                   {QStringLiteral("target"), QJsonObject{{QStringLiteral("realm"), realm}}}});
}

Command handOverElement(const QString& realm, const QString& handle) {
  return callFunction(inPageText("handover.js"), realm, {{QStringLiteral("handle"), handle}});
}

Command handedOverElement(const QString& frame) { return evaluate({frame, {}}, inPageText("takehandedover.js")); }

Outcome readOutcome(const QJsonObject& answer) {
  const QJsonObject details = objectAt(answer, "exceptionDetails");
  Outcome outcome;
  outcome.thrown = textAt(answer, "type") == QLatin1String("exception");
  outcome.realm = textAt(answer, "realm");
  const QJsonObject remote = outcome.thrown ? objectAt(details, "exception") : objectAt(answer, "result");
  outcome.handle = textAt(remote, "handle");
  outcome.sharedId = textAt(remote, "sharedId");
  outcome.window = textAt(objectAt(remote, "value"), "context");
  if (isPrimitive(remote)) {
    outcome.text = primitiveText(remote);
  } else if (outcome.thrown) {
    outcome.text = textAt(details, "text");
  }
  return outcome;
}

std::optional<QJsonObject> readRefusedException(const QString& refusal) {
  const QLatin1String words("Missing stack, unable to build exceptionDetails for exception: ");
  if (!refusal.startsWith(words)) {
    return {};
  }
  const QJsonObject exception{{QStringLiteral("type"), QStringLiteral("string")},
                              {QStringLiteral("value"), refusal.mid(words.size())}};
  return QJsonObject{{QStringLiteral("type"), QStringLiteral("exception")},
                     {QStringLiteral("exceptionDetails"), QJsonObject{{QStringLiteral("exception"), exception}}}};
}

Command setViewport(const QString& page, const QSize& size, double pixelRatio) {
  const QJsonObject viewport{{QStringLiteral("width"), size.width()}, {QStringLiteral("height"), size.height()}};
  const QJsonValue ratio = pixelRatio > 0 ? QJsonValue(pixelRatio) : QJsonValue();
  return ofPage("browsingContext.setViewport", page,
                {{QStringLiteral("viewport"), viewport}, {QStringLiteral("devicePixelRatio"), ratio}});
}

Command screenshot(const QString& page, bool wholePage) {
  return ofPage("browsingContext.captureScreenshot", page,
                {{QStringLiteral("origin"), wholePage ? QStringLiteral("document") : QStringLiteral("viewport")}});
}

QByteArray readScreenshot(const QJsonObject& answer) {
  return QByteArray::fromBase64(textAt(answer, "data").toLatin1());
}

Command setFiles(const QString& pageOrFrame, const QString& sharedId, const QStringList& paths) {
  return ofPage("input.setFiles", pageOrFrame,
                {{QStringLiteral("element"), QJsonObject{{QStringLiteral("sharedId"), sharedId}}},
                 {QStringLiteral("files"), QJsonArray::fromStringList(paths)}});
}

Command answerDialog(const QString& page, bool accept, const QString& text) {
  QJsonObject parameters{{QStringLiteral("accept"), accept}};
  if (!text.isNull()) {
    parameters.insert(QStringLiteral("userText"), text);
  }
  return ofPage("browsingContext.handleUserPrompt", page, parameters);
}

Dialog readDialog(const QJsonObject& event) {
  return {textAt(event, "type"), textAt(event, "message"), textAt(event, "defaultValue"), {}};
}

Command watchCrashes() {
  return command("session.subscribe", {{QStringLiteral("events"), QJsonArray{QLatin1String(crashEvent)}}});
}

std::optional<QString> readCrash(const QString& method, const QJsonObject& event) {
  if (method != QLatin1String(crashEvent)) {
    return {};
  }
  return textAt(event, "session");
}

Command devToolsSession(const QString& page) { return ofPage("goog:cdp.getSession", page); }

QString readDevToolsSession(const QJsonObject& answer) { return textAt(answer, "session"); }

Command throughDevTools(const QString& session, const Command& inner) {
  return command("goog:cdp.sendCommand", {{QStringLiteral("session"), session},
                                          {QStringLiteral("method"), inner.method},
                                          {QStringLiteral("params"), inner.parameters}});
}

QJsonObject readThroughDevTools(const QJsonObject& answer) { return objectAt(answer, "result"); }

}  // namespace Corvex::Webhook::Bidi
