#include "webhook/browser/pageerrors.h"

#include <QFileInfo>

namespace Corvex::Webhook::PageErrors {

namespace {

struct LoadHint {
  const char* code;
  const char* hint;
};

const char* const untrusted =
    "The browser does not trust the server's certificate; --ignore-certificate-errors has it take any.";
const char* const noProxy = "The proxy cannot be reached; start it or correct --proxy.";

const LoadHint loadHints[] = {
    {"net::ERR_CONNECTION_REFUSED", "Nothing listens at that address; start the server or correct the port."},
    {"net::ERR_NAME_NOT_RESOLVED", "The host name is not known; correct it or check the network."},
    {"net::ERR_ADDRESS_UNREACHABLE", "The host cannot be reached; check the network."},
    {"net::ERR_INTERNET_DISCONNECTED", "This machine has no network; connect it."},
    {"net::ERR_CONNECTION_TIMED_OUT", "The host did not answer; check the address and the network."},
    {"net::ERR_CONNECTION_RESET", "The server broke the connection; look at the server."},
    {"net::ERR_EMPTY_RESPONSE", "The server closed the connection without an answer; look at the server."},
    {"net::ERR_FILE_NOT_FOUND", "There is no such file; correct the path."},
    {"net::ERR_UNSAFE_PORT", "The browser refuses this port; use another one."},
    {"net::ERR_ABORTED", "The address gave no page: a download, or an answer without content."},
    {"net::ERR_CERT_", untrusted},
    {"net::ERR_PROXY_CONNECTION_FAILED", noProxy},
    {"net::ERR_SOCKS_CONNECTION_FAILED", noProxy},
    {"net::ERR_SSL_PROTOCOL_ERROR", "The server does not speak HTTPS at this port; try http://."},
    {"net::ERR_TOO_MANY_REDIRECTS", "The server redirects in a circle; look at the server."},
    {"net::ERR_HTTP_RESPONSE_CODE_FAILURE", "The server answered with an error and no page."},
    {"Cannot navigate to invalid URL", "Give the whole address, such as http://localhost:8080/page.html."},
    {"NS_ERROR_CONNECTION_REFUSED", "Nothing listens at that address; start the server or correct the port."},
    {"NS_ERROR_UNKNOWN_HOST", "The host name is not known; correct it or check the network."},
    {"NS_ERROR_NET_TIMEOUT", "The host did not answer; check the address and the network."},
    {"NS_ERROR_NET_RESET", "The server broke the connection; look at the server."},
    {"NS_ERROR_NET_EMPTY_RESPONSE", "The server closed the connection without an answer; look at the server."},
    {"NS_ERROR_FILE_NOT_FOUND", "There is no such file; correct the path."},
    {"NS_ERROR_REDIRECT_LOOP", "The server redirects in a circle; look at the server."},
    {"NS_ERROR_OFFLINE", "This machine has no network; connect it."},
    {"NS_BINDING_ABORTED", "The address gave no page: a download, or an answer without content."},
    {"deniedPortAccess", "The browser refuses this port; use another one."},
    {"SEC_ERROR_", untrusted},
    {"MOZILLA_PKIX_ERROR_", untrusted},
    {"SSL_ERROR_BAD_CERT_DOMAIN", untrusted},
    {"NS_ERROR_PROXY_CONNECTION_REFUSED", noProxy},
    {"NS_ERROR_UNKNOWN_PROXY_HOST", noProxy},
    {"SSL_ERROR_RX_RECORD_TOO_LONG", "The server does not speak HTTPS at this port; try http://."},
};

QString hintFor(const QString& errorCode) {
  for (const LoadHint& row : loadHints) {
    if (errorCode.startsWith(QLatin1String(row.code))) {
      return QLatin1Char(' ') + QString::fromLatin1(row.hint);
    }
  }
  return {};
}

}  // namespace

QString browserLost(const QString& reason) {
  return QStringLiteral("The browser was lost: %1. Start it again.").arg(reason);
}

QString endedEarly(const QString& reason, const QString& explanation) {
  const QString sentence = QStringLiteral("The browser ended before it was ready: %1.").arg(reason);
  return explanation.isEmpty() ? sentence : sentence + QLatin1Char(' ') + explanation;
}

QString pageClosed() { return QStringLiteral("The page was closed in the browser. Open it again."); }

QString pageNotReported() { return QStringLiteral("The browser opened a page but did not report it. Try again."); }

QString pageCrashed() { return QStringLiteral("The page crashed in the browser. Load it again."); }

QString pageReplaced() { return QStringLiteral("The page was replaced by another one before it answered. Ask again."); }

QString noAnswerWithin(int milliseconds) {
  return QStringLiteral(
             "The page did not answer within %1 ms. A script may keep it busy; allow more time, or call startBrowser "
             "again.")
      .arg(milliseconds);
}

QString dialogOpen(const Dialog& dialog) {
  return QStringLiteral(
             "The page shows a dialog (%1) with the text '%2' and does not answer before the dialog is closed.")
      .arg(dialog.kind, dialog.text);
}

QString noDialogOpen() { return QStringLiteral("The page shows no dialog that could be answered."); }

QString refused(const QString& browsersWords) {
  return QStringLiteral("The browser could not do it: %1.").arg(browsersWords);
}

QString notLoaded(const QString& url, const QString& errorCode) {
  return QStringLiteral("The page '%1' could not be loaded: %2.").arg(url, errorCode) + hintFor(errorCode);
}

QString notLoadedWithin(const QString& url, int milliseconds) {
  return QStringLiteral("The page '%1' was not loaded within %2 ms. Check the server or allow more time.")
      .arg(url, QString::number(milliseconds));
}

QString errorPageLoaded(const QString& url) {
  return QStringLiteral("The page '%1' could not be loaded: the browser shows an error page. Check the server.")
      .arg(url);
}

QString noSuchHistory(int steps) {
  return steps < 0 ? QStringLiteral("There is no page to go back to: this is the first one of its window.")
                   : QStringLiteral("There is no page to go forward to: this is the last one of its window.");
}

QString notReachedWithin(int steps, int milliseconds) {
  return QStringLiteral("The page %1 this one was not loaded within %2 ms. Check the server or allow more time.")
      .arg(steps < 0 ? QStringLiteral("before") : QStringLiteral("after"), QString::number(milliseconds));
}

QString whyNotUpload(const QString& path) {
  const QFileInfo file(path);
  const QString why = !file.exists()       ? QStringLiteral("there is no such file. Give a path that exists.")
                      : !file.isFile()     ? QStringLiteral("it is no file. Give the path of a file.")
                      : !file.isReadable() ? QStringLiteral("it cannot be read. Allow this user to read it.")
                                           : QString();
  return why.isEmpty() ? why : QStringLiteral("Cannot choose the file '%1': ").arg(path) + why;
}

QString noFileInput(const QString& referenceExpression) {
  return QStringLiteral("'%1' is no file input of the page. Name an <input type=\"file\">.").arg(referenceExpression);
}

QString filesRefused(const QStringList& paths, const QString& browsersWords) {
  return QStringLiteral(
             "The browser could not take the file '%1': %2. A browser on another machine needs the path of a file "
             "there.")
      .arg(paths.join(QStringLiteral("', '")), browsersWords);
}

QString noScreenshot() { return QStringLiteral("The browser sent no readable image of the page. Try again."); }

QString noCookies(const QString& url) {
  return QStringLiteral("The page '%1' has no host, so it can have no cookies. Open a page of a server first.")
      .arg(url);
}

QString cookieRefused(const QString& name, const QString& browsersWords) {
  const QString why = browsersWords.isEmpty() ? QString() : QStringLiteral(": ") + browsersWords;
  return QStringLiteral(
             "The browser refused the cookie '%1'%2. Check its name, domain and path, and that a secure one "
             "is set on a page of https.")
      .arg(name, why);
}

}  // namespace Corvex::Webhook::PageErrors
