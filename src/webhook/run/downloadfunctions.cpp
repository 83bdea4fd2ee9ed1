#include "webhook/run/downloadfunctions.h"

#include "corvexhook/inspector.h"
#include "shared/wait.h"
#include "webhook/run/browsercontrol.h"
#include "webhook/run/functionrow.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

namespace Corvex::Webhook {

namespace {

using ScriptValue = FunctionCallResult<SharedPtr<Object>>;

const int attemptIntervalMs = 20;

QString whyNoDownloads(BrowserControl& control) {
  if (!control.whyLost().isEmpty()) {
    return control.whyLost();
  }
  if (!control.session()) {
    return control.whyNoWindow();
  }
  return control.session()->downloads()
             ? QString()
             : QStringLiteral(
                   "waitForDownload needs a browser that this program starts and that tells of downloads. Leave out "
                   "--attach and --remote, or use a newer browser.");
}

QString noneWithin(const Downloads& downloads, int milliseconds) {
  const QStringList underWay = downloads.underWay();
  const QString what = underWay.isEmpty()
                           ? QStringLiteral("None is under way; check that the page begins one.")
                           : QStringLiteral("'%1' has begun and not ended; allow more time, or look at the server.")
                                 .arg(underWay.join(QStringLiteral("', '")));
  return QStringLiteral("No download ended within %1 ms. %2").arg(QString::number(milliseconds), what);
}

ScriptValue waitForDownload(BrowserControl& control, const ObjectList& arguments) {
  const int milliseconds = arguments.at(0) ? arguments[0]->toInt() : Inspector::self()->defaultTimeout();
  QString obstacle;
  std::optional<Download> download;
  poll(milliseconds, attemptIntervalMs, [&] {
    obstacle = whyNoDownloads(control);
    obstacle = obstacle.isEmpty() ? Inspector::self()->whyNotGoOn() : obstacle;
    download = obstacle.isEmpty() ? control.session()->downloads()->takeEnded() : std::nullopt;
    return download || !obstacle.isEmpty();
  });
  if (!download) {
    return ScriptValue::failure(obstacle.isEmpty() ? noneWithin(*control.session()->downloads(), milliseconds)
                                                   : obstacle);
  }
  if (!download->error.isEmpty()) {
    return ScriptValue::failure(download->error);
  }
  const QJsonObject file{{QStringLiteral("path"), download->path},
                         {QStringLiteral("name"), download->name},
                         {QStringLiteral("url"), download->url},
                         {QStringLiteral("size"), download->size}};
  return ScriptValue::success(
      Inspector::self()->wrapString(QString::fromUtf8(QJsonDocument(file).toJson(QJsonDocument::Compact))));
}

QString copyTo(const QString& path, const QString& wish) {
  const QFileInfo source(path);
  if (!source.isFile()) {
    return QStringLiteral("saveDownload takes the path of a file that waitForDownload gave, but there is no file '%1'.")
        .arg(path);
  }
  const bool isFolder = wish.endsWith(QLatin1Char('/')) || QFileInfo(wish).isDir();
  const QFileInfo target(isFolder ? QDir(wish).filePath(source.fileName()) : wish);
  if (target.exists() && target.canonicalFilePath() == source.canonicalFilePath()) {
    return {};
  }
  QFile file(path);
  const bool hasRoom = QDir().mkpath(target.absolutePath());
  const bool isFree = !target.exists() || QFile::remove(target.filePath());
  return hasRoom && isFree && file.copy(target.filePath())
             ? QString()
             : QStringLiteral("The download cannot be saved as '%1': %2. Give a path that this user may write to.")
                   .arg(target.filePath(), file.errorString());
}

ScriptValue saveDownload(BrowserControl& control, const ObjectList& arguments) {
  const QString error = copyTo(arguments[0]->toString(), control.resolvePath(arguments[1]->toString()));
  return {nullptr, error};
}

const FunctionRow rows[] = {
    {"waitForDownload", "waitForDownload([ms])", 0, 1, waitForDownload,
     FunctionRow::WithoutWindow | FunctionRow::GivesJson},
    {"saveDownload", "saveDownload(path, file or folder)", 2, 2, saveDownload, FunctionRow::WithoutWindow},
};

}  // namespace

std::vector<Scripting::ScriptFunction> downloadFunctions(BrowserControl& control) {
  return scriptFunctionsOf(rows, control);
}

}  // namespace Corvex::Webhook
