#pragma once

#include <QTimer>
#include <functional>
#include <memory>

#include "webhook/browser/ownedbrowser.h"
#include "webhook/process/childprocess.h"
#include "webhook/process/temporarydirectory.h"

namespace Corvex::Webhook {

/// A browser that was started here, with its files, temporary ones and its output in a directory of its own.
class LaunchedBrowser : public OwnedBrowser {
  Q_OBJECT

public:
  struct Start {
    std::unique_ptr<LaunchedBrowser> browser;
    QString error;
  };
  /// Adds to the command what depends on the directory, and puts in there what the browser needs. False when there is
  /// no room.
  using Preparation = std::function<bool(const QString& directory, ChildCommand& command)>;

  /// Removes what killed runs left before.
  static Start start(const QString& program, bool headed, const Preparation& prepare);

  ~LaunchedBrowser() override { end(); }

  void end() override;
  qint64 process() const override { return m_process->pid(); }
  QString directory() const override { return m_path; }
  QString explanation() const override;

  /// What it wrote to its output, at most this much from its beginning. An output that grows is cut now and then.
  static constexpr int outputHead = 256 * 1024;
  QByteArray output() const;
  QString outputFile() const;

private:
  LaunchedBrowser(std::unique_ptr<TemporaryDirectory> directory, std::unique_ptr<ChildProcess> process, bool headed);
  void boundOutput();

  const std::unique_ptr<TemporaryDirectory> m_directory;
  const std::unique_ptr<ChildProcess> m_process;
  const QString m_path;
  const bool m_headed;
  QString m_lastWords;
  QTimer m_outputTimer;
};

}  // namespace Corvex::Webhook
