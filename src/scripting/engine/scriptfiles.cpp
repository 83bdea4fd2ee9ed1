#include "scripting/engine/scriptfiles.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QUrl>
#include <algorithm>

#include "scripting/testfunctions.h"
#include "shared/textfile.h"

namespace Corvex::Scripting {

namespace {

/// Empty for what the engine writes where there is no name: the text of a file itself has "%entry".
QString functionName(const QString& inStack) {
  static const QRegularExpression name(QStringLiteral("^[\\w$]+$"), QRegularExpression::UseUnicodePropertiesOption);
  return name.match(inStack).hasMatch() ? inStack : QString();
}

}  // namespace

ScriptFiles::ScriptFiles(const QString& path) : m_path(path), m_absolutePath(QFileInfo(path).absoluteFilePath()) {}

FunctionCallResult<QString> ScriptFiles::read(const QString& absolutePath) {
  FunctionCallResult<QString> text = readTextFile(absolutePath);
  if (text.failed()) {
    return FunctionCallResult<QString>::failure(
        QStringLiteral("Cannot read the script '%1': %2. Give the path of a script, which is a text file in UTF-8.")
            .arg(shownPath(absolutePath), text.error));
  }
  m_declared += declaredFunctions(text.value);
  m_lines.insert(absolutePath, text.value.split(QLatin1Char('\n')));
  if (text.value.startsWith(QLatin1String("#!"))) {
    text.value.replace(0, 2, QLatin1String("//"));
  }
  return text;
}

QString ScriptFiles::folder() const { return QFileInfo(m_absolutePath).path(); }

QStringList ScriptFiles::inOrderOfDeclaration(const QStringList& functions) const {
  QHash<QString, int> places;
  for (int i = m_declared.size() - 1; i >= 0; --i) {
    places.insert(m_declared.at(i), i);
  }
  const auto placeOf = [&](const QString& name) { return places.value(name, m_declared.size()); };
  QStringList sorted = functions;
  std::stable_sort(sorted.begin(), sorted.end(),
                   [&](const QString& a, const QString& b) { return placeOf(a) < placeOf(b); });
  return sorted;
}

ScriptTrace ScriptFiles::traceOf(const QString& stack) const {
  ScriptTrace trace;
  for (const Place& place : placesOf(stack)) {
    const ScriptLocation location{shownPath(place.absolutePath), place.line, place.function, lineAt(place).trimmed()};
    if (trace.empty() || trace.back().text() != location.text()) {
      trace.push_back(location);
    } else if (trace.back().function.isEmpty()) {
      trace.back().function = location.function;
    }
  }
  return trace.empty() ? ScriptTrace{{m_path, 0, QString(), QString()}} : trace;
}

bool ScriptFiles::callsMember(const QString& stack, const QString& name) const {
  const std::vector<Place> places = placesOf(stack);
  if (places.empty()) {
    return false;
  }
  const QRegularExpression use(QStringLiteral("\\.\\s*%1\\b(\\s*\\()?").arg(QRegularExpression::escape(name)));
  QRegularExpressionMatchIterator uses = use.globalMatch(lineAt(places.front()));
  bool calls = uses.hasNext();
  while (uses.hasNext()) {
    calls = uses.next().capturedLength(1) > 0 && calls;
  }
  return calls;
}

std::vector<ScriptFiles::Place> ScriptFiles::placesOf(const QString& stack) const {
  static const QRegularExpression frame(QStringLiteral("^([^@]*)@(file:.*):(\\d+)$"));
  std::vector<Place> places;
  for (const QString& call : stack.split(QLatin1Char('\n'))) {
    const QRegularExpressionMatch match = frame.match(call);
    const int line = match.captured(3).toInt();
    if (line > 0) {
      const QString path = QUrl(match.captured(2)).toLocalFile();
      // A script that ends too early is reported after its last line.
      const int last = m_lines.value(path).size();
      places.push_back({path, last > 0 ? std::min(line, last) : line, functionName(match.captured(1))});
    }
  }
  return places;
}

QString ScriptFiles::lineAt(const Place& place) const {
  return m_lines.value(place.absolutePath).value(place.line - 1);
}

QString ScriptFiles::shownPath(const QString& absolutePath) const {
  return absolutePath == m_absolutePath ? m_path : absolutePath;
}

}  // namespace Corvex::Scripting
