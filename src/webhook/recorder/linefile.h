#pragma once

#include <QFile>
#include <QString>

#include <vector>

namespace Corvex::Webhook {

/// A text file that is written line by line. What was written is in the file, whatever becomes of this program.
class LineFile {
public:
  enum Mode { Replace, Append };

  LineFile() = default;
  /// Removes a file that was made here if nothing was written to it.
  ~LineFile();

  /// Answers why the file cannot be written. What it holds is only replaced by the first line; to append to a file
  /// whose last line is not ended ends that.
  QString open(const QString& path, Mode mode);
  bool isOpen() const { return m_file.isOpen(); }
  QString path() const { return m_file.fileName(); }

  /// Adds a line, which has no line break. Answers why it could not be written; the file is as it was then.
  QString write(const QString& line);
  /// Removes the last line that was written here and is still there. Answers why it could not.
  QString takeBackLast();

private:
  Q_DISABLE_COPY(LineFile)

  QString failure(const char* what) const;

  QFile m_file;
  bool m_isNew = false;
  bool m_replaces = false;
  /// Where the lines begin.
  std::vector<qint64> m_begins;
};

}  // namespace Corvex::Webhook
