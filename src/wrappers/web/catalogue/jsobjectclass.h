#pragma once

#include "wrappers/web/glue/scriptclass.h"
#include "wrappers/web/values/jsobject.h"

namespace Corvex::WebWrapper {

/// The members of the script class "JsObject".
extern const ClassMembers JsObjectClass;

}  // namespace Corvex::WebWrapper
