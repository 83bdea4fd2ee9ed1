#include "webhook/backends/bidi/firefox.h"

#include <gtest/gtest.h>

#include "support/environment.h"
#include "support/printing.h"

using namespace Corvex;
using namespace Corvex::Webhook;
using TestSupport::ScopedVariable;

namespace {

QString q(const char* text) { return QString::fromUtf8(text); }

}  // namespace

TEST(Firefox, IsMeantByItsNameOrItsPath) {
  for (const char* name : {"firefox", "firefox-esr", "/opt/firefox/firefox", "/usr/lib/firefox-esr/firefox-bin"})
    EXPECT_TRUE(Firefox::isMeant(q(name))) << name;
  for (const char* name : {"", "chromium", "/opt/firefox/chromium", "/usr/bin/chromium"})
    EXPECT_FALSE(Firefox::isMeant(q(name))) << name;
}

TEST(Firefox, SaysWhatToDoWhenThereIsNone) {
  const ScopedVariable path("PATH", "/nowhere");
  const ScopedVariable variable("CORVEX_FIREFOX", QByteArray());
  SessionOptions options;
  options.browser = q("firefox");
  EXPECT_EQ(BrowserSession::start(options).error,
            q("There is no Firefox on this machine. Install it (on Debian: apt-get install firefox-esr), or set "
              "CORVEX_FIREFOX to the path of Firefox's program."));
  EXPECT_TRUE(Firefox::find(q("/no/firefox")).error.contains(q("'/no/firefox'")));
  const ScopedVariable wrong("CORVEX_FIREFOX", "/etc/passwd");
  EXPECT_TRUE(Firefox::find(q("firefox")).error.startsWith(q("CORVEX_FIREFOX is set to '/etc/passwd'")));
}
