#pragma once

#include <QSet>
#include <QStringList>
#include <functional>
#include <optional>

#include "shared/wait.h"

namespace Corvex::Webhook {

/// Waits for the load event of a document, or of the one that takes its place before it is loaded. Takes the events in
/// any order, also before it is known which document is meant.
class PageLoading : public Pending {
public:
  /// The document that the navigation leads to; "" when it leads to another part of the one that is there.
  void expect(const QString& document);

  /// Whichever document comes next. An answer of true takes another part of the one that is there, too.
  void expectAny(const std::function<bool(const QString& url)>& isMeantWithinDocument = {});
  bool expectsAny() const { return m_expectsAny; }

  void noteSameDocument(const QString& url = {});
  void noteDocument(const QString& document);
  void noteLoaded(const QString& document);
  /// What the navigation leads to became a file; that is no error.
  void noteDownload(const QString& document);

  /// The document that came is the browser's own, in place of the one that is waited for.
  void noteErrorPage(const QString& error) { m_errorOnceLoaded = error; }
  /// Ends it without the document.
  void fail(const QString& error);
  QString error() const { return m_error; }

private:
  void check();
  bool isThere() const;

  std::optional<QString> m_expected;
  bool m_expectsAny = false;
  std::function<bool(const QString& url)> m_isMeantWithinDocument;
  bool m_sameDocument = false;
  bool m_isMeant = false;
  QStringList m_documents;
  QSet<QString> m_loaded;
  QSet<QString> m_downloads;
  QString m_error;
  QString m_errorOnceLoaded;
};

}  // namespace Corvex::Webhook
