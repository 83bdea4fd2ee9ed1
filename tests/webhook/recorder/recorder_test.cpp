// From the messages of pages to the lines of a script and an object map.

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QTemporaryDir>

#include <csignal>

#include "corvexhook/datetime.h"
#include "corvexhook/inspector.h"
#include "corvexhook/objectmap.h"
#include "support/files.h"
#include "support/printing.h"
#include "webhook/recorder/actrecorder.h"
#include "webhook/recorder/linefile.h"
#include "webhook/recorder/recordingfiles.h"
#include "webhook/recorder/scriptline.h"
#include "wrappers/web/recording/webevents.h"

using namespace Corvex;
using namespace Corvex::Webhook;

namespace {

class Recording : public testing::Test {
protected:
  static void SetUpTestSuite() {
    if (!Inspector::self()->globalClass()->event(QStringLiteral("click"))) {
      initWebEvents();
    }
  }
  void SetUp() override { ASSERT_TRUE(folder.isValid()); }
  void TearDown() override {
    Inspector::self()->setRecording(false);
    Inspector::self()->attachRecorder(nullptr);
  }

  QString path(const char* name) const { return folder.filePath(QLatin1String(name)); }
  QString textOf(const char* name) const { return QString::fromUtf8(TestSupport::readFile(path(name))); }
  void write(const char* name, const QByteArray& text) const {
    QFile file(path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
  }

  /// What messages, each after its time in milliseconds and a bar, make of the open files.
  void record(RecordingFiles& files, const QStringList& messages) {
    RecordedCalls calls(files);
    ActRecorder logger(calls);
    Inspector::self()->attachRecorder(&calls);
    Inspector::self()->setRecording(true);
    for (const QString& message : messages) {
      // Long after what the other tests recorded.
      begin += 1000000;
      const qint64 time = begin + message.section('|', 0, 0).toLongLong();
      logger.logEvent(QString("logevent%1&event=%2").arg(time).arg(message.section('|', 1)));
      begin -= 1000000;
    }
    logger.finish();
    begin += 10000;
  }
  QString recorded(const QStringList& messages) {
    RecordingFiles files([](const QString&) {}, [](const QString& error) { ADD_FAILURE() << qPrintable(error); });
    EXPECT_EQ(files.open({path("s.js"), QString(), false}), QString());
    record(files, messages);
    return textOf("s.js").trimmed();
  }

  QTemporaryDir folder;
  static qint64 begin;
};

qint64 Recording::begin = 1700000000000;

ObjectList texts(const QString& text) { return {Inspector::self()->wrapString(text)}; }

TEST_F(Recording, ACallIsOneReadableLine) {
  const Inspector& make = *Inspector::self();
  const QString name = QStringLiteral("{tagName='A' title='it\\'s \"x\"'}");
  const struct {
    EventData call;
    const char* line;
  } rows[] = {
      {{"clickButton", name, {}}, "clickButton(\"{tagName='A' title='it\\\\'s \\\"x\\\"'}\");"},
      {{"mouseClick", ":a", {make.wrapInt(4), make.wrapInt(-1)}}, "mouseClick(\":a\", 4, -1);"},
      {{"typeText", ":a", texts("12")}, "typeText(\":a\", \"12\");"},
      {{"typeText", ":a", texts(QString("a\n\t\r\u00e4\u2028\u202e") + QChar(0) + QString::fromUtf8("\U0001F600"))},
       u8"typeText(\":a\", \"a\\n\\t\\r\u00e4\\u2028\\u202e\\u0000\U0001F600\");"},
      {{"setText", ":f", texts("C:\\fakepath\\a b.png")}, "setText(\":f\", scriptPath(\"a b.png\"));"},
      {{"setText", ":f", texts("C:\\fakepath\\../../a")}, "setText(\":f\", scriptPath(\"a\"));"},
      {{"//", "", texts("1\nrun();\u2028run();")}, "// 1\\nrun();\\u2028run();"},
      {{"startBrowser", "http://h/\n", {}}, "startBrowser(\"http://h/\\n\");"},
      {{"waitForContextExists", "a.html<2>", {}}, "waitForContextExists(\"a.html<2>\");"},
      {{"closeWindow", "[Window]", {}}, "closeWindow();"},
      {{"closeConfirm", "", {make.wrapBool(true)}}, "closeConfirm(true);"},
      {{"closePrompt", "", {nullptr}}, "closePrompt(null);"},
      {{"chooseDate", ":d", {wrapDateTime(DateTime(2024, 2, 29))}}, "chooseDate(\":d\", new Date(2024, 1, 29));"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(scriptLine(row.call, row.call.objectName()), QString::fromUtf8(row.line));
  }
}

TEST_F(Recording, NewNamesAreShortAndReadableAndKnownOnesStay) {
  ObjectMap map;
  map.insert(":Known", "{tagName='A' id='k' title='t'}");
  map.insert(":Save", "{tagName='DIV'}");
  SymbolicNames names(map);
  const QStringList rows[] = {
      {"{tagName='A' title='t' id='k'}", ":Known"},
      {"{tagName='A' title~='t' id='k'}", ":t"},
      {"{tagName='BUTTON' simplifiedInnerText='Save' type='submit'}", ":Save 2"},
      {"{tagName='BUTTON' simplifiedInnerText='Save' type='button'}", ":Save 3"},
      {"{tagName='BUTTON' simplifiedInnerText='Save' type='submit'}", ":Save 2"},
      {"{tagName='INPUT' name='mail' type='email'}", ":mail"},
      {"{tagName='INPUT' name='stock' type='checkbox' value='on'}", ":stock"},
      {"{tagName='INPUT' name='go' type='submit' value='Send it'}", ":Send it"},
      {"{tagName='TABLE'}", ":table"},
      {"{tagName='P' innerText='a\tb\n c'}", ":a b c"},
      {"{tagName='P' innerText='" + QString("word ").repeated(20) + "'}", ":word word word word word word word word"},
      {"{tagName='P' innerText='" + QString("x").repeated(100) + "'}", ":" + QString("x").repeated(40)},
      {"DOCUMENT.HTML1.BODY1.DIV2", ":DIV2"},
      {"{tagName='P' id='\u202e\t'}", ":p"},
      {"\u202e", ":object"},
  };
  for (const QStringList& row : rows) {
    const SymbolicNames::Answer answer = names.nameFor(row[0]);
    EXPECT_EQ(answer.symbolicName, row[1]) << row[0].toStdString();
  }
  EXPECT_FALSE(names.nameFor("{tagName='TABLE'}").isNew);
}

// A time and what is recorded then.
TEST_F(Recording, WhatIsDoneTwiceIsRecordedTwiceAndADoubleClickOnce) {
  const QString button = "&object=b&type=button&x=1&y=2";
  const QString box = "&object=d&type=DIV&clickHandler&x=1&y=2";
  const QString field = "&object=f&type=text&x=1&y=2";
  EXPECT_EQ(recorded({"0|mousedown" + button, "1|click" + button, "400|mousedown" + button, "401|click" + button}),
            QString("clickButton(\"b\");\nclickButton(\"b\");"));
  EXPECT_EQ(recorded({"0|mousedown&ctrlKey=true" + button, "400|mousedown&shiftKey=true" + button}),
            QString("mouseClick(\"b\", 2);\nmouseClick(\"b\", 4);"));
  EXPECT_EQ(recorded({"0|mousedown&object=s&type=submit", "1|click&object=s&type=submit"}),
            QString("clickButton(\"s\");"));
  EXPECT_EQ(recorded({"0|mousedown" + button, "1|click" + button, "200|mousedown" + button, "201|click" + button,
                      "202|dblclick" + button}),
            QString("doubleClick(\"b\", 1, 2);"));
  EXPECT_EQ(recorded({"0|mousedown" + field, "200|mousedown" + field, "202|dblclick" + field}),
            QString("doubleClick(\"f\", 1, 2);"));
  EXPECT_EQ(recorded({"0|mousedown" + box, "3000|mousedown" + box, "3200|mousedown" + box, "3202|dblclick" + box}),
            QString("mouseClick(\"d\", 1, 2);\ndoubleClick(\"d\", 1, 2);"));
  EXPECT_EQ(recorded({"0|mousedown" + button, "200|mousedown" + box, "202|dblclick" + box}),
            QString("clickButton(\"b\");\ndoubleClick(\"d\", 1, 2);"));
}

TEST_F(Recording, TextIsWhatTheFieldHeld) {
  const QString area = "keyup&object=a&type=textarea&value=";
  const QString field = "keyup&object=f&type=text&value=";
  EXPECT_EQ(recorded({"0|" + area + "x", "1|" + area + "x%0A&keyCode=13", "2|" + area + "x%0A%09y"}),
            QString("typeText(\"a\", \"x\");\ntypeText(\"a\", \"x\\n\\ty\");"));
  EXPECT_EQ(recorded({"0|" + field + "a%3CReturn%3E"}), QString("setText(\"f\", \"a<Return>\");"));
  EXPECT_EQ(recorded({"0|" + field + "%3CReturn%3E"}), QString("setText(\"f\", \"<Return>\");"));
  EXPECT_EQ(recorded({"0|" + field + "1%3C2%20%26%203%3E2"}), QString("typeText(\"f\", \"1<2 & 3>2\");"));
  EXPECT_EQ(recorded({"0|" + field + "a", "1|unload&object=[Window]", "2|mousedown&object=b&type=button"}),
            QString("typeText(\"f\", \"a\");\nclickButton(\"b\");"));
  EXPECT_EQ(recorded({"0|" + field + "a", "1|" + field + "a&keyCode=13"}),
            QString("typeText(\"f\", \"a\");\ntypeText(\"f\", \"<Return>\");"));
}

TEST_F(Recording, AReturnThatPressesTheButtonOfAFormIsOneOfBoth) {
  const QString field = "keyup&object=f&type=text&value=a";
  const QString implied = "1|click&object=s&type=submit&x=-30&y=-9";
  const QString pressed = "typeText(\"f\", \"a\");\nclickButton(\"s\");";
  EXPECT_EQ(recorded({"0|" + field, implied, "2|" + field + "&keyCode=13"}), pressed);
  EXPECT_EQ(recorded({"0|" + field, implied, "2|" + field + "&keyCode=13", "3|mousedown&object=b&type=button",
                      "4|" + field + "&keyCode=13"}),
            pressed + "\nclickButton(\"b\");\ntypeText(\"f\", \"<Return>\");");
}

// Pages that tell of a Return when it goes down, and of fields that change without a key.
TEST_F(Recording, NothingThatWasTypedIsLost) {
  const QString f = "&object=f&type=text&value=";
  const QString back = "&keyCode=13" + f;
  const QString button = "&object=s&type=submit";
  const struct {
    const char* what;
    QStringList messages;
    const char* calls;
  } rows[] = {
      {"a page that empties the field and stays, a key that comes up late, a second line",
       {"0|keyup" + f + "ab", "1|keydown" + back + "ab", "2|keyup&keyCode=66" + f, "3|keyup" + back,
        "4|keyup&keyCode=0" + f + "c", "5|keyup&keyCode=67" + f + "c"},
       "typeText(f, ab) typeText(f, <Return>) typeText(f, c)"},
      {"a form whose button it presses, twice",
       {"0|keyup" + f + "ab", "1|keydown" + back + "ab", "2|click" + button, "3|keyup" + back + "ab",
        "4|keydown" + back + "ab", "5|click" + button, "6|keyup" + back + "ab"},
       "typeText(f, ab) clickButton(s) clickButton(s)"},
      {"a page that is left at once", {"0|keydown" + back + "ab", "1|unload&object=[Window]"}, "typeText(f, <Return>)"},
      {"keys without text, and a field that cannot be changed",
       {"0|keyup&keyCode=9" + f + "old", "1|keyup&keyCode=65&readonly=true" + f + "old", "2|keyup&keyCode=66" + f + "o",
        "3|keyup&keyCode=37" + f + "o", "4|keyup&keyCode=40" + f + "offered",
        "5|keyup&keyCode=9&object=g&type=text&value=1"},
       "typeText(f, offered)"},
      {"a slider on its way, a check box, buttons by the space bar",
       {"0|fieldSet&object=r&type=range&content=1", "1|fieldSet&object=r&type=range&content=2",
        "2|keyClick&object=c&type=checkbox", "3|click&object=c&type=checkbox", "4|keyClick&object=b&type=button",
        "5|keyClick&object=b&type=button", "6|keyClick&object=a&type=A"},
       "setText(r, 2) clickButton(c) clickButton(b) clickButton(b) mouseClick(a)"},
      {"a button by its key after a press",
       {"0|mousedown&object=b&type=submit", "1|click&object=b&type=submit", "2|keyClick&object=b&type=submit",
        "3|click&object=b&type=submit", "4|click&object=b&type=submit"},
       "clickButton(b) clickButton(b)"},
      {"a link by its key, in a page that got another name",
       {"0|click&object=x&type=A&context=one", "1|keyClick&object=a&type=A&context=two",
        "2|click&object=a&type=A&context=two"},
       "waitForContextExists(one) waitForContextExists(two) mouseClick(a)"},
  };
  for (const auto& row : rows) {
    QString calls = recorded(row.messages).remove('"').replace(";\n", " ");
    calls.chop(1);
    EXPECT_EQ(calls, QString(row.calls)) << row.what;
  }
}

TEST_F(Recording, DialogsAreAnsweredAfterWhatOpenedThem) {
  EXPECT_EQ(recorded({"0|keyup&object=f&type=text&value=a", "1|alert", "2|disableFallbackWrapper",
                      "3|confirm&ret=false", "4|enableFallbackWrapper", "5|prompt&ret=Zo%C3%AB%20&%26+ 100%"}),
            QString::fromUtf8(
                "typeText(\"f\", \"a\");\ncloseAlert();\ncloseConfirm(false);\nclosePrompt(\"Zo\u00eb &&+ 100%\");"));
}

TEST_F(Recording, ActsStandInTheirOwnContextWithTheirOwnArguments) {
  EXPECT_EQ(recorded({"0|dblclick&object={id='l'}&x=1&y=2&beside&context=a.html",
                      "100|unrecorded&what=canvas&object={id='c'}&context=a.html", "200|promptCancelled",
                      "300|hover&object={id='m'}&context=b.html"}),
            R"(waitForContextExists("a.html");
doubleClick("{id='l'}");
// A press on the canvas {id='c'} is recorded by its place at most: what is there is known to the page alone.
closePrompt(null);
waitForContextExists("b.html");
hover("{id='m'}");)");
}

TEST_F(Recording, FilesHoldEachLineAtOnceAndKeepWhatTheyHeld) {
  write("map.tsv", "# Mine\n:Mine\tb");
  write("s.js", "// Mine\nfirst();");
  QStringList shown;
  RecordingFiles files(
      [&](const QString& line) {
        shown << line;
        EXPECT_TRUE(line.startsWith("//") || textOf("s.js").endsWith(line + '\n'));
      },
      [](const QString& error) { ADD_FAILURE() << qPrintable(error); });
  ASSERT_EQ(files.open({path("s.js"), path("map.tsv"), true}), QString());
  record(files, {"0|mousedown&object=b&type=button", "1|mousedown&object=%7BtagName%3D%27A%27%7D&type=A",
                 "2|dblclick&object=%7BtagName%3D%27A%27%7D&x=1&y=2"});
  EXPECT_EQ(textOf("map.tsv"), QString("# Mine\n:Mine\tb\n:a\t{tagName='A'}\n"));
  EXPECT_EQ(textOf("s.js"), QString("// Mine\nfirst();\nclickButton(\":Mine\");\ndoubleClick(\":a\", 1, 2);\n"));
  EXPECT_EQ(shown.join('|'), QString("clickButton(\":Mine\");|mouseClick(\":a\");|// The line before is taken back.|"
                                     "doubleClick(\":a\", 1, 2);"));
  ObjectMap map;
  EXPECT_EQ(map.load(path("map.tsv")), QString());
}

TEST_F(Recording, FilesThatCannotBeWrittenAreSaid) {
  write("bad.tsv", "Mine\tb\n");
  RecordingFiles files([](const QString&) {}, [](const QString&) {});
  const struct {
    RecordingFiles::Options options;
    QString error;
  } rows[] = {
      {{path("no/s.js"), QString(), false}, "The file '%1/no/s.js' cannot be written: No such file or directory."},
      {{folder.path(), QString(), false}, "The file '%1' cannot be written: Is a directory."},
      {{QString(), path("no/m.tsv"), false}, "The file '%1/no/m.tsv' cannot be written: No such file or directory."},
      {{path("kept.js"), path("bad.tsv"), false},
       "%1/bad.tsv:1: expected a symbolic name that begins with ':', a tab, and the real name."},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(files.open(row.options), row.error.arg(folder.path()));
  }
  EXPECT_FALSE(QFile::exists(path("kept.js")));
}

TEST_F(Recording, AFullDiskCostsNoOldLine) {
  const QString page = QStringLiteral("startBrowser(\"%1\");").arg(QString(1500, 'x'));
  for (const LineFile::Mode mode : {LineFile::Replace, LineFile::Append}) {
    write("s.js", "// Mine\n");
    LineFile file;
    ASSERT_EQ(file.open(path("s.js"), mode), QString());
    const auto signalBefore = std::signal(SIGXFSZ, SIG_IGN);
    rlimit before;
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small{1000, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    EXPECT_TRUE(file.write(page).startsWith("The file '" + path("s.js") + "' could not be written to: "));
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, signalBefore);
    EXPECT_EQ(textOf("s.js"), QString("// Mine\n"));
    EXPECT_EQ(file.write("next();"), QString());
    EXPECT_EQ(textOf("s.js"), QString(mode == LineFile::Replace ? "next();\n" : "// Mine\nnext();\n"));
  }
}

}  // namespace
