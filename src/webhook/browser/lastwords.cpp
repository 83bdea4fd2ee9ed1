#include "webhook/browser/lastwords.h"

#include <QRegularExpression>
#include <QStringList>

namespace Corvex::Webhook {

namespace {

constexpr int linesTold = 3;
constexpr int charactersTold = 300;

const char* const noise[] = {
    // Chromium's log, by level and by what no container has.
    "^\\[[^\\]]*:(INFO|WARNING|VERBOSE\\d*):",
    "^\\[[^\\]]*:ERROR:[^\\]]*(dbus|gpu|gl_|vaapi|viz|vulkan|audio|alsa|gcm|registration)",
    "^DevTools listening on",
    "^\\[[^\\]]*\\] *$",
    // A stack of addresses and registers.
    "^#\\d+ ",
    "^ *(r\\d+|rip|rsp|[a-z]{2,3}): [0-9a-f]{8}",
    "^\\[end of stack trace\\]",
    "^Calling _exit",
    // Firefox and its toolkit.
    "^\\*\\*\\* You are running in headless mode",
    "WebDriver BiDi listening on",
    "^\\(.*\\): G[A-Za-z-]+-(WARNING|CRITICAL|Message|INFO) ",
    "^(console\\.(warn|error|log|info|debug)|JavaScript (error|warning)|JavaScript strict)",
    "^\\[GFX1-\\]",
    "^\\[(Parent|Child|GPU|Socket|RDD|Utility)[ ,]",
    "^(ATTENTION|Crash Annotation|ExceptionHandler|Failed to open curl|glxtest|libEGL|MESA)",
};

bool isNoise(const QString& line) {
  static const QRegularExpression expression = [] {
    QStringList all;
    for (const char* pattern : noise) {
      all << QLatin1String(pattern);
    }
    return QRegularExpression(all.join(QLatin1Char('|')));
  }();
  return line.isEmpty() || expression.match(line).hasMatch();
}

}  // namespace

QString lastWords(const QByteArray& output) {
  static const QRegularExpression prefix(QStringLiteral("^\\[[^\\]]*:(FATAL|ERROR):[^\\]]*\\] *"));
  static const QRegularExpression unprintable(QStringLiteral("[^[:print:]]+"),
                                              QRegularExpression::UseUnicodePropertiesOption);
  QStringList told;
  const QStringList lines = QString::fromLocal8Bit(output).split(QLatin1Char('\n'));
  for (auto line = lines.crbegin(); line != lines.crend() && told.size() < linesTold; ++line) {
    QString text = line->simplified();
    if (!isNoise(text)) {
      told.prepend(text.remove(prefix).replace(unprintable, QStringLiteral("?")));
    }
  }
  return told.join(QLatin1Char(' ')).right(charactersTold);
}

}  // namespace Corvex::Webhook
