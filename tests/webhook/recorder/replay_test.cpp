// What a script does in a page is recorded, and the recording does the same to the page in a fresh browser.

#include <gtest/gtest.h>

#include "support/printing.h"
#include "support/recordedbrowser.h"
#include "support/testbrowser.h"
#include "support/testserver.h"

using TestSupport::RecordedBrowser;

namespace {

/// What a person does in a page, and something of what is to be seen then.
struct Act {
  const char* page;
  QByteArray statements;
  const char* seen;
};

class Replay : public testing::Test {
protected:
  void check(const std::vector<Act>& acts) {
    QStringList lines;
    QStringList states;
    {
      RecordedBrowser person(true);
      for (const Act& act : acts) {
        EXPECT_EQ(person.show(server.url(QLatin1String(act.page))), QString());
        const QString error = person.act(QString::fromUtf8(act.statements));
        EXPECT_EQ(error, QString()) << act.statements.constData();
        lines << person.recorded().join('\n');
        states << person.state();
        EXPECT_TRUE(states.constLast().contains(QString::fromUtf8(act.seen))) << qPrintable(states.constLast());
      }
    }
    RecordedBrowser script(false);
    for (size_t i = 0; i < acts.size(); ++i) {
      const int at = static_cast<int>(i);
      EXPECT_EQ(script.show(server.url(QLatin1String(acts[i].page))), QString());
      EXPECT_EQ(script.act(lines[at]), QString()) << acts[i].statements.constData() << qPrintable("\n->\n" + lines[at]);
      EXPECT_EQ(script.stateAwaited(states[at]), states[at])
          << acts[i].statements.constData() << qPrintable("\n->\n" + lines[at]);
    }
  }

  TestSupport::TestServer server;
};

TEST_F(Replay, OfTextThatComesWithoutKeysOrGoesWithThem) {
  server.add("/form.html", {R"(<form action='next.html'><input id='name' name='n'></form>
<form action='next.html'><input id='city' name='c'><button>Send</button></form>
<input id='mid' oninput='if (value.length === 3) location = "next.html?" + value'>
<input id='chat' onkeydown='if (event.key === "Enter") { said.textContent += value + ";"; value = ""; }'>
<input id='pasted'><p id='said'></p>
<script>addEventListener('keyup', function (e) { if (e.target === pasted) { e.stopImmediatePropagation(); } }, true);</script>)"});
  server.add("/next.html", {R"(<p id='p'></p><input id='more'><script>p.textContent = location.search;</script>)"});
  server.add(
      "/fields.html",
      {R"(<label for='first'>Name</label><input id='first'><input id='fixed' readonly value='x'><input id='old' value='old'>
<div id='rich' contenteditable>a</div><input id='day' type='date'><input id='level' type='range' max='9'><input id='yes' type='checkbox'><input id='r1' type='radio' name='r'><input id='r2' type='radio' name='r'>
<select id='list'><option>one<option>two<option>three</select>
<button id='b' type='button' onclick='said.textContent += "pressed;"'>Press</button><a id='a' href='#there'>Link</a><input id='once' type='checkbox' onclick='said.textContent += "once;"; this.remove()'><p id='said'></p>)"});
  check({
      {"/form.html", R"(typeText("{tagName='INPUT' id='name'}", "Ada & <Co>"); pressKeys("<Return>");)", "?n=Ada"},
      {"/form.html",
       R"(typeText("{tagName='INPUT' id='city'}", "Rom<Return>"); typeText("{tagName='INPUT' id='more'}", "m");)",
       "?c=Rom"},
      {"/form.html", R"(typeText("{tagName='INPUT' id='chat'}", "one<Return>two<Return>three");)", "one;two;"},
      {"/form.html", R"(setText("{tagName='INPUT' id='pasted'}", "p & q"); typeText("{tagName='INPUT' id='city'}", "x");
mouseClick("{tagName='BUTTON'}");)",
       "?c=x"},
      {"/form.html", R"(typeText("{tagName='INPUT' id='pasted'}", "quiet");)", "quiet"},
      {"/fields.html",
       R"(typeText("{tagName='DIV' id='rich'}", "rich"); mouseClick("{tagName='INPUT' id='first'}");
pressKeys("<Tab><Tab><Tab>"); pressKeys("x<Tab>02292024"); mouseClick("{tagName='INPUT' id='level'}");
pressKeys("<Right><Right><Tab><Space><Tab><Space><Down><Tab><Down><Tab><Space><Space><Tab><Return>");)",
       "pressed;pressed;"},
      {"/form.html", R"(typeText("{tagName='INPUT' id='mid'}", "abc"); waitForObject("{tagName='INPUT' id='more'}");)",
       "?abc"},
      // What a key presses may be gone as soon as the page knows of it.
      {"/fields.html", R"(mouseClick("{tagName='A'}"); pressKeys("<Tab><Space>");)", "once;"},
      // A label stands for its field, and lies beside it.
      {"/fields.html", R"(doubleClick("{tagName='LABEL'}"); mouseClick("{tagName='BUTTON'}");)", "pressed;"},
  });
}

TEST_F(Replay, OfPressesBesideAllElements) {
  server.add("/blank.html", {R"(<!DOCTYPE html><p id='said'>short</p><script>
document.documentElement.onclick = function (e) { if (e.target === this) { said.textContent += ";blank " + e.clientY; } };
</script>)"});
  check({{"/blank.html", "mouseClick('DOCUMENT.HTML1', 300, 400);", ";blank 400"}});
}

TEST_F(Replay, OfAnOrderAndOfDialogs) {
  server.serveFolder(QStringLiteral(CORVEX_TEST_SOURCE "/../examples/shop"), QStringLiteral("/shop/"));
  server.add("/dialogs.html", {R"(<button id='a' onclick='alert("Hello")'>Alert</button>
<button id='c' onclick='this.textContent = confirm("Sure?")'>Confirm</button>
<button id='p' onclick='this.textContent = prompt("Name?", "")'>Prompt</button>
<button id='q' onclick='this.textContent = prompt("Again?", "yes") || "none"'>Again</button>
<button id='i' onclick='n.textContent = 1 + Number(n.textContent)'>Count</button><p id='n'>0</p>)"});
  check({
      {"/shop/index.html", R"(typeText("{tagName='INPUT' name='search'}", "o");
mouseClick("{tagName='INPUT' name='instock'}"); mouseClick("{tagName='BUTTON' id='add-pot'}");
mouseClick("{tagName='BUTTON' id='add-pot'}"); mouseClick("{tagName='A' name='basket'}");
typeText("{tagName='INPUT' name='name'}", "Ada & \"Co\" <b>"); typeText("{tagName='INPUT' name='mail'}", "ada@example.com");
pressKeys("<Tab><Down>"); mouseClick("{tagName='INPUT' value='invoice'}");
typeText("{tagName='TEXTAREA' name='note'}", "Ring twice.\nThe dog is kind."); mouseClick("{tagName='BUTTON' name='place'}");
waitForObject("{tagName='P' id='message' simplifiedInnerText?='Thank*'}");)",
       "98.00"},
      {"/dialogs.html",
       R"(mouseClick("{tagName='BUTTON' id='i'}"); mouseClick("{tagName='BUTTON' id='a'}"); closeAlert();
mouseClick("{tagName='BUTTON' id='c'}"); closeConfirm(true);
mouseClick("{tagName='BUTTON' id='p'}"); closePrompt("Zoë 100%"); mouseClick("{tagName='BUTTON' id='q'}"); closePrompt(null);
doubleClick("{tagName='BUTTON' id='i'}");)",
       "true Zoë 100% none Count 3"},
  });
}

TEST_F(Replay, OfMenusThatOpenUnderThePointer) {
  server.add("/menu.html", {R"(<style>li ul, #late { display: none } li:hover > ul { display: block }</style>
<button id='b'>Open</button><i id='late' onclick='p.textContent += "late;"'>Late</i><ul><li><a href='#m'>Menu</a><ul>
<li><a href='#s'>More</a><ul><li><a id='deep' href='#deep'>Deep</a></ul></ul></ul>
<p id='p' onclick='textContent += "here;"'>Somewhere</p><script>
b.onmouseenter = function () { setTimeout(function () { late.style.display = 'inline'; }, 100); };
</script>)"});
  // A person lets a page rest between a press and the next.
  check({{"/menu.html", R"(function press(name) {
  mouseClick(name);
  var end = Date.now() + 600;
  waitFor(function () { return Date.now() > end; });
}
press("{tagName='P' id='p'}"); hover("{tagName='A' simplifiedInnerText='Menu'}");
hover("{tagName='A' simplifiedInnerText='More'}"); press("{tagName='A' id='deep'}"); press("{tagName='P' id='p'}");
hover("{tagName='BUTTON' id='b'}"); mouseClick("{tagName='I' id='late'}");)",
          "here;late;"}});
}

TEST_F(Replay, OfWindowsThatPeopleAndPagesOpenAndClose) {
  server.add("/w/page.html", {R"(<input id='f'><a id='link' target='_blank' href='page.html?2'>More</a>
<button id='pop' onclick='window.open("pop.html?" + f.value, "", "width=300,height=200")'>Pop</button><p id='said'></p>)"});
  server.add("/w/pop.html",
             {R"(<input id='f'><button id='tell' onclick='opener.said.textContent += f.value + ";"'>Tell</button>
<button id='done' onclick='opener.said.textContent += "done;"; setTimeout(function () { window.close(); }, 50)'>Done</button>)"});
  // People take longer to look at a window than a page takes to listen.
  const QByteArray popup = R"(function enter() { waitForContextExists("pop.html"); setContext("pop.html");
waitFor(function () { return retrieveJSObject("document.__corvex__hooked__events === true"); }); }
mouseClick("{tagName='BUTTON' id='pop'}"); enter(); mouseClick("{tagName='BUTTON' id='done'}");
waitFor(function () { return windows().length === 1; });
typeText("{tagName='INPUT' id='f'}", "second"); mouseClick("{tagName='BUTTON' id='pop'}"); enter();
typeText("{tagName='INPUT' id='f'}", "told"); mouseClick("{tagName='BUTTON' id='tell'}"); closeWindow();
typeText("{tagName='INPUT' id='f'}", "last");)";
  check({
      {"/w/page.html", R"(mouseClick("{tagName='A' id='link'}"); waitForContextExists("page.html<2>");
typeText("{tagName='INPUT' id='f'}", "one"); setContext("page.html<2>"); typeText("{tagName='INPUT' id='f'}", "two");
setContext("page.html"); typeText("{tagName='INPUT' id='f'}", "three");)",
       "INPUT f \"two\""},
      {"/w/page.html", popup, "done;told;"},
  });
}

TEST_F(Replay, OfFramesAndShadowTrees) {
  server.add("/f/page.html", {R"(<button id='late' onclick='document.body.insertAdjacentHTML("beforeend",
"<iframe id=i src=inner.html?late></iframe>")'>Late</button><iframe src='inner.html?first'></iframe><x-box></x-box><script>
var root = document.querySelector('x-box').attachShadow({ mode: 'open' });
root.innerHTML = "<input id='deep'><button id='b'>Deep</button><input id='tick' type='checkbox'><select id='list'><option>a<option>b</select><p id='said'></p>";
root.querySelector('button').onclick = function () { root.querySelector('p').textContent += root.querySelector('input').value; };
</script>)"});
  server.add("/f/inner.html", {R"(<input id='f'><select id='s'><option>a<option>b</select><input type='checkbox' id='c'>
<button id='b' onclick='this.textContent += f.value'>Take</button><iframe src='leaf.html'></iframe><a id='go' href='inner.html?gone'>Go</a>)"});
  server.add("/f/leaf.html", {R"(Leaf <input id='leaf' onchange='parent.location = "inner.html?" + value'>)"});
  check({{"/f/page.html",
          R"(var first = "{context='page.html.FRAME1' tagName='", late = "{context='page.html.FRAME2' tagName='";
mouseClick("{tagName='BUTTON' id='late'}"); waitForObject(late + "INPUT' id='f'}"); typeText(late + "INPUT' id='f'}", "quick<Return>");
mouseClick(late + "BUTTON' id='b'}"); mouseClick(late + "INPUT' id='c'}");
selectOption(first + "SELECT' id='s'}", "b"); typeText(first + "INPUT' id='f'}", "one"); mouseClick(first + "BUTTON' id='b'}");
typeText("{context='page.html.FRAME2.FRAME1' tagName='INPUT' id='leaf'}", "leaf<Return>");
waitForObject("{context='page.html.FRAME2' tagName='BUTTON' simplifiedInnerText='Take'}");
var box = "{container={tagName='X-BOX'} tagName='";
typeText(box + "INPUT' id='deep'}", "deep"); mouseClick(box + "BUTTON' id='b'}"); mouseClick(box + "BUTTON' id='b'}");
pressKeys("<Tab><Space><Tab><Down>");)",
          "deepdeep"},
         // The second press is for the link of the page that the first one leads to.
         {"/f/page.html",
          R"(var go = "{context='page.html.FRAME1' tagName='A' id='go'}"; mouseClick(go); mouseClick(go);)", "?gone"},
         // Frames go after the page that shows them.
         {"/f/page.html",
          R"(typeText("{context='page.html.FRAME1' tagName='INPUT' id='f'}", "gone"); reload();
typeText("{container={tagName='X-BOX'} tagName='INPUT' id='deep'}", "there");)",
          "there"}});
}

}  // namespace
