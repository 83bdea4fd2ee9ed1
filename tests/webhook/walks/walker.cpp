#include "webhook/walks/walker.h"

#include "shared/wait.h"
#include "support/files.h"
#include "webhook/run/keytext.h"

using namespace Corvex;
using namespace Corvex::Webhook;

namespace Walks {

namespace {

const int fewestActs = 6;
const int mostActs = 12;
const int askTimeoutMs = 3000;
const int longestMoveMs = 4000;
const int attempts = 20;

// Changes while anything in the page moves.
const QString layout = QStringLiteral(
    "document.getAnimations().filter(function (a) { return a.playState === 'running'; }).length + ' ' + "
    "[].map.call(document.querySelectorAll('*'), function (e) { var r = e.getBoundingClientRect(); "
    "return [r.left, r.top, r.width, r.height, getComputedStyle(e).opacity]; })");

// Keys in angle brackets would be keys; these are characters.
const char* const words[] = {"milk",   "Ada & Co", "a<b",  "\"so\"",      "Zoë", "тест",
                             "o'Neil", "100%",     "日本", "two  blanks", "x"};

QString actables() {
  static const QString code =
      QString::fromUtf8(TestSupport::readFile(QStringLiteral(CORVEX_TEST_SOURCE "/webhook/walks/actables.js")));
  return code;
}

InputSteps pointerSteps(const QPointF& place, int clicks) {
  InputStep step;
  step.position = place;
  InputSteps steps{step};
  for (step.clicks = 1; step.clicks <= clicks; ++step.clicks) {
    step.kind = InputStep::Press;
    steps << step;
    step.kind = InputStep::Release;
    steps << step;
  }
  return steps;
}

InputSteps keySteps(const QString& text) {
  InputSteps steps;
  for (const KeyTextPart& part : parseKeyText(text)) {
    steps += part.combination.isEmpty() ? stepsForText(part.text) : stepsForCombination(part.combination);
  }
  return steps;
}

}  // namespace

QStringList Walker::walk() {
  m_window = windows().connections().constFirst()->tabId();
  m_firstAddress = window().address();
  settle();
  for (int acts = fewestActs + below(mostActs - fewestActs + 1); acts > 0; --acts) {
    act();
    settle();
  }
  while (answerDialog()) {
    settle();
  }
  return m_done;
}

void Walker::leave() {
  settle();
  m_browser.pressBeside();
  settle();
}

Connection& Walker::window() {
  for (Connection* connection : windows().connections()) {
    if (connection->tabId() == m_window) {
      return *connection;
    }
  }
  m_window = windows().connections().constLast()->tabId();
  return *windows().connections().constLast();
}

void Walker::act() {
  const bool isDone = answerDialog() || (below(3) == 0 && changeWindow()) || (below(7) == 0 && useKeyboard()) ||
                      (below(15) == 0 && useHistory());
  if (!isDone) {
    useThing();
  }
}

bool Walker::answerDialog() {
  for (Connection* connection : windows().connections()) {
    const std::optional<Dialog> dialog = connection->openDialog();
    if (!dialog) {
      continue;
    }
    const bool isYes = below(3) != 0;
    const QString text = below(2) == 0 ? someText() : QString();
    m_done << QStringLiteral("%1 the %2 with \"%3\"").arg(isYes ? "accept" : "dismiss", dialog->kind, text);
    connection->answerDialog(isYes, dialog->kind == QLatin1String("prompt") ? text : QString());
    return true;
  }
  return false;
}

bool Walker::changeWindow() {
  const QVector<Connection*> all = windows().connections();
  if (all.size() < 2) {
    return false;
  }
  const int chosen = below(all.size());
  m_window = all.at(chosen)->tabId();
  if (chosen > 0 && below(3) == 0) {
    m_done << QStringLiteral("close window %1").arg(chosen);
    all.at(chosen)->close();
  } else {
    m_done << QStringLiteral("look at window %1").arg(chosen);
  }
  return true;
}

bool Walker::useKeyboard() {
  static const char* const moves[] = {"<Tab>", "<Tab><Tab>", "<Shift+Tab>"};
  static const char* const presses[] = {"", "<Space>", "<Return>"};
  const QString move = QString::fromLatin1(moves[below(3)]);
  QString press = QString::fromLatin1(presses[below(3)]);
  keys(move);
  settle();
  if (window().evaluateJS(actables() + QStringLiteral("(-2)"), askTimeoutMs).text == QLatin1String("true")) {
    press.clear();
  }
  m_done << QStringLiteral("press ") + move + press;
  keys(press);
  return true;
}

bool Walker::useHistory() {
  windows().setCurrent(&window());
  const bool isMoved = window().address() != m_firstAddress && m_mayGoBack;
  m_done << (isMoved && below(2) == 0 ? QStringLiteral("go back") : QStringLiteral("reload"));
  m_done.constLast() == QLatin1String("reload") ? m_browser.control().reload()
                                                : m_browser.control().goThroughHistory(-1);
  return true;
}

void Walker::useThing() {
  Thing thing;
  if (!chooseThing(thing)) {
    m_done << QStringLiteral("find nothing to do");
  } else if (thing.kind == QLatin1String("text")) {
    fill(thing);
  } else if (thing.kind == QLatin1String("click")) {
    // Who clicks a link or a button that sends something twice clicks what comes next.
    const bool mayTwice = !thing.name.contains(QLatin1String("A ")) && !thing.name.contains(QLatin1String("submit"));
    click(thing, mayTwice && below(6) == 0 ? 2 : 1);
  } else if (thing.kind == QLatin1String("date")) {
    static const char* const dates[] = {"02292024", "12311999"};
    // A field that gets the date that it has tells nobody.
    const QString text = QString::fromLatin1(dates[m_dates++ % 2]);
    m_done << QStringLiteral("type %1 into %2").arg(text, thing.name);
    keys(text);
  } else {
    static const char* const arrows[] = {"<Down>", "<Down><Down>", "<Up>", "<Home>", "<End>"};
    const QString text = QString::fromLatin1(arrows[below(5)]);
    if (thing.kind == QLatin1String("keys")) {
      click(thing, 1);
      settle();
    }
    m_done << QStringLiteral("press %1 on %2").arg(text, thing.name);
    keys(text);
  }
}

bool Walker::chooseThing(Thing& thing) {
  // What shows only while the pointer rests somewhere is not recorded.
  m_browser.restPointer();
  for (int i = 0; i < attempts; ++i) {
    const int count = window().evaluateJS(actables() + QStringLiteral("(-1)"), askTimeoutMs).text.toInt();
    if (count == 0) {
      return false;
    }
    const QString code = actables() + QStringLiteral("(%1)").arg(below(count));
    QString last;
    // It may be on its way to its place.
    poll(longestMoveMs, 60, [&] {
      const QString before = std::exchange(last, window().evaluateJS(code, askTimeoutMs).text);
      return before == last;
    });
    const QStringList answer = last.split(QLatin1Char('|'));
    if (answer.size() >= 4) {
      thing = {answer.at(0), {answer.at(1).toDouble(), answer.at(2).toDouble()}, answer.mid(3).join(QLatin1Char('|'))};
      return true;
    }
  }
  return false;
}

void Walker::click(const Thing& thing, int clicks) {
  m_done << QStringLiteral("%1 %2").arg(clicks > 1 ? "double-click" : "click", thing.name);
  window().perform(pointerSteps(thing.place, clicks));
}

void Walker::fill(const Thing& thing) {
  struct Manner {
    const char* before;
    const char* after;
  };
  static const Manner manners[] = {
      {"<Ctrl+A>", ""}, {"<End>", ""}, {"<Ctrl+A>", "<Return>"}, {"<End><Backspace>", ""}, {"<Ctrl+A>", "<Tab>"}};
  const Manner& manner = manners[below(5)];
  const QString text = QLatin1String(manner.before) + someText() + QLatin1String(manner.after);
  click(thing, 1);
  settle();
  m_done << QStringLiteral("type ") + text;
  keys(text);
}

void Walker::keys(const QString& text) { window().perform(keySteps(text)); }

QString Walker::someText() {
  QString text = QString::fromUtf8(words[below(sizeof words / sizeof *words)]);
  if (below(2) == 0) {
    text += QLatin1Char(' ') + QString::fromUtf8(words[below(sizeof words / sizeof *words)]);
  }
  return text;
}

void Walker::settle() {
  QString last;
  poll(longestMoveMs, 150, [&] {
    for (Connection* connection : windows().connections()) {
      if (connection->openDialog()) {
        return true;
      }
    }
    QString now = m_browser.state();
    for (Connection* connection : windows().connections()) {
      now += connection->evaluateJS(layout, askTimeoutMs).text;
    }
    const QString before = std::exchange(last, now);
    return before == last;
  });
}

}  // namespace Walks
