#include <QColor>
#include <QFileInfo>
#include <QTemporaryDir>
#include <csignal>

#include "support/files.h"
#include "webhook/backends/browserfixture.h"

using namespace Corvex;
using namespace Corvex::Webhook;

namespace {

class PageTest : public BrowserTest {};

QString q(const char* text) { return QString::fromUtf8(text); }

}  // namespace

TEST_F(PageTest, NavigationWaitsForTheLoadEventAndTellsTheNewDocument) {
  QStringList seen;
  const auto connection = QObject::connect(page, &BrowserPage::navigated, [&](const QString& url) { seen << url; });
  server->add(q("/picture.svg"), {"<svg xmlns='http://www.w3.org/2000/svg'/>", "image/svg+xml"});
  EXPECT_EQ(load("<img src=picture.svg><script>onload = function() { window.loaded = true; }</script>"), QString());
  QObject::disconnect(connection);
  EXPECT_EQ(text("loaded"), q("true"));
  EXPECT_EQ(seen, QStringList(server->url(q("/page.html"))));

  EXPECT_EQ(page->navigate(server->url(q("/page.html#part"))), QString());
  EXPECT_EQ(page->url(), server->url(q("/page.html#part")));
  EXPECT_EQ(text("loaded"), q("true")) << "another part of the same document";
}

TEST_F(PageTest, NavigationFollowsAPageThatLeadsOn) {
  server->add(q("/target.html"), {"<title>Target</title>"});
  server->add(q("/redirect"), {"", "text/html", {{"Location", "/target.html"}}, 302});
  EXPECT_EQ(page->navigate(server->url(q("/redirect"))), QString());
  EXPECT_EQ(page->url(), server->url(q("/target.html")));
  EXPECT_EQ(load("<script>location.replace('/target.html')</script>"), QString());
  EXPECT_EQ(text("document.title"), q("Target"));
}

TEST_F(PageTest, NavigationSaysWhyAPageDoesNotCome) {
  server->add(q("/silent"), {{}, {}, {}, 200, true});
  server->add(q("/nothing"), {{}, {}, {}, 204});
  struct Row {
    const char* url;
    const char* code;
    const char* hint;
    const char* codeOfFirefox = code;
  };
  const Row rows[] = {
      {"http://127.0.0.1:9/x%201", "net::ERR_UNSAFE_PORT", "The browser refuses this port; use another one.",
       "deniedPortAccess"},
      {"http://no.such.host.invalid/", "net::ERR_NAME_NOT_RESOLVED",
       "The host name is not known; correct it or check the network.", "NS_ERROR_UNKNOWN_HOST"},
      {"file:///no/such/file.html", "net::ERR_FILE_NOT_FOUND", "There is no such file; correct the path.",
       "NS_ERROR_FILE_NOT_FOUND"},
      {"no address", "Cannot navigate to invalid URL",
       "Give the whole address, such as http://localhost:8080/page.html."},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(page->navigate(q(row.url)), q("The page '%1' could not be loaded: %2. ")
                                                  .replace(q("%2"), TestSupport::inBrowser(row.code, row.codeOfFirefox))
                                                  .replace(q("%1"), q(row.url)) +
                                              q(row.hint));
  }
  EXPECT_TRUE(page->navigate(server->url(q("/nothing"))).contains(q("gave no page")));
  if (TestSupport::isRemote()) {
    // After a load that was given up chromedriver now and then answers nothing any more.
    return;
  }
  EXPECT_EQ(load("<title>Between</title>"), QString());
  EXPECT_EQ(page->navigate(server->url(q("/silent?%20")), 300),
            QStringLiteral("The page '%1' was not loaded within 300 ms. Check the server or allow more time.")
                .arg(server->url(q("/silent?%20"))));
  EXPECT_EQ(load("<title>Again</title>"), QString());
}

TEST_F(PageTest, AClosedPortIsNamed) {
  QString url;
  {
    const TestSupport::TestServer gone;
    url = gone.url(q("/"));
  }
  EXPECT_EQ(page->navigate(url),
            QStringLiteral("The page '%1' could not be loaded: %2. Nothing listens at that address; start the server "
                           "or correct the port.")
                .arg(url, TestSupport::inBrowser("net::ERR_CONNECTION_REFUSED", "NS_ERROR_CONNECTION_REFUSED")));
}

TEST_F(PageTest, AQuestionWhetherToLeaveDoesNotHoldANavigation) {
  const char* const asking = "<script>onbeforeunload = function(e) { e.preventDefault(); return 'stay'; }</script>";
  ASSERT_EQ(load(asking), QString());
  text("1");
  EXPECT_EQ(load("<title>Left</title>"), QString());
  EXPECT_EQ(text("document.title"), q("Left"));

  BrowserPage* const other = session->newPage().value;
  ASSERT_TRUE(other);
  server->add(q("/asking.html"), {asking});
  ASSERT_EQ(other->navigate(server->url(q("/asking.html"))), QString());
  other->evaluate(q("1"));
  EXPECT_EQ(other->close(), QString());
}

TEST_F(PageTest, ADialogDuringLoadingEndsTheNavigation) {
  EXPECT_EQ(load("<script>alert('Stop')</script>"),
            q("The page shows a dialog (alert) with the text 'Stop' and does not answer before the dialog is closed."));
  EXPECT_EQ(page->answerDialog(true), QString());
}

TEST_F(PageTest, StartScriptsRunInOrderBeforeThePageAndInTheTopPageOnly) {
  BrowserPage* const other = session->newPage().value;
  ASSERT_TRUE(other);
  for (int i = 0; i < 11; ++i) {
    EXPECT_EQ(other->addStartScript(QStringLiteral("var order = (window.order || '') + '%1,';").arg(i)), QString());
  }
  EXPECT_EQ(other->addStartScript(q("function started() { return order; }")), QString());
  server->add(q("/frames.html"), {"<script>window.seen = started();</script><iframe srcdoc='<p>x</p>'></iframe>"
                                  "<iframe src='about:blank'></iframe>",
                                  "text/html",
                                  {{"Content-Security-Policy", "script-src 'unsafe-inline'"}}});
  for (const QString& host : {q("127.0.0.1"), q("localhost")}) {
    ASSERT_EQ(other->navigate(server->url(q("/frames.html"), host)), QString());
    EXPECT_EQ(other->evaluate(q("seen")).text, q("0,1,2,3,4,5,6,7,8,9,10,"));
    EXPECT_EQ(
        other->evaluate(q("[0, 1].map(function(i) { return ['order' in frames[i], 'started' in frames[i]]; })")).text,
        q("false,false,false,false"));
  }
  EXPECT_EQ(other->close(), QString());
}

TEST_F(PageTest, AStartScriptOfNewPagesRunsInTheFirstDocumentOfAPage) {
  BrowserSession::Start start = startAnother();
  ASSERT_TRUE(start.value) << start.error.toStdString();
  EXPECT_EQ(start.value->addStartScriptOfNewPages(q("var early = 1;")), QString());
  server->add(q("/early.html"), {"<script>var seen = typeof early;</script>",
                                 "text/html",
                                 {{"Content-Security-Policy", "script-src 'unsafe-inline'"}}});
  ASSERT_TRUE(comesAfter(start.value.get(), &BrowserSession::pageOpened, [&] {
    BrowserPage* const first = start.value->firstPage();
    ASSERT_EQ(first->navigate(server->url(q("/page.html"))), QString());
    EXPECT_EQ(first->evaluate(q("window.open('/early.html') !== null")).text, q("true"));
  }));
  BrowserPage* const opened = start.value->pages().last();
  if (opened->evaluate(q("window.seen === undefined")).text == q("true")) {
    comes(opened, &BrowserPage::navigated);
  }
  EXPECT_EQ(opened->evaluate(q("seen")).text, q("number"));
}

TEST_F(PageTest, ScreenshotsShowThePage) {
  ASSERT_EQ(load("<body style='margin: 0; background: rgb(10, 200, 30)'><div style='height: 3000px'></div>"),
            QString());
  const FunctionCallResult<QImage> view = page->screenshot(false);
  ASSERT_EQ(view.error, QString());
  EXPECT_EQ(view.value.pixelColor(5, 5), QColor(10, 200, 30));
  EXPECT_EQ(QString::number(view.value.width()),
            text(TestSupport::isRemote() ? "document.body.clientWidth" : "innerWidth"));
  EXPECT_EQ(QString::number(view.value.height()), text("innerHeight"));
  const FunctionCallResult<QImage> whole = page->screenshot(true);
  ASSERT_EQ(whole.error, QString());
  EXPECT_EQ(whole.value.height(), 3000);
  EXPECT_EQ(whole.value.pixelColor(5, 2990), QColor(10, 200, 30));
  EXPECT_EQ(page->zoomFactor().value, 1.0);
}

TEST_F(PageTest, FilesArePutIntoAFileInput) {
  const QTemporaryDir directory;
  const QString first = directory.filePath(q("a b.txt"));
  const QString second = directory.filePath(q("c.txt"));
  ASSERT_TRUE(TestSupport::writeFile(first, "one"));
  ASSERT_TRUE(TestSupport::writeFile(second, "two"));
  ASSERT_EQ(load("<input id=f type=file multiple onchange='changed = this.files.length'><p id=p>"), QString());

  const QString input = q("document.getElementById('f')");
  EXPECT_EQ(page->setFiles(input, {first, second}), QString());
  EXPECT_EQ(text("changed + f.files[0].name + f.files[1].size"), q("2a b.txt3"));
  if (!TestSupport::isRemote()) {
    EXPECT_EQ(page->setFiles(input, {first, q("/no/such")}),
              q("Cannot choose the file '/no/such': there is no such file. Give a path that exists."));
    EXPECT_EQ(page->setFiles(input, {q("/etc")}),
              q("Cannot choose the file '/etc': it is no file. Give the path of a file."));
  }
  for (const QString& wrong : {q("document.getElementById('p')"), q("document"), q("({})"), q("null"), q("7")}) {
    EXPECT_EQ(page->setFiles(wrong, {first}),
              QStringLiteral("'%1' is no file input of the page. Name an <input type=\"file\">.").arg(wrong));
  }
  EXPECT_EQ(page->setFiles(q("nope"), {first}), q("ReferenceError: nope is not defined"));
}

TEST_F(PageTest, FilesArePutIntoAFileInputOfAFrame) {
  const QTemporaryDir directory;
  const QString path = directory.filePath(q("a.txt"));
  ASSERT_TRUE(TestSupport::writeFile(path, "one"));
  ASSERT_EQ(load("<iframe srcdoc='<input id=f type=file>'></iframe>"), QString());
  EXPECT_EQ(page->setFiles(q("frames[0].document.getElementById('f')"), {path}), QString());
  EXPECT_EQ(text("frames[0].f.files[0].name"), q("a.txt"));
}

TEST_F(PageTest, ADialogOfAFrameIsThePagesDialog) {
  ASSERT_EQ(load("<iframe srcdoc='<p>x</p>'></iframe>"), QString());
  ASSERT_TRUE(comesAfter(page, &BrowserPage::dialogOpened, [&] {
    text("frames[0].setTimeout(function() { frames[0].answer = frames[0].confirm('Sure?'); }, 0); 1");
  }));
  EXPECT_EQ(page->openDialog()->text, q("Sure?"));
  EXPECT_EQ(page->answerDialog(true), QString());
  EXPECT_EQ(text("frames[0].answer"), q("true"));
}

TEST_F(PageTest, TheLastPageCanBeClosedAndAnotherOneOpened) {
  BrowserSession::Start start = startAnother();
  ASSERT_TRUE(start.value) << start.error.toStdString();
  EXPECT_EQ(start.value->firstPage()->close(), QString());
  EXPECT_FALSE(start.value->firstPage()->isOpen());
  EXPECT_TRUE(start.value->pages().isEmpty());
  BrowserPage* const next = start.value->newPage().value;
  ASSERT_TRUE(next);
  EXPECT_EQ(next->evaluate(q("1")).text, q("1"));
  EXPECT_EQ(start.value->pages().size(), 1);
}

TEST_F(PageTest, PagesThatAPageOpensAreListedAndGo) {
  BrowserPage* opened = nullptr;
  const auto connection =
      QObject::connect(session.get(), &BrowserSession::pageOpened, [&](BrowserPage* newPage) { opened = newPage; });
  ASSERT_TRUE(comesAfter(session.get(), &BrowserSession::pageOpened, [&] {
    EXPECT_EQ(text("window.child = window.open('/page.html'); child !== null"), q("true"));
  }));
  QObject::disconnect(connection);
  ASSERT_TRUE(opened);
  EXPECT_EQ(session->pages().size(), 2);
  EXPECT_EQ(session->firstPage(), page);
  EXPECT_EQ(opened->evaluate(q("opener !== null")).text, q("true"));
  EXPECT_TRUE(comesAfter(opened, &BrowserPage::closed, [&] { text("child.close(); 1"); }));
  EXPECT_EQ(session->pages().size(), 1);
}

TEST_F(PageTest, TheBrowserTellsItsNameAndVersion) {
  EXPECT_TRUE(session->browserName().contains(TestSupport::inBrowser("chrome", "firefox"), Qt::CaseInsensitive));
  EXPECT_GT(session->browserVersion().section(QLatin1Char('.'), 0, 0).toInt(), 100);
}

TEST_F(PageTest, ClosingTheBrowserLeavesNothing) {
  if (TestSupport::isRemote()) {
    GTEST_SKIP() << "The browser is another machine's.";
  }
  BrowserSession::Start start = startAnother();
  ASSERT_TRUE(start.value) << start.error.toStdString();
  const QString directory = start.value->browserDirectory();
  const pid_t process = pid_t(start.value->browserProcess());
  ASSERT_TRUE(QFileInfo::exists(directory));
  ASSERT_EQ(kill(-process, 0), 0);
  start.value->close();
  EXPECT_NE(kill(-process, 0), 0);
  EXPECT_FALSE(QFileInfo::exists(directory));
  EXPECT_TRUE(start.value->firstPage()->evaluate(q("1")).aborted);
}
