#include "wrappers/web/elements/html_anchor.h"
#include "wrappers/web/elements/html_select.h"
#include "wrappers/web/lookup/webobjectdelegate.h"
#include "wrappers/web/object/references.h"
#include "wrappers/web/toolkits/toolkitclasses.h"
#include "wrappers/web/webtest.h"

using namespace Corvex;
using namespace Corvex::WebWrapper;
using namespace TestSupport;

namespace {

SharedPtr<Object> text(const char* value) { return Inspector::self()->wrapString(value); }

class SharedFunctions : public WebTest {
protected:
  QString errorOf(const GlobalMethod* function, const ObjectList& arguments) {
    const bool gaveValue = bool(function->call(arguments));
    const QString error = scriptError();
    EXPECT_EQ(gaveValue, error.isEmpty());
    return error;
  }
  QString selectError(const SharedPtr<Object>& object, const char* option = "A") {
    return errorOf(sharedSelectOptionByObjectFn(), {object, text(option)});
  }
};

}  // namespace

TEST_F(SharedFunctions, ClickLinkTakesLinksOnly) {
  page.answer("__corvex__clickLink(ref);", "");
  EXPECT_EQ(errorOf(sharedClickLinkByObjectFn(), {wrapped<HTML_Anchor>()}), QString());
  EXPECT_EQ(errorOf(sharedClickLinkByObjectFn(), {wrapped<HTML_Button>()}),
            QString("Element of type 'HTML_Button' can't be clicked. Must be of type HTML_Anchor"));
  EXPECT_EQ(errorOf(sharedClickLinkByObjectFn(), {wrapObject(nullptr)}), QString("Cannot click null object."));
  EXPECT_EQ(errorOf(sharedClickLinkByNameFn(), {text("{a='1'}")}), QString("Invalid object name '{a='1'}'"));
  EXPECT_EQ(errorOf(sharedClickLinkByNameFn(), {text(":Lost")}),
            QString("Invalid object name ':Lost'. The symbolic name ':Lost' is not in the object map. Add it there, or "
                    "use a real name."));
  EXPECT_EQ(sharedClickLinkByNameFn()->deprecation(),
            QString("The clickLink function has been deprecated, please consider using mouseClick instead."));
}

TEST_F(SharedFunctions, SelectOptionLooksForTheOptionOfASingleSelect) {
  page.answer("ref.focus();", "");
  page.answer("__corvex__select", "");
  const QString probe =
      "var found = false;for( var i = 0; i < ref.options.length; i++ ) {    if( ref.options[i].text == 'it\\'s' ) {"
      "        found = true;    }}found;";
  page.answer(probe, "true");
  EXPECT_EQ(selectError(wrapped<HTML_Select>(false), "it's"), QString());
  EXPECT_EQ(page.takeCodes().first(), probe);
  page.answer("var found", "false");
  EXPECT_EQ(selectError(wrapped<HTML_Select>(false)), QString("Could not find item with text 'A'."));
  EXPECT_EQ(page.takeCodes().size(), 1);
  page.fail("var found", "gone");
  EXPECT_EQ(selectError(wrapped<HTML_Select>(false)), QString("Error checking existence of option 'A': gone"));
  page.takeCodes();
  EXPECT_EQ(selectError(wrapped<HTML_Select>(true)), QString());
  EXPECT_EQ(selectError(wrapped<HTML_BackBaseComboBox>(false)), QString());
  EXPECT_FALSE(page.takeCodes().join("").contains("found"));
}

TEST_F(SharedFunctions, SelectOptionRefusesOthers) {
  EXPECT_EQ(selectError(wrapped<HTML_Anchor>()),
            QString("Element of type 'HTML_Anchor' can't be selected. Must be of type HTML_Select, HTML_KiwiChoice, "
                    "HTML_CustomComboBox or HTML_BackBaseComboBox"));
  EXPECT_EQ(selectError(wrapObject(nullptr)), QString("Cannot select option in null object."));
  const SharedPtr<Object> dead = wrapped<HTML_Select>(false);
  retrieveObject(dead)->invalidate();
  EXPECT_EQ(selectError(dead), deadObjectReferenceError());
  EXPECT_TRUE(page.calls.empty());
}

TEST_F(SharedFunctions, ScrollToAlignsToTheTopOrAsTold) {
  page.answer("__corvex__scrollToElement", "");
  EXPECT_EQ(errorOf(sharedScrollToByObjectFn(), {wrapped<HTML_Object>()}), QString());
  EXPECT_EQ(
      errorOf(sharedScrollToByObjectAndAlignmentFn(), {wrapped<HTML_Object>(), Inspector::self()->wrapBool(false)}),
      QString());
  EXPECT_EQ(page.takeCodes(),
            QStringList({"__corvex__scrollToElement(ref, true);", "__corvex__scrollToElement(ref, false);"}));
  EXPECT_EQ(errorOf(sharedScrollToByObjectFn(), {wrapObject(nullptr)}), QString("Cannot scroll to null object."));
}

TEST_F(SharedFunctions, NamesAreLookedUp) {
  class Root : public WebToplevelDelegate {
  public:
    explicit Root(HTMLComponent* page) : WebToplevelDelegate("HTML_Object"), page(page) {}
    HTMLComponent* component(SharedPtr<Object>) const override { return page; }
    bool keepsDocumentAcrossComponents() const override { return false; }
    HTMLComponent* page;
  };
  const Root delegate(&page);
  const SharedPtr<Object> root = wrapped<HTML_Object>();
  Inspector::self()->addRootObject(root);
  page.answerObject("__corvex__findObject(\"{a='1'}\")", "a", "link");
  page.answer("__corvex__clickLink(link);", "");
  EXPECT_EQ(errorOf(sharedClickLinkByNameFn(), {text("{a='1'}")}), QString());
  Inspector::self()->removeRootObject(root);
}
