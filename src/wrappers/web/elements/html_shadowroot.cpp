#include "wrappers/web/elements/html_shadowroot.h"

#include "wrappers/web/glue/scriptclass.h"

namespace Corvex::WebWrapper {

const char* HTML_ShadowRoot::className() const { return ScriptName; }

const ClassRows HTML_ShadowRoot_Class = classRows("HTML_ShadowRoot", "HTML_Object");

}  // namespace Corvex::WebWrapper
