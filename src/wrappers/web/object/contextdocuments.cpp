#include "wrappers/web/object/contextdocuments.h"

#include "corvexhook/inspector.h"
#include "wrappers/web/object/retrievehtmlobject.h"
#include "wrappers/web/page/escaping.h"

namespace Corvex::WebWrapper {

FunctionCallResult<HTML_Object*> contextDocument(HTMLComponent* component) {
  return htmlObjectFromAnyDocument(
      component,
      QStringLiteral("(function() { if( !window.__corvex__ctxwin ) { window.__corvex__ctxwin = window } "
                     "return window.__corvex__ctxwin.document; }());"),
      QString(), 0);
}

FunctionCallResult<HTML_Object*> documentByContextName(HTMLComponent* component, const QString& name) {
  const int open = name.indexOf(QLatin1Char('['));
  const int close = name.indexOf(QLatin1Char(']'));
  const QString context = open >= 0 && close > open ? name.mid(open + 1, close - open - 1) : QString();
  const FunctionCallResult<HTML_Object*> document = htmlObjectFromAnyDocument(
      component, QStringLiteral("__corvex__documentOfContext('%1');").arg(escapeQuoteWithBackslash(context)), QString(),
      0);
  if (!document.failed() && document.value) {
    Inspector::self()->removeUnmatchedProperties(unescape(name));
  }
  return document;
}

}  // namespace Corvex::WebWrapper
