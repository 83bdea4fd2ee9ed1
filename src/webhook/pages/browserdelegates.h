#pragma once

#include "wrappers/web/lookup/webobjectdelegate.h"

namespace Corvex::Webhook {

class WebModel;

// The wrapper's trees over all windows of the browser. Contexts have the names here by which scripts know them; each
// page is asked by its own.

/// The root of the page tree: a "Browser" object stands for the connection that is its data.
class BrowserToplevelDelegate : public WebWrapper::WebToplevelDelegate {
public:
  BrowserToplevelDelegate(const QString& className, WebModel& model) : WebToplevelDelegate(className), m_model(model) {}

  /// Always that of the current context, which pages change by themselves.
  SharedPtr<Object> child(SharedPtr<Object> root, int index) const override;
  SharedPtr<Object> childByName(SharedPtr<Object> root, const QString& name) const override;
  /// An object that is found without a context makes its window the current one.
  SharedPtr<Object> objectByQualifiedName(SharedPtr<Object> root, const ObjectName& name) const override;
  WebWrapper::HTMLComponent* component(SharedPtr<Object> root) const override;
  bool keepsDocumentAcrossComponents() const override { return false; }
  std::optional<ObjectName> nameInPage(WebWrapper::HTMLComponent* page, const ObjectName& name) const override;

private:
  WebModel& m_model;
  mutable WebWrapper::HTMLComponent* m_asked = nullptr;
};

/// The elements. Those of other windows than the current one have a context in their names.
class BrowserHierarchyDelegate : public WebWrapper::HTMLObjectHierarchyDelegate {
public:
  explicit BrowserHierarchyDelegate(const WebModel& model) : m_model(model) {}

  QString qualifiedName(SharedPtr<Object> object) const override;

private:
  const WebModel& m_model;
};

}  // namespace Corvex::Webhook
