#include "wrappers/web/input/applicationeventdelegate.h"

#include "corvexhook/hook.h"
#include "corvexhook/inspector.h"
#include "wrappers/web/object/wraphtmlobject.h"
#include "wrappers/web/page/htmlcomponent.h"

#include <algorithm>
#include <iterator>

namespace Corvex::WebWrapper {

namespace {

using LocalPoint = Point<CoordinateSystem::Local>;
using ScreenPoint = Point<CoordinateSystem::Screen>;

/// An event of the catalogue that can be sent.
struct EventKind {
  const char* name;
  /// What the real pointer does before the page gets its event; null for nothing. Answers an error text.
  QString (*act)(NativeInterface& native, ScreenPoint position);
};

QString movePointer(NativeInterface& native, ScreenPoint position) { return native.pointerMove(position); }

QString click(NativeInterface& native, ScreenPoint position) {
  return native.pointerClick(MouseButton::Default, position);
}

const EventKind kinds[] = {
    {"mousedown", nullptr}, {"mouseup", click}, {"mouseover", nullptr},
    {"mouseout", nullptr},  {"click", nullptr}, {"mousemove", movePointer},
};

bool refused(const QString& error) {
  Inspector::self()->reportScriptError(error);
  return false;
}

QString actAt(const EventKind& kind, const HTML_Object& object, const LocalPoint& position) {
  NativeInterface* const native = Hook::hook->nativeInterface();
  const FunctionCallResult<ScreenRectangle> rect = object.component->getScreenRect(&object, true);
  if (rect.failed()) {
    return rect.error;
  }
  // A click at a place that only looks like one would hit what is not the page.
  if (rect.value.width < 0 || rect.value.height < 0) {
    return QStringLiteral("The object is not on the screen.");
  }
  return kind.act(*native, {rect.value.x + position.x, rect.value.y + position.y});
}

bool takePosition(const ObjectList& arguments, LocalPoint* position) {
  return arguments.size() >= 2 && unwrap(arguments[0], &position->x) && unwrap(arguments[1], &position->y);
}

}  // namespace

ApplicationEventDelegate::ApplicationEventDelegate() : SendEventDelegate(QStringLiteral("HTML_Object")) {}

bool ApplicationEventDelegate::sendEvent(const Event* event, SharedPtr<Object> object,
                                         const ObjectList& arguments) const {
  if (!object || !object->isA(objectModelHtmlObjectClass())) {
    return false;
  }
  const HTML_Object* const native = retrieveObject(object);
  const QString& name = event->name();
  const auto* const kind = std::find_if(std::begin(kinds), std::end(kinds),
                                        [&name](const EventKind& each) { return name == QLatin1String(each.name); });
  if (kind == std::end(kinds)) {
    return refused(QStringLiteral("Unknown event type: %1").arg(name));
  }
  if (!native) {
    return refused(QStringLiteral("Cannot send event '%1' to null object.").arg(name));
  }
  if (!native->hasValidReference()) {
    return refused(HTML_Object::deadError());
  }
  LocalPoint position;
  if (!takePosition(arguments, &position)) {
    return refused(QStringLiteral("Event '%1' needs a position in the object: x and y, two whole numbers.").arg(name));
  }
  const QString error = kind->act ? actAt(*kind, *native, position) : QString();
  if (!error.isEmpty()) {
    refused(QStringLiteral("Error sending %1: %2").arg(name, error));
    return true;
  }
  const JavaScriptAnswer answer =
      native->evaluateJS(QStringLiteral("__corvex__sendMouseEvent(%1,'%2', false, false, false, %3, %4);")
                             .arg(native->reference, name)
                             .arg(position.x)
                             .arg(position.y));
  return answer.succeeded() || refused(answer.text);
}

}  // namespace Corvex::WebWrapper
