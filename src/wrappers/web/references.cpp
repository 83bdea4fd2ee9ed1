#include "wrappers/web/references.h"

#include "wrappers/web/html_style.h"
#include "wrappers/web/html_xpathresult.h"
#include "wrappers/web/webobject.h"

namespace Corvex::WebWrapper {

// Never destroyed: wrapped objects may be released while the program ends.
std::list<HTML_Object*>& referencedObjects = *new std::list<HTML_Object*>;
std::list<HTML_Style*>& referencedStyles = *new std::list<HTML_Style*>;
std::list<HTML_XPathResult*>& referencedXPathResults = *new std::list<HTML_XPathResult*>;

namespace {

int ocnt = 0;

template <typename T>
void clearFor(std::list<T*>& registry, const HTMLComponent* component) {
  for (auto it = registry.begin(); it != registry.end();) {
    if ((*it)->component == component) {
      (*it)->invalidate();
      it = registry.erase(it);
      if (it == registry.end()) {
        return;
      }
    }
    ++it;
  }
}

template <typename T>
void invalidateAll(std::list<T*>& registry) {
  for (T* entry : registry) {
    entry->invalidate();
  }
}

}  // namespace

void createdHtmlObject(HTML_Object* object) { referencedObjects.push_back(object); }

void destroyedHtmlObject(HTML_Object* object) { referencedObjects.remove(object); }

void createdHtmlStyle(HTML_Style* style) { referencedStyles.push_back(style); }

void destroyedHtmlStyle(HTML_Style* style) { referencedStyles.remove(style); }

void createdHtmlXPathResult(HTML_XPathResult* result) { referencedXPathResults.push_back(result); }

void destroyedHtmlXPathResult(HTML_XPathResult* result) { referencedXPathResults.remove(result); }

QString nextDriverReference() { return QStringLiteral("window.__corvex__object__C%1").arg(ocnt++); }

void clearReferences(const HTMLComponent* component) {
  clearFor(referencedObjects, component);
  clearFor(referencedStyles, component);
  clearFor(referencedXPathResults, component);
}

void invalidateReferences() {
  invalidateAll(referencedObjects);
  invalidateAll(referencedStyles);
  invalidateAll(referencedXPathResults);
  referencedObjects.clear();
  referencedStyles.clear();
  referencedXPathResults.clear();
}

const QString& deadObjectReferenceError() {
  static const QString text = QStringLiteral(
      "Object reference deleted in browser already, please obtain a new reference using waitForObject or findObject");
  return text;
}

const QString& deadStyleReferenceError() {
  static const QString text = QStringLiteral(
      "Style reference deleted in browser already, please obtain a new reference using the obj.style() function.");
  return text;
}

const QString& deadXPathResultReferenceError() {
  static const QString text = QStringLiteral(
      "XPathResult reference deleted in browser already, please obtain a new reference using the obj.evaluateXPath() "
      "function.");
  return text;
}

}  // namespace Corvex::WebWrapper
