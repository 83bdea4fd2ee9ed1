#pragma once

#include "corvexhook/class.h"
#include "wrappers/web/export.h"
#include "wrappers/web/object/webobject.h"

namespace Corvex::WebWrapper {

/// The script value of a page object, which owns it from now on. Null gives a null value of class "HTML_Object".
CORVEX_WEBWRAPPER_EXPORT SharedPtr<Object> wrapObject(HTML_Object* object);

/// The same for a pointer of any script class.
SharedPtr<Object> wrapAndTransferOwnership(void* object, const QString& className);

/// The page object behind a script value of a page class, which keeps it; null for no value, for null values and for
/// values of other classes.
CORVEX_WEBWRAPPER_EXPORT HTML_Object* retrieveObject(SharedPtr<Object> wrapped);

/// The script class "HTML_Object".
CORVEX_WEBWRAPPER_EXPORT const Class* objectModelHtmlObjectClass();

}  // namespace Corvex::WebWrapper
