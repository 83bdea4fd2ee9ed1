#pragma once

#include "wrappers/web/page/htmlcomponent.h"
#include "wrappers/web/setup/wrapperconfig.h"

#include <QRegularExpression>
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
  /// fails. Names in the form @name@ stand for references in the text.
  void answer(const QString& part, const QString& text) { m_rules.push_back({part, {expanded(text), false, false}}); }
  void fail(const QString& part, const QString& text) { m_rules.push_back({part, {text, true, false}}); }
  void abort(const QString& part, const QString& text) { m_rules.push_back({part, {text, false, true}}); }
  /// The answers of the two envelopes.
  void answerValue(const QString& part, const QString& json) {
    answer(part, QStringLiteral("{\"result\":%1}").arg(json));
  }
  void answerObject(const QString& part, const QString& type, const QString& name) {
    answer(part, QStringLiteral("{\"refName\":\"@%1@\",\"type\":\"%2\"}").arg(name, type));
  }
  /// A reference of the page's own form. In the code that this connection compares and keeps it reads as the name.
  QString reference(const QString& name) {
    if (!m_names.contains(name)) {
      m_names << name;
    }
    return referenceNumbered(m_names.indexOf(name));
  }
  QString expanded(QString text) {
    static const QRegularExpression names(QStringLiteral("@([^@]+)@"));
    for (auto match = names.match(text); match.hasMatch(); match = names.match(text)) {
      text.replace(match.captured(0), reference(match.captured(1)));
    }
    return text;
  }
  /// The text with names for the references in it.
  QString named(QString text) const {
    for (int i = 0; i < m_names.size(); ++i) {
      text.replace(referenceNumbered(i), m_names.at(i));
    }
    return text;
  }

  Corvex::WebWrapper::JavaScriptAnswer evaluateJS(const QString& code, unsigned int timeoutMs) override {
    calls.push_back({named(code), timeoutMs});
    for (auto rule = m_rules.rbegin(); rule != m_rules.rend(); ++rule) {
      if (calls.back().code.contains(rule->part)) {
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
  static QString referenceNumbered(int number) {
    return QStringLiteral("top.__corvex__globalObjectRefStore[%1]").arg(number);
  }

  std::vector<Rule> m_rules;
  QStringList m_names;
};

}  // namespace TestSupport
