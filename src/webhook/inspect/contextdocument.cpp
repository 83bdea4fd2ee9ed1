#include "webhook/inspect/contextdocument.h"

#include "corvexhook/delegate.h"
#include "corvexhook/inspector.h"
#include "webhook/pages/connection.h"
#include "webhook/pages/contexts.h"
#include "wrappers/web/object/webobject.h"
#include "wrappers/web/object/wraphtmlobject.h"

namespace Corvex::Webhook {

namespace {

SharedPtr<Object> rootOf(const Connection* page) {
  for (const SharedPtr<Object>& root : Inspector::self()->rootObjects()) {
    void* data = nullptr;
    if (root->get(&data) && data == page) {
      return root;
    }
  }
  return nullptr;
}

}  // namespace

SharedPtr<Object> documentOfContext(const Context& context) {
  const SharedPtr<Object> root = rootOf(context.connection);
  const ObjectHierarchyDelegate* const delegate = hierarchyDelegate(root);
  if (!delegate) {
    return nullptr;
  }
  QString name = context.localName;
  const SharedPtr<Object> document =
      delegate->childByName(root, QStringLiteral("DOCUMENT[%1]").arg(name.replace(QLatin1Char('.'), QLatin1Char('|'))));
  const WebWrapper::HTML_Object* native = WebWrapper::retrieveObject(document);
  if (!native) {
    return nullptr;
  }
  // Where a name leads to no window, the answer is another document.
  const WebWrapper::JavaScriptAnswer shown =
      native->evaluateJS(QStringLiteral("__corvex__contextOf(%1.defaultView)").arg(native->reference));
  return shown.succeeded() && shown.text == context.localName ? document : SharedPtr<Object>();
}

}  // namespace Corvex::Webhook
