#include "webhook/run/keytext.h"

#include <gtest/gtest.h>

#include "support/printing.h"

using namespace Corvex::Webhook;

namespace {

/// Characters as they are, keys in brackets: "ab[Control a]".
QString shown(const QString& text) {
  QString result;
  for (const KeyTextPart& part : parseKeyText(text)) {
    QStringList keys;
    for (const Key& key : part.combination) {
      keys << key.key;
    }
    result +=
        part.text + (keys.isEmpty() ? QString() : QLatin1Char('[') + keys.join(QLatin1Char(' ')) + QLatin1Char(']'));
  }
  return result;
}

/// "+key" goes down, "-key" up, a text in quotes is put in.
QString shown(const InputSteps& steps) {
  QStringList words;
  for (const InputStep& step : steps) {
    words << (step.kind == InputStep::KeyDown ? QLatin1Char('+') + step.key.key
              : step.kind == InputStep::KeyUp ? QLatin1Char('-') + step.key.key
                                              : QLatin1Char('\'') + step.text + QLatin1Char('\''));
  }
  return words.join(QLatin1Char(' '));
}

}  // namespace

TEST(KeyText, TellsKeysFromCharacters) {
  const char* const rows[][2] = {
      {"", ""},
      {"tea<Return>", "tea[Enter]"},
      {"<Ctrl+A><Del>x", "[Control a][Delete]x"},
      {"<Ctrl+Shift+Left>", "[Control Shift ArrowLeft]"},
      {"<Ctrl++>", "[Control +]"},
      {"<Shift>", "[Shift]"},
      {"<b>bold</b> <Retrun> <return> < Return>", "<b>bold</b> <Retrun> <return> < Return>"},
      {"<a> <Return+a> <Ctrl+> <Ctrl+ab> <+>", "<a> <Return+a> <Ctrl+> <Ctrl+ab> <+>"},
      {"1<Tab", "1<Tab"},
      {"<<Tab>>", "<[Tab]>"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(shown(QString::fromUtf8(row[0])), QString::fromUtf8(row[1]));
  }
}

TEST(KeyText, PressesWhatTheLayoutHasAndPutsInTheRest) {
  const char* const rows[][2] = {
      {"aBC?d", "+a -a +Shift +B -B +C -C +? -? -Shift +d -d"},
      {"1\n\t", "+1 -1 +Enter -Enter +Tab -Tab"},
      {"ж👍🏽e\u0301", "'ж' '👍🏽' 'e\u0301'"},
      {"A", "+Shift +A -A -Shift"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(shown(stepsForText(QString::fromUtf8(row[0]))), QString::fromUtf8(row[1]));
  }
  EXPECT_EQ(shown(withModifiers(1 + 4, {})), QString("+Shift +Alt -Alt -Shift"));
}
