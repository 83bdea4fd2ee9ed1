#pragma once

#include "scripting/engine/scriptengine.h"
#include "webhook/browser/authentication.h"
#include "webhook/browser/browsersession.h"
#include "webhook/run/inputsettings.h"

#include <QCommandLineParser>
#include <QMap>
#include <QString>
#include <QVector>

#include <optional>
#include <vector>

namespace Corvex::Webhook {

/// What `corvexweb run` was asked for.
struct RunOptions {
  SessionOptions session;
  std::vector<Scripting::ScriptChoice> scripts;
  Scripting::RunPolicy policy;
  /// How many scripts run side by side.
  int jobs = 1;
  bool lists = false;
  /// What this process is to run as a worker of a run.
  std::optional<Scripting::ScriptChoice> ownScript;
  QMap<QString, QString> arguments;
  QVector<Credentials> credentials;
  int scriptTimeoutMs = 0;
  QString junitFile;
  QString reportFile;
  /// Whether the report shows the page after each step.
  bool trace = false;
  /// Those of the command, for the report.
  QStringList ownArguments;
  InputSettings input;
  bool failOnPageError = false;
  bool verbose = false;
  /// What the user is to know of how the options were taken.
  QString notice;
};

/// Adds the options of `corvexweb run`.
void addRunOptions(QCommandLineParser& parser);

/// Reads them, and chooses the scripts. The error says what is wrong with them; empty when all is well.
QString readRunOptions(const QCommandLineParser& parser, RunOptions* options);

}  // namespace Corvex::Webhook
