#include "scripting/testfunctions.h"

#include <QRegularExpression>
#include <algorithm>
#include <iterator>

namespace Corvex::Scripting {

bool isTestFunction(const QString& name) {
  const QString prefix = QStringLiteral("test");
  return name == QLatin1String("main") ||
         (name.startsWith(prefix) && name.size() > prefix.size() && !name.at(prefix.size()).isLower());
}

QStringList declaredFunctions(const QString& text) {
  static const QRegularExpression declaration(
      QStringLiteral("^[ \\t]*function\\s+([\\w$]+)"),
      QRegularExpression::MultilineOption | QRegularExpression::UseUnicodePropertiesOption);
  QStringList names;
  for (auto matches = declaration.globalMatch(text); matches.hasNext();) {
    names << matches.next().captured(1);
  }
  names.removeDuplicates();
  return names;
}

QStringList declaredTestFunctions(const QString& text) {
  const QStringList declared = declaredFunctions(text);
  QStringList names;
  std::copy_if(declared.begin(), declared.end(), std::back_inserter(names), isTestFunction);
  return names;
}

}  // namespace Corvex::Scripting
