#include "wrappers/web/elements/html_shadowroot.h"

#include "wrappers/web/glue/scriptclass.h"

namespace Corvex::WebWrapper {

const char* HTML_ShadowRoot::className() const { return ScriptName; }

}  // namespace Corvex::WebWrapper
