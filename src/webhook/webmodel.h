#pragma once

#include "corvexhook/object.h"

#include <memory>

namespace Corvex {

class Class;

namespace WebWrapper {
class HTMLObjectHierarchyDelegate;
class WebObjectComparisonDelegate;
}  // namespace WebWrapper

namespace Webhook {

class BrowserToplevelDelegate;
class Connection;

/// The web wrapper inside the host framework: its classes, its delegates, and the browser page that lookups start from.
/// One for the life of the process.
class WebModel {
public:
  WebModel();
  ~WebModel();

  /// From now on lookups start in this page; null for none. The connection stays its owner's.
  void setConnection(Connection* connection);
  /// A document went away: every object of it is dead from now on.
  void invalidateObjects();

private:
  const Class* m_browserClass;
  std::unique_ptr<BrowserToplevelDelegate> m_toplevel;
  std::unique_ptr<WebWrapper::HTMLObjectHierarchyDelegate> m_hierarchy;
  std::unique_ptr<WebWrapper::WebObjectComparisonDelegate> m_comparison;
  SharedPtr<Object> m_root;
};

}  // namespace Webhook
}  // namespace Corvex
