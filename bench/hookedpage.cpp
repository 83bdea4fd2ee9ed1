#include "hookedpage.h"

namespace CorvexBench {

using namespace Corvex::Webhook;

QString HookedPage::start(const SessionOptions& options, bool isRecorded) {
  BrowserSession::Start started = BrowserSession::start(options);
  if (!started.value) {
    return started.error;
  }
  m_session = std::move(started.value);
  QString error;
  m_endpoint.start(&error);
  if (!error.isEmpty()) {
    return error;
  }
  m_endpoint.setAllowedOrigins({QStringLiteral("null")});
  m_windows = std::make_unique<BrowserWindows>(*m_session, m_config, m_model, m_endpoint.place());
  if (isRecorded) {
    m_windows->recordPages();
  }
  return m_windows->open();
}

}  // namespace CorvexBench
