#pragma once

#include "scripting/scriptfunction.h"
#include "scripting/scriptlistener.h"
#include "webhook/browser/browsersession.h"
#include "webhook/endpoint/endpoint.h"
#include "webhook/pages/browserwindows.h"
#include "webhook/pages/dialogs.h"
#include "webhook/pages/messagedispatcher.h"
#include "webhook/pages/webmodel.h"
#include "webhook/process/temporarydirectory.h"
#include "webhook/run/browserservices.h"
#include "webhook/run/hiddenscreen.h"
#include "webhook/run/inputsettings.h"
#include "wrappers/web/setup/wrapperconfig.h"

#include <QString>

#include <functional>
#include <memory>

namespace Corvex::WebWrapper {
class EventLogger;
}

namespace Corvex::Webhook {

/// The browser of a run of test scripts: started by the script's `startBrowser`, gone when the script has ended.
class BrowserControl : public Scripting::ScriptListener {
public:
  explicit BrowserControl(const SessionOptions& options, const InputSettings& input = {},
                          const QVector<Credentials>& credentials = {});
  ~BrowserControl() override;

  /// Starts a browser, in place of one that runs, and opens a page in it. A dialog of the page that keeps it from being
  /// loaded is no error: the script is to answer it.
  QString startBrowser(const QString& address);
  /// Has the current window go to a page; the rest is as with `startBrowser`.
  QString openUrl(const QString& address);
  QString reload();
  /// See `BrowserPage::goThroughHistory`.
  QString goThroughHistory(int steps);
  /// Lets the page of the last of these load to its end if a dialog held it, as far as its next dialog.
  void finishLoad();
  /// What servers are told that ask for a user and a password, by this script's browsers. Those that were set before
  /// for the same origin go.
  void addCredentials(const Credentials& credentials);
  /// Closes the current window.
  QString closeWindow();
  void closeBrowser();

  /// Has what happens in pages of the next browser told to this logger; borrowed.
  void recordWith(WebWrapper::EventLogger* logger) { m_logger = logger; }
  /// Has this logger told of the objects that are picked in pages of the next browser; borrowed.
  void pickWith(WebWrapper::EventLogger* logger) { m_pickLogger = logger; }

  /// Null when no browser runs.
  BrowserWindows* windows() const { return m_windows.get(); }
  Dialogs* dialogs() const { return m_dialogs.get(); }
  MessageDispatcher* dispatcher() const { return m_dispatcher.get(); }
  BrowserSession* session() const { return m_session.get(); }

  // Sentences that are empty when all is well.
  QString whyLost() const;
  QString whyNoWindow() const;
  /// Why no window of the browser can be on the screen.
  QString whyNoScreen() const;
  /// Of the current window, or of another one.
  QString whyNotAskPage(Connection* window = nullptr) const;
  /// Whether, at any time but in attempts at scripts that ran again, a browser could not be started or was lost.
  bool hadBrowserFailure() const { return m_browserFailure; }

  /// For the running script; the next one begins with those of the run.
  InputSettings& input() { return m_input; }

  /// Whether an error that a page did not catch is a failed check of the script.
  void setFailOnPageError(bool isWanted) { m_failsOnPageError = isWanted; }
  /// Whether what pages write to their consoles is news, too.
  void setTellsConsole(bool isWanted) { m_tellsConsole = isWanted; }
  /// Told of each browser that was started.
  void setBrowserStarted(const std::function<void(const BrowserSession&)>& told) { m_browserStarted = told; }
  /// The uncaught errors of pages, and what else they said, since the last call.
  std::vector<Scripting::HostNews> takeNews() { return std::exchange(m_news, {}); }

  /// A path as the running script means it: relative to its own folder.
  QString resolvePath(const QString& path) const;

  void scriptStarted(const QString& path) override;
  void scriptFinished(const Scripting::ScriptResult& result) override;

private:
  QString openSession();
  void watchConsole(BrowserPage* page);
  QString load(const std::function<QString(Connection&)>& go);
  QString resolveAddress(const QString& address) const;

  SessionOptions m_options;
  WebWrapper::FileSystemBasedConfig m_config;
  WebModel m_model;
  BrowserServices m_services;
  HiddenScreen m_hiddenScreen;
  /// Stays to the script's end, so that it can look at the files of a browser that is closed.
  std::unique_ptr<TemporaryDirectory> m_downloads;
  std::unique_ptr<BrowserSession> m_session;
  std::unique_ptr<MessageEndpoint> m_endpoint;
  std::unique_ptr<BrowserWindows> m_windows;
  std::unique_ptr<Dialogs> m_dialogs;
  std::unique_ptr<MessageDispatcher> m_dispatcher;
  WebWrapper::EventLogger* m_logger = nullptr;
  WebWrapper::EventLogger* m_pickLogger = nullptr;
  QString m_scriptFolder;
  QString m_lossReason;
  bool m_browserFailure = false;
  /// Before the running script began.
  bool m_hadBrowserFailure = false;
  bool m_loadIsHeld = false;
  InputSettings m_inputOfRun;
  InputSettings m_input;
  QVector<Credentials> m_credentialsOfRun;
  QVector<Credentials> m_credentials;
  bool m_failsOnPageError = false;
  bool m_tellsConsole = false;
  std::function<void(const BrowserSession&)> m_browserStarted;
  std::vector<Scripting::HostNews> m_news;
};

}  // namespace Corvex::Webhook
