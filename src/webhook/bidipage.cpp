#include "webhook/bidipage.h"

#include <QFileInfo>
#include <algorithm>

#include "webhook/bidievaluation.h"
#include "webhook/bidisession.h"
#include "webhook/counted.h"
#include "webhook/devtools.h"
#include "webhook/pageerrors.h"
#include "webhook/startscript.h"

namespace Corvex::Webhook {

BidiPage::BidiPage(Channel& channel, BidiSession& session, const Bidi::Context& context)
    : m_channel(channel), m_session(session), m_context(context.id), m_url(context.url) {
  m_channel.subscribe(m_context, this,
                      [this](const QString& method, const QJsonObject& parameters) { takeEvent(method, parameters); });
  m_devTools = m_channel.start({}, Bidi::devToolsSession(m_context));
}

BidiPage::~BidiPage() {
  endOpenCalls(PageErrors::pageClosed());
  m_closing->complete();
}

void BidiPage::watchFrame(const QString& frame) {
  m_channel.subscribe(frame, this, [this](const QString& method, const QJsonObject& parameters) {
    if (method.startsWith(QLatin1String("browsingContext.userPrompt")))
      takeEvent(method, parameters);
  });
}

PageCall BidiPage::makeCall(int timeoutMs) const {
  return PageCall(&m_channel, m_context, timeoutMs > 0 ? timeoutMs : m_session.defaultTimeout());
}

Bidi::Place BidiPage::place() const {
  // Browsers that know DevTools sessions hold code for a page back while a document of it is on its way, and for ever
  // in a window that a page opened; but not code for a certain document.
  return {m_context, Bidi::readDevToolsSession(m_devTools->reply.result).isEmpty() ? QString() : m_realm};
}

QString BidiPage::awaitPlace(PageCall& call) {
  const QPointer<BidiPage> self(this);
  if (!devToolsSession(call).isEmpty() && self) {
    const std::shared_ptr<Pending> there = m_realmThere;
    waitFor(*there, call.deadline());
  }
  return self ? whyUnavailable() : PageErrors::pageClosed();
}

QString BidiPage::whyUnavailable() const {
  if (!m_whyClosed.isEmpty())
    return m_whyClosed;
  if (m_crashed)
    return PageErrors::pageCrashed();
  if (m_dialog)
    return PageErrors::dialogOpen(*m_dialog);
  return {};
}

Evaluation BidiPage::evaluate(const QString& code, int timeoutMs) {
  const QString obstacle = whyUnavailable();
  if (!obstacle.isEmpty())
    return {obstacle, false, true};
  PageCall call = makeCall(timeoutMs);
  const QPointer<BidiPage> self(this);
  const QString newObstacle = awaitPlace(call);
  if (!newObstacle.isEmpty())
    return {newObstacle, false, true};
  const Evaluation evaluation = evaluateInPage(call, place(), code);
  if (self && evaluation.aborted && isAvailable() && call.deadline().hasExpired())
    endRunningCode();
  return evaluation;
}

void BidiPage::endRunningCode() {
  const QString devTools = Bidi::readDevToolsSession(m_devTools->reply.result);
  if (devTools.isEmpty())
    return;
  // When the code has just ended by itself, the next code is ended in its place, so there must be some.
  m_channel.start(m_context, Bidi::throughDevTools(devTools, DevTools::terminate()));
  m_channel.start(m_context, Bidi::throughDevTools(devTools, DevTools::evaluate(QStringLiteral("0"), {}, 1000)));
}

QString BidiPage::navigate(const QString& url, int timeoutMs) {
  if (!m_whyClosed.isEmpty())
    return m_whyClosed;
  if (m_dialog)
    return PageErrors::dialogOpen(*m_dialog);
  PageCall call = makeCall(timeoutMs);
  const Counted leaving(this, m_leaving);
  const QPointer<BidiPage> self(this);
  const auto loading = std::make_shared<PageLoading>();
  m_loadings.push_back(loading);
  const Reply reply = loadAndWait(call, url, *loading);
  if (self)
    m_loadings.erase(std::find(m_loadings.begin(), m_loadings.end(), loading));

  if (reply.status == Reply::TimeOver) {
    if (self)
      stopLoading();
    return PageErrors::notLoadedWithin(url, call.milliseconds());
  }
  if (!loading->error().isEmpty())
    return loading->error();
  if (reply.isAnswered())
    return {};
  return reply.status == Reply::Refused ? PageErrors::notLoaded(url, Bidi::readNavigationError(reply.error))
                                        : call.errorOf(reply);
}

Reply BidiPage::loadAndWait(PageCall& call, const QString& url, PageLoading& loading) {
  Reply reply = call.ask(Bidi::navigate(m_context, url));
  if (!reply.isAnswered())
    return reply;
  loading.expect(Bidi::readNavigation(reply.result));
  if (waitFor(loading, call.deadline()) != WaitResult::Complete)
    reply.status = Reply::TimeOver;
  return reply;
}

void BidiPage::stopLoading() {
  // Browsers that know DevTools sessions wait for ever for a document that is stopped this way, and give it up by
  // themselves as soon as they are told to load another.
  if (Bidi::readDevToolsSession(m_devTools->reply.result).isEmpty())
    m_channel.start(m_context, Bidi::evaluate({m_context, {}}, QStringLiteral("window.stop()")));
}

QString BidiPage::devToolsSession(PageCall& call) const {
  const std::shared_ptr<Request> asked = m_devTools;
  waitFor(*asked, call.deadline());
  return Bidi::readDevToolsSession(asked->reply.result);
}

QString BidiPage::addStartScript(const QString& text) {
  if (!m_whyClosed.isEmpty())
    return m_whyClosed;
  PageCall call = makeCall(0);
  if (!m_framesGuarded) {
    m_framesGuarded = true;
    m_channel.start(m_context, Bidi::addStartScript(m_context, StartScript::frameGuard()));
  }
  return call.errorOf(call.ask(Bidi::addStartScript(m_context, StartScript::forTopPage(text))));
}

Screenshot BidiPage::screenshot(bool wholePage) {
  const QString obstacle = whyUnavailable();
  if (!obstacle.isEmpty())
    return {{}, obstacle};
  PageCall call = makeCall(0);
  const Reply reply = call.ask(Bidi::screenshot(m_context, wholePage));
  if (!reply.isAnswered())
    return {{}, call.errorOf(reply)};
  const QImage image = QImage::fromData(Bidi::readScreenshot(reply.result), "PNG");
  return {image, image.isNull() ? PageErrors::noScreenshot() : QString()};
}

ZoomFactor BidiPage::zoomFactor() {
  const QString obstacle = whyUnavailable();
  if (!obstacle.isEmpty())
    return {1.0, obstacle};
  PageCall call = makeCall(0);
  const QPointer<BidiPage> self(this);
  const QString devTools = devToolsSession(call);
  if (!devTools.isEmpty()) {
    const Reply reply = call.ask(Bidi::throughDevTools(devTools, DevTools::metrics()));
    return {reply.isAnswered() ? DevTools::readZoom(Bidi::readThroughDevTools(reply.result)) : 1.0,
            call.errorOf(reply)};
  }
  const Evaluation ratio = evaluateInPage(call, place(), QStringLiteral("window.devicePixelRatio"));
  const double value = ratio.text.toDouble();
  if (!self || !ratio.isOk() || value <= 0)
    return {1.0, ratio.isOk() ? PageErrors::pageReplaced() : ratio.text};
  if (!m_plainPixelRatio)
    m_plainPixelRatio = value;
  return {value / *m_plainPixelRatio, {}};
}

QString BidiPage::setFiles(const QString& referenceExpression, const QStringList& paths) {
  const QString obstacle = whyUnavailable();
  if (!obstacle.isEmpty())
    return obstacle;
  const bool sameMachine = m_session.browserProcess() != 0;
  QStringList fullPaths;
  for (const QString& path : paths) {
    const QFileInfo file(path);
    if (sameMachine && (!file.isFile() || !file.isReadable()))
      return PageErrors::noSuchFile(path);
    fullPaths.append(sameMachine ? file.absoluteFilePath() : path);
  }
  PageCall call = makeCall(0);
  return putFilesInto(call, place(), referenceExpression, fullPaths);
}

QString BidiPage::answerDialog(bool accept, const QString& text) {
  if (!m_whyClosed.isEmpty())
    return m_whyClosed;
  if (!m_dialog)
    return PageErrors::noDialogOpen();
  const int number = m_dialogCount;
  const QPointer<BidiPage> self(this);
  PageCall call = makeCall(0);
  const bool isPrompt = m_dialog->kind == QLatin1String("prompt");
  const QString answer = text.isNull() ? m_dialog->defaultText : text;
  const Reply reply = call.ask(Bidi::answerDialog(m_context, accept, isPrompt ? answer : QString()));
  const bool nextDialogCameFirst = self && reply.status == Reply::Cancelled && m_dialogCount != number;
  if (nextDialogCameFirst)
    return {};
  if (!reply.isAnswered())
    return call.errorOf(reply);
  if (self && m_dialogCount == number)
    m_dialog.reset();
  return {};
}

QString BidiPage::close() {
  if (!isOpen())
    return {};
  if (m_dialog)
    m_channel.start(m_context, Bidi::answerDialog(m_context, false, {}));
  PageCall call = makeCall(0);
  const Counted leaving(this, m_leaving);
  const std::shared_ptr<Pending> closing = m_closing;
  m_session.keepBrowserOpenWithout(*this, call);
  const Reply reply = call.askBrowser(Bidi::closePage(m_context));
  if (closing->isComplete())
    return {};
  if (!reply.isAnswered())
    return call.errorOf(reply);
  return waitFor(*closing, call.deadline()) == WaitResult::Complete ? QString()
                                                                    : PageErrors::noAnswerWithin(call.milliseconds());
}

void BidiPage::noteClosed(const QString& sentence) {
  if (!isOpen())
    return;
  m_whyClosed = sentence;
  m_dialog.reset();
  endOpenCalls(sentence);
  m_closing->complete();
  Q_EMIT closed(sentence);
}

bool BidiPage::hasDevToolsSession(const QString& session) const {
  return !session.isEmpty() && Bidi::readDevToolsSession(m_devTools->reply.result) == session;
}

void BidiPage::noteCrashed() {
  m_crashed = true;
  m_dialog.reset();
  endOpenCalls(PageErrors::pageCrashed());
  Q_EMIT crashed();
}

void BidiPage::takeEvent(const QString& method, const QJsonObject& parameters) {
  using Handler = void (BidiPage::*)(const QJsonObject&);
  static const QHash<QString, Handler> handlers{
      {QStringLiteral("browsingContext.navigationCommitted"), &BidiPage::onNavigationCommitted},
      {QStringLiteral("browsingContext.fragmentNavigated"), &BidiPage::onNavigatedWithinDocument},
      {QStringLiteral("browsingContext.historyUpdated"), &BidiPage::onNavigatedWithinDocument},
      {QStringLiteral("browsingContext.load"), &BidiPage::onLoad},
      {QStringLiteral("script.realmCreated"), &BidiPage::onRealmCreated},
      {QStringLiteral("browsingContext.userPromptOpened"), &BidiPage::onDialogOpened},
      {QStringLiteral("browsingContext.userPromptClosed"), &BidiPage::onDialogClosed},
  };
  if (const Handler handler = handlers.value(method))
    (this->*handler)(parameters);
}

void BidiPage::takeDocument(const Bidi::Document& document) {
  m_crashed = false;
  m_document = document.navigation;
  m_url = document.url;
  for (const auto& loading : m_loadings)
    loading->noteDocument(document.navigation);
  Q_EMIT navigated(document.url);
}

void BidiPage::onNavigationCommitted(const QJsonObject& parameters) { takeDocument(Bidi::readDocument(parameters)); }

void BidiPage::onNavigatedWithinDocument(const QJsonObject& parameters) {
  const Bidi::Document document = Bidi::readDocument(parameters);
  m_url = document.url;
  if (document.navigation.isEmpty())
    return;
  for (const auto& loading : m_loadings) {
    loading->noteDocument(document.navigation);
    loading->noteLoaded(document.navigation);
  }
}

void BidiPage::onLoad(const QJsonObject& parameters) {
  const Bidi::Document document = Bidi::readDocument(parameters);
  const QPointer<BidiPage> self(this);
  // Browsers built on Chromium put an error page in without telling.
  if (!document.navigation.isEmpty() && document.navigation != m_document)
    takeDocument(document);
  if (!self)
    return;
  for (const auto& loading : m_loadings)
    loading->noteLoaded(document.navigation);
}

void BidiPage::onRealmCreated(const QJsonObject& parameters) {
  const QString realm = Bidi::readNewRealm(parameters);
  if (realm.isEmpty())
    return;
  m_realm = realm;
  m_realmThere->complete();
}

void BidiPage::noteRealmGone(const QString& realm) {
  if (realm != m_realm)
    return;
  m_realm.clear();
  m_realmThere = std::make_shared<Pending>();
}

void BidiPage::onDialogOpened(const QJsonObject& parameters) {
  Dialog dialog = Bidi::readDialog(parameters);
  dialog.url = m_url;
  if (m_leaving > 0 && dialog.kind == QLatin1String("beforeunload")) {
    m_channel.start({}, Bidi::answerDialog(m_context, true, {}));
    return;
  }
  m_dialog = dialog;
  ++m_dialogCount;
  endOpenCalls(PageErrors::dialogOpen(dialog));
  Q_EMIT dialogOpened();
}

void BidiPage::onDialogClosed(const QJsonObject&) { m_dialog.reset(); }

void BidiPage::endOpenCalls(const QString& error) {
  m_channel.cancelSession(m_context, error);
  for (const auto& loading : m_loadings)
    loading->fail(error);
  m_realmThere->complete();
  if (m_realm.isEmpty())
    m_realmThere = std::make_shared<Pending>();
}

}  // namespace Corvex::Webhook
