#include "support/chromedriver.h"

#include <QFile>
#include <QFileSystemWatcher>
#include <QRegularExpression>
#include <QStandardPaths>

#include "shared/wait.h"
#include "webhook/process/childprocess.h"
#include "webhook/process/temporarydirectory.h"

namespace TestSupport {

using namespace Corvex;
using namespace Corvex::Webhook;

ChromeDriver::ChromeDriver() : m_directory(std::make_unique<TemporaryDirectory>()) {
  QFile output(m_directory->filePath(QStringLiteral("output.log")));
  output.open(QIODevice::WriteOnly);
  ChildCommand command;
  command.program = QStandardPaths::findExecutable(QStringLiteral("chromedriver"));
  command.arguments = QStringList{QStringLiteral("--port=0")};
  command.markName = QStringLiteral("CORVEX_TEST_DRIVER");
  command.environment = {{command.markName, m_directory->path()}, {QStringLiteral("TMPDIR"), m_directory->path()}};
  command.outputFile = output.fileName();
  m_process = ChildProcess::start(command).process;
  Pending settled;
  const auto look = [&] {
    m_url = announcedUrl();
    if (!m_url.isEmpty()) {
      settled.complete();
    }
  };
  QFileSystemWatcher watcher({output.fileName()});
  QObject::connect(&watcher, &QFileSystemWatcher::fileChanged, &watcher, look);
  look();
  waitFor(settled, QDeadlineTimer(20000));
}

ChromeDriver::~ChromeDriver() = default;

QString ChromeDriver::announcedUrl() const {
  static const QRegularExpression line(QStringLiteral("started successfully on port (\\d+)"));
  QFile file(m_directory->filePath(QStringLiteral("output.log")));
  if (!file.open(QIODevice::ReadOnly)) {
    return {};
  }
  const QString port = line.match(QString::fromLocal8Bit(file.readAll())).captured(1);
  return port.isEmpty() ? QString() : QStringLiteral("http://127.0.0.1:") + port;
}

QString chromeCapabilities() {
  return QStringLiteral(R"({"browserName": "chrome", "goog:chromeOptions": {"args": ["--headless", "--no-sandbox",
      "--disable-gpu", "--disable-quic", "--no-first-run", "--disable-background-networking",
      "--disable-component-update", "--disable-sync", "--force-color-profile=srgb"]}})");
}

}  // namespace TestSupport
