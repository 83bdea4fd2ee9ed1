#include "webhook/process/temporarydirectory.h"

#include <QDir>
#include <QFile>
#include <string>

#include "webhook/process/claimeddirectory.h"
#include "webhook/process/cleanup.h"

namespace Corvex::Webhook {

namespace {

std::string pathTemplate() {
  return QFile::encodeName(QDir::tempPath() + QStringLiteral("/corvexweb-XXXXXX")).toStdString();
}

}  // namespace

TemporaryDirectory::TemporaryDirectory() {
  const std::string path = Cleanup::makeDirectory(pathTemplate());
  m_path = QFile::decodeName(QByteArray::fromStdString(path));
}

QString TemporaryDirectory::filePath(const QString& name) const { return m_path + QLatin1Char('/') + name; }

void TemporaryDirectory::removeAbandoned(const QString& markName) {
  removeAbandonedDirectories(pathTemplate(), markName.toStdString());
}

void TemporaryDirectory::remove() {
  if (m_path.isEmpty()) {
    return;
  }
  Cleanup::removeDirectory(QFile::encodeName(m_path).toStdString());
  m_path.clear();
}

}  // namespace Corvex::Webhook
