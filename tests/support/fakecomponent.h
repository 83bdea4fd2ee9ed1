#pragma once

#include "wrappers/web/page/htmlcomponent.h"
#include "wrappers/web/setup/wrapperconfig.h"

#include <QStringList>

#include <vector>

namespace TestSupport {

/// A connection without a browser: it answers from a script, and keeps all that it was asked.
class FakeComponent : public Corvex::WebWrapper::HTMLComponent {
public:
  struct Call {
    QString code;
    unsigned int timeoutMs;
  };

  /// From now on, code that contains `part` gets this answer. The last rule that fits counts; code without a rule
  /// fails.
  void answer(const QString& part, const QString& text) { m_rules.push_back({part, {text, false, false}}); }
  void fail(const QString& part, const QString& text) { m_rules.push_back({part, {text, true, false}}); }
  void abort(const QString& part, const QString& text) { m_rules.push_back({part, {text, false, true}}); }
  /// The answers of the two envelopes.
  void answerValue(const QString& part, const QString& json) {
    answer(part, QStringLiteral("{\"result\":%1}").arg(json));
  }
  void answerObject(const QString& part, const QString& type, const QString& reference) {
    answer(part, QStringLiteral("{\"refName\":\"%1\",\"type\":\"%2\"}").arg(reference, type));
  }

  Corvex::WebWrapper::JavaScriptAnswer evaluateJS(const QString& code, unsigned int timeoutMs) override {
    calls.push_back({code, timeoutMs});
    for (auto rule = m_rules.rbegin(); rule != m_rules.rend(); ++rule) {
      if (code.contains(rule->part)) {
        return rule->answer;
      }
    }
    return {QStringLiteral("no answer for: ") + code, true, false};
  }
  int browserKind() override { return kind; }
  bool isAvailable() override { return available; }
  const Corvex::WebWrapper::WrapperConfig* config() override { return &settings; }
  QString selectFileToUpload(Corvex::WebWrapper::HTML_TextBase*, const QString& path) override {
    uploads << path;
    return uploadError;
  }
  QString selectFileToUpload(Corvex::WebWrapper::HTML_CustomText*, const QString& path) override {
    uploads << path;
    return uploadError;
  }
  Corvex::FunctionCallResult<QImage> grabPageScreenshot() override {
    return Corvex::FunctionCallResult<QImage>::success(pageImage);
  }

  /// The code texts since the last call of this.
  QStringList takeCodes() {
    QStringList codes;
    for (const Call& call : calls) {
      codes << call.code;
    }
    calls.clear();
    return codes;
  }

  std::vector<Call> calls;
  QStringList uploads;
  QString uploadError;
  QImage pageImage;
  Corvex::WebWrapper::MemoryBasedConfig settings;
  int kind = 4;
  bool available = true;

private:
  struct Rule {
    QString part;
    Corvex::WebWrapper::JavaScriptAnswer answer;
  };
  std::vector<Rule> m_rules;
};

}  // namespace TestSupport
