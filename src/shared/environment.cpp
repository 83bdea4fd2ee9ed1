#include "shared/environment.h"

#include <QDir>

namespace Corvex {

QString environmentVariable(const char* name) { return qEnvironmentVariable(name); }

QString corvexPrefix() { return environmentVariable("CORVEX_PREFIX"); }

QString expandEnvironmentVariables(const QString& text) {
  QString result;
  int position = 0;
  while (position < text.size()) {
    const int dollar = text.indexOf(QLatin1Char('$'), position);
    if (dollar < 0) {
      break;
    }
    result += text.midRef(position, dollar - position);
    const QChar next = dollar + 1 < text.size() ? text.at(dollar + 1) : QChar();
    const int closing = next == QLatin1Char('(') ? text.indexOf(QLatin1Char(')'), dollar + 2) : -1;
    if (closing >= 0) {
      const QString value = environmentVariable(text.mid(dollar + 2, closing - dollar - 2).toLocal8Bit().constData());
      result += value.isEmpty() ? text.mid(dollar, closing + 1 - dollar) : value;
      position = closing + 1;
    } else {
      result += QLatin1Char('$');
      position = dollar + (next == QLatin1Char('$') ? 2 : 1);
    }
  }
  result += text.midRef(position);
  return result;
}

QString corvexSettingsDir() {
  QString directory = environmentVariable("CORVEX_USER_SETTINGS_DIR");
  if (directory.isEmpty()) {
    directory = QDir::homePath() + QStringLiteral("/.corvex");
  }
  QDir().mkpath(directory);
  return directory;
}

QString userSettingsDir() { return corvexSettingsDir() + QStringLiteral("/ver1"); }

QString settingsDir() { return QDir::homePath(); }

}  // namespace Corvex
