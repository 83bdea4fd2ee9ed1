#include "support/screenbrowser.h"

#include <gtest/gtest.h>

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QTimer>

#include "support/environment.h"
#include "support/testbrowser.h"
#include "webhook/run/pictures.h"
#include "wrappers/web/object/retrievehtmlobject.h"

namespace TestSupport {

namespace {

const QSize screenSize(1500, 1200);
// Multiples of all scales, so that browsers that count in whole units of the scale tell them exactly.
const QRect windowPlace(90, 60, 1200, 1020);
const int waitTimeoutMs = 30000;
const int askAgainMs = 20;

std::unique_ptr<ScreenBrowser> theBrowser;

/// Ends the browser as long as the program's event loop can run.
class BrowserEnd : public testing::Environment {
public:
  void TearDown() override { ScreenBrowser::end(); }
};

void serveEvents(int milliseconds) {
  QEventLoop loop;
  QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
  loop.exec();
}

Corvex::Webhook::SessionOptions optionsFor(double scale) {
  Corvex::Webhook::SessionOptions options = testBrowser();
  options.headed = true;
  options.startTimeoutMs = 60000;
  if (!isFirefox()) {
    // The second keeps a bar away whose shadow would fall on the page.
    options.extraArguments << QStringLiteral("--force-device-scale-factor=%1").arg(scale)
                           << QStringLiteral("--test-type");
  }
  return options;
}

Corvex::Webhook::BrowserIdentity identityOf(const Corvex::Webhook::BrowserSession& session) {
  Corvex::Webhook::BrowserIdentity identity;
  identity.family =
      isFirefox() ? Corvex::Webhook::BrowserIdentity::Firefox : Corvex::Webhook::BrowserIdentity::Chromium;
  identity.majorVersion = session.browserVersion().section(QLatin1Char('.'), 0, 0).toInt();
  return identity;
}

}  // namespace

std::unique_ptr<Corvex::WebWrapper::HTML_Object> ScreenBrowser::object(const QString& expression) {
  const auto found =
      Corvex::WebWrapper::htmlObjectFromJavaScriptResult(m_connection.get(), expression, QStringLiteral("{}"), 0);
  return std::unique_ptr<Corvex::WebWrapper::HTML_Object>(found.value);
}

QImage ScreenBrowser::pictureOf(const QString& expression, QString* error) {
  const auto element = object(expression);
  const QTemporaryDir folder;
  const QString file = folder.filePath(QStringLiteral("picture.png"));
  *error = element ? Corvex::Webhook::takeScreenshot(*m_connection, element.get(), file) : QStringLiteral("no element");
  return QImage(file);
}

ScreenBrowser& ScreenBrowser::withScale(double scale) {
  static const testing::Environment* const ending = testing::AddGlobalTestEnvironment(new BrowserEnd);
  Q_UNUSED(ending)
  if (!theBrowser || theBrowser->m_scale != scale) {
    theBrowser.reset();
    theBrowser.reset(new ScreenBrowser(scale));
  }
  return *theBrowser;
}

void ScreenBrowser::end() { theBrowser.reset(); }

QRect ScreenBrowser::windowArea() { return windowPlace; }

ScreenBrowser::ScreenBrowser(double scale) : m_scale(scale), m_screen(screenSize) { m_error = start(); }

QString ScreenBrowser::start() {
  if (!m_screen.error().isEmpty()) {
    return m_screen.error();
  }
  const bool isWhole = m_scale == static_cast<int>(m_scale);
  const ScopedVariable display("DISPLAY", m_screen.display());
  const ScopedVariable windowScale("GDK_SCALE", isWhole ? QByteArray::number(m_scale) : QByteArray());
  const ScopedVariable textScale("GDK_DPI_SCALE", isWhole ? QByteArray() : QByteArray::number(m_scale));
  Corvex::Webhook::BrowserSession::Start start = Corvex::Webhook::BrowserSession::start(optionsFor(m_scale));
  if (!start.value) {
    return start.error;
  }
  m_session = std::move(start.value);
  m_connection = std::make_unique<Corvex::Webhook::Connection>(m_session->firstPage(), &m_config,
                                                               identityOf(*m_session), QStringLiteral("1"));
  const QString error = m_connection->install();
  if (!error.isEmpty()) {
    return error;
  }
  const QString isPlaced =
      QStringLiteral("screenX * %1 === %2 && screenY * %1 === %3 && outerWidth * %1 === %4 && outerHeight * %1 === %5")
          .arg(m_scale)
          .arg(windowPlace.x())
          .arg(windowPlace.y())
          .arg(windowPlace.width())
          .arg(windowPlace.height());
  const bool placed = waitFor([&] { return m_screen.placeWindow(windowPlace) && evaluate(isPlaced).toBool(); });
  return placed ? QString() : QStringLiteral("The browser's window did not take its place.");
}

QString ScreenBrowser::load(const QString& html) {
  const QString path = QStringLiteral("/page%1.html").arg(++m_pages);
  m_server.add(path, {html.toUtf8()});
  return m_connection->navigate(m_server.url(path));
}

QJsonValue ScreenBrowser::evaluate(const QString& expression) {
  const auto answer = m_connection->evaluateJS(QStringLiteral("JSON.stringify([%1])").arg(expression), 0);
  if (!answer.succeeded()) {
    return QStringLiteral("failed: ") + answer.text;
  }
  return QJsonDocument::fromJson(answer.text.toUtf8()).array().at(0);
}

QString ScreenBrowser::zoomPage(int steps) {
  const QString ratio = QStringLiteral("devicePixelRatio");
  for (int step = 0; step < steps; ++step) {
    const double before = evaluate(ratio).toDouble();
    m_screen.pressWithControl("plus");
    if (!waitFor([&] { return evaluate(ratio).toDouble() > before; })) {
      return QStringLiteral("The page was not zoomed.");
    }
  }
  if (steps == 0) {
    m_screen.pressWithControl("0");
    return waitFor([&] { return evaluate(ratio).toDouble() == m_scale; }) ? QString()
                                                                          : QStringLiteral("The page stayed zoomed.");
  }
  return QString();
}

bool ScreenBrowser::waitForPainted(const std::function<bool()>& condition) {
  const auto isPainted = [this] { return evaluate(QStringLiteral("window.paintedFrames")).toInt() >= 2; };
  return waitFor([&] {
    evaluate(
        QStringLiteral("(function () { paintedFrames = 0; requestAnimationFrame(function again() {"
                       " if (++paintedFrames < 2) { requestAnimationFrame(again); } }); })()"));
    return waitFor(isPainted) && condition();
  });
}

bool ScreenBrowser::waitFor(const std::function<bool()>& condition) {
  const QDeadlineTimer deadline(waitTimeoutMs);
  while (!condition()) {
    if (deadline.hasExpired()) {
      return false;
    }
    serveEvents(askAgainMs);
  }
  return true;
}

}  // namespace TestSupport
