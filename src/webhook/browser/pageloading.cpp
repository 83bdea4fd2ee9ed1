#include "webhook/browser/pageloading.h"

namespace Corvex::Webhook {

void PageLoading::expect(const QString& document) {
  m_expected = document;
  check();
}

void PageLoading::noteSameDocument() {
  m_sameDocument = true;
  check();
}

void PageLoading::noteDocument(const QString& document) {
  m_documents.append(document);
  check();
}

void PageLoading::noteLoaded(const QString& document) {
  m_loaded.insert(document);
  check();
}

void PageLoading::fail(const QString& error) {
  if (isComplete()) {
    return;
  }
  m_error = error;
  complete();
}

void PageLoading::check() {
  if (!m_expected) {
    return;
  }
  const bool there = m_expected->isEmpty() ? m_sameDocument
                                           : m_documents.contains(*m_expected) && m_loaded.contains(m_documents.last());
  if (there) {
    complete();
  }
}

}  // namespace Corvex::Webhook
