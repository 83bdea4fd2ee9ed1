#include "wrappers/web/object/webobject.h"

#include "wrappers/web/webtest.h"

#include <QTimer>

#include <functional>

using namespace Corvex;
using namespace Corvex::WebWrapper;
using namespace TestSupport;

namespace {

class WebObject : public WebTest {
protected:
  /// What one call asks of a page that only fails, and what the call says then.
  struct Row {
    std::function<QString(HTML_Object&)> run;
    QString code;
    QString error;
  };
  void check(const std::vector<Row>& rows) {
    page.fail(QString(), "gone");
    for (const Row& row : rows) {
      EXPECT_EQ(row.run(object), row.error);
      const QStringList codes = page.takeCodes();
      EXPECT_EQ(codes.size(), 1);
      EXPECT_TRUE(codes.join("\n").contains(row.code)) << row.code.toStdString() << "\nnot in\n"
                                                       << codes.join("\n").toStdString();
    }
  }

  HTML_Object object{QString(), "ref", &page};
};

}  // namespace

TEST_F(WebObject, GettersAskThePageInTheirWords) {
  const QString plain = "{'result': window.top.__corvex.getPropertyValue( ref, '%1' ).replace(/\\s*$/, '')}";
  const QString rect = "{'result': window.top.__corvex.getElementRectAsObject( ref ).%1}";
  const struct {
    const char* getter;
    QString code;
  } rows[] = {
      {"id", plain.arg("id")},
      {"innerText", plain.arg("innerText")},
      {"innerHTML", plain.arg("innerHTML")},
      {"tagName", plain.arg("tagName")},
      {"title", plain.arg("title")},
      {"styleDisplay", plain.arg("style.display")},
      {"domClassName", plain.arg("className")},
      {"simplifiedInnerText", envelope("window.top.__corvex.getSimplifiedInnerText( ref )")},
      {"x", rect.arg("x")},
      {"y", rect.arg("y")},
      {"width", rect.arg("width")},
      {"height", rect.arg("height")},
      {"numChildren", envelope("__corvexDOMAPI.numChildren( ref )")},
  };
  page.fail(QString(), "gone");
  for (const auto& row : rows) {
    EXPECT_FALSE(call(wrapped<HTML_Object>(), row.getter));
    EXPECT_EQ(scriptError(), QStringLiteral("Error retrieving %1: gone").arg(row.getter));
    EXPECT_TRUE(page.takeCodes().join("\n").contains(row.code)) << row.getter;
  }
  check({
      {[](HTML_Object& o) { return o.hierarchicalQualifiedName().error; },
       envelope("__corvex__qualifiedName( ref ).replace(/\\s*$/, '')"),
       "Error while generating hierarchical name: gone"},
      {[](HTML_Object& o) { return o.visible().error; }, envelope("__corvex__isVisible( ref )"),
       "Error determining visibility: gone"},
      {[](HTML_Object& o) { return o.hasFocus().error; }, envelope("window.top.__corvex.hasFocus( ref )"),
       "Error obtaining focus state: gone"},
      {[](HTML_Object& o) { return o.styleVisibility().error; },
       "window.top.__corvex.getPropertyValue( ref, 'style.visibility');",
       "Error while obtaining property 'style.visibility': gone"},
  });
}

TEST_F(WebObject, ActionsAskThePageInTheirWords) {
  check({
      {[](HTML_Object& o) { return o.setProperty("value", "it's\r\n\\"); }, "ref.value='it\\'s\\n\\\\';",
       "Error setting property 'value' to value 'it's\r\n\\': gone"},
      {[](HTML_Object& o) { return o.setProperty("data-x", 5); }, "ref['data-x']=5;",
       "Error setting property 'data-x' to value 5: gone"},
      {[](HTML_Object& o) { return o.setProperty("hidden", true); }, "ref.hidden=true;",
       "Error setting property 'hidden' to value true: gone"},
      {[](HTML_Object& o) { return o.invoke("f").error; }, "ref.f();", "Error invoking function 'f': gone"},
      {[](HTML_Object& o) { return o.invoke("f", "'%2'").error; }, "ref.f('%2');",
       "Error invoking function 'f('%2')': gone"},
      {[](HTML_Object& o) { return o.invoke("f", "1", "x").error; }, "ref.f(1, x);",
       "Error invoking function 'f(1, x)': gone"},
      {[](HTML_Object& o) { return o.openContextMenu(); }, deferred("__corvex__openContextMenu(ref);"),
       "Error opening context menu: gone"},
      {[](HTML_Object& o) { return o.click(0, 3, 4, 1); },
       deferred("__corvex__click(ref, false, false, false, 3, 4, 1);"),
       "Error occurred while clicking on object: gone"},
      {[](HTML_Object& o) { return o.doubleClick(7, 3, 4); },
       deferred("__corvex__dblclick(ref, true, true, true, 3, 4, 1);"),
       "Error occurred while double-clicking on object at relative position 3/4 with modifier 7: gone"},
      {[](HTML_Object& o) { return o.scrollTo(false); }, "__corvex__scrollToElement(ref, false);",
       "Error scrolling to object: gone"},
      {[](HTML_Object& o) { return o.firstChild().error; }, "var dummy = __corvexDOMAPI.firstChild(ref);;",
       "Error obtaining first child: gone"},
      {[](HTML_Object& o) { return o.lastChild().error; }, "= __corvexDOMAPI.lastChild(ref);;",
       "Error obtaining last child: gone"},
      {[](HTML_Object& o) { return o.nextSibling().error; }, "= __corvexDOMAPI.nextSibling(ref);;",
       "Error obtaining next sibling: gone"},
      {[](HTML_Object& o) { return o.previousSibling().error; }, "= __corvexDOMAPI.previousSibling(ref);;",
       "Error obtaining previous sibling: gone"},
      {[](HTML_Object& o) { return o.parentElement().error; }, "= ref.parentNode;;",
       "Error obtaining parent element: gone"},
      {[](HTML_Object& o) { return o.shadowRoot().error; }, "= ref.shadowRoot;;", "Error obtaining shadow root: gone"},
  });
}

TEST_F(WebObject, ModifiersChooseKeysAndTheRightButton) {
  struct Row {
    int modifiers;
    const char* arguments;
  };
  for (const Row& row : {Row{1, "false, false, true, 0, 0, 4"}, Row{2, "true, false, false, 0, 0, 4"},
                         Row{4, "false, true, false, 0, 0, 4"}, Row{16, "false, false, false, 0, 0, 2"}}) {
    EXPECT_EQ(HTML_Object::clickOn("r", row.modifiers, 0, 0, 4),
              QStringLiteral("setTimeout(function(e){__corvex__click(r, %1);}, 100);").arg(row.arguments));
  }
}

TEST_F(WebObject, AClickLetsOtherWorkRunEvenWhenItFailed) {
  bool ran = false;
  QTimer::singleShot(100, [&ran] { ran = true; });
  EXPECT_FALSE(object.click(0, 0, 0, 1).isEmpty());
  EXPECT_TRUE(ran);
}

TEST_F(WebObject, ReadsWhatThePageSays) {
  page.answerValue("'innerText'", "\"\\u00e4\\n1\"");
  EXPECT_EQ(object.innerText().value, QStringLiteral("\u00e4\n1"));
  page.answerValue("getElementRectAsObject", "7.9");
  EXPECT_EQ(object.x().value, 7);
  page.answerValue("getElementRectAsObject", "\"wide\"");
  EXPECT_EQ(object.x().error,
            QString("Error retrieving x: the page answered \"wide\" where a whole number was expected"));
  page.answerValue("hasFocus", "\"true\"");
  EXPECT_EQ(object.hasFocus().error, QString("Error: Json object '\"true\"\n' has unexpected type (expected bool): 4"));
  page.answerValue("hasFocus", "true");
  EXPECT_TRUE(object.hasFocus().value);
}

TEST_F(WebObject, VisibleHasAnOlderMeaning) {
  page.answerValue("__corvex__isVisible", "true");
  page.answer("getPropertyValue( ref, 'visible');", "false");
  EXPECT_TRUE(object.visible().value);
  page.settings.setBackwardsCompatibleVisiblePropertyForHTML_Object(true);
  EXPECT_FALSE(object.visible().value);
  page.fail("getPropertyValue( ref, 'visible');", "gone");
  EXPECT_EQ(object.visible().error, QString("Error while obtaining property 'visible': gone"));
}

TEST_F(WebObject, OneBrowserGetsATimeLimitForProperties) {
  page.answer("getPropertyValue", "x");
  EXPECT_EQ(object.property("a'b").value, QString("x"));
  EXPECT_EQ(page.calls[0].code, QString("window.top.__corvex.getPropertyValue( ref, 'a\\'b');"));
  EXPECT_EQ(page.calls[0].timeoutMs, 0U);
  page.kind = 2;
  object.property("a");
  EXPECT_EQ(page.calls[1].timeoutMs, 5000U);
}

TEST_F(WebObject, TheNameIsAskedForOnce) {
  page.fail("__corvex__uniqueNameInLeaf(ref);", "gone");
  EXPECT_EQ(object.name().error, QString("Error obtaining name: gone"));
  page.answer("__corvex__uniqueNameInLeaf(ref);", "DIV1");
  EXPECT_EQ(object.name().value, QString("DIV1"));
  page.takeCodes();
  EXPECT_EQ(object.name().value, QString("DIV1"));
  EXPECT_TRUE(page.calls.empty());
}

TEST_F(WebObject, PropertyNamesAreParsed) {
  EXPECT_TRUE(HTML_Object::isJavaScriptPropertyReadSupported("selectedText"));
  EXPECT_EQ(HTML_Object::parsePropertyIdString("domPath").value, PropertyId::DomPath);
  EXPECT_EQ(HTML_Object::parsePropertyIdString("DomPath").error,
            QString("Unknown property name 'DomPath', cannot convert to enum."));
  testing::internal::CaptureStderr();
  EXPECT_EQ(object.propertyGetterCode(static_cast<PropertyId>(99)), QString());
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "Unknown property name passed to propertyGetterCode: 99\n");
}
