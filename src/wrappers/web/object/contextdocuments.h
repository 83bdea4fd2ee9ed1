#pragma once

#include "shared/functioncallresult.h"

#include <QString>

namespace Corvex::WebWrapper {

class HTMLComponent;
class HTML_Object;

/// The document of the page's current context; a page without one gets its top window as the current context.
FunctionCallResult<HTML_Object*> contextDocument(HTMLComponent* component);

/// The document that a name such as "DOCUMENT[a.b]" means; null when there is none.
FunctionCallResult<HTML_Object*> documentByContextName(HTMLComponent* component, const QString& name);

}  // namespace Corvex::WebWrapper
