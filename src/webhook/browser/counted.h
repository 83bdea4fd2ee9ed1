#pragma once

#include <QPointer>

namespace Corvex::Webhook {

/// Counts a call as long as it runs, if its owner lives that long.
class Counted {
public:
  Counted(QObject* owner, int& count) : m_owner(owner), m_count(count) { ++m_count; }
  ~Counted() {
    if (m_owner) {
      --m_count;
    }
  }
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;

private:
  QPointer<QObject> m_owner;
  int& m_count;
};

}  // namespace Corvex::Webhook
