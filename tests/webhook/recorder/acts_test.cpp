// What a person does besides presses and keys, as it is recorded. The person is a script that uses the browser's own
// input.

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QTemporaryDir>

#include "corvexhook/inspector.h"
#include "scripting/engine/scriptengine.h"
#include "scripting/report/consolereporter.h"
#include "shared/wait.h"
#include "support/files.h"
#include "support/printing.h"
#include "support/testbrowser.h"
#include "support/testserver.h"
#include "webhook/recorder/actrecorder.h"
#include "webhook/recorder/recordingfiles.h"
#include "webhook/run/browsercontrol.h"
#include "webhook/run/browserfunctions.h"

using namespace Corvex;
using namespace Corvex::Webhook;

namespace {

class RecordedActs : public testing::Test {
protected:
  static void SetUpTestSuite() { qputenv("CORVEX_PREFIX", CORVEX_TEST_PREFIX); }

  QString script() const { return QString::fromUtf8(TestSupport::readFile(folder.filePath("recorded.js"))); }

  /// What the statements do to the page of this path, as it is recorded, without the first line and the waiting for
  /// contexts. In them `seen(n)` waits for so many lines.
  QString recorded(const QString& path, const QString& statements) {
    RecordingFiles files([](const QString&) {}, [](const QString& error) { ADD_FAILURE() << qPrintable(error); });
    EXPECT_EQ(files.open({folder.filePath("recorded.js"), folder.filePath("map.tsv"), false}), QString());
    RecordedCalls calls(files);
    ActRecorder logger(calls);
    Inspector::self()->attachRecorder(&calls);
    Inspector::self()->setRecording(true);
    BrowserControl browser(TestSupport::testBrowser());
    browser.recordWith(&logger);
    Scripting::ScriptHost host = browserFunctions(browser);
    Scripting::ScriptFunction seen;
    seen.name = QStringLiteral("seen");
    seen.maxArguments = 1;
    seen.call = [&](const ObjectList& arguments) {
      const int wanted = arguments.at(0)->toString().toInt();
      poll(5000, 20, [&] {
        logger.keepUp();
        logger.flushRecordedTextInput();
        return lines().count(QLatin1Char('\n')) >= wanted;
      });
      return FunctionCallResult<SharedPtr<Object>>{nullptr, QString()};
    };
    host.functions.push_back(seen);
    Scripting::ListenerGroup listeners;
    Scripting::ConsoleReporter console(stdout, Scripting::ConsoleReporter::Detail::Steps);
    listeners.add(&browser);
    listeners.add(&console);
    Scripting::ScriptEngine engine(host, &listeners);
    QFile driver(folder.filePath("driver.js"));
    EXPECT_TRUE(driver.open(QIODevice::WriteOnly));
    driver.write(QString("startBrowser(\"%1\");\n%2\n").arg(server.url(path), statements).toUtf8());
    driver.close();
    logger.setFirstPage(server.url(path));
    EXPECT_EQ(engine.run(QStringList{driver.fileName()}).failed(), 0) << qPrintable(script());
    logger.finish();
    Inspector::self()->setRecording(false);
    Inspector::self()->attachRecorder(nullptr);
    return lines().replace(server.url(""), QString());
  }

  QString lines() const {
    QString text = script();
    return text.remove(QRegularExpression(QStringLiteral("(startBrowser|waitForContextExists).*\\n")));
  }

  QTemporaryDir folder;
  TestSupport::TestServer server;
};

TEST_F(RecordedActs, MovesOfAPersonAndNotThoseOfPages) {
  server.add("/one.html", {"<title>1</title>"});
  server.add("/two.html",
             {"<title>2</title><script>setTimeout(function () {"
              "if (!sessionStorage.been) { sessionStorage.been = 1; location.href = 'three.html'; } }, 100);"
              "</script>"});
  server.add("/three.html", {"<title>3</title><script>history.pushState(0, '', '#there')</script>"});
  const QString begin = QString("openUrl(\"%1\"); waitForUrl(\"*#there\"); seen(1); reload(); seen(2);");
  // Firefox tells of a move through the history only that it was not made in the page where the browser's buttons make
  // it.
  const QString history =
      TestSupport::isFirefox() ? QString() : QString("goBack(); seen(3); goBack(); seen(4); goForward(); seen(5);");
  const QString end = QString("openUrl(\"%2\"); seen(%3);");
  EXPECT_EQ(recorded("/one.html", QString(begin + history + end)
                                      .arg(server.url("/two.html"), server.url("/one.html"))
                                      .arg(TestSupport::isFirefox() ? 3 : 6)),
            QString("openUrl(\"/two.html\");\nreload();\n%1openUrl(\"/one.html\");\n")
                .arg(TestSupport::isFirefox() ? "" : "goBack();\ngoBack();\ngoForward();\n"));
}

TEST_F(RecordedActs, MenusDragsAndWhatIsKnownToThePageAlone) {
  server.add("/page.html",
             {R"(<title>t</title><style>div, li, canvas { position: absolute; width: 80px; height: 40px }</style>
<div id='menu' onclick='1' oncontextmenu='return false'>Menu</div>
<div id='own' draggable='true' onclick='1' style='left: 100px'>Own</div>
<div id='tray' ondragover='event.preventDefault()' ondrop='event.preventDefault()' style='left: 200px'>Tray</div>
<li id='moved' onclick='1' style='top: 100px; left: 10px'
  onmousedown='event.preventDefault(); document.onmousemove = function (e) { moved.style.left = e.clientX - 20 + "px"; }'
  onmouseup='document.onmousemove = null'>Moved</li>
<div id='box' style='top: 100px; left: 300px'>Box</div><canvas id='c' style='top: 200px'></canvas>)"});
  EXPECT_EQ(
      recorded("/page.html", R"(openContextMenu("{tagName='DIV' id='menu'}", 5, 6); seen(1);
dragTo("{tagName='DIV' id='own'}", "{tagName='DIV' id='tray'}"); seen(2);
dragTo("{tagName='LI' id='moved'}", "{tagName='DIV' id='box'}"); seen(3);
mouseClick("{tagName='CANVAS' id='c'}"); seen(5);)"),
      "openContextMenu(\":menu\", 5, 6);\ndragTo(\":own\", \":tray\");\ndragTo(\":moved\", \":box\");\n"
      "// A press on the canvas {visible='true' tagName='CANVAS' id='c'} is recorded by its place at most: what is "
      "there is known to the page alone.\nmouseClick(\":c\", 40, 20);\n");
}

TEST_F(RecordedActs, AFrameOfAnotherOriginIsSaid) {
  server.add("/page.html", {QStringLiteral("<title>t</title><iframe id='f' src='%1'></iframe>")
                                .arg(server.url("/frame.html", "localhost"))
                                .toUtf8()});
  server.add("/frame.html", {"<input autofocus style='width: 100%; height: 100px'>"});
  EXPECT_TRUE(recorded("/page.html", "mouseClick(\"{tagName='IFRAME' id='f'}\"); seen(1);")
                  .contains("// What is done in the frame {visible='true' tagName='IFRAME' id='f'} is not recorded: it "
                            "shows a page of another origin, which scripts cannot reach.\n"));
}

TEST_F(RecordedActs, WhatAPageStopsOnItsWayAndWhereItReplacesTheLanguage) {
  server.add("/page.html", {R"(<title>t</title><script>
['pointerdown', 'mousedown', 'mouseup', 'click', 'keydown', 'keyup', 'input', 'change', 'dblclick'].forEach(function (type) {
  addEventListener(type, function (e) { e.stopImmediatePropagation(); }, true); });
function bad() { throw 1; }
String = fetch = XMLHttpRequest = JSON.parse = Array.prototype.push = Array.prototype.indexOf = bad;
escape = JSON.stringify = function () { return '"&event=startBrowser&url=x'; };
</script><input id='n'><button id='b' type='button'>Press</button><select id='s'><option>one<option>two</select>)"});
  EXPECT_EQ(recorded("/page.html", R"(typeText("{tagName='INPUT' id='n'}", "A");
clickButton("{tagName='BUTTON' id='b'}"); seen(3); selectOption("{tagName='SELECT' id='s'}", "two"); seen(4);)"),
            "setFocus(\":n\");\ntypeText(\":n\", \"A\");\nclickButton(\":Press\");\nselectOption(\":s\", \"two\");\n");
}

TEST_F(RecordedActs, ChecksThatAreChosenInTheOverlay) {
  server.add("/page.html", {R"(<title>t</title><a id='l' href='#gone'>Total: "5"</a><p></p>
<input id='n' value='Ada' onmousedown='this.value = "pressed"' style='margin: 300px 0 0 500px'>
<iframe id='f' style='margin-left: 300px' srcdoc='<p>Inside</p>'></iframe>)"});
  EXPECT_EQ(recorded("/page.html", R"(mouseClick("{tagName='A'}", 4, 4, 3);
mouseClick("{tagName='BUTTON' simplifiedInnerText='Check text'}"); seen(1);
mouseClick("{tagName='A'}", 4, 4, 3); mouseClick("{tagName='BUTTON' simplifiedInnerText='Check visible'}"); seen(2);
mouseClick("{tagName='INPUT' id='n'}", 4, 4, 3); mouseClick("{tagName='BUTTON' simplifiedInnerText='Check value'}"); seen(3);
setContext("page.html.FRAME1"); mouseClick("{tagName='P'}", 4, 4, 3); setContext("page.html");
mouseClick("{tagName='BUTTON' simplifiedInnerText='Check text'}"); seen(4);
test.verify(currentUrl().indexOf("gone") < 0);)"),
            "test.compare(waitForObject(\":Total: \\\"5\\\"\").simplifiedInnerText, \"Total: \\\"5\\\"\");\n"
            "test.compare(waitForObject(\":Total: \\\"5\\\"\").visible, true);\n"
            "test.compare(waitForObject(\":n\").value, \"Ada\");\n"
            "test.compare(waitForObject(\":P1\").simplifiedInnerText, \"Inside\");\n");
}

}  // namespace
