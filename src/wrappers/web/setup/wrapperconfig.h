#pragma once

#include <QString>

#include "shared/settings.h"
#include "wrappers/web/export.h"

namespace Corvex {
namespace WebWrapper {

/// How this web wrapper is set up: read-only values with one meaning and one default in every implementation. The order
/// of the operations is part of the interface. An owner deletes through the concrete type.
class CORVEX_WEBWRAPPER_EXPORT WrapperConfig {
public:
  /// Mouse and key events are first offered to the object overlay in the page.
  virtual bool enableObjectInfoOverlay() const = 0;
  /// Tree traversal in the page skips nodes that are no elements.
  virtual bool filterNonElementNodes() const = 0;
  /// Where the local proxy listens, as "host:port".
  virtual QString proxyListenAddress() const = 0;
  /// Where the local proxy reaches the tool, as "host:port".
  virtual QString proxyInternalCommAddress() const = 0;
  /// The connection starts the browser by itself.
  virtual bool proxyStartBrowser() const = 0;
  /// The proxy prints debug output.
  virtual bool proxyDebugOutput() const = 0;
  /// The connection starts the proxy by itself.
  virtual bool proxyStartProxy() const = 0;
  /// New windows are hooked without replacing the `window.open` of the page.
  virtual bool hookNewWindows() const = 0;
  /// JavaScript that is evaluated in the page is reported for debugging.
  virtual bool debugJavaScriptExecution() const = 0;
  /// XPath name tests ignore case.
  virtual bool caseInsensitiveXPathNodeNameMatching() const = 0;
  /// The `visible` property follows its older meaning.
  virtual bool backwardsCompatibleVisiblePropertyForHTML_Object() const = 0;
  /// How long to wait for the ready state of pages in browsers that need it.
  virtual int internetExplorerReadyStateTimeout() const = 0;
  /// That browser is opened with its console.
  virtual bool openFirefoxWithConsole() const = 0;
  /// Tabs and windows are handled on the browser side where the browser allows it.
  virtual bool improvedTabAndWindowSupport() const = 0;
  /// Generated names use the scheme of a single property.
  virtual bool supportSinglePropertyNaming() const = 0;
  /// An unknown context name raises an error in the page.
  virtual bool throwErrorOnUnknownContextNames() const = 0;
  /// The browser is started with its debugging aids.
  virtual bool enableBrowserDebugging() const = 0;
  /// The driver program's name for applications built on Chromium.
  virtual QString chromeDriverForChromiumBasedApps() const = 0;
  /// The `id` takes part in generated names.
  virtual bool includeIdPropertyInGeneratedNames() const = 0;
  /// Recorded events are stored in `sessionStorage`.
  virtual bool useSessionStorageForEvents() const = 0;

protected:
  ~WrapperConfig() = default;
};

/// Values that the embedding program sets before it hands the object out. Looks at no file and no environment.
class CORVEX_WEBWRAPPER_EXPORT MemoryBasedConfig final : public WrapperConfig {
public:
  MemoryBasedConfig();

  bool enableObjectInfoOverlay() const override { return m_enableObjectInfoOverlay; }
  bool filterNonElementNodes() const override { return m_filterNonElementNodes; }
  QString proxyListenAddress() const override { return m_proxyListenAddress; }
  QString proxyInternalCommAddress() const override { return m_proxyInternalCommAddress; }
  bool proxyStartBrowser() const override { return m_proxyStartBrowser; }
  bool proxyDebugOutput() const override { return m_proxyDebugOutput; }
  bool proxyStartProxy() const override { return m_proxyStartProxy; }
  bool hookNewWindows() const override { return m_hookNewWindows; }
  bool debugJavaScriptExecution() const override { return m_debugJavaScriptExecution; }
  bool caseInsensitiveXPathNodeNameMatching() const override { return m_caseInsensitiveXPathNodeNameMatching; }
  bool backwardsCompatibleVisiblePropertyForHTML_Object() const override {
    return m_backwardsCompatibleVisiblePropertyForHTML_Object;
  }
  int internetExplorerReadyStateTimeout() const override { return m_internetExplorerReadyStateTimeout; }
  bool openFirefoxWithConsole() const override { return m_openFirefoxWithConsole; }
  bool improvedTabAndWindowSupport() const override { return m_improvedTabAndWindowSupport; }
  bool supportSinglePropertyNaming() const override { return m_supportSinglePropertyNaming; }
  bool throwErrorOnUnknownContextNames() const override { return m_throwErrorOnUnknownContextNames; }
  bool enableBrowserDebugging() const override { return m_enableBrowserDebugging; }
  QString chromeDriverForChromiumBasedApps() const override { return m_chromeDriverForChromiumBasedApps; }
  bool includeIdPropertyInGeneratedNames() const override { return m_includeIdPropertyInGeneratedNames; }
  bool useSessionStorageForEvents() const override { return m_useSessionStorageForEvents; }

  void setObjectInfoOverlayEnabled(bool value) { m_enableObjectInfoOverlay = value; }
  void setFilterNonElementNodes(bool value) { m_filterNonElementNodes = value; }
  void setProxyListenAddress(const QString& value) { m_proxyListenAddress = value; }
  void setProxyInternalCommAddress(const QString& value) { m_proxyInternalCommAddress = value; }
  void setProxyStartBrowser(bool value) { m_proxyStartBrowser = value; }
  void setProxyDebugOutput(bool value) { m_proxyDebugOutput = value; }
  void setProxyStartProxy(bool value) { m_proxyStartProxy = value; }
  void setHookNewWindows(bool value) { m_hookNewWindows = value; }
  void setDebugJavaScriptExecution(bool value) { m_debugJavaScriptExecution = value; }
  void setCaseInsensitiveXPathNodeNameMatching(bool value) { m_caseInsensitiveXPathNodeNameMatching = value; }
  void setBackwardsCompatibleVisiblePropertyForHTML_Object(bool value) {
    m_backwardsCompatibleVisiblePropertyForHTML_Object = value;
  }
  void setInternetExplorerReadyStateTimeout(int value) { m_internetExplorerReadyStateTimeout = value; }
  void setOpenFirefoxWithConsole(bool value) { m_openFirefoxWithConsole = value; }
  void setImprovedTabAndWindowSupport(bool value) { m_improvedTabAndWindowSupport = value; }
  void setSupportSinglePropertyNaming(bool value) { m_supportSinglePropertyNaming = value; }
  void setThrowErrorOnUnknownContextNames(bool value) { m_throwErrorOnUnknownContextNames = value; }
  void setEnableBrowserDebugging(bool value) { m_enableBrowserDebugging = value; }
  void setChromeDriverForChromiumBasedApps(const QString& value) { m_chromeDriverForChromiumBasedApps = value; }
  void setIncludeIdProperty(bool value) { m_includeIdPropertyInGeneratedNames = value; }

private:
  bool m_enableObjectInfoOverlay = false;
  bool m_filterNonElementNodes = true;
  QString m_proxyListenAddress;
  QString m_proxyInternalCommAddress;
  bool m_proxyStartBrowser = true;
  bool m_proxyDebugOutput = false;
  bool m_proxyStartProxy = true;
  bool m_hookNewWindows = false;
  bool m_debugJavaScriptExecution = false;
  bool m_caseInsensitiveXPathNodeNameMatching = true;
  bool m_backwardsCompatibleVisiblePropertyForHTML_Object = false;
  int m_internetExplorerReadyStateTimeout = 5000;
  bool m_openFirefoxWithConsole = false;
  bool m_improvedTabAndWindowSupport = true;
  bool m_supportSinglePropertyNaming = false;
  bool m_throwErrorOnUnknownContextNames = true;
  bool m_enableBrowserDebugging = false;
  QString m_chromeDriverForChromiumBasedApps;
  bool m_includeIdPropertyInGeneratedNames = true;
  bool m_useSessionStorageForEvents = false;
};

/// Values from "webwrapper.ini": the user's file wins over the one of the installation (in "etc" below
/// `CORVEX_PREFIX`), that one over the built-in default. Both are parsed at construction; either may be missing. A
/// value that cannot be read as its type counts as absent in that file.
///
/// Values that the page sees as it is hooked, and the debugging switches, are read once per process: later objects
/// answer with what the first call gave. Only these are asked anew at each call: the proxy's values,
/// internetExplorerReadyStateTimeout, openFirefoxWithConsole, supportSinglePropertyNaming,
/// chromeDriverForChromiumBasedApps and includeIdPropertyInGeneratedNames.
class CORVEX_WEBWRAPPER_EXPORT FileSystemBasedConfig final : public WrapperConfig {
public:
  FileSystemBasedConfig();

  bool enableObjectInfoOverlay() const override;
  bool filterNonElementNodes() const override;
  QString proxyListenAddress() const override;
  QString proxyInternalCommAddress() const override;
  bool proxyStartBrowser() const override;
  bool proxyDebugOutput() const override;
  bool proxyStartProxy() const override;
  /// The environment variable CORVEX_WEB_NEWWINDOWHOOK, set to "1", turns this on; it cannot turn it off.
  bool hookNewWindows() const override;
  bool debugJavaScriptExecution() const override;
  bool caseInsensitiveXPathNodeNameMatching() const override;
  bool backwardsCompatibleVisiblePropertyForHTML_Object() const override;
  int internetExplorerReadyStateTimeout() const override;
  bool openFirefoxWithConsole() const override;
  bool improvedTabAndWindowSupport() const override;
  bool supportSinglePropertyNaming() const override;
  bool throwErrorOnUnknownContextNames() const override;
  bool enableBrowserDebugging() const override;
  QString chromeDriverForChromiumBasedApps() const override;
  bool includeIdPropertyInGeneratedNames() const override;
  bool useSessionStorageForEvents() const override;

private:
  bool readBool(const char* key, bool defaultValue) const;
  int readNumber(const char* key, int defaultValue) const;
  QString readText(const char* key, const char* defaultValue) const;

  Settings m_globalSettings;
  // Stays empty; it is part of the layout.
  QString m_empty;
  UserSettings m_userSettings;
};

}  // namespace WebWrapper
}  // namespace Corvex
