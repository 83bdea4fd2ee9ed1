#include "wrappers/web/setup/getjscode.h"

#include <QDir>
#include <QFile>
#include <QStringList>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "corvexhook/inspector.h"
#include "hookfragments.h"
#include "shared/environment.h"
#include "wrappers/web/setup/wrapperconfig.h"

namespace Corvex {
namespace WebWrapper {

namespace {

/// The fragments as one buffer, which is built once and kept for the life of the process.
const char* get_jscode() {
  static const char* const* const codeFragments = hookFragments;
  static char* code = nullptr;
  if (code) {
    return code;
  }

  std::size_t length = 0;
  for (auto fragment = codeFragments; *fragment; ++fragment) {
    length += std::strlen(*fragment);
  }
  code = static_cast<char*>(std::malloc(length + 1));
  char* end = code;
  for (auto fragment = codeFragments; *fragment; ++fragment) {
    end = stpcpy(end, *fragment);
  }
  *end = '\0';
  return code;
}

QString readExtension(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    std::fprintf(stderr, "Failed to read JavaScript extension: %s\n", qPrintable(path));
    return QString();
  }
  return QString::fromUtf8(file.readAll());
}

QStringList readExtensions() {
  const QDir directory(corvexPrefix() + QStringLiteral("/lib/extensions/web"));
  const auto names =
      directory.entryList({QStringLiteral("*.js")}, QDir::Files | QDir::CaseSensitive, QDir::Name | QDir::IgnoreCase);
  QStringList texts;
  for (const QString& name : names) {
    texts.append(readExtension(directory.absoluteFilePath(name)));
  }
  return texts;
}

QString xpathText(int index) {
  return QString::fromUtf8(hookXPathTexts[index].text, static_cast<int>(hookXPathTexts[index].length));
}

}  // namespace

QString getJSCode(const WrapperConfig& config) {
  const QChar newline = QLatin1Char('\n');
  QString text = QString::fromUtf8(get_jscode());
  text += newline + readExtensions().join(newline) + newline;
  text += newline + Inspector::self()->extensionCode() + newline;
  text += newline + xpathText(0) + newline + xpathText(1);
  text += QStringLiteral("\ntop.__corvex__xpath__caseInSensitiveMatching = %1;")
              .arg(config.caseInsensitiveXPathNodeNameMatching() ? 1 : 0);
  return text;
}

QString getCorvexJsNamespaceInitCode() {
  static const QString corvexJsNamespaceCode = QString::fromUtf8(hookPrelude);
  return corvexJsNamespaceCode;
}

}  // namespace WebWrapper
}  // namespace Corvex
