#include "wrappers/web/recording/webevents.h"

#include "corvexhook/inspector.h"

#include <array>

namespace Corvex {

namespace {

struct EventRow {
  const char* name;
  /// Whole numbers all; the list ends at the first null.
  std::array<const char*, 4> arguments;
};

// There is no key press: one in the page counts as the release that follows it.
constexpr EventRow rows[] = {
    {"mousedown", {"x", "y", "state", "button"}},
    {"mouseup", {"x", "y", "state", "button"}},
    {"mousemove", {"x", "y", "state", "button"}},
    {"mouseover", {"x", "y", "state", "button"}},
    {"mouseout", {"x", "y", "state", "button"}},
    {"click", {"x", "y", "state", "button"}},
    {"dblclick", {"x", "y", "state", "button"}},
    {"keyup", {"state", "keycode"}},
    {"change", {}},
    {"unload", {}},
    {"chooseColor", {}},
    {"ignoreEvent", {}},
};

Signature signatureOf(const EventRow& row) {
  const Class* const number = Inspector::self()->primitiveType(PrimitiveType::Int);
  std::vector<Argument> arguments;
  for (const char* name : row.arguments) {
    arguments.push_back(name ? Argument(QString::fromLatin1(name), number) : Argument());
  }
  return Signature(arguments);
}

}  // namespace

void initWebEvents() {
  GlobalClass* const owner = Inspector::self()->globalClass();
  for (const EventRow& row : rows) {
    owner->addEvent(
        new Event(owner, QString::fromLatin1(row.name), signatureOf(row), owner->numEvents(), Event::BuiltIn));
  }
}

}  // namespace Corvex
