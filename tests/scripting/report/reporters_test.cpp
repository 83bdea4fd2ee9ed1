#include <QRegularExpression>
#include <QXmlStreamReader>
#include <cstdlib>

#include "scripting/report/consolereporter.h"
#include "scripting/report/junitreporter.h"
#include "scripting/scripttest.h"

using namespace Corvex::Scripting;

namespace {

class ScriptReporters : public FakeModel::ScriptTest {
protected:
  ScriptReporters() {
    FakeModel::world().add(s("{id='f'}"), s("Field"));
    write("setFocus(\"{id='f'}\");\ntest.compare(1, 1);", "good.js");
    write("test.verify(false, 'a < b & \"c\"');\ntest.log('bad \\u0001');", "checks.js");
    write("var x = 1;\nsource('lib.js');\nlook();", "error.js");
    write("function look() {\n  findObject(\"{id='<none>'}\");\n}", "lib.js");
  }

  /// What a reporter prints of one script.
  QString printedOf(const QByteArray& script) {
    write(script, "one.js");
    return textOf(ConsoleReporter::Detail::Steps,
                  [this](ConsoleReporter* reporter) { ScriptEngine(host, reporter).runFile(path("one.js")); });
  }

  RunSummary runAll(ScriptListener* reporter) {
    ScriptEngine engine(host, reporter);
    return engine.run({path("good.js"), path("checks.js"), path("error.js")});
  }

  QStringList printed(ConsoleReporter::Detail detail) {
    return textOf(detail, [this](ConsoleReporter* reporter) { runAll(reporter); })
        .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
  }

  /// Gives scripts a function `flaky` that fails so often before it works.
  void failFirst(int failures) {
    ScriptFunction flaky;
    flaky.name = flaky.usage = s("flaky");
    flaky.call = [this, failures](const Corvex::ObjectList&) {
      using Result = Corvex::FunctionCallResult<Corvex::SharedPtr<Corvex::Object>>;
      return ++m_calls > failures ? Result() : Result::failure(s("not yet"));
    };
    host.functions.push_back(flaky);
  }

  static QString textOf(ConsoleReporter::Detail detail, const std::function<void(ConsoleReporter*)>& run) {
    char* buffer = nullptr;
    std::size_t size = 0;
    std::FILE* stream = open_memstream(&buffer, &size);
    ConsoleReporter reporter(stream, detail);
    run(&reporter);
    std::fclose(stream);
    const QString text = QString::fromUtf8(buffer, static_cast<int>(size));
    std::free(buffer);
    return text;
  }

private:
  int m_calls = 0;
};

}  // namespace

TEST_F(ScriptReporters, SummaryCountsScriptsAndChecks) {
  FakeModel::RecordingListener recording;
  const RunSummary summary = runAll(&recording);
  EXPECT_TRUE(summary.text().startsWith(s("3 scripts: 1 passed, 2 failed; 2 checks, 1 failed; ")));
  RunSummary one;
  ScriptResult result;
  result.checksPassed = 1;
  result.durationMs = 3249;
  one.add(result);
  EXPECT_EQ(one.text(), s("1 script: 1 passed, 0 failed; 1 check, 0 failed; 3.2 s"));
}

TEST_F(ScriptReporters, AttemptsThatFailedStaySeenAndCountAsNone) {
  failFirst(1);
  write("flaky();\ntest.verify(true);", "flaky.js");
  RunSummary summary;
  QString lines = textOf(ConsoleReporter::Detail::Steps, [&](ConsoleReporter* reporter) {
    summary = ScriptEngine(host, reporter).run({{path("flaky.js"), {}}, {path("good.js"), {}}}, {2, 0});
  });
  EXPECT_EQ(summary.failed(), 0);
  lines.replace(QRegularExpression(s("\\d+\\.\\d+ ?s")), s("0s")).remove(path("x").chopped(1));
  EXPECT_TRUE(lines.startsWith(s("flaky.js\n  0s  flaky\n  ERROR   not yet\n"))) << qPrintable(lines);
  EXPECT_TRUE(lines.contains(s("FAILED flaky.js (0s)\nflaky.js, attempt 2\n"))) << qPrintable(lines);
  EXPECT_TRUE(lines.contains(s("flaky flaky.js (0s): passed at attempt 2\ngood.js\n"))) << qPrintable(lines);
  EXPECT_TRUE(lines.endsWith(s("2 scripts: 2 passed (1 flaky), 0 failed; 2 checks, 0 failed; 0s\n")))
      << qPrintable(lines);
}

TEST_F(ScriptReporters, ARunThatEndsAfterFailuresNamesWhatDidNotRun) {
  failFirst(5);
  write("flaky();", "flaky.js");
  QString lines = textOf(ConsoleReporter::Detail::Steps, [&](ConsoleReporter* reporter) {
    ScriptEngine(host, reporter).run({{path("flaky.js"), {}}, {path("checks.js"), {}}, {path("good.js"), {}}}, {1, 2});
  });
  EXPECT_EQ(lines.count(s("ERROR   not yet")), 2);
  EXPECT_TRUE(
      lines.contains(s("\nnot run ") + path("good.js") + s("\n3 scripts: 0 passed, 2 failed, 1 not run; 1 check")))
      << qPrintable(lines);
}

TEST_F(ScriptReporters, ConsoleShowsStepsErrorsAndTheSummaryLast) {
  const QStringList lines = printed(ConsoleReporter::Detail::Steps);
  ASSERT_GT(lines.size(), 8);
  EXPECT_EQ(lines.value(0), path("good.js"));
  EXPECT_TRUE(lines.value(1).endsWith(s("s  setFocus {id='f'}")));
  EXPECT_EQ(lines.value(2), s("  passed  got 1 as expected"));
  EXPECT_TRUE(lines.contains(s("  FAILED  a < b & \"c\" does not hold (") + path("checks.js") + s(":1)")));
  EXPECT_TRUE(lines.contains(s("  ERROR   Object '{id='<none>'}' not found.")));
  EXPECT_TRUE(lines.contains(s("          ") + path("lib.js") + s(":2 in look(): findObject(\"{id='<none>'}\");")));
  EXPECT_TRUE(lines.contains(s("          called from ") + path("error.js") + s(":3: look();")));
  EXPECT_TRUE(lines.last().startsWith(s("3 scripts: 1 passed, 2 failed")));
  EXPECT_FALSE(lines.join(QString()).contains(QChar(0x1b)));
  EXPECT_EQ(lines.filter(s("Field.focus()")), QStringList());
  EXPECT_EQ(printed(ConsoleReporter::Detail::ObjectCalls).filter(s("Field.focus()")).size(), 1);
}

TEST_F(ScriptReporters, ConsoleShowsTextsInOnePieceAndWhoCalledWhat) {
  const QString lines = printedOf(
      "function check(text) { test.compare(text, ''); }\n"
      "test.log('one\\n  FAILED  two\\u001b[2J\\0\\n');\n"
      "check('a\\nb');\n"
      "findObject('a\\rb');\n");
  EXPECT_TRUE(lines.contains(s("  log     one\n            FAILED  two\\u001b[2J\\u0000\n")));
  EXPECT_TRUE(lines.contains(s("  FAILED  got 'a\n          b', but expected '' (") + path("one.js") +
                             s(":1, called from ") + path("one.js") + s(":3)\n")));
  EXPECT_TRUE(lines.contains(s("  ERROR   Object 'a\\rb' not found.\n          ") + path("one.js") + s(":4: ")));
}

TEST_F(ScriptReporters, ConsoleShowsGroupsAndTestFunctions) {
  QString lines = printedOf(
      "function testA() {\n"
      "  test.step('outer', function () { test.step('in\\nner', function () { test.log('a\\nb'); nowhere(); }); });\n"
      "}\n"
      "function testB() { test.skip('later'); }\n");
  lines.replace(QRegularExpression(s("\\(\\d+\\.\\d+s\\)")), s("(0s)"));
  const QString script = path("one.js");
  EXPECT_EQ(lines, script +
                       s("\ntestA()\n"
                         "  begin   outer\n"
                         "    begin   in\n            ner\n"
                         "      log     a\n              b\n"
                         "    end     in\n            ner (0s) after an error: "
                         "ReferenceError: nowhere is not defined\n"
                         "  end     outer (0s) after an error: ReferenceError: nowhere is not defined\n"
                         "  ERROR   ReferenceError: nowhere is not defined\n"
                         "          ") +
                       script +
                       s(":2 in testA(): test.step('outer', function () { test.step('in\\nner', function () { "
                         "test.log('a\\nb'); nowhere(); }); });\n"
                         "FAILED testA() (0s)\n"
                         "testB()\n"
                         "skipped testB() (0s): later\n"
                         "FAILED ") +
                       script + s(" (0s)\n"));
}

TEST_F(ScriptReporters, AnOutputThatTakesNoMoreIsToldOnce) {
  std::FILE* full = std::fopen("/dev/full", "w");
  ConsoleReporter reporter(full);
  int ends = 0;
  reporter.setOutputEnd([&ends] { ++ends; });
  runAll(&reporter);
  std::fclose(full);
  EXPECT_EQ(reporter.error(), std::errc::no_space_on_device);
  EXPECT_EQ(ends, 1);
}

TEST_F(ScriptReporters, JUnitFileIsValidAndComplete) {
  JUnitReporter reporter(path("junit.xml"));
  ASSERT_EQ(reporter.open(), QString());
  runAll(&reporter);
  EXPECT_EQ(reporter.error(), QString());

  QXmlStreamReader xml(TestSupport::readFile(path("junit.xml")));
  QStringList seen;
  while (!xml.atEnd()) {
    if (xml.readNext() != QXmlStreamReader::StartElement) {
      continue;
    }
    const QXmlStreamAttributes attributes = xml.attributes();
    const QString element = xml.name().toString();
    if (element == s("testsuite")) {
      seen << s("suite ") + attributes.value(s("tests")).toString() + attributes.value(s("failures")).toString() +
                  attributes.value(s("errors")).toString();
    }
    if (element == s("testcase")) {
      seen << s("case ") + attributes.value(s("classname")).toString();
    }
    if (element == s("failure") || element == s("error")) {
      seen << element + s(" ") + attributes.value(s("message")).toString() + s(" | ") + xml.readElementText().trimmed();
    }
    if (element == s("system-out")) {
      seen << s("out ") + xml.readElementText().trimmed();
    }
  }
  EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
  EXPECT_EQ(
      seen,
      QStringList(
          {s("suite 311"), s("case good"), s("out passed got 1 as expected (") + path("good.js") + s(":2)"),
           s("case checks"),
           s("failure 1 of 1 checks failed | ") + path("checks.js") + s(":1: a < b & \"c\" does not hold"),
           s("out FAILED a < b & \"c\" does not hold (") + path("checks.js") + s(":1)\nbad \\u0001"), s("case error"),
           s("error Object '{id='<none>'}' not found. | ") + path("lib.js") +
               s(":2 in look(): findObject(\"{id='<none>'}\");\ncalled from ") + path("error.js") + s(":3: look();")}));
}

TEST_F(ScriptReporters, JUnitFileHoldsAttemptsThatFailedInTheCasesOfTheLast) {
  failFirst(3);
  write("function testGood() {}\nfunction testBad() { test.log('tried'); flaky(); }", "flaky.js");
  JUnitReporter reporter(path("junit.xml"));
  ASSERT_EQ(reporter.open(), QString());
  ScriptEngine(host, &reporter).run({{path("flaky.js"), {}}, {path("flaky.js"), {}}}, {1, 0});
  QString xml = QString::fromUtf8(TestSupport::readFile(path("junit.xml")));
  xml.replace(QRegularExpression(
                  s("(\\s*)?<system-out>.*?</system-out>\\s*|<stackTrace>[^<]*</stackTrace>\\s*|time=\"[^\"]*\"")),
              QString());
  EXPECT_TRUE(xml.contains(s("tests=\"4\" failures=\"0\" errors=\"1\""))) << qPrintable(xml);
  EXPECT_EQ(xml.count(s("<rerunError type=\"ScriptError\" message=\"not yet\">")), 1) << qPrintable(xml);
  EXPECT_EQ(xml.count(s("<flakyError type=\"ScriptError\" message=\"not yet\">")), 1) << qPrintable(xml);
  EXPECT_LT(xml.indexOf(s("rerunError")), xml.indexOf(s("flakyError")));
  EXPECT_EQ(xml.count(s("<testcase name=\"testGood\"")), 2) << qPrintable(xml);
}

TEST_F(ScriptReporters, JUnitFileThatCannotBeWrittenIsToldBeforehand) {
  JUnitReporter reporter(path("none/junit.xml"));
  EXPECT_EQ(reporter.open(), QStringLiteral("Cannot write the JUnit file '%1': No such file or "
                                            "directory. Choose a file in a directory that "
                                            "exists and that you may write to.")
                                 .arg(path("none/junit.xml")));
}
