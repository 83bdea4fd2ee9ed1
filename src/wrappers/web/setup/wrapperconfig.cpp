#include "wrappers/web/setup/wrapperconfig.h"

#include "shared/environment.h"

namespace Corvex {
namespace WebWrapper {

namespace {

constexpr char defProxyListenAddress[] = "localhost:8001";
constexpr char defProxyInternalCommAddress[] = "localhost:8000";
constexpr char defChromeDriverForChromiumBasedApps[] = "chromedriver";

}  // namespace

MemoryBasedConfig::MemoryBasedConfig()
    : m_proxyListenAddress(QLatin1String(defProxyListenAddress)),
      m_proxyInternalCommAddress(QLatin1String(defProxyInternalCommAddress)),
      m_chromeDriverForChromiumBasedApps(QLatin1String(defChromeDriverForChromiumBasedApps)) {}

FileSystemBasedConfig::FileSystemBasedConfig()
    : m_globalSettings(corvexPrefix() + QStringLiteral("/etc"), QStringLiteral("webwrapper.ini")),
      m_userSettings(UserSettingsType::WebWrapper) {}

bool FileSystemBasedConfig::readBool(const char* key, bool defaultValue) const {
  const QString name = QLatin1String(key);
  const QString group = Settings::defaultGroup();
  return m_userSettings.readBoolEntry(group, name, m_globalSettings.readBoolEntry(group, name, defaultValue));
}

int FileSystemBasedConfig::readNumber(const char* key, int defaultValue) const {
  const QString name = QLatin1String(key);
  const QString group = Settings::defaultGroup();
  return m_userSettings.readNumEntry(group, name, m_globalSettings.readNumEntry(group, name, defaultValue));
}

QString FileSystemBasedConfig::readText(const char* key, const char* defaultValue) const {
  const QString name = QLatin1String(key);
  const QString group = Settings::defaultGroup();
  return m_userSettings.readEntry(group, name, m_globalSettings.readEntry(group, name, QLatin1String(defaultValue)));
}

bool FileSystemBasedConfig::enableObjectInfoOverlay() const {
  static const bool value = readBool("EnableObjectInfoOverlay", false);
  return value;
}

bool FileSystemBasedConfig::filterNonElementNodes() const {
  static const bool value = readBool("DynamicTextNodeFilter", true);
  return value;
}

QString FileSystemBasedConfig::proxyListenAddress() const {
  return readText("ProxyListenAddress", defProxyListenAddress);
}

QString FileSystemBasedConfig::proxyInternalCommAddress() const {
  return readText("ProxyConnectAddress", defProxyInternalCommAddress);
}

bool FileSystemBasedConfig::proxyStartBrowser() const { return readBool("ProxyStartBrowser", true); }

bool FileSystemBasedConfig::proxyDebugOutput() const { return readBool("ProxyDebugOutput", false); }

bool FileSystemBasedConfig::proxyStartProxy() const { return readBool("ProxyImplicitStart", true); }

bool FileSystemBasedConfig::hookNewWindows() const {
  static const bool value =
      readBool("HookNewWindows", false) || environmentVariable("CORVEX_WEB_NEWWINDOWHOOK") == QLatin1String("1");
  return value;
}

bool FileSystemBasedConfig::debugJavaScriptExecution() const {
  static const bool value = readBool("DebugJavaScriptExecution", false);
  return value;
}

bool FileSystemBasedConfig::caseInsensitiveXPathNodeNameMatching() const {
  static const bool value = readBool("CaseInsensitiveXPathNodeNameMatching", true);
  return value;
}

bool FileSystemBasedConfig::backwardsCompatibleVisiblePropertyForHTML_Object() const {
  static const bool value = readBool("BackwardsCompatibleVisiblePropertyForHTML_Object", false);
  return value;
}

int FileSystemBasedConfig::internetExplorerReadyStateTimeout() const {
  return readNumber("InternetExplorerReadyStateTimeout", 5000);
}

bool FileSystemBasedConfig::openFirefoxWithConsole() const { return readBool("OpenFirefoxWithConsole", false); }

bool FileSystemBasedConfig::improvedTabAndWindowSupport() const {
  static const bool value = readBool("ImprovedTabAndWindowSupport", true);
  return value;
}

bool FileSystemBasedConfig::supportSinglePropertyNaming() const {
  return readBool("SupportSinglePropertyNaming", false);
}

bool FileSystemBasedConfig::throwErrorOnUnknownContextNames() const {
  static const bool value = readBool("ThrowErrorOnUnknownContextNames", true);
  return value;
}

bool FileSystemBasedConfig::enableBrowserDebugging() const {
  static const bool value = readBool("EnableBrowserDebugging", false);
  return value;
}

QString FileSystemBasedConfig::chromeDriverForChromiumBasedApps() const {
  return readText("ChromeDriverForChromiumBasedApps", defChromeDriverForChromiumBasedApps);
}

bool FileSystemBasedConfig::includeIdPropertyInGeneratedNames() const {
  return readBool("IncludeIdPropertyInGeneratedNames", true);
}

bool FileSystemBasedConfig::useSessionStorageForEvents() const {
  static const bool value = readBool("UseSessionStorageForEvents", false);
  return value;
}

}  // namespace WebWrapper
}  // namespace Corvex
