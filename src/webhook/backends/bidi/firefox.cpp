#include "webhook/backends/bidi/firefox.h"

#include "webhook/browser/browserprogram.h"
#include "webhook/browser/pageerrors.h"
#include "webhook/browser/pagesize.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QHostAddress>
#include <QRegularExpression>
#include <QUrl>

#include "shared/wait.h"

namespace Corvex::Webhook::Firefox {

namespace {

const BrowserProgram::Family& family() {
  static const BrowserProgram::Family family{QStringLiteral("firefox"),
                                             QStringLiteral("Firefox's program"),
                                             QStringLiteral("firefox-esr"),
                                             QStringLiteral("CORVEX_FIREFOX"),
                                             {QStringLiteral("firefox-esr"), QStringLiteral("firefox")}};
  return family;
}

// On top of those that the browser sets by itself when it is driven.
const char* const preferences = R"(user_pref("remote.active-protocols", 1);
user_pref("app.normandy.enabled", false);
user_pref("app.update.disabledForTesting", true);
user_pref("browser.aboutwelcome.enabled", false);
user_pref("browser.newtab.preload", false);
user_pref("browser.newtabpage.enabled", false);
user_pref("browser.sessionstore.enabled", false);
user_pref("browser.sessionstore.resume_from_crash", false);
user_pref("browser.shell.checkDefaultBrowser", false);
user_pref("browser.startup.homepage", "about:blank");
user_pref("browser.startup.page", 0);
user_pref("datareporting.policy.dataSubmissionEnabled", false);
user_pref("dom.disable_open_during_load", false);
user_pref("dom.disable_window_flip", false);
user_pref("dom.min_background_timeout_value", 4);
user_pref("dom.min_background_timeout_value_without_budget_throttling", 4);
user_pref("dom.require_user_interaction_for_beforeunload", false);
user_pref("dom.timeout.enable_budget_timer_throttling", false);
user_pref("extensions.update.enabled", false);
user_pref("fission.bfcacheInParent", false);
user_pref("media.volume_scale", "0.0");
user_pref("network.captive-portal-service.enabled", false);
user_pref("network.connectivity-service.enabled", false);
user_pref("network.proxy.allow_hijacking_localhost", false);
user_pref("browser.sessionhistory.max_total_viewers", 0);
user_pref("services.settings.server", "data:,#remote-settings-dummy/v1");
user_pref("termsofuse.bypassNotification", true);
user_pref("toolkit.telemetry.enabled", false);
user_pref("toolkit.telemetry.reportingpolicy.firstRun", false);
user_pref("toolkit.telemetry.server", "data:,");
)";

/// The preferences for a proxy.
QByteArray proxyPreferences(const SessionOptions& options) {
  const Proxy& proxy = options.proxy;
  if (proxy.kind == Proxy::None) {
    return {};
  }
  QString text = QStringLiteral(
                     "user_pref(\"network.proxy.type\", 1);\n"
                     "user_pref(\"network.proxy.allow_hijacking_localhost\", true);\n"
                     "user_pref(\"network.proxy.socks_version\", 5);\n"
                     "user_pref(\"network.proxy.socks_remote_dns\", true);\n"
                     "user_pref(\"network.proxy.no_proxies_on\", \"%1\");\n")
                     .arg(options.pastProxy);
  const QStringList kinds = proxy.kind == Proxy::Socks ? QStringList{QStringLiteral("socks")}
                                                       : QStringList{QStringLiteral("http"), QStringLiteral("ssl")};
  for (const QString& kind : kinds) {
    text += QStringLiteral("user_pref(\"network.proxy.%1\", \"%2\");\nuser_pref(\"network.proxy.%1_port\", %3);\n")
                .arg(kind, proxy.host, QString::number(proxy.port));
  }
  return text.toUtf8();
}

QString profile(const QString& directory) { return directory + QStringLiteral("/profile"); }

// Tabs and address.
const int heightOfBars = 86;

/// Keeps the browser from writing outside of its directory.
void addEnvironment(const QString& directory, QMap<QString, QString>& variables) {
  variables.insert(QStringLiteral("HOME"), directory + QStringLiteral("/home"));
  variables.insert(QStringLiteral("XDG_CACHE_HOME"), directory + QStringLiteral("/home/.cache"));
  variables.insert(QStringLiteral("XDG_CONFIG_HOME"), directory + QStringLiteral("/home/.config"));
  variables.insert(QStringLiteral("TMPDIR"), directory + QStringLiteral("/tmp"));
  variables.insert(QStringLiteral("MOZ_CRASHREPORTER_DISABLE"), QStringLiteral("1"));
  // Of the screen, too, where there is none.
  variables.insert(QStringLiteral("MOZ_HEADLESS_WIDTH"), QString::number(usualPageWidth));
  variables.insert(QStringLiteral("MOZ_HEADLESS_HEIGHT"), QString::number(usualPageHeight + heightOfBars));
  variables.insert(QStringLiteral("GSETTINGS_BACKEND"), QStringLiteral("memory"));
  const QString authority = QDir::homePath() + QStringLiteral("/.Xauthority");
  if (!qEnvironmentVariableIsSet("XAUTHORITY") && QFileInfo::exists(authority)) {
    variables.insert(QStringLiteral("XAUTHORITY"), authority);
  }
}

bool fill(const QString& directory, const SessionOptions& options) {
  const QDir root(directory);
  for (const char* folder : {"tmp", "home", "profile"}) {
    if (!root.mkdir(QLatin1String(folder))) {
      return false;
    }
  }
  QFile file(profile(directory) + QStringLiteral("/user.js"));
  return file.open(QIODevice::WriteOnly) && file.write(preferences + proxyPreferences(options)) > 0 && file.flush();
}

QString announcedAddress(const QByteArray& output) {
  static const QRegularExpression line(QStringLiteral("WebDriver BiDi listening on (ws://[^\\s/]+)[^\\n]*\\n"));
  return line.match(QString::fromLocal8Bit(output)).captured(1);
}

/// Waits for the address that the browser writes to its output. Gives "" when it ended or took too long.
QString waitForAddress(const LaunchedBrowser& browser, const QDeadlineTimer& deadline, QString* whyLost) {
  Pending settled;
  QString address;
  const auto look = [&] {
    const QByteArray output = browser.output();
    address = announcedAddress(output);
    if (output.size() == LaunchedBrowser::outputHead) {
      *whyLost = QStringLiteral("it floods its output");
    }
    if (!address.isEmpty() || !whyLost->isEmpty()) {
      settled.complete();
    }
  };
  QFileSystemWatcher watcher({browser.outputFile()});
  QObject::connect(&watcher, &QFileSystemWatcher::fileChanged, &watcher, look);
  QObject::connect(&browser, &LaunchedBrowser::lost, &watcher, [&](const QString& reason) {
    *whyLost = reason;
    settled.complete();
  });
  look();
  waitFor(settled, deadline);
  return address;
}

/// The browser runs here, so its address must be one of this machine alone.
bool isUsable(const QString& address) {
  const QUrl url(address);
  return url.port() > 0 && (url.host() == QLatin1String("localhost") || QHostAddress(url.host()).isLoopback());
}

QString badAddress(const QString& address) {
  return QStringLiteral(
             "The browser takes its connections at '%1', which is no address of this machine. Use another version of "
             "the browser.")
      .arg(address);
}

}  // namespace

bool isMeant(const QString& browser) {
  return QFileInfo(browser).fileName().startsWith(QLatin1String("firefox"), Qt::CaseInsensitive);
}

FunctionCallResult<QString> find(const QString& wanted) { return BrowserProgram::find(family(), wanted); }

QStringList arguments(const QString& directory, const SessionOptions& options) {
  QStringList list{QStringLiteral("--remote-debugging-port"),
                   QStringLiteral("0"),
                   QStringLiteral("--profile"),
                   profile(directory),
                   QStringLiteral("--no-remote"),
                   QStringLiteral("--width"),
                   QString::number(usualPageWidth),
                   QStringLiteral("--height"),
                   QString::number(usualPageHeight + heightOfBars)};
  if (!options.headed) {
    list.append(QStringLiteral("--headless"));
  }
  // The focus of a window that opens with about:blank is in its address field for good, and no page of it has it.
  return list + options.extraArguments + QStringList{QStringLiteral("data:text/html,")};
}

Instance launch(const SessionOptions& options, const QDeadlineTimer& deadline) {
  Instance instance;
  const FunctionCallResult<QString> program = find(options.browser);
  instance.error = program.error;
  if (program.failed()) {
    return instance;
  }
  const auto prepare = [&](const QString& directory, ChildCommand& command) {
    command.arguments = arguments(directory, options);
    addEnvironment(directory, command.environment);
    return fill(directory, options);
  };
  LaunchedBrowser::Start start = LaunchedBrowser::start(program.value, options.headed, prepare);
  instance.browser = std::move(start.browser);
  instance.error = start.error;
  if (!instance.browser) {
    return instance;
  }
  QString whyLost;
  instance.address = waitForAddress(*instance.browser, deadline, &whyLost);
  if (instance.address.isEmpty() && !whyLost.isEmpty()) {
    instance.error = PageErrors::endedEarly(whyLost, instance.browser->explanation());
  } else if (instance.address.isEmpty()) {
    instance.error =
        QStringLiteral("The browser started but took no connection in time. Try again, or allow more time.");
  } else if (!isUsable(instance.address)) {
    instance.error = badAddress(instance.address);
  }
  return instance;
}

}  // namespace Corvex::Webhook::Firefox
