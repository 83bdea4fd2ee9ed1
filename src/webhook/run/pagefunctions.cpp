#include "webhook/run/pagefunctions.h"

#include "corvexhook/inspector.h"
#include "webhook/protocol/inpagetext.h"
#include "webhook/run/browsercontrol.h"
#include "webhook/run/functionrow.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace Corvex::Webhook {

namespace {

using ScriptValue = FunctionCallResult<SharedPtr<Object>>;

const int mostPixels = 10000;

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

ScriptValue cookies(BrowserControl& control, const ObjectList&) {
  BrowserPage* const page = control.windows()->current()->page();
  const FunctionCallResult<QVector<Cookie>> found = page ? page->cookies() : FunctionCallResult<QVector<Cookie>>();
  QJsonArray list;
  for (const Cookie& cookie : found.value) {
    QJsonObject object{{QStringLiteral("name"), cookie.name},        {QStringLiteral("value"), cookie.value},
                       {QStringLiteral("domain"), cookie.domain},    {QStringLiteral("path"), cookie.path},
                       {QStringLiteral("secure"), cookie.secure},    {QStringLiteral("httpOnly"), cookie.httpOnly},
                       {QStringLiteral("sameSite"), cookie.sameSite}};
    if (cookie.expires) {
      object.insert(QStringLiteral("expires"), *cookie.expires);
    }
    list.append(object);
  }
  return found.failed() ? nothing(found.error) : json(list);
}

/// Puts an option into the cookie. False for one that there is not, or of another type.
bool readOption(const QString& name, const QJsonValue& value, Cookie* cookie) {
  static const QStringList sameSites{QStringLiteral("strict"), QStringLiteral("lax"), QStringLiteral("none")};
  QString* const text = name == QLatin1String("domain")     ? &cookie->domain
                        : name == QLatin1String("path")     ? &cookie->path
                        : name == QLatin1String("sameSite") ? &cookie->sameSite
                                                            : nullptr;
  bool* const flag = name == QLatin1String("secure")     ? &cookie->secure
                     : name == QLatin1String("httpOnly") ? &cookie->httpOnly
                                                         : nullptr;
  if (text && value.isString()) {
    *text = text == &cookie->sameSite ? value.toString().toLower() : value.toString();
    return text != &cookie->sameSite || sameSites.contains(*text);
  }
  if (flag && value.isBool()) {
    *flag = value.toBool();
    return true;
  }
  const bool isExpiry = name == QLatin1String("expires") && value.isDouble();
  cookie->expires = isExpiry ? std::optional<qint64>(qint64(value.toDouble())) : cookie->expires;
  return isExpiry;
}

ScriptValue setCookie(BrowserControl& control, const ObjectList& arguments) {
  Cookie cookie;
  cookie.name = arguments[0]->toString();
  cookie.value = arguments[1]->toString();
  static const QRegularExpression unfit(QStringLiteral("[^\\x20-\\x7e]|;"));
  const bool isNamed = !cookie.name.isEmpty() && !cookie.name.contains(QLatin1Char('='));
  if (!isNamed || (cookie.name + cookie.value).contains(unfit)) {
    return nothing(
        QStringLiteral("setCookie needs a name without '=', and name and value of ASCII characters without semicolons. "
                       "encodeURIComponent writes any text so."));
  }
  const QString options = arguments.size() > 2 && arguments[2] ? arguments[2]->toString() : QStringLiteral("{}");
  const QJsonDocument document = QJsonDocument::fromJson(options.toUtf8());
  const QJsonObject object = document.object();
  bool isGood = document.isObject();
  for (auto each = object.begin(); each != object.end(); ++each) {
    isGood = isGood && readOption(each.key(), each.value(), &cookie);
  }
  if (!isGood) {
    return nothing(
        QStringLiteral("setCookie: the options are an object with domain, path and sameSite (\"strict\", \"lax\" or "
                       "\"none\") as texts, secure and httpOnly as true or false, and expires in seconds since 1970; "
                       "got %1.")
            .arg(options));
  }
  BrowserPage* const page = control.windows()->current()->page();
  return nothing(page ? page->setCookie(cookie) : QString());
}

ScriptValue deleteCookies(BrowserControl& control, const ObjectList&) {
  BrowserPage* const page = control.windows()->current()->page();
  return nothing(page ? page->deleteCookies() : QString());
}

QString quoted(const QString& text) {
  const QString array = QString::fromUtf8(QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact));
  return array.mid(1, array.size() - 2);
}

/// Runs code of the page's storage; one that a page may not have is an error of the page.
JavaScriptAnswer askStorage(BrowserControl& control, const QString& code) {
  control.finishLoad();
  const QString why = control.whyNotAskPage();
  return why.isEmpty() ? control.windows()->current()->evaluateInAnyDocument(code, 0)
                       : JavaScriptAnswer{why, false, true};
}

ScriptValue localStorageItem(BrowserControl& control, const ObjectList& arguments) {
  const JavaScriptAnswer answer =
      askStorage(control, inPageText("storageitem.js").arg(quoted(arguments[0]->toString())));
  if (!answer.succeeded()) {
    return nothing(QStringLiteral("localStorageItem: ") + answer.text);
  }
  return ScriptValue::success(answer.text.isEmpty() ? Inspector::self()->nullObject(nullptr)
                                                    : Inspector::self()->wrapString(answer.text.mid(1)));
}

ScriptValue setLocalStorageItem(BrowserControl& control, const ObjectList& arguments) {
  const SharedPtr<Object>& value = arguments[1];
  const QString name = quoted(arguments[0]->toString());
  const QString code = value ? QStringLiteral("Storage.prototype.setItem.call(window.localStorage, %1, %2)")
                                   .arg(name, quoted(value->toString()))
                             : QStringLiteral("Storage.prototype.removeItem.call(window.localStorage, %1)").arg(name);
  const JavaScriptAnswer answer = askStorage(control, code);
  return nothing(answer.succeeded() ? QString() : QStringLiteral("setLocalStorageItem: ") + answer.text);
}

ScriptValue setViewport(BrowserControl& control, const ObjectList& arguments) {
  const int width = arguments[0]->toInt();
  const int height = arguments[1]->toInt();
  const double ratio = arguments.size() > 2 && arguments[2] ? arguments[2]->toDouble() : 0;
  const bool hasRatio = arguments.size() > 2 && arguments[2];
  if (width < 1 || height < 1 || width > mostPixels || height > mostPixels ||
      (hasRatio && !(ratio > 0 && ratio <= 10))) {
    return nothing(QStringLiteral(
        "setViewport needs a width and a height of 1 to 10000 pixels, and a ratio above 0 and up to 10."));
  }
  BrowserPage* const page = control.windows()->current()->page();
  return nothing(page ? page->setViewport({width, height}, ratio) : QString());
}

const FunctionRow rows[] = {
    {"consoleMessages", "consoleMessages()", 0, 0, consoleMessages, FunctionRow::GivesJson},
    {"cookies", "cookies()", 0, 0, cookies, FunctionRow::GivesJson},
    {"setCookie", "setCookie(name, value[, options])", 2, 3, setCookie, FunctionRow::TakesOptions},
    {"deleteCookies", "deleteCookies()", 0, 0, deleteCookies},
    {"localStorageItem", "localStorageItem(name)", 1, 1, localStorageItem},
    {"setLocalStorageItem", "setLocalStorageItem(name, text or null)", 2, 2, setLocalStorageItem,
     FunctionRow::TakesNull},
    {"setViewport", "setViewport(width, height[, ratio])", 2, 3, setViewport},
};

}  // namespace

std::vector<Scripting::ScriptFunction> pageFunctions(BrowserControl& control) {
  return scriptFunctionsOf(rows, control);
}

}  // namespace Corvex::Webhook
