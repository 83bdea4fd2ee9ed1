#pragma once

#include "wrappers/web/export.h"

#include <QString>

#include <cstddef>
#include <list>
#include <unordered_map>

namespace Corvex::WebWrapper {

class HTMLComponent;
class HTML_Object;
class HTML_Style;
class HTML_XPathResult;

/// The live objects of one kind in the order of their creation. Nothing is owned.
class ReferenceRegistry {
public:
  /// `reference` is the object's own; the object takes itself out before it goes.
  void add(const void* object, QString* reference, const HTMLComponent* component);
  /// Does nothing for an object that is not here.
  void remove(const void* object);

  /// Invalidates the objects of a connection and takes them out. The entry after each one taken out is passed over, and
  /// keeps a live reference until the next call.
  void clear(const HTMLComponent* component);
  /// Invalidates all objects and takes them out.
  void invalidateAll();

  std::size_t size() const { return m_entries.size(); }

private:
  struct Entry {
    const void* object;
    QString* reference;
    const HTMLComponent* component;
  };

  std::list<Entry> m_entries;
  std::unordered_map<const void*, std::list<Entry>::iterator> m_places;
};

extern ReferenceRegistry& referencedObjects;
extern ReferenceRegistry& referencedStyles;
extern ReferenceRegistry& referencedXPathResults;
extern ReferenceRegistry& referencedValues;

void createdHtmlObject(HTML_Object* object);
void destroyedHtmlObject(HTML_Object* object);
void createdHtmlStyle(HTML_Style* style);
void destroyedHtmlStyle(HTML_Style* style);
void createdHtmlXPathResult(HTML_XPathResult* result);
void destroyedHtmlXPathResult(HTML_XPathResult* result);

/// A name for a page global that this side assigns, different at each call.
QString nextDriverReference();

/// Whether a text that came from a page is a reference of one of the forms that pages and this side make. Anything else
/// would be code of the page's own, which might run in a document of another origin.
bool isObjectReference(const QString& text);

/// The reference of what is dead.
const QString& deadReference();

/// `clear` of every registry.
void clearReferences(const HTMLComponent* component);

/// Invalidates the objects of every registry.
void invalidateReferences();

/// What a script is told that uses a dead object.
CORVEX_WEBWRAPPER_EXPORT const QString& deadObjectReferenceError();
const QString& deadStyleReferenceError();
const QString& deadXPathResultReferenceError();

}  // namespace Corvex::WebWrapper
