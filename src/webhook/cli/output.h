#pragma once

#include <QString>

#include <cstdio>

namespace Corvex::Webhook {

inline void printTo(std::FILE* stream, const QString& text) {
  const QByteArray utf8 = text.toUtf8();
  std::fwrite(utf8.constData(), 1, static_cast<std::size_t>(utf8.size()), stream);
  std::fflush(stream);
}

inline void printOut(const QString& text) { printTo(stdout, text); }

inline void printError(const QString& text) { printTo(stderr, text); }

}  // namespace Corvex::Webhook
