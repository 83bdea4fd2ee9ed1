#include "webhook/cli/browseroptions.h"

namespace Corvex::Webhook {

namespace {

const double secondsOfADay = 86400;

const QCommandLineOption browserOption(QStringLiteral("browser"),
                                       QStringLiteral("The browser: chromium, firefox, or the path of its program."),
                                       QStringLiteral("name"), QStringLiteral("chromium"));
const QCommandLineOption headedOption(QStringLiteral("headed"), QStringLiteral("Show the browser's windows."));
const QCommandLineOption attachOption(QStringLiteral("attach"),
                                      QStringLiteral("Use a running browser, by the address of its debugging socket."),
                                      QStringLiteral("ws://..."));
const QCommandLineOption remoteOption(QStringLiteral("remote"),
                                      QStringLiteral("Ask this WebDriver server for a browser."),
                                      QStringLiteral("http://host:port"));
const QCommandLineOption capabilitiesOption(
    QStringLiteral("capabilities"), QStringLiteral("What to ask the server for: JSON, or @ and a file of JSON."),
    QStringLiteral("json"));
const QCommandLineOption certificatesOption(QStringLiteral("ignore-certificate-errors"),
                                            QStringLiteral("Open pages of servers whose certificates are not valid."));
const QCommandLineOption proxyOption(
    QStringLiteral("proxy"),
    QStringLiteral("Ask for pages through this proxy, for those of this machine, too: an HTTP one, or with socks5:// "
                   "before it one of SOCKS."),
    QStringLiteral("host:port"));
const QCommandLineOption timeoutOption(
    QStringLiteral("timeout"),
    QStringLiteral("How long a page may take to load or answer, and waitForObject waits: 20 at first."),
    QStringLiteral("seconds"), QStringLiteral("20"));

struct OptionWithText {
  const QCommandLineOption* option;
  const char* meaning;
  const char* example;
};

const OptionWithText optionsWithText[] = {
    {&browserOption, "the name or the program of a browser", "firefox"},
    {&remoteOption, "the address of a WebDriver server", "http://127.0.0.1:4444"},
    {&attachOption, "the address of a running browser's debugging socket", "ws://127.0.0.1:9222/devtools/browser/1234"},
};

QString readProxy(const QCommandLineParser& parser, Proxy* proxy) {
  if (parser.isSet(attachOption)) {
    return QStringLiteral("--proxy cannot stand beside --attach: a browser that runs keeps its proxy.");
  }
  const FunctionCallResult<Proxy> read = Proxy::read(parser.value(proxyOption));
  *proxy = read.value;
  return read.failed() ? QStringLiteral("--proxy takes %1.").arg(read.error) : QString();
}

}  // namespace

void addBrowserOptions(QCommandLineParser& parser) {
  parser.addOptions({browserOption, headedOption, attachOption, remoteOption, capabilitiesOption, certificatesOption,
                     proxyOption, timeoutOption});
}

QString readBrowserOptions(const QCommandLineParser& parser, SessionOptions* options) {
  const QString error = readSeconds(parser, timeoutOption, &options->defaultTimeoutMs);
  if (!error.isEmpty()) {
    return error;
  }
  for (const OptionWithText& row : optionsWithText) {
    if (parser.isSet(*row.option) && parser.value(*row.option).isEmpty()) {
      return QStringLiteral("--%1 needs %2, such as %3.")
          .arg(row.option->names().constLast(), QLatin1String(row.meaning), QLatin1String(row.example));
    }
  }
  options->browser = parser.value(browserOption);
  options->attachTo = parser.value(attachOption);
  options->remoteUrl = parser.value(remoteOption);
  options->capabilities = parser.value(capabilitiesOption);
  options->headed = parser.isSet(headedOption);
  if (parser.isSet(remoteOption) && (parser.isSet(attachOption) || parser.isSet(headedOption))) {
    return QStringLiteral("--remote cannot stand beside --attach or --headed: the server decides on its browser.");
  }
  options->ignoreCertificateErrors = parser.isSet(certificatesOption);
  return parser.isSet(proxyOption) ? readProxy(parser, &options->proxy) : QString();
}

QString readSeconds(const QCommandLineParser& parser, const QCommandLineOption& option, int* milliseconds) {
  bool isNumber = false;
  const double seconds = parser.value(option).toDouble(&isNumber);
  if (!isNumber || seconds <= 0 || seconds > secondsOfADay) {
    return QStringLiteral("--%1 takes a number of seconds above 0, not '%2'.")
        .arg(option.names().constLast(), parser.value(option));
  }
  *milliseconds = static_cast<int>(seconds * 1000);
  return QString();
}

}  // namespace Corvex::Webhook
