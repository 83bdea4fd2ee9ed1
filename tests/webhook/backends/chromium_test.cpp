#include "webhook/backends/devtools/chromium.h"

#include <gtest/gtest.h>

#include "support/environment.h"
#include "support/printing.h"

using namespace Corvex;
using namespace Corvex::Webhook;
using TestSupport::ScopedVariable;

TEST(Chromium, SaysWhatToDoWhenThereIsNone) {
  const ScopedVariable path("PATH", "/nowhere");
  const ScopedVariable variable("CORVEX_CHROMIUM", QByteArray());
  EXPECT_EQ(
      Chromium::find({}).error,
      QStringLiteral("There is no Chromium on this machine. Install it (on Debian: apt-get install chromium), or set "
                     "CORVEX_CHROMIUM to the path of a browser built on Chromium."));
  EXPECT_TRUE(Chromium::find(QStringLiteral("chromium")).value.isEmpty());
  EXPECT_TRUE(Chromium::find(QStringLiteral("/etc/passwd")).error.contains(QStringLiteral("'/etc/passwd'")));
  const ScopedVariable wrong("CORVEX_CHROMIUM", "/etc/passwd");
  EXPECT_TRUE(Chromium::find({}).error.startsWith(QStringLiteral("CORVEX_CHROMIUM is set to '/etc/passwd'")));
}

TEST(Chromium, TakesTheProgramThatIsNamed) {
  const ScopedVariable variable("CORVEX_CHROMIUM", "/bin/sh");
  EXPECT_EQ(Chromium::find({}).value, QStringLiteral("/bin/sh"));
  EXPECT_EQ(Chromium::find(QStringLiteral("/bin/cat")).value, QStringLiteral("/bin/cat"));
}

TEST(Chromium, ABrowserThatEndsAtOnceGivesItsLastWords) {
  const ScopedVariable variable("CORVEX_CHROMIUM", "/bin/ls");
  const QString error = BrowserSession::start({}).error;
  EXPECT_TRUE(error.startsWith(QStringLiteral("The browser ended before it was ready: "))) << error.toStdString();
  EXPECT_TRUE(error.contains(QStringLiteral(". Its last words: /bin/ls: "))) << error.toStdString();
}
