#include "webhook/pages/webmodel.h"

#include "corvexhook/inspector.h"
#include "webhook/pages/connection.h"
#include "wrappers/web/catalogue/webobject_init.h"
#include "wrappers/web/input/sharedobjectmodelfunctions.h"
#include "wrappers/web/lookup/findallobjects.h"
#include "wrappers/web/lookup/webobjectdelegate.h"

#include <QScopedValueRollback>

namespace Corvex::Webhook {

namespace {

const char* const browserClassName = "Browser";

// One sweep leaves at most every other object of a connection behind, so this many leave none of 2^32.
const int sweepsThatReachAll = 32;

}  // namespace

/// The root of the page tree: a "Browser" object stands for the connection that is its data.
class BrowserToplevelDelegate : public WebWrapper::WebToplevelDelegate {
public:
  BrowserToplevelDelegate() : WebToplevelDelegate(QString::fromLatin1(browserClassName)) {}

  void setCurrent(Connection* connection) { m_current = connection; }
  Connection* current() const { return m_current; }

  WebWrapper::HTMLComponent* component(SharedPtr<Object> root) const override {
    void* data = nullptr;
    if (root && root->get(&data)) {
      return static_cast<Connection*>(data);
    }
    return m_asked ? m_asked : m_current;
  }

  bool keepsDocumentAcrossComponents() const override { return false; }

  /// The containers of a name come with no root: they are in the page of the name itself.
  SharedPtr<Object> objectByQualifiedName(SharedPtr<Object> root, const ObjectName& name) const override {
    const QScopedValueRollback<WebWrapper::HTMLComponent*> asked(m_asked, component(root));
    return WebToplevelDelegate::objectByQualifiedName(root, name);
  }

private:
  Connection* m_current = nullptr;
  mutable WebWrapper::HTMLComponent* m_asked = nullptr;
};

WebModel::WebModel() {
  m_browserClass = new Class(browserClassName, Inspector::self()->globalNamespace(), true);
  WebWrapper::createWebObjectClasses();
  WebWrapper::setupSharedObjectModelFunctions();
  m_toplevel = std::make_unique<BrowserToplevelDelegate>();
  m_hierarchy = std::make_unique<WebWrapper::HTMLObjectHierarchyDelegate>();
  m_items = std::make_unique<WebWrapper::CustomViewItemPropertyDelegate>();
  m_comparison = std::make_unique<WebWrapper::WebObjectComparisonDelegate>(QStringLiteral("HTML_Object"));
}

WebModel::~WebModel() {
  while (!m_roots.empty()) {
    removeConnection(m_roots.begin()->first);
  }
}

void WebModel::addConnection(Connection* connection) {
  const SharedPtr<Object> root = m_browserClass->wrap(connection, ObjectAttribute(ObjectAttribute::NativePointer));
  m_roots[connection] = root;
  Inspector::self()->addRootObject(root);
  if (!current()) {
    m_toplevel->setCurrent(connection);
  }
}

void WebModel::removeConnection(Connection* connection) {
  const auto found = m_roots.find(connection);
  if (found == m_roots.end()) {
    return;
  }
  Inspector::self()->removeRootObject(found->second);
  m_roots.erase(found);
  invalidateObjects(connection);
  if (current() == connection) {
    m_toplevel->setCurrent(nullptr);
  }
}

void WebModel::setCurrent(Connection* connection) {
  const auto found = m_roots.find(connection);
  if (found == m_roots.end()) {
    return;
  }
  m_toplevel->setCurrent(connection);
  Inspector::self()->askFirst(found->second);
}

Connection* WebModel::current() const { return m_toplevel->current(); }

void WebModel::invalidateObjects(Connection* connection) {
  for (int sweep = 0; sweep < sweepsThatReachAll; ++sweep) {
    m_hierarchy->clearAllJSReferences(connection);
  }
  m_toplevel->clearDocumentReference();
}

ObjectList WebModel::findAll(const std::vector<SharedPtr<Object>>& roots, const ObjectName& name) const {
  ObjectList all;
  const bool picksOne = WebWrapper::namesOneOccurrence(name);
  for (const SharedPtr<Object>& root : roots) {
    all.append(WebWrapper::findAllObjects(*m_toplevel, root, name));
    if (picksOne && !all.isEmpty()) {
      break;
    }
  }
  return all;
}

}  // namespace Corvex::Webhook
