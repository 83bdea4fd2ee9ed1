#pragma once

#include <QStringList>
#include <functional>

#include "webhook/browser/browserpage.h"

namespace TestSupport {

/// A page without a browser: it answers as the test says, and keeps all that it was asked.
class FakeBrowserPage : public Corvex::Webhook::BrowserPage {
public:
  /// The answer to code; "true" without it.
  std::function<Corvex::JavaScriptAnswer(const QString& code)> answer;
  QStringList codes;
  QStringList startScripts;
  std::optional<Corvex::Webhook::Dialog> dialog;

  Corvex::JavaScriptAnswer evaluate(const QString& code, int) override {
    codes << code;
    return answer ? answer(code) : Corvex::JavaScriptAnswer{QStringLiteral("true"), false, false};
  }
  QString navigate(const QString& url, int) override {
    Q_EMIT navigated(url);
    return QString();
  }
  QString reload(int) override { return QString(); }
  QString goThroughHistory(int, int) override { return QString(); }
  QString addStartScript(const QString& text) override {
    startScripts << text;
    return QString();
  }
  Corvex::FunctionCallResult<QImage> screenshot(bool) override { return {}; }
  Corvex::FunctionCallResult<double> zoomFactor() override { return {1.0, {}}; }
  QString perform(const Corvex::Webhook::InputSteps&) override { return QString(); }
  void awaitNavigation() override {}
  QString setFiles(const QString&, const QStringList&) override { return QString(); }
  Corvex::FunctionCallResult<QVector<Corvex::Webhook::Cookie>> cookies() override { return {}; }
  QString setCookie(const Corvex::Webhook::Cookie&) override { return QString(); }
  QString deleteCookies() override { return QString(); }
  QString setViewport(const QSize&, double) override { return QString(); }
  QVector<Corvex::Webhook::ConsoleMessage> consoleMessages() const override { return {}; }
  std::optional<Corvex::Webhook::Dialog> openDialog() const override { return dialog; }
  QString answerDialog(bool, const QString&) override { return QString(); }
  QString close() override { return QString(); }
  QString url() const override { return QString(); }
  QString whyUnavailable() const override { return QString(); }
  bool isOpen() const override { return true; }
};

}  // namespace TestSupport
