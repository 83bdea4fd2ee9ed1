#include "webhook/browser/pageloading.h"

namespace Corvex::Webhook {

void PageLoading::expect(const QString& document) {
  m_expected = document;
  check();
}

void PageLoading::expectAny(const std::function<bool(const QString& url)>& isMeantWithinDocument) {
  m_expectsAny = true;
  m_isMeantWithinDocument = isMeantWithinDocument;
  check();
}

void PageLoading::noteSameDocument(const QString& url) {
  m_sameDocument = true;
  m_isMeant = m_isMeant || (m_isMeantWithinDocument && m_isMeantWithinDocument(url));
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

void PageLoading::noteDownload(const QString& document) {
  m_downloads.insert(document);
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
  if (isThere()) {
    m_error = isComplete() ? m_error : m_errorOnceLoaded;
    complete();
  }
}

bool PageLoading::isThere() const {
  const bool isLoaded = !m_documents.isEmpty() && m_loaded.contains(m_documents.last());
  if (m_expectsAny) {
    return isLoaded || m_isMeant;
  }
  if (!m_expected) {
    return false;
  }
  if (m_downloads.contains(*m_expected)) {
    return true;
  }
  return m_expected->isEmpty() ? m_sameDocument : isLoaded && m_documents.contains(*m_expected);
}

}  // namespace Corvex::Webhook
