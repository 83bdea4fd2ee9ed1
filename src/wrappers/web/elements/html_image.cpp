#include "wrappers/web/elements/html_image.h"

#include "wrappers/web/glue/scriptclass.h"

namespace Corvex::WebWrapper {

const char* HTML_Image::className() const { return ScriptName; }

const ClassRows HTML_Image_Class = classRows("HTML_Image", "HTML_Object");

}  // namespace Corvex::WebWrapper
