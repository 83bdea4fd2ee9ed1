#include "webhook/cli/runfacts.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QRegularExpression>
#include <QSysInfo>

namespace Corvex::Webhook {

namespace {

// What scripts are given may be a password, and so may what a server is asked for.
const char* const secretOptions[] = {"credentials", "arg", "capabilities", "attach"};

const QString hidden = QStringLiteral("...");

bool isSecret(const QString& option) {
  for (const char* name : secretOptions) {
    if (option == QLatin1String("--") + QLatin1String(name) || option == QLatin1String("-") + QLatin1String(name)) {
      return true;
    }
  }
  return false;
}

/// Of NAME=VALUE the name.
QString shownValue(const QString& option, const QString& value) {
  const bool isNamed = option.endsWith(QLatin1String("-arg")) && value.indexOf(QLatin1Char('=')) > 0;
  return isNamed ? value.section(QLatin1Char('='), 0, 0) + QLatin1Char('=') + hidden : hidden;
}

/// An address without its user and password.
QString withoutUser(QString text) {
  static const QRegularExpression user(QStringLiteral("(://|^[^/@\\s]*:)[^/@\\s]*@"));
  return text.replace(user, QStringLiteral("\\1...@"));
}

}  // namespace

QStringList withoutSecrets(const QStringList& arguments) {
  QStringList shown;
  for (int i = 0; i < arguments.size(); ++i) {
    const QString option = arguments.at(i).section(QLatin1Char('='), 0, 0);
    if (!isSecret(option)) {
      shown << withoutUser(arguments.at(i));
    } else if (arguments.at(i).contains(QLatin1Char('='))) {
      shown << option + QLatin1Char('=') + shownValue(option, arguments.at(i).section(QLatin1Char('='), 1));
    } else {
      shown << option;
      if (++i < arguments.size()) {
        shown << shownValue(option, arguments.at(i));
      }
    }
  }
  return shown;
}

QVector<Scripting::Fact> runFacts(const QStringList& arguments) {
  return {
      {QStringLiteral("Date"), QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd hh:mm:ss t"))},
      {QStringLiteral("Program"),
       QCoreApplication::applicationName() + QLatin1Char(' ') + QCoreApplication::applicationVersion()},
      {QStringLiteral("Machine"),
       QStringLiteral("%1, %2 (%3)")
           .arg(QSysInfo::machineHostName(), QSysInfo::prettyProductName(), QSysInfo::currentCpuArchitecture())},
      {QStringLiteral("Folder"), QDir::currentPath()},
      {QStringLiteral("Arguments"), withoutSecrets(arguments).join(QLatin1Char(' '))},
  };
}

}  // namespace Corvex::Webhook
