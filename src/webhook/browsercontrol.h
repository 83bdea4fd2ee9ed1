#pragma once

#include "scripting/scriptfunction.h"
#include "scripting/scriptlistener.h"
#include "webhook/browsersession.h"
#include "webhook/connection.h"
#include "webhook/webmodel.h"
#include "wrappers/web/wrapperconfig.h"

#include <QString>

#include <memory>

namespace Corvex::Webhook {

/// The browser of a run of test scripts: started by the script's `startBrowser`, gone when the script has ended.
class BrowserControl : public Scripting::ScriptListener {
public:
  explicit BrowserControl(const SessionOptions& options);
  ~BrowserControl() override;

  /// The script functions that this class serves.
  Scripting::ScriptHost scriptHost();

  /// Starts a browser, in place of one that runs, and opens a page in it.
  QString startBrowser(const QString& address);
  QString closeWindow();
  void closeBrowser();

  /// Why nothing can be looked up now; empty when all is well.
  QString trouble() const;
  /// Whether, at any time, a browser could not be started or was lost.
  bool hadBrowserFailure() const { return m_browserFailure; }

  void scriptStarted(const QString& path) override;
  void scriptFinished(const Scripting::ScriptResult& result) override;

private:
  QString openSession();
  QString resolvePath(const QString& path) const;
  QString resolveAddress(const QString& address) const;
  void sleep(int milliseconds);

  SessionOptions m_options;
  WebWrapper::FileSystemBasedConfig m_config;
  WebModel m_model;
  std::unique_ptr<BrowserSession> m_session;
  std::unique_ptr<Connection> m_connection;
  QString m_scriptFolder;
  QString m_lossReason;
  bool m_browserFailure = false;
};

}  // namespace Corvex::Webhook
