#include "wrappers/web/setup/getjscode.h"

#include <QStringList>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "corvexhook/inspector.h"
#include "hookfragments.h"
#include "wrappers/web/setup/extensionscripts.h"
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

QString xpathText(int index) {
  return QString::fromUtf8(hookXPathTexts[index].text, static_cast<int>(hookXPathTexts[index].length));
}

}  // namespace

QString getJSCode(const WrapperConfig& config) {
  QStringList extensions;
  for (const ExtensionScript& script : extensionScripts()) {
    extensions.append(script.text);
  }
  return getJSCode(config, extensions);
}

QString getJSCode(const WrapperConfig& config, const QStringList& extensions) {
  const QChar newline = QLatin1Char('\n');
  QString text = QString::fromUtf8(get_jscode());
  text += newline + extensions.join(newline) + newline;
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
