#include "webhook/typings/memberdescriptions.h"

#include <QRegularExpression>

namespace Corvex::Webhook {

namespace {

QString inCss(const QString& member) {
  static const QRegularExpression capital(QStringLiteral("([A-Z])"));
  return QString(member).replace(capital, QStringLiteral("-\\1")).toLower();
}

}  // namespace

MemberDescriptions::MemberDescriptions(const QString& text) {
  for (const QString& line : text.split(QLatin1Char('\n'))) {
    read(line);
  }
}

void MemberDescriptions::read(const QString& line) {
  static const QRegularExpression entry(QStringLiteral("^([\\w.*]+)(?:: (.+?))? = (.+)$"));
  if (line.startsWith(QLatin1String("# "))) {
    m_groups.push_back({line.mid(2), {}, {}});
    return;
  }
  if (line.startsWith(QLatin1String("> ")) && !m_groups.isEmpty()) {
    m_groups.last().prose << line.mid(2);
    return;
  }
  const QRegularExpressionMatch match = entry.match(line);
  if (!match.hasMatch()) {
    return;
  }
  const QString key = match.captured(1);
  m_entries.insert(key, {match.captured(2), match.captured(3)});
  if (!key.contains(QLatin1Char('.')) && !m_groups.isEmpty()) {
    m_groups.last().classes << key;
  }
}

QString MemberDescriptions::sentence(const QString& key) const {
  const auto found = m_entries.constFind(key);
  if (found != m_entries.constEnd()) {
    return found->sentence;
  }
  const int dot = key.indexOf(QLatin1Char('.'));
  const QString any = dot < 0 ? QString() : m_entries.value(key.left(dot) + QLatin1String(".*")).sentence;
  return any.isEmpty() ? QString() : any.arg(inCss(key.mid(dot + 1)));
}

}  // namespace Corvex::Webhook
