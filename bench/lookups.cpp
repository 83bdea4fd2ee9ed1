#include "corvexhook/delegate.h"
#include "corvexhook/inspector.h"
#include "hookedpage.h"
#include "subjects.h"
#include "wrappers/web/object/webobject.h"
#include "wrappers/web/object/wraphtmlobject.h"
#include "wrappers/web/page/calljavascriptfunction.h"
#include "wrappers/web/readiness/readiness.h"
#include "wrappers/web/setup/getjscode.h"
#include "wrappers/web/style/cssproperties.h"
#include "wrappers/web/values/jsobject.h"

namespace CorvexBench {

using namespace Corvex;

namespace {

const int rounds = 400;

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
  takeTurns({{QStringLiteral("bare round trip (evaluate 1)"), [&] { connection.evaluateJS(QStringLiteral("1"), 0); }},
             {QStringLiteral("findObject, three properties"), [&] { inspector->lookup(name); }},
             {QStringLiteral("property read (tagName)"), [&] { input->tagName(); }},
             {QStringLiteral("child list of the body"),
              [&] { WebWrapper::callJavaScriptFunction(&connection, children, 0); }},
             {QStringLiteral("waitForObject, ready: found, and asked whether it is"),
              [&] { WebWrapper::isObjectReady(WebWrapper::retrieveObject(inspector->lookup(name))); }},
             {QStringLiteral("all computed style properties of an element"),
              [&] { std::unique_ptr<WebWrapper::CSSProperties>(input->cssProperties().value); }},
             {QStringLiteral("property of a value of the page"), [&] { page->property(QStringLiteral("title")); }}},
            rounds, report);
  const QString scriptError = inspector->takeScriptError();
  return scriptError.isEmpty() || fail(scriptError);
}

}  // namespace

bool measureLookups(const SessionOptions& options, Report& report) {
  HookedPage page;
  const QString error = page.start(options);
  if (!error.isEmpty()) {
    return fail(error);
  }
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
  report.addNumber(QStringLiteral("hook script, characters"),
                   WebWrapper::getJSCode(WebWrapper::MemoryBasedConfig()).size());
  return true;
}

}  // namespace CorvexBench
