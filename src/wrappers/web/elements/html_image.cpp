#include "wrappers/web/elements/html_image.h"

#include "wrappers/web/glue/scriptclass.h"

namespace Corvex::WebWrapper {

const char* HTML_Image::className() const { return ScriptName; }

}  // namespace Corvex::WebWrapper
