#pragma once

#include "corvexhook/object.h"
#include "corvexhook/objectname.h"

#include <map>
#include <memory>
#include <vector>

namespace Corvex {

class Class;

namespace WebWrapper {
class CustomViewItemPropertyDelegate;
class HTMLObjectHierarchyDelegate;
class WebObjectComparisonDelegate;
}  // namespace WebWrapper

namespace Webhook {

class BrowserToplevelDelegate;
class Connection;

/// The web wrapper inside the host framework: its classes, its delegates, and the pages that lookups start from, each a
/// root object. One for the life of the process.
class WebModel {
public:
  WebModel();
  ~WebModel();

  /// From now on lookups look into this page too, behind the others. The connection stays its owner's.
  void addConnection(Connection* connection);
  /// Every object of the page is dead from now on.
  void removeConnection(Connection* connection);
  /// Lookups start in this page.
  void setCurrent(Connection* connection);
  /// Null without any.
  Connection* current() const;

  /// A document went away: every object of its page is dead from now on.
  void invalidateObjects(Connection* connection);

  /// Every object that a multi-property name fits, page by page in the order of `roots`; one at most for a name that
  /// says which one it means.
  ObjectList findAll(const std::vector<SharedPtr<Object>>& roots, const ObjectName& name) const;

private:
  const Class* m_browserClass;
  std::unique_ptr<BrowserToplevelDelegate> m_toplevel;
  std::unique_ptr<WebWrapper::HTMLObjectHierarchyDelegate> m_hierarchy;
  std::unique_ptr<WebWrapper::CustomViewItemPropertyDelegate> m_items;
  std::unique_ptr<WebWrapper::WebObjectComparisonDelegate> m_comparison;
  std::map<Connection*, SharedPtr<Object>> m_roots;
};

}  // namespace Webhook
}  // namespace Corvex
