#include "scripting/scriptfile.h"

#include <QFile>
#include <QFileInfo>
#include <QJSValue>
#include <QRegularExpression>
#include <QUrl>
#include <algorithm>

namespace Corvex::Scripting {

ScriptFiles::ScriptFiles(const QString& path) : m_path(path), m_absolutePath(QFileInfo(path).absoluteFilePath()) {}

FunctionCallResult<QString> ScriptFiles::read(const QString& absolutePath) {
  using Result = FunctionCallResult<QString>;
  QFile file(absolutePath);
  if (QFileInfo(absolutePath).isDir()) {
    return Result::failure(QStringLiteral("Cannot read the script '%1': it is a directory. Give "
                                          "the path of a script file.")
                               .arg(shownPath(absolutePath)));
  }
  if (!file.open(QIODevice::ReadOnly)) {
    return Result::failure(QStringLiteral("Cannot read the script '%1': %2. Check the path.")
                               .arg(shownPath(absolutePath), file.errorString()));
  }
  QString text = QString::fromUtf8(file.readAll());
  m_lines.insert(absolutePath, text.split(QLatin1Char('\n')));
  if (text.startsWith(QLatin1String("#!"))) {
    text.replace(0, 2, QLatin1String("//"));
  }
  return Result::success(text);
}

QString ScriptFiles::sourceLine(const ScriptLocation& location) const {
  const QString path = QFileInfo(location.file).absoluteFilePath();
  return m_lines.value(path).value(location.line - 1).trimmed();
}

ScriptLocation ScriptFiles::locationOf(const QString& stack) const {
  static const QRegularExpression frame(QStringLiteral("@(file:.*):(\\d+)$"));
  for (const QString& line : stack.split(QLatin1Char('\n'))) {
    const QRegularExpressionMatch match = frame.match(line);
    const int number = match.captured(2).toInt();
    if (number < 1) {
      continue;
    }
    const QString path = QUrl(match.captured(1)).toLocalFile();
    // A script that ends too early is reported behind its last line.
    const int last = m_lines.value(path).size();
    return {shownPath(path), last > 0 ? std::min(number, last) : number};
  }
  return {m_path, 0};
}

QString ScriptFiles::shownPath(const QString& absolutePath) const {
  return absolutePath == m_absolutePath ? m_path : absolutePath;
}

QString thrownText(const QJSValue& thrown, const QHash<QString, QString>& memberErrors) {
  if (!thrown.isError()) {
    return QStringLiteral(
               "The script threw %1, which is no Error: use throw new "
               "Error(text) to see the line.")
        .arg(thrown.isString() ? QLatin1Char('\'') + thrown.toString() + QLatin1Char('\'') : thrown.toString());
  }
  const QString message = thrown.property(QStringLiteral("message")).toString();
  static const QRegularExpression noFunction(QStringLiteral("^Property '([^']*)' of object .* is not a function$"));
  const QRegularExpressionMatch match = noFunction.match(message);
  if (match.hasMatch()) {
    const QString property =
        QStringLiteral("'%1' is not a function: it is a property, use it without ().").arg(match.captured(1));
    return memberErrors.value(match.captured(1), property);
  }
  const QString name = thrown.property(QStringLiteral("name")).toString();
  return name == QLatin1String("Error") ? message : name + QLatin1String(": ") + message;
}

}  // namespace Corvex::Scripting
