#pragma once

#include "corvexhook/object.h"
#include "shared/functioncallresult.h"
#include "wrappers/web/export.h"

#include <QString>

namespace Corvex::WebWrapper {

class HTMLComponent;
class HTML_Object;

/// The objects of a list that the page made: records of a name, "|", a reference, "~", a type and "#". A record without
/// its end is lost; "[err]" is the empty list.
ObjectList parseItemViewBasedChildInfo(HTMLComponent* component, const QString& text);

/// Asks an item view or an item for its items through a function of the page, which gets the extension's object too.
FunctionCallResult<ObjectList> fetchItems(const char* function, const HTML_Object& parent,
                                          const QString& extensionObject);

// The children of an element that its DOM does not show: those that only the toolkit behind it knows. What fails is
// told on standard error; the list is what there is without it. An object of another class has none.
ObjectList itemsOfView(HTML_Object* object);
ObjectList itemsOfMenu(HTML_Object* object);
ObjectList eventsOfCalendar(HTML_Object* object);

/// Whether objects of this class may have such children, and those of an object, by what the catalogue of classes says,
/// where both are defined.
CORVEX_WEBWRAPPER_EXPORT bool hasItems(const HTML_Object& object);
ObjectList itemsOf(HTML_Object* object);

}  // namespace Corvex::WebWrapper
