#include "webhook/backends/bidi/bidipage.h"

#include "webhook/backends/bidi/bidievaluation.h"
#include "webhook/backends/bidi/bidisession.h"
#include "webhook/browser/pageerrors.h"
#include "webhook/protocol/bidi/bidiconsole.h"
#include "webhook/protocol/devtools/devtools.h"
#include "webhook/protocol/startscript.h"

#include <QUrl>
#include <algorithm>

namespace Corvex::Webhook {

namespace {

constexpr int historyIntervalMs = 50;

/// Whether the browser sends the cookie for the address.
bool isFor(const Cookie& cookie, const QUrl& url) {
  const QString host = QLatin1Char('.') + url.host();
  const bool hostFits =
      cookie.domain.startsWith(QLatin1Char('.')) ? host.endsWith(cookie.domain) : url.host() == cookie.domain;
  const QString path = url.path().isEmpty() ? QStringLiteral("/") : url.path();
  const QString folder = cookie.path.endsWith(QLatin1Char('/')) ? cookie.path : cookie.path + QLatin1Char('/');
  return hostFits && (path == cookie.path || path.startsWith(folder));
}

}  // namespace

BidiPage::BidiPage(Channel& channel, BidiSession& session, const Bidi::Context& context)
    : ProtocolPage(channel, session, context.id, context.url),
      m_bidiSession(session),
      m_context(context.id),
      m_hasOpener(!context.opener.isEmpty()) {
  channel.subscribe(m_context, this,
                    [this](const QString& method, const QJsonObject& parameters) { takeEvent(method, parameters); });
  m_devTools = channel.start({}, Bidi::devToolsSession(m_context));
}

BidiPage::~BidiPage() { m_realmThere->complete(); }

void BidiPage::watchFrame(const QString& frame) {
  channel().subscribe(frame, this, [this](const QString& method, const QJsonObject& parameters) {
    const bool isOfPage =
        method.startsWith(QLatin1String("browsingContext.userPrompt")) || method.startsWith(QLatin1String("log."));
    if (isOfPage) {
      takeEvent(method, parameters);
    }
  });
}

PlaceNow BidiPage::placeNow() {
  using Result = FunctionCallResult<Bidi::Place>;
  return [self = QPointer<BidiPage>(this)](PageCall& call) {
    const bool knowsDevTools = self && !self->devToolsSession(call).isEmpty();
    if (self && knowsDevTools) {
      const std::shared_ptr<Pending> there = self->m_realmThere;
      waitFor(*there, call.deadline());
    }
    const QString obstacle = self ? self->whyUnavailable() : PageErrors::pageClosed();
    if (!obstacle.isEmpty()) {
      return Result::failure(obstacle);
    }
    // Browsers that know DevTools sessions hold code for a page back while a document of it is on its way, and for ever
    // in a window that a page opened; but not code for a certain document.
    return Result{{self->m_context, knowsDevTools ? self->m_realm : QString()}, {}};
  };
}

JavaScriptAnswer BidiPage::evaluate(const QString& code, int timeoutMs) {
  const QString obstacle = whyUnavailable();
  if (!obstacle.isEmpty()) {
    return {obstacle, false, true};
  }
  PageCall call = makeCall(timeoutMs);
  const QPointer<BidiPage> self(this);
  const JavaScriptAnswer evaluation = evaluateInPage(call, placeNow(), code);
  if (self && evaluation.aborted && isAvailable() && call.deadline().hasExpired()) {
    endRunningCode();
  }
  return evaluation;
}

void BidiPage::endRunningCode() {
  const QString devTools = Bidi::readDevToolsSession(m_devTools->reply.result);
  if (devTools.isEmpty()) {
    return;
  }
  // When the code has just ended by itself, the next code is ended in its place, so there must be some.
  start(Bidi::throughDevTools(devTools, DevTools::terminate()));
  start(Bidi::throughDevTools(devTools, DevTools::evaluate(QStringLiteral("0"), {}, 1000)));
}

Reply BidiPage::loadAndWait(PageCall& call, const Destination& destination, PageLoading& loading) {
  if (destination.kind == Destination::History) {
    return goThroughHistoryAndWait(call, destination.steps, loading);
  }
  const bool isAddress = destination.kind == Destination::Address;
  Reply reply = call.ask(isAddress ? Bidi::navigate(m_context, destination.url) : Bidi::reload(m_context));
  if (reply.status == Reply::Refused) {
    reply.error = Bidi::readNavigationError(reply.error);
  }
  if (!reply.isAnswered()) {
    return reply;
  }
  loading.expect(Bidi::readNavigation(reply.result));
  if (waitFor(loading, call.deadline()) != WaitResult::Complete) {
    reply.status = Reply::TimeOver;
  }
  return reply;
}

Reply BidiPage::goThroughHistoryAndWait(PageCall& call, int steps, PageLoading& loading) {
  loading.expectAny([](const QString&) { return true; });
  Reply reply = call.ask(Bidi::goThroughHistory(m_context, steps));
  if (reply.status == Reply::Refused && Bidi::isHistoryMissing(reply.error)) {
    loading.fail(PageErrors::noSuchHistory(steps));
  }
  if (!reply.isAnswered()) {
    return reply;
  }
  const QPointer<BidiPage> self(this);
  while (!loading.isComplete() && !call.deadline().hasExpired()) {
    waitFor(loading, QDeadlineTimer(std::min(call.remainingMilliseconds(), historyIntervalMs)));
    if (self && !loading.isComplete()) {
      lookForWayWithinDocument(call);
    }
  }
  if (!loading.isComplete()) {
    reply.status = Reply::TimeOver;
  }
  return reply;
}

void BidiPage::lookForWayWithinDocument(PageCall& call) {
  const QPointer<BidiPage> self(this);
  const QString before = url();
  const Reply reply = call.ask(Bidi::evaluate({m_context, m_realm}, QStringLiteral("location.href")));
  const Bidi::Outcome address = Bidi::readOutcome(reply.result);
  if (!self || !reply.isAnswered() || address.thrown || address.text == before || url() != before) {
    return;
  }
  takeUrl(address.text);
  for (const auto& loading : loadings()) {
    loading->noteSameDocument(address.text);
  }
}

void BidiPage::stopLoading() {
  // Browsers that know DevTools sessions wait for ever for a document that is stopped this way, and give it up by
  // themselves as soon as they are told to load another.
  if (Bidi::readDevToolsSession(m_devTools->reply.result).isEmpty()) {
    start(Bidi::evaluate({m_context, {}}, QStringLiteral("window.stop()")));
  }
}

QString BidiPage::devToolsSession(PageCall& call) const {
  const std::shared_ptr<Request> asked = m_devTools;
  waitFor(*asked, call.deadline());
  return Bidi::readDevToolsSession(asked->reply.result);
}

QString BidiPage::addStartScript(const QString& text) {
  if (!isOpen()) {
    return whyClosed();
  }
  PageCall call = makeCall(0);
  if (!m_framesGuarded) {
    m_framesGuarded = true;
    start(Bidi::addStartScript(m_context, StartScript::frameGuard()));
  }
  return call.errorOf(call.ask(Bidi::addStartScript(m_context, StartScript::forTopPage(text))));
}

FunctionCallResult<QImage> BidiPage::screenshot(bool wholePage) {
  const QString obstacle = whyUnavailable();
  if (!obstacle.isEmpty()) {
    return {{}, obstacle};
  }
  PageCall call = makeCall(0);
  const Reply reply = call.ask(Bidi::screenshot(m_context, wholePage));
  if (!reply.isAnswered()) {
    return {{}, call.errorOf(reply)};
  }
  const QImage image = QImage::fromData(Bidi::readScreenshot(reply.result), "PNG");
  return {image, image.isNull() ? PageErrors::noScreenshot() : QString()};
}

FunctionCallResult<double> BidiPage::zoomFactor() {
  const QString obstacle = whyUnavailable();
  if (!obstacle.isEmpty()) {
    return {1.0, obstacle};
  }
  PageCall call = makeCall(0);
  const QPointer<BidiPage> self(this);
  const QString devTools = devToolsSession(call);
  if (!devTools.isEmpty()) {
    const Reply reply = call.ask(Bidi::throughDevTools(devTools, DevTools::metrics()));
    return {reply.isAnswered() ? DevTools::readZoom(Bidi::readThroughDevTools(reply.result)) : 1.0,
            call.errorOf(reply)};
  }
  const JavaScriptAnswer ratio = evaluateInPage(call, placeNow(), QStringLiteral("window.devicePixelRatio"));
  const double value = ratio.text.toDouble();
  if (!self || !ratio.succeeded() || value <= 0) {
    return {1.0, ratio.succeeded() ? PageErrors::pageReplaced() : ratio.text};
  }
  if (!m_plainPixelRatio) {
    m_plainPixelRatio = value;
  }
  return {value / *m_plainPixelRatio, {}};
}

bool BidiPage::takesFilesOfThisMachine() const { return m_bidiSession.browserProcess() != 0; }

QString BidiPage::putFiles(PageCall& call, const QString& referenceExpression, const QStringList& paths) {
  return putFilesInto(call, m_context, placeNow(), referenceExpression, paths);
}

QString BidiPage::giveInput(PageCall& call, const InputSteps& steps) {
  const QPointer<BidiPage> self(this);
  const QString context = m_context;
  m_bidiSession.bringToFront(context);
  InputSteps actions;
  QString error;
  const auto giveActions = [&] {
    if (error.isEmpty() && !actions.isEmpty()) {
      error = call.errorOf(call.ask(m_input.write(context, std::exchange(actions, {}))));
    }
  };
  for (const InputStep& step : steps) {
    if (step.kind != InputStep::Insert) {
      actions.append(step);
      continue;
    }
    giveActions();
    if (error.isEmpty()) {
      error = self ? insertText(call, placeNow(), step.text) : PageErrors::pageClosed();
    }
  }
  giveActions();
  return error;
}

QVector<Cookie> BidiPage::readCookies(const QJsonObject& answer) const {
  QVector<Cookie> ofPage;
  for (const Cookie& cookie : Bidi::readCookies(answer)) {
    if (isFor(cookie, QUrl(url()))) {
      ofPage.append(cookie);
    }
  }
  return ofPage;
}

Command BidiPage::viewportSetting(const QSize& size, double pixelRatio) {
  m_plainPixelRatio = pixelRatio > 0 ? std::optional<double>(pixelRatio) : std::nullopt;
  return Bidi::setViewport(m_context, size, pixelRatio);
}

Command BidiPage::dialogAnswer(bool accept, const QString& text) const {
  const std::optional<Dialog> dialog = openDialog();
  const bool isPrompt = dialog && dialog->kind == QLatin1String("prompt");
  return Bidi::answerDialog(m_context, accept, isPrompt ? text : QString());
}

void BidiPage::prepareClosing(PageCall& call) { m_bidiSession.keepBrowserOpenWithout(*this, call); }

bool BidiPage::hasDevToolsSession(const QString& session) const {
  return !session.isEmpty() && Bidi::readDevToolsSession(m_devTools->reply.result) == session;
}

void BidiPage::takeEvent(const QString& method, const QJsonObject& parameters) {
  using Handler = void (BidiPage::*)(const QJsonObject&);
  static const QHash<QString, Handler> handlers{
      {QStringLiteral("browsingContext.navigationCommitted"), &BidiPage::onNavigationCommitted},
      {QStringLiteral("browsingContext.navigationStarted"), &BidiPage::onNavigationStarted},
      {QStringLiteral("browsingContext.navigationFailed"), &BidiPage::onNavigationEnded},
      {QStringLiteral("network.fetchError"), &BidiPage::onFetchError},
      {QStringLiteral("browsingContext.domContentLoaded"), &BidiPage::onNavigationEnded},
      {QStringLiteral("browsingContext.fragmentNavigated"), &BidiPage::onNavigatedWithinDocument},
      {QStringLiteral("browsingContext.historyUpdated"), &BidiPage::onNavigatedWithinDocument},
      {QStringLiteral("browsingContext.load"), &BidiPage::onLoad},
      {QStringLiteral("script.realmCreated"), &BidiPage::onRealmCreated},
      {QStringLiteral("browsingContext.userPromptOpened"), &BidiPage::onDialogOpened},
      {QStringLiteral("browsingContext.userPromptClosed"), &BidiPage::onDialogClosed},
  };
  if (const Handler handler = handlers.value(method)) {
    (this->*handler)(parameters);
  } else if (const std::optional<ConsoleMessage> message = Bidi::readConsoleMessage(method, parameters)) {
    takeConsoleMessage(*message);
  }
}

void BidiPage::onNavigationCommitted(const QJsonObject& parameters) {
  const Bidi::Document document = Bidi::readDocument(parameters);
  m_document = document.navigation;
  if (Bidi::isCrashNotice(document)) {
    noteCrashed();
    return;
  }
  for (const auto& loading : loadings()) {
    if (Bidi::isErrorPage(document) && loading->expectsAny()) {
      loading->fail(PageErrors::errorPageLoaded(document.url));
    }
  }
  takeDocument(document.navigation, document.url);
}

void BidiPage::onNavigationStarted(const QJsonObject& parameters) {
  m_navigationUnderWay = Bidi::readDocument(parameters).navigation;
  noteNavigationBegun();
}

// Of an answer without content Firefox tells nothing else.
void BidiPage::onFetchError(const QJsonObject& parameters) {
  const QString navigation = Bidi::readDocument(parameters).navigation;
  if (!navigation.isEmpty() && navigation == m_navigationUnderWay) {
    noteNavigationEnded();
  }
}

void BidiPage::onNavigationEnded(const QJsonObject&) { noteNavigationEnded(); }

void BidiPage::noteDownload(const QString& navigation) {
  noteNavigationEnded();
  for (const auto& loading : loadings()) {
    loading->noteDownload(navigation);
  }
}

void BidiPage::onNavigatedWithinDocument(const QJsonObject& parameters) {
  const Bidi::Document document = Bidi::readDocument(parameters);
  takeUrl(document.url);
  for (const auto& loading : loadings()) {
    loading->noteSameDocument(document.url);
  }
  if (document.navigation.isEmpty()) {
    return;
  }
  for (const auto& loading : loadings()) {
    loading->noteDocument(document.navigation);
    loading->noteLoaded(document.navigation);
  }
}

void BidiPage::onLoad(const QJsonObject& parameters) {
  const Bidi::Document document = Bidi::readDocument(parameters);
  const QPointer<BidiPage> self(this);
  // Browsers built on Chromium put an error page in without telling.
  if (!document.navigation.isEmpty() && document.navigation != m_document) {
    onNavigationCommitted(parameters);
  }
  if (!self) {
    return;
  }
  for (const auto& loading : loadings()) {
    loading->noteLoaded(document.navigation);
  }
}

void BidiPage::onRealmCreated(const QJsonObject& parameters) {
  const QString realm = Bidi::readNewRealm(parameters);
  if (realm.isEmpty()) {
    return;
  }
  m_realm = realm;
  m_realmThere->complete();
}

void BidiPage::noteRealmGone(const QString& realm) {
  if (realm != m_realm) {
    return;
  }
  m_realm.clear();
  m_realmThere = std::make_shared<Pending>();
}

void BidiPage::onDialogOpened(const QJsonObject& parameters) {
  Dialog dialog = Bidi::readDialog(parameters);
  dialog.url = url();
  takeDialog(dialog);
}

void BidiPage::onDialogClosed(const QJsonObject&) { forgetDialog(); }

void BidiPage::endOpenCalls(const QString& error) {
  ProtocolPage::endOpenCalls(error);
  m_realmThere->complete();
  if (m_realm.isEmpty()) {
    m_realmThere = std::make_shared<Pending>();
  }
}

}  // namespace Corvex::Webhook
