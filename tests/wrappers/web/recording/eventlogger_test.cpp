#include "wrappers/web/recording/eventlogger.h"

#include "corvexhook/datetime.h"
#include "corvexhook/hook.h"
#include "corvexhook/recorder.h"
#include "support/messagecapture.h"
#include "wrappers/web/webtest.h"

#include <functional>

using namespace Corvex;
using namespace Corvex::WebWrapper;
using TestSupport::MessageCapture;

namespace {

/// Keeps calls as lines: function, object, arguments. What else it is told stands between them in brackets.
class Calls : public EventLogger {
public:
  void recordCall(const QString& objectName, const char* functionName, const ObjectList& arguments,
                  const QTime* time) override {
    QStringList words{QString::fromLatin1(functionName), objectName};
    for (const SharedPtr<Object>& argument : arguments) {
      words << (argument->isA(objectModelDateTimeClass()) ? unwrapDateTime(argument).value().toString("yyyy-M-d")
                                                          : '"' + argument->toString() + '"');
    }
    lines << words.join(' ');
    times << (time ? *time : QTime());
    calls.push_back(EventData(QString::fromLatin1(functionName), objectName, arguments));
    if (onCall) {
      onCall();
    }
  }
  void addUnmatchedProperty(const QString& name, const QString& property) override {
    lines << QString("[unmatched %1 %2]").arg(name, property);
  }
  void removeUnmatchedProperties(const QString& name) override { lines << QString("[matched %1]").arg(name); }
  void doubleClickSeen(const QString& name, const EventMap& data) override {
    lines << QString("[double %1 %2]").arg(name, data.value("x"));
  }
  void keyEventSeen(const QString&) override { ++keys; }
  QString adaptQualifiedName(const QString& name, const EventMap&) override { return prefix + name; }
  bool shouldRecordWaitForContextExists() const override { return waitsForContexts; }
  EventData lastRecordedEvent() override {
    return calls.empty() ? EventData(nullptr, QString(), ObjectList()) : calls.back();
  }
  void removeLastRecordedEvent() override {
    calls.pop_back();
    lines << "[back]";
  }
  bool isLastRecordedCall(const QString& function, const QString& name) override {
    const EventData last = lastRecordedEvent();
    return last.functionName() == function && last.objectName() == name;
  }
  bool recordClickOnTextField() const override { return clicksTextFields; }
  void setWaiting(bool waiting) { waitingForEvalAnswer = waiting; }

  QStringList lines;
  QList<QTime> times;
  std::vector<EventData> calls;
  std::function<void()> onCall;
  QString prefix;
  int keys = 0;
  bool waitsForContexts = true;
  bool clicksTextFields = false;
};

class NoRecorder : public Recorder {
public:
  void append(const EventData&, const QTime*) override {}
  EventData last() const override { return EventData(nullptr, QString(), ObjectList()); }
  void takeBackLast() override {}
};

class Logging : public TestSupport::WebTest {
protected:
  void SetUp() override {
    WebTest::SetUp();
    Inspector::self()->attachRecorder(&recorder);
    Inspector::self()->setRecording(true);
  }
  void TearDown() override {
    Inspector::self()->setRecording(false);
    Inspector::self()->attachRecorder(nullptr);
    WebTest::TearDown();
  }

  /// A message of its own moment.
  static QString stamped(const QString& items) {
    static qint64 now = 1700000000000;
    return QString("logevent%1&%2").arg(++now).arg(items);
  }
  /// The lines that the messages give; "flush" among them stands for a flush.
  static QString linesOf(const QStringList& messages, Calls& calls) {
    for (const QString& message : messages) {
      if (message == "flush") {
        calls.flushRecordedTextInput();
      } else {
        calls.logEvent(stamped(message));
      }
    }
    return calls.lines.join('|');
  }
  static QString linesOf(const QStringList& messages) {
    Calls calls;
    return linesOf(messages, calls);
  }

  NoRecorder recorder;
};

// After the type, what more there is to the message. The object is o.
TEST_F(Logging, APressBecomesTheCallOfItsType) {
  const QStringList rows[] = {
      {"text&readonly=true", "mouseClick o \"3\" \"4\""},
      {"text&readonly=true&ctrlKey=true", "mouseClick o \"2\" \"3\" \"4\""},
      {"text&readonly=false&clickHandler", "setFocus o"},
      {"textarea", "setFocus o"},
      {"bb_spinner", "setFocus o"},
      {"custom_text_a", "setFocus o"},
      {"Text", ""},
      {"menuitem_a&menuname=m&menuitemtext=Open", "clickItem m \"Open\""},
      {"datechooser_a&selectedDay=2&selectedMonth=3&selectedYear=2020", "chooseDate o 2020-3-2"},
      {"button", "clickButton o"},
      {"checkbox&clickHandler", "clickButton o"},
      {"custom_radiobutton_a", "clickButton o"},
      {"menubutton_a", "clickButton o"},
      {"button&shiftKey=true", "mouseClick o \"4\""},
      {"image&button=2", "mouseClick o \"16\""},
      {"select-one&clickHandler", ""},
      {"custom_combobox_a&clickHandler", ""},
      {"A&clickHandler", "mouseClick o"},
      {"AREA&altKey=true", "mouseClick o \"1\""},
      {"kiwi_treenode_handle&itemText=i", "clickTreeHandle o \"i\""},
      {"custom_itemhandle_a&clickHandler", "clickTreeHandle o \"\""},
      {"custom_item_a&itemRow=1&itemColumn=2&itemText=i&shiftKey=true", "clickItem o \"1\" \"2\" \"4\""},
      {"gwc_tableitem&itemRow=1&checkTreeItem=&itemText=i", "checkTreeItem o \"i\""},
      {"dojo_treeNodeLabel&itemText=i&ctrlKey=true", "clickItem o \"i\" \"2\""},
      {"bb_listview_item&itemRow=1&itemText=i", "clickItem o \"i\""},
      {"kiwi_table_item&itemRow=1&itemColumn=2&itemText=i", "clickItem o \"i\""},
      {"kiwi_treetable_item&itemText=i&altKey=true", "clickItem o \"i\" \"1\""},
      {"bb_combobox&value=v", "selectOption o \"v\""},
      {"tabitem_a&tabTitle=t&tabWidgetName=w", "clickTab w \"t\""},
      {"expandablesectionheader_a", "toggleExpandable o"},
      {"DIV&clickHandler", "mouseClick o \"3\" \"4\""},
      {"DIV&clickHandler&button=2", "mouseClick o \"16\" \"3\" \"4\""},
      {"calendarevent_a&clickHandler&shiftKey=true", "mouseClick o"},
      {"file&clickHandler", ""},
      {"DIV", ""},
  };
  for (const QStringList& row : rows) {
    EXPECT_EQ(linesOf({"event=mousedown&object=o&x=3&y=4&type=" + row[0]}), row[1]) << row[0].toStdString();
    EXPECT_EQ(linesOf({"event=touchend&object=o&x=3&y=4&type=" + row[0]}), row[1]) << row[0].toStdString();
  }
  EXPECT_EQ(linesOf({"event=mousedown&object=o&x=3&y=4&clickHandler"}), QString()) << "there is no type";
}

// The events after the first ones, in the order of their lists.
TEST_F(Logging, EventsInARowBecomeTheirCalls) {
  const QString field = "object=f&type=text&value=";
  const QString press = "event=mousedown&object=o&x=3&y=4&type=";
  const QString click = "event=click&object=o&x=3&y=4&type=";
  const QString color = "event=chooseColor&object=o&colorFieldValue=";
  const struct {
    QStringList messages;
    QString lines;
  } rows[] = {
      // Selections and files.
      {{"event=change&object=o&type=select-one&value=a%20%26%20b"}, "selectOption o \"a & b\""},
      {{"event=change&object=o&type=custom_selectlist_x&value=a"}, "selectOption o \"a\""},
      {{"event=change&object=o&type=file&value=C%3A%5Cx"}, "setText o \"C:\\x\""},
      {{"event=change&object=o&type=text&value=a"}, ""},
      // Clicks.
      {{click + "kiwi_more_menu&itemText=i"}, "activateItem o \"i\""},
      {{click + "DIV&clickHandler&shiftKey=true"}, "mouseClick o \"4\""},
      {{press + "DIV&clickHandler", click + "DIV&clickHandler"}, "mouseClick o \"3\" \"4\""},
      {{click + "DIV"}, ""},
      {{click + "A&clickHandler"}, ""},
      {{press + "submit", click + "submit"}, "clickButton o"},
      {{press + "submit", press + "submit"}, "clickButton o"},
      {{click + "submit"}, "clickButton o"},
      {{press + "submit&shiftKey=true", click + "submit"}, "mouseClick o \"4\"|clickButton o"},
      {{press + "A", press + "A"}, "mouseClick o"},
      // A choice takes back the click that opened it.
      {{press + "button", press + "kiwi_choice&value=v"}, "clickButton o|[back]|selectOption o \"v\""},
      {{"event=unload&object=[Window]"}, "closeWindow [Window]"},
      {{"event=dblclick&object=o&x=5&y=6&shiftKey=true&type=DIV"}, "[double o 5]|doubleClick o \"5\" \"6\""},
      // Colours.
      {{color + "red", color + "red", color + "blue"}, "chooseColor o \"red\"|chooseColor o \"blue\""},
      {{color + "red", color + "red&colorFieldName=p"}, "chooseColor o \"red\"|chooseColor p \"red\""},
      {{press + "button", color + ""}, "clickButton o|chooseColor o \"\""},
      {{"event=ignoreEvent&object=o&type=button"}, ""},
      // Text: a field's last content, at what ends it.
      {{"event=keyup&" + field + "a", "event=keydown&" + field + "ab"}, ""},
      {{"event=keyup&" + field + "a", "event=keyup&" + field + "ab", "flush", "flush"}, "typeText f \"ab\""},
      {{"event=keyup&" + field + "a", press + "DIV"}, "typeText f \"a\""},
      {{"event=keyup&" + field + "a", press + "button"}, "typeText f \"a\"|clickButton o"},
      {{"event=keyup&" + field + "a", click + "DIV"}, "typeText f \"a\""},
      {{"event=keyup&" + field + "a", "event=change&object=o&type=text"}, "typeText f \"a\""},
      {{"event=keyup&" + field + "a", "event=unload&object=[Window]"}, "typeText f \"a\"|closeWindow [Window]"},
      {{"event=keyup&" + field + "a", "event=dblclick&object=o&x=1&y=2"}, "[double o 1]|doubleClick o \"1\" \"2\""},
      {{"event=keyup&" + field + "a", color + "red"}, "chooseColor o \"red\""},
      {{"event=keyup&" + field + "a", "event=ignoreEvent&object=o"}, ""},
      {{"event=keyup&" + field + "a", "event=keyup&object=o&type=DIV", "flush"}, "typeText f \"a\""},
      {{"event=keyup&" + field + "a", "event=keyup&object=g&type=email&value=b", "flush"},
       "typeText f \"a\"|typeText g \"b\""},
      {{"event=keyup&" + field + "&readonly=true", "flush"}, "typeText f \"\""},
      {{"event=keyup&" + field + "a%09b%0Ac%20%uD83D%uDE00%u20AC", "flush"},
       QString::fromUtf8("typeText f \"a b c \U0001F600\u20ac\"")},
      // Return.
      {{"event=keyup&" + field + "abc", "event=keyup&keyCode=13&" + field + "abc", "flush"},
       "typeText f \"abc\"|typeText f \"<Return>\""},
      {{"event=keyup&keyCode=13&object=f&type=textarea&value=a", "flush"}, "typeText f \"<Return>\""},
      {{"event=keyup&" + field + "a", "event=keyup&keyCode=13&" + field + "a", "event=keyup&" + field + "ab", "flush"},
       "typeText f \"a\"|typeText f \"ab\""},
      {{press + "submit", "event=keyup&keyCode=13&" + field + "a", "flush"}, "clickButton o"},
      {{press + "submit", "event=keyup&" + field + "a", "event=keyup&keyCode=13&" + field + "a", "flush"},
       "clickButton o|typeText f \"a\"|typeText f \"<Return>\""},
      {{press + "submit", "event=keyup&object=o&type=DIV", "event=keyup&keyCode=13&" + field, "flush"},
       "clickButton o|typeText f \"<Return>\""},
      {{press + "submit", "event=clear", "event=keyup&keyCode=13&" + field, "flush"},
       "clickButton o|typeText f \"<Return>\""},
      {{press + "submit", "event=ignoreEvent&object=o", "event=keyup&keyCode=13&" + field, "flush"},
       "clickButton o|typeText f \"<Return>\""},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(linesOf(row.messages), row.lines) << row.messages.join('\n').toStdString();
  }
}

TEST_F(Logging, AnEventThatNobodyTakesIsWarnedOf) {
  MessageCapture capture;
  EXPECT_EQ(linesOf({"event=keyup&object=f&type=text&value=a", "event=mousedown&object=o&type=kiwi_choice",
                     "event=startBrowser&url=http%3A//h/", "event=mouseup", ""}),
            QString("typeText f \"a\"|startBrowser http://h/"));
  const QStringList warnings = MessageCapture::messages();
  ASSERT_EQ(warnings.size(), 4);
  EXPECT_EQ(warnings[0], QString("Unhandled event: 'mousedown' for 'o'."));
  EXPECT_TRUE(warnings[1].startsWith("convertEvent: unhandled event 'logevent"));
  EXPECT_TRUE(warnings[2].endsWith("&event=mouseup'"));
}

TEST_F(Logging, EventsAreThoseOfTheCatalogueWithTheirArguments) {
  const QStringList rows[] = {
      {"event=mousedown&x=3&y=4&shiftKey=true&button=1", "mousedown 3 4 4 1"},
      {"event=dblclick&x=3.5&y=4", "dblclick 0 4 0 0"},
      {"event=keydown&keyCode=65&altKey=true", "keyup 1 65"},
      {"event=change", "change"},
      {"event=touchend", ""},
      {"event=mouseup", ""},
  };
  for (const QStringList& row : rows) {
    Calls calls;
    ObjectList arguments;
    const Event* const event = calls.convertEvent(arguments, QString(), parseEvent(row[0]));
    QStringList words{event ? event->name() : QString()};
    for (const SharedPtr<Object>& argument : arguments) {
      EXPECT_TRUE(argument->ownsData());
      words << argument->toString();
    }
    EXPECT_EQ(words.join(' '), row[1]) << row[0].toStdString();
  }
}

TEST_F(Logging, ANewContextEndsTheTextOfTheOldOne) {
  const QString press = "event=mousedown&object=o&type=button&context=";
  Calls calls;
  EXPECT_EQ(linesOf({press + "a.html", "event=keyup&object=f&type=text&value=t&context=a.html", press + "b%3C2%3E",
                     press, "event=mousedown&object=p&type=button"},
                    calls),
            QString("waitForContextExists a.html|clickButton o|typeText f \"t\"|waitForContextExists b<2>|"
                    "clickButton o|clickButton p"));
  calls.lines.clear();
  calls.waitsForContexts = false;
  EXPECT_EQ(linesOf({press + "c.html"}, calls), QString("clickButton o"));
  // All loggers go by the last context of the process.
  EXPECT_EQ(linesOf({press + "c.html", press + "a.html"}),
            QString("clickButton o|waitForContextExists a.html|clickButton o"));
}

TEST_F(Logging, TheSameMessageTwiceIsOne) {
  Calls calls;
  for (const char* text : {"logevent9&event=dblclick&object=o&x=1&y=1", "event=unload&object=[Window]"}) {
    calls.logEvent(text);
    calls.logEvent(text);
  }
  EXPECT_EQ(calls.lines.join('|'), QString("[double o 1]|doubleClick o \"1\" \"1\"|closeWindow [Window]|"
                                           "closeWindow [Window]"));
}

TEST_F(Logging, MessagesThatComeDuringACallWaitForTheirTurn) {
  Calls calls;
  int depth = 0;
  calls.onCall = [&] {
    EXPECT_EQ(depth, 0);
    ++depth;
    if (calls.lines.size() < 3) {
      calls.logEvent(stamped(QString("event=dblclick&object=o%1").arg(calls.lines.size())));
    }
    --depth;
  };
  EXPECT_EQ(linesOf({"event=mousedown&object=o&type=button"}, calls),
            QString("clickButton o|[double o1 ]|doubleClick o1 \"0\" \"0\""));
}

TEST_F(Logging, CallsHaveTheTimeOfTheirEvent) {
  const auto stamp = [](int seconds) { return QDateTime(QDate(2020, 1, 1), QTime(0, 0, 10)).addSecs(seconds); };
  const auto at = [&stamp](int seconds) { return QString("logevent%1&").arg(stamp(seconds).toMSecsSinceEpoch()); };
  const QString key = "event=keyup&object=f&type=text&value=";
  Calls calls;
  calls.logEvent(at(5) + key + "ab");
  // Overtaken on its way.
  calls.logEvent(at(4) + key + "a");
  calls.logEvent(at(5) + key + "abc");
  // The same, of the next day; but after the flush text is taken again.
  calls.logEvent(at(24 * 3600) + key + "abcd");
  calls.logEvent(at(24 * 3600 + 1) + "event=mousedown&object=o&type=button");
  calls.logEvent(at(24 * 3600 + 2) + key + "e");
  calls.flushRecordedTextInput();
  EXPECT_EQ(calls.lines.join('|'), QString("typeText f \"abc\"|clickButton o|typeText f \"e\""));
  EXPECT_EQ(calls.times, (QList<QTime>{stamp(5).time(), stamp(1).time(), stamp(2).time()}));
}

TEST_F(Logging, NamesAreAdaptedWhereverTheyStand) {
  Calls calls;
  calls.prefix = "new ";
  EXPECT_EQ(linesOf({"event=mousedown&object=o&type=button", "event=mousedown&type=menuitem_a&menuname=m&object=o",
                     "event=chooseColor&colorFieldName=p&object=o", "event=change&type=file"},
                    calls),
            QString("clickButton new o|clickItem new m \"\"|chooseColor new p \"\"|setText  \"\""));
}

TEST_F(Logging, PicksAndNotesCountWithoutARecording) {
  const auto sent = std::make_shared<QStringList>();
  Hook::hook->setReceiver([sent](int connection, const QString& text, const ArgumentList& arguments) {
    *sent << QString("%1 %2 %3").arg(connection).arg(text, arguments.at(0).toString());
  });
  const QStringList notes{"event=pickedObject&object=o", "event=addUnmatchedProperty&name=a%20b&property=p",
                          "event=removeUnmatchedProperties&name=a", "event=mousedown&object=o&type=button"};
  Inspector::self()->setRecording(false);
  EXPECT_EQ(linesOf(notes), QString("[unmatched a b p]|[matched a]"));
  Hook::hook->setSpyConnection(7);
  Inspector::self()->setRecording(true);
  EXPECT_EQ(linesOf(notes), QString("[unmatched a b p]|[matched a]|clickButton o"));
  Inspector::self()->attachRecorder(nullptr);
  EXPECT_EQ(linesOf({notes[3]}), QString());
  EXPECT_EQ(*sent, (QStringList{"0 objectPicked o", "7 objectPicked o"}));
  Hook::hook->setSpyConnection(-1);
  Hook::hook->setReceiver(nullptr);
}

TEST_F(Logging, FieldsCanBeClickedInPlaceOfFocused) {
  Calls calls;
  calls.clicksTextFields = true;
  EXPECT_EQ(linesOf({"event=mousedown&object=o&type=text&x=3&y=4&shiftKey=true",
                     "event=mousedown&object=o&type=text&x=3&y=4&readonly=true", "event=keyup&object=o&type=DIV"},
                    calls),
            QString("nativeMouseClick o \"3\" \"4\" \"1\"|mouseClick o \"3\" \"4\""));
  EXPECT_EQ(calls.keys, 1);
}

TEST_F(Logging, WhileAnAnswerIsAwaitedNothingElseIsTaken) {
  Calls calls;
  calls.setWaiting(true);
  MessageCapture capture;
  EXPECT_EQ(linesOf({"event=mousedown&object=o&type=button", "event=evalAnswer"}, calls), QString());
  EXPECT_EQ(MessageCapture::messages().size(), 1);
  calls.setWaiting(false);
  EXPECT_EQ(linesOf({"event=mousedown&object=o&type=button"}, calls), QString("clickButton o"));
}

}  // namespace
