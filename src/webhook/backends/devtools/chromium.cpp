#include "webhook/backends/devtools/chromium.h"

#include "webhook/browser/browserprogram.h"
#include "webhook/browser/pagesize.h"

#include <unistd.h>

#include <QDir>

namespace Corvex::Webhook::Chromium {

namespace {

const BrowserProgram::Family& family() {
  static const BrowserProgram::Family family{
      QStringLiteral("chromium"),
      QStringLiteral("a browser built on Chromium"),
      QStringLiteral("chromium"),
      QStringLiteral("CORVEX_CHROMIUM"),
      {QStringLiteral("chromium"), QStringLiteral("chromium-browser"), QStringLiteral("google-chrome"),
       QStringLiteral("google-chrome-stable"), QStringLiteral("chrome")}};
  return family;
}

const char* const fixedArguments[] = {
    "--remote-debugging-pipe",
    "--no-first-run",
    "--no-default-browser-check",
    "--no-service-autorun",
    "--disable-background-networking",
    "--disable-component-update",
    "--disable-default-apps",
    "--disable-sync",
    "--disable-quic",
    "--disable-breakpad",
    "--disable-crash-reporter",
    "--disable-dev-shm-usage",
    "--disable-hang-monitor",
    "--disable-ipc-flooding-protection",
    "--disable-popup-blocking",
    "--disable-prompt-on-repost",
    "--disable-search-engine-choice-screen",
    // A page in the background must go on like one in front.
    "--disable-background-timer-throttling",
    "--disable-backgrounding-occluded-windows",
    "--disable-renderer-backgrounding",
    // Documents that come back or are made ahead would not meet the start scripts.
    "--disable-features=BackForwardCache,Prerender2,Translate,MediaRouter,OptimizationHints",
    "--force-color-profile=srgb",
    "--metrics-recording-only",
    "--mute-audio",
    "--password-store=basic",
};

/// Keeps the browser from writing outside of its directory.
void addEnvironment(const QString& directory, QMap<QString, QString>& variables) {
  variables.insert(QStringLiteral("TMPDIR"), directory + QStringLiteral("/tmp"));
  variables.insert(QStringLiteral("BREAKPAD_DUMP_LOCATION"), directory + QStringLiteral("/crashes"));
  variables.insert(QStringLiteral("GSETTINGS_BACKEND"), QStringLiteral("memory"));
}

}  // namespace

FunctionCallResult<QString> find(const QString& wanted) { return BrowserProgram::find(family(), wanted); }

// Tabs, address and the bar that says that the browser is tested.
const int heightOfBars = 143;

QStringList arguments(const QString& directory, const SessionOptions& options) {
  QStringList list;
  for (const char* argument : fixedArguments) {
    list.append(QString::fromLatin1(argument));
  }
  list.append(QStringLiteral("--user-data-dir=%1/profile").arg(directory));
  list.append(QStringLiteral("--window-size=%1,%2").arg(usualPageWidth).arg(usualPageHeight + heightOfBars));
  if (!options.headed) {
    // A picture of the whole page takes its scroll bars away and does not bring them back, so they are never there.
    list << QStringLiteral("--headless=new") << QStringLiteral("--disable-gpu") << QStringLiteral("--hide-scrollbars");
  }
  if (geteuid() == 0) {
    list.append(QStringLiteral("--no-sandbox"));  // its sandbox does not work for root
  }
  if (options.proxy.kind != Proxy::None) {
    // Otherwise the browser asks this machine's servers itself.
    const bool isSocks = options.proxy.kind == Proxy::Socks;
    list << QStringLiteral("--proxy-server=%1://%2")
                .arg(isSocks ? QStringLiteral("socks5") : QStringLiteral("http"), options.proxy.place())
         << QStringLiteral("--proxy-bypass-list=<-loopback>;") + options.pastProxy;
  }
  return list + options.extraArguments + QStringList{QStringLiteral("about:blank")};
}

Instance launch(const SessionOptions& options) {
  Instance instance;
  const FunctionCallResult<QString> program = find(options.browser);
  instance.error = program.error;
  if (program.failed()) {
    return instance;
  }
  PipeTransport::ChildEnds ends;
  const auto prepare = [&](const QString& directory, ChildCommand& command) {
    instance.transport = PipeTransport::create(&ends);
    command.arguments = arguments(directory, options);
    addEnvironment(directory, command.environment);
    command.descriptors = {{ends.input.get(), 3}, {ends.output.get(), 4}};
    return instance.transport && QDir(directory).mkdir(QStringLiteral("tmp"));
  };
  LaunchedBrowser::Start start = LaunchedBrowser::start(program.value, options.headed, prepare);
  instance.browser = std::move(start.browser);
  instance.error = start.error;
  return instance;
}

}  // namespace Corvex::Webhook::Chromium
