#include "wrappers/web/xpath/html_xpathresult.h"

#include "wrappers/web/object/references.h"
#include "wrappers/web/webtest.h"

using namespace Corvex;
using namespace Corvex::WebWrapper;
using namespace TestSupport;

namespace {

class XPathResults : public WebTest {
protected:
  QString read(const char* property) {
    const SharedPtr<Object> value = get(result, QLatin1String(property));
    return value ? value->toString() : scriptError();
  }

  const SharedPtr<Object> object = wrapped<HTML_Object>();
  const SharedPtr<Object> result =
      wrapAndTransferOwnership(new HTML_XPathResult("x", &page), QStringLiteral("HTML_XPathResult"));
};

}  // namespace

TEST_F(XPathResults, ExpressionsArriveUnchanged) {
  page.answer(R"( = xpathDomEval( "//a[. = \"x\\y\"]", ref );true;)", "true");
  EXPECT_TRUE(call(object, "evaluateXPath", {text(R"(//a[. = "x\y"])")}));
  page.answer(R"( = xpathDomEval( "//a\n| //b\r\n", ref );true;)", "true");
  EXPECT_TRUE(call(object, "evaluateXPath", {text("//a\n| //b\r\n")}));
  page.fail("xpathDomEval", "no such axis");
  call(object, "evaluateXPath", {text("up::a")});
  EXPECT_EQ(scriptError(), QString("Error evaluating xpath 'up::a': no such axis"));
}

TEST_F(XPathResults, ValuesAreConverted) {
  page.answer("x.booleanValue()", "true");
  page.answer("x.numberValue()", "2.5");
  page.answer("x.stringValue()", "text");
  page.answer("__corvex__xpath__snapshotLength(x);", "-1");
  EXPECT_EQ(read("booleanValue"), QString("true"));
  EXPECT_EQ(read("numberValue"), QString("2.5"));
  EXPECT_EQ(read("stringValue"), QString("text"));
  EXPECT_EQ(read("snapshotLength"), QString("-1"));
  page.answer("x.numberValue()", "-Infinity");
  EXPECT_EQ(read("numberValue"), QString("-inf"));

  page.answer("x.numberValue()", "many");
  EXPECT_EQ(read("numberValue"),
            QString("Error converting number value of xpath resultset x to double, received value is 'many'"));
  page.fail("snapshotLength", "gone");
  EXPECT_EQ(read("snapshotLength"), QString("Error obtaining snapshot length of xpath resultset x: gone"));
  EXPECT_FALSE(set(result, "stringValue", text("y")));
  EXPECT_EQ(scriptError(), QString("Cannot set read-only property stringValue."));
}

TEST_F(XPathResults, NodesAreObjects) {
  page.answerObject("__corvex__xpath__snapshotItem(x, 1);", "a", "link");
  EXPECT_EQ(call(result, "snapshotItem", {number(1)})->objectClass()->name(), QString("HTML_Anchor"));
  page.answer("snapshotItem(x, 0)", R"({"refName":null,"type":""})");
  call(result, "singleNodeValue");
  EXPECT_EQ(scriptError(), QString("No XPath result item at index 0"));
  page.fail("snapshotItem(x, 2)", "gone");
  call(result, "snapshotItem", {number(2)});
  EXPECT_EQ(scriptError(), QString("Error obtaining snapshot item 2 from xpath result x: gone"));
  invalidateReferences();
  EXPECT_EQ(read("stringValue"), QString("XPathResult reference deleted in browser already, please obtain a new "
                                         "reference using the obj.evaluateXPath() function."));
}
