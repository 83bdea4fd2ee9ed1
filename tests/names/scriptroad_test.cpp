// The check names and searches many elements in one call of the page. Its answers are those of a script that asks for
// one after the other.

#include <gtest/gtest.h>

#include "corvexhook/delegate.h"
#include "corvexhook/inspector.h"
#include "names/pagegenerator.h"
#include "support/hookedbrowser.h"
#include "support/printing.h"
#include "webhook/inspect/names.h"
#include "wrappers/web/object/retrievehtmlobject.h"
#include "wrappers/web/object/wraphtmlobject.h"

namespace {

using namespace Corvex;
using namespace Corvex::Webhook;
using TestSupport::HookedBrowser;

const char* const collectElements = R"JS(
  window.walked = [];
  (function walk(root) {
    root.querySelectorAll('*').forEach(function (e) {
      walked.push(e);
      if (e.shadowRoot) { walk(e.shadowRoot); }
    });
    if (root.nodeType === 9) {
      root.querySelectorAll('iframe').forEach(function (f) { walk(f.contentDocument); });
    }
  })(document);
  walked.length;
)JS";

/// A script's answers for one element.
struct ScriptAnswers {
  QString name;
  bool finds = false;
  bool findsItself = false;
};

ScriptAnswers askAsScript(int index) {
  HookedBrowser& browser = HookedBrowser::instance();
  const QString element = QStringLiteral("walked[%1]").arg(index);
  browser.connection().evaluateJS(QStringLiteral("__corvex__ctxwin = %1.ownerDocument.defaultView; 0").arg(element), 0);
  const SharedPtr<Object> object = WebWrapper::wrapObject(
      WebWrapper::htmlObjectFromJavaScriptResult(&browser.connection(), element, QString(), 0).value);
  ScriptAnswers answers;
  answers.name = hierarchyDelegate(object)->qualifiedName(object);
  browser.connection().evaluateJS(QStringLiteral("__corvex__ctxwin = window; 0"), 0);
  const SharedPtr<Object> found = Inspector::self()->lookup(answers.name);
  Inspector::self()->takeScriptError();
  answers.finds = bool(found);
  answers.findsItself =
      found && browser.evaluate(WebWrapper::retrieveObject(found)->reference + " === " + element) == true;
  return answers;
}

class ScriptRoad : public testing::TestWithParam<unsigned int> {};

TEST_P(ScriptRoad, GivesTheSameAnswers) {
  HookedBrowser& browser = HookedBrowser::instance();
  browser.load(PageGenerator(GetParam(), {true, true, true}).body());
  const NamesCheck check = checkNames(browser.connection(), 0);
  ASSERT_EQ(check.error, QString());
  const int count = browser.connection().evaluateJS(QString::fromLatin1(collectElements), 0).text.toInt();
  ASSERT_EQ(check.elements.size(), count);
  for (int i = 0; i < count; ++i) {
    const NamedElement& element = check.elements.at(i);
    SCOPED_TRACE(element.element.toStdString());
    const ScriptAnswers script = askAsScript(i);
    EXPECT_EQ(QString(script.name).replace(QLatin1String("&amp;"), QLatin1String("&")), element.name);
    EXPECT_EQ(script.findsItself, element.outcome == NameOutcome::Itself) << qPrintable(element.name);
    EXPECT_EQ(script.finds, element.outcome == NameOutcome::Link || element.outcome == NameOutcome::Itself ||
                                !element.other.isEmpty())
        << qPrintable(element.name);
  }
}

INSTANTIATE_TEST_SUITE_P(Names, ScriptRoad, testing::Values(405U, 409U));

}  // namespace
