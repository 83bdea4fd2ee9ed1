#pragma once

#include "webhook/browser/browsersession.h"
#include "webhook/endpoint/endpoint.h"
#include "webhook/pages/browserwindows.h"
#include "webhook/pages/webmodel.h"
#include "wrappers/web/setup/wrapperconfig.h"

#include <QString>

#include <memory>

namespace CorvexBench {

/// A browser with one hooked page whose messages go to an endpoint, as when a script runs.
class HookedPage {
public:
  /// The error says why there is none. A page that is recorded tells of what happens in it.
  QString start(const Corvex::Webhook::SessionOptions& options, bool isRecorded = false);

  Corvex::Webhook::Connection& connection() { return *m_windows->current(); }
  Corvex::Webhook::BrowserWindows& windows() { return *m_windows; }
  Corvex::Webhook::MessageEndpoint& endpoint() { return m_endpoint; }

private:
  Corvex::WebWrapper::MemoryBasedConfig m_config;
  Corvex::Webhook::WebModel m_model;
  Corvex::Webhook::MessageEndpoint m_endpoint;
  std::unique_ptr<Corvex::Webhook::BrowserSession> m_session;
  std::unique_ptr<Corvex::Webhook::BrowserWindows> m_windows;
};

}  // namespace CorvexBench
