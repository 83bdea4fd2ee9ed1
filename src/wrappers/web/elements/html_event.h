#pragma once

#include "wrappers/web/glue/scriptclass.h"

namespace Corvex::WebWrapper {

/// Has no objects: it holds the names of what scripts give to clicks and events.
struct HTML_Event {
  static constexpr const char* ScriptName = "HTML_Event";
};

extern const ClassMembers HTML_Event_Class;

}  // namespace Corvex::WebWrapper
