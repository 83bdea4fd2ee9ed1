#include "webhook/process/pipereader.h"

#include <fcntl.h>

#include <cerrno>

namespace Corvex::Webhook {

namespace {

constexpr int pieceSize = 64 * 1024;  // as much as a pipe holds
constexpr int mostPiecesOfDrain = 64;

}  // namespace

std::unique_ptr<PipeReader> PipeReader::create(const std::function<void(const QByteArray&)>& take,
                                               FileDescriptor* writeEnd) {
  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0) {
    return nullptr;
  }
  FileDescriptor readEnd(ends[0]);
  *writeEnd = FileDescriptor(ends[1]);
  if (fcntl(readEnd.get(), F_SETFL, O_NONBLOCK) != 0) {
    return nullptr;
  }
  return std::unique_ptr<PipeReader>(new PipeReader(std::move(readEnd), take));
}

PipeReader::PipeReader(FileDescriptor readEnd, const std::function<void(const QByteArray&)>& take)
    : m_readEnd(std::move(readEnd)),
      m_take(take),
      m_notifier(std::make_unique<QSocketNotifier>(m_readEnd.get(), QSocketNotifier::Read)) {
  connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] { readPiece(); });
}

PipeReader::~PipeReader() { close(); }

void PipeReader::drain() {
  for (int pieces = 0; pieces < mostPiecesOfDrain && readPiece(); ++pieces) {
  }
}

void PipeReader::close() {
  if (m_notifier) {
    m_notifier->setEnabled(false);
    m_notifier->disconnect();
    m_notifier.release()->deleteLater();  // this may run inside its own signal
  }
  m_readEnd.close();
}

bool PipeReader::readPiece() {
  if (!m_readEnd.isValid()) {
    return false;
  }
  QByteArray piece(pieceSize, Qt::Uninitialized);
  const ssize_t count = ::read(m_readEnd.get(), piece.data(), size_t(piece.size()));
  if (count < 0) {
    return errno == EINTR;
  }
  if (count == 0) {
    close();
    Q_EMIT ended();
    return false;
  }
  m_take(piece.left(int(count)));
  return true;
}

}  // namespace Corvex::Webhook
