#include "shared/stringconv.h"

#include <gtest/gtest.h>

#include "support/messagecapture.h"
#include "support/printing.h"

using namespace Corvex;
using TestSupport::MessageCapture;

TEST(StringConv, QuotesWhatUnquoteReads) {
  const QString texts[] = {QString(),
                           QStringLiteral("plain"),
                           QStringLiteral("tab\tline\nreturn\r"),
                           QStringLiteral("back\\slash \"quoted\" \\n"),
                           QStringLiteral("  blanks = [x] # ; "),
                           QString::fromUtf8("Grüße \xf0\x9f\x98\x80")};
  for (const QString& text : texts) {
    QString read = QStringLiteral("unread");
    EXPECT_FALSE(quoteString(text).contains(QLatin1Char('\n')));
    EXPECT_TRUE(unquoteString(quoteString(text), &read)) << text.toStdString();
    EXPECT_EQ(read, text);
  }
  EXPECT_EQ(quoteString(QStringLiteral("a\"\\\t\n\r")), QStringLiteral("\"a\\\"\\\\\\t\\n\\r\""));
}

TEST(StringConv, ReadsListsWithAnySpaceBetween) {
  QStringList list;
  EXPECT_TRUE(unquoteStringList(QStringLiteral(" \"a b\"\t\"\"\"c\\\"\" "), &list));
  EXPECT_EQ(list, QStringList({QStringLiteral("a b"), QString(), QStringLiteral("c\"")}));
  const QStringList written{QStringLiteral("x y"), QString(), QStringLiteral("\"")};
  EXPECT_TRUE(unquoteStringList(quoteStringList(written), &list));
  EXPECT_EQ(list, written);
  EXPECT_TRUE(unquoteStringList(QStringLiteral("  "), &list));
  EXPECT_TRUE(list.isEmpty());
}

TEST(StringConv, WarnsAboutTextsThatAreNoStrings) {
  const struct {
    const char* text;
    const char* warning;
  } rows[] = {
      {"bare", "Corvex::Settings: string not delimited by quotes in bare"},
      {"\"open", "Corvex::Settings: string not delimited by quotes in \"open"},
      {"\"open\\", "Corvex::Settings: string not delimited by quotes in \"open\\"},
      {"\"a\" b", "Corvex::Settings: string not delimited by quotes in \"a\" b"},
      {"\"C:\\x\"", "Corvex::Settings: unknown quoted character 'x' (0x78) in \"C:\\x\""},
      {"\"\\\xe2\x82\xac\"",
       "Corvex::Settings: unknown quoted character with hex code 0x20ac in "
       "\"\\\xe2\x82\xac\""},
      {"\"a\" \"b\"", "Corvex::Settings: entry is not a string in \"a\" \"b\""},
      {"", "Corvex::Settings: entry is not a string in "},
  };
  for (const auto& row : rows) {
    const MessageCapture capture;
    QString result = QStringLiteral("kept");
    EXPECT_FALSE(unquoteString(QString::fromUtf8(row.text), &result)) << row.text;
    EXPECT_EQ(result, QStringLiteral("kept"));
    EXPECT_EQ(capture.messages(), QStringList(QString::fromUtf8(row.warning)));
    EXPECT_EQ(capture.categories(), QStringList(QStringLiteral("default")));
  }
}
