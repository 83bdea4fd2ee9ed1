#pragma once

#include "corvexhook/class.h"
#include "wrappers/web/export.h"

namespace Corvex::WebWrapper {

class HTML_Object;

/// Adds the functions below to the script's global scope. To be called once, after `createWebObjectClasses`.
CORVEX_WEBWRAPPER_EXPORT void setupSharedObjectModelFunctions();

/// Each of these gives a void value, or reports to the script and gives a null pointer.
SharedPtr<Object> clickLink(HTML_Object* object);
SharedPtr<Object> selectOption(HTML_Object* object, const char* text);

/// The functions as scripts see them; null before they are set up.
const GlobalMethod* sharedClickLinkByObjectFn();
const GlobalMethod* sharedClickLinkByNameFn();
const GlobalMethod* sharedSelectOptionByObjectFn();
const GlobalMethod* sharedSelectOptionByNameFn();
const GlobalMethod* sharedScrollToByObjectFn();
const GlobalMethod* sharedScrollToByObjectAndAlignmentFn();

}  // namespace Corvex::WebWrapper
