#include "wrappers/web/object/references.h"

#include "wrappers/web/object/webobject.h"

#include <QRegularExpression>

#include <iterator>

namespace Corvex::WebWrapper {

// Never destroyed: wrapped objects may be released while the program ends.
ReferenceRegistry& referencedObjects = *new ReferenceRegistry;
ReferenceRegistry& referencedStyles = *new ReferenceRegistry;
ReferenceRegistry& referencedXPathResults = *new ReferenceRegistry;
ReferenceRegistry& referencedValues = *new ReferenceRegistry;

namespace {

int ocnt = 0;

// In the order in which they are swept.
ReferenceRegistry* const registries[] = {&referencedObjects, &referencedStyles, &referencedXPathResults,
                                         &referencedValues};

}  // namespace

void ReferenceRegistry::add(const void* object, QString* reference, const HTMLComponent* component) {
  m_places[object] = m_entries.insert(m_entries.end(), {object, reference, component});
}

void ReferenceRegistry::remove(const void* object) {
  const auto place = m_places.find(object);
  if (place != m_places.end()) {
    m_entries.erase(place->second);
    m_places.erase(place);
  }
}

void ReferenceRegistry::clear(const HTMLComponent* component) {
  for (auto it = m_entries.begin(); it != m_entries.end();) {
    if (it->component == component) {
      *it->reference = deadReference();
      m_places.erase(it->object);
      it = m_entries.erase(it);
      if (it == m_entries.end()) {
        return;
      }
    }
    ++it;
  }
}

void ReferenceRegistry::invalidateAll() {
  for (const Entry& entry : m_entries) {
    *entry.reference = deadReference();
  }
  m_entries.clear();
  m_places.clear();
}

void createdHtmlObject(HTML_Object* object) { referencedObjects.add(object, &object->reference, object->component); }

void destroyedHtmlObject(HTML_Object* object) { referencedObjects.remove(object); }

QString nextDriverReference() { return QStringLiteral("window.__corvex__object__C%1").arg(ocnt++); }

bool isObjectReference(const QString& text) {
  static const QRegularExpression forms(QStringLiteral(
      "\\A(?:top\\.__corvex__globalObjectRefStore\\[[0-9]{1,9}\\]|window\\.__corvex__object(?:__C|I__)[0-9]{1,9})\\z"));
  return forms.match(text).hasMatch();
}

const QString& deadReference() {
  static const QString text = QStringLiteral("undefined");
  return text;
}

void clearReferences(const HTMLComponent* component) {
  for (ReferenceRegistry* registry : registries) {
    registry->clear(component);
  }
}

void invalidateReferences() {
  for (ReferenceRegistry* registry : registries) {
    registry->invalidateAll();
  }
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
