#pragma once

#include "corvexhook/object.h"
#include "corvexhook/objectname.h"
#include "wrappers/web/export.h"

namespace Corvex::WebWrapper {

class WebToplevelDelegate;

/// The value of a name's occurrence, in either spelling; an empty one without it.
CORVEX_WEBWRAPPER_EXPORT PropertyValue occurrenceOf(const ObjectName& name);

/// Whether a name says by its occurrence which one of the objects that it fits is meant.
CORVEX_WEBWRAPPER_EXPORT bool namesOneOccurrence(const ObjectName& name);

/// Every object that a multi-property name fits in the page of a root, one at most if it has an occurrence: of the
/// current context first, then of all documents in the order in which a lookup goes through them. Below a container,
/// which is looked up as usual, only there. Empty when there is none; a failed search is reported to the script.
/// Changes no context.
CORVEX_WEBWRAPPER_EXPORT ObjectList findAllObjects(const WebToplevelDelegate& toplevel, const SharedPtr<Object>& root,
                                                   const ObjectName& name);

}  // namespace Corvex::WebWrapper
