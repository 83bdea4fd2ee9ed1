#include "scripting/report/terminal.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <QtGlobal>

namespace Corvex::Scripting {

namespace {

const int usualWidth = 80;

// From Hangul on there are wide characters; halves of pairs are taken for one each.
const ushort firstWide = 0x1100;

}  // namespace

bool isCapableTerminal(std::FILE* stream) {
  const QByteArray kind = qgetenv("TERM");
  return isatty(fileno(stream)) && !kind.isEmpty() && kind != "dumb";
}

int terminalWidth(std::FILE* stream) {
  winsize size = {};
  return ioctl(fileno(stream), TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : usualWidth;
}

QString cutToWidth(const QString& text, int width) {
  int columns = 0;
  for (int i = 0; i < text.size(); ++i) {
    columns += text.at(i).unicode() < firstWide ? 1 : 2;
    if (columns > width) {
      return text.left(text.at(i).isLowSurrogate() ? i - 1 : i);
    }
  }
  return text;
}

}  // namespace Corvex::Scripting
