#include "wrappers/web/readiness/readiness.h"

#include "wrappers/web/elements/html_document.h"
#include "wrappers/web/elements/html_text.h"
#include "wrappers/web/object/queryrectanglewithfunction.h"
#include "wrappers/web/object/retrievehtmlobject.h"
#include "wrappers/web/readiness/webobjectgeometrydelegate.h"
#include "wrappers/web/webtest.h"

using namespace Corvex;
using namespace Corvex::WebWrapper;
using namespace TestSupport;

namespace {

class Readiness : public WebTest {
protected:
  void SetUp() override {
    WebTest::SetUp();
    page.answerValue("'tagName'", "\"DIV\"");
  }
  bool isReady(HTML_Object* object) {
    const FunctionCallResult<bool> ready = isObjectReady(object);
    EXPECT_EQ(ready.error, QString());
    return ready.value;
  }
  HTML_Object object{QString(), "ref", &page};
  HTML_Text field{QString(), "ref", &page};
};

using Rectangles = Readiness;

}  // namespace

TEST_F(Readiness, DocumentsAndNothingAreReady) {
  EXPECT_TRUE(isReady(nullptr));
  EXPECT_TRUE(isReady(make<HTML_Document>().get()));
  page.answerValue("'tagName'", "\"HTML\"");
  EXPECT_TRUE(isReady(&object));
}

TEST_F(Readiness, AnElementMustBeVisible) {
  page.answer(" try { __corvex__isVisible(ref); } catch( e ) { false;e.message; }", "true");
  EXPECT_TRUE(isReady(&object));
  page.answer("__corvex__isVisible", "false");
  EXPECT_FALSE(isReady(&object));
  page.answer("__corvex__isVisible", "x is undefined");
  EXPECT_FALSE(isReady(&object));
  page.fail("__corvex__isVisible", "gone");
  EXPECT_TRUE(isReady(&object));
}

TEST_F(Readiness, IsUsuallyAskedForAtOnce) {
  const struct {
    const char* answer;
    bool isReady;
    bool isFieldReady;
  } cases[] = {
      {"ready INPUT true false", true, true},
      {"ready INPUT true true", true, false},
      {"ready INPUT false false", false, false},
      {"ready HTML false undefined", true, true},
  };
  for (const auto& row : cases) {
    page.calls.clear();
    page.answer("__corvex__readiness", row.answer);
    EXPECT_EQ(isReady(&object), row.isReady) << row.answer;
    EXPECT_EQ(isReady(&field), row.isFieldReady) << row.answer;
    EXPECT_EQ(page.calls.size(), 2U);
  }
}

TEST_F(Readiness, IsToldWithAnObjectToThoseWhoAskForBoth) {
  page.answer("__corvex__findObject", R"({"refName":"@field@","type":"text","ready":"ready INPUT true true"})");
  const auto find = [this] {
    return std::unique_ptr<HTML_Object>(
        htmlObjectFromJavaScriptResult(&page, "__corvex__findObject('f')", "", 0).value);
  };
  std::unique_ptr<HTML_Object> found;
  {
    const ReadinessToo readinessToo;
    found = find();
  }
  EXPECT_TRUE(page.calls[0].code.contains("'ready': __corvex__readiness( dummy )"));
  EXPECT_FALSE(isReady(found.get()));
  EXPECT_EQ(page.calls.size(), 1U);
  // What was true then is no answer to a second question.
  page.answer("__corvex__readiness( field )", "ready INPUT true false");
  EXPECT_TRUE(isReady(found.get()));
  find();
  EXPECT_FALSE(page.calls[2].code.contains("ready"));
}

TEST_F(Readiness, AFormElementMustBeEnabledToo) {
  page.answer("__corvex__isVisible", "true");
  page.answer("'disabled');", "false");
  EXPECT_TRUE(isReady(&field));
  page.answer("'disabled');", "true");
  EXPECT_FALSE(isReady(&field));
  page.fail("'disabled');", "gone");
  EXPECT_EQ(isObjectReady(&field).error, QString("Error while obtaining property 'disabled': gone"));
  page.fail("'tagName'", "gone");
  EXPECT_EQ(isObjectReady(&field).error,
            QString("Cannot determine readyness, failed to obtain tagname: Error retrieving tagName: gone"));
}

TEST_F(Rectangles, AreReadFromThePagesText) {
  page.answer("__corvex__getRectAsString(__corvex__getScreenRectAsObject(ref) );", "1,2,30,40,9");
  EXPECT_EQ(object.screenRect().value, (ScreenRectangle{1, 2, 30, 40}));
  EXPECT_EQ(page.calls.size(), 1U);
  page.answer("__corvex__getScreenRectAsObject", "-1,-1,-1,-1");
  EXPECT_EQ(getScreenRect(&object, false).value, QRect(QPoint(-1, -1), QPoint(-3, -3)));
  EXPECT_EQ(object.screenRect().value, (ScreenRectangle{-1, -1, -1, -1}));
  for (const char* bad : {"1,2,3", "1,2,,4"}) {
    page.answer("__corvex__getScreenRectAsObject", bad);
    EXPECT_EQ(object.screenRect().error, QStringLiteral("Rectangle string '%1' obtained has invalid format.").arg(bad));
  }
}

TEST_F(Rectangles, AreAskedForTenTimes) {
  page.answer("__corvex__getClientBoundingRect", "");
  const FunctionCallResult<ScreenRectangle> empty = object.boundingClientRect();
  EXPECT_EQ(empty.error, QString("Rectangle string '' obtained has invalid format."));
  EXPECT_EQ(empty.value, (ScreenRectangle{-1, -1, -1, -1}));
  EXPECT_EQ(page.calls.size(), 10U);
  page.fail("__corvex__getClientBoundingRect", "gone");
  EXPECT_EQ(object.boundingClientRect().error,
            QString("Error while obtaining rectangle with function '__corvex__getClientBoundingRect': gone"));
  EXPECT_EQ(page.calls.size(), 20U);
}

TEST_F(Rectangles, ScrollIntoViewFirstIfAsked) {
  page.answer("__corvex__getScreenRectAsObject", "1,2,3,4");
  page.answer("__corvex__scrollToElement(ref, true);", "");
  EXPECT_EQ(page.getScreenRect(&object, true).value, (ScreenRectangle{1, 2, 3, 4}));
  EXPECT_TRUE(page.takeCodes().first().startsWith("__corvex__scrollToElement"));
  page.fail("__corvex__scrollToElement", "gone");
  EXPECT_EQ(page.getScreenRect(&object, true).error,
            QString("Error while making object visible to fetch screen rectangle: Error scrolling to object: gone"));
  EXPECT_EQ(getScreenRect(nullptr, false).error, QString("No valid HTML object provided to getScreenRect function"));
  const HTML_Object homeless("", "ref", nullptr);
  EXPECT_EQ(getScreenRect(&homeless, false).error, QString("HTML object has no component, cannot obtain rectangle"));
}

TEST_F(Rectangles, AreToldToTheFramework) {
  const SharedPtr<Object> object = wrapped<HTML_Text>();
  const auto* geometry = dynamic_cast<const GeometryDelegate*>(
      DelegateFactory::self()->delegate(object->objectClass(), Delegate::GeometryDelegateType));
  ASSERT_TRUE(geometry);
  EXPECT_EQ(geometry->globalBounds(nullptr), (GlobalBounds{0, 0, 0, 0, -1}));
  const struct {
    const char* answer;
    GlobalBounds bounds;
  } cases[] = {
      {"5,6,30,40", {5, 6, 30, 40, -1}},
      {"0,0,0,0", {0, 0, 0, 0, -1}},
      {"-1,-1,-1,-1", {-1, -1, -1, -1, -1}},
      {"1,2,3", {0, 0, -1, -1, -1}},
  };
  for (const auto& row : cases) {
    page.answer("__corvex__getScreenRectAsObject", row.answer);
    EXPECT_EQ(geometry->globalBounds(object), row.bounds) << row.answer;
  }
  EXPECT_FALSE(page.takeCodes().join(' ').contains("scroll"));

  page.answer("__corvex__getScreenRectAsObject", "5,6,30,40");
  EXPECT_EQ(geometry->nativeGlobalBounds(object), (GlobalBounds{5, 6, 30, 40, -1}));
  const auto relative = geometry->globalToRelative(object, {7, 9});
  EXPECT_EQ(QPoint(relative.x, relative.y), QPoint(2, 3));
  const auto global = geometry->relativeToGlobal(object, {2, 3});
  EXPECT_EQ(QPoint(global.x, global.y), QPoint(7, 9));
  EXPECT_EQ(geometry->childAt(object, 1, 1), nullptr);
  EXPECT_EQ(geometry->focusProxy(object), object);
}

TEST_F(Rectangles, CutFractionsOfJson) {
  Json::Value value;
  value["x"] = 1.9;
  value["y"] = -2.9;
  value["width"] = "wide";
  EXPECT_EQ(screenRectangleFromJson(value), (ScreenRectangle{1, -2, 0, 0}));
}

TEST_F(Rectangles, AreCutFromThePagesImage) {
  EXPECT_EQ(grabObjectScreenshotInPage(&page, {0, 0, 1, 1}).error,
            QString("Invalid image obtained for html page screenshot."));
  page.pageImage = QImage(10, 10, QImage::Format_RGB32);
  page.pageImage.fill(Qt::white);
  page.pageImage.setPixelColor(5, 6, Qt::red);
  const QImage image = grabObjectScreenshotInPage(&page, {4, 4, 3, 4}).value;
  EXPECT_EQ(image.size(), QSize(3, 4));
  EXPECT_EQ(image.pixelColor(1, 2), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::white));
}
