#include "corvexhook/dump/dumpobjecttree.h"
#include "wrappers/web/dump/htmlobjectdumpobjecttreedelegate.h"
#include "wrappers/web/webtest.h"

using namespace Corvex;
using namespace Corvex::WebWrapper;
using namespace TestSupport;
using UIAbstraction::UIElement;
using UIAbstraction::UIProperty;

namespace {

/// A page of which images can be taken.
struct PageWithImage : FakeComponent {
  bool supportsPageScreenshot() override { return hasImages; }
  FunctionCallResult<QImage> grabPageScreenshot() override {
    ++grabs;
    return FakeComponent::grabPageScreenshot();
  }
  FunctionCallResult<double> zoomFactor() override {
    return zoomError.isEmpty() ? FunctionCallResult<double>::success(1.5)
                               : FunctionCallResult<double>::failure(zoomError);
  }
  bool hasImages = true;
  int grabs = 0;
  QString zoomError;
};

struct Notes : LogInterface {
  void write(int level, const QByteArray& text) override { list << QString::number(level) + QString::fromUtf8(text); }
  QStringList list;
};

QString textOf(const QVector<UIProperty>& properties) {
  QStringList list;
  for (const UIProperty& property : properties) {
    list << property.name + QLatin1Char('=') + property.value;
  }
  return list.join(QLatin1Char(' '));
}

class Dump : public WebTest {
protected:
  Dump() {
    view.answerValue("objectTreeInformation( top )",
                     view.expanded(R"([{"reference":"@a@","typeString":"button","nameInLeaf":"BUTTON1","children":[]},
{"reference":"@b@","typeString":"DIV","nameInLeaf":"DIV1","children":[
{"reference":"@c@","typeString":"select-one","nameInLeaf":"SELECT1","children":[]}]}])"));
    view.answerValue("readPropertiesFromObjects",
                     view.expanded(R"({"top":{"visible":true,"screenRect":{"x":5,"y":6,"width":7,"height":8},
"__corvex__elementRectangleInDocument":{"x":3.7,"y":2,"width":2,"height":1},"__corvex__textContent":"all"},
"@a@":{"visible":"true","id":"first","tagName":"BUTTON","__corvex__textContent":"a & b",
"__corvex__elementRectangleInDocument":{"x":1,"y":1,"width":3,"height":2}},
"@b@":{"visible":false,"id":4,"__corvex__elementRectangleInDocument":{"x":0,"y":0,"width":9,"height":9}}})"));
    view.pageImage = QImage(8, 8, QImage::Format_ARGB32_Premultiplied);
    view.pageImage.fill(Qt::red);
    view.pageImage.setPixelColor(3, 2, Qt::green);
  }

  FunctionCallResult<std::shared_ptr<UIElement>> dump(const DumpFilter& filters) {
    return dumpObjectTree(wrapObject(new HTML_Object(QString(), QStringLiteral("top"), &view)), filters);
  }

  PageWithImage view;
  const DumpFilter someProperties{{FilterObject("HTML_Object", {"id", "tag*"}, {"id"})}};
};

TEST_F(Dump, OfAnyTreeTakesTwoEvaluationsAndOneImage) {
  const auto dumped = dump(someProperties);
  ASSERT_EQ(dumped.error, QString());
  EXPECT_EQ(view.calls.size(), 2U);
  EXPECT_EQ(view.grabs, 1);
  const UIElement& top = *dumped.value->children().at(0);
  EXPECT_EQ(textOf(top.concreteProperties()), "textContent=all");
  EXPECT_EQ(top.bounds(), (GlobalBounds{3, 2, 2, 1, -1}));
  EXPECT_EQ(top.image().size(), QSize(2, 1));
  EXPECT_EQ(top.image().pixelColor(0, 0), QColor(Qt::green));
  ASSERT_EQ(top.children().size(), 2U);
  const UIElement& button = *top.children().at(0);
  EXPECT_EQ(button.type(), "HTML_Button");
  EXPECT_EQ(textOf(button.identifyingProperties()), "id=first");
  EXPECT_EQ(textOf(button.concreteProperties()), "tagName=BUTTON textContent=a & b");
  const UIElement& hidden = *top.children().at(1);
  EXPECT_EQ(hidden.bounds(), (GlobalBounds{0, 0, -1, -1, -1}));
  EXPECT_TRUE(hidden.image().isNull());
  EXPECT_EQ(textOf(hidden.identifyingProperties()), "id=4");
  ASSERT_EQ(hidden.children().size(), 1U);
  // The page told nothing of it.
  EXPECT_EQ(hidden.children().at(0)->bounds(), (GlobalBounds{-1, -1, -1, -1, -1}));
}

TEST_F(Dump, AsksForWhatIsWantedAndWhatBoundsNeed) {
  dump({});
  const QString request = view.calls.back().code;
  for (const char* getter : {"'visible'", "'screenRect'", "'__corvex__textContent'",
                             "getElementRectangleInDocument( c, 1.5 )", "{ 'object': top, 'propertyGetters': { "}) {
    EXPECT_TRUE(request.contains(QLatin1String(getter))) << getter;
  }
  EXPECT_FALSE(request.contains("'id'"));
  // Objects of their own are no values.
  dump({{FilterObject("HTML_Object", {"*"})}});
  EXPECT_TRUE(view.calls.back().code.contains("'id'"));
  EXPECT_FALSE(view.calls.back().code.contains("'form'"));
}

TEST_F(Dump, WithoutImagesOfThePageUsesTheScreen) {
  view.hasImages = false;
  Notes notes;
  const HtmlObjectDumpObjectTreeDelegate delegate(&notes);
  const auto dumped = dump(someProperties);
  EXPECT_EQ(dumped.value->children().at(0)->bounds(), (GlobalBounds{5, 6, 7, 8, -1}));
  EXPECT_EQ(notes.list.value(0),
            "1Falling back to desktop screenshot grabbing for Object Dump as the browser does not support full page "
            "grabs.");
  view.hasImages = true;
  view.pageImage = QImage();
  notes.list.clear();
  dump(someProperties);
  EXPECT_EQ(notes.list.value(0),
            "1Failed to retrieve object screenshot: Invalid image obtained for html page screenshot.\n");
}

TEST_F(Dump, NestedReadsNothingAndKeepsWhatIsThere) {
  Notes notes;
  const HtmlObjectDumpObjectTreeDelegate delegate(&notes);
  const SharedPtr<Object> top = wrapObject(new HTML_Object(QString(), QStringLiteral("top"), &view));
  QString error;
  ObjectList list;
  EXPECT_TRUE(delegate.enterDump(top, {}, &error));
  EXPECT_TRUE(delegate.enterDump(top, {}, &error));
  EXPECT_EQ(view.calls.size(), 2U);
  EXPECT_TRUE(delegate.leaveDump(&error));
  EXPECT_TRUE(delegate.children(top, &list));
  EXPECT_EQ(list.size(), 2);
  EXPECT_TRUE(delegate.leaveDump(&error));
  EXPECT_TRUE(delegate.children(top, &list));
  EXPECT_EQ(list.size(), 0);
  EXPECT_FALSE(delegate.children(nullptr, &list));
}

TEST_F(Dump, SaysWhyItFailed) {
  const QString prefix = QStringLiteral("Error preparing object dump for '");
  view.zoomError = QStringLiteral("no zoom");
  EXPECT_TRUE(dump({}).error.startsWith(prefix));
  EXPECT_TRUE(dump({}).error.endsWith("': Error obtaining needed zoom factor in browser tab: no zoom"));
  view.zoomError.clear();
  view.fail("readPropertiesFromObjects", "stopped");
  EXPECT_TRUE(dump({}).error.contains("': Error fetching property values: ")) << qPrintable(dump({}).error);
  view.fail("objectTreeInformation", "gone");
  EXPECT_TRUE(dump({}).error.contains("gone"));
  // A failed dump is left.
  view.answerValue("objectTreeInformation", "[]");
  view.answerValue("readPropertiesFromObjects", "{}");
  EXPECT_EQ(dump({}).error, QString());
}

}  // namespace
