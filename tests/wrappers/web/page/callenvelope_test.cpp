#include "wrappers/web/object/contextdocuments.h"
#include "wrappers/web/page/calljavascriptfunction.h"
#include "wrappers/web/page/jsonanswer.h"
#include "wrappers/web/webtest.h"

using namespace Corvex;
using namespace Corvex::WebWrapper;
using namespace TestSupport;

namespace {

class CallEnvelope : public WebTest {
protected:
  QString errorFor(const QString& answer, const QString& expression = QStringLiteral("f()")) {
    page.answer(QString(), answer);
    const FunctionCallResult<Json::Value> result = callJavaScriptFunction(&page, expression, 0);
    EXPECT_TRUE(result.value.isNull());
    return result.error;
  }
};

}  // namespace

TEST_F(CallEnvelope, SendsTheExpressionOnceInsideAFunction) {
  page.answerValue("f(%1)", "[1, \"\u00e4\"]");
  const FunctionCallResult<Json::Value> result = callJavaScriptFunction(&page, QStringLiteral("f(%1)"), 1234);
  EXPECT_EQ(result.error, QString());
  EXPECT_EQ(jsonText(result.value[1]), QStringLiteral("\u00e4"));
  ASSERT_EQ(page.calls.size(), 1U);
  EXPECT_EQ(page.calls[0].timeoutMs, 1234U);
  // The text around the expression has 242 characters and the marker.
  EXPECT_EQ(page.calls[0].code.size(), 244 - 2 + 5);
  EXPECT_TRUE(page.calls[0].code.startsWith("(function() {\n  try {\n    return JSON.stringify({'result': f(%1)});"));
  EXPECT_TRUE(page.calls[0].code.endsWith("'stack': e['stack']}});\n  }\n}());"));
}

TEST_F(CallEnvelope, UndefinedIsNullWithoutAnError) { EXPECT_EQ(errorFor("{}"), QString()); }

TEST_F(CallEnvelope, FailedAndAbortedEvaluationsPassTheirText) {
  page.fail(QString(), "the page is gone");
  EXPECT_EQ(callJavaScriptFunction(&page, "f()", 0).error, QString("the page is gone"));
  page.abort(QString(), "time is over");
  EXPECT_EQ(callJavaScriptFunction(&page, "f()", 0).error, QString("time is over"));
}

TEST_F(CallEnvelope, SaysWhatIsWrongWithAnAnswer) {
  EXPECT_TRUE(
      errorFor("{oops").startsWith("Calling f() failed to parse JSON return value '{oops': * Line 1, Column 2"));
  EXPECT_EQ(errorFor("7"), QString("Calling f() JSON return value is not an object: 7"));
  EXPECT_TRUE(errorFor(QString(5000, '[')).startsWith("Calling f() failed to parse JSON"));
}

TEST_F(CallEnvelope, ShortensLongExpressionsFromAHundredCharactersOn) {
  const QString shown = QString(99, 'x');
  EXPECT_EQ(errorFor("7", shown), "Calling " + shown + " JSON return value is not an object: 7");
  const QString shortened = QString(50, 'x') + "..." + QString(49, 'x') + 'y';
  EXPECT_EQ(errorFor("7", QString(99, 'x') + 'y'), "Calling " + shortened + " JSON return value is not an object: 7");
}

TEST_F(CallEnvelope, DescribesAnException) {
  struct Row {
    const char* error;
    const char* detail;
  };
  const Row rows[] = {
      {R"({"name":"TypeError","message":"x is %2"})", "TypeError: x is %2."},
      {R"({"name":"E","message":"m","file":"a.js","line":7})", "E: m at a.js: 7."},
      {R"({"name":"E","message":"m","file":"a.js"})", "E: m at a.js."},
      {R"({"name":"E","message":"m","line":7})", "E: m."},
      {R"({"name":"E","message":"m","stack":"f@a"})", "E: m. Stacktrace: f@a"},
      {R"({})", ": ."},
      {R"({"name":{"a":1},"message":[]})", "{\"a\":1}: []."},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(errorFor(QStringLiteral("{\"error\":%1}").arg(row.error)),
              QStringLiteral("Calling f(): Error evaluating JavaScript: ") + row.detail);
  }
}

TEST_F(CallEnvelope, AsksForDocuments) {
  page.answerObject("window.__corvex__ctxwin.document", "document", "doc");
  std::unique_ptr<HTML_Object> document(contextDocument(&page).value);
  ASSERT_TRUE(document);
  EXPECT_STREQ(document->className(), "HTML_Document");

  page.answerObject("__corvex__documentOfContext('a.b');", "document", "inner");
  Inspector::self()->addUnmatchedProperty("DOCUMENT[a.b]", "x");
  document.reset(documentByContextName(&page, "DOCUMENT[a.b]").value);
  ASSERT_TRUE(document);
  EXPECT_EQ(page.named(document->reference), QString("inner"));
  EXPECT_EQ(Inspector::self()->unmatchedProperties("DOCUMENT[a.b]"), QStringList());
}
