#pragma once

#include <QString>

namespace Corvex::Webhook {

/// A directory that only this user can enter. It goes with this object, and with the program at the latest.
class TemporaryDirectory {
public:
  /// Makes "corvexweb-" and six letters in the machine's directory for temporary files. path() is empty on failure.
  TemporaryDirectory();
  ~TemporaryDirectory() { remove(); }
  TemporaryDirectory(const TemporaryDirectory&) = delete;
  TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

  QString path() const { return m_path; }
  QString filePath(const QString& name) const;

  void remove();

  /// Removes those of this user whose program was killed, and ends the processes that have `markName` with the path of
  /// one of them in their environment.
  static void removeAbandoned(const QString& markName);

private:
  QString m_path;
};

}  // namespace Corvex::Webhook
