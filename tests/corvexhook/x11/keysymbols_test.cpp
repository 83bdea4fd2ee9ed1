#include "corvexhook/x11/keysymbols.h"

#include <gtest/gtest.h>

#include <X11/keysym.h>

#include "corvexhook/x11/keysequence.h"
#include "support/printing.h"

using namespace Corvex;

TEST(KeySymbols, AreThoseOfX11) {
  const int untouched = 77;
  const struct {
    const char* text;
    KeySym symbol;
    int state;
  } cases[] = {
      {"a", XK_a, untouched},
      {"abc", XK_a, untouched},
      {"", 0, untouched},
      {"\n", XK_Return, untouched},
      {"<", XK_less, untouched},
      {"=", XK_equal, 17},
      {"?", XK_question, 17},
      {"\\", XK_backslash, 144},
      {"@", XK_at, 144},
      {"é", XK_eacute, untouched},
      {"Ő", XK_Odoubleacute, untouched},
      {"€", XK_EuroSign, untouched},
      {"¹", XK_onesuperior, untouched},  // Its name is none of X11's.
      {"\u00ad", XK_hyphen, untouched},  // Not in the table.
      {"Ж", 0x1000416, untouched},
      {"漢", 0x1006f22, untouched},
      {"Ā", 0, untouched},  // The first one that is neither in Latin-1 nor above 256.
  };
  for (const auto& c : cases) {
    int state = untouched;
    EXPECT_EQ(XStringToKeysymEx(QString::fromUtf8(c.text), &state), c.symbol) << c.text;
    EXPECT_EQ(state, c.state) << c.text;
  }
}

TEST(KeySymbols, TableHoldsSingleCharacters) {
  int rows = 0;
  for (const KeySymbol* row = key_symbols; *row->name; ++row, ++rows) {
    EXPECT_EQ(QString::fromUtf8(row->character).size(), 1) << row->name;
  }
  EXPECT_EQ(rows, 93);
}

TEST(KeySequences, AreReadAsKeysAndCharacters) {
  struct Expected {
    KeySym symbol;
    int modifiers;
  };
  const int shift = 1, control = 4, alt = 8, levelThree = 128;
  const struct {
    const char* text;
    std::vector<Expected> strokes;
  } cases[] = {
      {"", {}},
      {"a<Return>b", {{XK_a, 0}, {XK_Return, 0}, {XK_b, 0}}},
      {"<Shift+End>", {{XK_End, shift}}},
      {"<ctrl+A><Ctrl+Shift+A>", {{XK_a, control}, {XK_a, control | shift}}},
      {"<Ctrl++><Alt+->", {{XK_plus, control}, {XK_minus, alt}}},
      {"<AltGr+pageup>", {{XK_Prior, levelThree}}},
      {"<f5><KP_Add><Esc>", {{XK_F5, 0}, {XK_KP_Add, 0}, {XK_Escape, 0}}},
      {"<b> <", {{XK_less, 0}, {XK_b, 0}, {XK_greater, 0}, {XK_space, 0}, {XK_less, 0}}},
      {"<less>R>", {{XK_less, 0}, {XK_R, 0}, {XK_greater, 0}}},
      {"\r😀Ā", {{XK_Return, 0}, {0x101f600, 0}, {0x1000100, 0}}},
  };
  for (const auto& c : cases) {
    const auto strokes = parseKeySequence(QString::fromUtf8(c.text));
    EXPECT_EQ(strokes.error, QString());
    ASSERT_EQ(strokes.value.size(), c.strokes.size()) << c.text;
    for (size_t i = 0; i < c.strokes.size(); ++i) {
      EXPECT_EQ(strokes.value[i].symbol, c.strokes[i].symbol) << c.text << " at " << i;
      EXPECT_EQ(strokes.value[i].modifiers, c.strokes[i].modifiers) << c.text << " at " << i;
    }
  }
}

TEST(KeySequences, OfAPathHoldNoKeys) {
  const QString path = QStringLiteral("/tmp/<Return> a<b");
  const auto strokes = parseKeySequence(keySequenceOf(path));
  ASSERT_EQ(strokes.value.size(), size_t(path.size()));
  EXPECT_EQ(strokes.value[5].symbol, KeySym(XK_less));
}

TEST(KeySequences, WithUnknownKeysAreErrors) {
  EXPECT_EQ(parseKeySequence(QStringLiteral("a<Retrun>")).error,
            QStringLiteral("There is no key '<Retrun>'. Write a name such as <Return> or <Ctrl+Home>, and <less> for "
                           "the character '<' itself."));
  EXPECT_EQ(parseKeySequence(QStringLiteral("<Strg+A>")).error,
            QStringLiteral("'Strg' in the key '<Strg+A>' is no modifier; there are Shift, Ctrl, Alt, AltGr and Meta."));
}
