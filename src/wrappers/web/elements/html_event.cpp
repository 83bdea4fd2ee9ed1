#include "wrappers/web/elements/html_event.h"

namespace Corvex::WebWrapper {

namespace {

constexpr Enum::Item values[] = {{"Alt", 1}, {"Control", 2}, {"Shift", 4}};
constexpr EnumRow modifierState = {"ModifierState", values, 3};

constexpr ClassMembers makeMembers() {
  ClassMembers members;
  members.enumeration = &modifierState;
  return members;
}

}  // namespace

const ClassMembers HTML_Event_Class = makeMembers();

}  // namespace Corvex::WebWrapper
