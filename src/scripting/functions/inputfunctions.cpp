#include <QHash>
#include <QStringList>

#include "corvexhook/geometry.h"
#include "corvexhook/inspector.h"
#include "scripting/functions/targets.h"
#include "scripting/objects/overloads.h"

namespace Corvex::Scripting {

namespace {

/// What a mouse click may say, under the names that click methods give it.
struct ClickValues {
  QHash<QString, SharedPtr<Object>> byName;
  /// Those for which a click method has to have a place.
  QStringList needed;
};

ClickValues clickValues(const ObjectList& arguments) {
  const Inspector* inspector = Inspector::self();
  const QString x = QStringLiteral("x");
  const QString y = QStringLiteral("y");
  const QString modifiers = QStringLiteral("modifierState");
  const QString button = QStringLiteral("button");
  const QStringList given = arguments.size() == 2 ? QStringList({modifiers}) : QStringList({x, y, modifiers, button});
  ClickValues values;
  values.byName = {{x, inspector->wrapInt(0)},
                   {y, inspector->wrapInt(0)},
                   {modifiers, inspector->wrapInt(0)},
                   {button, inspector->wrapInt(MouseButton::Left)}};
  values.needed = given.mid(0, arguments.size() - 1);
  for (int i = 0; i < values.needed.size(); ++i) {
    values.byName.insert(values.needed.at(i), arguments[i + 1]);
  }
  return values;
}

/// The arguments of the shortest click method of the object that has a place for every given value; false without such
/// a method.
bool clickArguments(const SharedPtr<Object>& object, const ObjectList& arguments, ObjectList* result) {
  const ClickValues values = clickValues(arguments);
  bool found = false;
  for (const NumberedMethod& entry : methodsNamed(object->objectClass(), QStringLiteral("click"))) {
    const Signature& signature = entry.method->signature();
    ObjectList list;
    int met = 0;
    for (int i = 0; i < signature.count(); ++i) {
      const QString name = signature.at(i).name();
      if (!values.byName.contains(name)) {
        break;
      }
      met += values.needed.contains(name) ? 1 : 0;
      list.push_back(values.byName.value(name));
    }
    const bool fits = list.size() == signature.count() && met == values.needed.size();
    if (fits && (!found || list.size() < result->size())) {
      *result = list;
      found = true;
    }
  }
  return found;
}

ObjectResult mouseClick(const FunctionCall& call) {
  for (int i = 1; i < call.arguments.size(); ++i) {
    if (!isNumber(call.arguments[i])) {
      return ObjectResult::failure(
          QStringLiteral("mouseClick: positions, modifiers and button must be whole numbers, but got %1.")
              .arg(describeValue(call.arguments[i])));
    }
  }
  const Target target = awaitedTarget(call, call.arguments[0]);
  const bool isPlain =
      call.arguments.size() == 1 || !target.object || !MemberCalls::hasMethod(target.object, QStringLiteral("click"));
  ObjectList values;
  if (!isPlain && !clickArguments(target.object, call.arguments, &values)) {
    return ObjectResult::failure(QStringLiteral("%1 cannot be clicked at a position or with modifiers.")
                                     .arg(target.object->objectClass()->name()));
  }
  return callOn(call, "click", target, values);
}

ObjectResult doubleClick(const FunctionCall& call) { return callOnFirst(call, "doubleClick"); }

ObjectResult openContextMenu(const FunctionCall& call) { return callOnFirst(call, "openContextMenu"); }

ObjectResult clickButton(const FunctionCall& call) { return callOnFirst(call, "click"); }

ObjectResult setText(const FunctionCall& call) { return callOnFirst(call, "setValue"); }

ObjectResult setFocus(const FunctionCall& call) { return callOnFirst(call, "focus"); }

/// The object model may bring a function of this name, which knows more kinds of objects.
ObjectResult selectOption(const FunctionCall& call) {
  const QString name = QString::fromLatin1(call.function);
  if (MemberCalls::globalMethodsNamed(name).empty()) {
    return callOnFirst(call, "setSelectedOption");
  }
  const SharedPtr<Object>& given = call.arguments[0];
  const Target target = given ? awaitedTarget(call, given) : Target();
  if (!target.error.isEmpty()) {
    const QString wrongName = QStringLiteral("Invalid object name '%1'. ").arg(target.name);
    return ObjectResult::failure((isText(given) ? wrongName : QString()) + target.error);
  }
  return call.context.calls->callGlobalMethod(name, {target.object, call.arguments[1]});
}

}  // namespace

FunctionTable inputFunctions() {
  return {
      {"mouseClick",
       "mouseClick(object), mouseClick(object, modifiers) or mouseClick(object, x, y[, modifiers[, button]])", 1, 5,
       mouseClick},
      {"doubleClick", "doubleClick(object)", 1, 1, doubleClick},
      {"openContextMenu", "openContextMenu(object)", 1, 1, openContextMenu},
      {"clickButton", "clickButton(object)", 1, 1, clickButton},
      {"typeText", "typeText(object, text)", 2, 2, setText},
      {"setText", "setText(object, text)", 2, 2, setText},
      {"setFocus", "setFocus(object)", 1, 1, setFocus},
      {"selectOption", "selectOption(object, text)", 2, 2, selectOption},
  };
}

}  // namespace Corvex::Scripting
