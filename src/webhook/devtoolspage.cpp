#include "webhook/devtoolspage.h"

#include <QFileInfo>
#include <algorithm>

#include "webhook/browsersession.h"
#include "webhook/counted.h"
#include "webhook/devtoolsevaluation.h"
#include "webhook/pageerrors.h"

namespace Corvex::Webhook {

DevToolsPage::DevToolsPage(Channel& channel, const BrowserSession& session, const DevTools::Target& target,
                           const QStringList& startScripts)
    : m_channel(channel), m_session(session), m_sessionId(target.session), m_target(target.id), m_url(target.url) {
  m_channel.subscribe(m_sessionId, this,
                      [this](const QString& method, const QJsonObject& parameters) { takeEvent(method, parameters); });
  for (const Command& command : DevTools::watchPage())
    m_watched = m_channel.start(m_sessionId, command);
  for (const QString& script : startScripts)
    m_watched = m_channel.start(m_sessionId, DevTools::addStartScript(script));
  m_channel.start(m_sessionId, DevTools::resumePage());
}

DevToolsPage::~DevToolsPage() {
  endOpenCalls(PageErrors::pageClosed());
  m_closing->complete();
}

PageCall DevToolsPage::makeCall(int timeoutMs) const {
  return PageCall(&m_channel, m_sessionId, timeoutMs > 0 ? timeoutMs : m_session.defaultTimeout());
}

QString DevToolsPage::whyUnavailable() const {
  if (!m_whyClosed.isEmpty())
    return m_whyClosed;
  if (m_crashed)
    return PageErrors::pageCrashed();
  if (m_dialog)
    return PageErrors::dialogOpen(*m_dialog);
  return {};
}

Evaluation DevToolsPage::evaluate(const QString& code, int timeoutMs) {
  const QString obstacle = whyUnavailable();
  if (!obstacle.isEmpty())
    return {obstacle, false, true};
  PageCall call = makeCall(timeoutMs);
  return evaluateCode(call, code);
}

QString DevToolsPage::navigate(const QString& url, int timeoutMs) {
  if (!m_whyClosed.isEmpty())
    return m_whyClosed;
  if (m_dialog)
    return PageErrors::dialogOpen(*m_dialog);
  PageCall call = makeCall(timeoutMs);
  const Counted leaving(this, m_leaving);
  const QPointer<DevToolsPage> self(this);
  const auto loading = std::make_shared<PageLoading>();
  m_loadings.push_back(loading);
  const Reply reply = loadAndWait(call, url, *loading);
  if (self)
    m_loadings.erase(std::find(m_loadings.begin(), m_loadings.end(), loading));

  if (reply.status == Reply::TimeOver) {
    call.post(DevTools::stopLoading());
    return PageErrors::notLoadedWithin(url, call.milliseconds());
  }
  const QString errorCode = reply.isAnswered() ? DevTools::readNavigation(reply.result).errorCode : reply.error;
  if (!loading->error().isEmpty())
    return loading->error();
  if (reply.isAnswered() && errorCode.isEmpty())
    return {};
  return reply.isAnswered() || reply.status == Reply::Refused ? PageErrors::notLoaded(url, errorCode)
                                                              : call.errorOf(reply);
}

Reply DevToolsPage::loadAndWait(PageCall& call, const QString& url, PageLoading& loading) {
  // A young page may take the next document in before it takes in what is to be watched.
  const std::shared_ptr<Request> watched = m_watched;
  if (waitFor(*watched, call.deadline()) != WaitResult::Complete)
    return {Reply::TimeOver, {}, {}};
  Reply reply = call.ask(DevTools::navigate(url));
  if (!reply.isAnswered())
    return reply;
  const DevTools::Navigation navigation = DevTools::readNavigation(reply.result);
  if (navigation.errorCode == QLatin1String("net::ERR_ABORTED"))
    return reply;  // the old document stays
  loading.expect(navigation.document);
  if (waitFor(loading, call.deadline()) != WaitResult::Complete)
    reply.status = Reply::TimeOver;
  return reply;
}

QString DevToolsPage::addStartScript(const QString& text) {
  if (!m_whyClosed.isEmpty())
    return m_whyClosed;
  PageCall call = makeCall(0);
  return call.errorOf(call.ask(DevTools::addStartScript(text)));
}

Screenshot DevToolsPage::screenshot(bool wholePage) {
  const QString obstacle = whyUnavailable();
  if (!obstacle.isEmpty())
    return {{}, obstacle};
  PageCall call = makeCall(0);
  std::optional<QJsonObject> contents;
  if (wholePage) {
    const Reply metrics = call.ask(DevTools::metrics());
    if (!metrics.isAnswered())
      return {{}, call.errorOf(metrics)};
    contents = metrics.result;
  }
  const Reply reply = call.ask(DevTools::screenshot(contents));
  if (!reply.isAnswered())
    return {{}, call.errorOf(reply)};
  const QImage image = QImage::fromData(DevTools::readScreenshot(reply.result), "PNG");
  return {image, image.isNull() ? PageErrors::noScreenshot() : QString()};
}

ZoomFactor DevToolsPage::zoomFactor() {
  const QString obstacle = whyUnavailable();
  if (!obstacle.isEmpty())
    return {1.0, obstacle};
  PageCall call = makeCall(0);
  const Reply reply = call.ask(DevTools::metrics());
  if (!reply.isAnswered())
    return {1.0, call.errorOf(reply)};
  return {DevTools::readZoom(reply.result), {}};
}

QString DevToolsPage::setFiles(const QString& referenceExpression, const QStringList& paths) {
  const QString obstacle = whyUnavailable();
  if (!obstacle.isEmpty())
    return obstacle;
  QStringList fullPaths;
  for (const QString& path : paths) {
    const QFileInfo file(path);
    if (!file.isFile() || !file.isReadable())
      return PageErrors::noSuchFile(path);
    fullPaths.append(file.absoluteFilePath());
  }
  PageCall call = makeCall(0);
  return setFilesOfInput(call, referenceExpression, fullPaths);
}

QString DevToolsPage::answerDialog(bool accept, const QString& text) {
  if (!m_whyClosed.isEmpty())
    return m_whyClosed;
  if (!m_dialog)
    return PageErrors::noDialogOpen();
  const int number = m_dialogCount;
  const QPointer<DevToolsPage> self(this);
  PageCall call = makeCall(0);
  const Reply reply = call.ask(DevTools::answerDialog(accept, text.isNull() ? m_dialog->defaultText : text));
  const bool nextDialogCameFirst = self && reply.status == Reply::Cancelled && m_dialogCount != number;
  if (nextDialogCameFirst)
    return {};
  if (!reply.isAnswered())
    return call.errorOf(reply);
  if (self && m_dialogCount == number)
    m_dialog.reset();
  return {};
}

QString DevToolsPage::close() {
  if (!isOpen())
    return {};
  if (m_dialog)
    m_channel.start(m_sessionId, DevTools::answerDialog(false, {}));
  PageCall call = makeCall(0);
  const Counted leaving(this, m_leaving);
  const std::shared_ptr<Pending> closing = m_closing;
  const Reply reply = call.askBrowser(DevTools::closePage(m_target));
  if (closing->isComplete())
    return {};
  if (!reply.isAnswered())
    return call.errorOf(reply);
  return waitFor(*closing, call.deadline()) == WaitResult::Complete ? QString()
                                                                    : PageErrors::noAnswerWithin(call.milliseconds());
}

void DevToolsPage::noteClosed(const QString& sentence) {
  if (!isOpen())
    return;
  m_whyClosed = sentence;
  m_dialog.reset();
  endOpenCalls(sentence);
  m_closing->complete();
  Q_EMIT closed(sentence);
}

void DevToolsPage::takeEvent(const QString& method, const QJsonObject& parameters) {
  using Handler = void (DevToolsPage::*)(const QJsonObject&);
  static const QHash<QString, Handler> handlers{
      {QStringLiteral("Page.frameNavigated"), &DevToolsPage::onFrameNavigated},
      {QStringLiteral("Page.navigatedWithinDocument"), &DevToolsPage::onNavigatedWithinDocument},
      {QStringLiteral("Page.lifecycleEvent"), &DevToolsPage::onLifecycleEvent},
      {QStringLiteral("Page.javascriptDialogOpening"), &DevToolsPage::onDialogOpening},
      {QStringLiteral("Page.javascriptDialogClosed"), &DevToolsPage::onDialogClosed},
      {QStringLiteral("Inspector.targetCrashed"), &DevToolsPage::onCrashed},
  };
  if (const Handler handler = handlers.value(method))
    (this->*handler)(parameters);
}

void DevToolsPage::onFrameNavigated(const QJsonObject& parameters) {
  const std::optional<DevTools::NewDocument> document = DevTools::readNewDocument(parameters);
  if (!document)
    return;
  m_url = document->url;
  m_crashed = false;
  for (const auto& loading : m_loadings)
    loading->noteDocument(document->document);
  Q_EMIT navigated(document->url);
}

void DevToolsPage::onNavigatedWithinDocument(const QJsonObject& parameters) {
  // The top frame has the id of its page.
  if (parameters.value(QLatin1String("frameId")).toString() != m_target)
    return;
  m_url = parameters.value(QLatin1String("url")).toString();
  for (const auto& loading : m_loadings)
    loading->noteSameDocument();
}

void DevToolsPage::onLifecycleEvent(const QJsonObject& parameters) {
  if (parameters.value(QLatin1String("name")).toString() != QLatin1String("load"))
    return;
  const QString document = parameters.value(QLatin1String("loaderId")).toString();
  for (const auto& loading : m_loadings)
    loading->noteLoaded(document);
}

void DevToolsPage::onDialogOpening(const QJsonObject& parameters) {
  const Dialog dialog = DevTools::readDialog(parameters);
  if (m_leaving > 0 && dialog.kind == QLatin1String("beforeunload")) {
    m_channel.start(m_sessionId, DevTools::answerDialog(true, {}));
    return;
  }
  m_dialog = dialog;
  ++m_dialogCount;
  endOpenCalls(PageErrors::dialogOpen(dialog));
  Q_EMIT dialogOpened();
}

void DevToolsPage::onDialogClosed(const QJsonObject&) { m_dialog.reset(); }

void DevToolsPage::onCrashed(const QJsonObject&) {
  m_crashed = true;
  m_dialog.reset();
  endOpenCalls(PageErrors::pageCrashed());
  Q_EMIT crashed();
}

void DevToolsPage::endOpenCalls(const QString& error) {
  m_channel.cancelSession(m_sessionId, error);
  for (const auto& loading : m_loadings)
    loading->fail(error);
}

}  // namespace Corvex::Webhook
