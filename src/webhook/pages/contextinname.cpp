#include "webhook/pages/contextinname.h"

#include "wrappers/web/page/escaping.h"

#include <QRegularExpression>

namespace Corvex::Webhook {

namespace {

const QRegularExpression& headOfElement() {
  static const QRegularExpression head(QStringLiteral("^\\{context='[^']*' "));
  return head;
}

const QRegularExpression& headOfDocument() {
  static const QRegularExpression head(QStringLiteral("^DOCUMENT\\[([^\\]]*)\\]"));
  return head;
}

}  // namespace

std::optional<QString> contextOfDocument(const QString& name) {
  const QRegularExpressionMatch head = headOfDocument().match(name);
  return head.hasMatch() ? std::optional<QString>(head.captured(1).replace(QLatin1Char('|'), QLatin1Char('.')))
                         : std::nullopt;
}

QString documentOf(QString context) {
  return QStringLiteral("DOCUMENT[%1]").arg(context.replace(QLatin1Char('.'), QLatin1Char('|')));
}

bool namesItsContext(const QString& name) {
  return headOfElement().match(name).hasMatch() || headOfDocument().match(name).hasMatch();
}

QString inContext(QString name, const QString& context) {
  if (name.startsWith(QLatin1Char('{'))) {
    name.replace(headOfElement(), QStringLiteral("{"));
    return QStringLiteral("{context='%1' ").arg(WebWrapper::escapeQuoteWithBackslash(context)) + name.mid(1);
  }
  const QRegularExpressionMatch head = headOfDocument().match(name);
  const int length = head.hasMatch() ? head.capturedLength() : QStringLiteral("DOCUMENT").size();
  return name.startsWith(QLatin1String("DOCUMENT")) ? documentOf(context) + name.mid(length) : name;
}

}  // namespace Corvex::Webhook
