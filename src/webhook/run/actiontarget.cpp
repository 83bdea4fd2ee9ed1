#include "webhook/run/actiontarget.h"

#include "corvexhook/hostservices.h"
#include "corvexhook/inspector.h"
#include "corvexhook/primitives.h"
#include "shared/wait.h"
#include "webhook/pages/connection.h"
#include "wrappers/web/object/wraphtmlobject.h"

#include <QVariant>
#include <cmath>

namespace Corvex::Webhook {

namespace {

const int attemptIntervalMs = 20;

struct ReasonRow {
  const char* state;
  const char* reason;
};

const ReasonRow reasonRows[] = {
    {"gone", "it is no longer in the page"},
    {"hidden", "it is hidden, or has no size"},
    {"beyond", "the position is outside of it"},
    {"disabled", "it is disabled"},
    {"moving", "it keeps moving"},
    {"outside", "it cannot be scrolled into view"},
    {"option", "it is an option of a list that drops down; choose it with selectOption(list, text)"},
};

// In pixels; no page is that large.
const double farthest = 1e6;

/// A name as it stands in a sentence, however long a page makes it.
QString shown(const QString& name) {
  const int most = 500;
  return name.size() <= most ? name : name.left(most) + QLatin1String("...");
}

}  // namespace

ActionTarget::ActionTarget(const SharedPtr<Object>& argument, const char* action, bool isStrict)
    : m_argument(argument),
      m_action(action),
      m_isStrict(isStrict),
      m_end(Clock::current().now() + Inspector::self()->defaultTimeout()) {
  const QVariant value = primitiveValue(argument);
  m_givenName = value.type() == QVariant::String ? value.toString() : QString();
}

QString ActionTarget::find() {
  if (m_givenName.isEmpty()) {
    return takeObject(m_argument);
  }
  const SharedPtr<Object> found = Inspector::self()->findObject(m_givenName, qMax(1, remainingMs()));
  const QString error = Inspector::self()->takeScriptError();
  if (!error.isEmpty() || !found) {
    return error;
  }
  const QString why = m_isStrict ? whyNotUnique() : QString();
  return why.isEmpty() ? takeObject(found) : why;
}

QString ActionTarget::takeObject(const SharedPtr<Object>& object) {
  const HostServices& services = Inspector::self()->hostServices();
  m_object = object;
  m_element = WebWrapper::retrieveObject(object);
  if (!m_element) {
    return QStringLiteral("There is no element to be %1: an object of a page, or its name, is needed.")
        .arg(QLatin1String(m_action));
  }
  const QString dead = services.whyNotUse(object);
  return dead.isEmpty() ? services.whyNotAsk(object) : dead;
}

QString ActionTarget::whyNotUnique() const {
  const ObjectList all = Inspector::self()->lookupAll(m_givenName);
  const QString error = Inspector::self()->takeScriptError();
  if (!error.isEmpty() || all.size() < 2) {
    return error;
  }
  const int most = 10;
  QStringList names;
  for (int i = 0; i < all.size() && i < most; ++i) {
    const WebWrapper::HTML_Object* const element = WebWrapper::retrieveObject(all.at(i));
    const QString code = QStringLiteral("unescape(__corvex__nameOf(%1))");
    names << (element ? shown(element->evaluateJS(code.arg(element->reference)).text) : QString());
  }
  return QStringLiteral("The name '%1' fits %2 objects, so that none was %3. Use the name of one:\n  %4%5")
      .arg(m_givenName, QString::number(all.size()), QLatin1String(m_action), names.join(QLatin1String("\n  ")),
           all.size() > most ? QStringLiteral("\n  ...") : QString());
}

QString ActionTarget::reach(const std::optional<QPointF>& place, bool presses,
                            const std::function<QString(const QPointF&)>& act) {
  QString state;
  int number = 0;
  m_isDone = false;
  poll(remainingMs(), attemptIntervalMs, [&] {
    state = attempt(place, presses, act, number++);
    return m_isDone || !Inspector::self()->whyNotGoOn().isEmpty();
  });
  const QString end = Inspector::self()->whyNotGoOn();
  return m_isDone ? state : end.isEmpty() ? failure(reasonFor(state)) : end;
}

QString ActionTarget::attempt(const std::optional<QPointF>& place, bool presses,
                              const std::function<QString(const QPointF&)>& act, int number) {
  const QString where = place ? QStringLiteral("%1, %2").arg(place->x()).arg(place->y()) : QStringLiteral("null, null");
  const QString function = presses ? QStringLiteral("__corvex__pressPoint") : QStringLiteral("__corvex__actionPoint");
  const JavaScriptAnswer answer =
      ask(QStringLiteral("%1(%2, %3, %4)").arg(function, m_element->reference, where, QString::number(number)));
  if (answer.aborted) {
    m_isDone = true;
    return answer.text;
  }
  const QStringList words = answer.text.split(QLatin1Char(' '));
  m_needsPage = answer.text == QLatin1String("page");
  const bool isGone = answer.failed || words[0] == QLatin1String("gone");
  if (isGone && !m_givenName.isEmpty()) {
    // The page may have put another element in its place.
    const SharedPtr<Object> again = Inspector::self()->lookup(m_givenName);
    Inspector::self()->takeScriptError();
    return again && takeObject(again).isEmpty() ? QStringLiteral("moving") : QStringLiteral("gone");
  }
  if (m_needsPage || words.size() != 3 || words[0] != QLatin1String("at")) {
    m_isDone = m_needsPage;
    return m_needsPage ? QString() : isGone ? QStringLiteral("gone") : words[0];
  }
  const QPointF point(words[1].toDouble(), words[2].toDouble());
  if (!(std::abs(point.x()) < farthest && std::abs(point.y()) < farthest)) {
    return QStringLiteral("outside");
  }
  const QString error = act(point);
  // Where the page went meanwhile, nobody can tell any more what was met.
  const bool isAvailable = error.isEmpty() && presses && connection().isAvailable();
  const bool isCovered =
      isAvailable && ask(QStringLiteral("__corvex__pressCheck.end()")).text == QLatin1String("covered");
  connection().awaitNavigation();
  m_isDone = !isCovered;
  return isCovered ? QStringLiteral("covered") : error;
}

QString ActionTarget::reasonFor(const QString& state) const {
  if (state == QLatin1String("covered")) {
    return QStringLiteral("it is covered by '%1'").arg(shown(ask(QStringLiteral("__corvex__coverName()")).text));
  }
  for (const ReasonRow& row : reasonRows) {
    if (state == QLatin1String(row.state)) {
      return QLatin1String(row.reason);
    }
  }
  return QStringLiteral("its page does not tell where it is");
}

Connection& ActionTarget::connection() const { return *static_cast<Connection*>(m_element->component); }

JavaScriptAnswer ActionTarget::ask(const QString& code) const {
  return m_element->evaluateJS(QString(code).replace(QLatin1String("%1"), m_element->reference));
}

QString ActionTarget::perform(const InputSteps& steps) const { return connection().perform(steps); }

QString ActionTarget::name() const {
  return shown(m_givenName.isEmpty() ? ask(QStringLiteral("unescape(__corvex__nameOf(%1))")).text : m_givenName);
}

QString ActionTarget::failure(const QString& why) const {
  return QStringLiteral("The object '%1' could not be %2 within %3 ms: %4.")
      .arg(name(), QLatin1String(m_action), QString::number(Inspector::self()->defaultTimeout()), why);
}

int ActionTarget::remainingMs() const { return static_cast<int>(qMax<qint64>(0, m_end - Clock::current().now())); }

}  // namespace Corvex::Webhook
