// The report of a run as the program writes it, and as a person reads it in a browser.

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QFile>

#include <signal.h>

#include "support/printing.h"
#include "support/programrun.h"

namespace {

using TestSupport::ProgramResult;
using TestSupport::ProgramRun;

// Its texts end what they stand in wherever they are taken for code or markup.
const char* const page = R"HTML(<title>&lt;/script&gt;&lt;script&gt;document.title='taken over'&lt;/script&gt;</title>
<h1>Basket</h1><p id='sum'>Total: 41 &lt;/script&gt;&lt;script&gt;document.title='over'&lt;/script&gt;</p>
<button id='pay' onclick='console.warn("warned </script><img src=x onerror=document.title=1>"); nowhere();'>Pay</button>
<div style='height: 2000px'></div><input id='field' disabled value='&quot; onfocus=&quot;document.title=1'>)HTML";

const char* const script = R"JS(function setUp() { startBrowser("page.html"); }
function testSum() {
  test.step("Outer </script><script>document.title='step'</script>", function () {
    test.step("Inner", function () {
      mouseClick("{tagName='BUTTON' id='pay'}");
      test.compare(findObject("{tagName='P' id='sum'}").simplifiedInnerText, "Total: 42 <b>", "the sum");
    });
    test.log("logged \u001b[2J \u202e </script><b>");
  });
}
function testField() { typeText("{tagName='INPUT' id='field'}", "x"); }
function testGood() { test.verify(true, "it is good"); }
)JS";

// What a person does with the file.
const char* const reader = R"JS(startBrowser("report.html");
function count(selector) { return Number(retrieveJSObject("String(document.querySelectorAll(\"" + selector + "\").length)")); }
function textOf(selector) { return String(retrieveJSObject("document.querySelector(\"" + selector + "\").innerText")); }
function shows(selector, text) {
  var shown = textOf(selector);
  test.verify(shown.indexOf(text) >= 0, text + " in " + shown);
}
function button(text) { return "{tagName='BUTTON' simplifiedInnerText='" + text + "'}"; }
test.verify(/^. Test report: 1 of 2 scripts failed\.$/.test(pageTitle()), pageTitle());
shows("#failures", "the sum: got 'Total: 41 </script><script>document.title='over'</script>', but expected 'Total: 42 <b>'");
shows("#failures", "testField()");
test.compare(count(".script[open]"), 1); test.compare(count(".script:not([open])"), 1);
test.compare(count(".function.failed[open]"), 2); test.compare(count(".function.passed:not([open])"), 1);
shows(".group", "Outer </script><script>"); shows(".group .group", "Inner");
shows(".row.step .where", "shop.js:1"); shows(".row.step .where", "startBrowser(\"page.html\")");
shows(".row.check.failed .actual", "41"); shows(".row.check.failed .expected mark", "2 <b"); shows(".row.check.failed .expected", "42 <b>");
shows(".row.log", "logged \\u001b[2J \\u202e </script><b>");
shows(".row.message", "warn"); shows(".row.message", "onerror=document.title=1"); shows(".row.uncaught", "nowhere");
test.compare(count(".row.check.failed .spot"), 1); test.compare(count(".row.step.failed .spot"), 1);
test.compare(count("figure"), 2);
mouseClick("{tagName='SUMMARY' simplifiedInnerText='Environment'}"); shows("#environment dl", "password=..."); test.verify(textOf("#environment dl").indexOf("hush") < 0);
setFocus("{tagName='BUTTON' id='next-failure'}"); pressKeys("n");
test.verify(String(retrieveJSObject("document.activeElement.className")).indexOf("row check failed") === 0);
mouseClick("{tagName='INPUT' id='only-failures'}");
test.compare(String(retrieveJSObject("String(document.querySelector('.script.passed').offsetHeight)")), "0");
mouseClick(button("Show the objects of the page"));
waitForContextExists("report.html.FRAME1"); setContext("report.html.FRAME1");
typeText("{tagName='INPUT' type='search'}", "field");
var details = waitForObject("{tagName='DIV' id='details'}").innerText;
test.verify(details.indexOf("id='field'") >= 0, details);
mouseClick("{tagName='BUTTON' id='copy'}"); waitForObject(button("Copied"));
test.compare(consoleMessages().filter(function (message) { return message.uncaught; }).length, 0);
)JS";

QByteArray bytesOf(const ProgramRun& program, const char* name) {
  QFile file(program.folder() + QLatin1Char('/') + QLatin1String(name));
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void expectRead(ProgramRun* program, const char* text) {
  program->write(QStringLiteral("reader.js"), QString::fromUtf8(text));
  const ProgramResult read = program->run({"run", "reader.js"});
  EXPECT_EQ(read.exitCode, 0) << qPrintable(read.output + read.errors);
}

TEST(Report, ShowsWhatHappenedAndRunsNothingOfIt) {
  ProgramRun program;
  program.write(QStringLiteral("page.html"), QString::fromUtf8(page));
  program.write(QStringLiteral("shop.js"), QString::fromUtf8(script));
  program.write(QStringLiteral("good.js"), QStringLiteral("test.verify(true);"));
  const ProgramResult result = program.run({"run", "--timeout", "2", "--report", "report.html", "--arg",
                                            "password=hush", "--credentials=me:hush", "good.js", "shop.js"});
  EXPECT_EQ(result.exitCode, 1) << qPrintable(result.output + result.errors);
  EXPECT_FALSE(bytesOf(program, "report.html").contains("hush"));
  EXPECT_FALSE(result.output.contains("warned")) << qPrintable(result.output);
  expectRead(&program, reader);
}

TEST(Report, ShowsSmallPicturesOfStepsWhereTheyAreWanted) {
  ProgramRun program;
  program.write(QStringLiteral("page.html"), QString::fromUtf8(page));
  program.write(QStringLiteral("two.js"),
                QStringLiteral("startBrowser('page.html'); exists(\"{tagName='P'}\"); exists(\"{tagName='P'}\"); "
                               "openUrl('about:blank');"));
  EXPECT_EQ(program.run({"run", "--report", "plain.html", "two.js"}).exitCode, 0);
  EXPECT_FALSE(bytesOf(program, "plain.html").contains("\"event\":\"picture\""));
  EXPECT_EQ(program.run({"run", "--trace", "--report", "report.html", "two.js"}).exitCode, 0);
  // What looks as before is not shown again.
  const int pictures = bytesOf(program, "report.html").count("\"event\":\"picture\"");
  EXPECT_GE(pictures, 2);
  EXPECT_LE(pictures, 4);
  expectRead(&program, R"JS(startBrowser("report.html"); mouseClick("{tagName='BUTTON' id='open-all'}");
mouseClick("{tagName='BUTTON' className='thumbnail'}");
test.compare(Number(retrieveJSObject("String(document.querySelectorAll('.thumbnail.large').length)")), 1);)JS");
}

TEST(Report, HoldsScriptsSideBySideAndWhatWasFlaky) {
  ProgramRun program;
  program.write(QStringLiteral("page.html"), QString::fromUtf8(page));
  // Fails until it has left a file.
  program.write(
      QStringLiteral("flaky.js"),
      QStringLiteral("startBrowser('page.html');\n"
                     "try { readTable('left.json'); } catch (e) {\n"
                     "  if (!/object/.test(e.message)) { saveTree('left.json'); test.fail('not yet'); } }\n"));
  program.write(QStringLiteral("sum.js"), QStringLiteral("startBrowser('page.html');\n"
                                                         "test.compare(findObject(\"{tagName='P'}\").id, 'total');"));
  const ProgramResult result =
      program.run({"run", "--jobs", "2", "--retries", "1", "--report", "report.html", "flaky.js", "sum.js"});
  EXPECT_EQ(result.exitCode, 1) << qPrintable(result.output + result.errors);
  expectRead(&program, R"JS(startBrowser("report.html");
function count(selector) { return Number(retrieveJSObject("String(document.querySelectorAll('" + selector + "').length)")); }
function text(id) { return String(retrieveJSObject("document.getElementById('" + id + "').innerText")); }
test.compare(text("sentence"), "1 of 2 scripts failed.");
test.verify(/flaky\s*1/.test(text("numbers")), text("numbers"));
test.compare(count(".script.again"), 2); test.compare(count(".script.passed"), 1); test.compare(count(".script.failed"), 1);
test.verify(text("failures").indexOf("not yet") < 0 && text("failures").indexOf("expected 'total'") >= 0, text("failures"));
test.compare(count("figure .spot"), 1);
mouseClick("{tagName='INPUT' id='only-failures'}");
test.compare(Number(retrieveJSObject("String(Array.from(document.querySelectorAll('.script')).filter(function (e) { return e.offsetHeight > 0; }).length)")), 3);)JS");
}

TEST(Report, OfARunThatWasKilledShowsWhatHappened) {
  ProgramRun program;
  program.write(QStringLiteral("long.js"),
                QStringLiteral("test.verify(false, 'first'); test.log('begun'); pause(60);"));
  program.start({"run", "--report", "report.html", "long.js"});
  ASSERT_TRUE(program.waitForOutput(QStringLiteral("begun")));
  ::kill(static_cast<pid_t>(program.processId()), SIGKILL);
  program.finish();
  // As if the last event had been torn.
  QFile file(program.folder() + QStringLiteral("/report.html"));
  ASSERT_TRUE(file.open(QIODevice::Append));
  file.write("<script type=\"application/json\" class=\"event\">{\"event\":\"log\",\"te");
  file.close();
  expectRead(&program, R"JS(startBrowser("report.html");
test.verify(waitForObject("{tagName='P' id='torn'}").visible);
test.verify(waitForObject("{tagName='SECTION' id='failures'}").innerText.indexOf("first does not hold") >= 0);
test.compare(Number(retrieveJSObject("String(document.querySelectorAll('.row').length)")), 2);
test.compare(Number(retrieveJSObject("String(document.querySelectorAll('.script.torn[open]').length)")), 1);)JS");
}

TEST(Report, ThatCannotBeWrittenIsToldOnce) {
  ProgramRun program;
  program.write(QStringLiteral("good.js"), QStringLiteral("test.log('ran');"));
  const ProgramResult refused = program.run({"run", "--report", "/dev/full", "good.js"});
  EXPECT_EQ(refused.exitCode, 2);
  EXPECT_TRUE(refused.errors.contains("Cannot write the report '/dev/full'")) << qPrintable(refused.errors);
  EXPECT_FALSE(refused.output.contains("ran"));
  const ProgramResult nowhere = program.run({"run", "--report", "none/report.html", "good.js"});
  EXPECT_EQ(nowhere.exitCode, 2);
  EXPECT_EQ(nowhere.errors.trimmed().count(QLatin1Char('\n')), 0) << qPrintable(nowhere.errors);
  program.write(
      QStringLiteral("many.js"),
      QStringLiteral("for (var i = 0; i < 3000; ++i) { test.log('number ' + i + ' ' + new Array(200).join('x')); }"));
  // In blocks of 512 bytes.
  const ProgramResult full = program.runInShell(QStringLiteral("trap '' XFSZ; ulimit -f 400; exec \"$@\""),
                                                {"run", "--report", "report.html", "many.js", "good.js"});
  EXPECT_EQ(full.exitCode, 1) << qPrintable(full.errors);
  EXPECT_EQ(full.errors.count("Cannot write the report 'report.html': "), 1) << qPrintable(full.errors);
  EXPECT_TRUE(full.output.contains("ran"));
  expectRead(&program, R"JS(startBrowser("report.html");
test.verify(waitForObject("{tagName='P' id='torn'}").visible);
test.verify(Number(retrieveJSObject("String(document.querySelectorAll('.row.log').length)")) > 100);)JS");
}

TEST(Report, ShowsEachAttemptAndCountsTheLast) {
  ProgramRun program;
  program.write(QStringLiteral("1.js"), QStringLiteral("test.verify(false, 'never');"));
  program.write(QStringLiteral("2.js"), QStringLiteral("test.verify(true);"));
  const ProgramResult result =
      program.run({"run", "--retries", "1", "--stop-after", "1", "--report", "report.html", "1.js", "2.js"});
  EXPECT_EQ(result.exitCode, 1) << qPrintable(result.output + result.errors);
  program.write(QStringLiteral("reader.js"), QStringLiteral(R"JS(startBrowser("report.html");
var notes = String(retrieveJSObject("Array.from(document.querySelectorAll('.script > summary .note')).map(function (e) { return e.innerText; }).join('; ')"));
test.compare(notes, "attempt 1, ran again · 1 check, 1 failed; attempt 2 · 1 check, 1 failed");
test.verify(/1 of 1 script failed/.test(pageTitle()), pageTitle());
test.compare(waitForObject("{tagName='P' id='not-run'}").simplifiedInnerText, "Not run: 2.js");
test.compare(retrieveJSObject("document.querySelectorAll('#failures li').length"), 1);
)JS"));
  const ProgramResult read = program.run({"run", "reader.js"});
  EXPECT_EQ(read.exitCode, 0) << qPrintable(read.output + read.errors);
}

TEST(Report, TraceWithoutOneIsWrongUsage) {
  ProgramRun program;
  program.write(QStringLiteral("good.js"), QStringLiteral("test.log('ran');"));
  const ProgramResult result = program.run({"run", "--trace", "good.js"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_TRUE(result.errors.contains("--trace puts pictures into a report: use it with --report FILE."))
      << qPrintable(result.errors);
}

TEST(Report, OfAPageThatHangsCostsBoundedTimeAndNoOtherError) {
  ProgramRun program;
  program.write(QStringLiteral("page.html"),
                QStringLiteral("<p id='p'>One</p><script>function hang() { setTimeout(function () { for (;;) {} }, 0); "
                               "return 'ok'; }</script>"));
  program.write(QStringLiteral("hang.js"),
                QStringLiteral("startBrowser('page.html'); retrieveJSObject('hang()'); pause(0.5);\n"
                               "for (var i = 0; i < 20; ++i) { test.verify(false, 'number ' + i); }\n"));
  QElapsedTimer timer;
  timer.start();
  const ProgramResult result = program.run({"run", "--timeout", "4", "--report", "report.html", "hang.js"});
  EXPECT_LT(timer.elapsed(), 30000);
  EXPECT_EQ(result.output.count("FAILED  number"), 20) << qPrintable(result.output);
  EXPECT_FALSE(result.output.contains("ERROR")) << qPrintable(result.output);
  EXPECT_TRUE(bytesOf(program, "report.html").contains("\"missing\":\"The browser gave none before.\""));
}

}  // namespace
