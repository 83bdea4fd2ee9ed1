#include "webhook/webmodel.h"

#include "corvexhook/inspector.h"
#include "webhook/connection.h"
#include "wrappers/web/readiness.h"
#include "wrappers/web/sharedobjectmodelfunctions.h"
#include "wrappers/web/webobject_init.h"
#include "wrappers/web/webobjectdelegate.h"
#include "wrappers/web/wraphtmlobject.h"

namespace Corvex::Webhook {

namespace {

const char* const browserClassName = "Browser";

}  // namespace

/// The root of the page tree: a "Browser" object stands for the connection that is its data.
class BrowserToplevelDelegate : public WebWrapper::WebToplevelDelegate {
public:
  BrowserToplevelDelegate() : WebToplevelDelegate(QString::fromLatin1(browserClassName)) {}

  void setConnection(Connection* connection) { m_connection = connection; }

  WebWrapper::HTMLComponent* component(SharedPtr<Object> root) const override {
    void* data = nullptr;
    return root && root->get(&data) ? static_cast<Connection*>(data) : m_connection;
  }

  bool keepsDocumentAcrossComponents() const override { return false; }

private:
  Connection* m_connection = nullptr;
};

WebModel::WebModel() {
  Inspector* inspector = Inspector::self();
  m_browserClass = new Class(browserClassName, inspector->globalNamespace(), true);
  WebWrapper::createWebObjectClasses();
  WebWrapper::setupSharedObjectModelFunctions();
  m_toplevel = std::make_unique<BrowserToplevelDelegate>();
  m_hierarchy = std::make_unique<WebWrapper::HTMLObjectHierarchyDelegate>();
}

WebModel::~WebModel() { setConnection(nullptr); }

void WebModel::setConnection(Connection* connection) {
  Inspector* inspector = Inspector::self();
  if (m_root) {
    inspector->removeRootObject(m_root);
    m_root = nullptr;
    invalidateObjects();
  }
  m_toplevel->setConnection(connection);
  if (connection) {
    m_root = m_browserClass->wrap(connection, ObjectAttribute(ObjectAttribute::NativePointer));
    inspector->addRootObject(m_root);
  }
}

void WebModel::invalidateObjects() {
  m_hierarchy->invalidateAllReferencedObjects();
  m_toplevel->clearDocumentReference();
}

}  // namespace Corvex::Webhook
