#include "webhook/protocol/transport/pipetransport.h"

#include <fcntl.h>
#include <sys/socket.h>

#include <cerrno>
#include <cstring>

namespace Corvex::Webhook {

namespace {

constexpr char messageEnd = '\0';
constexpr int readSize = 64 * 1024;
constexpr int readsAtOnce = 64;  // then what came is delivered, and others have their turn

bool makePair(FileDescriptor* own, FileDescriptor* other) {
  int ends[2];
  if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) {
    return false;
  }
  *own = FileDescriptor(ends[0]);
  *other = FileDescriptor(ends[1]);
  return fcntl(own->get(), F_SETFL, O_NONBLOCK) == 0;
}

bool mayTryAgain(int error) { return error == EAGAIN || error == EWOULDBLOCK; }

QString reasonOf(int error) { return QString::fromLocal8Bit(std::strerror(error)); }

void disposeInsideItsSignal(std::unique_ptr<QSocketNotifier> notifier) {
  if (!notifier) {
    return;
  }
  notifier->setEnabled(false);
  notifier->disconnect();
  notifier.release()->deleteLater();
}

}  // namespace

std::unique_ptr<PipeTransport> PipeTransport::create(ChildEnds* childEnds) {
  FileDescriptor writeEnd;
  FileDescriptor readEnd;
  if (!makePair(&writeEnd, &childEnds->input) || !makePair(&readEnd, &childEnds->output)) {
    return nullptr;
  }
  return std::unique_ptr<PipeTransport>(new PipeTransport(std::move(writeEnd), std::move(readEnd)));
}

PipeTransport::PipeTransport(FileDescriptor writeEnd, FileDescriptor readEnd)
    : m_writeEnd(std::move(writeEnd)),
      m_readEnd(std::move(readEnd)),
      m_writable(std::make_unique<QSocketNotifier>(m_writeEnd.get(), QSocketNotifier::Write)),
      m_readable(std::make_unique<QSocketNotifier>(m_readEnd.get(), QSocketNotifier::Read)),
      m_readBuffer(readSize, Qt::Uninitialized) {
  m_writable->setEnabled(false);
  connect(m_writable.get(), &QSocketNotifier::activated, this, &PipeTransport::writePending);
  connect(m_readable.get(), &QSocketNotifier::activated, this, &PipeTransport::readAvailable);
}

PipeTransport::~PipeTransport() { close(); }

void PipeTransport::send(const QByteArray& message) {
  if (!m_writeEnd.isValid()) {
    return;
  }
  m_outgoing.append(message).append(messageEnd);
  writePending();
}

void PipeTransport::close() {
  disposeInsideItsSignal(std::move(m_writable));
  disposeInsideItsSignal(std::move(m_readable));
  m_writeEnd.close();
  m_readEnd.close();
  discardInbox();
}

void PipeTransport::writePending() {
  while (m_outgoingStart < m_outgoing.size()) {
    const ssize_t written = ::send(m_writeEnd.get(), m_outgoing.constData() + m_outgoingStart,
                                   size_t(m_outgoing.size() - m_outgoingStart), MSG_NOSIGNAL);
    if (written < 0 && errno == EINTR) {
      continue;
    }
    if (written < 0 && mayTryAgain(errno)) {
      return m_writable->setEnabled(true);
    }
    if (written < 0) {
      // The reading side reports the end, after the messages that came before it.
      m_outgoingStart = m_outgoing.size();
      break;
    }
    m_outgoingStart += int(written);
  }
  m_writable->setEnabled(false);
  m_outgoing.resize(0);
  m_outgoingStart = 0;
}

void PipeTransport::readAvailable() {
  for (int reads = 0; reads < readsAtOnce; ++reads) {
    const ssize_t count = ::read(m_readEnd.get(), m_readBuffer.data(), size_t(m_readBuffer.size()));
    if (count < 0 && errno == EINTR) {
      continue;
    }
    if (count < 0 && !mayTryAgain(errno)) {
      lose(reasonOf(errno));
    }
    if (count == 0) {
      lose(QStringLiteral("its debugging pipe was closed"));
    }
    if (count > 0) {
      m_incoming.append(m_readBuffer.constData(), int(count));
    }
    if (count < m_readBuffer.size()) {
      break;
    }
  }
  splitMessages();
  if (m_incoming.size() > messageLimit) {
    lose(tooLong());
    m_incoming.clear();
  }
  deliver();
}

void PipeTransport::splitMessages() {
  int start = 0;
  int end = m_incoming.indexOf(messageEnd, m_searchedUpTo);
  while (end >= 0) {
    enqueue(m_incoming.mid(start, end - start));
    start = end + 1;
    end = m_incoming.indexOf(messageEnd, start);
  }
  m_incoming.remove(0, start);
  m_searchedUpTo = m_incoming.size();
}

void PipeTransport::lose(const QString& reason) {
  m_readable->setEnabled(false);
  noteClosed(reason);
}

}  // namespace Corvex::Webhook
