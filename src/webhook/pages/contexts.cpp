#include "webhook/pages/contexts.h"

#include "webhook/pages/browserwindows.h"
#include "webhook/pages/windownames.h"
#include "webhook/protocol/inpagetext.h"
#include "wrappers/web/page/escaping.h"

#include <algorithm>

namespace Corvex::Webhook {

namespace {

QStringList namesOf(Connection* connection) {
  const WebWrapper::JavaScriptAnswer answer = connection->evaluateJS(inPageText("contextnames.js"), 0);
  if (!answer.succeeded()) {
    return {pageOfAddress(connection->address())};
  }
  QStringList names = answer.text.split(QLatin1Char('\n'));
  names.removeLast();
  return names.isEmpty() ? QStringList(pageOfAddress(connection->address())) : names;
}

const int mostListed = 20;

QString join(const QStringList& names) {
  const QString more =
      names.size() > mostListed ? QStringLiteral(" and %1 more").arg(names.size() - mostListed) : QString();
  const QString listed = names.mid(0, mostListed).join(QLatin1String("', '"));
  return names.isEmpty() ? QStringLiteral("none") : QLatin1Char('\'') + listed + QLatin1Char('\'') + more;
}

}  // namespace

QVector<Context> allContexts(const BrowserWindows& windows, const QString& wanted) {
  QVector<Context> contexts;
  NameCount count;
  for (Connection* connection : windows.connections()) {
    const bool isInDoubt = connection->mayBeHeld();
    QStringList names = isInDoubt ? QStringList(pageOfAddress(connection->address())) : namesOf(connection);
    // It may have closed instead of answering.
    const QString suffix = connection->isOpen() ? count.nextSuffix(names.first()) : QString();
    if (isInDoubt && wanted != names.first() + suffix && wanted == names.first() + suffix + framesOf(wanted)) {
      names = namesOf(connection);
    }
    for (const QString& name : connection->isOpen() ? names : QStringList()) {
      const QString frames = framesOf(name);
      contexts.append({name.left(name.size() - frames.size()) + suffix + frames, connection, name});
    }
  }
  return contexts;
}

bool hasContext(const BrowserWindows& windows, const QString& name) {
  const QVector<Context> contexts = allContexts(windows, name);
  return std::any_of(contexts.begin(), contexts.end(),
                     [&name](const Context& context) { return context.name == name; });
}

QString selectContext(BrowserWindows& windows, const QString& name) {
  for (const Context& context : allContexts(windows, name)) {
    // A window may have closed while later ones were asked.
    if (context.name != name || !context.connection->isOpen()) {
      continue;
    }
    if (context.connection->setContext(context.localName)) {
      windows.setCurrent(context.connection);
      return QString();
    }
    const QString why = windows.whyNotAsk(context.connection);
    return why.isEmpty() ? QStringLiteral("The context '%1' went away while it was being selected.").arg(name) : why;
  }
  return whyNoContext(windows, QStringLiteral("There is no context '%1'.").arg(name));
}

QString whyNoContext(const BrowserWindows& windows, const QString& what) {
  const QString shown = windows.whatIsShown();
  return QStringLiteral("%1 There are: %2.").arg(what, listOfContexts(windows)) +
         (shown.isEmpty() ? QString() : QLatin1Char(' ') + shown);
}

QString listOfContexts(const BrowserWindows& windows) { return join(contextNames(windows)); }

QString selectFrame(const BrowserWindows& windows, const QString& path) {
  const QString code = inPageText("frameselection.js").arg(WebWrapper::escapeQuoteWithBackslash(path));
  const WebWrapper::JavaScriptAnswer answer = windows.current()->evaluateJS(code, 0);
  if (!answer.succeeded()) {
    return answer.text;
  }
  if (answer.text.startsWith(QLatin1String("foreign "))) {
    return QStringLiteral(
               "The frame '%1' shows a page of another origin, which scripts cannot reach. Open its address "
               "with startBrowser(url) instead.")
        .arg(answer.text.section(QLatin1Char(' '), 1));
  }
  return answer.text.isEmpty() ? QString()
                               : QStringLiteral(
                                     "There is no frame '%1' in the current page. Give names, ids or FRAME "
                                     "with a number, parted by dots.")
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
    if (framesOf(context.name).isEmpty()) {
      names << context.name;
    }
  }
  return names;
}

}  // namespace Corvex::Webhook
