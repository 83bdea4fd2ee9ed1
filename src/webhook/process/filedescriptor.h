#pragma once

#include <unistd.h>

#include <utility>

namespace Corvex::Webhook {

/// Owner of one file descriptor; -1 stands for none.
class FileDescriptor {
public:
  FileDescriptor() = default;
  explicit FileDescriptor(int descriptor) : m_descriptor(descriptor) {}
  FileDescriptor(FileDescriptor&& other) noexcept : m_descriptor(std::exchange(other.m_descriptor, -1)) {}
  FileDescriptor& operator=(FileDescriptor&& other) noexcept {
    std::swap(m_descriptor, other.m_descriptor);
    return *this;
  }
  FileDescriptor(const FileDescriptor&) = delete;
  FileDescriptor& operator=(const FileDescriptor&) = delete;
  ~FileDescriptor() { close(); }

  bool isValid() const { return m_descriptor >= 0; }
  int get() const { return m_descriptor; }

  void close() {
    if (isValid()) {
      ::close(std::exchange(m_descriptor, -1));
    }
  }

private:
  int m_descriptor = -1;
};

}  // namespace Corvex::Webhook
