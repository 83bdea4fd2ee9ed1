#pragma once

#include "corvexhook/object.h"
#include "corvexhook/objectname.h"

#include <QVector>

#include <memory>
#include <vector>

namespace Corvex {

class Class;

namespace WebWrapper {
class CustomViewItemPropertyDelegate;
class WebObjectComparisonDelegate;
}  // namespace WebWrapper

namespace Webhook {

class BrowserHierarchyDelegate;
class BrowserToplevelDelegate;
class Connection;

/// The web wrapper inside the host framework: its classes, its delegates, and the pages that lookups start from, each a
/// root object. One for the life of the process.
class WebModel {
public:
  WebModel();
  ~WebModel();
  WebModel(const WebModel&) = delete;
  WebModel& operator=(const WebModel&) = delete;

  /// From now on lookups look into this page too, after the others. The connection stays its owner's.
  void addConnection(Connection* connection);
  /// Every object of the page is dead from now on.
  void removeConnection(Connection* connection);
  /// Oldest first.
  QVector<Connection*> connections() const;
  /// Lookups start in this page.
  void setCurrent(Connection* connection);
  /// Null without any.
  Connection* current() const { return m_current; }

  /// A document went away: every object of its page is dead from now on.
  void invalidateObjects(Connection* connection);

  /// Every object that a multi-property name fits, page by page in the order of `roots`; one at most for a name that
  /// says which one it means. The current page stays.
  ObjectList findAll(const std::vector<SharedPtr<Object>>& roots, const ObjectName& name);

private:
  struct Root {
    Connection* connection;
    SharedPtr<Object> object;
  };

  std::vector<Root>::iterator find(Connection* connection);

  const Class* m_browserClass;
  std::unique_ptr<BrowserToplevelDelegate> m_toplevel;
  std::unique_ptr<BrowserHierarchyDelegate> m_hierarchy;
  std::unique_ptr<WebWrapper::CustomViewItemPropertyDelegate> m_items;
  std::unique_ptr<WebWrapper::WebObjectComparisonDelegate> m_comparison;
  std::vector<Root> m_roots;
  Connection* m_current = nullptr;
};

}  // namespace Webhook
}  // namespace Corvex
