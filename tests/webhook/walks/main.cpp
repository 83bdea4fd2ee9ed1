// Has somebody do random things on pages while that is recorded, and the recordings do the same in another browser: the
// pages have to be the same in the end.

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QMap>
#include <QSize>

#include <cstdio>
#include <optional>

#include "webhook/walks/walk.h"
#include "webhook/walks/walkedpages.h"
#include "webhook/walks/walker.h"

using Corvex::Webhook::SessionOptions;
using TestSupport::RecordedBrowser;

namespace Walks {

namespace {

// A browser grows slow with what it was shown.
const int batchSize = 16;
const int askTimeoutMs = 5000;
const QSize viewport(1280, 800);

SessionOptions browserNamed(const QString& name) {
  SessionOptions options;
  options.browser = name;
  return options;
}

/// A browser for one walk after the other, which has forgotten the last one.
class Browser {
public:
  Browser(const WalkedPages& pages, const QString& name, bool isRecorded)
      : m_pages(pages), m_name(name), m_isRecorded(isRecorded) {}

  QString show(const QString& page) {
    if (!m_browser) {
      m_browser.emplace(m_isRecorded, browserNamed(m_name));
    }
    QString error = m_browser->show(m_pages.emptyPage());
    Corvex::Webhook::Connection* const window = m_browser->control().windows()->connections().constFirst();
    window->evaluateJS(QStringLiteral("localStorage.clear(); sessionStorage.clear(); 0"), askTimeoutMs);
    // Styles of pages go by it.
    error += window->page()->setViewport(viewport, 0);
    return error.isEmpty() ? m_browser->show(m_pages.address(page)) : error;
  }
  RecordedBrowser& operator*() { return *m_browser; }
  /// The next walk gets a new one.
  void discard() { m_browser.reset(); }

private:
  const WalkedPages& m_pages;
  QString m_name;
  bool m_isRecorded;
  std::optional<RecordedBrowser> m_browser;
};

void record(Walk& walk, Browser& browser, bool mayGoBack) {
  walk.miss = browser.show(walk.page);
  if (!walk.isEqual()) {
    browser.discard();
    return;
  }
  Walker walker(*browser, walk.seed, mayGoBack);
  walk.acts = walker.walk();
  walk.script = (*browser).recorded().join('\n');
  // Where the focus is in the end is not recorded.
  walker.leave();
  walk.state = (*browser).state();
}

void replay(Walk& walk, Browser& browser) {
  if (walk.isEqual()) {
    walk.miss = browser.show(walk.page);
  }
  if (walk.isEqual()) {
    walk.miss = (*browser).act(walk.script);
  }
  if (walk.isEqual()) {
    Walker(*browser, walk.seed, false).leave();
    walk.miss = firstDifference(walk.state, (*browser).stateAwaited(walk.state));
  }
  if (!walk.isEqual()) {
    browser.discard();
  }
}

void tell(const Walk& walk) {
  const auto inLines = [](const QStringList& lines) { return lines.join(QStringLiteral("\n      ")); };
  std::printf("  MISS on page %s, seed %u: %s\n    done\n      %s\n    recorded\n      %s\n", qPrintable(walk.page),
              walk.seed, qPrintable(walk.miss), qPrintable(inLines(walk.acts)),
              qPrintable(inLines(walk.script.split(QLatin1Char('\n')))));
  std::fflush(stdout);
}

struct Rate {
  int equal = 0;
  int all = 0;
};

struct Wish {
  int walks = 0;
  unsigned int seed = 0;
  QStringList pages;
  QString recordIn;
  QString replayIn;
};

/// Whether all were equal.
bool walkAll(const Wish& wish) {
  const WalkedPages pages;
  QMap<QString, Rate> rates;
  const bool mayGoBack = !wish.recordIn.contains(QLatin1String("firefox"));
  for (int begin = 0; begin < wish.walks; begin += batchSize) {
    std::vector<Walk> walks;
    {
      Browser person(pages, wish.recordIn, true);
      for (int i = begin; i < qMin(begin + batchSize, wish.walks); ++i) {
        Walk walk;
        walk.seed = wish.seed + static_cast<unsigned int>(i);
        walk.page = wish.pages.at(static_cast<int>(walk.seed % static_cast<unsigned int>(wish.pages.size())));
        record(walk, person, mayGoBack);
        walks.push_back(walk);
      }
    }
    Browser script(pages, wish.replayIn, false);
    for (Walk& walk : walks) {
      replay(walk, script);
      ++rates[walk.page].all;
      if (walk.isEqual()) {
        ++rates[walk.page].equal;
      } else {
        tell(walk);
      }
    }
    std::printf("%d walks of %d in %s are done\n", qMin(begin + batchSize, wish.walks), wish.walks,
                qPrintable(wish.recordIn));
    std::fflush(stdout);
  }
  Rate sum;
  std::printf("recorded in %s, replayed in %s, seeds from %u\n", qPrintable(wish.recordIn), qPrintable(wish.replayIn),
              wish.seed);
  for (auto rate = rates.constBegin(); rate != rates.constEnd(); ++rate) {
    std::printf("%6d of %4d equal  %s\n", rate->equal, rate->all, qPrintable(rate.key()));
    sum = {sum.equal + rate->equal, sum.all + rate->all};
  }
  std::printf("%6d of %4d equal\n", sum.equal, sum.all);
  return sum.equal == sum.all;
}

void addOptions(QCommandLineParser& parser) {
  const QString pages = WalkedPages::names().join(QStringLiteral(", "));
  parser.addHelpOption();
  parser.addOption({QStringLiteral("seed"), QStringLiteral("Number of the first walk, 1 without it."),
                    QStringLiteral("S"), QStringLiteral("1")});
  parser.addOption(
      {QStringLiteral("page"), QStringLiteral("Walk on this page only: %1.").arg(pages), QStringLiteral("P")});
  parser.addOption(
      {QStringLiteral("browser"), QStringLiteral("Record in this one, in each without it."), QStringLiteral("B")});
  parser.addOption({QStringLiteral("replay-in"),
                    QStringLiteral("Replay in this one, where it was recorded without it."), QStringLiteral("B")});
  parser.addPositionalArgument(QStringLiteral("N"), QStringLiteral("How many walks in each browser, 20 without it."));
}

/// Why the command line makes no sense; empty where it does.
QString readWish(const QCommandLineParser& parser, Wish& wish) {
  const QString page = parser.value(QStringLiteral("page"));
  const QString walks = parser.positionalArguments().value(0, QStringLiteral("20"));
  bool isSeed = false;
  wish.walks = walks.toInt();
  wish.seed = parser.value(QStringLiteral("seed")).toUInt(&isSeed);
  wish.pages = page.isEmpty() ? WalkedPages::names() : QStringList{page};
  if (wish.walks < 1 || !isSeed) {
    return QStringLiteral("there are walks from 1 on, and seeds from 0 on");
  }
  if (!WalkedPages::names().contains(wish.pages.constFirst())) {
    return QStringLiteral("there is no page '%1'; there are %2")
        .arg(page, WalkedPages::names().join(QStringLiteral(", ")));
  }
  return QString();
}

int run() {
  QCommandLineParser parser;
  addOptions(parser);
  parser.process(*QCoreApplication::instance());
  Wish wish;
  const QString error = readWish(parser, wish);
  if (!error.isEmpty()) {
    std::fprintf(stderr, "walks: %s.\n", qPrintable(error));
    return 2;
  }
  QStringList browsers{QStringLiteral("chromium"), QStringLiteral("firefox")};
  if (parser.isSet(QStringLiteral("browser"))) {
    browsers = QStringList{parser.value(QStringLiteral("browser"))};
  }
  bool areEqual = true;
  for (const QString& name : browsers) {
    wish.recordIn = name;
    wish.replayIn = parser.isSet(QStringLiteral("replay-in")) ? parser.value(QStringLiteral("replay-in")) : name;
    areEqual = walkAll(wish) && areEqual;
  }
  return areEqual ? 0 : 1;
}

}  // namespace

}  // namespace Walks

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  return Walks::run();
}
