#include "webhook/browsercontrol.h"

#include "corvexhook/inspector.h"
#include "wrappers/web/escaping.h"
#include "wrappers/web/readiness.h"
#include "wrappers/web/sleeping.h"
#include "wrappers/web/wraphtmlobject.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QRegularExpression>
#include <QUrl>

namespace Corvex::Webhook {

namespace {

// How soon a sleeping script learns that its browser is gone.
const int sleepSliceMs = 100;

using ScriptValue = FunctionCallResult<SharedPtr<Object>>;

BrowserIdentity identify(const BrowserSession& session) {
  BrowserIdentity identity;
  const QString name = session.browserName().toLower();
  identity.family = name.contains(QLatin1String("firefox"))  ? BrowserIdentity::Firefox
                    : name.contains(QLatin1String("google")) ? BrowserIdentity::Chrome
                                                             : BrowserIdentity::Chromium;
  identity.majorVersion = session.browserVersion().section(QLatin1Char('.'), 0, 0).toInt();
  return identity;
}

ScriptValue scriptValue(const QString& error) { return {nullptr, error}; }

}  // namespace

BrowserControl::BrowserControl(const SessionOptions& options) : m_options(options) {
  HostServices services;
  services.isReady = [](const SharedPtr<Object>& object) {
    return WebWrapper::isObjectReady(WebWrapper::retrieveObject(object));
  };
  services.sleep = [this](int milliseconds) { sleep(milliseconds); };
  services.trouble = [this] { return trouble(); };
  Inspector::self()->setHostServices(services);
}

BrowserControl::~BrowserControl() {
  closeBrowser();
  Inspector::self()->setHostServices(HostServices());
}

Scripting::ScriptHost BrowserControl::scriptHost() {
  Scripting::ScriptHost host;
  host.functions = {
      {QStringLiteral("startBrowser"), QStringLiteral("startBrowser(url)"), 1, 1,
       [this](const ObjectList& arguments) { return scriptValue(startBrowser(arguments[0]->toString())); }},
      {QStringLiteral("closeWindow"), QStringLiteral("closeWindow()"), 0, 0,
       [this](const ObjectList&) { return scriptValue(closeWindow()); }},
      {QStringLiteral("scriptPath"), QStringLiteral("scriptPath(file)"), 1, 1,
       [this](const ObjectList& arguments) {
         return ScriptValue::success(Inspector::self()->wrapString(resolvePath(arguments[0]->toString())));
       }},
  };
  return host;
}

QString BrowserControl::startBrowser(const QString& address) {
  closeBrowser();
  const QString error = openSession();
  if (!error.isEmpty()) {
    m_browserFailure = true;
    closeBrowser();
    return error;
  }
  return m_connection->navigate(resolveAddress(address));
}

QString BrowserControl::openSession() {
  BrowserSession::Start start = BrowserSession::start(m_options);
  if (!start.error.isEmpty()) {
    return start.error;
  }
  m_session = std::move(start.session);
  m_connection = std::make_unique<Connection>(m_session->firstPage(), &m_config, identify(*m_session));
  QObject::connect(m_session.get(), &BrowserSession::lost, m_connection.get(), [this](const QString& reason) {
    m_lossReason = reason;
    m_browserFailure = true;
  });
  QObject::connect(m_connection.get(), &Connection::documentGone, m_connection.get(),
                   [this] { m_model.invalidateObjects(); });
  m_model.setConnection(m_connection.get());
  return m_connection->install();
}

QString BrowserControl::closeWindow() {
  const QString error = trouble();
  return error.isEmpty() ? m_connection->close() : error;
}

void BrowserControl::closeBrowser() {
  m_model.setConnection(nullptr);
  m_connection.reset();
  m_session.reset();
  m_lossReason.clear();
}

QString BrowserControl::trouble() const {
  if (!m_lossReason.isEmpty()) {
    return QStringLiteral("The browser was lost: %1").arg(m_lossReason);
  }
  if (!m_connection) {
    return QStringLiteral("No browser is running. Call startBrowser(url) first.");
  }
  return m_connection->isOpen()
             ? QString()
             : QStringLiteral("The browser window is closed. Call startBrowser(url) to open another.");
}

void BrowserControl::scriptStarted(const QString& path) { m_scriptFolder = QFileInfo(path).absolutePath(); }

void BrowserControl::scriptFinished(const Scripting::ScriptResult&) { closeBrowser(); }

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

void BrowserControl::sleep(int milliseconds) {
  QElapsedTimer timer;
  timer.start();
  for (int left = milliseconds; left > 0 && m_lossReason.isEmpty();
       left = milliseconds - static_cast<int>(timer.elapsed())) {
    WebWrapper::gentleSleep(qMin(left, sleepSliceMs));
  }
  if (!m_lossReason.isEmpty()) {
    Inspector::self()->reportScriptError(trouble());
  }
}

}  // namespace Corvex::Webhook
