// What a person picks in a page, as the program tells of it. Here the page moves the pointer and presses by itself.

#include <gtest/gtest.h>

#include <csignal>

#include "support/printing.h"
#include "support/programrun.h"

namespace {

using TestSupport::ProgramResult;
using TestSupport::ProgramRun;

// The page presses an object when it sees it painted with its name, and counts what of that reaches it.
const char* const page =
    "<title>t</title><button id='b' onclick='++reached' onpointerdown='++reached'>Press</button>"
    "<i title='twice'>1</i><i title='twice'>2</i><iframe id='f' srcdoc=\"<a href='#x' id='l'>In a frame</a>\"></iframe>"
    "<script>var reached = 0, steps = 0;"
    "new MutationObserver(function (records) { reached += records.length; }).observe(document, "
    "{ subtree: true, childList: true, attributes: true });"
    "function send(e, type) { var C = /^pointer/.test(type) ? PointerEvent : MouseEvent;"
    "  e.dispatchEvent(new C(type, { bubbles: true, cancelable: true, composed: true, detail: 1 })); }"
    "function shown() { return getComputedStyle(document.documentElement, '::after').content; }"
    "function pick(e, text, next) { send(e, 'mousemove');"
    "  if (shown().indexOf(text) < 0) { setTimeout(pick, 20, e, text, next); return; }"
    "  ['pointerdown', 'mousedown'].forEach(function (type) { send(e, type); });"
    "  setTimeout(function () { ['pointerup', 'mouseup', 'click'].forEach(function (type) { send(e, type); }); next(); "
    "},"
    "    120); }"
    "onload = function () {"
    "  pick(b, 'Press', function () { pick(f.contentDocument.getElementById('l'), 'In a frame', function () {"
    "  if (!reached && !f.contentWindow.location.hash) { pick(document.querySelector('i'), 'twice', Function()); }"
    "}); }); };</script>";

TEST(Pick, TellsOfEachObjectAndKeepsItFromThePage) {
  ProgramRun program;
  program.write(QStringLiteral("page.html"), QString::fromLatin1(page));
  program.start({"pick", "--headless", "--keep", "page.html"});
  for (const char* text :
       {"{visible='true' tagName='BUTTON' type='submit' id='b' simplifiedInnerText='Press'}\n    matches   1\n"
        "    class     HTML_Button\n    DOM path  DOCUMENT.HTML1.BODY1.BUTTON1\n{context='page.html.FRAME1' ",
        "    matches   1\n    class     HTML_Anchor\n    DOM path  DOCUMENT.HTML1.BODY1.A1\n"
        "    context   page.html.FRAME1\n{visible='true' tagName='I' title='twice'}\n    matches   2\n"}) {
    ASSERT_TRUE(program.waitForOutput(QLatin1String(text))) << text;
  }
  ::kill(static_cast<pid_t>(program.processId()), SIGINT);
  const ProgramResult result = program.finish();
  EXPECT_EQ(result.exitCode, 0) << qPrintable(result.errors);
  EXPECT_EQ(result.output.count(QLatin1String("    class")), 3) << qPrintable(result.output);
  EXPECT_EQ(program.leftovers(), QStringList());
}

TEST(Pick, EndsWithTheFirstObject) {
  ProgramRun program;
  program.write(QStringLiteral("page.html"), QString::fromLatin1(page));
  const ProgramResult result = program.run({"pick", "--headless", "page.html"});
  EXPECT_EQ(result.exitCode, 0) << qPrintable(result.errors);
  EXPECT_EQ(result.output.count(QLatin1String("    class")), 1);
}

}  // namespace
