#include "webhook/browser/downloads.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>

namespace Corvex::Webhook {

namespace {

constexpr size_t mostRemembered = 1000;
constexpr int longestName = 150;
constexpr int longestEnding = 20;

QString givenUp(const Download& download) {
  return QStringLiteral(
             "The download '%1' from '%2' broke off before its end. Look at the server, and whether the page or the "
             "script closed its window.")
      .arg(download.name, download.url);
}

QString unusable(const Download& download, const QString& path) {
  return QStringLiteral("The browser told of the download '%1' as the file '%2', which cannot be used. Try again.")
      .arg(download.name, path);
}

bool isUnfit(QChar character) {
  // Formatting characters can turn the order in which a name is shown.
  return character == QLatin1Char('/') || character == QLatin1Char('\\') || !character.isPrint() ||
         character.category() == QChar::Other_Format;
}

}  // namespace

QString Downloads::safeName(const QString& suggested) {
  QString name = suggested.trimmed();
  std::replace_if(name.begin(), name.end(), isUnfit, QLatin1Char('_'));
  if (name.startsWith(QLatin1Char('.'))) {
    name[0] = QLatin1Char('_');
  }
  // In bytes, as file systems count.
  const QString ending = name.section(QLatin1Char('.'), -1);
  const bool keepsEnding = name.contains(QLatin1Char('.')) && ending.size() <= longestEnding;
  const QString tail = keepsEnding ? QLatin1Char('.') + ending : QString();
  QString stem = name.chopped(tail.size());
  while ((stem + tail).toUtf8().size() > longestName) {
    stem.chop(stem.at(stem.size() - 1).isLowSurrogate() ? 2 : 1);
  }
  return stem.isEmpty() ? QStringLiteral("download") + tail : stem + tail;
}

void Downloads::take(const DownloadNews& news) {
  if (news.kind == DownloadNews::Begun) {
    m_underWay.push_back({news.key, news.url, safeName(news.name), {}, 0, {}});
    if (m_underWay.size() > mostRemembered) {
      m_underWay.pop_front();
    }
    return;
  }
  const auto found = std::find_if(m_underWay.begin(), m_underWay.end(),
                                  [&news](const Download& download) { return download.key == news.key; });
  if (found == m_underWay.end()) {
    return;
  }
  Download download = *found;
  m_underWay.erase(found);
  if (news.kind == DownloadNews::Finished) {
    finish(download, news.path.isEmpty() ? m_folder + QLatin1Char('/') + safeName(news.key) : news.path);
  } else {
    download.error = givenUp(download);
  }
  m_ended.push_back(download);
  if (m_ended.size() > mostRemembered) {
    QFile::remove(m_ended.front().path);
    m_ended.pop_front();
  }
}

void Downloads::finish(Download& download, const QString& path) const {
  const QDir folder(QDir(m_folder).canonicalPath());
  const QFileInfo file(path);
  int number = 1;
  while (folder.exists(QString::number(number))) {
    ++number;
  }
  const QString target = folder.filePath(QString::number(number)) + QLatin1Char('/') + download.name;
  const bool isOurs = !file.isSymLink() && file.isFile() && QFileInfo(file.canonicalFilePath()).dir() == folder;
  if (!isOurs || !folder.mkdir(QString::number(number)) || !QFile::rename(path, target)) {
    download.error = unusable(download, path);
    return;
  }
  download.path = target;
  download.size = QFileInfo(target).size();
}

std::optional<Download> Downloads::takeEnded() {
  if (m_ended.empty()) {
    return {};
  }
  const Download download = m_ended.front();
  m_ended.pop_front();
  return download;
}

QStringList Downloads::underWay() const {
  QStringList names;
  for (const Download& download : m_underWay) {
    names.append(download.name);
  }
  return names;
}

}  // namespace Corvex::Webhook
