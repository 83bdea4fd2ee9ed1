#include "webhook/browser/protocolpage.h"

#include "webhook/browser/browsersession.h"
#include "webhook/browser/counted.h"
#include "webhook/browser/pageerrors.h"

#include <QFileInfo>
#include <QUrl>
#include <algorithm>

namespace Corvex::Webhook {

namespace {

const int longestStepMs = 20;
constexpr int longestNavigationMs = 5000;
constexpr int consoleLimit = 1000;
constexpr int consoleTextLimit = 10000;

/// Whether this system's own scripts caused it: the start scripts end with an error where they are not to run, and the
/// hook script tells what a page keeps it from, or its policy does.
bool isOwn(const ConsoleMessage& message) {
  return message.text.contains(QLatin1String("__corvex__topPageOnly")) ||
         message.text.contains(QLatin1String("/?debuglog=")) || message.text.startsWith(QLatin1String("Ooops: "));
}

}  // namespace

ProtocolPage::ProtocolPage(Channel& channel, const BrowserSession& session, const QString& address, const QString& url)
    : m_channel(channel), m_session(session), m_address(address), m_url(url) {
  m_navigation->complete();
}

ProtocolPage::~ProtocolPage() {
  ProtocolPage::endOpenCalls(PageErrors::pageClosed());
  m_closing->complete();
}

PageCall ProtocolPage::makeCall(int timeoutMs) const {
  const int wanted = timeoutMs > 0 ? timeoutMs : m_session.defaultTimeout();
  const qint64 left = m_session.callsEnd().isForever() ? wanted : m_session.callsEnd().remainingTime();
  return PageCall(&m_channel, m_address, static_cast<int>(qBound<qint64>(1, left, wanted)));
}

std::shared_ptr<Request> ProtocolPage::start(const Command& command) { return m_channel.start(m_address, command); }

QString ProtocolPage::whyUnavailable() const {
  if (!m_whyClosed.isEmpty()) {
    return m_whyClosed;
  }
  if (m_crashed) {
    return PageErrors::pageCrashed();
  }
  return m_dialog ? PageErrors::dialogOpen(*m_dialog) : QString();
}

QString ProtocolPage::navigate(const QString& url, int timeoutMs) {
  return go({Destination::Address, url, 0}, timeoutMs);
}

QString ProtocolPage::reload(int timeoutMs) { return go({Destination::SamePage, m_url, 0}, timeoutMs); }

QString ProtocolPage::goThroughHistory(int steps, int timeoutMs) {
  const QPointer<ProtocolPage> self(this);
  const QString error = go({Destination::History, m_url, steps}, timeoutMs);
  if (!self || !error.isEmpty() || !isStartPage()) {
    return error;
  }
  go({Destination::History, m_url, -steps}, timeoutMs);
  return PageErrors::noSuchHistory(steps);
}

QString ProtocolPage::go(const Destination& destination, int timeoutMs) {
  if (!m_whyClosed.isEmpty()) {
    return m_whyClosed;
  }
  if (m_dialog) {
    return PageErrors::dialogOpen(*m_dialog);
  }
  PageCall call = makeCall(timeoutMs);
  const Counted leaving(this, m_leaving);
  const QPointer<ProtocolPage> self(this);
  const auto loading = std::make_shared<PageLoading>();
  m_loadings.push_back(loading);
  const Reply reply = loadAndWait(call, destination, *loading);
  if (self) {
    m_loadings.erase(std::find(m_loadings.begin(), m_loadings.end(), loading));
  }
  if (reply.status == Reply::TimeOver) {
    if (self) {
      stopLoading();
    }
    return destination.kind == Destination::History
               ? PageErrors::notReachedWithin(destination.steps, call.milliseconds())
               : PageErrors::notLoadedWithin(destination.url, call.milliseconds());
  }
  if (!loading->error().isEmpty()) {
    return loading->error();
  }
  return reply.status == Reply::Refused ? PageErrors::notLoaded(destination.url, reply.error) : call.errorOf(reply);
}

QString ProtocolPage::setFiles(const QString& referenceExpression, const QStringList& paths) {
  const QString obstacle = whyUnavailable();
  if (!obstacle.isEmpty()) {
    return obstacle;
  }
  QStringList fullPaths;
  for (const QString& path : paths) {
    const QString why = takesFilesOfThisMachine() ? PageErrors::whyNotUpload(path) : QString();
    if (!why.isEmpty()) {
      return why;
    }
    fullPaths.append(takesFilesOfThisMachine() ? QFileInfo(path).absoluteFilePath() : path);
  }
  PageCall call = makeCall(0);
  return putFiles(call, referenceExpression, fullPaths);
}

FunctionCallResult<QVector<Cookie>> ProtocolPage::cookies() {
  if (!m_whyClosed.isEmpty()) {
    return {{}, m_whyClosed};
  }
  PageCall call = makeCall(0);
  const QPointer<ProtocolPage> self(this);
  const Reply reply = call.ask(cookieList());
  return self && reply.isAnswered() ? FunctionCallResult<QVector<Cookie>>::success(readCookies(reply.result))
                                    : FunctionCallResult<QVector<Cookie>>::failure(call.errorOf(reply));
}

QString ProtocolPage::setCookie(const Cookie& cookie) {
  if (!m_whyClosed.isEmpty()) {
    return m_whyClosed;
  }
  Cookie whole = cookie;
  whole.domain = cookie.domain.isEmpty() ? QUrl(m_url).host() : cookie.domain;
  if (whole.domain.isEmpty()) {
    return PageErrors::noCookies(m_url);
  }
  PageCall call = makeCall(0);
  const QPointer<ProtocolPage> self(this);
  const Reply reply = call.ask(cookieSetting(cookie.domain.isEmpty() ? whole : cookie));
  const bool isRefused = reply.status == Reply::Refused || (self && reply.isAnswered() && !isCookieSet(reply.result));
  return isRefused ? PageErrors::cookieRefused(cookie.name, reply.error) : call.errorOf(reply);
}

QString ProtocolPage::deleteCookies() {
  const QPointer<ProtocolPage> self(this);
  const FunctionCallResult<QVector<Cookie>> all = cookies();
  QString error = all.error;
  for (const Cookie& cookie : all.value) {
    if (self && error.isEmpty()) {
      PageCall call = makeCall(0);
      error = call.errorOf(call.ask(cookieDeletion(cookie)));
    }
  }
  return error;
}

QString ProtocolPage::setViewport(const QSize& size, double pixelRatio) {
  const QString obstacle = whyUnavailable();
  if (!obstacle.isEmpty()) {
    return obstacle;
  }
  PageCall call = makeCall(0);
  return call.errorOf(call.ask(viewportSetting(size, pixelRatio)));
}

QString ProtocolPage::perform(const InputSteps& steps) {
  const QString obstacle = whyUnavailable();
  if (!obstacle.isEmpty()) {
    return obstacle;
  }
  // A long text takes its time.
  PageCall call = makeCall(m_session.defaultTimeout() + steps.size() * longestStepMs);
  const QPointer<ProtocolPage> self(this);
  const QString error = giveInput(call, steps);
  const bool isOutcome = error == PageErrors::pageReplaced() || error == PageErrors::pageClosed() ||
                         (self && (m_dialog || (!m_whyClosed.isEmpty() && error == m_whyClosed)));
  return isOutcome ? QString() : error;
}

void ProtocolPage::awaitNavigation() {
  const std::shared_ptr<Pending> navigation = m_navigation;
  if (!navigation->isComplete()) {
    waitFor(*navigation, QDeadlineTimer(qMin(longestNavigationMs, m_session.defaultTimeout())));
    // No later action waits for it, too.
    navigation->complete();
  }
}

void ProtocolPage::noteNavigationBegun() {
  if (m_navigation->isComplete()) {
    m_navigation = std::make_shared<Pending>();
  }
}

QString ProtocolPage::answerDialog(bool accept, const QString& text) {
  if (!m_whyClosed.isEmpty()) {
    return m_whyClosed;
  }
  if (!m_dialog) {
    return PageErrors::noDialogOpen();
  }
  const int number = m_dialogCount;
  const QPointer<ProtocolPage> self(this);
  PageCall call = makeCall(0);
  const Reply reply = call.ask(dialogAnswer(accept, text.isNull() ? m_dialog->defaultText : text));
  const bool nextDialogCameFirst = self && reply.status == Reply::Cancelled && m_dialogCount != number;
  if (nextDialogCameFirst) {
    return {};
  }
  if (reply.isAnswered() && self && m_dialogCount == number) {
    m_dialog.reset();
  }
  return call.errorOf(reply);
}

QString ProtocolPage::close() {
  if (!isOpen()) {
    return {};
  }
  if (m_dialog) {
    start(dialogAnswer(false, {}));
  }
  PageCall call = makeCall(0);
  const Counted leaving(this, m_leaving);
  const std::shared_ptr<Pending> closed = m_closing;
  const Command command = closing();
  prepareClosing(call);
  const Reply reply = call.askBrowser(command);
  if (closed->isComplete()) {
    return {};
  }
  if (!reply.isAnswered()) {
    return call.errorOf(reply);
  }
  return waitFor(*closed, call.deadline()) == WaitResult::Complete ? QString()
                                                                   : PageErrors::noAnswerWithin(call.milliseconds());
}

void ProtocolPage::noteClosed(const QString& sentence) {
  if (!isOpen()) {
    return;
  }
  m_whyClosed = sentence;
  m_dialog.reset();
  endOpenCalls(sentence);
  m_closing->complete();
  Q_EMIT closed(sentence);
}

void ProtocolPage::noteCrashed() {
  m_crashed = true;
  m_dialog.reset();
  endOpenCalls(PageErrors::pageCrashed());
  Q_EMIT crashed();
}

void ProtocolPage::takeDocument(const QString& document, const QString& url) {
  m_url = url;
  m_crashed = false;
  for (const auto& loading : m_loadings) {
    loading->noteDocument(document);
  }
  Q_EMIT navigated(url);
}

void ProtocolPage::takeDialog(const Dialog& dialog) {
  if (m_leaving > 0 && dialog.kind == QLatin1String("beforeunload")) {
    start(dialogAnswer(true, {}));
    return;
  }
  m_dialog = dialog;
  ++m_dialogCount;
  endOpenCalls(PageErrors::dialogOpen(dialog));
  Q_EMIT dialogOpened();
}

void ProtocolPage::takeConsoleMessage(ConsoleMessage message) {
  if (isOwn(message)) {
    return;
  }
  message.text.truncate(consoleTextLimit);
  message.url.truncate(consoleTextLimit);
  if (m_console.size() >= consoleLimit) {
    m_console.removeFirst();
  }
  m_console.append(message);
  Q_EMIT consoleWritten(message);
}

void ProtocolPage::endOpenCalls(const QString& error) {
  m_channel.cancelSession(m_address, error);
  noteNavigationEnded();
  for (const auto& loading : m_loadings) {
    loading->fail(error);
  }
}

}  // namespace Corvex::Webhook
