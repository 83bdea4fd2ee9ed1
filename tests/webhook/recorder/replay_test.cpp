// What a script does in a page is recorded, and the recording does the same to the page in a fresh browser.

#include <gtest/gtest.h>

#include "support/printing.h"
#include "support/testserver.h"
#include "webhook/recorder/recordedbrowser.h"

using TestSupport::RecordedBrowser;

namespace {

/// What a person does in a page, and something of what is to be seen then.
struct Act {
  const char* page;
  const char* statements;
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
        person.show(server.url(QLatin1String(act.page)));
        const QString error = person.act(QString::fromUtf8(act.statements));
        EXPECT_EQ(error, QString()) << act.statements;
        lines << person.recorded().join('\n');
        states << person.state();
        EXPECT_TRUE(states.constLast().contains(QString::fromUtf8(act.seen))) << qPrintable(states.constLast());
      }
    }
    RecordedBrowser script(false);
    for (size_t i = 0; i < acts.size(); ++i) {
      const int at = static_cast<int>(i);
      script.show(server.url(QLatin1String(acts[i].page)));
      EXPECT_EQ(script.act(lines[at]), QString()) << acts[i].statements << qPrintable("\n->\n" + lines[at]);
      EXPECT_EQ(script.stateAwaited(states[at]), states[at]) << acts[i].statements << qPrintable("\n->\n" + lines[at]);
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
  server.add("/fields.html", {R"(<input id='first'><input id='fixed' readonly value='x'><input id='old' value='old'>
<div id='rich' contenteditable>a</div><input id='day' type='date'><input id='level' type='range' max='9'><input id='yes' type='checkbox'><input id='r1' type='radio' name='r'><input id='r2' type='radio' name='r'>
<select id='list'><option>one<option>two<option>three</select>
<button id='b' type='button' onclick='said.textContent += "pressed;"'>Press</button><a id='a' href='#there'>Link</a><p id='said'></p>)"});
  check({
      {"/form.html", R"(typeText("{tagName='INPUT' id='name'}", "Ada & <Co>"); pressKeys("<Return>");)", "?n=Ada"},
      {"/form.html",
       R"(typeText("{tagName='INPUT' id='city'}", "Rom<Return>"); typeText("{tagName='INPUT' id='more'}", "m");)",
       "?c=Rom"},
      {"/form.html", R"(typeText("{tagName='INPUT' id='mid'}", "abc"); waitForObject("{tagName='INPUT' id='more'}");)",
       "?abc"},
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
  });
}

}  // namespace
