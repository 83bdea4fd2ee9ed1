#include "shared/visibletext.h"

#include <gtest/gtest.h>

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include "shared/textoutput.h"
#include "support/printing.h"

using namespace Corvex;

TEST(VisibleText, ShowsWhatSteersTurnsOrIsNoCharacter) {
  const struct {
    QString text;
    const char* shown;
  } rows[] = {
      {QString::fromUtf8("gr\xc3\xbcn \xd7\xa9 \xf0\x9f\x8d\x8f \\u001b"),
       "gr\xc3\xbcn \xd7\xa9 \xf0\x9f\x8d\x8f \\u001b"},
      {QStringLiteral("a\u001b[31mb\u0007"), "a\\u001b[31mb\\u0007"},
      {QString::fromLatin1("a\0b", 3), "a\\u0000b"},
      {QStringLiteral("gone\rhere"), "gone\\rhere"},
      {QStringLiteral("\u009b31m\u007f"), "\\u009b31m\\u007f"},
      {QStringLiteral("\u202egnp.exe\u2069\u200f"), "\\u202egnp.exe\\u2069\\u200f"},
      {QStringLiteral("\u2028\ufeff"), "\\u2028\\ufeff"},
      {QStringLiteral("pay\u200bpal\u00ad\u2060\u3164"), "pay\\u200bpal\\u00ad\\u2060\\u3164"},
      {QStringLiteral("O\u200dK\u200c O\ufe0fK"), "O\\u200dK\\u200c O\\ufe0fK"},
      {QStringLiteral("\U0001f3f4\U000e0041"), "\xf0\x9f\x8f\xb4\\udb40\\udc41"},
      // Persian "I want", a heart on fire, a keycap: nothing is hidden there.
      {QStringLiteral("\u0645\u06cc\u200c\u062e\u0648\u0627\u0647\u0645 \u2764\ufe0f\u200d\U0001f525 1\ufe0f\u20e3"),
       "\u0645\u06cc\u200c\u062e\u0648\u0627\u0647\u0645 \u2764\ufe0f\u200d\U0001f525 1\ufe0f\u20e3"},
      {QString(QChar(0xd83d)) + QLatin1Char('x') + QChar(0xdf4f) + QChar(0xffff), "\\ud83dx\\udf4f\\uffff"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(visibleText(row.text), QString::fromUtf8(row.shown));
  }
}

TEST(VisibleText, KeepsLinesWhereTheyAreMeant) {
  const QString text = QStringLiteral("one\n\ttwo\r\n");
  EXPECT_EQ(visibleText(text), QStringLiteral("one\n\ttwo\\r\n"));
  EXPECT_EQ(visibleText(text, LineBreaks::Shown), QStringLiteral("one\\n\\ttwo\\r\\n"));
}

TEST(VisibleText, IsValidInXml) {
  QString all;
  for (int code = 0; code <= 0xffff; ++code) {
    all += QChar(code);
    // No pair may come out by chance.
    all += QLatin1Char('.');
  }
  QByteArray document;
  QXmlStreamWriter writer(&document);
  writer.writeStartDocument();
  writer.writeTextElement(QStringLiteral("text"), visibleText(all));
  writer.writeEndDocument();
  QXmlStreamReader reader(document);
  reader.readNextStartElement();
  EXPECT_EQ(reader.readElementText(), visibleText(all));
  EXPECT_FALSE(reader.hasError()) << qPrintable(reader.errorString());
}

TEST(TextOutput, SaysWhyNothingCanBeWritten) {
  std::FILE* full = std::fopen("/dev/full", "w");
  EXPECT_EQ(writeText(full, QStringLiteral("text")), std::errc::no_space_on_device);
  std::fclose(full);

  char* written = nullptr;
  std::size_t size = 0;
  std::FILE* memory = open_memstream(&written, &size);
  EXPECT_FALSE(writeText(memory, QString::fromLatin1("a\0\xe4", 3)));
  EXPECT_EQ(QByteArray(written, static_cast<int>(size)), QByteArray("a\0\xc3\xa4", 4));
  std::fclose(memory);
  std::free(written);
}
