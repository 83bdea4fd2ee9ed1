#include "wrappers/web/glue/scriptclass.h"

#include "corvexhook/arrayclass.h"
#include "corvexhook/primitives.h"
#include "wrappers/web/elements/html_select.h"
#include "wrappers/web/elements/html_text.h"
#include "wrappers/web/toolkits/toolkitclasses.h"
#include "wrappers/web/webtest.h"

using namespace Corvex;
using namespace Corvex::WebWrapper;
using namespace TestSupport;

namespace {

class ScriptCalls : public WebTest {
protected:
  SharedPtr<Object> select = wrapped<HTML_Select>(false);
};

}  // namespace

TEST_F(ScriptCalls, ChecksComeInOrder) {
  retrieveObject(select)->invalidate();
  EXPECT_FALSE(call(select, "optionAt"));
  EXPECT_TRUE(scriptError().contains("takes 1 argument(s), but got 0"));
  EXPECT_FALSE(call(select, "optionAt", {text("abc")}));
  EXPECT_EQ(scriptError(), HTML_ObjectBase_Class::referenceIsUndefinedError());
  EXPECT_FALSE(get(select, "selectedIndex") || set(select, "selectedIndex", text("abc")));
  EXPECT_EQ(scriptError(), HTML_ObjectBase_Class::referenceIsUndefinedError());
  EXPECT_TRUE(page.calls.empty());
}

TEST_F(ScriptCalls, AMisfitArgumentIsNamed) {
  call(select, "optionAt", {text("abc")});
  EXPECT_EQ(scriptError(), QString("HTML_Select.optionAt: argument 'index' must be of type int, but got 'abc'."));
  call(select, "setDisabled", {number(1)});
  EXPECT_EQ(scriptError(),
            QString("HTML_FormElement.setDisabled: argument 'disabled' must be of type bool, but got '1'."));
  call(select, "deselectByTexts", {select});
  EXPECT_EQ(scriptError(),
            QString("HTML_Select.deselectByTexts: argument 'texts' must be of type Array, but got an object of type "
                    "HTML_Select."));
  set(select, "selectedIndex", text("x"));
  EXPECT_EQ(scriptError(), QString("HTML_Select.selectedIndex must be of type int, but got 'x'."));
  EXPECT_TRUE(page.calls.empty());
}

TEST_F(ScriptCalls, ANullObjectHasNoMembers) {
  const SharedPtr<Object> null = wrapObject(nullptr);
  EXPECT_FALSE(call(null, "click"));
  EXPECT_TRUE(scriptError().contains("HTML_Object.click"));
  EXPECT_FALSE(get(null, "title"));
  EXPECT_EQ(scriptError(), QString("Cannot use title of a null object. Check that the object was found."));
}

TEST_F(ScriptCalls, NativeErrorsReachTheScript) {
  page.fail("getPropertyValue", "gone");
  EXPECT_FALSE(get(select, "selectedIndex"));
  EXPECT_EQ(scriptError(), QString("Error while obtaining property 'selectedIndex': gone"));
  page.fail(".selectedIndex=", "gone");
  page.answer("ref.focus();", "");
  EXPECT_FALSE(set(select, "selectedIndex", number(2)));
  EXPECT_EQ(scriptError(), QString("Error setting property 'selectedIndex' to value 2: gone"));
}

TEST_F(ScriptCalls, ResultsAreWrappedAsWhatTheyAre) {
  page.answerValue("getElementRectAsObject( ref ).width", "12.9");
  EXPECT_EQ(get(select, "width")->toInt(), 12);
  page.answer("'disabled'", "true");
  EXPECT_TRUE(call(select, "disabled")->toBool());
  EXPECT_EQ(call(select, "className")->toString(), QString("HTML_Select"));
  page.answerValue("selectedTexts(ref)", R"(["a","b"])");
  EXPECT_EQ(get(select, "selectedTexts")->toStringList(), QStringList({"a", "b"}));
  page.answerValue("selectedIndexes(ref)", "[0,2]");
  EXPECT_EQ(ArrayClass::unwrapObject(get(select, "selectedIndexes"))[1]->toInt(), 2);
  page.answer("__corvex__getClientBoundingRect(ref)", "1,2,3,4");
  EXPECT_EQ(get(select, "boundingClientRect")->objectClass(), objectModelScreenRectangleClass());
  page.answerObject("__corvexDOMAPI.firstChild(ref);", "option", "o");
  EXPECT_EQ(call(select, "firstChild")->objectClass()->name(), QString("HTML_Option"));
  page.answer("__corvexDOMAPI.firstChild(ref);", R"({"refName":null,"type":""})");
  EXPECT_TRUE(call(select, "firstChild")->isNull());
  page.answer("ref.focus();", "");
  EXPECT_EQ(call(select, "focus")->objectClass(), Inspector::self()->primitiveType(PrimitiveType::Void));
}

TEST_F(ScriptCalls, AnObjectInATextIsItsReference) {
  page.answer("ref.appendChild(window.x[3]);", "done");
  const SharedPtr<Object> other = wrapObject(new HTML_Object("", "window.x[3]", &page));
  EXPECT_EQ(call(select, "invoke", {text("appendChild"), other})->toString(), QString("done"));
}

TEST_F(ScriptCalls, ListsReachTheirMembers) {
  page.answer("ref.focus();", "");
  page.answerValue("deselect( ref, __corvex__standardselectExtension.optionText, [\"a\",\"1\"] )", "null");
  EXPECT_TRUE(call(select, "deselectByTexts", {ArrayClass::wrapObject({text("a"), number(1)})}));
}

TEST_F(ScriptCalls, ASubclassAnswersForItsSuperClasses) {
  const SharedPtr<Object> box = wrapped<HTML_BackBaseComboBox>(false);
  page.answer("'selectedIndex'", "3");
  page.answer("'type'", "select");
  EXPECT_EQ(get(box, "selectedIndex")->toInt(), 3);
  EXPECT_EQ(call(box, "selectedIndex")->toInt(), 3);
  EXPECT_EQ(call(box, "type")->toString(), QString("select"));
}

TEST_F(ScriptCalls, DescriptionsAreMadeOnce) {
  const Class* cls = select->objectClass();
  const int id = cls->numMethods() - 1;
  EXPECT_EQ(cls->method(id), cls->method(id));
  EXPECT_EQ(cls->createMethod(cls->numMethods()), nullptr);
  EXPECT_EQ(cls->createProperty(cls->numProperties()), nullptr);
}
