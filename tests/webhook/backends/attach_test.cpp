#include <QFile>

#include "webhook/backends/browserfixture.h"
#include "webhook/process/temporarydirectory.h"

using namespace Corvex;
using namespace Corvex::Webhook;

TEST(Attach, DrivesAPageOfItsOwnInARunningBrowserAndLeavesTheRestAlone) {
  SessionOptions options;
  options.extraArguments = QStringList{QStringLiteral("--remote-debugging-port=0")};
  const BrowserSession::Start host = BrowserSession::start(options);
  ASSERT_TRUE(host.value) << host.error.toStdString();
  QFile file(host.value->browserDirectory() + QStringLiteral("/profile/DevToolsActivePort"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
  const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));

  SessionOptions attach;
  attach.attachTo = QStringLiteral("ws://127.0.0.1:%1%2").arg(lines.value(0), lines.value(1));
  const BrowserSession::Start guest = BrowserSession::start(attach);
  ASSERT_TRUE(guest.value) << guest.error.toStdString();
  EXPECT_EQ(guest.value->pages().size(), 1);
  EXPECT_EQ(guest.value->firstPage()->evaluate(QStringLiteral("window.mine = 6 * 7")).text, QStringLiteral("42"));
  EXPECT_EQ(host.value->firstPage()->evaluate(QStringLiteral("typeof mine")).text, QStringLiteral("undefined"));
  EXPECT_EQ(guest.value->browserProcess(), 0);

  EXPECT_TRUE(comesAfter(host.value->pages().last(), &BrowserPage::closed, [&] { guest.value->close(); }));
  EXPECT_EQ(host.value->firstPage()->evaluate(QStringLiteral("'still here'")).text, QStringLiteral("still here"));
}
