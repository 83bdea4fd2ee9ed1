#include "wrappers/web/elements/html_anchor.h"
#include "wrappers/web/elements/html_checkablebutton.h"
#include "wrappers/web/elements/html_document.h"
#include "wrappers/web/elements/html_form.h"
#include "wrappers/web/elements/html_select.h"
#include "wrappers/web/elements/html_text.h"
#include "wrappers/web/webtest.h"

#include <QTimer>

using namespace Corvex;
using namespace Corvex::WebWrapper;
using namespace TestSupport;

namespace {

class Elements : public WebTest {
protected:
  void SetUp() override {
    WebTest::SetUp();
    page.answer(".focus();", "");
    page.answer("'type');", "text");
    page.answer("__corvex__", "");
  }
};

const QString focus = QStringLiteral("ref.focus();");

}  // namespace

TEST_F(Elements, SettingTextFocusesClicksAndSets) {
  page.answer("'type');", "text");
  EXPECT_EQ(make<HTML_Text>()->setValue("it's\r\nso"), QString());
  EXPECT_EQ(page.takeCodes().mid(1),
            QStringList({focus, "__corvex__click(ref);", "__corvex__setTextFieldValue(ref, 'it\\'s\\nso' );"}));
  page.kind = 5;
  page.abort("ref.value = '';", "late");
  EXPECT_EQ(make<HTML_TextArea>()->setValue("x"), QString());
  EXPECT_EQ(page.takeCodes().mid(3), QStringList({"ref.value = '';", "__corvex__setTextFieldValue(ref, 'x' );"}));
  page.fail("ref.value = '';", "gone");
  EXPECT_EQ(make<HTML_Text>()->setValue("x"), QString("Error clicking text field: gone"));
}

TEST_F(Elements, ReturnIsAKey) {
  page.answer("'type');", "text");
  EXPECT_EQ(make<HTML_Text>()->setValue("<Return>"), QString());
  EXPECT_EQ(page.takeCodes().mid(2),
            QStringList({"__corvex__click(ref);", "__corvex__typeText( ref, String.fromCharCode( 13 ) );"}));
}

TEST_F(Elements, AFileFieldNeverClicksOrTypes) {
  page.answer("'type');", "file");
  page.uploadError = "no such file";
  EXPECT_EQ(make<HTML_Text>()->setValue("/tmp/x"), QString("no such file"));
  EXPECT_EQ(page.uploads, QStringList("/tmp/x"));
  EXPECT_EQ(page.calls.size(), 1U);
}

TEST_F(Elements, TextFieldsStopAtTheFirstError) {
  page.answer("'type');", "text");
  page.fail("__corvex__click(ref);", "gone");
  EXPECT_EQ(make<HTML_Text>()->setValue("x"), QString("Error clicking text field: gone"));
  EXPECT_EQ(page.takeCodes().size(), 3);
  page.fail(focus, "gone");
  EXPECT_EQ(make<HTML_Text>()->setValue("x"), QString("Error invoking function 'focus': gone"));
  page.fail("'type');", "gone");
  EXPECT_EQ(
      make<HTML_Text>()->setValue("x"),
      QString("Cannot set value as determining text field type failed: Error while obtaining property 'type': gone"));
  page.fail("selectAll", "gone");
  EXPECT_EQ(make<HTML_Text>()->selectAll(), QString("Error selecting content of text field: gone"));
  EXPECT_EQ(page.takeCodes().last(), QString("window.top.__corvex.selectAll( ref )"));
}

TEST_F(Elements, ButtonsHaveTheirOwnClick) {
  EXPECT_EQ(make<HTML_Button>()->submit(), QString());
  EXPECT_EQ(page.takeCodes(), QStringList(deferred("__corvex__clickButton(ref, false, false, false, 0, 0, 1);")));
  page.fail("clickButton", "gone");
  EXPECT_EQ(make<HTML_Button>()->click(0, 0, 0, 1), QString("Failed to click on button: gone"));
}

TEST_F(Elements, CheckableButtonsTellThePageOfChanges) {
  const QString change = "__corvex__sendChangeEvent( ref )";
  EXPECT_EQ(make<HTML_CheckBox>()->click(0, 0, 0, 1), QString());
  EXPECT_EQ(page.takeCodes(),
            QStringList({focus, deferred("__corvex__clickButton(ref, false, false, false, 0, 0, 1);"), change}));
  page.answer("ref.checked=", "");
  EXPECT_EQ(make<HTML_RadioButton>()->setChecked(false), QString());
  EXPECT_EQ(page.takeCodes(), QStringList({"ref.checked=false;", change}));
  page.fail(change, "gone");
  EXPECT_EQ(make<HTML_CheckBox>()->setChecked(true), QString("Error sending change event for radio button: gone"));
  EXPECT_EQ(make<HTML_RadioButton>()->click(0, 0, 0, 1), QString("Error triggering change event after click: gone"));
  page.takeCodes();
  page.fail(focus, "gone");
  EXPECT_EQ(make<HTML_CheckBox>()->click(0, 0, 0, 1), QString("Error invoking function 'focus': gone"));
  EXPECT_EQ(page.takeCodes().size(), 1);
}

TEST_F(Elements, AClickThatTakesThePageAwayIsOver) {
  const auto box = make<HTML_CheckBox>();
  QTimer::singleShot(0, [&box] { box->invalidate(); });
  EXPECT_EQ(box->click(0, 0, 0, 1), QString());
  EXPECT_FALSE(page.takeCodes().join("").contains("sendChangeEvent"));
}

TEST_F(Elements, LinksLoseTheDetailOfAFailure) {
  EXPECT_EQ(make<HTML_Anchor>()->click(7, 1, 2, 4), QString());
  EXPECT_EQ(page.takeCodes(), QStringList(deferred("__corvex__clickLink(ref);")));
  page.fail("clickLink", "gone");
  EXPECT_EQ(make<HTML_Anchor>()->click(0, 0, 0, 1), QString("Failed to click link: %"));
}

TEST_F(Elements, FormsAndOptions) {
  page.answer("ref.submit();", "");
  EXPECT_EQ(make<HTML_Form>()->submit(), QString());
  page.answer("'index');", "4");
  EXPECT_EQ(make<HTML_Option>()->index().value, 4);
  page.answer("'index');", "four");
  EXPECT_EQ(make<HTML_Option>()->index().error, QString("Error: cannot convert 'four' into index number"));
  page.answer("'selected');", "TRUE");
  EXPECT_FALSE(make<HTML_Option>()->selected().value);
}

TEST_F(Elements, ArraysKeepTheirBounds) {
  page.answer("'length');", "2");
  const auto array = make<HTML_Array>();
  EXPECT_EQ(array->at(-1).error, QString("Out of bounds access to array of length 2 with index -1."));
  EXPECT_EQ(array->at(2).error, QString("Out of bounds access to array of length 2 with index 2."));
  EXPECT_EQ(page.calls.size(), 2U);
  page.fail("ref[1];", "gone");
  EXPECT_EQ(array->at(1).error, QString("Could not get reference for array element at '1': gone"));
  page.answerObject("ref[1];", "option", "o");
  EXPECT_EQ(page.named(std::unique_ptr<HTML_Object>(array->at(1).value)->reference), QString("o"));
  page.answer("'length');", "many");
  EXPECT_EQ(array->at(0).error,
            QString("Cannot retrieve element at '0', length check failed: Could not convert length of "
                    "array 'many' to number"));
}

TEST_F(Elements, DocumentsFindElements) {
  const auto document = make<HTML_Document>();
  page.answerObject("ref.getElementById('it\\'s');", "p", "r");
  EXPECT_TRUE(std::unique_ptr<HTML_Object>(document->getElementById("it's").value));
  page.fail("getElementById", "gone");
  EXPECT_EQ(document->getElementById("a").error, QString("Error fetching element with id 'a': gone"));
  page.takeCodes();
  page.answer(" = ref.getElementsByTagName('P');", "[object]");
  const std::unique_ptr<HTML_Array> first(document->getElementsByTagName("P").value);
  const std::unique_ptr<HTML_Array> second(document->getElementsByTagName("P").value);
  EXPECT_TRUE(page.calls[0].code.startsWith(first->reference + " = "));
  EXPECT_TRUE(first->reference.startsWith("window.__corvex__object__C"));
  EXPECT_NE(first->reference, second->reference);
  page.fail("getElementsByTagName", "gone");
  EXPECT_EQ(document->getElementsByTagName("P").error, QString("Error obtaining elements for tagname 'P': gone"));
}

TEST_F(Elements, SelectsChooseByText) {
  EXPECT_EQ(make<HTML_Select>(false)->setSelectedOption("it's"), QString());
  EXPECT_EQ(make<HTML_Select>(true)->setSelectedOption("a,b"), QString());
  EXPECT_EQ(page.takeCodes(), QStringList({focus, deferred("__corvex__selectSingleOption(ref, 'it\\'s' );"), focus,
                                           deferred("__corvex__selectMultiOption(ref, 'a,b' );")}));
  page.fail("selectSingleOption", "gone");
  EXPECT_EQ(make<HTML_Select>(false)->setSelectedOption("%2"), QString("Failed to select option text '%2': gone"));
  page.answer("ref.options[ref.selectedIndex].text;", "A");
  EXPECT_EQ(make<HTML_Select>(false)->selectedOption().value, QString("A"));
  page.answer("'selectedIndex');", "none");
  EXPECT_EQ(make<HTML_Select>(false)->selectedIndex().error,
            QString("Could not converted selected index value 'none' to integer."));
}

TEST_F(Elements, SelectsLookBeforeTheySelectSeveral) {
  page.answer("hasItems", "true");
  EXPECT_EQ(make<HTML_Select>(true)->setSelectedOptionsByValue({"a'", "b"}), QString());
  EXPECT_EQ(
      page.takeCodes(),
      QStringList({focus,
                   "__corvex__standardselectExtension.hasItems(ref, [\"a\\'\",\"b\"], __corvex__selectOptionValue);",
                   deferred("__corvex__selectOptions( ref, [\"a\\'\",\"b\"], __corvex__selectOptionValue );")}));
  EXPECT_EQ(make<HTML_Select>(false)->setSelectedOptionsByText({"a"}), QString());
  EXPECT_EQ(page.takeCodes().last(), deferred("__corvex__selectOption( ref, \"a\", __corvex__selectOptionText );"));
  EXPECT_EQ(make<HTML_Select>(false)->setSelectedOptions({"a", "b"}),
            QString("Incorrect number of values for a single-select field, only one value expected but got: a, b"));
  page.fail("selectOption", "gone");
  page.answer("hasItems", "true");
  EXPECT_EQ(make<HTML_Select>(false)->setSelectedOptionsByIndexes({"1"}),
            QString("Error while selecting options '1': gone"));
  page.answer("hasItems", "false");
  page.takeCodes();
  EXPECT_EQ(make<HTML_Select>(true)->setSelectedOptions({"a", "b"}),
            QString("Failed to find one of the items 'a, b' to select: true != false"));
  EXPECT_EQ(page.takeCodes().size(), 2);
  page.abort("hasItems", "late");
  EXPECT_EQ(make<HTML_Select>(true)->setSelectedOptions({"a"}),
            QString("Error while checking if options 'a' are available: late"));
}

TEST_F(Elements, SelectsReadAndClearTheirSelection) {
  const auto select = make<HTML_Select>(true);
  const QString call = "__corvex__standardselectExtension.";
  page.answerValue(call + "selectedIndexes(ref)", "[0,2]");
  EXPECT_EQ(select->selectedIndexes().value, (std::vector<int>{0, 2}));
  page.answerValue(call + "selectedIndexes(ref)", "[0,\"2\"]");
  EXPECT_EQ(select->selectedIndexes().error,
            QString("Element number 1 in array of selected indexes is of type 4 but expected is type: 1. Array Value: "
                    "'[0,\"2\"]'"));
  page.answerValue(call + "selectedValues(ref)", "3");
  EXPECT_EQ(select->selectedValues().error, QString("JSON return value for selected values is not an array: '3'"));
  page.fail(call + "selectedLabels(ref)", "gone");
  EXPECT_EQ(select->selectedLabels().error, QString("Error while obtaining selected labels: gone"));
  page.fail("deselect( ref, " + call + "optionIndex, [\"1\",\"2\"] )", "gone");
  EXPECT_EQ(select->deselectByIndexes({"1", "2"}), QString("Error deselecting values '1, 2': gone"));
}

TEST_F(Elements, SelectsGiveTheirOptions) {
  const auto select = make<HTML_Select>(false);
  page.fail("var dummy = ref.options;", "gone");
  EXPECT_EQ(select->optionAt(0).error, QString("Error loading options: gone"));
  page.answer("var dummy = ref.options;", R"({"refName":null,"type":""})");
  EXPECT_EQ(select->optionAt(0).error, QString("Error loading options: the element has none"));
  // What a browser's list of options is to the page.
  page.answerObject("var dummy = ref.options;", "[unknown_type]", "list");
  page.answer("getPropertyValue( list, 'length');", "1");
  page.answerObject("var dummy = list[0];", "option", "o");
  EXPECT_EQ(page.named(std::unique_ptr<HTML_Option>(select->optionAt(0).value)->reference), QString("o"));
  EXPECT_EQ(select->optionAt(1).error, QString("Out of bounds access to array of length 1 with index 1."));
}
