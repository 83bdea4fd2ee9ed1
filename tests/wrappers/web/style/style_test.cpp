#include "wrappers/web/object/references.h"
#include "wrappers/web/style/csscolor.h"
#include "wrappers/web/style/cssproperties.h"
#include "wrappers/web/webtest.h"

using namespace Corvex;
using namespace Corvex::WebWrapper;
using namespace TestSupport;

namespace {

class Style : public WebTest {
protected:
  /// CssColor's own `call`: on no object.
  SharedPtr<Object> make(const char* function, const ObjectList& arguments) {
    return call(wrapCssColor(CssColor()), QLatin1String(function), arguments);
  }
};

}  // namespace

TEST_F(Style, ColorsAreMadeAndChangedWithinTheirBounds) {
  const SharedPtr<Object> color = make("fromRgba", {number(1), number(2), number(255), number(0.5)});
  EXPECT_EQ(color->toString(), QString("rgba(1,2,255,0.5)"));
  EXPECT_TRUE(set(color, "red", number(200)));
  EXPECT_EQ(get(color, "red")->toInt(), 200);
  EXPECT_EQ(get(color, "alpha")->toDouble(), 0.5);
  EXPECT_EQ(make("fromRgb", {number(1), number(2), number(3)})->toString(), QString("rgba(1,2,3,1)"));

  const QString range = "Invalid argument, value needs to be between 0 and 255 (inclusive), was: ";
  EXPECT_FALSE(set(color, "green", number(256)));
  EXPECT_EQ(scriptError(), range + "256");
  EXPECT_FALSE(set(color, "alpha", number(1.5)));
  EXPECT_EQ(scriptError(), QString("Invalid argument, alpha value needs to be between 0 and 1 (inclusive), was: 1.5"));
  EXPECT_FALSE(set(color, "isValid", Inspector::self()->wrapBool(true)));
  EXPECT_EQ(scriptError(), QString("Cannot set read-only property 'isValid' on CssColor"));
  EXPECT_FALSE(make("fromRgba", {number(1), number(-1), number(300), number(2)}));
  EXPECT_EQ(scriptError(), "Error for green component: " + range + "-1");
}

TEST_F(Style, AnInvalidColorTellsOnlyThatItIs) {
  const SharedPtr<Object> color = wrapCssColor(CssColor());
  EXPECT_FALSE(get(color, "isValid")->toBool());
  EXPECT_FALSE(get(color, "blue"));
  EXPECT_EQ(scriptError(), QString("Invalid color, cannot access blue property"));
  EXPECT_FALSE(set(color, "blue", number(1)));
  EXPECT_EQ(scriptError(), QString("Cannot set properties on invalid color."));
  color->toString();
  EXPECT_EQ(scriptError(), QString("Invalid color cannot be converted to a string."));
}

TEST_F(Style, RgbTextsBecomeHashes) {
  EXPECT_EQ(convertRgbToHashHex("rgb(1, 2, 255)"), QString("#0102ff"));
  for (const char* text : {"red", "rgb(1, 2)", "rgb(a, 2, 3)", "rgb(1, 2, 3"}) {
    EXPECT_EQ(convertRgbToHashHex(text), QString(text));
  }
}

TEST_F(Style, AllPropertiesAreReadAtOnce) {
  const SharedPtr<Object> object = wrapped<HTML_Object>();
  EXPECT_EQ(cssPropertyNames().size(), 226);
  page.answerValue("__corvex__allCSSProperties( ref, ['alignContent', 'alignItems', ",
                   R"({"color":{"red":1,"green":2,"blue":3,"alpha":0.5},"width":"auto","zIndex":7})");
  const SharedPtr<Object> css = get(object, "css");
  ASSERT_TRUE(css);
  EXPECT_EQ(get(get(css, "color"), "blue")->toInt(), 3);
  EXPECT_EQ(get(css, "width")->toString(), QString("auto"));
  EXPECT_EQ(get(css, "zIndex")->toString(), QString("7"));
  EXPECT_EQ(page.calls.size(), 1U);
  EXPECT_FALSE(get(css, "height"));
  EXPECT_EQ(scriptError(), QString("Unknown CSS property 'height'."));

  page.answerValue("allCSSProperties", "7");
  get(object, "css");
  EXPECT_EQ(scriptError(), QString("Unexpected type of json object for CSS properties, expected object got: 1"));
  page.fail("allCSSProperties", "gone");
  get(object, "css");
  EXPECT_EQ(scriptError(), QString("Error obtaining CSS properties: gone"));
}

TEST_F(Style, ValuesAreReadOneByOneAsLongAsThePageIsThere) {
  page.answer("= new __corvex__styleInfo(ref); 'done';", "done");
  const SharedPtr<Object> style = call(wrapped<HTML_Object>(), "style");
  page.answer(".styleProperty('display');", "block");
  EXPECT_EQ(call(style, "value", {text("display")})->toString(), QString("block"));
  page.fail("styleProperty", "gone");
  call(style, "value", {text("top")});
  EXPECT_TRUE(scriptError().startsWith("Failed to obtain css value 'top' from window.__corvex__object__C"));
  invalidateReferences();
  call(style, "value", {text("display")});
  EXPECT_EQ(scriptError(), QString("Style reference deleted in browser already, please obtain a new reference using "
                                   "the obj.style() function."));
}
