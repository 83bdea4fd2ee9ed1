#include "webhook/endpoint/pagemessage.h"

#include <gtest/gtest.h>

#include "support/printing.h"
#include "webhook/endpoint/messagequeue.h"

using namespace Corvex::Webhook;

namespace {

QString itemsOf(const PageMessage& message) {
  QStringList result;
  for (const MessageItem& item : message.items()) {
    result.append(item.key + u'=' + item.value);
  }
  return result.join(u'|');
}

struct Row {
  const char* text;
  MessageKind kind;
  qint64 stamp;  // -1: none
  const char* items;
};

const Row rows[] = {
    {"logevent1700000000123&event=click&x=12&clickHandler&object=a", MessageKind::LogEvent, 1700000000123,
     "event=click|x=12|clickHandler=clickHandler|object=a"},
    {"logevent5&logevent6&event=unload&object=[Window]", MessageKind::LogEvent, 5,
     "logevent6=logevent6|event=unload|object=[Window]"},
    {"logeventNaN&event=click", MessageKind::LogEvent, -1, "event=click"},
    {"logevent99999999999999999999&event=click", MessageKind::LogEvent, -1, "event=click"},
    {"logevent&event=click&&x=a=b", MessageKind::LogEvent, -1, "event=click|x=a=b"},
    {"eventHandler7&name=WindowOpened", MessageKind::EventHandler, 7, "name=WindowOpened"},
    {"eventHandler&7&name=AlertOpened", MessageKind::EventHandler, 7, "name=AlertOpened"},
    {"eventHandler&name=AlertOpened", MessageKind::EventHandler, -1, "name=AlertOpened"},
    {"waitForConfirm42", MessageKind::WaitForConfirm, 42, ""},
    {"waitForPrompt&42", MessageKind::WaitForPrompt, 42, ""},
    {"highlighteWidget&info=1,2,3,4,A%26B&99", MessageKind::HighlightWidget, 99, "info=1,2,3,4,A&B"},
    {"highlighteWidget&info=1,2,3,4,A", MessageKind::HighlightWidget, -1, "info=1,2,3,4,A"},
    {"debuglog=a=b&c%20d", MessageKind::DebugLog, -1, "text=a=b&c%20d"},
    {"debuglog", MessageKind::DebugLog, -1, "text="},
    {"", MessageKind::Unknown, -1, ""},
    {"logeventevent=click", MessageKind::Unknown, -1, ""},
    {"highlightWidget&info=1&2", MessageKind::Unknown, -1, ""},
    {"highlighteWidget", MessageKind::Unknown, -1, ""},
    {"Logevent1&event=click", MessageKind::Unknown, -1, ""},
    {"debuglogger", MessageKind::Unknown, -1, ""},
    {"%6Cogevent1&event=click", MessageKind::Unknown, -1, ""},
};

TEST(PageMessage, EachHeadIsReadByItsRow) {
  for (const Row& row : rows) {
    const PageMessage message = PageMessage::fromText(QString::fromLatin1(row.text));
    EXPECT_EQ(message.kind(), row.kind) << row.text;
    EXPECT_EQ(message.stamp().value_or(-1), row.stamp) << row.text;
    EXPECT_EQ(itemsOf(message), QString::fromLatin1(row.items)) << row.text;
    EXPECT_EQ(message.text(), QString::fromLatin1(row.text));
  }
}

TEST(PageMessage, UndoesEscapeAndLeavesWhatIsNone) {
  const struct {
    const char* written;
    QString meant;
  } texts[] = {
      {"%26amp;%3D%25", QStringLiteral("&amp;=%")},
      {"%u20AC%uD83D%uDE00%E4", QStringLiteral(u"\u20AC\U0001F600\u00E4")},
      {"%u20aC%e4+", QStringLiteral(u"\u20AC\u00E4+")},
      {"100%", QStringLiteral("100%")},
      {"%4", QStringLiteral("%4")},
      {"%zz%u12g4%u12", QStringLiteral("%zz%u12g4%u12")},
      {"%%41%2541", QStringLiteral("%A%41")},
      {"%00", QString(QChar(0))},
  };
  for (const auto& text : texts) {
    EXPECT_EQ(unescaped(QString::fromLatin1(text.written)), text.meant) << text.written;
  }
}

TEST(PageMessage, ValueIsTheLastOfItsKey) {
  const PageMessage message = PageMessage::fromText(QStringLiteral("logevent1&a=%31&b=2&a=3"));
  EXPECT_EQ(message.value(QStringLiteral("a")), QStringLiteral("3"));
  EXPECT_EQ(message.items().first().raw, QStringLiteral("%31"));
  EXPECT_TRUE(message.value(QStringLiteral("c")).isNull());
}

TEST(PageMessage, HeadAndBodyAreOneText) {
  const PageMessage posted = PageMessage::fromRequest("logevent12&", "event=keyup&value=\xE2\x82\xAC%u20AC");
  EXPECT_EQ(posted.text(), QStringLiteral(u"logevent12&event=keyup&value=\u20AC%u20AC"));
  EXPECT_EQ(posted.stamp(), 12);
  EXPECT_EQ(posted.value(QStringLiteral("value")), QStringLiteral(u"\u20AC\u20AC"));
}

TEST(PageMessage, DebugLinesAreReadAsTheirChannelCarriesThem) {
  const QString text = QStringLiteral("text");
  // The browser encodes what a URL cannot hold; a body arrives as written, also if it begins like the other form.
  EXPECT_EQ(PageMessage::fromRequest("debuglog=a%20b%E2%82%AC").value(text), QStringLiteral(u"a b\u20AC"));
  EXPECT_EQ(PageMessage::fromRequest("debuglog", "=a%20b").value(text), QStringLiteral("=a%20b"));
  EXPECT_EQ(PageMessage::fromRequest("debug", "log=a").kind(), MessageKind::Unknown);
}

TEST(PageMessage, SessionQueueIsReadInOrder) {
  QString error = QStringLiteral("old");
  const auto messages = PageMessage::fromSessionQueue(
      QStringLiteral(R"([{"payload":"eventHandler7&name=WindowOpened"},{"url":"logevent8&","payload":"event=a%26"},)"
                     R"({"url":"debuglog","payload":"50%20"},{"payload":5},17,{"url":null,"payload":"logevent1"}])"),
      &error);
  ASSERT_EQ(messages.size(), 6);
  EXPECT_TRUE(error.isEmpty());
  EXPECT_EQ(messages[0].kind(), MessageKind::EventHandler);
  EXPECT_EQ(messages[1].text(), QStringLiteral("logevent8&event=a%26"));
  EXPECT_EQ(messages[1].value(QStringLiteral("event")), QStringLiteral("a&"));
  EXPECT_EQ(messages[2].value(QStringLiteral("text")), QStringLiteral("50%20"));
  EXPECT_EQ(messages[3].kind(), MessageKind::Unknown);
  EXPECT_EQ(messages[3].text(), QStringLiteral(R"([{"payload":5}])"));
  EXPECT_EQ(messages[5].kind(), MessageKind::Unknown);

  EXPECT_TRUE(PageMessage::fromSessionQueue(QStringLiteral("[]"), &error).isEmpty());
  EXPECT_TRUE(error.isEmpty());
  for (const char* broken : {"", "[{", "{}", "null"}) {
    EXPECT_TRUE(PageMessage::fromSessionQueue(QString::fromLatin1(broken), &error).isEmpty());
    EXPECT_TRUE(error.startsWith(QStringLiteral("The page's session queue cannot be read: "))) << broken;
  }
}

QString sorted(const QStringList& texts) {
  std::deque<PageMessage> messages;
  for (const QString& text : texts) {
    messages.push_back(PageMessage::fromText(text));
  }
  sortByStamp(messages);
  QStringList result;
  for (const PageMessage& message : messages) {
    result.append(message.text());
  }
  return result.join(u' ');
}

TEST(MessageQueue, SortsByStampAndKeepsTheRestInPlace) {
  EXPECT_EQ(sorted({"logevent3&a", "logevent1&b", "logevent3&c", "logevent2&d"}),
            QStringLiteral("logevent1&b logevent2&d logevent3&a logevent3&c"));
  EXPECT_EQ(sorted({"debuglog=1", "logevent5", "debuglog=2", "logevent3", "debuglog=3"}),
            QStringLiteral("debuglog=1 logevent3 logevent5 debuglog=2 debuglog=3"));
  EXPECT_EQ(sorted({}), QString());
}

TEST(MessageQueue, TakesNoMoreThanItsLimit) {
  MessageQueue queue(40);
  const PageMessage message = PageMessage::fromText(QStringLiteral("0123456789"));
  EXPECT_EQ(queue.put(message), MessageQueue::Taken::YesAsFirst);
  EXPECT_EQ(queue.put(message), MessageQueue::Taken::Yes);
  EXPECT_EQ(queue.put(message), MessageQueue::Taken::No);
  EXPECT_EQ(queue.takeAll().size(), 2u);
  EXPECT_EQ(queue.put(message), MessageQueue::Taken::No) << "taken, but not delivered";
  queue.noteDelivered(message);
  EXPECT_EQ(queue.put(message), MessageQueue::Taken::YesAsFirst);
}

}  // namespace
