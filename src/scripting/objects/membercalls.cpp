#include "scripting/objects/membercalls.h"

#include <QElapsedTimer>
#include <algorithm>

#include "corvexhook/hostservices.h"
#include "corvexhook/inspector.h"
#include "corvexhook/primitives.h"
#include "scripting/objects/overloads.h"

namespace Corvex::Scripting {

namespace {

QString memberText(const Class* cls, const QString& name) { return cls->name() + QLatin1Char('.') + name; }

QString argumentText(const ObjectList& arguments) {
  QStringList texts;
  for (const SharedPtr<Object>& argument : arguments) {
    texts << describeValue(argument);
  }
  return QLatin1Char('(') + texts.join(QLatin1String(", ")) + QLatin1Char(')');
}

QStringList memberNames(const Class* cls) {
  QStringList names;
  for (int id = 0; id < cls->numProperties(); ++id) {
    if (const Property* property = cls->property(id)) {
      names << property->name();
    }
  }
  for (int id = 0; id < cls->numMethods(); ++id) {
    if (const Method* method = cls->method(id)) {
      names << method->name();
    }
  }
  return names;
}

int editDistance(const QString& a, const QString& b) {
  std::vector<int> row(static_cast<std::size_t>(b.size()) + 1);
  for (std::size_t j = 0; j < row.size(); ++j) {
    row[j] = static_cast<int>(j);
  }
  for (int i = 1; i <= a.size(); ++i) {
    int diagonal = row[0];
    row[0] = i;
    for (std::size_t j = 1; j < row.size(); ++j) {
      const bool same = a.at(i - 1).toLower() == b.at(static_cast<int>(j) - 1).toLower();
      const int replaced = diagonal + (same ? 0 : 1);
      diagonal = row[j];
      row[j] = std::min({replaced, row[j] + 1, row[j - 1] + 1});
    }
  }
  return row.back();
}

QString nearestName(const QStringList& names, const QString& wanted) {
  QString nearest;
  int best = std::min(2, wanted.size() / 2) + 1;
  for (const QString& name : names) {
    const int candidate = editDistance(name, wanted);
    if (candidate < best) {
      best = candidate;
      nearest = name;
    }
  }
  return nearest;
}

ObjectResult nullObjectError(const QString& name) {
  return ObjectResult::failure(QStringLiteral("'%1' needs an object in front of it, as in object.%1.").arg(name));
}

/// An object that is gone takes no arguments at all.
QString goneOr(const QString& why, const SharedPtr<Object>& object) {
  const QString gone = object ? Inspector::self()->hostServices().whyNotUse(object) : QString();
  return gone.isEmpty() ? why : gone;
}

/// What the class says of such an assignment; otherwise a sentence of ours.
QString readOnlyError(const SharedPtr<Object>& object, const Property* property, const SharedPtr<Object>& value,
                      const QString& member) {
  property->owner()->setProperty(object, property, value);
  const QString own = Inspector::self()->takeScriptError();
  return own.isEmpty() ? QStringLiteral("%1 is read-only.").arg(member) : own;
}

}  // namespace

ObjectResult MemberCalls::callMethod(const SharedPtr<Object>& object, const QString& name,
                                     const ObjectList& arguments) {
  return object ? call(object->objectClass(), object, name, arguments) : nullObjectError(name);
}

ObjectResult MemberCalls::callStatic(const Class* cls, const QString& name, const ObjectList& arguments) {
  return call(cls, nullptr, name, arguments);
}

ObjectResult MemberCalls::call(const Class* cls, const SharedPtr<Object>& object, const QString& name,
                               const ObjectList& arguments) {
  std::vector<NumberedMethod> numbered;
  std::vector<const Method*> methods;
  for (const NumberedMethod& entry : methodsNamed(cls, name)) {
    if (object || entry.method->isStatic()) {
      numbered.push_back(entry);
      methods.push_back(entry.method);
    }
  }
  if (numbered.empty()) {
    return ObjectResult::failure(unknownMemberError(cls, name));
  }
  const QString refused = cls->whyNotCall(name, arguments);
  if (!refused.isEmpty()) {
    return ObjectResult::failure(goneOr(refused, object));
  }
  const OverloadChoice choice = chooseOverload(memberText(cls, name), methods, arguments);
  if (choice.index < 0) {
    return ObjectResult::failure(goneOr(choice.error, object));
  }
  m_lastUsed = object;
  const NumberedMethod chosen = numbered[static_cast<std::size_t>(choice.index)];
  warnIfDeprecated(chosen.method);
  return observed(memberText(cls, name) + argumentText(arguments),
                  [&] { return chosen.method->owner()->invoke(chosen.id, object, choice.arguments, chosen.method); });
}

ObjectResult MemberCalls::callGlobalMethod(const QString& name, const ObjectList& arguments) {
  const std::vector<const Method*> methods = globalMethodsNamed(name);
  const OverloadChoice choice = chooseOverload(name, methods, arguments);
  if (choice.index < 0) {
    return ObjectResult::failure(choice.error);
  }
  const Method* chosen = methods[static_cast<std::size_t>(choice.index)];
  warnIfDeprecated(chosen);
  return observed(name + argumentText(arguments),
                  [&] { return static_cast<const GlobalMethod*>(chosen)->call(choice.arguments); });
}

ObjectResult MemberCalls::readProperty(const SharedPtr<Object>& object, const QString& name) {
  if (!object) {
    return nullObjectError(name);
  }
  m_lastUsed = object;
  const Class* cls = object->objectClass();
  const Property* property = cls->property(name);
  if (!property) {
    return ObjectResult::failure(unknownMemberError(cls, name));
  }
  return observed(memberText(cls, name), [&] { return property->owner()->getProperty(object, property); });
}

QString MemberCalls::writeProperty(const SharedPtr<Object>& object, const QString& name,
                                   const SharedPtr<Object>& value) {
  if (!object) {
    return nullObjectError(name).error;
  }
  m_lastUsed = object;
  const Class* cls = object->objectClass();
  const QString member = memberText(cls, name);
  const Property* property = cls->property(name);
  if (!property) {
    return hasMethod(object, name) ? QStringLiteral("%1 is a method: call it, do not assign to it.").arg(member)
                                   : unknownMemberError(cls, name);
  }
  if (!property->isWritable()) {
    return readOnlyError(object, property, value, member);
  }
  const Class* type = property->type().type();
  const SharedPtr<Object> typed = value ? value : Inspector::self()->nullObject(type);
  if (!isAcceptable(typed, type) || (!value && dynamic_cast<const PrimitiveClass*>(type))) {
    return QStringLiteral("%1 must be of type %2, but got %3.").arg(member, type->name(), describeValue(value));
  }
  bool isSet = false;
  const QString text = QStringLiteral("%1 = %2").arg(member, describeValue(value));
  const ObjectResult result = observed(text, [&]() -> SharedPtr<Object> {
    isSet = property->owner()->setProperty(object, property, typed);
    return nullptr;
  });
  if (result.failed() || isSet) {
    return result.error;
  }
  return QStringLiteral("%1 could not be set.").arg(member);
}

bool MemberCalls::hasMethod(const SharedPtr<Object>& object, const QString& name) {
  return !methodsNamed(object->objectClass(), name).empty();
}

std::vector<const Method*> MemberCalls::globalMethodsNamed(const QString& name) {
  std::vector<const Method*> found;
  for (const GlobalMethod* method : Inspector::self()->globalClass()->methods()) {
    if (method->name() == name) {
      found.push_back(method);
    }
  }
  return found;
}

QString MemberCalls::unknownMemberError(const Class* cls, const QString& name) {
  const QString nearest = nearestName(memberNames(cls), name);
  const QString own = cls->whyNoMember(name);
  const QString sentence = own.isEmpty() ? QStringLiteral("%1 has no member '%2'.").arg(cls->name(), name) : own;
  if (nearest.isEmpty()) {
    return sentence;
  }
  const QString stop = sentence.endsWith(QLatin1Char('.')) ? QString() : QStringLiteral(".");
  return sentence + stop + QStringLiteral(" Did you mean '%1'?").arg(nearest);
}

void MemberCalls::warnIfDeprecated(const Method* method) {
  if (method->deprecation().isEmpty() || m_warned.contains(method)) {
    return;
  }
  m_warned.insert(method);
  m_listener->log(method->deprecation());
}

ObjectResult MemberCalls::observed(const QString& text, const std::function<SharedPtr<Object>()>& call) {
  QElapsedTimer timer;
  timer.start();
  const SharedPtr<Object> value = call();
  const qint64 durationMs = timer.elapsed();
  const QString error = Inspector::self()->takeScriptError();
  m_listener->objectCall({text, durationMs, m_place ? m_place() : ScriptTrace(), error});
  return error.isEmpty() ? ObjectResult::success(value) : ObjectResult::failure(error);
}

}  // namespace Corvex::Scripting
