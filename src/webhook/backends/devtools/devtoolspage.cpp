#include "webhook/backends/devtools/devtoolspage.h"

#include "webhook/backends/devtools/devtoolsevaluation.h"
#include "webhook/browser/browsersession.h"
#include "webhook/browser/pageerrors.h"
#include "webhook/protocol/devtools/devtoolsauth.h"
#include "webhook/protocol/devtools/devtoolsconsole.h"

#include <QUrl>

namespace Corvex::Webhook {

namespace {

Reply await(PageCall& call, PageLoading& loading, Reply reply) {
  if (waitFor(loading, call.deadline()) != WaitResult::Complete) {
    reply.status = Reply::TimeOver;
  }
  return reply;
}

}  // namespace

DevToolsPage::DevToolsPage(Channel& channel, const BrowserSession& session, Authentication& authentication,
                           const DevTools::Target& target, const QStringList& startScripts)
    : ProtocolPage(channel, session, target.session, target.url),
      m_authentication(authentication),
      m_sessionId(target.session),
      m_target(target.id) {
  channel.subscribe(m_sessionId, this,
                    [this](const QString& method, const QJsonObject& parameters) { takeEvent(method, parameters); });
  for (const Command& command : DevTools::watchPage()) {
    m_watched = start(command);
  }
  start(DevTools::watchConsole());
  holdRequests();
  for (const QString& script : startScripts) {
    m_watched = start(DevTools::addStartScript(script));
  }
  start(DevTools::resumePage());
}

JavaScriptAnswer DevToolsPage::evaluate(const QString& code, int timeoutMs) {
  const QString obstacle = whyUnavailable();
  if (!obstacle.isEmpty()) {
    return {obstacle, false, true};
  }
  PageCall call = makeCall(timeoutMs);
  return evaluateCode(call, code);
}

Reply DevToolsPage::loadAndWait(PageCall& call, const Destination& destination, PageLoading& loading) {
  // A young page may take the next document in before it takes in what is to be watched.
  const std::shared_ptr<Request> watched = m_watched;
  if (waitFor(*watched, call.deadline()) != WaitResult::Complete) {
    return {Reply::TimeOver, {}, {}};
  }
  if (destination.kind == Destination::Address) {
    return navigateAndWait(call, destination.url, loading);
  }
  if (destination.kind == Destination::History) {
    return goThroughHistoryAndWait(call, destination.steps, loading);
  }
  loading.expectAny();
  const Reply reply = call.ask(DevTools::reload());
  return reply.isAnswered() ? await(call, loading, reply) : reply;
}

Reply DevToolsPage::goThroughHistoryAndWait(PageCall& call, int steps, PageLoading& loading) {
  const Reply history = call.ask(DevTools::listHistory());
  if (!history.isAnswered()) {
    return history;
  }
  const std::optional<DevTools::HistoryEntry> entry = DevTools::readHistory(history.result, steps);
  if (!entry) {
    loading.fail(PageErrors::noSuchHistory(steps));
    return history;
  }
  loading.expectAny([&entry](const QString& url) { return url == entry->url; });
  const Reply reply = call.ask(DevTools::goToHistory(*entry));
  return reply.isAnswered() ? await(call, loading, reply) : reply;
}

Reply DevToolsPage::navigateAndWait(PageCall& call, const QString& url, PageLoading& loading) {
  Reply reply = call.ask(DevTools::navigate(url));
  if (!reply.isAnswered()) {
    return reply;
  }
  const DevTools::Navigation navigation = DevTools::readNavigation(reply.result);
  if (navigation.isDownload) {
    return reply;
  }
  const bool oldDocumentStays = navigation.errorCode == QLatin1String("net::ERR_ABORTED");
  loading.expect(navigation.document);
  if (!oldDocumentStays && waitFor(loading, call.deadline()) != WaitResult::Complete) {
    reply.status = Reply::TimeOver;
  } else if (!navigation.errorCode.isEmpty()) {
    reply = {Reply::Refused, {}, navigation.errorCode};
  }
  return reply;
}

QString DevToolsPage::addStartScript(const QString& text) {
  if (!isOpen()) {
    return whyClosed();
  }
  PageCall call = makeCall(0);
  return call.errorOf(call.ask(DevTools::addStartScript(text)));
}

FunctionCallResult<QImage> DevToolsPage::screenshot(bool wholePage) {
  const QString obstacle = whyUnavailable();
  if (!obstacle.isEmpty()) {
    return {{}, obstacle};
  }
  PageCall call = makeCall(0);
  std::optional<QJsonObject> contents;
  if (wholePage) {
    const Reply metrics = call.ask(DevTools::metrics());
    if (!metrics.isAnswered()) {
      return {{}, call.errorOf(metrics)};
    }
    contents = metrics.result;
  }
  const Reply reply = call.ask(DevTools::screenshot(contents));
  if (!reply.isAnswered()) {
    return {{}, call.errorOf(reply)};
  }
  const QImage image = QImage::fromData(DevTools::readScreenshot(reply.result), "PNG");
  return {image, image.isNull() ? PageErrors::noScreenshot() : QString()};
}

FunctionCallResult<double> DevToolsPage::zoomFactor() {
  const QString obstacle = whyUnavailable();
  if (!obstacle.isEmpty()) {
    return {1.0, obstacle};
  }
  PageCall call = makeCall(0);
  const Reply reply = call.ask(DevTools::metrics());
  if (!reply.isAnswered()) {
    return {1.0, call.errorOf(reply)};
  }
  return {DevTools::readZoom(reply.result), {}};
}

QString DevToolsPage::putFiles(PageCall& call, const QString& referenceExpression, const QStringList& paths) {
  return setFilesOfInput(call, referenceExpression, paths);
}

QString DevToolsPage::giveInput(PageCall& call, const InputSteps& steps) {
  // All at once: the browser keeps their order, and a move that nothing follows waits for the next frame.
  std::vector<std::shared_ptr<Request>> requests;
  for (const Command& command : m_input.write(steps)) {
    requests.push_back(start(command));
  }
  for (const auto& request : requests) {
    waitFor(*request, call.deadline());
    if (!request->reply.isAnswered()) {
      return call.errorOf(request->isComplete() ? request->reply : Reply{Reply::TimeOver, {}, {}});
    }
  }
  return {};
}

Command DevToolsPage::cookieSetting(const Cookie& cookie) const {
  // With a domain the browser makes it one for the hosts below, too.
  Cookie named = cookie;
  named.domain = cookie.domain.startsWith(QLatin1Char('.')) ? cookie.domain : QString();
  const bool isOfPage = cookie.domain == QUrl(url()).host();
  const QString address = isOfPage ? url() : QStringLiteral("http://") + cookie.domain;
  return DevTools::setCookie(named.domain.isEmpty() ? address : url(), named);
}

void DevToolsPage::holdRequests() { start(DevTools::holdRequests(m_authentication.hasCredentials())); }

bool DevToolsPage::letRequestGoOn(const QString& method, const QJsonObject& parameters) {
  if (const std::optional<Command> command = DevTools::goOn(method, parameters)) {
    start(*command);
    return true;
  }
  const std::optional<AuthQuestion> question = DevTools::readQuestion(method, parameters);
  if (question) {
    start(DevTools::answerQuestion(*question, m_authentication.answer(*question)));
  }
  return question.has_value();
}

void DevToolsPage::takeEvent(const QString& method, const QJsonObject& parameters) {
  using Handler = void (DevToolsPage::*)(const QJsonObject&);
  static const QHash<QString, Handler> handlers{
      {QStringLiteral("Page.frameNavigated"), &DevToolsPage::onFrameNavigated},
      {QStringLiteral("Page.frameRequestedNavigation"), &DevToolsPage::onNavigationRequested},
      {QStringLiteral("Page.frameStoppedLoading"), &DevToolsPage::onStoppedLoading},
      {QStringLiteral("Page.navigatedWithinDocument"), &DevToolsPage::onNavigatedWithinDocument},
      {QStringLiteral("Page.lifecycleEvent"), &DevToolsPage::onLifecycleEvent},
      {QStringLiteral("Page.javascriptDialogOpening"), &DevToolsPage::onDialogOpening},
      {QStringLiteral("Page.javascriptDialogClosed"), &DevToolsPage::onDialogClosed},
      {QStringLiteral("Inspector.targetCrashed"), &DevToolsPage::onCrashed},
  };
  if (const Handler handler = handlers.value(method)) {
    (this->*handler)(parameters);
  } else if (letRequestGoOn(method, parameters)) {
    return;
  } else if (const std::optional<ConsoleMessage> message = DevTools::readConsoleMessage(method, parameters)) {
    takeConsoleMessage(*message);
  }
}

void DevToolsPage::onFrameNavigated(const QJsonObject& parameters) {
  const std::optional<DevTools::NewDocument> document = DevTools::readNewDocument(parameters);
  if (!document) {
    return;
  }
  for (const auto& loading : loadings()) {
    if (document->isErrorPage && loading->expectsAny()) {
      loading->noteErrorPage(PageErrors::errorPageLoaded(document->url));
    }
  }
  takeDocument(document->document, document->url);
}

void DevToolsPage::onNavigatedWithinDocument(const QJsonObject& parameters) {
  // The top frame has the id of its page.
  if (parameters.value(QLatin1String("frameId")).toString() != m_target) {
    return;
  }
  takeUrl(parameters.value(QLatin1String("url")).toString());
  for (const auto& loading : loadings()) {
    loading->noteSameDocument(url());
  }
}

void DevToolsPage::onNavigationRequested(const QJsonObject& parameters) {
  if (DevTools::leavesDocument(parameters, m_target)) {
    noteNavigationBegun();
  }
}

void DevToolsPage::onStoppedLoading(const QJsonObject& parameters) {
  if (parameters.value(QLatin1String("frameId")).toString() == m_target) {
    noteNavigationEnded();
  }
}

void DevToolsPage::onLifecycleEvent(const QJsonObject& parameters) {
  if (parameters.value(QLatin1String("name")).toString() == QLatin1String("DOMContentLoaded")) {
    noteNavigationEnded();
  }
  if (parameters.value(QLatin1String("name")).toString() != QLatin1String("load")) {
    return;
  }
  const QString document = parameters.value(QLatin1String("loaderId")).toString();
  for (const auto& loading : loadings()) {
    loading->noteLoaded(document);
  }
}

void DevToolsPage::onDialogOpening(const QJsonObject& parameters) { takeDialog(DevTools::readDialog(parameters)); }

void DevToolsPage::onDialogClosed(const QJsonObject&) { forgetDialog(); }

void DevToolsPage::onCrashed(const QJsonObject&) { noteCrashed(); }

}  // namespace Corvex::Webhook
