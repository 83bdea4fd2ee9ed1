#pragma once

#include <QMap>
#include <QSocketNotifier>
#include <QString>
#include <QStringList>
#include <memory>
#include <optional>
#include <vector>

#include "webhook/process/filedescriptor.h"

namespace Corvex::Webhook {

struct ChildCommand {
  QString program;  ///< Full path.
  QStringList arguments;
  QMap<QString, QString> environment;  ///< Added to this program's own.
  QString markName;    ///< The entry of `environment` whose value no other process carries: it marks all descendants.
  QString outputFile;  ///< Takes standard output and error; standard input is empty.
  int outputDescriptor = -1;                     ///< Takes them in place of a file, if there is one.
  std::vector<std::pair<int, int>> descriptors;  ///< Own descriptor, and its number in the child (3 and upwards).
  /// It cleans up when it is asked to end, and gets a moment for that before it is killed.
  bool cleansUp = false;
};

/// How a process ended.
struct ChildEnd {
  std::optional<int> exitCode;
  int signal = 0;  ///< That ended it, without an exit code.

  /// "ended with exit code 1", "was ended by signal 9 (Killed)"
  QString text() const;
};

/// A child in a session and process group of its own that dies with this program, whatever ends it. Start it from the
/// main thread: the kernel ties its life to the thread that started it.
class ChildProcess : public QObject {
  Q_OBJECT

public:
  struct Start {
    std::unique_ptr<ChildProcess> process;
    QString error;  ///< Why there is no process.
  };
  static Start start(const ChildCommand& command);

  ~ChildProcess() override;

  qint64 pid() const { return m_pid; }

  /// How it ended; nothing as long as it runs, and after end().
  std::optional<ChildEnd> howEnded() const;

  /// Kills the process with all its descendants and reaps them. Nothing of them is left afterwards.
  void end();

Q_SIGNALS:
  /// The process ended by itself. Its descendants may live on until end() is called.
  void ended();

private:
  explicit ChildProcess(pid_t pid);

  pid_t m_pid;
  FileDescriptor m_endDescriptor;
  std::unique_ptr<QSocketNotifier> m_endNotifier;
};

}  // namespace Corvex::Webhook
