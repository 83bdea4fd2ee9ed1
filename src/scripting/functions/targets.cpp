#include "scripting/functions/targets.h"

#include <QVariant>
#include <limits>

#include "corvexhook/inspector.h"
#include "corvexhook/primitives.h"
#include "scripting/objects/overloads.h"

namespace Corvex::Scripting {

namespace {

/// A target that is given itself.
Target givenTarget(const FunctionCall& call, const SharedPtr<Object>& argument) {
  if (!argument || argument->isNull() || primitiveValue(argument).isValid()) {
    return {nullptr, QString(),
            QStringLiteral("%1 needs an object or its name, but got %2.")
                .arg(QLatin1String(call.function), describeValue(argument))};
  }
  return {argument, call.context.liveObjects->name(argument), QString()};
}

QString lacksMethod(const FunctionCall& call, const char* method, const Target& target) {
  const QString type = withArticle(target.object->objectClass()->name());
  const QString got =
      target.name.isEmpty() ? QStringLiteral("got ") + type : QStringLiteral("'%1' is %2").arg(target.name, type);
  return QStringLiteral("%1 needs an object with %2, but %3.")
      .arg(QLatin1String(call.function), QLatin1String(method), got);
}

}  // namespace

ObjectResult outcome(const SharedPtr<Object>& value) {
  const QString error = Inspector::self()->takeScriptError();
  return error.isEmpty() ? ObjectResult::success(value) : ObjectResult::failure(error);
}

bool isText(const SharedPtr<Object>& value) { return primitiveValue(value).type() == QVariant::String; }

FunctionCallResult<int> timeToWait(const FunctionCall& call, int index) {
  using Result = FunctionCallResult<int>;
  const SharedPtr<Object> time = index < call.arguments.size() ? call.arguments[index] : nullptr;
  if (!time) {
    return Result::success(Inspector::self()->defaultTimeout());
  }
  if (!isNumber(time) || time->toDouble() < 0 || time->toDouble() > std::numeric_limits<int>::max()) {
    return Result::failure(QStringLiteral("%1: the time to wait must be a number of milliseconds, but got %2.")
                               .arg(QLatin1String(call.function), describeValue(time)));
  }
  return Result::success(static_cast<int>(time->toDouble()));
}

bool isNumber(const SharedPtr<Object>& value) {
  const QVariant::Type type = primitiveValue(value).type();
  return type == QVariant::Int || type == QVariant::Double;
}

ObjectResult look(const FunctionCall& call, const QString& name, int timeoutMs) {
  const ObjectResult found = outcome(Inspector::self()->findObject(name, timeoutMs));
  if (!found.failed() && found.value) {
    call.context.liveObjects->setName(found.value, name);
  }
  return found;
}

Target awaitedTarget(const FunctionCall& call, const SharedPtr<Object>& argument) {
  if (!isText(argument)) {
    return givenTarget(call, argument);
  }
  const QString name = argument->toString();
  const ObjectResult found = outcome(Inspector::self()->waitForObject(name));
  return {found.value, name, found.error};
}

Target presentTarget(const FunctionCall& call, const SharedPtr<Object>& argument) {
  if (!isText(argument)) {
    return givenTarget(call, argument);
  }
  const QString name = argument->toString();
  const ObjectResult found = look(call, name, 0);
  return {found.value, name, found.error};
}

ObjectResult callOn(const FunctionCall& call, const char* method, const Target& target, const ObjectList& arguments) {
  if (!target.error.isEmpty()) {
    return ObjectResult::failure(target.error);
  }
  const QString name = QString::fromLatin1(method);
  return MemberCalls::hasMethod(target.object, name) ? call.context.calls->callMethod(target.object, name, arguments)
                                                     : ObjectResult::failure(lacksMethod(call, method, target));
}

ObjectResult callOnFirst(const FunctionCall& call, const char* method) {
  ObjectList rest;
  for (int i = 1; i < call.arguments.size(); ++i) {
    rest.push_back(call.arguments[i]);
  }
  return callOn(call, method, awaitedTarget(call, call.arguments[0]), rest);
}

}  // namespace Corvex::Scripting
