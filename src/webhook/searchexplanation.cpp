#include "webhook/searchexplanation.h"

#include "wrappers/web/escaping.h"
#include "wrappers/web/htmlcomponent.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace Corvex::Webhook {

namespace {

const unsigned int explanationTimeoutMs = 2000;

QString elements(const QString& tag, int count) {
  if (count == 0) {
    return QStringLiteral("No element has the tag %1").arg(tag);
  }
  return count == 1 ? QStringLiteral("1 element has the tag %1").arg(tag)
                    : QStringLiteral("%1 elements have the tag %2").arg(QString::number(count), tag);
}

QString missingProperties(const QJsonArray& missing) {
  QStringList names;
  for (const QJsonValue& name : missing) {
    names << name.toString();
  }
  return names.join(QLatin1String(" or "));
}

}  // namespace

QString explainFailedSearch(WebWrapper::HTMLComponent& page, const QString& name) {
  const QString code = QStringLiteral("JSON.stringify(window.top.__corvex.explainFailedSearch(\"%1\") || {})")
                           .arg(WebWrapper::escapeObjectNameForUseAsStringLiteral(name));
  const WebWrapper::JavaScriptAnswer answer = page.evaluateJS(code, explanationTimeoutMs);
  const QJsonObject why = QJsonDocument::fromJson(answer.text.toUtf8()).object();
  if (why.contains(QLatin1String("problem"))) {
    return QStringLiteral("The name is at fault: %1.").arg(why.value(QLatin1String("problem")).toString());
  }
  if (!answer.succeeded() || !why.contains(QLatin1String("tag"))) {
    return QString();
  }
  const int count = why.value(QLatin1String("count")).toInt();
  const QString found = elements(why.value(QLatin1String("tag")).toString(), count);
  const QString missing = missingProperties(why.value(QLatin1String("missing")).toArray());
  if (count == 0) {
    return found + QLatin1Char('.');
  }
  return missing.isEmpty() ? found + QStringLiteral(", but none had all the properties together.")
                           : found + QStringLiteral(", but none has this %1.").arg(missing);
}

}  // namespace Corvex::Webhook
