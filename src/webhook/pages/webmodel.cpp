#include "webhook/pages/webmodel.h"

#include "corvexhook/inspector.h"
#include "webhook/pages/browserdelegates.h"
#include "webhook/pages/connection.h"
#include "wrappers/web/catalogue/webobject_init.h"
#include "wrappers/web/input/sharedobjectmodelfunctions.h"
#include "wrappers/web/lookup/findallobjects.h"
#include "wrappers/web/recording/webevents.h"

#include <algorithm>

namespace Corvex::Webhook {

namespace {

const char* const browserClassName = "Browser";

// One sweep leaves at most every other object of a connection behind, so this many leave none of 2^32.
const int sweepsThatReachAll = 32;

}  // namespace

WebModel::WebModel() {
  m_browserClass = new Class(browserClassName, Inspector::self()->globalNamespace(), true);
  WebWrapper::createWebObjectClasses();
  WebWrapper::setupSharedObjectModelFunctions();
  initWebEvents();
  m_toplevel = std::make_unique<BrowserToplevelDelegate>(QString::fromLatin1(browserClassName), *this);
  m_hierarchy = std::make_unique<BrowserHierarchyDelegate>(*this);
  m_items = std::make_unique<WebWrapper::CustomViewItemPropertyDelegate>();
  m_comparison = std::make_unique<WebWrapper::WebObjectComparisonDelegate>(QStringLiteral("HTML_Object"));
}

WebModel::~WebModel() {
  while (!m_roots.empty()) {
    removeConnection(m_roots.front().connection);
  }
}

std::vector<WebModel::Root>::iterator WebModel::find(Connection* connection) {
  return std::find_if(m_roots.begin(), m_roots.end(),
                      [connection](const Root& root) { return root.connection == connection; });
}

void WebModel::addConnection(Connection* connection) {
  const SharedPtr<Object> root = m_browserClass->wrap(connection, ObjectAttribute(ObjectAttribute::NativePointer));
  m_roots.push_back({connection, root});
  Inspector::self()->addRootObject(root);
  if (!m_current) {
    m_current = connection;
  }
}

void WebModel::removeConnection(Connection* connection) {
  const auto found = find(connection);
  if (found == m_roots.end()) {
    return;
  }
  Inspector::self()->removeRootObject(found->object);
  m_roots.erase(found);
  invalidateObjects(connection);
  if (m_current == connection) {
    m_current = nullptr;
  }
}

QVector<Connection*> WebModel::connections() const {
  QVector<Connection*> connections;
  for (const Root& root : m_roots) {
    connections << root.connection;
  }
  return connections;
}

void WebModel::setCurrent(Connection* connection) {
  const auto found = find(connection);
  if (found == m_roots.end()) {
    return;
  }
  m_current = connection;
  Inspector::self()->askFirst(found->object);
}

void WebModel::invalidateObjects(Connection* connection) {
  for (int sweep = 0; sweep < sweepsThatReachAll; ++sweep) {
    m_hierarchy->clearAllJSReferences(connection);
  }
}

ObjectList WebModel::findAll(const std::vector<SharedPtr<Object>>& roots, const ObjectName& name) {
  ObjectList all;
  Connection* const before = m_current;
  const bool picksOne = WebWrapper::namesOneOccurrence(name);
  for (const SharedPtr<Object>& root : roots) {
    all.append(WebWrapper::findAllObjects(*m_toplevel, root, name));
    if (picksOne && !all.isEmpty()) {
      break;
    }
  }
  setCurrent(before);
  return all;
}

}  // namespace Corvex::Webhook
