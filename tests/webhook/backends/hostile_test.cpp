// Browsers and servers that say too much, or not what they should.

#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include "support/environment.h"
#include "support/files.h"
#include "support/printing.h"
#include "webhook/backends/floodserver.h"
#include "webhook/browser/browsersession.h"

using namespace Corvex;
using namespace Corvex::Webhook;
using TestSupport::ScopedVariable;

namespace {

QString q(const char* text) { return QString::fromUtf8(text); }

/// Why a session does not start, which it says at once.
QString startError(const SessionOptions& options) {
  QElapsedTimer elapsed;
  elapsed.start();
  const BrowserSession::Start start = BrowserSession::start(options);
  EXPECT_FALSE(start.value);
  EXPECT_LT(elapsed.elapsed(), 15000);
  return start.error;
}

/// A program that plays a browser.
class FakeBrowser {
public:
  FakeBrowser(const char* variable, const QByteArray& script)
      : m_path(m_folder.filePath(q("browser"))), m_variable(variable, m_path.toLocal8Bit()) {
    EXPECT_TRUE(TestSupport::writeFile(m_path, "#!/bin/sh\n" + script));
    QFile::setPermissions(m_path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  }

private:
  const QTemporaryDir m_folder;
  const QString m_path;
  const ScopedVariable m_variable;
};

QString errorOfFakeFirefox(const QByteArray& script) {
  const FakeBrowser browser("CORVEX_FIREFOX", script);
  SessionOptions options;
  options.browser = q("firefox");
  return startError(options);
}

/// Agrees to a WebSocket.
QByteArray upgrade(const QByteArray& request) {
  const int from = request.indexOf("Sec-WebSocket-Key: ") + 19;
  const QByteArray key = request.mid(from, request.indexOf("\r\n", from) - from);
  const QByteArray accepted =
      QCryptographicHash::hash(key + "258EAFA5-E914-47DA-95CA-C5AB0DC85B11", QCryptographicHash::Sha1).toBase64();
  return "HTTP/1.1 101 Switching Protocols\r\nUpgrade: websocket\r\nConnection: Upgrade\r\nSec-WebSocket-Accept: " +
         accepted + "\r\n\r\n";
}

/// A part of a message that is not its last one.
QByteArray frame(char kind) { return kind + QByteArray("\x7f\0\0\0\0\0\x10\0\0", 9) + QByteArray(1024 * 1024, 'x'); }

}  // namespace

TEST(Hostile, AWebSocketMessageWithoutEndEndsTheConnection) {
  const FloodServer server([](const QByteArray& request) { return upgrade(request) + frame(1); }, frame(0));
  SessionOptions options;
  options.attachTo = q("ws://") + server.address();
  EXPECT_EQ(startError(options), q("The browser ended before it was ready: it sent a message of more than 128 MB."));
  EXPECT_LT(server.sent(), FloodServer::bound);
}

TEST(Hostile, AnAgreementWithoutEndIsNotReadOn) {
  const FloodServer server([](const QByteArray&) { return QByteArray("HTTP/1.1 101 X\r\nA: "); },
                           QByteArray(1024 * 1024, 'x'));
  SessionOptions options;
  options.attachTo = q("ws://") + server.address();
  options.startTimeoutMs = 500;
  EXPECT_TRUE(startError(options).contains(q("there was no answer in time")));
  EXPECT_LT(server.sent(), 16 * 1024 * 1024);
}

TEST(Hostile, AServersAnswerWithoutEndIsNotReadOn) {
  const FloodServer server([](const QByteArray&) { return QByteArray("HTTP/1.1 200 OK\r\n\r\n"); },
                           QByteArray(1024 * 1024, ' '));
  SessionOptions options;
  options.remoteUrl = q("http://") + server.address();
  EXPECT_EQ(startError(options),
            QStringLiteral("The server at '%1' opened no browser: its answer is longer than 16 MB. "
                           "Check the address, that a WebDriver server runs there, and the "
                           "capabilities.")
                .arg(options.remoteUrl));
  EXPECT_LT(server.sent(), FloodServer::bound);
}

TEST(Hostile, ABrowserThatFloodsItsPipeIsEnded) {
  const FakeBrowser browser("CORVEX_CHROMIUM", "exec tr '\\0' x </dev/zero >&4 2>/dev/null");
  EXPECT_EQ(startError({}), q("The browser ended before it was ready: it sent a message of more than 128 MB."));
}

TEST(Hostile, ABrowserThatFloodsItsOutputIsEnded) {
  EXPECT_TRUE(errorOfFakeFirefox("exec yes all is well")
                  .startsWith(q("The browser ended before it was ready: it floods its output. Its last words: ")));
}

TEST(Hostile, AnAddressThatIsNoneFailsAtOnce) {
  for (const char* address : {"x", "", "ws:", "http://127.0.0.1:1/", "ws://127.0.0.1:0/"}) {
    SessionOptions options;
    options.attachTo = q(address);
    if (!options.attachTo.isEmpty()) {
      EXPECT_EQ(startError(options),
                QStringLiteral("The browser at '%1' cannot be reached: it is no WebSocket address such as "
                               "ws://127.0.0.1:9222/devtools/browser/1234. Check that it runs and that the address is "
                               "the WebSocket address that it printed at its start.")
                    .arg(options.attachTo));
    }
  }
  for (const char* address : {"ws://127.0.0.1:0", "ws://127.0.0.1:99999", "ws://10.1.2.3:80", "ws://:80"}) {
    EXPECT_EQ(errorOfFakeFirefox(QByteArray("echo WebDriver BiDi listening on ") + address + "; exec sleep 60"),
              QStringLiteral("The browser takes its connections at '%1', which is no address of this machine. Use "
                             "another version of the browser.")
                  .arg(q(address)));
  }
}

TEST(Hostile, WindowsNeedADisplay) {
  const ScopedVariable x("DISPLAY", QByteArray());
  const ScopedVariable wayland("WAYLAND_DISPLAY", QByteArray());
  for (const char* browser : {"chromium", "firefox"}) {
    const FakeBrowser chromium("CORVEX_CHROMIUM", "exec sleep 60");
    const FakeBrowser firefox("CORVEX_FIREFOX", "exec sleep 60");
    SessionOptions options;
    options.browser = q(browser);
    options.headed = true;
    EXPECT_EQ(startError(options),
              q("There is no display to show the browser's windows on: DISPLAY is not set. Run this program on a "
                "desktop, set DISPLAY to a running X server, run it by xvfb-run, or leave out --headed."));
  }
}

TEST(Hostile, ADisplayThatIsNoneIsToldWithWhatToDo) {
  const ScopedVariable x("DISPLAY", ":4711");
  const FakeBrowser browser("CORVEX_FIREFOX", "echo 'Error: cannot open display: :4711' >&2; exit 1");
  SessionOptions options;
  options.browser = q("firefox");
  options.headed = true;
  EXPECT_EQ(startError(options),
            q("The browser ended before it was ready: its process ended. Its last words: Error: cannot open display: "
              ":4711. Run this program on a desktop, set DISPLAY to a running X server, run it by xvfb-run, or leave "
              "out --headed."));
}
