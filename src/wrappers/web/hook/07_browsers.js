// Gives: the questions that other fragments ask about the browser and the embedding.
// Needs: nothing.

// The flag's value, which is no boolean in general.
function __corvex__topFlag(name) {
  try {
    return window.top[name];
  } catch (e) {
    return false;
  }
}

function __corvex__isQWebViewBrowser() {
  return __corvex__topFlag("__corvex__qwebview");
}

function __corvex__isCocoaWebViewBrowser() {
  return __corvex__topFlag("__corvex__cocoawebview");
}

function __corvex__isCocoaTouchWebViewBrowser() {
  return __corvex__topFlag("__corvex__cocoatouchwebview");
}

function __corvex__isWKWebViewBrowser() {
  return __corvex__topFlag("__corvex__wkwebview");
}

function __corvex__isAndroidWebViewBrowser() {
  return __corvex__topFlag("__corvex__androidwebview");
}

function __corvex__isJavaFXWebViewBrowser() {
  return __corvex__topFlag("__corvex__javafxwebview");
}

function __corvex__isJavaSWTBrowser() {
  return __corvex__topFlag("__corvex__swtfunction");
}

function __corvex__isProxyOnMobileDevice() {
  return __corvex__topFlag("__corvex__proxy") && __corvex__topFlag("__corvex__mobiledevice");
}

function __corvex__isEmbeddedAppleWebkitBrowser() {
  return __corvex__isCocoaWebViewBrowser() || __corvex__isCocoaTouchWebViewBrowser() || __corvex__isWKWebViewBrowser();
}

// These views put an object named __corvex__eventLoggerBridge into the page.
function __corvex__usesEventLoggerBridge() {
  return __corvex__isEmbeddedAppleWebkitBrowser();
}

function __corvex__isEmbeddedIntoHookableToolkit() {
  return __corvex__isAndroidWebViewBrowser() || __corvex__isQWebViewBrowser() || __corvex__isCocoaWebViewBrowser() ||
         __corvex__isCocoaTouchWebViewBrowser() || __corvex__isWKWebViewBrowser() ||
         __corvex__isJavaFXWebViewBrowser() || __corvex__isJavaSWTBrowser();
}

// An unknown version counts as modern.
function __corvex__isSafariUsingWebDriver() {
  var version = __corvex__topFlag("__corvex__safari__version");
  return (__corvex__topFlag("__corvex__safari") || window.__corvex__safari) && (!version || version >= 12);
}

function __corvex__needToApplyDevicePixelRatio(win) {
  try {
    return win.devicePixelRatio !== undefined && window.__corvex__os !== "MacOSX" && !__corvex__isWKWebViewBrowser() &&
           !__corvex__isCocoaTouchWebViewBrowser();
  } catch (e) {
    return false;
  }
}
