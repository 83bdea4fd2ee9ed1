#pragma once

#include "wrappers/web/export.h"

#include <QString>

#include <list>

namespace Corvex::WebWrapper {

class HTMLComponent;
class HTML_Object;
class HTML_Style;
class HTML_XPathResult;

/// All live objects of each kind in the order of their creation. Nothing is owned.
extern std::list<HTML_Object*>& referencedObjects;
extern std::list<HTML_Style*>& referencedStyles;
extern std::list<HTML_XPathResult*>& referencedXPathResults;

void createdHtmlObject(HTML_Object* object);
void destroyedHtmlObject(HTML_Object* object);
void createdHtmlStyle(HTML_Style* style);
void destroyedHtmlStyle(HTML_Style* style);
void createdHtmlXPathResult(HTML_XPathResult* result);
void destroyedHtmlXPathResult(HTML_XPathResult* result);

/// A name for a page global that this side assigns, different at each call.
QString nextDriverReference();

/// Invalidates the objects of a connection and takes them out of the registries. The entry behind each one taken out is
/// passed over, and keeps a live reference until the next call.
void clearReferences(const HTMLComponent* component);

/// Invalidates all objects and empties the registries.
void invalidateReferences();

/// What a script is told that uses a dead object.
CORVEX_WEBWRAPPER_EXPORT const QString& deadObjectReferenceError();
const QString& deadStyleReferenceError();
const QString& deadXPathResultReferenceError();

}  // namespace Corvex::WebWrapper
