// Where the rules of naming and search lose an element, the check says which rule; anything else is a fault.

#include <gtest/gtest.h>

#include "support/hookedbrowser.h"
#include "support/printing.h"
#include "webhook/inspect/names.h"

namespace {

using namespace Corvex::Webhook;
using TestSupport::HookedBrowser;

struct Loss {
  const char* rule;
  const char* body;
  const char* element;  ///< Begin of the opening tag of the one that is lost; all others are found.
  NameOutcome outcome;
  const char* why;
};

void PrintTo(const Loss& loss, std::ostream* out) { *out << loss.rule; }

class Losses : public testing::TestWithParam<Loss> {};

TEST_P(Losses, AreExplained) {
  HookedBrowser::instance().load(QString::fromUtf8(GetParam().body));
  const NamesCheck check = checkNames(HookedBrowser::instance().connection(), 0);
  ASSERT_EQ(check.error, QString());
  int lost = 0;
  for (const NamedElement& element : check.elements) {
    if (element.outcome == NameOutcome::Itself || element.outcome == NameOutcome::Link) {
      continue;
    }
    ++lost;
    EXPECT_TRUE(element.element.startsWith(QLatin1String(GetParam().element))) << qPrintable(element.element);
    EXPECT_EQ(element.outcome, GetParam().outcome);
    EXPECT_TRUE(element.why.contains(QLatin1String(GetParam().why))) << qPrintable(element.why);
  }
  EXPECT_EQ(lost, 1);
}

const NameOutcome byRule = NameOutcome::LostByRule;

const Loss losses[] = {
    {"Container", "<x-h><template shadowrootmode=open><i title=a></i><i title=a class=second></i></template></x-h>",
     "<i title=\"a\" class=\"second\"", byRule, "names inside a container get no occurrence"},
    {"LightChild", "<x-h><template shadowrootmode=open><b title=a></b></template><b title=a></b></x-h>",
     "<b title=\"a\"", byRule, "names inside a container get no occurrence"},
    {"ImageOfLink", "<x-h><template shadowrootmode=open><a href='#' class=a><img name=n></a></template></x-h>", "<a",
     byRule, "by its image's name"},
    {"HostInLink", "<a href='#'><x-h><template shadowrootmode=open><i title=a></i></template></x-h>go</a>", "<i",
     byRule, "the host of its shadow tree"},
    {"FrameAndShadow",
     "<iframe srcdoc=\"<x-h><template shadowrootmode=open><i title=a></i></template></x-h>\"></iframe>", "<i", byRule,
     "both a context and a container"},
    {"Percent", "<iframe srcdoc=\"<p title='%41'></p>\"></iframe>", "<p", byRule, "a percent sequence"},
    {"QuoteInPercents", "<iframe srcdoc=\"<a href='#'><img src='/it%27s'></a>\"></iframe>", "<a", byRule,
     "a percent sequence"},
    {"Circumflex", "<a href='#'><img src='data:,/a?^'></a>", "<a", byRule, "the circumflex"},
    {"FormOfThatName", "<form name=f><input></form><form name=f><input id=other></form>", "<input id=\"other\"", byRule,
     "another form"},
    {"FieldCalledName", "<form><input name=name></form>", "<form", byRule, "is no text"},
    {"DottedTag", "<x-a.b></x-a.b>", "<x-a.b", byRule, "a dot in a tag name"},
    {"TextOfThatName", "<p></p><a href='#'>DOCUMENT.HTML1.BODY1.P1</a>", "<p", byRule, "reads as its name does"},
    {"SharedStep",
     "<h1></h1><h></h><h></h><h></h><h></h><h></h><h></h><h></h><h></h><h></h><h></h><h class=eleven></h>",
     "<h class=\"eleven\"", byRule, "a step that an earlier child has"},
    {"Ampersand", "<p title='&amp;amp;'></p><p title='&amp;' class=plain></p>", "<p title=\"&\"", byRule, "'&amp;'"},
    {"ChangingTitle",
     "<p></p><script>var n = 0; Object.defineProperty(document.getElementsByTagName('p')[0], 'title',"
     "{ get: function () { return 't' + ++n; } });</script>",
     "<p", NameOutcome::Lost, "nothing is found"},
};

TEST(LossesOfFrames, AContextThatIsWrittenEscapedIsNamed) {
  HookedBrowser& browser = HookedBrowser::instance();
  browser.server().add(QStringLiteral("/a b.html"), {"<iframe srcdoc='<p title=x></p>'></iframe>"});
  ASSERT_EQ(browser.connection().navigate(browser.server().url(QStringLiteral("/a%20b.html"))), QString());
  const NamesCheck check = checkNames(browser.connection(), 0);
  int lost = 0;
  for (const NamedElement& element : check.elements) {
    lost += element.outcome == byRule && element.why.startsWith(QLatin1String("its context's name")) ? 1 : 0;
    EXPECT_NE(element.outcome, NameOutcome::Lost) << qPrintable(element.name);
  }
  EXPECT_GE(lost, 3) << "HTML, HEAD and BODY of the frame, at least, cannot be told from those of the page.";
}

INSTANTIATE_TEST_SUITE_P(Names, Losses, testing::ValuesIn(losses), [](const auto& loss) { return loss.param.rule; });

}  // namespace
