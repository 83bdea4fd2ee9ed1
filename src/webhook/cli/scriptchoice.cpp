#include "webhook/cli/scriptchoice.h"

#include "scripting/testfunctions.h"
#include "shared/textfile.h"
#include "shared/visibletext.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

namespace Corvex::Webhook {

namespace {

using Scripting::ScriptChoice;
using Choice = FunctionCallResult<std::vector<ScriptChoice>>;

struct Script {
  QString path;
  /// What filters see of the path.
  QString shortPath;
};

bool isForSourcing(const QFileInfo& file) {
  const QString name = file.fileName();
  return name.startsWith(QLatin1Char('_')) ||
         (file.isDir() && (name == QLatin1String("lib") || name == QLatin1String("node_modules")));
}

/// Hidden files are not listed, and links to folders are not followed, so that this ends.
void addScriptsBelow(const QString& folder, const QString& shortFolder, std::vector<Script>* scripts) {
  const QFileInfoList entries = QDir(folder).entryInfoList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
  for (const QFileInfo& entry : entries) {
    const QString path = QDir::cleanPath(folder + QLatin1Char('/') + entry.fileName());
    const QString shortPath = shortFolder + entry.fileName();
    if (isForSourcing(entry)) {
      continue;
    }
    if (entry.isDir() && !entry.isSymLink()) {
      addScriptsBelow(path, shortPath + QLatin1Char('/'), scripts);
    } else if (entry.isFile() && entry.suffix() == QLatin1String("js")) {
      scripts->push_back({path, shortPath});
    }
  }
}

/// The error, or an empty text.
QString addScripts(const QString& path, std::vector<Script>* scripts) {
  const QFileInfo file(path);
  if (file.isDir()) {
    const std::size_t before = scripts->size();
    addScriptsBelow(path, QString(), scripts);
    return scripts->size() > before
               ? QString()
               : QStringLiteral(
                     "The folder '%1' holds no scripts: files that end in .js, whose names and folders do "
                     "not begin with '_', outside of folders named lib.")
                     .arg(path);
  }
  scripts->push_back({path, path});
  return file.isFile() && file.isReadable()
             ? QString()
             : QStringLiteral("The script '%1' %2.")
                   .arg(path, file.exists() ? QStringLiteral("cannot be read") : QStringLiteral("does not exist"));
}

QRegularExpression patternOf(const QString& filter) {
  QString pattern = QRegularExpression::escape(filter);
  if (filter.contains(QLatin1Char('*')) || filter.contains(QLatin1Char('?'))) {
    pattern.replace(QLatin1String("\\*"), QLatin1String(".*")).replace(QLatin1String("\\?"), QLatin1String("."));
    pattern = QRegularExpression::anchoredPattern(pattern);
  }
  return QRegularExpression(pattern, QRegularExpression::CaseInsensitiveOption);
}

class Filters {
public:
  explicit Filters(const QStringList& filters) {
    std::transform(filters.begin(), filters.end(), std::back_inserter(m_patterns), patternOf);
  }

  bool fit(const QString& text) const {
    return std::any_of(m_patterns.begin(), m_patterns.end(),
                       [&text](const QRegularExpression& pattern) { return pattern.match(text).hasMatch(); });
  }

  bool fitScript(const Script& script) const {
    return m_patterns.empty() || fit(script.shortPath) || fit(QFileInfo(script.path).fileName()) ||
           fit(QFileInfo(script.path).completeBaseName());
  }

  QStringList fittingFunctions(const Script& script) const {
    const QStringList declared = Scripting::declaredTestFunctions(readTextFile(script.path).value);
    QStringList functions;
    std::copy_if(declared.begin(), declared.end(), std::back_inserter(functions),
                 [this](const QString& name) { return fit(name); });
    return functions;
  }

private:
  std::vector<QRegularExpression> m_patterns;
};

}  // namespace

Choice chooseScripts(const QStringList& paths, const QStringList& filterTexts) {
  std::vector<Script> scripts;
  for (const QString& path : paths) {
    const QString error = addScripts(path, &scripts);
    if (!error.isEmpty()) {
      return Choice::failure(error);
    }
  }
  const Filters filters(filterTexts);
  Choice choice;
  for (const Script& script : scripts) {
    const QStringList functions = filters.fitScript(script) ? QStringList() : filters.fittingFunctions(script);
    if (filters.fitScript(script) || !functions.isEmpty()) {
      choice.value.push_back({script.path, functions});
    }
  }
  return choice.value.empty() ? Choice::failure(QStringLiteral("No script and no test function fits --filter '%1'.")
                                                    .arg(filterTexts.join(QLatin1String("' or '"))))
                              : choice;
}

QString scriptList(const std::vector<ScriptChoice>& scripts) {
  QString list;
  for (const ScriptChoice& script : scripts) {
    list += visibleText(script.path, LineBreaks::Shown) + QLatin1Char('\n');
    const QStringList functions = script.functions.isEmpty()
                                      ? Scripting::declaredTestFunctions(readTextFile(script.path).value)
                                      : script.functions;
    for (const QString& name : functions) {
      list += QStringLiteral("  %1()\n").arg(visibleText(name));
    }
  }
  return list;
}

}  // namespace Corvex::Webhook
