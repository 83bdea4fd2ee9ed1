#include "webhook/pages/dialogsentence.h"

namespace Corvex::Webhook {

QString answeredAs(const QString& kind) {
  return kind == QLatin1String("beforeunload") ? QStringLiteral("confirm") : kind;
}

QString dialogSentence(const QString& who, const QString& kind, const QString& text) {
  const QString function = answeredAs(kind).left(1).toUpper() + answeredAs(kind).mid(1);
  // The question whether to leave a page has a text of the browser's, or none.
  const QString what = answeredAs(kind) == kind ? QStringLiteral("%1: '%2'").arg(kind, text) : kind;
  return QStringLiteral("The %1 shows a dialog (%2). Answer it with close%3.").arg(who, what, function);
}

}  // namespace Corvex::Webhook
