#include "webhook/pages/contexts.h"

#include "webhook/pages/browserwindows.h"
#include "wrappers/web/page/escaping.h"

#include <QHash>
#include <QRegularExpression>

namespace Corvex::Webhook {

namespace {

// One name a line: pages replace what JSON needs. Frames of other origins, and windows that close meanwhile, are passed
// over.
const char* const namesInPage = R"JS((function () {
  var names = "";
  function add(w) {
    names += __corvex__contextOf(w) + "\n";
    var frames = window.top.__corvex.getAllFrames(w.document);
    for (var i = 0; i < frames.length; ++i) {
      try {
        if (frames[i].contentWindow.document) { add(frames[i].contentWindow); }
      } catch (e) { continue; }
    }
  }
  var windows = __corvex__contextList();
  for (var i = 0; i < windows.length; ++i) {
    try { add(windows[i]); } catch (e) { continue; }
  }
  return names;
}()))JS";

QString frameSuffix(const QString& name) {
  static const QRegularExpression frames(QStringLiteral("(\\.FRAME\\d+)+$"));
  return frames.match(name).captured(0);
}

QStringList namesOf(Connection* connection) {
  const WebWrapper::JavaScriptAnswer answer = connection->evaluateJS(QLatin1String(namesInPage), 0);
  if (!answer.succeeded()) {
    return {};
  }
  QStringList names = answer.text.split(QLatin1Char('\n'));
  names.removeLast();
  return names;
}

QString join(const QStringList& names) {
  return names.isEmpty() ? QStringLiteral("none") : QStringLiteral("'%1'").arg(names.join(QLatin1String("', '")));
}

}  // namespace

QVector<Context> allContexts(const BrowserWindows& windows) {
  QVector<Context> contexts;
  QHash<QString, int> pagesOfName;
  for (Connection* connection : windows.connections()) {
    const QStringList names = connection->isAvailable() ? namesOf(connection) : QStringList();
    const int count = names.isEmpty() ? 0 : ++pagesOfName[names.first()];
    for (const QString& name : names) {
      const QString frames = frameSuffix(name);
      const QString page = name.left(name.size() - frames.size());
      const QString suffix = count > 1 ? QStringLiteral("<%1>").arg(count) : QString();
      contexts.append({page + suffix + frames, connection, name});
    }
  }
  return contexts;
}

bool hasContext(const BrowserWindows& windows, const QString& name) { return contextNames(windows).contains(name); }

QString selectContext(BrowserWindows& windows, const QString& name) {
  for (const Context& context : allContexts(windows)) {
    // A window may have closed while later ones were asked.
    if (context.name == name && context.connection->isOpen()) {
      windows.setCurrent(context.connection);
      return context.connection->setContext(context.localName)
                 ? QString()
                 : QStringLiteral("The context '%1' went away while it was being selected.").arg(name);
    }
  }
  return QStringLiteral("There is no context '%1'. There are: %2.").arg(name, join(contextNames(windows)));
}

QString selectFrame(const BrowserWindows& windows, const QString& path) {
  const QString code =
      QStringLiteral("__corvex__setFrameContext('%1')").arg(WebWrapper::escapeQuoteWithBackslash(path));
  const WebWrapper::JavaScriptAnswer answer = windows.current()->evaluateJS(code, 0);
  if (!answer.succeeded()) {
    return answer.text;
  }
  return answer.text == QLatin1String("true")
             ? QString()
             : QStringLiteral(
                   "There is no frame '%1' in the current page. Give names, ids or FRAME with a number, "
                   "parted by dots.")
                   .arg(path);
}

QStringList contextNames(const BrowserWindows& windows) {
  QStringList names;
  for (const Context& context : allContexts(windows)) {
    names << context.name;
  }
  return names;
}

QStringList windowNames(const BrowserWindows& windows) {
  QStringList names;
  for (const Context& context : allContexts(windows)) {
    if (frameSuffix(context.name).isEmpty()) {
      names << context.name;
    }
  }
  return names;
}

}  // namespace Corvex::Webhook
