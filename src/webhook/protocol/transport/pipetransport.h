#pragma once

#include <QSocketNotifier>
#include <memory>

#include "webhook/process/filedescriptor.h"
#include "webhook/protocol/transport/transport.h"

namespace Corvex::Webhook {

/// Messages over a pair of stream sockets to a child process, each ended by a zero byte.
class PipeTransport : public Transport {
  Q_OBJECT

public:
  /// The ends that the child reads from and writes to, to be given to it and closed here.
  struct ChildEnds {
    FileDescriptor input;
    FileDescriptor output;
  };

  /// Makes both ends. Null when the machine gives no more descriptors.
  static std::unique_ptr<PipeTransport> create(ChildEnds* childEnds);

  ~PipeTransport() override;

  void send(const QByteArray& message) override;
  void close() override;

private:
  PipeTransport(FileDescriptor writeEnd, FileDescriptor readEnd);

  void writePending();
  void readAvailable();
  void splitMessages();
  void lose(const QString& reason);

  FileDescriptor m_writeEnd;
  FileDescriptor m_readEnd;
  std::unique_ptr<QSocketNotifier> m_writable;
  std::unique_ptr<QSocketNotifier> m_readable;
  QByteArray m_outgoing;
  int m_outgoingStart = 0;
  QByteArray m_readBuffer;
  QByteArray m_incoming;
  int m_searchedUpTo = 0;
};

}  // namespace Corvex::Webhook
