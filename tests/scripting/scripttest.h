#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "fakemodel.h"
#include "scripting/engine/scriptengine.h"
#include "support/fakeclock.h"
#include "support/files.h"
#include "support/printing.h"

namespace FakeModel {

/// Writes down what a listener is told, a line each.
class RecordingListener : public Corvex::Scripting::ScriptListener {
public:
  void step(const Corvex::Scripting::Step& step) override { lines << QStringLiteral("step ") + step.text; }
  void objectCall(const Corvex::Scripting::Step& call) override { objectCalls << call.text; }
  void check(const Corvex::Scripting::Check& check) override {
    lines << QStringLiteral("%1 %2 line %3")
                 .arg(check.passed ? QStringLiteral("passed") : QStringLiteral("failed"), check.text,
                      QString::number(check.trace.front().line));
  }
  void log(const QString& text) override { lines << QStringLiteral("log ") + text; }
  void pageMessage(const Corvex::Scripting::PageMessage& message) override { log(message.text); }
  void groupStarted(const QString& title) override { lines << QStringLiteral("begin ") + title; }
  void groupFinished(const QString& title, const QString& error, qint64) override {
    lines << (QStringLiteral("end %1 ").arg(title) + error).trimmed();
  }
  void functionStarted(const QString& name) override { lines << QStringLiteral("function ") + name; }
  void functionFinished(const Corvex::Scripting::FunctionResult& result) override {
    lines << (result.verdict() + QLatin1Char(' ') + result.error + result.skipReason).trimmed();
  }

  void scriptFinished(const Corvex::Scripting::ScriptResult& result) override {
    errors << result.error;
    traces << Corvex::Scripting::traceText(result.trace);
  }

  QStringList lines;
  QStringList objectCalls;
  // Of each script.
  QStringList errors;
  QStringList traces;
};

/// Runs script texts on the fake object model.
class ScriptTest : public testing::Test {
protected:
  ScriptTest() { reset(); }
  ~ScriptTest() override { tearDown(); }

  static QString s(const char* utf8) { return QString::fromUtf8(utf8); }
  QString path(const char* name = "test.js") const { return m_directory.filePath(s(name)); }
  QString write(const QByteArray& content, const char* name = "test.js") const {
    EXPECT_TRUE(TestSupport::writeFile(path(name), content));
    return path(name);
  }
  Corvex::Scripting::ScriptResult run(const QByteArray& content) {
    Corvex::Scripting::ScriptEngine engine(host, &listener);
    return engine.runFile(write(content));
  }
  /// The error of a script, and the number of its line: "3: text".
  QString errorOf(const QByteArray& content) {
    const Corvex::Scripting::ScriptResult result = run(content);
    return result.error.isEmpty()
               ? QString()
               : QStringLiteral("%1: %2").arg(QString::number(result.trace.front().line), result.error);
  }

  TestSupport::FakeClock clock;
  Corvex::Scripting::ScriptHost host;
  RecordingListener listener;

private:
  QTemporaryDir m_directory;
};

}  // namespace FakeModel
