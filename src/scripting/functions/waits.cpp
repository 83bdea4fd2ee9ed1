#include "scripting/functions/waits.h"

#include <algorithm>
#include <limits>

#include "corvexhook/inspector.h"
#include "scripting/functions/globalfunctions.h"
#include "scripting/objects/valuetext.h"
#include "shared/wait.h"

namespace Corvex::Scripting {

namespace {

const int attemptIntervalMs = 20;

struct Row {
  const char* name;
  const char* usage;
  int minArguments;
  /// The last one is the time.
  int maxArguments;
  /// Says of a wait that it was in vain. `texts` are the arguments.
  QString (*failure)(const QString& milliseconds, const QStringList& texts);
};

const Row rows[] = {
    {"waitFor", "waitFor(function[, milliseconds])", 1, 2,
     [](const QString& ms, const QStringList&) {
       return QStringLiteral("The function given to waitFor answered nothing that counts as true within %1 ms").arg(ms);
     }},
    {"waitForValue", "waitForValue(object, property, value[, milliseconds])", 3, 4,
     [](const QString& ms, const QStringList& texts) {
       return QStringLiteral("The property %1 of %2 did not become %3 within %4 ms")
           .arg(texts.value(1), texts.value(0), texts.value(2), ms);
     }},
    {"waitForUrl", "waitForUrl(pattern[, milliseconds])", 1, 2,
     [](const QString& ms, const QStringList& texts) {
       return QStringLiteral("The address did not fit %1 within %2 ms").arg(texts.value(0), ms);
     }},
};

const Row& rowOf(const QString& name) {
  return *std::find_if(std::begin(rows), std::end(rows),
                       [&name](const Row& candidate) { return name == QLatin1String(candidate.name); });
}

bool isTime(const QJSValue& value) {
  return value.isNumber() && value.toNumber() >= 0 && value.toNumber() <= std::numeric_limits<int>::max();
}

int timeOf(const Row& row, const QJSValueList& arguments) {
  const QJSValue time = arguments.value(row.maxArguments - 1);
  return time.isNumber() ? static_cast<int>(time.toNumber()) : Inspector::self()->defaultTimeout();
}

}  // namespace

QStringList Waits::names() {
  QStringList names;
  for (const Row& row : rows) {
    names << QString::fromLatin1(row.name);
  }
  return names;
}

QString Waits::whyNot(const QString& name, const QJSValueList& arguments) const {
  const Row& row = rowOf(name);
  const QString error =
      countError(name, QString::fromLatin1(row.usage), row.minArguments, row.maxArguments, arguments.size());
  const QJSValue time = arguments.value(row.maxArguments - 1);
  if (!error.isEmpty() || time.isUndefined() || isTime(time)) {
    return error;
  }
  return QStringLiteral("%1: the time to wait must be a number of milliseconds, but got %2.")
      .arg(name, valueText(m_values, time));
}

Waits::Answer Waits::wait(const QString& name, const QJSValueList& arguments, const QJSValue& attempt,
                          const ErrorText& errorText) const {
  const Row& row = rowOf(name);
  const int timeoutMs = timeOf(row, arguments);
  // A script may wait for what has nothing to do with its lost browser.
  const QString known = Inspector::self()->whyNotGoOn();
  QString end;
  QJSValue seen;
  QJSValue look = attempt;
  const bool isFound = poll(timeoutMs, attemptIntervalMs, [&] {
    seen = look.call();
    end = Inspector::self()->whyNotGoOn();
    return seen.property(QStringLiteral("found")).toBool() || (!end.isEmpty() && end != known);
  });
  if (seen.property(QStringLiteral("found")).toBool()) {
    return Answer::success(seen.property(QStringLiteral("value")));
  }
  if (isFound) {
    return Answer::failure(end);
  }
  QStringList texts;
  for (const QJSValue& argument : arguments) {
    texts << valueText(m_values, argument);
  }
  const QString sentence = row.failure(QString::number(timeoutMs), texts);
  return Answer::failure(
      seen.hasProperty(QStringLiteral("error"))
          ? sentence + QStringLiteral(". The last attempt failed: ") + errorText(seen.property(QStringLiteral("error")))
          : sentence +
                QStringLiteral("; it was last %1.").arg(valueText(m_values, seen.property(QStringLiteral("value")))));
}

}  // namespace Corvex::Scripting
