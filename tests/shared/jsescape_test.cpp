#include "shared/jsescape.h"

#include <gtest/gtest.h>

using Corvex::undoEscape;

TEST(JsEscape, IsUndoneAndWhatIsNoneStays) {
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
    EXPECT_EQ(undoEscape(QString::fromLatin1(text.written)), text.meant) << text.written;
  }
}
