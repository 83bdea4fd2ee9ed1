#include "webhook/process/temporarydirectory.h"

#include <QDir>
#include <QFile>
#include <string>

#include "webhook/process/cleanup.h"

namespace Corvex::Webhook {

TemporaryDirectory::TemporaryDirectory() {
  const QString pathTemplate = QDir::tempPath() + QStringLiteral("/corvexweb-XXXXXX");
  const std::string path = Cleanup::makeDirectory(QFile::encodeName(pathTemplate).toStdString());
  m_path = QFile::decodeName(QByteArray::fromStdString(path));
}

QString TemporaryDirectory::filePath(const QString& name) const { return m_path + QLatin1Char('/') + name; }

void TemporaryDirectory::remove() {
  if (m_path.isEmpty()) {
    return;
  }
  Cleanup::removeDirectory(QFile::encodeName(m_path).toStdString());
  m_path.clear();
}

}  // namespace Corvex::Webhook
