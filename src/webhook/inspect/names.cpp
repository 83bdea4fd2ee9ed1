#include "webhook/inspect/names.h"

#include "webhook/inspect/namesroads.h"
#include "webhook/protocol/inpagetext.h"
#include "wrappers/web/page/escaping.h"
#include "wrappers/web/page/htmlcomponent.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace Corvex::Webhook {

namespace {

// So many names go to the page and back at once: a search looks at every element first.
const int mostAtOnce = 2000;

struct RuleRow {
  const char* key;
  const char* sentence;
};

const RuleRow rules[] = {
    {"gone", "it left the page meanwhile"},
    {"field", "a property that takes part in its name is no text"},
    {"context", "its context's name holds characters that are written escaped there"},
    {"percent", "in a name with a context a percent sequence is read as the character that it stands for"},
    {"wildcard", "in the wildcard of its image's address the circumflex stands for no character"},
    {"form", "the search takes another form for its form, by that name"},
    {"host", "the host of its shadow tree is named as the link around it"},
    {"image", "in a shadow tree a link is not found by its image's name, id or visibility"},
    {"container", "names inside a container get no occurrence, and another element there fits"},
    {"words", "a text, an id or a name on the page reads as its name does"},
    {"leaf", "its path holds a dot in a tag name, or a step that an earlier child has, too"},
    {"ampersand", "another element has '&amp;' where this one has '&'"},
};

QString sentenceOfRule(const QString& key) {
  for (const RuleRow& row : rules) {
    if (key == QLatin1String(row.key)) {
      return QString::fromLatin1(row.sentence);
    }
  }
  return QString();
}

// The page's escape, without what the wrapper's own reading of it does to ampersands.
QString readableText(const QString& escaped) {
  return WebWrapper::unescape(escaped).replace(QLatin1String("&amp;"), QLatin1String("&"));
}

QString textOf(const QJsonObject& record, const char* member) { return record.value(QLatin1String(member)).toString(); }

QJsonArray results(const QJsonObject& answer) { return answer.value(QLatin1String("results")).toArray(); }

int milliseconds(const QJsonObject& answer) { return answer.value(QLatin1String("milliseconds")).toInt(); }

NamedElement readName(const QJsonObject& record) {
  NamedElement element;
  element.element = readableText(textOf(record, "element"));
  element.name = readableText(textOf(record, "name"));
  element.kind = kindOfName(element.name);
  if (element.name.isEmpty()) {
    element.why = QStringLiteral("its naming failed: %1").arg(readableText(textOf(record, "error")));
  }
  return element;
}

/// The roads to try. None for a name that look-ups refuse; `element` then says so.
QJsonArray findRoads(const QJsonObject& record, NamedElement* element) {
  if (element->name.isEmpty()) {
    return QJsonArray();
  }
  // The name as scripts are given it.
  const NameRoads roads = roadsOfName(WebWrapper::unescape(textOf(record, "name")));
  if (!roads.error.isEmpty()) {
    element->why = QStringLiteral("its name cannot be read: %1").arg(roads.error);
  } else if (!roads.refusal.isEmpty()) {
    element->outcome = NameOutcome::LostByRule;
    element->why = roads.refusal;
  }
  return roads.roads;
}

void readOutcome(const QJsonObject& record, NamedElement* element) {
  const QString found = textOf(record, "found");
  const QString rule = sentenceOfRule(textOf(record, "rule"));
  element->other = readableText(textOf(record, "other"));
  if (found == QLatin1String("itself") || found == QLatin1String("link")) {
    element->outcome = found == QLatin1String("link") ? NameOutcome::Link : NameOutcome::Itself;
  } else if (element->outcome == NameOutcome::Lost && !rule.isEmpty()) {
    element->outcome = NameOutcome::LostByRule;
    element->why = rule;
  } else if (element->why.isEmpty()) {
    element->why =
        element->other.isEmpty() ? QStringLiteral("nothing is found") : QStringLiteral("another element is found");
  }
}

/// One check, step by step; all state of the page's side is in the page.
class Check {
public:
  Check(WebWrapper::HTMLComponent& page, int timeoutMs) : m_page(page), m_timeoutMs(timeoutMs) {}

  NamesCheck run() {
    const WebWrapper::JavaScriptAnswer loaded = m_page.evaluateJS(inPageText("names.js"), timeout());
    if (!loaded.succeeded()) {
      m_check.error = loaded.text;
      return m_check;
    }
    const int count = ask(QStringLiteral("start()")).value(QLatin1String("count")).toInt();
    for (int from = 0; m_check.error.isEmpty() && from < count;) {
      from = checkSome(from);
    }
    ask(QStringLiteral("end()"));
    return m_check;
  }

private:
  unsigned int timeout() const { return static_cast<unsigned int>(m_timeoutMs); }

  /// The object that the page answers; an empty one with an error.
  QJsonObject ask(const QString& call) {
    const WebWrapper::JavaScriptAnswer answer =
        m_page.evaluateJS(QStringLiteral("JSON.stringify(__corvex.namesCheck.") + call + QLatin1Char(')'), timeout());
    if (!answer.succeeded() && m_check.error.isEmpty()) {
      m_check.error = answer.text;
    }
    return QJsonDocument::fromJson(answer.text.toUtf8()).object();
  }

  /// Names and searches elements from `from` on; answers where to go on.
  int checkSome(int from) {
    const QJsonObject named =
        ask(QStringLiteral("names(%1, %2)").arg(QString::number(from), QString::number(mostAtOnce)));
    m_check.namingMs += milliseconds(named);
    QVector<NamedElement> elements;
    QVector<QJsonArray> roads;
    for (const QJsonValue& record : results(named)) {
      elements.append(readName(record.toObject()));
      roads.append(findRoads(record.toObject(), &elements.last()));
    }
    noteProgress(elements.size());
    for (int done = 0; m_check.error.isEmpty() && done < elements.size();) {
      done += search(from + done, roads.mid(done), elements.data() + done);
    }
    m_check.elements += elements;
    return from + elements.size();
  }

  /// Searches as many of the elements from `from` on as the page finds the time for; answers how many.
  int search(int from, const QVector<QJsonArray>& roads, NamedElement* elements) {
    QJsonArray list;
    for (const QJsonArray& roadsOfOne : roads) {
      list.append(roadsOfOne);
    }
    const QString plans = QString::fromUtf8(QJsonDocument(list).toJson(QJsonDocument::Compact));
    const QJsonObject found = ask(QStringLiteral("searches(%1, ").arg(from) + plans + QLatin1Char(')'));
    m_check.searchMs += milliseconds(found);
    const QJsonArray records = results(found);
    for (const QJsonValue& record : records) {
      readOutcome(record.toObject(), elements++);
    }
    noteProgress(records.size());
    return records.size();
  }

  /// A page that answers anything else than what it was asked for must not be asked for ever.
  void noteProgress(int count) {
    if (count == 0 && m_check.error.isEmpty()) {
      m_check.error = QStringLiteral("The page gave no answer that can be read.");
    }
  }

  WebWrapper::HTMLComponent& m_page;
  const int m_timeoutMs;
  NamesCheck m_check;
};

}  // namespace

NamesCheck checkNames(WebWrapper::HTMLComponent& page, int timeoutMs) { return Check(page, timeoutMs).run(); }

}  // namespace Corvex::Webhook
