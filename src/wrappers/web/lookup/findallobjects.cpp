#include "wrappers/web/lookup/findallobjects.h"

#include "corvexhook/inspector.h"
#include "wrappers/web/lookup/containers.h"
#include "wrappers/web/lookup/findobjectwithjsfunction.h"
#include "wrappers/web/lookup/webobjectdelegate.h"
#include "wrappers/web/object/retrievehtmlobject.h"
#include "wrappers/web/object/wraphtmlobject.h"
#include "wrappers/web/page/calljavascriptfunction.h"
#include "wrappers/web/page/escaping.h"
#include "wrappers/web/page/htmlcomponent.h"
#include "wrappers/web/page/jsonanswer.h"

namespace Corvex::WebWrapper {

namespace {

/// `container` is the reference of an object of that page, or empty for the whole page.
ObjectList searchPage(HTMLComponent* page, const QString& name, const QString& container) {
  ObjectList list;
  const QString below = container.isEmpty() ? QString() : QLatin1String(", ") + container;
  const QString code = QLatin1String("window.top.__corvex.findAllObjects(\"") +
                       escapeObjectNameForUseAsStringLiteral(name) + QLatin1Char('"') + below + QLatin1Char(')');
  const FunctionCallResult<Json::Value> found = container.isEmpty()
                                                    ? callInAnyDocument(page, code, objectLookupTimeout())
                                                    : callJavaScriptFunction(page, code, objectLookupTimeout());
  if (found.failed() || !found.value.isArray()) {
    Inspector::self()->reportScriptError(
        QStringLiteral("Failed to look up all objects with the name '%1': %2")
            .arg(name, found.failed() ? found.error : QStringLiteral("the page answered no list")));
    return list;
  }
  for (const Json::Value& entry : found.value) {
    HTML_Object* object = entry.isObject()
                              ? htmlObjectFromReferenceInfo(page, jsonText(entry["typeString"]),
                                                            jsonText(entry["reference"]), jsonText(entry["nameInLeaf"]))
                              : nullptr;
    if (object) {
      list.push_back(wrapObject(object));
    }
  }
  return list;
}

ObjectList searchContainer(const SharedPtr<Object>& container, const ObjectName& name, const ObjectName& wholeName) {
  const auto* delegate = dynamic_cast<const HTMLObjectHierarchyDelegate*>(hierarchyDelegate(container));
  const HTML_Object* native = retrieveObject(container);
  if (!delegate || !native || !native->component || delegate->refusesContext(name)) {
    return {};
  }
  const ObjectList found = searchPage(native->component, name.qualifiedName(), native->reference);
  if (!found.isEmpty()) {
    foundInContainer(found[0], wholeName);
  }
  return found;
}

}  // namespace

PropertyValue occurrenceOf(const ObjectName& name) {
  const QString property = QStringLiteral("occurrence");
  return name.property(name.hasProperty(property) ? property : QStringLiteral("occurance"));
}

bool namesOneOccurrence(const ObjectName& name) {
  const PropertyValue value = occurrenceOf(name);
  return value.modifiers() == PropertyValue::StrictMatch && !value.value().isEmpty();
}

ObjectList findAllObjects(const WebToplevelDelegate& toplevel, const SharedPtr<Object>& root, const ObjectName& name) {
  std::list<ObjectName> parts = splitByContainer(name);
  if (isEndlessChain(parts, name)) {
    return {};
  }
  if (parts.size() > 1) {
    const ObjectName last = parts.back();
    parts.pop_back();
    const SharedPtr<Object> container = toplevel.objectByQualifiedName(root, joinByContainer(parts));
    return container ? searchContainer(container, last, name) : ObjectList();
  }
  HTMLComponent* const page = toplevel.component(root);
  const std::optional<ObjectName> inPage =
      page && page->isAvailable() ? toplevel.nameInPage(page, name) : std::optional<ObjectName>();
  return inPage ? searchPage(page, inPage->qualifiedName(), QString()) : ObjectList();
}

}  // namespace Corvex::WebWrapper
