#include "corvexhook/arrayclass.h"
#include "corvexhook/delegate.h"
#include "corvexhook/hostservices.h"
#include "corvexhook/inspector.h"
#include "scripting/functions/targets.h"
#include "scripting/objects/overloads.h"

namespace Corvex::Scripting {

namespace {

/// The present target, whose page can be asked.
Target answeringTarget(const FunctionCall& call, const SharedPtr<Object>& argument) {
  Target target = presentTarget(call, argument);
  if (target.error.isEmpty()) {
    target.error = Inspector::self()->hostServices().whyNotAsk(target.object);
  }
  return target;
}

/// The first argument, as an object that has a place in the tree.
Target treeTarget(const FunctionCall& call) {
  Target target = answeringTarget(call, call.arguments[0]);
  if (target.error.isEmpty()) {
    target.error = Inspector::self()->hostServices().whyNotUse(target.object);
  }
  if (target.error.isEmpty() && !hierarchyDelegate(target.object)) {
    target.error = QStringLiteral("%1 needs an object of a page, but got %2.")
                       .arg(QLatin1String(call.function), withArticle(target.object->objectClass()->name()));
  }
  return target;
}

/// What was asked of the page of that object. A dialog that opened meanwhile may have cut the answer short.
ObjectResult answered(const SharedPtr<Object>& asked, const ObjectResult& result) {
  const QString why = Inspector::self()->hostServices().whyNotAsk(asked);
  return why.isEmpty() ? result : ObjectResult::failure(why);
}

ObjectResult children(const FunctionCall& call) {
  const Target target = treeTarget(call);
  if (!target.error.isEmpty()) {
    return ObjectResult::failure(target.error);
  }
  const ObjectList found = hierarchyDelegate(target.object)->children(target.object);
  return answered(target.object, outcome(ArrayClass::wrapObject({found.begin(), found.end()})));
}

ObjectResult parent(const FunctionCall& call) {
  const Target target = treeTarget(call);
  if (!target.error.isEmpty()) {
    return ObjectResult::failure(target.error);
  }
  const SharedPtr<Object> found = hierarchyDelegate(target.object)->parent(target.object);
  return answered(target.object, outcome(found ? found : Inspector::self()->nullObject(target.object->objectClass())));
}

ObjectResult objectName(const FunctionCall& call) {
  const Target target = treeTarget(call);
  if (!target.error.isEmpty()) {
    return ObjectResult::failure(target.error);
  }
  const QString name = hierarchyDelegate(target.object)->qualifiedName(target.object);
  const QString nameless = QStringLiteral("objectName: the page gave no name for %1.")
                               .arg(withArticle(target.object->objectClass()->name()));
  return answered(target.object,
                  name.isEmpty() ? ObjectResult::failure(nameless) : outcome(Inspector::self()->wrapString(name)));
}

bool isNull(const SharedPtr<Object>& value) { return !value || value->isNull(); }

ObjectResult sameObject(const FunctionCall& call) {
  const Inspector* inspector = Inspector::self();
  if (isNull(call.arguments[0]) || isNull(call.arguments[1])) {
    return outcome(inspector->wrapBool(isNull(call.arguments[0]) && isNull(call.arguments[1])));
  }
  const Target first = answeringTarget(call, call.arguments[0]);
  const Target second = first.error.isEmpty() ? answeringTarget(call, call.arguments[1]) : first;
  if (!second.error.isEmpty()) {
    return ObjectResult::failure(second.error);
  }
  const bool isSame = first.object->objectClass()->sameObjects(first.object, second.object);
  return answered(first.object, outcome(inspector->wrapBool(isSame)));
}

}  // namespace

FunctionTable treeFunctions() {
  return {
      {"children", "children(object)", 1, 1, children},
      {"parent", "parent(object)", 1, 1, parent},
      {"objectName", "objectName(object)", 1, 1, objectName},
      {"sameObject", "sameObject(a, b)", 2, 2, sameObject},
  };
}

}  // namespace Corvex::Scripting
