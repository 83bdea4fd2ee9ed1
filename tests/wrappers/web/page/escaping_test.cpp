#include "wrappers/web/page/escaping.h"

#include "support/printing.h"
#include "wrappers/web/page/timehelpers.h"

#include <gtest/gtest.h>

using namespace Corvex::WebWrapper;

namespace {

struct Row {
  QString (*helper)(const QString&);
  QString text;
  QString result;
};

}  // namespace

TEST(Escaping, ReplacesInTheRightOrder) {
  const Row rows[] = {
      {escapeObjectNameForUseAsStringLiteral, "a\\\"'\r\n", "a\\\\\\\"'\\r\\n"},
      {escapeQuoteWithBackslash, "a\\'\"\n", "a\\\\\\'\"\n"},
      {escapeForUseAsStringLiteral, "a\\'\r\nb\r", "a\\\\\\'\\nb"},
      {escapeQuotes, "a\\\"'", "a\\\\\\\"'"},
      {translateLineEndings, "a\r\nb\rc\n", "a\nb\rc\n"},
      {undefinedAsEmptyString, "undefined", ""},
      {undefinedAsEmptyString, "Undefined", "Undefined"},
      {addSchemeIfMissing, "", ""},
      {addSchemeIfMissing, "host/a", "http://host/a"},
      {addSchemeIfMissing, "https://host", "https://host"},
      {addSchemeIfMissing, "HTTP://host", "http://HTTP://host"},
      {unescape, "a%20b%u0041&", "a bA&amp;"},
      {unescape, "%e4%E4%26", QStringLiteral("\u00e4\u00e4&amp;")},
      {unescape, "100%", "100%"},
      {unescape, "%4", QString(QChar(4))},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(row.helper(row.text), row.result) << row.text.toStdString();
  }
}

TEST(Escaping, ArrayElementsStayInsideTheirQuotes) {
  EXPECT_EQ(quotedArrayElements({"a", "b'\\", "say \"x\"\n"}), QString("\"a\",\"b\\'\\\\\",\"say \\\"x\\\"\\n\""));
  EXPECT_EQ(quotedArrayElements({}), QString());
}

TEST(Escaping, KnowsJavaScriptIdentifiers) {
  for (const QString& name : {QStringLiteral("$"), QStringLiteral("_a1"), QStringLiteral("\u00e4\u0660"),
                              QStringLiteral("a\u200Db"), QStringLiteral("\u2160")}) {
    EXPECT_TRUE(isValidJSIdentifier(name)) << name.toStdString();
  }
  for (const QString& name : {QString(), QStringLiteral("1a"), QStringLiteral("a b"), QStringLiteral("font-size"),
                              QStringLiteral("style.top"), QStringLiteral("\u200Da")}) {
    EXPECT_FALSE(isValidJSIdentifier(name)) << name.toStdString();
  }
}

TEST(Time, ZeroIsNoTime) {
  QDateTime time = QDateTime::fromMSecsSinceEpoch(5);
  EXPECT_FALSE(msecsToDateTime(0, &time));
  EXPECT_EQ(time.toMSecsSinceEpoch(), 5);
  EXPECT_TRUE(msecsToDateTime(now(), &time));
  EXPECT_LT(qAbs(time.msecsTo(QDateTime::currentDateTime())), 60000);
}
