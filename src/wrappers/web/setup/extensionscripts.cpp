#include "wrappers/web/setup/extensionscripts.h"

#include "shared/environment.h"
#include "shared/settings.h"
#include "shared/visibletext.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdio>

namespace Corvex::WebWrapper {

namespace {

const QString settingsGroup = QStringLiteral("Extensions");

QString readExtension(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    std::fprintf(stderr, "Failed to read JavaScript extension: %s\n", qUtf8Printable(visibleText(path)));
    return QString();
  }
  return QString::fromUtf8(file.readAll());
}

}  // namespace

std::vector<ExtensionScript> extensionScripts() {
  const QDir directory(corvexPrefix() + QStringLiteral("/lib/extensions/web"));
  const auto names =
      directory.entryList({QStringLiteral("*.js")}, QDir::Files | QDir::CaseSensitive, QDir::Name | QDir::IgnoreCase);
  const Settings global(corvexPrefix() + QStringLiteral("/etc"), QStringLiteral("webwrapper.ini"));
  const UserSettings user(UserSettingsType::WebWrapper);
  std::vector<ExtensionScript> scripts;
  for (const QString& name : names) {
    const QString key = QFileInfo(name).completeBaseName();
    if (!user.readBoolEntry(settingsGroup, key, global.readBoolEntry(settingsGroup, key, true))) {
      continue;
    }
    const QString path = directory.absoluteFilePath(name);
    scripts.push_back({path, readExtension(path)});
  }
  return scripts;
}

}  // namespace Corvex::WebWrapper
