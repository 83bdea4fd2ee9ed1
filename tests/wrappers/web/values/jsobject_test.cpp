#include "wrappers/web/values/jsobject.h"

#include "corvexhook/arrayclass.h"
#include "corvexhook/primitives.h"
#include "wrappers/web/object/references.h"
#include "wrappers/web/webtest.h"

#include <cmath>

using namespace Corvex;
using namespace Corvex::WebWrapper;
using namespace TestSupport;

namespace {

class JsObjects : public WebTest {
protected:
  FunctionCallResult<SharedPtr<Object>> answered(const QString& answer) {
    page.answer(QString(), answer);
    return retrieveJSObject(&page, "code");
  }
  QString errorOf(const QString& answer) { return answered(answer).error; }
  QString lastCode() const { return page.calls.back().code; }
  SharedPtr<Object> handle() { return answered(R"({"type":"object","object":"4"})").value; }
};

}  // namespace

TEST_F(JsObjects, ValuesAreOfTheirKind) {
  EXPECT_FALSE(answered(R"({"type":"void","object":"null"})").value);
  EXPECT_TRUE(answered(R"({"type":"null","object":"null"})").value->isNull());
  EXPECT_EQ(primitiveValue(answered(R"({"type":"string","object":"a"})").value), QVariant("a"));
  EXPECT_EQ(primitiveValue(answered(R"({"type":"number","object":7})").value), QVariant(7));
  EXPECT_EQ(primitiveValue(answered(R"({"type":"number","object":2.5})").value), QVariant(2.5));
  EXPECT_TRUE(std::isnan(answered(R"({"type":"number","object":"NaN"})").value->toDouble()));
  EXPECT_EQ(primitiveValue(answered(R"({"type":"boolean","object":false})").value), QVariant(false));
  EXPECT_EQ(handle()->objectClass()->name(), QString("JsObject"));
}

TEST_F(JsObjects, AnswersThatAreNoneAreSentences) {
  const struct {
    const char* answer;
    const char* error;
  } rows[] = {
      {"[1]", "Json value is not an object: >>[1]<<"},
      {R"({"object":1})", R"(Json value does not have type information: >>{"object":1}<<)"},
      {R"({"type":"number","object":null})", R"(Json object is null: >>{"type":"number","object":null}<<)"},
      {R"({"type":null,"object":1})", R"(Json type information is null: >>{"type":null,"object":1}<<)"},
      {R"({"type":7,"object":1})", R"(Json type information is not a string: >>{"type":7,"object":1}<<)"},
      {R"({"type":"object","object":"x"})", R"(Failed to read object id for: >>{"type":"object","object":"x"}<<)"},
      {R"({"type":"string","object":1})",
       R"(Cannot convert json object to a string: >>{"type":"string","object":1}<<)"},
      {R"({"type":"date","object":1})", "Unhandled response type: date"},
      {R"({"type":"exception","object":{"name":"E","message":"m","file":"","line":"","stack":""}})",
       "Failed to retrieve Javascript Object, code threw exception: E: m"},
      {R"({"type":"exception","object":{"name":"E","message":"m","file":"f","line":"3","stack":"s"}})",
       "Failed to retrieve Javascript Object, code threw exception: E: m\nat f:3\nStacktrace s"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(errorOf(row.answer), QString(row.error));
  }
  EXPECT_TRUE(errorOf("{").startsWith("Cannot parse JSon value: >>{<<. "));
}

TEST_F(JsObjects, PropertiesAndCallsReachThePage) {
  const SharedPtr<Object> object = handle();
  const QString start = R"(__corvex__retrieveJsObjectInfo("top.__corvex__jsobjects[4])";
  call(object, "property", {text("length")});
  EXPECT_EQ(lastCode(), start + R"(.length;");)");
  call(object, "property", {text("data-\"x\"\n")});
  EXPECT_EQ(lastCode(), start + R"([\"data-\\\"x\\\"\\n\"];");)");
  call(object, "call", {text("join")});
  EXPECT_EQ(lastCode(), start + R"(.join();");)");
  const SharedPtr<Object> inner = ArrayClass::wrapObject({number(2.5), object, nullptr});
  call(object, "call", {text("f"), ArrayClass::wrapObject({text("a\"b"), inner, wrapped<HTML_Object>(), number(-3)})});
  EXPECT_EQ(lastCode(), start + R"(.f(\"a\\\"b\",[2.5,top.__corvex__jsobjects[4],null],ref,-3);");)");
}

TEST_F(JsObjects, WrongCallsHaveSentencesOfTheirOwn) {
  const Class* const cls = handle()->objectClass();
  EXPECT_EQ(cls->whyNotCall("property", {}), QString("JsObject::property: Requires exactly 1 argument"));
  EXPECT_EQ(cls->whyNotCall("property", {number(1)}), QString("JsObject::property: Requires a string argument"));
  EXPECT_EQ(cls->whyNotCall("call", {}), QString("JsObject::call: Requires 1 or 2 arguments"));
  EXPECT_EQ(cls->whyNotCall("call", {number(1)}),
            QString("JsObject::call: Requires a string as first argument, got: 1"));
  EXPECT_EQ(cls->whyNotCall("call", {text("f"), number(1)}),
            QString("JsObject::call: Requires a list as second argument, got: 1"));
  EXPECT_EQ(cls->whyNotCall("call", {text("f"), nullptr}),
            QString("JsObject::call: Requires a list as second argument, got: null"));
  EXPECT_EQ(cls->whyNotCall("property", {text("f")}), QString());
  EXPECT_EQ(cls->whyNotCall("call", {text("f")}), QString());
  EXPECT_EQ(cls->whyNotCall("call", {text("f"), ArrayClass::wrapObject({})}), QString());
}

TEST_F(JsObjects, WithoutEvalAnExpressionIsAskedForItself) {
  page.answer("__corvex__retrieveJsObjectInfo(", "[no eval]");
  page.answer("__corvex__jsObjectInfoOf(function () { return (\na + b\n); });", R"({"type":"number","object":3})");
  EXPECT_EQ(retrieveJSObject(&page, "a + b; ").value->toInt(), 3);
  page.fail("return (\nvar x", "SyntaxError: oh");
  EXPECT_EQ(retrieveJSObject(&page, "var x").error,
            QString("The page's policy forbids eval, so that the code must be one expression: SyntaxError: oh"));
}

TEST_F(JsObjects, HandlesDieWithTheirPage) {
  const SharedPtr<Object> object = handle();
  const SharedPtr<Object> element = wrapped<HTML_Object>();
  clearReferences(&page);
  const std::size_t asked = page.calls.size();
  call(object, "property", {text("x")});
  EXPECT_EQ(scriptError(), QString("The value belongs to a page that is gone. Get it again with retrieveJSObject."));
  EXPECT_EQ(page.calls.size(), asked);

  const SharedPtr<Object> second = handle();
  const std::size_t askedBefore = page.calls.size();
  call(second, "call", {text("f"), ArrayClass::wrapObject({number(1), ArrayClass::wrapObject({object})})});
  EXPECT_EQ(scriptError(), QString("The value belongs to a page that is gone. Get it again with retrieveJSObject."));
  call(second, "call", {text("f"), ArrayClass::wrapObject({element})});
  EXPECT_EQ(scriptError(), deadObjectReferenceError());
  FakeComponent otherPage;
  const SharedPtr<Object> foreign =
      wrapAndTransferOwnership(new JsObject(QStringLiteral("4"), &otherPage), QStringLiteral("JsObject"));
  call(second, "call", {text("f"), ArrayClass::wrapObject({foreign})});
  EXPECT_EQ(scriptError(), QString("An argument belongs to another window than the value whose method is called."));
  EXPECT_EQ(page.calls.size(), askedBefore);
}
