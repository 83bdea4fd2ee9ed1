// The name of every element of any page finds that element again, unless the rules of naming cannot tell it from
// another.

#include <gtest/gtest.h>

#include <QSet>

#include "names/pagegenerator.h"
#include "support/hookedbrowser.h"
#include "support/printing.h"
#include "webhook/inspect/names.h"

namespace {

using namespace Corvex::Webhook;
using TestSupport::HookedBrowser;

struct Round {
  const char* name;
  PageFeatures features;
  unsigned int firstSeed;
  int pages;
  bool mayLoseByRule;
};

const Round rounds[] = {
    {"Plain", {}, 1, 8, false},
    {"Frames", {true, false, false}, 101, 8, true},
    {"ShadowTrees", {false, true, false}, 201, 8, true},
    {"OddForms", {false, false, true}, 301, 8, true},
    {"Everything", {true, true, true}, 401, 8, true},
};

void PrintTo(const Round& round, std::ostream* out) { *out << round.name; }

class RoundTrip : public testing::TestWithParam<Round> {};

TEST_P(RoundTrip, FindsEveryElementAgain) {
  const Round& round = GetParam();
  QSet<int> kinds;
  for (int i = 0; i < round.pages; ++i) {
    const unsigned int seed = round.firstSeed + static_cast<unsigned int>(i);
    SCOPED_TRACE(seed);
    HookedBrowser::instance().load(PageGenerator(seed, round.features).body());
    const NamesCheck check = checkNames(HookedBrowser::instance().connection(), 0);
    ASSERT_EQ(check.error, QString());
    EXPECT_GT(check.elements.size(), 15);
    for (const NamedElement& element : check.elements) {
      kinds.insert(static_cast<int>(element.kind));
      const bool isFine =
          element.outcome != NameOutcome::Lost && (round.mayLoseByRule || element.outcome != NameOutcome::LostByRule);
      EXPECT_TRUE(isFine) << qPrintable(element.element) << "\n  named " << qPrintable(element.name) << "\n  "
                          << qPrintable(element.why) << "\n  found " << qPrintable(element.other);
    }
  }
  for (const NameKind kind :
       {NameKind::Control, NameKind::Link, NameKind::Image, NameKind::Named, NameKind::Text, NameKind::Hierarchical}) {
    EXPECT_TRUE(kinds.contains(static_cast<int>(kind))) << static_cast<int>(kind);
  }
}

INSTANTIATE_TEST_SUITE_P(Names, RoundTrip, testing::ValuesIn(rounds),
                         [](const auto& round) { return round.param.name; });

}  // namespace
