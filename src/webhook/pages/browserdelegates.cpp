#include "webhook/pages/browserdelegates.h"

#include "webhook/pages/connection.h"
#include "webhook/pages/contextinname.h"
#include "webhook/pages/webmodel.h"
#include "webhook/pages/windownames.h"
#include "wrappers/web/lookup/containers.h"
#include "wrappers/web/object/wraphtmlobject.h"

#include <QScopedValueRollback>

namespace Corvex::Webhook {

WebWrapper::HTMLComponent* BrowserToplevelDelegate::component(SharedPtr<Object> root) const {
  void* data = nullptr;
  if (root && root->get(&data)) {
    return static_cast<Connection*>(data);
  }
  return m_asked ? m_asked : m_model.current();
}

SharedPtr<Object> BrowserToplevelDelegate::child(SharedPtr<Object> root, int index) const {
  const SharedPtr<Object> document = WebToplevelDelegate::child(root, index);
  forgetDocument();
  return document;
}

SharedPtr<Object> BrowserToplevelDelegate::childByName(SharedPtr<Object> root, const QString& name) const {
  const std::optional<QString> context = contextOfDocument(name);
  if (!context) {
    return WebToplevelDelegate::childByName(root, name);
  }
  const auto* const window = static_cast<Connection*>(component(root));
  const std::optional<QString> local = WindowNames(m_model.connections()).inside(window, *context);
  return local ? WebToplevelDelegate::childByName(root, documentOf(*local)) : SharedPtr<Object>();
}

SharedPtr<Object> BrowserToplevelDelegate::objectByQualifiedName(SharedPtr<Object> root, const ObjectName& name) const {
  auto* const window = static_cast<Connection*>(component(root));
  // The containers of a name come with no root: they are in the page of the name itself.
  const QScopedValueRollback<WebWrapper::HTMLComponent*> asked(m_asked, window);
  const SharedPtr<Object> found = WebToplevelDelegate::objectByQualifiedName(root, name);
  if (found && root && !WebWrapper::splitByContainer(name).front().hasProperty(QStringLiteral("context"))) {
    m_model.setCurrent(window);
  }
  return found;
}

std::optional<ObjectName> BrowserToplevelDelegate::nameInPage(WebWrapper::HTMLComponent* page,
                                                              const ObjectName& name) const {
  const QString property = QStringLiteral("context");
  if (!name.hasProperty(property) || name.property(property).modifiers() != PropertyValue::StrictMatch) {
    return name;
  }
  const std::optional<QString> local =
      WindowNames(m_model.connections()).inside(static_cast<Connection*>(page), name.property(property).value());
  if (!local) {
    return std::nullopt;
  }
  ObjectName inPage = name;
  inPage.setProperty(property, PropertyValue(*local));
  return inPage;
}

QString BrowserHierarchyDelegate::qualifiedName(SharedPtr<Object> object) const {
  const QString name = HTMLObjectHierarchyDelegate::qualifiedName(object);
  const WebWrapper::HTML_Object* const native = WebWrapper::retrieveObject(object);
  const auto* const window = native ? static_cast<Connection*>(native->component) : nullptr;
  const bool hasContext = namesItsContext(name);
  if (name.isEmpty() || !window || (window == m_model.current() && !hasContext)) {
    return name;
  }
  const WebWrapper::JavaScriptAnswer context =
      native->evaluateJS(QStringLiteral("__corvex__contextOf(__corvex__currentContext(%1))").arg(native->reference));
  return context.succeeded() ? inContext(name, WindowNames(m_model.connections()).outside(window, context.text)) : name;
}

}  // namespace Corvex::Webhook
