#include "wrappers/web/object/references.h"

#include "corvexhook/delegate.h"
#include "corvexhook/primitives.h"
#include "wrappers/web/elements/html_select.h"
#include "wrappers/web/lookup/webobjectdelegate.h"
#include "wrappers/web/object/retrievehtmlobject.h"
#include "wrappers/web/style/html_style.h"
#include "wrappers/web/toolkits/toolkitclasses.h"
#include "wrappers/web/webtest.h"
#include "wrappers/web/widgets/widgetclasses.h"
#include "wrappers/web/xpath/html_xpathresult.h"

using namespace Corvex;
using namespace Corvex::WebWrapper;
using namespace TestSupport;

namespace {

class References : public WebTest {
protected:
  std::unique_ptr<HTML_Object> fromType(const QString& type, const QString& name = QString()) {
    return std::unique_ptr<HTML_Object>(htmlObjectFromReferenceInfo(&page, type, page.reference("ref"), name));
  }
  QString retrievalError(const QString& answer) {
    page.answer(QString(), answer);
    const FunctionCallResult<HTML_Object*> result = htmlObjectFromJavaScriptResult(&page, "f();", "name", 7);
    EXPECT_FALSE(result.value);
    return result.error;
  }
};

}  // namespace

TEST_F(References, ThePagesTypeTextGivesTheClassInAnyCase) {
  const struct {
    const char* type;
    const char* className;
  } rows[] = {{"SUBMIT", "HTML_Button"}, {"Selection", "HTML_Select"}, {"custom_itemview_Ext", "HTML_CustomItemView"},
              {"window", "HTML_Object"}, {"custom_x", "HTML_Object"},  {"datetime-local", "HTML_Object"}};
  for (const auto& row : rows) {
    EXPECT_STREQ(fromType(row.type)->className(), row.className);
  }
  // An extension's name becomes a part of code.
  EXPECT_STREQ(fromType("custom_text_(steal(),x)")->className(), "HTML_Object");
  EXPECT_STREQ(fromType("custom_text_")->className(), "HTML_Object");
  EXPECT_STREQ(fromType("custom_text_my.Kit$2")->className(), "HTML_CustomText");
  for (const char* reference :
       {"", "ref", "top.__corvex__globalObjectRefStore[x]", "window.__corvex__object__C1;steal()",
        "top.__corvex__globalObjectRefStore[1]\n", "steal(top.__corvex__globalObjectRefStore[1])"}) {
    EXPECT_FALSE(htmlObjectFromReferenceInfo(&page, "a", reference, "")) << reference;
  }
  for (const char* type : {"undefined", "[unknown]", "true", "", "TRUE"}) {
    EXPECT_FALSE(fromType(type)) << type;
  }
}

TEST_F(References, TypeTextsCarryMoreThanTheClass) {
  EXPECT_TRUE(dynamic_cast<HTML_Select*>(fromType("Select-Multiple").get())->multiple);
  EXPECT_FALSE(dynamic_cast<HTML_Select*>(fromType("select-one").get())->multiple);
  EXPECT_FALSE(dynamic_cast<HTML_Select*>(fromType("bb_combobox").get())->multiple);
  EXPECT_EQ(dynamic_cast<HTML_CustomText*>(fromType("CUSTOM_text_MyKit").get())->extension, QString("MyKit"));
  EXPECT_EQ(dynamic_cast<HTML_CustomButtonBase*>(fromType("menubutton_a_B").get())->extension, QString("a_B"));
  const std::unique_ptr<HTML_Object> cell = fromType("kiwi_table_item");
  EXPECT_EQ(cell->knownName(), QString("null"));
  EXPECT_EQ(dynamic_cast<HTML_KiwiTableCell*>(cell.get())->text, QString("null"));
  EXPECT_EQ(dynamic_cast<HTML_KiwiMatrixCell*>(fromType("kiwi_matrixcell", "c").get())->text, QString("c"));
}

TEST_F(References, AnExpressionGivesAnObject) {
  page.answerObject("var dummy = f();;", "button", "top.store[3]");
  const FunctionCallResult<HTML_Object*> result = htmlObjectFromJavaScriptResult(&page, "f();", "the name", 5);
  const std::unique_ptr<HTML_Object> object(result.value);
  ASSERT_TRUE(object);
  EXPECT_EQ(page.named(object->reference), QString("top.store[3]"));
  EXPECT_EQ(object->knownName(), QString("the name"));
  EXPECT_EQ(object->component, &page);
  EXPECT_EQ(page.calls[0].timeoutMs, 5U);

  const auto array = typeCheckedHtmlObjectFromJavaScriptResult<HTML_Array>(&page, "f();");
  EXPECT_FALSE(array.value);
  EXPECT_EQ(array.error, QString());
}

TEST_F(References, RetrievalFailuresSayWhatHappened) {
  EXPECT_EQ(retrievalError(R"({"refName":null,"type":"[unknown]"})"), QString());
  for (const char* inconvertible : {R"({"error":{"name":[1],"message":"m"}})", R"({"error":"m"})"}) {
    EXPECT_TRUE(retrievalError(inconvertible)
                    .startsWith(QStringLiteral("Failed to parse JSON return value '%1': ").arg(inconvertible)))
        << inconvertible;
  }
  EXPECT_EQ(retrievalError("[1]"),
            QString("Failed to parse JSON return value '[1]': expected an object, got 6 instead."));
  EXPECT_TRUE(retrievalError("<").startsWith("Failed to parse JSON return value '<':* Line 1"));
  EXPECT_EQ(retrievalError(R"({"type":"a"})"),
            QString(R"(JSON return value '{"type":"a"}' is missing the refName member.)"));
  EXPECT_EQ(retrievalError(R"({"refName":"a"})"),
            QString(R"(JSON return value '{"refName":"a"}' is missing the type member.)"));
  EXPECT_EQ(retrievalError(R"({"error":{"name":"E","message":"m","file":"f","line":3,"stack":"s"}})"),
            QString("Error evaluating JavaScript to retrieve HTML Object: E: m at f:3. Stacktrace: s"));
  EXPECT_EQ(retrievalError(R"({"refName":"document.cookie","type":"a"})"),
            QString("The page gave a text that is no reference for an object: 'document.cookie'. It replaces functions "
                    "of the hook script."));
  EXPECT_TRUE(retrievalError(R"({"refName":{},"type":"a"})")
                  .startsWith(R"(Failed to parse JSON return value '{"refName":{},"type":"a"}': )"));
  page.abort(QString(), "late");
  EXPECT_EQ(htmlObjectFromJavaScriptResult(&page, "f();", "", 0).error, QString("late"));
}

TEST_F(References, AWrapperOwnsItsObject) {
  const std::size_t before = referencedObjects.size();
  SharedPtr<Object> object = wrapped<HTML_Select>(false);
  EXPECT_EQ(object->objectClass()->name(), QString("HTML_Select"));
  EXPECT_EQ(referencedObjects.size(), before + 1);
  EXPECT_EQ(retrieveObject(object)->className(), std::string("HTML_Select"));
  object = nullptr;
  EXPECT_EQ(referencedObjects.size(), before);

  const SharedPtr<Object> null = wrapObject(nullptr);
  ASSERT_TRUE(null);
  EXPECT_TRUE(null->isNull());
  EXPECT_EQ(null->objectClass()->name(), QString("HTML_Object"));
  EXPECT_FALSE(retrieveObject(null));
}

TEST_F(References, ClearingAConnectionPassesOverTheEntryBehindEachDeadOne) {
  const HTMLObjectHierarchyDelegate delegate;
  FakeComponent other;
  invalidateReferences();
  const HTML_Object first("", "a", &page), second("", "b", &page), third("", "c", &page), foreign("", "d", &other);
  const HTML_Style style("e", &page);
  delegate.clearAllJSReferences(&page);
  EXPECT_FALSE(first.hasValidReference());
  EXPECT_TRUE(second.hasValidReference());
  EXPECT_FALSE(third.hasValidReference());
  EXPECT_TRUE(foreign.hasValidReference());
  EXPECT_FALSE(style.hasValidReference());
  delegate.clearAllJSReferences(&page);
  EXPECT_FALSE(second.hasValidReference());
  EXPECT_EQ(referencedObjects.size(), 1U);
}

TEST_F(References, ManyObjectsAreLetGoInTheOrderInWhichTheyCame) {
  // A walk over those that are left for each one would take longer than any test may.
  std::vector<std::unique_ptr<HTML_Object>> objects;
  for (int i = 0; i < 200000; ++i) {
    objects.push_back(make<HTML_Object>());
  }
  const std::size_t before = referencedObjects.size();
  while (objects.size() > 100000) {
    objects.pop_back();
  }
  EXPECT_EQ(referencedObjects.size(), before - 100000);
  for (std::unique_ptr<HTML_Object>& object : objects) {
    object.reset();
  }
  EXPECT_EQ(referencedObjects.size(), before - 200000);
}

TEST_F(References, InvalidatingAllEmptiesTheRegistries) {
  const HTMLObjectHierarchyDelegate delegate;
  const HTML_Object empty("", "", &page);
  const HTML_XPathResult result("x", &page);
  EXPECT_TRUE(empty.hasValidReference());
  delegate.invalidateAllReferencedObjects();
  EXPECT_EQ(empty.reference, QString("undefined"));
  EXPECT_FALSE(result.hasValidReference());
  EXPECT_EQ(referencedObjects.size() + referencedStyles.size() + referencedXPathResults.size(), 0U);
}

TEST_F(References, ObjectsAreTheSameByReferenceOrByThePagesWord) {
  HTML_Object a("", "a", &page), alsoA("", "a", &page), b("", "b", &page);
  EXPECT_TRUE(a.sameAs(&alsoA).value);
  EXPECT_TRUE(page.calls.empty());
  page.answer("a === b", "true");
  EXPECT_TRUE(a.sameAs(&b).value);
  page.answer("a === b", "truer");
  EXPECT_FALSE(a.sameAs(&b).value);
  page.fail("a === b", "gone");
  EXPECT_EQ(a.sameAs(&b).error, QString("Error comparing javascript reference 'a' to 'b': gone"));
}

TEST_F(References, ScriptsCompareAndPrintPageObjects) {
  const SharedPtr<Object> a = wrapObject(new HTML_Object("", "a", &page));
  const SharedPtr<Object> alsoA = wrapObject(new HTML_Select("", "a", &page, false));
  EXPECT_EQ(alsoA->toString(), QString("a"));
  EXPECT_TRUE(a->objectClass()->sameObjects(a, alsoA));
  EXPECT_FALSE(a->objectClass()->sameObjects(a, wrapObject(nullptr)));
  EXPECT_FALSE(a->objectClass()->sameObjects(a, wrapScreenRectangle(ScreenRectangle())));
  FakeComponent otherPage;
  const SharedPtr<Object> elsewhere = wrapObject(new HTML_Object("", retrieveObject(a)->reference, &otherPage));
  EXPECT_FALSE(a->objectClass()->sameObjects(a, elsewhere));
  EXPECT_FALSE(a->objectClass()->canCastTo(Inspector::self()->primitiveType(PrimitiveType::Int), true));
}
