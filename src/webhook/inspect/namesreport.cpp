#include "webhook/inspect/namesreport.h"

#include "shared/visibletext.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace Corvex::Webhook {

namespace {

struct KindRow {
  NameKind kind;
  const char* text;
};

const KindRow kinds[] = {
    {NameKind::Control, "control"}, {NameKind::Link, "link"}, {NameKind::Image, "image"},
    {NameKind::Named, "named"},     {NameKind::Text, "text"}, {NameKind::Hierarchical, "hierarchical"},
    {NameKind::None, "no name"},
};

struct OutcomeRow {
  NameOutcome outcome;
  const char* text;
  const char* key;
};

const OutcomeRow outcomes[] = {
    {NameOutcome::Itself, "found", "found"},
    {NameOutcome::Link, "as link", "asLink"},
    {NameOutcome::LostByRule, "by rule", "lostByRule"},
    {NameOutcome::Lost, "LOST", "lost"},
};

const OutcomeRow& rowOf(NameOutcome outcome) {
  return *std::find_if(std::begin(outcomes), std::end(outcomes),
                       [outcome](const OutcomeRow& row) { return row.outcome == outcome; });
}

QString textOf(NameKind kind) {
  const auto* row = std::find_if(std::begin(kinds), std::end(kinds),
                                 [kind](const KindRow& candidate) { return candidate.kind == kind; });
  return QString::fromLatin1(row->text);
}

bool isFound(const NamedElement& element) {
  return element.outcome == NameOutcome::Itself || element.outcome == NameOutcome::Link;
}

QVector<NamedElement> listedOf(const NamesCheck& check, NamesListed listed) {
  QVector<NamedElement> elements;
  std::copy_if(check.elements.begin(), check.elements.end(), std::back_inserter(elements),
               [listed](const NamedElement& element) { return listed == NamesListed::All || !isFound(element); });
  return elements;
}

int count(const QVector<NamedElement>& elements, NameOutcome outcome) {
  return static_cast<int>(std::count_if(elements.begin(), elements.end(),
                                        [outcome](const NamedElement& element) { return element.outcome == outcome; }));
}

QVector<NamedElement> ofKind(const QVector<NamedElement>& elements, NameKind kind) {
  QVector<NamedElement> some;
  std::copy_if(elements.begin(), elements.end(), std::back_inserter(some),
               [kind](const NamedElement& element) { return element.kind == kind; });
  return some;
}

QString lineOf(const NamedElement& element) {
  QString line = QStringLiteral("%1 %2 %3")
                     .arg(QLatin1String(rowOf(element.outcome).text), -8)
                     .arg(textOf(element.kind), -12)
                     .arg(element.name.isEmpty() ? QStringLiteral("-") : element.name);
  line += QStringLiteral("  %1").arg(element.element);
  if (!isFound(element)) {
    line += QStringLiteral("  %1").arg(element.why);
    line += element.other.isEmpty() ? QString() : QStringLiteral("; found: %1").arg(element.other);
  }
  return visibleText(line, LineBreaks::Shown) + QLatin1Char('\n');
}

double percentage(int part, int whole) { return whole == 0 ? 0 : 100.0 * part / whole; }

QString summaryLine(const QString& title, const QVector<NamedElement>& elements) {
  QString line = QStringLiteral("%1 %2").arg(title, -12).arg(elements.size(), 8);
  for (const OutcomeRow& row : outcomes) {
    const int number = count(elements, row.outcome);
    line += QStringLiteral(" %1 %2 %").arg(number, 7).arg(percentage(number, elements.size()), 5, 'f', 1);
  }
  return line + QLatin1Char('\n');
}

QString summaryTable(const NamesCheck& check) {
  QString table = QStringLiteral("%1 %2").arg(QStringLiteral("rule"), -12).arg(QStringLiteral("elements"), 8);
  for (const OutcomeRow& row : outcomes) {
    table += QStringLiteral(" %1").arg(QLatin1String(row.text), 15);
  }
  table += QLatin1Char('\n');
  for (const KindRow& row : kinds) {
    const QVector<NamedElement> elements = ofKind(check.elements, row.kind);
    if (!elements.isEmpty()) {
      table += summaryLine(QString::fromLatin1(row.text), elements);
    }
  }
  return table + summaryLine(QStringLiteral("all"), check.elements);
}

double perElement(qint64 milliseconds, const NamesCheck& check) {
  return check.elements.isEmpty() ? 0 : static_cast<double>(milliseconds) / check.elements.size();
}

QJsonObject summaryAsJson(const QVector<NamedElement>& elements) {
  QJsonObject summary{{QStringLiteral("elements"), elements.size()}};
  for (const OutcomeRow& row : outcomes) {
    summary.insert(QLatin1String(row.key), count(elements, row.outcome));
  }
  return summary;
}

QJsonObject elementAsJson(const NamedElement& element) {
  QJsonObject object{{QStringLiteral("element"), element.element},
                     {QStringLiteral("name"), element.name},
                     {QStringLiteral("rule"), textOf(element.kind)},
                     {QStringLiteral("outcome"), QLatin1String(rowOf(element.outcome).key)}};
  if (!isFound(element)) {
    object.insert(QStringLiteral("why"), element.why);
    object.insert(QStringLiteral("found"), element.other);
  }
  return object;
}

}  // namespace

QString namesReport(const NamesCheck& check, NamesListed listed) {
  QString report;
  for (const NamedElement& element : listedOf(check, listed)) {
    report += lineOf(element);
  }
  return report + (report.isEmpty() ? QString() : QStringLiteral("\n")) + summaryTable(check) +
         QStringLiteral("\n%1 elements: naming took %2 ms for each, searching for the name %3 ms.\n")
             .arg(check.elements.size())
             .arg(perElement(check.namingMs, check), 0, 'f', 2)
             .arg(perElement(check.searchMs, check), 0, 'f', 2);
}

QString namesReportAsJson(const NamesCheck& check, NamesListed listed) {
  QJsonArray elements;
  for (const NamedElement& element : listedOf(check, listed)) {
    elements.append(elementAsJson(element));
  }
  QJsonObject summary{{QStringLiteral("all"), summaryAsJson(check.elements)}};
  for (const KindRow& row : kinds) {
    summary.insert(QLatin1String(row.text), summaryAsJson(ofKind(check.elements, row.kind)));
  }
  const QJsonObject report{{QStringLiteral("elements"), elements},
                           {QStringLiteral("summary"), summary},
                           {QStringLiteral("namingMilliseconds"), check.namingMs},
                           {QStringLiteral("searchMilliseconds"), check.searchMs}};
  return visibleText(QString::fromUtf8(QJsonDocument(report).toJson()));
}

bool namesAreGood(const NamesCheck& check) { return count(check.elements, NameOutcome::Lost) == 0; }

}  // namespace Corvex::Webhook
