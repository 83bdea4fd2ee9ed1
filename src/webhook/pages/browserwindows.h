#pragma once

#include "webhook/browser/browsersession.h"
#include "webhook/pages/connection.h"
#include "webhook/pages/webmodel.h"

#include <QObject>
#include <QVector>

#include <memory>
#include <vector>

namespace Corvex::Webhook {

/// The pages of a browser session, each with a connection of its own, opened and closed at any time. Where the
/// configuration leaves new windows to the page, only the first page is here, and hooks the windows that it opens.
class BrowserWindows : public QObject {
  Q_OBJECT

public:
  /// All three outlive this object.
  /// Pages send their messages to `messagePort`; with "" they keep them in the queue of their session.
  BrowserWindows(BrowserSession& session, const WebWrapper::WrapperConfig& config, WebModel& model,
                 const QString& messagePort = {});
  ~BrowserWindows() override;

  /// Hooks the first page, and every page that opens from now on.
  QString open();

  /// Where lookups start; null when no window is open.
  Connection* current() const;
  void setCurrent(Connection* connection);
  /// The open ones, oldest first.
  QVector<Connection*> connections() const;
  bool opensNativeDialogs() const { return m_identity.opensNativeDialogs(); }

Q_SIGNALS:
  /// A page shows another document, or is about to.
  void documentExpected(const QString& url);

private:
  void addPage(BrowserPage* page);
  void noteClosed(Connection* connection);

  BrowserSession& m_session;
  const WebWrapper::WrapperConfig& m_config;
  WebModel& m_model;
  BrowserIdentity m_identity;
  // Closed ones too: calls through them may be under way.
  std::vector<std::unique_ptr<Connection>> m_connections;
};

}  // namespace Corvex::Webhook
