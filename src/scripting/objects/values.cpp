#include "scripting/objects/values.h"

#include <QDateTime>
#include <QJSEngine>
#include <algorithm>
#include <cmath>
#include <limits>

#include "corvexhook/arrayclass.h"
#include "corvexhook/datetime.h"
#include "corvexhook/inspector.h"
#include "corvexhook/primitives.h"

namespace Corvex::Scripting {

namespace {

// An array may hold itself, even many times, and its length may be any number.
const int maxLevels = 20;
const quint32 maxEntries = 1000000;

using Result = FunctionCallResult<SharedPtr<Object>>;

SharedPtr<Object> wrapNumber(double number) {
  const bool isInt = std::trunc(number) == number && number >= std::numeric_limits<int>::min() &&
                     number <= std::numeric_limits<int>::max();
  return isInt ? Inspector::self()->wrapInt(static_cast<int>(number)) : Inspector::self()->wrapDouble(number);
}

}  // namespace

Values::Values(QJSEngine* engine)
    : m_engine(engine),
      m_plainPrototype(engine->newObject().prototype()),
      m_keysOf(engine->globalObject().property(QStringLiteral("Object")).property(QStringLiteral("keys"))),
      m_live(std::make_shared<LiveObjects>()) {}

Values::~Values() { m_live->releaseAll(); }

void Values::setWrappers(const QJSValue& wrap, const QJSValue& handleOf) {
  m_wrap = wrap;
  m_handleOf = handleOf;
}

Result Values::fromScript(const QJSValue& value) const {
  Limits limits{maxLevels, maxEntries};
  return fromScript(value, &limits);
}

FunctionCallResult<ObjectList> Values::listFromScript(const QJSValue& array) const {
  Limits limits{maxLevels, maxEntries};
  return listFromScript(array, &limits);
}

Result Values::fromScript(const QJSValue& value, Limits* limits) const {
  Inspector* inspector = Inspector::self();
  if (value.isUndefined() || value.isNull()) {
    return Result::success(nullptr);
  }
  if (value.isBool()) {
    return Result::success(inspector->wrapBool(value.toBool()));
  }
  if (value.isNumber()) {
    return Result::success(wrapNumber(value.toNumber()));
  }
  if (value.isString()) {
    return Result::success(inspector->wrapString(value.toString()));
  }
  if (value.isDate()) {
    return Result::success(wrapDateTime(DateTime(value.toDateTime())));
  }
  if (value.isArray()) {
    return arrayFromScript(value, limits);
  }
  if (const SharedPtr<Object> object = objectOf(value)) {
    return Result::success(object);
  }
  return Result::failure(
      QStringLiteral("%1 cannot be passed to this function: pass a number, a "
                     "text, true or false, null, an array or an object that "
                     "was looked up.")
          .arg(value.isCallable() ? QStringLiteral("A function") : QStringLiteral("A plain script object")));
}

Result Values::arrayFromScript(const QJSValue& array, Limits* limits) const {
  FunctionCallResult<ObjectList> list = listFromScript(array, limits);
  if (list.failed()) {
    return Result::failure(list.error);
  }
  // Natives read every entry of a list as an object.
  for (int i = 0; i < list.value.size(); ++i) {
    if (!list.value[i]) {
      list.value[i] = Inspector::self()->nullObject(nullptr);
    }
  }
  return Result::success(ArrayClass::wrapObject(std::vector<SharedPtr<Object>>(list.value.begin(), list.value.end())));
}

FunctionCallResult<ObjectList> Values::listFromScript(const QJSValue& array, Limits* limits) const {
  const quint32 length = lengthOf(array);
  if (limits->levels < 0 || length > limits->entries) {
    return FunctionCallResult<ObjectList>::failure(QStringLiteral("An array is too long, or too deeply nested."));
  }
  limits->entries -= length;
  --limits->levels;
  FunctionCallResult<ObjectList> list;
  for (quint32 i = 0; i < length; ++i) {
    const Result entry = fromScript(array.property(i), limits);
    if (entry.failed()) {
      return FunctionCallResult<ObjectList>::failure(entry.error);
    }
    list.value.push_back(entry.value);
  }
  ++limits->levels;
  return list;
}

QJSValue Values::toScript(const SharedPtr<Object>& object) {
  if (!object) {
    return QJSValue();
  }
  if (const auto* primitive = dynamic_cast<const PrimitiveObject*>(object.get())) {
    const QVariant& value = primitive->value();
    return value.isValid() ? m_engine->toScriptValue(value) : QJSValue();
  }
  if (object->isNull()) {
    return QJSValue(QJSValue::NullValue);
  }
  if (object->isA(ArrayClass::registeredClass())) {
    return arrayToScript(object);
  }
  const int classNumber = numberOfClass(object->objectClass());
  const QJSValue handle = m_engine->newQObject(new ObjectHandle(object, classNumber, m_live));
  const QJSValue wrapped = m_wrap.call({handle});
  if (wrapped.isError()) {
    m_engine->throwError(wrapped.toString());
  }
  return wrapped;
}

QJSValue Values::arrayToScript(const SharedPtr<Object>& list) {
  const std::vector<SharedPtr<Object>> entries = ArrayClass::unwrapObject(list);
  QJSValue array = m_engine->newArray(static_cast<uint>(entries.size()));
  for (std::size_t i = 0; i < entries.size(); ++i) {
    array.setProperty(static_cast<quint32>(i), toScript(entries[i]));
  }
  return array;
}

SharedPtr<Object> Values::objectOf(const QJSValue& value) const {
  if (!value.isObject()) {
    return nullptr;
  }
  QJSValue handleOf = m_handleOf;
  return objectOfHandle(handleOf.call({value}));
}

SharedPtr<Object> Values::objectOfHandle(const QJSValue& handle) {
  const auto* native = qobject_cast<const ObjectHandle*>(handle.toQObject());
  return native ? native->object() : nullptr;
}

QString Values::textOf(const SharedPtr<Object>& object) {
  const QString text = object->toString();
  return text.isEmpty() ? QStringLiteral("[object %1]").arg(object->objectClass()->name()) : text;
}

bool Values::isPlainObject(const QJSValue& value) const {
  if (!value.isObject() || value.isArray() || value.isCallable() || objectOf(value)) {
    return false;
  }
  const QJSValue prototype = value.prototype();
  return prototype.isNull() || prototype.strictlyEquals(m_plainPrototype);
}

QStringList Values::keysOf(const QJSValue& object) const {
  QJSValue keysOf = m_keysOf;
  const QJSValue keys = keysOf.call({object});
  QStringList names;
  for (quint32 i = 0; keys.isArray() && i < lengthOf(keys); ++i) {
    names << keys.property(i).toString();
  }
  return names;
}

quint32 Values::lengthOf(const QJSValue& array) { return array.property(QStringLiteral("length")).toUInt(); }

const Class* Values::classOfNumber(int number) const {
  const bool known = number >= 0 && number < static_cast<int>(m_classes.size());
  return known ? m_classes[static_cast<std::size_t>(number)] : nullptr;
}

int Values::numberOfClass(const Class* cls) {
  if (!cls) {
    return -1;
  }
  const auto found = std::find(m_classes.begin(), m_classes.end(), cls);
  if (found != m_classes.end()) {
    return static_cast<int>(found - m_classes.begin());
  }
  m_classes.push_back(cls);
  return static_cast<int>(m_classes.size()) - 1;
}

}  // namespace Corvex::Scripting
