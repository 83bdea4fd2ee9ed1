#include "webhook/pages/connection.h"

#include "shared/wait.h"
#include "webhook/browser/pageerrors.h"
#include "webhook/pages/extensioncheck.h"
#include "webhook/protocol/inpagetext.h"
#include "wrappers/web/elements/html_text.h"
#include "wrappers/web/page/escaping.h"
#include "wrappers/web/widgets/widgetclasses.h"

namespace Corvex::Webhook {

namespace {

// Other numbers than the wrapper's two special ones; what they stand for is only known here.
struct BrowserKindRow {
  BrowserIdentity::Family family;
  int kind;
};

const BrowserKindRow browserKinds[] = {
    {BrowserIdentity::Firefox, 1},
    {BrowserIdentity::Chrome, 3},
    {BrowserIdentity::Chromium, 4},
};

const int mostGreetings = 3;
const int scriptsTimeoutMs = 2000;
const int scriptsIntervalMs = 5;

/// What code needs to be safe in a page that is not ours. The page may have replaced what answers are written with; and
/// a reference into one document may name anything in the next one, which can be there before the browser tells of it.
QString guarded(const QString& code, int document) {
  static const QString frame = [] {
    const QString text = inPageText("guard.js");
    return text.mid(text.indexOf(QLatin1Char('{')));
  }();
  return frame.arg(QString::number(document), PageErrors::pageReplaced(), code);
}

QString closedPage() { return QStringLiteral("The browser window is closed. Call startBrowser(url) to open another."); }

}  // namespace

Connection::Connection(BrowserPage* page, const WebWrapper::WrapperConfig* config, const BrowserIdentity& browser,
                       const QString& tabId, QObject* parent)
    : QObject(parent), m_page(page), m_config(config), m_browser(browser), m_tabId(tabId) {
  connect(page, &BrowserPage::crashed, this, &Connection::documentGone);
  connect(page, &BrowserPage::navigated, this, &Connection::documentGone);
  connect(page, &BrowserPage::closed, this, &Connection::documentGone);
  connect(this, &Connection::documentGone, this, [this] {
    m_greeted = false;
    ++m_documentsGone;
  });
}

QString Connection::install() {
  const QString error = greetDocument();
  if (!error.isEmpty()) {
    return error;
  }
  return m_page ? m_page->addStartScript(hookText(*m_config, m_browser)) : closedPage();
}

QString Connection::greetDocument() {
  m_greeted = true;
  const QString greeting = inPageText("greeting.js").arg(m_tabId, QString::number(++m_document));
  JavaScriptAnswer answer = ask(greeting, 0);
  if (answer.succeeded() && answer.text != QLatin1String("true")) {
    answer = ask(hookText(*m_config, m_browser), 0);
    if (answer.failed) {
      m_greeted = false;
      return extensionError(
          [this](const QString& code) {
            const JavaScriptAnswer alone = ask(code, 0);
            return alone.failed ? alone.text : QString();
          },
          answer.text);
    }
    answer = ask(greeting, 0);
  }
  const bool there = answer.text == QLatin1String("true");
  // The document that answered may have been replaced while its answer was waited for.
  m_greeted = m_greeted && there;
  if (m_greeted && !m_contextName.isEmpty()) {
    applyContext();
  }
  return there ? QString() : answer.text;
}

QString Connection::navigate(const QString& url, int timeoutMs) {
  return go(url, [&](BrowserPage& page) { return page.navigate(url, timeoutMs); });
}

QString Connection::reload() {
  return go(address(), [](BrowserPage& page) { return page.reload(); });
}

QString Connection::goThroughHistory(int steps) {
  return go(QString(), [steps](BrowserPage& page) { return page.goThroughHistory(steps); });
}

QString Connection::go(const QString& url, const std::function<QString(BrowserPage&)>& leave) {
  if (!m_page) {
    return closedPage();
  }
  m_contextName.clear();
  Q_EMIT navigating(url);
  const QString error = leave(*m_page);
  if (!error.isEmpty()) {
    return error;
  }
  QString why;
  bool hasLeft = true;
  // A page may leave while it is greeted: the next one takes its place.
  for (int i = 0; i < mostGreetings && hasLeft && !m_greeted; ++i) {
    const int gone = m_documentsGone;
    why = greetDocument();
    hasLeft = m_documentsGone != gone;
  }
  return why.isEmpty() || m_greeted
             ? QString()
             : QStringLiteral("The page '%1' was loaded, but its scripts could not be reached: %2").arg(address(), why);
}

bool Connection::setContext(const QString& name) {
  m_contextName = name;
  if (!mayBeHeld() && applyContext()) {
    return true;
  }
  const bool isLeftForLater = mayBeHeld();
  m_greeted = m_greeted && !isLeftForLater;
  return isLeftForLater;
}

bool Connection::applyContext() {
  const QString code =
      QStringLiteral("__corvex__setContext('%1')").arg(WebWrapper::escapeQuoteWithBackslash(m_contextName));
  return evaluateJS(code, 0).text == QLatin1String("true");
}

QString Connection::perform(const InputSteps& steps) {
  const QString obstacle = m_whyNotAsk();
  if (!m_page || !obstacle.isEmpty()) {
    return m_page ? obstacle : closedPage();
  }
  ++m_questions;
  const QString error = m_page->perform(steps);
  --m_questions;
  return error;
}

void Connection::awaitNavigation() {
  if (m_page) {
    m_page->awaitNavigation();
  }
}

QString Connection::close() { return m_page ? m_page->close() : QString(); }

bool Connection::isOpen() const { return m_page && m_page->isOpen(); }

std::optional<Dialog> Connection::openDialog() const { return m_page ? m_page->openDialog() : std::nullopt; }

QString Connection::answerDialog(bool accept, const QString& text) {
  const QString error = m_page ? m_page->answerDialog(accept, text) : closedPage();
  if (error.isEmpty() && m_browser.family == BrowserIdentity::Firefox) {
    awaitScripts();
  }
  return error;
}

void Connection::awaitScripts() {
  const auto goesOn = [this] {
    return !m_page || m_page->evaluate(inPageText("scriptswait.js"), scriptsTimeoutMs).text != QLatin1String("true");
  };
  poll(scriptsTimeoutMs, scriptsIntervalMs, goesOn);
}

JavaScriptAnswer Connection::evaluateJS(const QString& code, unsigned int timeoutMs) {
  if (!m_greeted) {
    // Whether it worked shows in what the code itself gives.
    greetDocument();
  }
  return ask(guarded(code, m_document), timeoutMs);
}

JavaScriptAnswer Connection::evaluateInAnyDocument(const QString& code, unsigned int timeoutMs) {
  const JavaScriptAnswer answer = evaluateJS(code, timeoutMs);
  if (!answer.failed || !answer.text.contains(PageErrors::pageReplaced())) {
    return answer;
  }
  // The code did not run. The browser has yet to tell of the document that is there now.
  m_greeted = false;
  return evaluateJS(code, timeoutMs);
}

JavaScriptAnswer Connection::ask(const QString& code, unsigned int timeoutMs) {
  const QString obstacle = m_whyNotAsk();
  if (!m_page) {
    return {closedPage(), false, true};
  }
  if (!obstacle.isEmpty()) {
    return {obstacle, false, true};
  }
  ++m_questions;
  const JavaScriptAnswer answer = m_page->evaluate(code, static_cast<int>(timeoutMs));
  --m_questions;
  const QString reason = answer.aborted ? m_whyNotAsk() : QString();
  return reason.isEmpty() ? answer : JavaScriptAnswer{reason, false, true};
}

int Connection::browserKind() {
  for (const BrowserKindRow& row : browserKinds) {
    if (row.family == m_browser.family) {
      return row.kind;
    }
  }
  return 0;
}

bool Connection::isAvailable() { return m_page && m_page->isAvailable(); }

const WebWrapper::WrapperConfig* Connection::config() { return m_config; }

bool Connection::supportsPageScreenshot() { return true; }

FunctionCallResult<QImage> Connection::grabPageScreenshot() {
  if (!m_page) {
    return FunctionCallResult<QImage>::failure(closedPage());
  }
  return m_page->screenshot(true);
}

FunctionCallResult<double> Connection::zoomFactor() {
  if (!m_page) {
    return FunctionCallResult<double>::failure(closedPage());
  }
  return m_page->zoomFactor();
}

QString Connection::selectFileToUpload(WebWrapper::HTML_TextBase* field, const QString& path) {
  return upload(field->reference, path);
}

QString Connection::selectFileToUpload(WebWrapper::HTML_CustomText* field, const QString& path) {
  return upload(field->reference, path);
}

QString Connection::upload(const QString& reference, const QString& path) {
  return m_page ? m_page->setFiles(reference, {path}) : closedPage();
}

}  // namespace Corvex::Webhook
