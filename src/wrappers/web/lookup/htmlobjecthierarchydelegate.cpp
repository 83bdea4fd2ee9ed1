#include "corvexhook/inspector.h"
#include "shared/visibletext.h"
#include "tracelib/tracepoint.h"
#include "wrappers/web/lookup/containers.h"
#include "wrappers/web/lookup/findobjectwithjsfunction.h"
#include "wrappers/web/lookup/itemchildren.h"
#include "wrappers/web/lookup/webobjectdelegate.h"
#include "wrappers/web/object/references.h"
#include "wrappers/web/object/retrievehtmlobject.h"
#include "wrappers/web/object/wraphtmlobject.h"
#include "wrappers/web/page/calljavascriptfunction.h"
#include "wrappers/web/page/escaping.h"
#include "wrappers/web/page/htmlcomponent.h"
#include "wrappers/web/page/jsonanswer.h"

#include <cstdio>
#include <cstring>

namespace Corvex::WebWrapper {

namespace {

const int webWrapperType = 8;
const unsigned int childInfoTimeoutMs = 60000;

bool isReachable(const HTML_Object* object) { return object && object->component && object->component->isAvailable(); }

void printError(const char* format, const QString& text) {
  std::fprintf(stderr, format, qUtf8Printable(visibleText(text)));
}

}  // namespace

HTMLObjectHierarchyDelegate::HTMLObjectHierarchyDelegate() : ObjectHierarchyDelegate(QStringLiteral("HTML_Object")) {}

HTMLObjectHierarchyDelegate::~HTMLObjectHierarchyDelegate() = default;

int HTMLObjectHierarchyDelegate::numChildren(SharedPtr<Object> object) const { return children(object).size(); }

SharedPtr<Object> HTMLObjectHierarchyDelegate::child(SharedPtr<Object> object, int index) const {
  return children(object).at(index);
}

SharedPtr<Object> HTMLObjectHierarchyDelegate::childByName(SharedPtr<Object> object, const QString& name) const {
  const ObjectList list = children(object);
  for (const SharedPtr<Object>& child : list) {
    if (this->name(child) == name) {
      return child;
    }
  }
  return nullptr;
}

QString HTMLObjectHierarchyDelegate::name(SharedPtr<Object> object) const {
  const HTML_Object* native = retrieveObject(object);
  if (!native) {
    return QString();
  }
  const FunctionCallResult<QString> name = native->name();
  if (name.failed()) {
    printError("%s\n", name.error);
  }
  return name.value;
}

int HTMLObjectHierarchyDelegate::wrapperType() const { return webWrapperType; }

bool HTMLObjectHierarchyDelegate::refusesContext(const ObjectName& name) const {
  if (!name.isMultiProperty() || !name.hasProperty(QStringLiteral("context"))) {
    return false;
  }
  const QString qualifiedName = name.qualifiedName();
  Inspector::self()->reportScriptError(
      QStringLiteral("Invalid object name '%1'. Cannot lookup objects that have a context and a container property, "
                     "please make sure the context property is set only on the 'top-most' object name in a hierarchy "
                     "of containers.")
          .arg(qualifiedName));
  TRACE_POINT("WebObjectSearch", QLatin1String("Found object name with context and container: ") + qualifiedName);
  return true;
}

SharedPtr<Object> HTMLObjectHierarchyDelegate::objectByQualifiedName(SharedPtr<Object> parent,
                                                                     const ObjectName& name) const {
  if (refusesContext(name)) {
    return nullptr;
  }
  const std::list<ObjectName> parts = splitByContainer(name);
  if (parts.size() > 1) {
    return objectInContainer(parent, parts, name);
  }
  const HTML_Object* native = retrieveObject(parent);
  const bool lacksTagName = name.isMultiProperty() && !name.hasProperty(QStringLiteral("tagName"));
  if (!isReachable(native) || lacksTagName) {
    return nullptr;
  }
  const QString qualifiedName = name.qualifiedName();
  const QString code = QLatin1String("__corvex__findObjectByProps( ") + native->reference + QLatin1String(", \"") +
                       escapeObjectNameForUseAsStringLiteral(qualifiedName) + QLatin1String("\");");
  return findObjectWithJsFunction(code, qualifiedName, native->component);
}

SharedPtr<Object> HTMLObjectHierarchyDelegate::objectInContainer(SharedPtr<Object> parent, std::list<ObjectName> parts,
                                                                 const ObjectName& name) const {
  if (isEndlessChain(parts, name)) {
    return nullptr;
  }
  const ObjectName first = parts.front();
  parts.pop_front();
  const ObjectHierarchyDelegate* parentDelegate = hierarchyDelegate(parent);
  const SharedPtr<Object> container =
      parentDelegate ? parentDelegate->objectByQualifiedName(parent, first) : SharedPtr<Object>();
  if (!container) {
    Inspector::self()->addUnmatchedProperty(name.qualifiedName(), QStringLiteral("container"));
    return nullptr;
  }
  const ObjectHierarchyDelegate* delegate = hierarchyDelegate(container);
  if (!delegate) {
    Inspector::self()->reportScriptError(
        QStringLiteral("No container delegate found for type '%1' from object name: %2")
            .arg(container->objectClass()->name(), name.qualifiedName()));
    return nullptr;
  }
  return foundInContainer(delegate->objectByQualifiedName(container, joinByContainer(parts)), name);
}

QString HTMLObjectHierarchyDelegate::qualifiedName(SharedPtr<Object> object) const {
  const HTML_Object* native = retrieveObject(object);
  if (!native) {
    return QString();
  }
  const JavaScriptAnswer answer = native->evaluateJS(QStringLiteral("__corvex__nameOf(%1);").arg(native->reference));
  if (!answer.succeeded()) {
    printError("Error obtaining qualified name of object: %s\n", answer.text);
    return QString();
  }
  return unescape(answer.text);
}

ObjectList HTMLObjectHierarchyDelegate::children(SharedPtr<Object> object) const {
  ObjectList list;
  if (!isReachable(retrieveObject(object))) {
    return list;
  }
  if (m_childCache.value(object).empty()) {
    const QString error = getChildInfo(object);
    if (!error.isEmpty()) {
      printError("%s\n", error);
    }
  }
  // Other work may have changed the cache during the page call.
  list.append(m_childCache.value(object));
  list.append(itemsOf(retrieveObject(object)));
  return list;
}

QString HTMLObjectHierarchyDelegate::getChildInfo(SharedPtr<Object> object) const {
  const HTML_Object* native = retrieveObject(object);
  HTMLComponent* const component = native->component;
  const QString failure = QStringLiteral("Failed to retrieve children for html object %1: %2\n");
  const FunctionCallResult<Json::Value> info = callJavaScriptFunction(
      component, QStringLiteral("window.top.__corvex.childObjectAndInfo( %1 )").arg(native->reference),
      childInfoTimeoutMs);
  if (info.failed()) {
    return failure.arg(native->knownName(), info.error);
  }
  if (!info.value.isArray()) {
    return failure.arg(native->knownName(), QStringLiteral("the page answered no list"));
  }
  std::vector<SharedPtr<Object>> children;
  for (const Json::Value& entry : info.value) {
    if (!entry.isObject()) {
      continue;
    }
    HTML_Object* child = htmlObjectFromReferenceInfo(component, jsonText(entry["typeString"]),
                                                     jsonText(entry["reference"]), jsonText(entry["nameInLeaf"]));
    if (child) {
      children.push_back(wrapObject(child));
    }
  }
  m_childCache.insert(object, children);
  return QString();
}

SharedPtr<Object> HTMLObjectHierarchyDelegate::parent(SharedPtr<Object> object) const {
  HTML_Object* native = retrieveObject(object);
  if (!native) {
    return nullptr;
  }
  if (std::strcmp(native->className(), "HTML_Document") == 0) {
    const JavaScriptAnswer context =
        native->evaluateJS(QStringLiteral("__corvex__contextOf( %1 );").arg(native->reference));
    if (!context.succeeded()) {
      printError("Error obtaining context of html document: %s\n", context.text);
    }
    if (!context.succeeded() || !context.text.contains(QLatin1String("FRAME"))) {
      return ObjectHierarchyDelegate::parent(object);
    }
  }
  const FunctionCallResult<HTML_Object*> element = native->parentElement();
  if (element.failed()) {
    Inspector::self()->reportScriptError(element.error);
    return nullptr;
  }
  return element.value ? wrapObject(element.value) : SharedPtr<Object>();
}

void HTMLObjectHierarchyDelegate::clearAllJSReferences(HTMLComponent* component) const {
  clearReferences(component);
  clearChildCache();
}

void HTMLObjectHierarchyDelegate::invalidateAllReferencedObjects() const {
  invalidateReferences();
  clearChildCache();
}

void HTMLObjectHierarchyDelegate::clearChildCache() const { m_childCache.clear(); }

}  // namespace Corvex::WebWrapper
