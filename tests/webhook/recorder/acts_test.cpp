// What a person does besides presses and keys, as it is recorded. The person is a script that uses the browser's own
// input.

#include <gtest/gtest.h>

#include <QRegularExpression>

#include "support/printing.h"
#include "support/recordedbrowser.h"
#include "support/testbrowser.h"
#include "support/testserver.h"

namespace {

class RecordedActs : public testing::Test {
protected:
  /// What the acts do to the page of this path, one after the other, as it is recorded, without the waiting for
  /// contexts.
  QString recorded(const QString& path, const QStringList& acts) {
    TestSupport::RecordedBrowser browser(true);
    EXPECT_EQ(browser.show(server.url(path)), QString());
    for (const QString& act : acts) {
      EXPECT_EQ(browser.act(act), QString()) << qPrintable(act);
      browser.recorded();
    }
    static const QRegularExpression waits(QStringLiteral("^waitForContextExists"));
    const QStringList lines = browser.recorded();
    QString result;
    for (const QString& line : lines) {
      result += waits.match(line).hasMatch() ? QString() : line + '\n';
    }
    return result.replace(server.url(""), QString()).remove("visible='true' ");
  }

  TestSupport::TestServer server;
};

TEST_F(RecordedActs, MovesOfAPersonAndNotThoseOfPages) {
  server.add("/one.html", {"<title>1</title>"});
  server.add("/two.html",
             {"<title>2</title><script>setTimeout(function () {"
              "if (!sessionStorage.been) { sessionStorage.been = 1; location.href = 'three.html'; } }, 100);"
              "</script>"});
  server.add("/three.html", {"<title>3</title><script>history.pushState(0, '', '#there')</script>"});
  QStringList acts{QString("openUrl(\"%1\"); waitForUrl(\"*#there\");").arg(server.url("/two.html")), "reload();"};
  // Firefox tells of a move through the history only that it was not made in the page where the browser's buttons make
  // it.
  const bool isTold = !TestSupport::isFirefox();
  if (isTold) {
    acts << "goBack();"
         << "goBack();"
         << "goForward();";
  }
  acts << QString("openUrl(\"%1\");").arg(server.url("/one.html"));
  EXPECT_EQ(recorded("/one.html", acts), QString("openUrl(\"/two.html\");\nreload();\n%1openUrl(\"/one.html\");\n")
                                             .arg(isTold ? "goBack();\ngoBack();\ngoForward();\n" : ""));
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
      recorded("/page.html", {"openContextMenu(\"{tagName='DIV' id='menu'}\", 5, 6);",
                              "dragTo(\"{tagName='DIV' id='own'}\", \"{tagName='DIV' id='tray'}\");",
                              "dragTo(\"{tagName='LI' id='moved'}\", \"{tagName='DIV' id='box'}\");",
                              "mouseClick(\"{tagName='CANVAS' id='c'}\");"}),
      R"(openContextMenu("{tagName='DIV' id='menu'}", 5, 6);
dragTo("{tagName='DIV' id='own'}", "{tagName='DIV' id='tray'}");
dragTo("{tagName='LI' id='moved'}", "{tagName='DIV' id='box'}");
)"
      "// A press on the canvas {tagName='CANVAS' id='c'} is recorded by its place at most: what is there is known "
      "to the page alone.\nmouseClick(\"{tagName='CANVAS' id='c'}\", 40, 20);\n");
}

TEST_F(RecordedActs, AFrameOfAnotherOriginIsSaid) {
  server.add("/page.html", {QStringLiteral("<title>t</title><iframe id='f' src='%1'></iframe>")
                                .arg(server.url("/frame.html", "localhost"))
                                .toUtf8()});
  server.add("/frame.html", {"<input autofocus style='width: 100%; height: 100px'>"});
  EXPECT_TRUE(recorded("/page.html", {"mouseClick(\"{tagName='IFRAME' id='f'}\");"})
                  .contains("// What is done in the frame {tagName='IFRAME' id='f'} is not recorded: it "
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
  EXPECT_EQ(
      recorded("/page.html", {R"(typeText("{tagName='INPUT' id='n'}", "A");)", "clickButton(\"{tagName='BUTTON'}\");",
                              R"(selectOption("{tagName='SELECT' id='s'}", "two");)"}),
      R"(setFocus("{tagName='INPUT' type='text' id='n'}");
typeText("{tagName='INPUT' type='text' id='n'}", "A");
clickButton("{tagName='BUTTON' type='button' id='b' simplifiedInnerText='Press'}");
selectOption("{tagName='SELECT' type='select-one' id='s'}", "two");
)");
}

TEST_F(RecordedActs, KeysThatAPageActsOnAndNoOthers) {
  server.add("/page.html", {R"(<title>t</title><input id='n'><input id='m'><button id='b' type='button'>Press</button>
<div id='list' tabindex='0' onkeydown='this.dataset.last = event.key'>List</div><p id='panel'>Panel</p>
<input id='picked' onfocus='panel.textContent = "open"'><script>
addEventListener('keydown', function (e) { if (e.key === 'Escape') { panel.remove(); } });
addEventListener('keydown', function (e) {
  if (e.ctrlKey && e.key !== 'Control') { document.body.title += e.key; if (e.key === 'k') { e.preventDefault(); } } });
b.onclick = function () { panel.className = 'x'; };</script>)"});
  EXPECT_EQ(recorded("/page.html", {"typeText(\"{tagName='INPUT' id='n'}\", \"a b<Tab>\");",
                                    "pressKeys(\"c<Tab><Space>\");", "pressKeys(\"<Tab><Down><Shift+Home>x\");",
                                    "pressKeys(\"<Esc>\");", "pressKeys(\"<Ctrl+Y><Ctrl+K>\");",
                                    "mouseClick(\"{tagName='INPUT' id='m'}\"); pressKeys(\"d<Tab><Tab><Tab>\");"}),
            R"(setFocus("{tagName='INPUT' type='text' id='n'}");
typeText("{tagName='INPUT' type='text' id='n'}", "a b");
typeText("{tagName='INPUT' type='text' id='m'}", "c");
clickButton("{tagName='BUTTON' type='button' id='b' simplifiedInnerText='Press'}");
pressKeys("<Tab><Down>");
pressKeys("<Shift+Home>");
pressKeys("x");
pressKeys("<Esc>");
pressKeys("<Ctrl+K>");
setFocus("{tagName='INPUT' type='text' id='m'}");
typeText("{tagName='INPUT' type='text' id='m'}", "cd");
pressKeys("<Tab><Tab><Tab>");
)");
}

TEST_F(RecordedActs, ChecksThatAreChosenInTheOverlay) {
  server.add("/page.html", {R"(<title>t</title><a id='l' href='#gone'>Total: "5"</a><p></p>
<input id='n' value='Ada' onmousedown='this.value = "pressed"' style='margin: 300px 0 0 500px'>
<iframe id='f' style='margin-left: 300px' srcdoc='<p>Inside</p>'></iframe>)"});
  const QString open =
      "mouseClick(\"{tagName='%1'}\", 4, 4, 3); mouseClick(\"{tagName='BUTTON' simplifiedInnerText='%2'}\");";
  EXPECT_EQ(
      recorded("/page.html",
               {open.arg("A", "Check text"), open.arg("A", "Check visible"), open.arg("INPUT", "Check value"),
                "setContext('page.html.FRAME1'); mouseClick(\"{tagName='P'}\", 4, 4, 3); setContext('page.html'); "
                "mouseClick(\"{tagName='BUTTON' simplifiedInnerText='Check text'}\");",
                open.arg("INPUT", "Check picture"),
                "if (currentUrl().indexOf('gone') >= 0) { throw new Error('pressed'); }"}),
      R"(test.compare(waitForObject("{tagName='A' simplifiedInnerText='Total: \"5\"' id='l'}").simplifiedInnerText, "Total: \"5\"");
test.compare(waitForObject("{tagName='A' simplifiedInnerText='Total: \"5\"' id='l'}").visible, true);
test.compare(waitForObject("{tagName='INPUT' type='text' id='n'}").value, "Ada");
test.compare(waitForObject("DOCUMENT[page|html|FRAME1].HTML1.BODY1.P1").simplifiedInnerText, "Inside");
test.compareScreenshot("{tagName='INPUT' type='text' id='n'}", "of {tagName='INPUT' type='text' id='n'}");
)");
}

}  // namespace
