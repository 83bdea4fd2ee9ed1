#pragma once

#include <cstddef>
#include <functional>
#include <utility>

namespace Corvex {

/// Intrusive reference-counted pointer. The count lives in the pointee, which offers `ref()` and `deref()`; the last
/// release deletes it through its virtual destructor. Not for use across threads.
template <typename T>
class SharedPtr {
public:
  SharedPtr() = default;
  SharedPtr(std::nullptr_t) {}
  SharedPtr(T* object) : m_object(object) { acquire(); }
  SharedPtr(const SharedPtr& other) : m_object(other.m_object) { acquire(); }
  SharedPtr(SharedPtr&& other) noexcept : m_object(std::exchange(other.m_object, nullptr)) {}
  ~SharedPtr() { release(); }

  SharedPtr& operator=(SharedPtr other) noexcept {
    std::swap(m_object, other.m_object);
    return *this;
  }

  T* get() const { return m_object; }
  T* operator->() const { return m_object; }
  T& operator*() const { return *m_object; }
  explicit operator bool() const { return m_object != nullptr; }

  friend bool operator==(const SharedPtr& a, const SharedPtr& b) { return a.m_object == b.m_object; }
  friend bool operator!=(const SharedPtr& a, const SharedPtr& b) { return a.m_object != b.m_object; }
  friend bool operator<(const SharedPtr& a, const SharedPtr& b) { return std::less<T*>()(a.m_object, b.m_object); }

private:
  void acquire() {
    if (m_object) {
      m_object->ref();
    }
  }
  void release() {
    if (m_object) {
      m_object->deref();
    }
  }

  T* m_object = nullptr;
};

}  // namespace Corvex
