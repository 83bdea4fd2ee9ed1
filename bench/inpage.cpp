#include "hookedpage.h"
#include "subjects.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace CorvexBench {

namespace {

const int rowTimeoutMs = 300000;

/// The value of an expression of the page; the error goes to standard error.
QJsonValue evaluate(Corvex::Webhook::Connection& connection, const QString& expression) {
  const auto answer = connection.evaluateJS(QStringLiteral("JSON.stringify([%1])").arg(expression), rowTimeoutMs);
  if (!answer.succeeded()) {
    fail(answer.text);
    return QJsonValue::Undefined;
  }
  return QJsonDocument::fromJson(answer.text.toUtf8()).array().at(0);
}

}  // namespace

bool measureInPage(const SessionOptions& options, Report& report) {
  QFile script(QStringLiteral(CORVEX_BENCH_SOURCE "/inpage.js"));
  if (!script.open(QIODevice::ReadOnly)) {
    return fail(script.fileName() + QStringLiteral(" cannot be read: ") + script.errorString());
  }
  HookedPage page;
  QString error = page.start(options);
  error = error.isEmpty() ? page.connection().navigate(QStringLiteral("data:text/html,<!DOCTYPE html><body></body>"))
                          : error;
  if (!error.isEmpty()) {
    return fail(error);
  }
  const QString code = QString::fromUtf8(script.readAll());
  const int rows =
      evaluate(page.connection(), QStringLiteral("(function () { %1; return inPageBench.count; })()").arg(code))
          .toInt();
  report.section(QStringLiteral("In the page"));
  for (int i = 0; i < rows; ++i) {
    const QJsonObject row = evaluate(page.connection(), QStringLiteral("inPageBench.measure(%1)").arg(i)).toObject();
    if (row.contains(QStringLiteral("error")) || row.isEmpty()) {
      return fail(row[QStringLiteral("error")].toString());
    }
    std::vector<double> times;
    for (const QJsonValue& time : row[QStringLiteral("times")].toArray()) {
      times.push_back(time.toDouble());
    }
    report.add({row[QStringLiteral("name")].toString(), median(times), row[QStringLiteral("aim")].toDouble()});
  }
  return rows > 0;
}

}  // namespace CorvexBench
