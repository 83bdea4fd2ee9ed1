#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QTimer>
#include <algorithm>
#include <csignal>
#include <vector>

#include "support/files.h"
#include "webhook/backends/browserfixture.h"

using namespace Corvex;
using namespace Corvex::Webhook;

namespace {

class EvaluationTest : public BrowserTest {};

QString q(const char* text) { return QString::fromUtf8(text); }

/// Has the process of the session's first page end.
void crash(BrowserSession& session) {
  if (TestSupport::isRemote()) {
    session.firstPage()->navigate(q("chrome://crash"));
    return;
  }
  for (const QString& process : QDir(q("/proc")).entryList({q("[0-9]*")}, QDir::Dirs)) {
    const QByteArray command = TestSupport::readFile(QStringLiteral("/proc/%1/cmdline").arg(process));
    const bool isOfPages = command.contains("--type=renderer") ||
                           (command.contains("-contentproc") && command.endsWith(QByteArray("tab", 4)));
    if (isOfPages && getpgid(process.toInt()) == session.browserProcess()) {
      kill(process.toInt(), SIGKILL);
    }
  }
}

}  // namespace

TEST_F(EvaluationTest, DoNotWaitForAcknowledgementsOfTheSystem) {
  // A value that is an object leaves a message whose answer nobody waits for.
  std::vector<qint64> times;
  for (int i = 0; i < 31; ++i) {
    EXPECT_EQ(text("document"), q("[object HTMLDocument]"));
    EXPECT_EQ(text("1"), q("1"));
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(text("2"), q("2"));
    times.push_back(timer.elapsed());
  }
  std::sort(times.begin(), times.end());
  EXPECT_LT(times[times.size() / 2], 30);
}

TEST_F(EvaluationTest, GivesTheCompletionValueAsText) {
  struct Row {
    const char* code;
    const char* text;
  };
  const Row rows[] = {
      {"1", "1"},
      {"0.1 + 0.2", "0.30000000000000004"},
      {"-0", "0"},
      {"1e21", "1e+21"},
      {"2**53 + 1", "9007199254740992"},
      {"0 / 0", "NaN"},
      {"-1 / 0", "-Infinity"},
      {"10n ** 20n", "100000000000000000000"},
      {"'a\\u00e4\\u20ac\\ud83d\\ude00\\n'", "a\u00e4\u20ac\U0001F600\n"},
      {"true;", "true"},
      {"null", "null"},
      {"", "undefined"},
      {"void 0", "undefined"},
      {"Symbol('n')", "Symbol(n)"},
      {"({})", "[object Object]"},
      {"[1, [2, 3], null]", "1,2,3,"},
      {"(function f(a) { return a; })", "function f(a) { return a; }"},
      {"document", "[object HTMLDocument]"},
      {"({ toString: function() { return 'mine'; }, valueOf: function() { return 3; } })", "mine"},
      {"String = null; new Number(7)", "7"},
      {"var a = 2; if (a) { 'yes'; }", "yes"},
      {"window.b = document.title; b === 'Empty'", "true"},
      {"'use strict'; (function() { return typeof this; }())", "undefined"},
      {"(function() { return this === window; }())", "true"},
  };
  for (const Row& row : rows) {
    const JavaScriptAnswer evaluation = page->evaluate(q(row.code));
    EXPECT_EQ(evaluation.text, q(row.text)) << row.code;
    EXPECT_TRUE(evaluation.succeeded()) << row.code;
  }
}

TEST_F(EvaluationTest, RunsInTheGlobalSloppyScope) {
  EXPECT_EQ(text("var kept = 1; function keptToo() { return kept + 1; } undeclared = 3; 0"), q("0"));
  EXPECT_EQ(text("[window.kept, keptToo(), window.undeclared].join()"), q("1,2,3"));
}

TEST_F(EvaluationTest, AnExceptionFailsWithItsText) {
  struct Row {
    const char* code;
    const char* text;
    const char* inFirefox = text;
  };
  const Row rows[] = {
      {"nope.x", "ReferenceError: nope is not defined"},
      {"null.x", "TypeError: Cannot read properties of null (reading 'x')",
       "TypeError: can't access property \"x\" of null"},
      {"throw new TypeError('two\\nlines')", "TypeError: two\nlines"},
      {"throw 5", "5"},
      {"throw 'text'", "text"},
      {"throw { toString: function() { return 'mine'; } }", "mine"},
      {"throw undefined", "undefined"},
      {"var a = ;", "SyntaxError: Unexpected token ';'", "SyntaxError: expected expression, got ';'"},
      {"Object.create(null)", "TypeError: Cannot convert object to primitive value",
       "TypeError: can't convert this to string"},
  };
  for (const Row& row : rows) {
    const JavaScriptAnswer evaluation = page->evaluate(q(row.code));
    EXPECT_EQ(evaluation.text, TestSupport::inBrowser(row.text, row.inFirefox)) << row.code;
    EXPECT_TRUE(evaluation.failed) << row.code;
    EXPECT_FALSE(evaluation.aborted) << row.code;
  }
}

TEST_F(EvaluationTest, AFramesExceptionHasItsTextHoweverManyCameBefore) {
  ASSERT_EQ(load("<iframe srcdoc='<script>function fail(value) { throw value; }\n"
                 "for (var i = 0; i < 100; ++i) { try { fail(i); } catch (e) {} }</script>'></iframe>"),
            QString());
  struct Row {
    const char* thrown;
    const char* text;
  };
  const Row rows[] = {
      {"new TypeError('two\\nlines')", "TypeError: two\nlines"},
      {"'a \"text\".'", "a \"text\"."},
      {"NaN", "NaN"},
      {"undefined", "undefined"},
      {"Symbol('s')", "Symbol(s)"},
      {"{ toString: function() { return 'mine'; } }", "mine"},
  };
  for (const Row& row : rows) {
    const JavaScriptAnswer evaluation = page->evaluate(QStringLiteral("frames[0].fail(%1)").arg(q(row.thrown)));
    EXPECT_EQ(evaluation.text, q(row.text)) << row.thrown;
    EXPECT_TRUE(evaluation.failed) << row.thrown;
    EXPECT_FALSE(evaluation.aborted) << row.thrown;
  }
  EXPECT_EQ(text("({ toString: function() { frames[0].fail('in the text'); } })"), q("in the text"));
  EXPECT_EQ(page->setFiles(q("frames[0].fail('in the name')"), {q("/etc/passwd")}), q("in the name"));
}

TEST_F(EvaluationTest, WorksWhereThePageForbidsScripts) {
  ASSERT_EQ(load("<title>Strict</title>", {{"Content-Security-Policy", "default-src 'none'"}}), QString());
  EXPECT_EQ(text("eval('1 + 1') + document.title"), q("2Strict"));
}

TEST_F(EvaluationTest, CodeWithoutEndIsAbortedAndEnded) {
  if (TestSupport::isFirefox()) {
    GTEST_SKIP() << "Firefox offers no way to end a script that runs.";
  }
  const JavaScriptAnswer endless = page->evaluate(q("for (;;) {}"), 100);
  EXPECT_TRUE(endless.aborted);
  EXPECT_EQ(endless.text,
            q("The page did not answer within 100 ms. A script may keep it busy; allow more time, or call startBrowser "
              "again."));
  EXPECT_EQ(text("'alive'"), q("alive"));
}

TEST_F(EvaluationTest, APageThatCannotBeStoppedCanBeClosedAndHoldsNoOther) {
  BrowserPage* const other = session->newPage().value;
  ASSERT_TRUE(other);
  ASSERT_EQ(other->navigate(server->url(q("/page.html"), q("localhost"))), QString());
  other->evaluate(q("setTimeout(function() { for (;;) {} }, 0); 1"));
  EXPECT_TRUE(other->evaluate(q("1"), 200).aborted);
  EXPECT_EQ(text("'alive'"), q("alive"));
  EXPECT_EQ(other->close(), QString());
  EXPECT_FALSE(other->isOpen());
}

TEST_F(EvaluationTest, APageStuckInItsOwnLoopAbortsAndCanBeLeft) {
  if (TestSupport::isFirefox()) {
    GTEST_SKIP() << "Firefox does not load another document while a script of the old one runs.";
  }
  text("setTimeout(function() { for (;;) {} }, 0); 1");
  const JavaScriptAnswer stuck = page->evaluate(q("new Date"), 200);
  EXPECT_TRUE(stuck.aborted);
  EXPECT_TRUE(stuck.text.startsWith(q("The page did not answer within 200 ms."))) << stuck.text.toStdString();

  const FunctionCallResult<BrowserPage*> other = session->newPage();
  ASSERT_TRUE(other.value) << other.error.toStdString();
  EXPECT_EQ(other.value->evaluate(q("'other'")).text, q("other"));
  EXPECT_EQ(other.value->close(), QString());
  EXPECT_EQ(page->navigate(server->url(q("/page.html"), q("localhost"))), QString());
  EXPECT_EQ(text("'alive'"), q("alive"));
}

TEST_F(EvaluationTest, NestedCallsKeepTheirObjectsApart) {
  QString inner;
  QTimer::singleShot(0, [&] { inner = page->evaluate(q("['inner']")).text; });
  const JavaScriptAnswer outer = page->evaluate(q("for (var end = Date.now() + 50; Date.now() < end;) {} ['outer']"));
  EXPECT_EQ(outer.text, q("outer"));
  EXPECT_EQ(inner, q("inner"));
}

TEST_F(EvaluationTest, ANewDocumentEndsTheCall) {
  server->add(q("/other.html"), {"<title>Other</title>"});
  QString loadError = q("not called");
  text("setTimeout(function() { for (var end = Date.now() + 300; Date.now() < end;) {} }, 0); 1");
  QTimer::singleShot(0, [&] { loadError = page->navigate(server->url(q("/other.html"), q("localhost"))); });
  const JavaScriptAnswer evaluation =
      page->evaluate(q("for (var end = Date.now() + 300; Date.now() < end;) {} document.title"));
  EXPECT_EQ(loadError, QString());
  EXPECT_TRUE(evaluation.text == q("Empty") || evaluation.text == q("Other") ||
              (evaluation.aborted && evaluation.text.startsWith(q("The page was replaced by another one"))))
      << evaluation.text.toStdString();
  EXPECT_EQ(text("document.title"), q("Other"));
}

TEST_F(EvaluationTest, AClosedPageEndsTheCallAndAllLaterOnes) {
  BrowserPage* const other = session->newPage().value;
  ASSERT_TRUE(other);
  other->evaluate(q("setTimeout(function() { for (;;) {} }, 0); 1"));
  QTimer::singleShot(0, [&] { other->close(); });
  const JavaScriptAnswer evaluation = other->evaluate(q("document.title"));
  EXPECT_TRUE(evaluation.aborted);
  EXPECT_EQ(evaluation.text, q("The page was closed in the browser. Open it again."));
  EXPECT_FALSE(other->isOpen());
  EXPECT_EQ(other->evaluate(q("1")).text, evaluation.text);
  EXPECT_EQ(other->navigate(q("about:blank")), evaluation.text);
}

TEST_F(EvaluationTest, ACrashedPageSaysSoAndCanBeLoadedAgain) {
  BrowserSession::Start start = startAnother();
  ASSERT_TRUE(start.value) << start.error.toStdString();
  BrowserPage* const other = start.value->firstPage();
  ASSERT_EQ(other->navigate(server->url(q("/page.html"))), QString());
  EXPECT_TRUE(comesAfter(other, &BrowserPage::crashed, [&] { crash(*start.value); }));
  const JavaScriptAnswer evaluation = other->evaluate(q("1"));
  EXPECT_TRUE(evaluation.aborted);
  EXPECT_EQ(evaluation.text, q("The page crashed in the browser. Load it again."));
  EXPECT_EQ(other->whyUnavailable(), evaluation.text);
  EXPECT_EQ(other->url(), server->url(q("/page.html")));

  EXPECT_EQ(other->navigate(server->url(q("/page.html"))), QString());
  EXPECT_EQ(other->evaluate(q("document.title")).text, q("Empty"));
  // Firefox tells nothing while code runs in the page, and a server's own page must not crash along.
  if (!TestSupport::isRemote() && !TestSupport::isFirefox()) {
    QTimer::singleShot(100, other, [&] { crash(*start.value); });
    EXPECT_EQ(other->evaluate(q("for (var end = Date.now() + 60000; Date.now() < end;) {}")).text, evaluation.text);
  }
}

TEST_F(EvaluationTest, ADialogEndsTheCallWithItsText) {
  const JavaScriptAnswer evaluation = page->evaluate(q("window.answer = prompt('Your name?', 'nobody')"));
  EXPECT_TRUE(evaluation.aborted);
  EXPECT_EQ(evaluation.text,
            q("The page shows a dialog (prompt) with the text 'Your name?' and does not answer before the "
              "dialog is closed."));
  EXPECT_EQ(page->evaluate(q("1")).text, evaluation.text);
  EXPECT_EQ(page->navigate(q("about:blank")), evaluation.text);
  EXPECT_FALSE(page->isAvailable());
  ASSERT_TRUE(page->openDialog());
  EXPECT_EQ(page->openDialog()->kind, q("prompt"));
  EXPECT_EQ(page->openDialog()->defaultText, q("nobody"));

  EXPECT_EQ(page->answerDialog(true, q("Ada")), QString());
  EXPECT_EQ(text("answer"), q("Ada"));
  EXPECT_EQ(page->answerDialog(true), q("The page shows no dialog that could be answered."));
}

TEST_F(EvaluationTest, DialogsOneAfterTheOtherAreAnsweredOneByOne) {
  const char* const code =
      "setTimeout(function() { window.answers = [confirm('1'), prompt('2', 'd'), confirm('3')]; }, 0)";
  ASSERT_TRUE(comesAfter(page, &BrowserPage::dialogOpened, [&] { text(code); }));
  ASSERT_TRUE(comesAfter(page, &BrowserPage::dialogOpened, [&] { EXPECT_EQ(page->answerDialog(true), QString()); }));
  ASSERT_TRUE(comesAfter(page, &BrowserPage::dialogOpened, [&] { EXPECT_EQ(page->answerDialog(true), QString()); }));
  EXPECT_EQ(page->openDialog()->text, q("3"));
  EXPECT_EQ(page->answerDialog(false), QString());
  EXPECT_EQ(text("answers.join()"), q("true,d,false"));
}

TEST_F(EvaluationTest, AKilledBrowserEndsTheCallAndLeavesNothing) {
  if (TestSupport::isRemote()) {
    GTEST_SKIP() << "The browser is not this machine's to kill.";
  }
  BrowserSession::Start start = startAnother();
  ASSERT_TRUE(start.value) << start.error.toStdString();
  const QString directory = start.value->browserDirectory();
  const pid_t process = pid_t(start.value->browserProcess());
  QString reason;
  QObject::connect(start.value.get(), &BrowserSession::lost, [&](const QString& why) { reason = why; });
  QElapsedTimer elapsed;
  QTimer::singleShot(0, [&] {
    elapsed.start();
    kill(process, SIGKILL);
  });

  const JavaScriptAnswer evaluation = start.value->firstPage()->evaluate(q("for (;;) {}"));
  EXPECT_LT(elapsed.elapsed(), 2000);
  EXPECT_TRUE(evaluation.aborted);
  EXPECT_TRUE(evaluation.text.startsWith(q("The browser was lost: "))) << evaluation.text.toStdString();
  EXPECT_FALSE(reason.isEmpty());
  EXPECT_TRUE(start.value->isLost());
  EXPECT_TRUE(start.value->pages().isEmpty());
  EXPECT_NE(kill(-process, 0), 0);
  EXPECT_FALSE(QFileInfo::exists(directory));
  EXPECT_TRUE(start.value->firstPage()->navigate(q("about:blank")).startsWith(q("The browser was lost: ")));
}

TEST_F(EvaluationTest, ALostSessionMayBeDeletedAtOnce) {
  if (TestSupport::isRemote()) {
    GTEST_SKIP() << "The browser is not this machine's to kill.";
  }
  BrowserSession::Start start = startAnother();
  ASSERT_TRUE(start.value) << start.error.toStdString();
  server->add(q("/silent"), {{}, {}, {}, 200, true});
  BrowserPage* const itsPage = start.value->firstPage();
  QObject::connect(start.value.get(), &BrowserSession::lost, [&] { start.value.reset(); });
  QTimer::singleShot(0, [&] { kill(pid_t(start.value->browserProcess()), SIGKILL); });
  EXPECT_TRUE(itsPage->navigate(server->url(q("/silent"))).startsWith(q("The browser was lost: ")));
  EXPECT_FALSE(start.value);
}

TEST_F(EvaluationTest, ASessionDeletedDuringACallEndsIt) {
  BrowserSession::Start start = startAnother();
  ASSERT_TRUE(start.value) << start.error.toStdString();
  const QString directory = start.value->browserDirectory();
  BrowserPage* const itsPage = start.value->firstPage();
  QTimer::singleShot(0, [&] { start.value.reset(); });
  EXPECT_TRUE(itsPage->evaluate(q("for (;;) {}")).aborted);
  EXPECT_TRUE(directory.isEmpty() || !QFileInfo::exists(directory));
}
