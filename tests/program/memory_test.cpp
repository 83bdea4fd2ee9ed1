// What a page can make the program keep.

#include <gtest/gtest.h>
#include <signal.h>

#include <QFile>
#include <QRegularExpression>

#include "support/printing.h"
#include "support/programrun.h"
#include "support/testserver.h"

namespace {

using TestSupport::ProgramRun;

/// The most memory that a process had so far.
int peakMegabytes(qint64 process) {
  QFile status(QStringLiteral("/proc/%1/status").arg(process));
  const QString text = status.open(QIODevice::ReadOnly) ? QString::fromLatin1(status.readAll()) : QString();
  return QRegularExpression(QStringLiteral("VmHWM:\\s*(\\d+) kB")).match(text).captured(1).toInt() / 1024;
}

TEST(Memory, APagesMessagesAreNotKept) {
  TestSupport::TestServer server;
  server.add(QStringLiteral("/"), {R"(<p id=taken>0</p><script>
      var left = 100, taken = 0, text = new Array(1024 * 1024 - 20).join('x');
      function send() {
        if (--left < 0) return;
        var request = new XMLHttpRequest();
        request.open('POST', 'http://127.0.0.1:' + __corvex__port + '/?logevent1&');
        request.onloadend = function() {
          taken += request.status === 200;
          document.getElementById('taken').textContent = taken;
          if (left < 0) document.body.id = 'done';
          send();
        };
        request.send('event=' + text);
      }
      onload = function() { send(); send(); };</script>)"});
  ProgramRun program;
  program.write(QStringLiteral("test.js"),
                QStringLiteral("startBrowser('%1');\n"
                               "waitForObject(\"{tagName='BODY' id='done'}\", 60000);\n"
                               "test.log('taken ' + findObject(\"{tagName='P' id='taken'}\").simplifiedInnerText);\n"
                               "for (;;) pause(1);")
                    .arg(server.url(QStringLiteral("/"))));
  program.start({QStringLiteral("run"), QStringLiteral("test.js")});
  ASSERT_TRUE(program.waitForOutput(QStringLiteral("taken 100")));
  EXPECT_LT(peakMegabytes(program.processId()), 400);
  kill(static_cast<pid_t>(program.processId()), SIGTERM);
  program.finish();
}

}  // namespace
