#pragma once

#include <QString>
#include <QStringList>
#include <deque>
#include <optional>

#include "webhook/protocol/downloadnews.h"

namespace Corvex::Webhook {

/// A file that a page had the browser take.
struct Download {
  QString key;
  QString url;
  QString name;  ///< The one that the page wants, without what could lead out of a folder.
  QString path;
  qint64 size = 0;
  QString error;  ///< Why there is no file, "" when there is one.
};

/// The downloads of a browser, whose files lie in a folder of their own.
class Downloads {
public:
  /// The folder is there already, and its owner's to remove.
  explicit Downloads(const QString& folder) : m_folder(folder) {}

  /// Of very many that nobody takes the oldest ones are forgotten.
  void take(const DownloadNews& news);

  /// The one that ended first of those that were not given yet. Its file has a folder of its own.
  std::optional<Download> takeEnded();
  /// The names of those that have not ended.
  QStringList underWay() const;

  /// A name for a file, from one that anybody may have made up.
  static QString safeName(const QString& suggested);

private:
  void finish(Download& download, const QString& path) const;

  const QString m_folder;
  std::deque<Download> m_underWay;
  std::deque<Download> m_ended;
};

}  // namespace Corvex::Webhook
