#pragma once

#include "shared/functioncallresult.h"

#include <QString>
#include <QStringList>

/// The programs that browsers are started from, and the directories in which they run.
namespace Corvex::Webhook::BrowserProgram {

/// A family of browsers, as a user asks for it and as it is installed.
struct Family {
  QString word;         ///< What stands for any of the family.
  QString description;  ///< "a browser built on Chromium"
  QString package;      ///< Brings one, on Debian.
  QString variable;     ///< The environment variable that names one.
  QStringList names;    ///< Looked for in this order.
};

/// `wanted` is a path, a program's name or the family's word; the word takes what the variable names, or the first one
/// that is installed.
/// The path of a program; the error says why there is none, and what to install or set.
FunctionCallResult<QString> find(const Family& family, const QString& wanted);

/// The entry of a browser's environment that holds its directory and so marks all its processes.
QString markName();

/// What a browser that runs in `directory` writes to its output.
QString outputFile(const QString& directory);

/// The end of that, in one line.
QString lastWords(const QString& directory);

/// The sentence for a directory that could not be made.
QString noRoom();

}  // namespace Corvex::Webhook::BrowserProgram
