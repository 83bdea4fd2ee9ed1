// What a person does is recorded, and the script does the same once more in a fresh browser. The person is a script
// that uses the browser's own input.

#include <gtest/gtest.h>

#include <QDir>

#include "corvexhook/inspector.h"
#include "scripting/engine/scriptengine.h"
#include "scripting/report/consolereporter.h"
#include "shared/wait.h"
#include "support/files.h"
#include "support/printing.h"
#include "support/programrun.h"
#include "support/testbrowser.h"
#include "support/testserver.h"
#include "webhook/recorder/actrecorder.h"
#include "webhook/recorder/recordingfiles.h"
#include "webhook/run/browsercontrol.h"
#include "webhook/run/browserfunctions.h"

using namespace Corvex;
using namespace Corvex::Webhook;

namespace {

QString lastLineOf(const QString& text) { return text.trimmed().section(QLatin1Char('\n'), -1); }

class RoundTrip : public testing::Test {
protected:
  static void SetUpTestSuite() { qputenv("CORVEX_PREFIX", CORVEX_TEST_PREFIX); }

  QString scriptPath() const { return program.folder() + QStringLiteral("/recorded.js"); }
  QString mapPath() const { return program.folder() + QStringLiteral("/map.tsv"); }
  QString script() const { return QString::fromUtf8(TestSupport::readFile(scriptPath())); }

  /// Records what the statements do to a page, until the last line of the recording begins with `lastLine`. The checks
  /// come after it.
  void record(const QString& page, const QString& statements, const QString& lastLine, const QString& checks) {
    RecordingFiles files([](const QString&) {}, [](const QString& error) { ADD_FAILURE() << qPrintable(error); });
    ASSERT_EQ(files.open({scriptPath(), mapPath(), false}), QString());
    RecordedCalls calls(files);
    ActRecorder logger(calls);
    Inspector::self()->attachRecorder(&calls);
    Inspector::self()->setRecording(true);
    logger.setFirstPage(page);
    BrowserControl browser(TestSupport::testBrowser());
    browser.recordWith(&logger);
    Scripting::ScriptHost host = browserFunctions(browser);
    Scripting::ScriptFunction wait;
    wait.name = QStringLiteral("waitForRecording");
    wait.call = [&](const ObjectList&) {
      poll(10000, 20, [&] {
        logger.finish();
        return lastLineOf(script()).startsWith(lastLine);
      });
      return FunctionCallResult<SharedPtr<Object>>{nullptr, QString()};
    };
    host.functions.push_back(wait);
    Scripting::ListenerGroup listeners;
    Scripting::ConsoleReporter console(stdout, Scripting::ConsoleReporter::Detail::Steps);
    listeners.add(&browser);
    listeners.add(&console);
    Scripting::ScriptEngine engine(host, &listeners);
    const QString driver = program.write(
        "driver.js", QString("startBrowser(\"%1\");\n%2\nwaitForRecording();\n%3\n").arg(page, statements, checks));
    const Scripting::RunSummary summary = engine.run(QStringList{driver});
    Inspector::self()->setRecording(false);
    Inspector::self()->attachRecorder(nullptr);
    EXPECT_EQ(summary.failed(), 0) << qPrintable(script());
    EXPECT_TRUE(lastLineOf(script()).startsWith(lastLine)) << qPrintable(script());
  }

  void replay(const QString& checks) {
    program.write("recorded.js", script() + checks + '\n');
    const TestSupport::ProgramResult result =
        program.run({"run", "--timeout", "10", "--object-map", mapPath(), scriptPath()});
    EXPECT_EQ(result.exitCode, 0) << qPrintable(script() + result.output + result.errors);
  }

  TestSupport::ProgramRun program;
  TestSupport::TestServer server;
};

TEST_F(RoundTrip, OfAnOrderInTheShop) {
  const QString page = QDir(QStringLiteral(CORVEX_TEST_SOURCE "/../examples/shop")).canonicalPath() + "/index.html";
  const QString order = R"(
typeText("{tagName='INPUT' name='search'}", "o");
mouseClick("{tagName='INPUT' name='instock'}");
mouseClick("{tagName='BUTTON' id='add-pot'}");
mouseClick("{tagName='BUTTON' id='add-pot'}");
mouseClick("{tagName='A' name='basket'}");
typeText("{tagName='INPUT' name='name'}", "Ada & \"Co\" <b>");
typeText("{tagName='INPUT' name='mail'}", "ada@example.com");
pressKeys("<Tab><Down>");
mouseClick("{tagName='INPUT' value='invoice'}");
typeText("{tagName='TEXTAREA' name='note'}", "Ring twice.\nThe dog is kind.");
mouseClick("{tagName='BUTTON' name='place'}");)";
  const QString checks = R"(
waitForValue("{tagName='P' id='message'}", "innerText", "Thank you, Ada & \"Co\" <b>! We ship to France.");
test.compare(findObject("{tagName='SPAN' id='total'}").innerText, "98.00");
test.compare(findObject("{tagName='INPUT' name='mail'}").value, "ada@example.com");
test.compare(findObject("{tagName='TEXTAREA' name='note'}").value, "Ring twice.\nThe dog is kind.");
test.verify(findObject("{tagName='INPUT' value='invoice'}").checked);)";
  record(page, order, "clickButton(\":Place the order\");", checks);
  replay(checks);
}

TEST_F(RoundTrip, OfDialogsAndADoubleClick) {
  server.add("/page.html", {R"(<button id='a' onclick='alert("Hello")'>Alert</button>
<button id='c' onclick='this.textContent = confirm("Sure?")'>Confirm</button>
<button id='p' onclick='this.textContent = prompt("Name?", "")'>Prompt</button>
<button id='q' onclick='this.textContent = prompt("Again?", "yes") || "none"'>Again</button>
<button id='i' onclick='n.textContent = 1 + Number(n.textContent)'>Count</button><p id='n'>0</p>)"});
  const QString page = server.url("/page.html");
  const QString actions = R"(
mouseClick("{tagName='BUTTON' id='i'}");
mouseClick("{tagName='BUTTON' id='a'}");
closeAlert();
mouseClick("{tagName='BUTTON' id='c'}");
closeConfirm(true);
mouseClick("{tagName='BUTTON' id='p'}");
closePrompt("Zoë 100%");
mouseClick("{tagName='BUTTON' id='q'}");
closePrompt(null);
doubleClick("{tagName='BUTTON' id='i'}");)";
  const QString checks = R"(
waitForValue("{tagName='P' id='n'}", "innerText", "3");
test.compare(findObject("{tagName='BUTTON' id='c'}").innerText, "true");
test.compare(findObject("{tagName='BUTTON' id='p'}").innerText, "Zoë 100%");
test.compare(findObject("{tagName='BUTTON' id='q'}").innerText, "none");)";
  record(page, actions, "doubleClick(\":Count\"", checks);
  EXPECT_TRUE(script().contains("clickButton(\":Again\");\nclosePrompt(null);\n")) << qPrintable(script());
  replay(checks);
}

TEST_F(RoundTrip, OfMenusThatOpenUnderThePointer) {
  server.add("/page.html", {R"(<style>li ul, #late { display: none } li:hover > ul { display: block }</style>
<button id='b'>Open</button><i id='late' onclick='1'>Late</i><ul><li><a href='#m'>Menu</a><ul><li><a href='#s'>More</a>
<ul><li><a id='deep' href='#deep'>Deep</a></ul></ul></ul><p id='p' onclick='1'>Somewhere</p><script>
b.onmouseenter = function () { setTimeout(function () { late.style.display = 'inline'; }, 100); };
</script>)"});
  // A person lets a page rest between a press and the next.
  const QString actions = R"(
function press(name) {
  mouseClick(name);
  var end = Date.now() + 600;
  waitFor(function () { return Date.now() > end; });
}
press("{tagName='P' id='p'}");
hover("{tagName='A' simplifiedInnerText='Menu'}");
hover("{tagName='A' simplifiedInnerText='More'}");
press("{tagName='A' id='deep'}");
press("{tagName='P' id='p'}");
hover("{tagName='BUTTON' id='b'}");
mouseClick("{tagName='I' id='late'}");)";
  record(server.url("/page.html"), actions, "mouseClick(\":late\"", QString());
  for (const char* lines : {"hover(\":Menu\");\nhover(\":More\");\nmouseClick(\":Deep\");\nmouseClick(\":p\"",
                            "hover(\":Open\");\nmouseClick(\":late\""}) {
    EXPECT_TRUE(script().contains(lines)) << qPrintable(script());
  }
  replay("test.verify(currentUrl().indexOf('#deep') > 0);");
}

}  // namespace
