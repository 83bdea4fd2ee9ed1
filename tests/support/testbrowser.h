#pragma once

#include <QString>

#include "webhook/browser/browsersession.h"

namespace TestSupport {

/// The browser that this run of a test program is about, as CORVEX_TEST_BROWSER says: "chromium", "firefox", or
/// "remote" for a Chromium after a WebDriver server, which is started on the first call. Chromium if it says nothing.
Corvex::Webhook::SessionOptions testBrowser();

bool isFirefox();

/// Whether the browser is a server's, so that nothing is known of its processes and files.
bool isRemote();

/// What the two browsers say in words of their own.
QString inBrowser(const char* chromium, const char* firefox);

}  // namespace TestSupport
