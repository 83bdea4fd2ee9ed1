#include "webhook/cli/lastfailed.h"

#include "shared/textfile.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <QStandardPaths>

namespace Corvex::Webhook {

namespace {

const int mostScripts = 10000;
const int mostFiles = 200;

const QString folderKey = QStringLiteral("folder");
const QString failedKey = QStringLiteral("failed");

QString absolutePath(const QString& path) { return QDir::cleanPath(QFileInfo(path).absoluteFilePath()); }

/// Of folders in which nobody runs scripts any more.
void removeOldest(const QDir& folder) {
  const QFileInfoList files = folder.entryInfoList({QStringLiteral("*.json")}, QDir::Files, QDir::Time);
  for (int i = mostFiles; i < files.size(); ++i) {
    QFile::remove(files.at(i).filePath());
  }
}

}  // namespace

LastFailed::LastFailed() {
  const QByteArray key = QCryptographicHash::hash(QDir::currentPath().toUtf8(), QCryptographicHash::Sha256).toHex();
  m_file = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
           QStringLiteral("/corvexweb/last-failed/%1.json").arg(QString::fromLatin1(key.left(32)));
}

QString LastFailed::read() {
  m_failed.clear();
  if (!QFileInfo::exists(m_file)) {
    return QString();
  }
  const FunctionCallResult<QString> text = readTextFile(m_file);
  if (text.failed()) {
    return QStringLiteral("Which scripts failed last cannot be read from '%1': %2.").arg(m_file, text.error);
  }
  const QJsonObject noted = QJsonDocument::fromJson(text.value.toUtf8()).object();
  if (!noted.value(failedKey).isArray()) {
    return QStringLiteral("Which scripts failed last cannot be read from '%1': it is damaged.").arg(m_file);
  }
  for (const QJsonValue& path : noted.value(failedKey).toArray()) {
    if (m_failed.size() < mostScripts && QFileInfo(path.toString()).isFile()) {
      m_failed.insert(path.toString());
    }
  }
  return QString();
}

bool LastFailed::contains(const QString& path) const { return m_failed.contains(absolutePath(path)); }

QString LastFailed::save() const {
  if (m_failed.isEmpty()) {
    return !QFileInfo::exists(m_file) || QFile::remove(m_file)
               ? QString()
               : QStringLiteral("The file '%1', which notes the scripts that failed last, cannot be removed.")
                     .arg(m_file);
  }
  const QDir folder = QFileInfo(m_file).dir();
  folder.mkpath(QStringLiteral("."));
  QStringList paths = m_failed.values();
  paths.sort();
  const QJsonObject noted{{folderKey, QDir::currentPath()},
                          {failedKey, QJsonArray::fromStringList(paths.mid(0, mostScripts))}};
  QSaveFile file(m_file);
  if (!file.open(QIODevice::WriteOnly) || file.write(QJsonDocument(noted).toJson()) < 0 || !file.commit()) {
    return QStringLiteral("The scripts that failed cannot be noted in '%1' for --last-failed: %2.")
        .arg(m_file, file.errorString());
  }
  removeOldest(folder);
  return QString();
}

void LastFailed::scriptFinished(const Scripting::ScriptResult& result) {
  if (result.interrupted) {
    return;
  }
  if (result.whole().passed()) {
    m_failed.remove(absolutePath(result.path));
  } else {
    m_failed.insert(absolutePath(result.path));
  }
}

}  // namespace Corvex::Webhook
