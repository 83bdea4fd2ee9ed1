#pragma once

#include "shared/functioncallresult.h"

#include <QString>
#include <QStringList>

/// The programs that browsers are started from.
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

}  // namespace Corvex::Webhook::BrowserProgram
