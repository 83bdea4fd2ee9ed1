#include "scripting/engine/scripterrors.h"

#include <QRegularExpression>

#include "scripting/objects/values.h"

namespace Corvex::Scripting {

namespace {

// How the script engine writes the object of a variable.
const QLatin1String scope("[null]");

// How it puts that a call is none.
QString noFunction(const QString& member, const QString& objectText) {
  return QStringLiteral("Property '%1' of object %2 is not a function").arg(member, objectText);
}

QString hiddenFunction(const QString& name) {
  return QStringLiteral("'%1' is a variable of the script here, and not the function: give the variable another name.")
      .arg(name);
}

}  // namespace

QString ScriptErrors::textOf(const QJSValue& thrown, const QStringList& functions) const {
  if (!thrown.isError()) {
    return QStringLiteral("The script threw %1, which is no Error: use throw new Error(text) to see the line.")
        .arg(thrown.isString() ? QLatin1Char('\'') + thrown.toString() + QLatin1Char('\'') : thrown.toString());
  }
  const QString message = thrown.property(QStringLiteral("message")).toString();
  const QString sentence = sentenceFor(message, functions);
  if (!sentence.isEmpty()) {
    return sentence;
  }
  const QString name = thrown.property(QStringLiteral("name")).toString();
  return name == QLatin1String("Error") ? message : name + QLatin1String(": ") + message;
}

QString ScriptErrors::sentenceFor(const QString& message, const QStringList& functions) const {
  static const QRegularExpression form(
      QStringLiteral("^(?:Property '(?<member>[^']*)' of object .* is not a function|(?<unset>\\S+) is not defined)$"),
      QRegularExpression::DotMatchesEverythingOption);
  const QRegularExpressionMatch match = form.match(message);
  const QString unset = match.captured(QStringLiteral("unset"));
  // Only a variable that has no value yet hides a function so that there is nothing.
  if (functions.contains(unset)) {
    return hiddenFunction(unset);
  }
  const QString member = match.captured(QStringLiteral("member"));
  if (message == noFunction(member, scope)) {
    return functions.contains(member) ? hiddenFunction(member) : QStringLiteral("'%1' is not a function.").arg(member);
  }
  if (m_lastRead.object && member == m_lastRead.name &&
      message == noFunction(member, Values::textOf(m_lastRead.object))) {
    return QStringLiteral("'%1' is not a function: it is a property, use it without ().").arg(member);
  }
  return m_lacked.value(member);
}

}  // namespace Corvex::Scripting
