#pragma once

#include <QSet>
#include <QStringList>
#include <optional>

#include "shared/wait.h"

namespace Corvex::Webhook {

/// Waits for the load event of a document, or of the one that takes its place before it is loaded. Takes the events in
/// any order, also before it is known which document is meant.
class PageLoading : public Pending {
public:
  /// The document that the navigation leads to; "" when it leads to another part of the one that is there.
  void expect(const QString& document);

  void noteSameDocument();
  void noteDocument(const QString& document);
  void noteLoaded(const QString& document);

  /// Ends it without the document.
  void fail(const QString& error);
  QString error() const { return m_error; }

private:
  void check();

  std::optional<QString> m_expected;
  bool m_sameDocument = false;
  QStringList m_documents;
  QSet<QString> m_loaded;
  QString m_error;
};

}  // namespace Corvex::Webhook
