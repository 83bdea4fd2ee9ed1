#include "corvexhook/x11/keysymbols.h"

#include <X11/Xlib.h>

#include <algorithm>
#include <iterator>

namespace Corvex {

// Characters of Latin-1 that are missing here, and the one whose name X11 does not know, have their own code as symbol.
// clang-format off
const KeySymbol key_symbols[] = {
    {"EuroSign", "€"}, {"exclamdown", "¡"}, {"cent", "¢"}, {"sterling", "£"}, {"currency", "¤"}, {"yen", "¥"},
    {"brokenbar", "¦"}, {"section", "§"}, {"copyright", "©"}, {"ordfeminine", "ª"}, {"guillemotleft", "«"},
    {"notsign", "¬"}, {"registered", "®"}, {"degree", "°"}, {"plusminus", "±"}, {"twosuperior", "²"},
    {"threesuperior", "³"}, {"acute", "´"}, {"mu", "µ"}, {"paragraph", "¶"}, {"periodcentered", "·"},
    {"oneosuperior", "¹"}, {"masculine", "º"}, {"guillemotright", "»"}, {"onequarter", "¼"}, {"onehalf", "½"},
    {"threequarters", "¾"}, {"questiondown", "¿"}, {"Agrave", "À"}, {"Aacute", "Á"}, {"Acircumflex", "Â"},
    {"Atilde", "Ã"}, {"Adiaeresis", "Ä"}, {"Aring", "Å"}, {"AE", "Æ"}, {"Ccedilla", "Ç"}, {"Egrave", "È"},
    {"Eacute", "É"}, {"Ecircumflex", "Ê"}, {"Ediaeresis", "Ë"}, {"Igrave", "Ì"}, {"Iacute", "Í"},
    {"Icircumflex", "Î"}, {"Idiaeresis", "Ï"}, {"ETH", "Ð"}, {"Ntilde", "Ñ"}, {"Ograve", "Ò"}, {"Oacute", "Ó"},
    {"Ocircumflex", "Ô"}, {"Otilde", "Õ"}, {"Odiaeresis", "Ö"}, {"Odoubleacute", "Ő"}, {"multiply", "×"},
    {"Oslash", "Ø"}, {"Ugrave", "Ù"}, {"Uacute", "Ú"}, {"Ucircumflex", "Û"}, {"Udiaeresis", "Ü"}, {"Yacute", "Ý"},
    {"THORN", "Þ"}, {"ssharp", "ß"}, {"agrave", "à"}, {"aacute", "á"}, {"acircumflex", "â"}, {"atilde", "ã"},
    {"adiaeresis", "ä"}, {"aring", "å"}, {"ae", "æ"}, {"ccedilla", "ç"}, {"egrave", "è"}, {"eacute", "é"},
    {"ecircumflex", "ê"}, {"ediaeresis", "ë"}, {"igrave", "ì"}, {"iacute", "í"}, {"icircumflex", "î"},
    {"idiaeresis", "ï"}, {"eth", "ð"}, {"ntilde", "ñ"}, {"ograve", "ò"}, {"oacute", "ó"}, {"ocircumflex", "ô"},
    {"otilde", "õ"}, {"odiaeresis", "ö"}, {"division", "÷"}, {"oslash", "ø"}, {"ugrave", "ù"}, {"uacute", "ú"},
    {"ucircumflex", "û"}, {"udiaeresis", "ü"}, {"yacute", "ý"}, {"thorn", "þ"}, {"ydiaeresis", "ÿ"},
    {"", ""},
};
// clang-format on

namespace {

const int noMask = -1;
const int shiftMask = ShiftMask | Mod2Mask;
const int levelThreeMask = Mod5Mask | Mod2Mask;

struct DirectSymbol {
  ushort character;
  const char* name;
  int mask;
};

const DirectSymbol directSymbols[] = {
    {8, "BackSpace", noMask},
    {9, "Tab", noMask},
    {10, "Return", noMask},
    {27, "Escape", noMask},
    {' ', "space", noMask},
    {'+', "plus", noMask},
    {',', "comma", noMask},
    {'-', "minus", noMask},
    {'.', "period", noMask},
    {'/', "slash", noMask},
    {'<', "less", noMask},
    {127, "Delete", noMask},
    {'!', "exclam", shiftMask},
    {'"', "quotedbl", shiftMask},
    {'#', "numbersign", shiftMask},
    {'$', "dollar", shiftMask},
    {'%', "percent", shiftMask},
    {'&', "ampersand", shiftMask},
    {'\'', "apostrophe", shiftMask},
    {'(', "parenleft", shiftMask},
    {')', "parenright", shiftMask},
    {'*', "asterisk", shiftMask},
    {':', "colon", shiftMask},
    {';', "semicolon", shiftMask},
    {'=', "equal", shiftMask},
    {'>', "greater", shiftMask},
    {'?', "question", shiftMask},
    {'^', "asciicircum", shiftMask},
    {'_', "underscore", shiftMask},
    {'@', "at", levelThreeMask},
    {'[', "bracketleft", levelThreeMask},
    {'\\', "backslash", levelThreeMask},
    {']', "bracketright", levelThreeMask},
    {'{', "braceleft", levelThreeMask},
    {'|', "bar", levelThreeMask},
    {'}', "braceright", levelThreeMask},
    {'~', "asciitilde", levelThreeMask},
};

QString nameBeyondAscii(const QString& str, ushort character) {
  const QByteArray text = str.toUtf8();
  for (const KeySymbol* row = key_symbols; *row->name; ++row) {
    if (text == row->character) {
      return QString::fromLatin1(row->name);
    }
  }
  return character > 256 ? QLatin1Char('U') + QStringLiteral("%1").arg(character, 4, 16, QLatin1Char('0')).toUpper()
                         : QString();
}

}  // namespace

KeySym XStringToKeysymEx(const QString& str, int* state) {
  if (str.isEmpty()) {
    return 0;
  }
  const ushort character = str.at(0).unicode();
  const auto* const direct =
      std::find_if(std::begin(directSymbols), std::end(directSymbols),
                   [character](const DirectSymbol& symbol) { return symbol.character == character; });
  QString name = str;
  if (direct != std::end(directSymbols)) {
    name = QString::fromLatin1(direct->name);
    if (direct->mask != noMask) {
      *state = direct->mask;
    }
  } else if (character >= 128) {
    name = nameBeyondAscii(str, character);
  }
  const KeySym symbol = XStringToKeysym(name.toLatin1().constData());
  if (symbol) {
    return symbol;
  }
  return XKeysymToString(character) ? character : 0;
}

}  // namespace Corvex
