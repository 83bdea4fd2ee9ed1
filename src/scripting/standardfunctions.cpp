#include "scripting/standardfunctions.h"

#include <QVariant>
#include <algorithm>
#include <limits>

#include "corvexhook/arrayclass.h"
#include "corvexhook/class.h"
#include "corvexhook/delegate.h"
#include "corvexhook/geometry.h"
#include "corvexhook/hostservices.h"
#include "corvexhook/inspector.h"
#include "corvexhook/primitives.h"
#include "scripting/overloads.h"
#include "shared/wait.h"

namespace Corvex::Scripting {

namespace {

// How long a pause goes on at most before it sees that the script is to end.
const int pauseIntervalMs = 50;

/// What the functions work with.
struct Context {
  MemberCalls* calls;
  LiveObjects* liveObjects;
};

using Run = ObjectResult (*)(const Context&, const ObjectList&);

struct Row {
  const char* name;
  const char* usage;
  int minArguments;
  int maxArguments;
  Run run;
};

ObjectResult failure(const QString& text) { return ObjectResult::failure(text); }

ObjectResult outcome(const SharedPtr<Object>& value) {
  const QString error = Inspector::self()->takeScriptError();
  return error.isEmpty() ? ObjectResult::success(value) : failure(error);
}

bool isText(const SharedPtr<Object>& value) { return primitiveValue(value).type() == QVariant::String; }

bool isNumber(const SharedPtr<Object>& value) {
  const QVariant::Type type = primitiveValue(value).type();
  return type == QVariant::Int || type == QVariant::Double;
}

ObjectResult nameError(const char* function, const SharedPtr<Object>& got) {
  return failure(
      QStringLiteral("%1 needs the name of an object, but got %2.").arg(QLatin1String(function), describeValue(got)));
}

ObjectResult look(const Context& context, const QString& name, int timeoutMs) {
  const ObjectResult found = outcome(Inspector::self()->findObject(name, timeoutMs));
  if (!found.failed() && found.value) {
    context.liveObjects->setName(found.value, name);
  }
  return found;
}

ObjectResult findObject(const Context& context, const ObjectList& arguments) {
  if (!isText(arguments[0])) {
    return nameError("findObject", arguments[0]);
  }
  return look(context, arguments[0]->toString(), 0);
}

ObjectResult waitForObject(const Context& context, const ObjectList& arguments) {
  if (!isText(arguments[0])) {
    return nameError("waitForObject", arguments[0]);
  }
  int timeoutMs = Inspector::self()->defaultTimeout();
  if (arguments.size() > 1) {
    if (!isNumber(arguments[1]) || arguments[1]->toDouble() < 0 ||
        arguments[1]->toDouble() > std::numeric_limits<int>::max()) {
      return failure(QStringLiteral("waitForObject: the time to wait must be a "
                                    "number of milliseconds, but got %1.")
                         .arg(describeValue(arguments[1])));
    }
    timeoutMs = static_cast<int>(arguments[1]->toDouble());
  }
  return look(context, arguments[0]->toString(), timeoutMs);
}

ObjectResult exists(const Context&, const ObjectList& arguments) {
  if (!isText(arguments[0])) {
    return nameError("exists", arguments[0]);
  }
  Inspector* inspector = Inspector::self();
  const ObjectResult found = outcome(inspector->lookup(arguments[0]->toString()));
  return found.failed() ? found : outcome(inspector->wrapBool(found.value && !found.value->isNull()));
}

/// An object that a function works on, and how error sentences call it.
struct Target {
  SharedPtr<Object> object;
  QString name;
  QString error;
};

Target targetOf(const Context& context, const char* function, const SharedPtr<Object>& argument) {
  if (isText(argument)) {
    const QString name = argument->toString();
    const ObjectResult found = outcome(Inspector::self()->waitForObject(name));
    return {found.value, name, found.error};
  }
  if (!argument || argument->isNull() || primitiveValue(argument).isValid()) {
    return {nullptr, QString(),
            QStringLiteral("%1 needs an object or its name, but got %2.")
                .arg(QLatin1String(function), describeValue(argument))};
  }
  return {argument, context.liveObjects->name(argument), QString()};
}

QString lacksMethod(const char* function, const char* method, const Target& target) {
  const QString type = withArticle(target.object->objectClass()->name());
  const QString got =
      target.name.isEmpty() ? QStringLiteral("got ") + type : QStringLiteral("'%1' is %2").arg(target.name, type);
  return QStringLiteral("%1 needs an object with %2, but %3.").arg(QLatin1String(function), QLatin1String(method), got);
}

ObjectResult callOn(const Context& context, const char* function, const char* method, const Target& target,
                    const ObjectList& arguments) {
  if (!target.error.isEmpty()) {
    return failure(target.error);
  }
  const QString name = QString::fromLatin1(method);
  return MemberCalls::hasMethod(target.object, name) ? context.calls->callMethod(target.object, name, arguments)
                                                     : failure(lacksMethod(function, method, target));
}

ObjectResult onTarget(const Context& context, const char* function, const char* method, const ObjectList& arguments) {
  ObjectList rest;
  for (int i = 1; i < arguments.size(); ++i) {
    rest.push_back(arguments[i]);
  }
  return callOn(context, function, method, targetOf(context, function, arguments[0]), rest);
}

ObjectResult clickButton(const Context& context, const ObjectList& arguments) {
  return onTarget(context, "clickButton", "click", arguments);
}

ObjectResult typeText(const Context& context, const ObjectList& arguments) {
  return onTarget(context, "typeText", "setValue", arguments);
}

ObjectResult setText(const Context& context, const ObjectList& arguments) {
  return onTarget(context, "setText", "setValue", arguments);
}

ObjectResult setFocus(const Context& context, const ObjectList& arguments) {
  return onTarget(context, "setFocus", "focus", arguments);
}

/// What a mouse click may say, under the names that click methods give it.
struct ClickValues {
  QHash<QString, SharedPtr<Object>> byName;
  int given = 0;
};

ClickValues clickValues(const ObjectList& arguments) {
  const Inspector* inspector = Inspector::self();
  const QStringList order = arguments.size() == 2
                                ? QStringList({QStringLiteral("modifierState")})
                                : QStringList({QStringLiteral("x"), QStringLiteral("y"),
                                               QStringLiteral("modifierState"), QStringLiteral("button")});
  ClickValues values;
  values.byName = {{QStringLiteral("x"), inspector->wrapInt(0)},
                   {QStringLiteral("y"), inspector->wrapInt(0)},
                   {QStringLiteral("modifierState"), inspector->wrapInt(0)},
                   {QStringLiteral("button"), inspector->wrapInt(MouseButton::Left)}};
  values.given = arguments.size() - 1;
  for (int i = 0; i < values.given; ++i) {
    values.byName.insert(order.at(i), arguments[i + 1]);
  }
  return values;
}

/// The arguments of the shortest click method of the object that has a place
/// for every given value; false without such a method.
bool clickArguments(const SharedPtr<Object>& object, const ObjectList& arguments, ObjectList* result) {
  const ClickValues values = clickValues(arguments);
  QStringList needed;
  if (values.given == 1) {
    needed << QStringLiteral("modifierState");
  }
  if (values.given >= 2) {
    needed << QStringLiteral("x") << QStringLiteral("y");
  }
  if (values.given >= 3) {
    needed << QStringLiteral("modifierState");
  }
  if (values.given >= 4) {
    needed << QStringLiteral("button");
  }
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
      met += needed.contains(name) ? 1 : 0;
      list.push_back(values.byName.value(name));
    }
    const bool fits = list.size() == signature.count() && met == needed.size();
    if (fits && (!found || list.size() < result->size())) {
      *result = list;
      found = true;
    }
  }
  return found;
}

ObjectResult mouseClick(const Context& context, const ObjectList& arguments) {
  for (int i = 1; i < arguments.size(); ++i) {
    if (!isNumber(arguments[i])) {
      return failure(QStringLiteral("mouseClick: positions, modifiers and "
                                    "button must be whole numbers, but got %1.")
                         .arg(describeValue(arguments[i])));
    }
  }
  const Target target = targetOf(context, "mouseClick", arguments[0]);
  const bool isPlain =
      arguments.size() == 1 || !target.object || !MemberCalls::hasMethod(target.object, QStringLiteral("click"));
  ObjectList values;
  if (!isPlain && !clickArguments(target.object, arguments, &values)) {
    return failure(QStringLiteral("%1 cannot be clicked at a position or with modifiers.")
                       .arg(target.object->objectClass()->name()));
  }
  return callOn(context, "mouseClick", "click", target, values);
}

ObjectResult selectOption(const Context& context, const ObjectList& arguments) {
  const QString name = QStringLiteral("selectOption");
  if (MemberCalls::globalMethodsNamed(name).empty()) {
    return onTarget(context, "selectOption", "setSelectedOption", arguments);
  }
  const Target target = targetOf(context, "selectOption", arguments[0]);
  if (!target.error.isEmpty()) {
    return failure(target.error);
  }
  return context.calls->callGlobalMethod(name, {target.object, arguments[1]});
}

ObjectResult pause(const Context&, const ObjectList& arguments) {
  // A day: no one means more.
  const double maxSeconds = 86400;
  const double seconds = isNumber(arguments[0]) ? arguments[0]->toDouble() : -1;
  if (!(seconds >= 0 && seconds <= maxSeconds)) {
    return failure(QStringLiteral("pause needs a number of seconds from 0 to 86400, but got %1.")
                       .arg(describeValue(arguments[0])));
  }
  // A script that knows of its lost browser may pause all the same.
  const QString known = Inspector::self()->whyNotGoOn();
  QString end;
  poll(static_cast<int>(seconds * 1000 + 0.5), pauseIntervalMs, [&] {
    end = Inspector::self()->whyNotGoOn();
    return !end.isEmpty() && end != known;
  });
  return end.isEmpty() || end == known ? outcome(nullptr) : failure(end);
}

ObjectResult findAllObjects(const Context&, const ObjectList& arguments) {
  if (!isText(arguments[0])) {
    return nameError("findAllObjects", arguments[0]);
  }
  const ObjectList found = Inspector::self()->lookupAll(arguments[0]->toString());
  return outcome(ArrayClass::wrapObject({found.begin(), found.end()}));
}

/// The object of a function that walks the tree, where hidden objects count, too.
Target treeTarget(const Context& context, const char* function, const SharedPtr<Object>& argument) {
  if (isText(argument)) {
    const ObjectResult found = look(context, argument->toString(), 0);
    return {found.value, argument->toString(), found.error};
  }
  Target target = targetOf(context, function, argument);
  if (target.error.isEmpty()) {
    target.error = Inspector::self()->hostServices().whyNotUse(target.object);
  }
  if (target.error.isEmpty() && !hierarchyDelegate(target.object)) {
    target.error = QStringLiteral("%1 needs an object of a page, but got %2.")
                       .arg(QLatin1String(function), withArticle(target.object->objectClass()->name()));
  }
  return target;
}

ObjectResult children(const Context& context, const ObjectList& arguments) {
  const Target target = treeTarget(context, "children", arguments[0]);
  if (!target.error.isEmpty()) {
    return failure(target.error);
  }
  const ObjectList found = hierarchyDelegate(target.object)->children(target.object);
  return outcome(ArrayClass::wrapObject({found.begin(), found.end()}));
}

ObjectResult parent(const Context& context, const ObjectList& arguments) {
  const Target target = treeTarget(context, "parent", arguments[0]);
  if (!target.error.isEmpty()) {
    return failure(target.error);
  }
  const SharedPtr<Object> found = hierarchyDelegate(target.object)->parent(target.object);
  return outcome(found ? found : Inspector::self()->nullObject(target.object->objectClass()));
}

ObjectResult objectName(const Context& context, const ObjectList& arguments) {
  const Target target = treeTarget(context, "objectName", arguments[0]);
  if (!target.error.isEmpty()) {
    return failure(target.error);
  }
  const QString name = hierarchyDelegate(target.object)->qualifiedName(target.object);
  return name.isEmpty() ? failure(QStringLiteral("objectName: the page gave no name for %1.")
                                      .arg(withArticle(target.object->objectClass()->name())))
                        : outcome(Inspector::self()->wrapString(name));
}

const Row rows[] = {
    {"findObject", "findObject(name)", 1, 1, findObject},
    {"waitForObject", "waitForObject(name[, milliseconds])", 1, 2, waitForObject},
    {"findAllObjects", "findAllObjects(name)", 1, 1, findAllObjects},
    {"exists", "exists(name)", 1, 1, exists},
    {"children", "children(object)", 1, 1, children},
    {"parent", "parent(object)", 1, 1, parent},
    {"objectName", "objectName(object)", 1, 1, objectName},
    {"mouseClick",
     "mouseClick(object), mouseClick(object, modifiers) or "
     "mouseClick(object, x, y[, modifiers[, button]])",
     1, 5, mouseClick},
    {"clickButton", "clickButton(object)", 1, 1, clickButton},
    {"typeText", "typeText(object, text)", 2, 2, typeText},
    {"setText", "setText(object, text)", 2, 2, setText},
    {"setFocus", "setFocus(object)", 1, 1, setFocus},
    {"selectOption", "selectOption(object, text)", 2, 2, selectOption},
    {"pause", "pause(seconds)", 1, 1, pause},
};

}  // namespace

std::vector<ScriptFunction> standardFunctions(MemberCalls* calls, LiveObjects* liveObjects) {
  const Context context{calls, liveObjects};
  std::vector<ScriptFunction> functions;
  for (const Row& row : rows) {
    const Run run = row.run;
    functions.push_back({QString::fromLatin1(row.name), QString::fromLatin1(row.usage), row.minArguments,
                         row.maxArguments,
                         [context, run](const ObjectList& arguments) { return run(context, arguments); }});
  }
  return functions;
}

}  // namespace Corvex::Scripting
