#include "corvexhook/inspector.h"
#include "tracelib/tracepoint.h"
#include "wrappers/web/lookup/containers.h"
#include "wrappers/web/lookup/findobjectwithjsfunction.h"
#include "wrappers/web/lookup/webobjectdelegate.h"
#include "wrappers/web/object/contextdocuments.h"
#include "wrappers/web/object/wraphtmlobject.h"
#include "wrappers/web/page/escaping.h"
#include "wrappers/web/page/htmlcomponent.h"

namespace Corvex::WebWrapper {

namespace {

const int webWrapperType = 8;

bool isReachable(HTMLComponent* component) { return component && component->isAvailable(); }

}  // namespace

SharedPtr<Object> WebToplevelDelegate::document;

WebToplevelDelegate::WebToplevelDelegate(const QString& className) : ObjectHierarchyDelegate(className) {}

WebToplevelDelegate::~WebToplevelDelegate() = default;

int WebToplevelDelegate::numChildren(SharedPtr<Object>) const { return 1; }

QString WebToplevelDelegate::name(SharedPtr<Object>) const { return QString(); }

QString WebToplevelDelegate::qualifiedName(SharedPtr<Object>) const { return QString(); }

SharedPtr<Object> WebToplevelDelegate::parent(SharedPtr<Object>) const { return nullptr; }

int WebToplevelDelegate::wrapperType() const { return webWrapperType; }

ObjectList WebToplevelDelegate::children(SharedPtr<Object> root) const {
  ObjectList list;
  for (int i = 0; i < numChildren(root); ++i) {
    list.push_back(child(root, i));
  }
  return list;
}

SharedPtr<Object> WebToplevelDelegate::keptDocument(HTMLComponent* component) const {
  HTML_Object* native = retrieveObject(document);
  if (!native || keepsDocumentAcrossComponents() || native->component == component) {
    return native ? document : SharedPtr<Object>();
  }
  native->invalidate();
  document = nullptr;
  return nullptr;
}

SharedPtr<Object> WebToplevelDelegate::child(SharedPtr<Object> root, int index) const {
  HTMLComponent* const connection = component(root);
  if (!isReachable(connection) || index != 0) {
    return nullptr;
  }
  if (const SharedPtr<Object> kept = keptDocument(connection)) {
    return kept;
  }
  const FunctionCallResult<HTML_Object*> result = contextDocument(connection);
  if (result.failed()) {
    Inspector::self()->reportScriptError(
        QStringLiteral("Failed to retrieve child object number %1: %2").arg(QString::number(index), result.error));
    return nullptr;
  }
  if (!result.value) {
    return nullptr;
  }
  document = wrapObject(result.value);
  return document;
}

SharedPtr<Object> WebToplevelDelegate::childByName(SharedPtr<Object> root, const QString& name) const {
  const QString documentName = QStringLiteral("DOCUMENT");
  if (name == documentName) {
    return child(root, 0);
  }
  HTMLComponent* const connection = component(root);
  if (!isReachable(connection)) {
    return nullptr;
  }
  if (!name.startsWith(documentName)) {
    const QString code = QLatin1String("__corvex__findObjectByHeuristic(\"") +
                         escapeObjectNameForUseAsStringLiteral(name) + QLatin1String("\");");
    return findFromRootWithJsFunction(code, name, connection);
  }
  const FunctionCallResult<HTML_Object*> result = documentByContextName(connection, name);
  if (result.failed()) {
    Inspector::self()->reportScriptError(
        QStringLiteral("Failed to retrieve child object with name %1: %2").arg(name, result.error));
    return nullptr;
  }
  return result.value ? wrapObject(result.value) : SharedPtr<Object>();
}

SharedPtr<Object> WebToplevelDelegate::objectByQualifiedName(SharedPtr<Object> root, const ObjectName& name) const {
  const std::list<ObjectName> parts = splitByContainer(name);
  if (parts.size() > 1) {
    return objectInContainer(parts, name);
  }
  HTMLComponent* const connection = component(root);
  if (!isReachable(connection)) {
    return nullptr;
  }
  const std::optional<ObjectName> inPage = nameInPage(connection, name);
  if (!inPage) {
    return nullptr;
  }
  const QString qualifiedName = inPage->qualifiedName();
  const QString code = QLatin1String("__corvex__findObject(\"") + escapeObjectNameForUseAsStringLiteral(qualifiedName) +
                       QLatin1String("\");");
  return findFromRootWithJsFunction(code, qualifiedName, connection);
}

SharedPtr<Object> WebToplevelDelegate::objectInContainer(std::list<ObjectName> parts, const ObjectName& name) const {
  const QString qualifiedName = name.qualifiedName();
  if (isEndlessChain(parts, name)) {
    return nullptr;
  }
  const SharedPtr<Object> container = objectByQualifiedName(nullptr, ObjectName(parts.front().qualifiedName()));
  parts.pop_front();
  if (!container) {
    TRACE_POINT("WebObjectDelegate", QLatin1String("Could not find container for name: ") + qualifiedName);
    Inspector::self()->addUnmatchedProperty(qualifiedName, QStringLiteral("container"));
    return nullptr;
  }
  const ObjectHierarchyDelegate* const delegate = hierarchyDelegate(container);
  if (!delegate || delegate == this) {
    TRACE_POINT("WebObjectDelegate", QLatin1String("No container delegate or container delegate is webwrapper: ") +
                                         (delegate ? delegate->className() : QStringLiteral("null")));
    return nullptr;
  }
  const ObjectName rest = joinByContainer(parts);
  TRACE_POINT("WebObjectDelegate", QLatin1String("Looking up child object: ") + rest.qualifiedName() +
                                       QLatin1String(" In delegate: ") + delegate->className());
  return foundInContainer(delegate->objectByQualifiedName(container, rest), name);
}

std::optional<ObjectName> WebToplevelDelegate::nameInPage(HTMLComponent*, const ObjectName& name) const { return name; }

void WebToplevelDelegate::clearDocumentReference() const {
  if (HTML_Object* native = retrieveObject(document)) {
    native->invalidate();
  }
  forgetDocument();
}

void WebToplevelDelegate::forgetDocument() const { document = nullptr; }

}  // namespace Corvex::WebWrapper
