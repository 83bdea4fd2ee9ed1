#include "wrappers/web/recording/eventpayload.h"

#include "support/printing.h"

#include <gtest/gtest.h>

#include <QDateTime>

using namespace Corvex::WebWrapper;

namespace {

/// The items without the time, as "key=value" in the order of their keys, parted by a bar.
QString items(const QString& text) {
  EventMap data = parseEvent(text);
  data.remove(QStringLiteral("timestamp"));
  return shownItems(data).replace(QLatin1String(", "), QLatin1String("|"));
}

QString timestamp(const QString& text) { return parseEvent(text).value(QStringLiteral("timestamp")); }

TEST(EventPayload, ItemsAreParted) {
  const QStringList rows[] = {
      {"", ""},
      {"&&", ""},
      {"logevent5&event=click&x=1", "event=click|x=1"},
      {"5&event=click", "event=click"},
      {"event=click&clickHandler&x=", "clickHandler=clickHandler|event=click|x="},
      {"x=1&&x=2&", "x=2"},
      {"x=a=b", "x=a=b"},
      {"=a", "=a"},
      {"logevent0&event=click", "event=click|logevent0=logevent0"},
      {"logeventx&x=1", "logeventx=logeventx|x=1"},
      {"logevent5&logevent6&event=unload&object=[Window]", "event=unload|logevent6=logevent6|object=[Window]"},
      {"object=%257BtagName%253D%2527P%2527%257D", "object={tagName%3D%27P%27%7D"},
      {"object=%7BtagName%3D%27P%27%7D", "object={tagName='P'}"},
      {"object=x%257BtagName", "object=x%7BtagName"},
  };
  for (const QStringList& row : rows) {
    EXPECT_EQ(items(row[0]), row[1]) << row[0].toStdString();
  }
}

TEST(EventPayload, TheTimeIsThatOfThePageOrElseThePresentOne) {
  EXPECT_EQ(timestamp(""), QString());
  EXPECT_EQ(timestamp("logevent1700000000123&x"), QString("1700000000123"));
  EXPECT_EQ(timestamp("1700000000123"), QString("1700000000123"));
  const QDateTime page = QDateTime::fromMSecsSinceEpoch(1700000000123);
  EXPECT_EQ(getTimeStampFromEventData(parseEvent("logevent1700000000123")), page.time());
  for (const char* text : {"logevent0&x", "logevent-5&x", "x=1"}) {
    const qint64 before = QDateTime::currentMSecsSinceEpoch();
    const qint64 stamp = timestamp(text).toLongLong();
    EXPECT_TRUE(before <= stamp && stamp <= QDateTime::currentMSecsSinceEpoch()) << text;
  }
  EXPECT_LE(QTime::currentTime().addSecs(-5), getTimeStampFromEventData({}));
}

TEST(EventPayload, ValuesAreUnescaped) {
  const QStringList rows[] = {
      {"a%20b%26%3D", "a b&="},
      {"%u20AC%u20ac%e4%E4", QString::fromUtf8("\u20ac\u20ac\u00e4\u00e4")},
      {"%uD83D%uDE00", QString::fromUtf8("\U0001F600")},
      {"a%20%26amp%3B%20b&amp;", "a & b&"},
      {"%4g%G1%zz", QString("@") + QChar(1) + QChar(0)},
      {"%2541", "%41"},
      {"100%", "100%"},
  };
  for (const QStringList& row : rows) {
    EXPECT_EQ(unescapeItem(row[0]), row[1]) << row[0].toStdString();
  }
}

TEST(EventPayload, ModifiersAddUpAndComeBeforeThePlace) {
  const EventMap plain = parseEvent("x=12&y=-7&altKey=false&ctrlKey=false&shiftKey=false&button=0");
  const EventMap all = parseEvent("x=NaN&y=7&altKey=true&ctrlKey=true&shiftKey=true&button=2");
  const EventMap right = parseEvent("x=1&y=2&altKey=undefined&button=2");
  EXPECT_EQ(getModifiers(plain), 0);
  EXPECT_EQ(getModifiers(all), 23);
  EXPECT_EQ(getModifiers(right), 16);
  const auto shown = [](const EventMap& data) {
    QStringList numbers;
    for (const auto& argument : getMouseClickArguments(data)) {
      numbers << argument->toString();
    }
    return numbers.join(' ');
  };
  EXPECT_EQ(shown(plain), QString("12 -7"));
  EXPECT_EQ(shown(all), QString("23 0 7"));
  EXPECT_EQ(shown(right), QString("16 1 2"));
}

}  // namespace
