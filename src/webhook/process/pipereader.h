#pragma once

#include <QByteArray>
#include <QSocketNotifier>
#include <functional>
#include <memory>

#include "webhook/process/filedescriptor.h"

namespace Corvex::Webhook {

/// Reads what a child writes into a pipe, while events are served.
class PipeReader : public QObject {
  Q_OBJECT

public:
  /// Makes the pipe, and puts its other end, which the child is to get, into `writeEnd`. `take` gets each piece that
  /// comes. Null when there is no pipe to be had; errno says why.
  static std::unique_ptr<PipeReader> create(const std::function<void(const QByteArray&)>& take,
                                            FileDescriptor* writeEnd);
  ~PipeReader() override;

  /// Takes what is in the pipe by now. Nobody who still writes keeps this from returning.
  void drain();
  /// Takes nothing any more.
  void close();

Q_SIGNALS:
  /// Nobody has the other end any more.
  void ended();

private:
  PipeReader(FileDescriptor readEnd, const std::function<void(const QByteArray&)>& take);
  /// Whether there may be more.
  bool readPiece();

  FileDescriptor m_readEnd;
  std::function<void(const QByteArray&)> m_take;
  std::unique_ptr<QSocketNotifier> m_notifier;
};

}  // namespace Corvex::Webhook
