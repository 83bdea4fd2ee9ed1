#include "support/hookedbrowser.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <cstdio>
#include <cstdlib>

#include "support/printing.h"
#include "webhook/endpoint/endpointpolicy.h"

namespace TestSupport {

namespace {

HookedBrowser* theBrowser = nullptr;

class BrowserEnvironment : public testing::Environment {
public:
  void TearDown() override {
    delete theBrowser;
    theBrowser = nullptr;
  }
};

void require(const QString& error) {
  if (!error.isEmpty()) {
    std::fprintf(stderr, "The test browser could not be started: %s\n", qPrintable(error));
    std::exit(1);
  }
}

}  // namespace

HookedBrowser& HookedBrowser::instance() {
  if (!theBrowser) {
    theBrowser = new HookedBrowser;
    testing::AddGlobalTestEnvironment(new BrowserEnvironment);
  }
  return *theBrowser;
}

HookedBrowser::HookedBrowser() : m_model(new Corvex::Webhook::WebModel) {
  using namespace Corvex::Webhook;
  qputenv("CORVEX_PREFIX", CORVEX_TEST_PREFIX);
  SessionOptions options;
  options.browser = QString::fromLocal8Bit(qgetenv("CORVEX_TEST_BROWSER"));
  BrowserSession::Start start = BrowserSession::start(options);
  require(start.error);
  m_session = std::move(start.value);
  QString error;
  m_endpoint.start(&error);
  require(error);
  m_endpoint.setAllowedOrigins({originOf(m_server.url(QStringLiteral("/")))});
  m_windows = std::make_unique<BrowserWindows>(*m_session, m_config, *m_model, m_endpoint.place());
  // The hook script's own replacement of dialogs is under test, too.
  m_windows->keepDialogsInPages();
  require(m_windows->open());
}

void HookedBrowser::load(const QString& body) {
  const QString path = QStringLiteral("/page%1.html").arg(++m_pages);
  ServerPage page;
  page.body = QStringLiteral("<!DOCTYPE html><html><head></head><body>%1</body></html>").arg(body).toUtf8();
  m_server.add(path, page);
  ASSERT_EQ(connection().navigate(m_server.url(path)), QString());
}

QJsonValue HookedBrowser::evaluate(const QString& expression) {
  const auto answer = connection().evaluateJS(QStringLiteral("JSON.stringify([%1])").arg(expression), 0);
  if (!answer.succeeded()) {
    return QStringLiteral("failed: ") + answer.text;
  }
  return QJsonDocument::fromJson(answer.text.toUtf8()).array().at(0);
}

QString testFile(const QString& path) { return QStringLiteral(CORVEX_TEST_SOURCE "/") + path; }

}  // namespace TestSupport
