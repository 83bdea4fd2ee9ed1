#include "webhook/chromium.h"

#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace Corvex::Webhook::Chromium {

namespace {

const char* const programNames[] = {"chromium", "chromium-browser", "google-chrome", "google-chrome-stable", "chrome"};

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

const char* const markName = "CORVEX_BROWSER_DIRECTORY";

QString outputFile(const QString& directory) { return directory + QStringLiteral("/output.log"); }

QString pathOf(const QString& name) {
  if (!name.contains(QLatin1Char('/')))
    return QStandardPaths::findExecutable(name);
  const QFileInfo file(name);
  return file.isFile() && file.isExecutable() ? file.absoluteFilePath() : QString();
}

/// Keeps the browser from writing outside of its directory.
QMap<QString, QString> environment(const QString& directory) {
  return {{QString::fromLatin1(markName), directory},
          {QStringLiteral("TMPDIR"), directory + QStringLiteral("/tmp")},
          {QStringLiteral("BREAKPAD_DUMP_LOCATION"), directory + QStringLiteral("/crashes")},
          {QStringLiteral("GSETTINGS_BACKEND"), QStringLiteral("memory")}};
}

}  // namespace

Program find(const QString& wanted) {
  if (!wanted.isEmpty() && wanted != QLatin1String("chromium")) {
    const QString path = pathOf(wanted);
    if (!path.isEmpty())
      return {path, {}};
    return {{}, QStringLiteral("There is no browser '%1'. Give the path of a browser built on Chromium.").arg(wanted)};
  }
  const QString fromEnvironment = QString::fromLocal8Bit(qgetenv("CORVEX_CHROMIUM"));
  if (!fromEnvironment.isEmpty()) {
    const QString path = pathOf(fromEnvironment);
    if (!path.isEmpty())
      return {path, {}};
    return {{},
            QStringLiteral("CORVEX_CHROMIUM is set to '%1', which is no program. Set it to the path of a browser "
                           "built on Chromium, or unset it.")
                .arg(fromEnvironment)};
  }
  for (const char* name : programNames) {
    const QString path = pathOf(QString::fromLatin1(name));
    if (!path.isEmpty())
      return {path, {}};
  }
  return {{},
          QStringLiteral("There is no Chromium on this machine. Install it (on Debian: apt-get install chromium), or "
                         "set CORVEX_CHROMIUM to the path of a browser built on Chromium.")};
}

QStringList arguments(const QString& directory, const SessionOptions& options) {
  QStringList list;
  for (const char* argument : fixedArguments)
    list.append(QString::fromLatin1(argument));
  list.append(QStringLiteral("--user-data-dir=%1/profile").arg(directory));
  if (!options.headed)
    list << QStringLiteral("--headless=new") << QStringLiteral("--disable-gpu");
  if (geteuid() == 0)
    list.append(QStringLiteral("--no-sandbox"));  // its sandbox does not work for root
  return list + options.extraArguments + QStringList{QStringLiteral("about:blank")};
}

Instance launch(const SessionOptions& options) {
  Instance instance;
  const Program program = find(options.browser);
  instance.error = program.error;
  if (program.path.isEmpty())
    return instance;
  instance.directory = std::make_unique<TemporaryDirectory>();
  const QString directory = instance.directory->path();
  PipeTransport::ChildEnds ends;
  instance.transport = PipeTransport::create(&ends);
  if (directory.isEmpty() || !QDir(directory).mkdir(QStringLiteral("tmp")) || !instance.transport) {
    instance.error = QStringLiteral(
                         "No room for the browser's profile in '%1'. Make room there, or set TMPDIR to another "
                         "directory.")
                         .arg(QDir::tempPath());
    return instance;
  }
  ChildCommand command;
  command.program = program.path;
  command.arguments = arguments(directory, options);
  command.environment = environment(directory);
  command.markName = QString::fromLatin1(markName);
  command.outputFile = outputFile(directory);
  command.descriptors = {{ends.input.get(), 3}, {ends.output.get(), 4}};
  ChildProcess::Start start = ChildProcess::start(command);
  instance.process = std::move(start.process);
  instance.error = start.error;
  return instance;
}

QString lastWords(const QString& directory) {
  QFile file(outputFile(directory));
  if (!file.open(QIODevice::ReadOnly))
    return {};
  constexpr qint64 tail = 2000;
  file.seek(std::max<qint64>(0, file.size() - tail));
  const QString text = QString::fromLocal8Bit(file.readAll()).simplified();
  return text.right(300);
}

}  // namespace Corvex::Webhook::Chromium
