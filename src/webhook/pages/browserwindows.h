#pragma once

#include "webhook/browser/browsersession.h"
#include "webhook/pages/connection.h"
#include "webhook/pages/webmodel.h"

#include <QObject>
#include <QSet>
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

  /// For a browser whose protocol answers no dialogs; before `open`.
  void keepDialogsInPages() { m_identity.opensNativeDialogs = false; }

  /// Has pages tell of what happens in them; before `open`.
  void recordPages() { m_identity.isRecorded = true; }

  /// Hooks the first page, and every page that opens from now on.
  QString open();

  /// Where lookups start; null when no window is open.
  Connection* current() const;
  void setCurrent(Connection* connection);
  /// The open ones, oldest first.
  QVector<Connection*> connections() const;

  /// The sentence about the dialog that an open window shows, the current one's first; empty without one.
  QString whatIsShown() const;
  /// The sentence about the dialog that keeps a page from answering: its own, or that of another window whose page runs
  /// in the same process. A page beside a dialog is asked for a sign of life.
  QString whyNotAsk(Connection* connection) const;

Q_SIGNALS:
  /// A page shows another document, or is about to.
  void documentExpected(const QString& url);
  void dialogOpened(const Corvex::Webhook::Dialog& dialog);
  /// A window went, by itself or by somebody; those that are left know of it.
  void windowClosed(Corvex::Webhook::Connection* connection);

private:
  void addPage(BrowserPage* page);
  void noteClosed(Connection* connection);
  QString nameByAddress(const Connection* connection) const;
  QString dialogOf(Connection* connection, const QString& who) const;
  bool mayBeHeld(const Connection* connection) const;
  QString dialogOfAnother(const Connection* connection) const;

  BrowserSession& m_session;
  const WebWrapper::WrapperConfig& m_config;
  WebModel& m_model;
  BrowserIdentity m_identity;
  // Those that gave no sign of life when they were last asked for one.
  mutable QSet<const Connection*> m_silent;
  // Closed ones too: calls through them may be under way.
  std::vector<std::unique_ptr<Connection>> m_connections;
};

}  // namespace Corvex::Webhook
