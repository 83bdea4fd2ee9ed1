#pragma once

#include <QString>

namespace Corvex::Webhook {

/// What a browser tells of a download.
struct DownloadNews {
  enum Kind { Begun, Finished, GivenUp };

  Kind kind = Begun;
  QString key;   ///< The download's, as the browser tells it from others; several may share one.
  QString url;   ///< Of one that began.
  QString name;  ///< Of one that began: the file's, as the page wants it.
  QString path;  ///< Of one that finished: its file; "" for one in the folder that has the key as its name.
};

}  // namespace Corvex::Webhook
