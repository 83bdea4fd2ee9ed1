#pragma once

#include <QString>
#include <memory>

namespace Corvex::Webhook {
class ChildProcess;
class TemporaryDirectory;
}  // namespace Corvex::Webhook

namespace TestSupport {

/// A WebDriver server for Chromium on a free port of the loopback interface. It goes with this object, and all browsers
/// with it.
class ChromeDriver {
public:
  ChromeDriver();
  ~ChromeDriver();

  /// "" when it did not start.
  QString url() const { return m_url; }

private:
  QString announcedUrl() const;

  std::unique_ptr<Corvex::Webhook::TemporaryDirectory> m_directory;
  std::unique_ptr<Corvex::Webhook::ChildProcess> m_process;
  QString m_url;
};

/// What a Chromium in a test is asked for.
QString chromeCapabilities();

}  // namespace TestSupport
