#include "corvexhook/delegate.h"
#include "corvexhook/hostservices.h"
#include "corvexhook/inspector.h"
#include "hookedpage.h"
#include "subjects.h"
#include "wrappers/web/object/retrievehtmlobject.h"
#include "wrappers/web/object/webobject.h"
#include "wrappers/web/object/wraphtmlobject.h"
#include "wrappers/web/page/calljavascriptfunction.h"
#include "wrappers/web/readiness/readiness.h"
#include "wrappers/web/setup/getjscode.h"
#include "wrappers/web/style/cssproperties.h"
#include "wrappers/web/values/jsobject.h"
#include "wrappers/web/xpath/html_xpathresult.h"

namespace CorvexBench {

using namespace Corvex;

namespace {

const int rounds = 400;
const int xpathRounds = 50;
const int waitMs = 1000;

/// What the program that runs scripts gives the framework for its waits.
class Services : public HostServices {
public:
  Services() { Inspector::self()->setHostServices(this); }
  ~Services() override { Inspector::self()->setHostServices(nullptr); }
  Services(const Services&) = delete;
  Services& operator=(const Services&) = delete;

  SharedPtr<Object> lookUpToUse(const std::function<SharedPtr<Object>()>& lookUp) const override {
    const WebWrapper::ReadinessToo readinessToo;
    return lookUp();
  }
  FunctionCallResult<bool> isReady(const SharedPtr<Object>& object) const override {
    return WebWrapper::isObjectReady(WebWrapper::retrieveObject(object));
  }
};

/// A page whose body has `elements` children, of as many kinds as there are tags.
QString pageOf(int elements, const QStringList& tags) {
  return QStringLiteral(
             "data:text/html,<body></body><script>var tags='%2'.split('+');for(var i=0;i<%1;i++){"
             "var e=document.createElement(tags[i%tags.length]);e.title='title'+i;e.setAttribute('name','name'+i);"
             "document.body.appendChild(e);}</script>")
      .arg(elements)
      .arg(tags.join(QLatin1Char('+')));
}

/// Measures on a page of 1,000 elements: the name of one in the middle, one of its properties, the body's children.
bool measurePage(Webhook::Connection& connection, const QStringList& tags, Report& report) {
  const QString error = connection.navigate(pageOf(1000, tags));
  if (!error.isEmpty()) {
    return fail(error);
  }
  Inspector* inspector = Inspector::self();
  const QString name = QStringLiteral("{tagName='INPUT' name='name500' title='title500'}");
  const SharedPtr<Object> object = inspector->lookup(name);
  const SharedPtr<Object> body = inspector->lookup(QStringLiteral("{tagName='BODY'}"));
  if (!object || !body) {
    return fail(QStringLiteral("the page's elements were not found: ") + inspector->takeScriptError());
  }
  const WebWrapper::HTML_Object* input = WebWrapper::retrieveObject(object);
  const QString children =
      QStringLiteral("window.top.__corvex.childObjectAndInfo( %1 )").arg(WebWrapper::retrieveObject(body)->reference);
  const SharedPtr<Object> handle = WebWrapper::retrieveJSObject(&connection, QStringLiteral("document")).value;
  WebWrapper::JsObject* page = nullptr;
  if (!handle || !handle->get(reinterpret_cast<void**>(&page))) {
    return fail(QStringLiteral("there is no value of the page."));
  }
  const auto bare = [&] { connection.evaluateJS(QStringLiteral("1"), 0); };
  takeTurns(
      {{QStringLiteral("bare round trip (evaluate 1)"), bare},
       {QStringLiteral("findObject, three properties"), [&] { inspector->lookup(name); }},
       {QStringLiteral("waitForObject, of one that is there and ready"), [&] { inspector->findObject(name, waitMs); }},
       {QStringLiteral("property read (tagName)"), [&] { input->tagName(); }},
       {QStringLiteral("property of a value of the page"), [&] { page->property(QStringLiteral("title")); }}},
      rounds, report);
  // These leave the page so much to tidy up that the next question waits for it.
  takeTurns({{QStringLiteral("child list of the body"),
              [&] { WebWrapper::callJavaScriptFunction(&connection, children, 0); }},
             {QStringLiteral("all computed style properties of an element"),
              [&] { std::unique_ptr<WebWrapper::CSSProperties>(input->cssProperties().value); }}},
            rounds, report);
  const QString scriptError = inspector->takeScriptError();
  return scriptError.isEmpty() || fail(scriptError);
}

/// Measures one XPath expression on a page of 10,000 elements: through an object, and by the browser alone.
bool measureXPath(Webhook::Connection& connection, const QStringList& tags, Report& report) {
  const QString error = connection.navigate(pageOf(10000, tags));
  if (!error.isEmpty()) {
    return fail(error);
  }
  const SharedPtr<Object> body = Inspector::self()->lookup(QStringLiteral("{tagName='BODY'}"));
  if (!body) {
    return fail(QStringLiteral("the page has no body."));
  }
  WebWrapper::HTML_Object* const object = WebWrapper::retrieveObject(body);
  const QString expression = QStringLiteral("//input[@name='name9990']");
  const QString native =
      QStringLiteral("document.evaluate(\"%1\",document,null,7,null).snapshotLength").arg(expression);
  QString foundNatively;
  takeTurns({{QStringLiteral("bare round trip (evaluate 1)"), [&] { connection.evaluateJS(QStringLiteral("1"), 0); }},
             {QStringLiteral("the browser's own document.evaluate"),
              [&] { foundNatively = connection.evaluateJS(native, 0).text; }},
             {QStringLiteral("obj.evaluateXPath, its result left in the page"),
              [&] { std::unique_ptr<WebWrapper::HTML_XPathResult>(object->evaluateXPath(expression).value); }}},
            xpathRounds, report);
  const std::unique_ptr<WebWrapper::HTML_XPathResult> result(object->evaluateXPath(expression).value);
  const QString found = result ? QString::number(result->snapshotLength().value) : QString();
  return (found == foundNatively && found == QLatin1String("1")) ||
         fail(QStringLiteral("XPath found '%1', the browser '%2'.").arg(found, foundNatively));
}

}  // namespace

bool measureLookups(const SessionOptions& options, Report& report) {
  HookedPage page;
  const QString error = page.start(options);
  if (!error.isEmpty()) {
    return fail(error);
  }
  const Services services;
  report.section(QStringLiteral("From the driver, 1,000 elements of ten tags"));
  const QStringList tenTags = {QStringLiteral("input"),  QStringLiteral("div"),    QStringLiteral("span"),
                               QStringLiteral("a"),      QStringLiteral("p"),      QStringLiteral("li"),
                               QStringLiteral("td"),     QStringLiteral("button"), QStringLiteral("label"),
                               QStringLiteral("section")};
  if (!measurePage(page.connection(), tenTags, report)) {
    return false;
  }
  report.section(QStringLiteral("From the driver, 1,000 elements of one tag"));
  if (!measurePage(page.connection(), {QStringLiteral("input")}, report)) {
    return false;
  }
  report.section(QStringLiteral("XPath over 10,000 nodes, from the driver"));
  if (!measureXPath(page.connection(), tenTags, report)) {
    return false;
  }
  report.addNumber(QStringLiteral("hook script, characters"),
                   WebWrapper::getJSCode(WebWrapper::MemoryBasedConfig()).size());
  return true;
}

}  // namespace CorvexBench
