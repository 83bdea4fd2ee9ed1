#pragma once

#include "corvexhook/object.h"

#include <map>
#include <memory>

namespace Corvex {

class Class;

namespace WebWrapper {
class HTMLObjectHierarchyDelegate;

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

private:
  const Class* m_browserClass;
  std::unique_ptr<BrowserToplevelDelegate> m_toplevel;
  std::unique_ptr<WebWrapper::HTMLObjectHierarchyDelegate> m_hierarchy;
  std::map<Connection*, SharedPtr<Object>> m_roots;
};

}  // namespace Webhook
}  // namespace Corvex
