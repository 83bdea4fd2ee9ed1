#include "webhook/run/browsercontrol.h"

#include "corvexhook/hook.h"
#include "corvexhook/inspector.h"
#include "shared/wait.h"
#include "wrappers/web/page/escaping.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QUrl>

#include <algorithm>

namespace Corvex::Webhook {

namespace {

const int loadIntervalMs = 20;

// Between two calls of a script, of each kind: a page may throw without end.
const int mostNews = 100;

}  // namespace

BrowserControl::BrowserControl(const SessionOptions& options, const InputSettings& input,
                               const QVector<Credentials>& credentials)
    : m_options(options),
      m_services(*this, m_model),
      m_hiddenScreen(whyNoScreen()),
      m_inputOfRun(input),
      m_input(input),
      m_credentialsOfRun(credentials),
      m_credentials(credentials) {
  Inspector::self()->setHostServices(&m_services);
  if (!whyNoScreen().isEmpty()) {
    Hook::hook->setNativeInterface(&m_hiddenScreen);
  }
}

BrowserControl::~BrowserControl() {
  closeBrowser();
  Inspector::self()->setHostServices(nullptr);
  Hook::hook->setNativeInterface(nullptr);
}

QString BrowserControl::startBrowser(const QString& address) {
  closeBrowser();
  const QString error = openSession();
  if (!error.isEmpty()) {
    m_browserFailure = true;
    closeBrowser();
    return error;
  }
  return openUrl(address);
}

QString BrowserControl::openUrl(const QString& address) {
  const QString url = resolveAddress(address);
  return load([&url](Connection& window) { return window.navigate(url); });
}

QString BrowserControl::reload() {
  return load([](Connection& window) { return window.reload(); });
}

QString BrowserControl::goThroughHistory(int steps) {
  return load([steps](Connection& window) { return window.goThroughHistory(steps); });
}

QString BrowserControl::load(const std::function<QString(Connection&)>& go) {
  const QString noWindow = whyNoWindow();
  if (!noWindow.isEmpty()) {
    return noWindow;
  }
  // A page that crashed cannot be asked, but leaves for another one all the same.
  const QString dialog = m_dialogs->whyNotAskPage(*m_windows->current());
  if (!dialog.isEmpty()) {
    return dialog;
  }
  const QString error = go(*m_windows->current());
  m_loadIsHeld = !error.isEmpty() && m_windows && m_windows->current() && m_windows->current()->openDialog();
  return m_loadIsHeld ? QString() : error;
}

void BrowserControl::finishLoad() {
  if (!m_loadIsHeld || !whyNotAskPage().isEmpty()) {
    return;
  }
  m_loadIsHeld = false;
  poll(Inspector::self()->defaultTimeout(), loadIntervalMs, [this] {
    Connection* const page = whyNoWindow().isEmpty() ? m_windows->current() : nullptr;
    m_loadIsHeld = page && page->openDialog();
    return !page || m_loadIsHeld ||
           page->evaluateJS(QStringLiteral("__corvex__isPageLoaded()"), 0).text == QLatin1String("true");
  });
}

QString BrowserControl::openSession() {
  if (!m_downloads) {
    m_downloads = std::make_unique<TemporaryDirectory>();
  }
  SessionOptions options = m_options;
  options.downloadFolder = m_downloads->path();
  m_endpoint = std::make_unique<MessageEndpoint>();
  QString error;
  if (!m_endpoint->start(&error)) {
    return error;
  }
  // Messages of pages are nobody else's.
  options.pastProxy = QStringLiteral("127.0.0.1:") + m_endpoint->place().section(QLatin1Char('/'), 0, 0);
  BrowserSession::Start start = BrowserSession::start(options);
  if (!start.error.isEmpty()) {
    return start.error;
  }
  m_session = std::move(start.value);
  m_session->setCredentials(m_credentials);
  if (m_browserStarted) {
    m_browserStarted(*m_session);
  }
  // A page on another machine cannot reach this one's loopback interface.
  const QString port = m_options.remoteUrl.isEmpty() ? m_endpoint->place() : QString();
  m_windows = std::make_unique<BrowserWindows>(*m_session, m_config, m_model, port);
  m_dialogs = std::make_unique<Dialogs>(*m_windows, *m_endpoint);
  m_dispatcher = std::make_unique<MessageDispatcher>(*m_endpoint, *m_windows, *m_dialogs);
  if (m_logger) {
    m_windows->recordPages();
    m_dispatcher->setEventLogger(m_logger);
  } else if (m_pickLogger) {
    m_dispatcher->setEventLogger(m_pickLogger);
  }
  QObject::connect(m_session.get(), &BrowserSession::lost, m_windows.get(), [this](const QString& reason) {
    m_lossReason = reason;
    m_browserFailure = true;
  });
  watchConsole(m_session->firstPage());
  QObject::connect(m_session.get(), &BrowserSession::pageOpened, m_windows.get(),
                   [this](BrowserPage* page) { watchConsole(page); });
  return m_windows->open();
}

void BrowserControl::watchConsole(BrowserPage* page) {
  QObject::connect(page, &BrowserPage::consoleWritten, m_windows.get(), [this](const ConsoleMessage& message) {
    const bool isWanted = message.isUncaught || m_tellsConsole;
    const auto isAlike = [&message](const Scripting::HostNews& news) {
      return news.isUncaught() == message.isUncaught;
    };
    if (!isWanted || std::count_if(m_news.begin(), m_news.end(), isAlike) >= mostNews) {
      return;
    }
    const QString place = message.url.isEmpty()
                              ? QStringLiteral("a place that is not known")
                              : QStringLiteral("%1:%2").arg(message.url, QString::number(message.line));
    if (message.isUncaught) {
      m_news.push_back(
          {QStringLiteral("Uncaught error of a page at %1: %2").arg(place, message.text), m_failsOnPageError});
    } else {
      m_news.push_back({QStringLiteral("%1 (%2)").arg(message.text, place), false, message.level});
    }
  });
}

void BrowserControl::addCredentials(const Credentials& credentials) {
  const auto isReplaced = [&credentials](const Credentials& other) { return other.origin == credentials.origin; };
  m_credentials.erase(std::remove_if(m_credentials.begin(), m_credentials.end(), isReplaced), m_credentials.end());
  m_credentials.append(credentials);
  if (m_session) {
    m_session->setCredentials(m_credentials);
  }
}

QString BrowserControl::closeWindow() {
  const QString error = whyNoWindow();
  return error.isEmpty() ? m_windows->current()->close() : error;
}

void BrowserControl::closeBrowser() {
  m_dispatcher.reset();
  m_dialogs.reset();
  // The pages may speak until they are gone.
  m_session.reset();
  m_windows.reset();
  m_endpoint.reset();
  m_lossReason.clear();
  m_loadIsHeld = false;
}

QString BrowserControl::whyLost() const {
  return m_lossReason.isEmpty() ? QString() : QStringLiteral("The browser was lost: %1").arg(m_lossReason);
}

QString BrowserControl::whyNoWindow() const {
  if (!m_lossReason.isEmpty()) {
    return whyLost();
  }
  if (!m_windows) {
    return QStringLiteral("No browser is running. Call startBrowser(url) first.");
  }
  return m_windows->current() ? QString()
                              : QStringLiteral("The browser window is closed. Call startBrowser(url) to open another.");
}

QString BrowserControl::whyNoScreen() const {
  const bool isOthers = !m_options.remoteUrl.isEmpty() || !m_options.attachTo.isEmpty();
  return m_options.headed || isOthers
             ? QString()
             : QStringLiteral("The browser shows no window for native input. Run the script with --headed.");
}

QString BrowserControl::whyNotAskPage(Connection* window) const {
  const QString noWindow = whyNoWindow();
  if (!noWindow.isEmpty()) {
    return noWindow;
  }
  Connection* const asked = window ? window : m_windows->current();
  const QString dialog = m_dialogs->whyNotAskPage(*asked);
  const BrowserPage* const page = asked->page();
  return dialog.isEmpty() && page ? page->whyUnavailable() : dialog;
}

void BrowserControl::scriptStarted(const QString& path) {
  m_scriptFolder = QFileInfo(path).absolutePath();
  m_input = m_inputOfRun;
  m_credentials = m_credentialsOfRun;
  m_hadBrowserFailure = m_browserFailure;
}

void BrowserControl::scriptFinished(const Scripting::ScriptResult& result) {
  // The next attempt tells whether it lasts.
  m_browserFailure = result.runsAgain ? m_hadBrowserFailure : m_browserFailure;
  closeBrowser();
  m_downloads.reset();
}

QString BrowserControl::resolvePath(const QString& path) const {
  return QFileInfo(path).isAbsolute() ? path : m_scriptFolder + QLatin1Char('/') + path;
}

QString BrowserControl::resolveAddress(const QString& address) const {
  const QFileInfo file(resolvePath(address));
  if (file.isFile()) {
    return QUrl::fromLocalFile(file.absoluteFilePath()).toString(QUrl::FullyEncoded);
  }
  static const QRegularExpression scheme(QStringLiteral("^([a-z][a-z0-9+.-]*://|about:|data:)"),
                                         QRegularExpression::CaseInsensitiveOption);
  return scheme.match(address).hasMatch() ? address : WebWrapper::addSchemeIfMissing(address);
}

}  // namespace Corvex::Webhook
