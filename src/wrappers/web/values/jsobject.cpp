#include "wrappers/web/values/jsobject.h"

#include "corvexhook/arrayclass.h"
#include "corvexhook/inspector.h"
#include "corvexhook/primitives.h"
#include "wrappers/web/object/references.h"
#include "wrappers/web/object/wraphtmlobject.h"
#include "wrappers/web/page/escaping.h"
#include "wrappers/web/page/htmlcomponent.h"
#include "wrappers/web/page/jsonanswer.h"

#include <QRegularExpression>
#include <QStringList>

#include <limits>
#include <utility>

namespace Corvex::WebWrapper {

namespace {

using ValueResult = FunctionCallResult<SharedPtr<Object>>;

// A list may hold itself.
const int mostLevels = 50;

ValueResult failure(const char* sentence, const QString& text) {
  return ValueResult::failure(QString::fromLatin1(sentence).arg(text));
}

/// A text between double quotes. Line breaks would end it.
QString quoted(const QString& text) {
  return QLatin1Char('"') + escapeObjectNameForUseAsStringLiteral(text) + QLatin1Char('"');
}

/// What of the page a script value stands for; without a reference for one of the script's own.
struct Held {
  QString reference;
  const HTMLComponent* component = nullptr;
  QString deadError;
};

Held heldBy(const SharedPtr<Object>& value) {
  void* native = nullptr;
  if (value->objectClass()->name() == QLatin1String(JsObject::ScriptName) && value->get(&native)) {
    const auto* const object = static_cast<const JsObject*>(native);
    return {object->reference, object->component, JsObject::deadError()};
  }
  const HTML_Object* const element = retrieveObject(value);
  return element ? Held{element->reference, element->component, deadObjectReferenceError()} : Held();
}

/// Why the page cannot be given these values; empty when it can. It would take a dead one for `undefined`, and one of
/// another page for one of its own, silently.
QString whyNotPass(const HTMLComponent* page, const std::vector<SharedPtr<Object>>& values, int level) {
  QString why;
  for (auto value = values.begin(); value != values.end() && why.isEmpty() && level <= mostLevels; ++value) {
    if (!*value || (*value)->isNull()) {
      continue;
    }
    if ((*value)->isA(ArrayClass::registeredClass())) {
      why = whyNotPass(page, ArrayClass::unwrapObject(*value), level + 1);
      continue;
    }
    const Held held = heldBy(*value);
    if (held.reference == deadReference()) {
      why = held.deadError;
    } else if (held.component && held.component != page) {
      why = QStringLiteral("An argument belongs to another window than the value whose method is called.");
    }
  }
  return why;
}

QString joinObjectArray(const std::vector<SharedPtr<Object>>& values, int level);

QString codeOf(const SharedPtr<Object>& value, int level) {
  if (!value || value->isNull() || level > mostLevels) {
    return QStringLiteral("null");
  }
  if (value->isA(ArrayClass::registeredClass())) {
    return QStringLiteral("[%1]").arg(joinObjectArray(ArrayClass::unwrapObject(value), level + 1));
  }
  const QString reference = heldBy(value).reference;
  if (!reference.isEmpty()) {
    return reference;
  }
  const QVariant plain = primitiveValue(value);
  const bool isText = !plain.isValid() || plain.type() == QVariant::String;
  return isText ? quoted(value->toString()) : value->toString();
}

/// JavaScript for the values, joined by ",".
QString joinObjectArray(const std::vector<SharedPtr<Object>>& values, int level) {
  QStringList codes;
  for (const SharedPtr<Object>& value : values) {
    codes << codeOf(value, level);
  }
  return codes.join(QLatin1Char(','));
}

QString exceptionText(const Json::Value& e, const QString& answer) {
  if (!e.isObject()) {
    return QStringLiteral("Cannot parse Json value %1: %2").arg(answer, QStringLiteral("the exception is no object"));
  }
  const auto member = [&e](const char* name) { return jsonText(e.get(name, Json::Value())); };
  QString text = QStringLiteral("Failed to retrieve Javascript Object, code threw exception: %1: %2")
                     .arg(member("name"), member("message"));
  if (!member("file").isEmpty() && !member("line").isEmpty()) {
    text += QStringLiteral("\nat %1:%2").arg(member("file"), member("line"));
  }
  return member("stack").isEmpty() ? text : text + QStringLiteral("\nStacktrace %1").arg(member("stack"));
}

ValueResult handle(HTMLComponent* component, const Json::Value& object, const QString& answer) {
  const QString id = object.isString() || object.isIntegral() ? jsonText(object) : QString();
  bool isNumber = false;
  id.toUInt(&isNumber);
  return isNumber ? ValueResult::success(
                        wrapAndTransferOwnership(new JsObject(id, component), QLatin1String(JsObject::ScriptName)))
                  : failure("Failed to read object id for: >>%1<<", answer);
}

ValueResult number(const Json::Value& object, const QString& answer) {
  const Inspector* const inspector = Inspector::self();
  if (object.isNumeric()) {
    return ValueResult::success(object.isInt() ? inspector->wrapInt(object.asInt())
                                               : inspector->wrapDouble(object.asDouble()));
  }
  // The numbers that JSON lacks come by their names.
  const double infinity = std::numeric_limits<double>::infinity();
  const std::pair<const char*, double> named[] = {
      {"NaN", std::numeric_limits<double>::quiet_NaN()}, {"Infinity", infinity}, {"-Infinity", -infinity}};
  for (const auto& [name, value] : named) {
    if (object.isString() && jsonText(object) == QLatin1String(name)) {
      return ValueResult::success(inspector->wrapDouble(value));
    }
  }
  return failure("Cannot convert json object to a number: >>%1<<", answer);
}

/// The script value for the page's answer: JSON with a type and an object.
ValueResult objectFromJSResponse(HTMLComponent* component, const QString& answer) {
  const FunctionCallResult<Json::Value> parsed = parseJson(answer);
  if (parsed.failed()) {
    return ValueResult::failure(QStringLiteral("Cannot parse JSon value: >>%1<<. %2").arg(answer, parsed.error));
  }
  if (!parsed.value.isObject()) {
    return failure("Json value is not an object: >>%1<<", answer);
  }
  if (!parsed.value.isMember("type")) {
    return failure("Json value does not have type information: >>%1<<", answer);
  }
  const Json::Value object = parsed.value.get("object", Json::Value());
  if (object.isNull()) {
    return failure("Json object is null: >>%1<<", answer);
  }
  const Json::Value kind = parsed.value.get("type", Json::Value());
  if (kind.isNull()) {
    return failure("Json type information is null: >>%1<<", answer);
  }
  if (!kind.isString()) {
    return failure("Json type information is not a string: >>%1<<", answer);
  }
  const QString type = jsonText(kind);
  if (type == QLatin1String("void")) {
    return ValueResult::success(nullptr);
  }
  if (type == QLatin1String("object")) {
    return handle(component, object, answer);
  }
  if (type == QLatin1String("null")) {
    return ValueResult::success(
        Inspector::self()->nullObject(Inspector::self()->classByName(QLatin1String(JsObject::ScriptName))));
  }
  if (type == QLatin1String("string")) {
    return object.isString() ? ValueResult::success(Inspector::self()->wrapString(jsonText(object)))
                             : failure("Cannot convert json object to a string: >>%1<<", answer);
  }
  if (type == QLatin1String("boolean")) {
    return object.isBool() ? ValueResult::success(Inspector::self()->wrapBool(object.asBool()))
                           : failure("Cannot convert json object to a boolean: >>%1<<", answer);
  }
  if (type == QLatin1String("number")) {
    return number(object, answer);
  }
  return type == QLatin1String("exception") ? ValueResult::failure(exceptionText(object, answer))
                                            : failure("Unhandled response type: %1", type);
}

}  // namespace

QString jsObjectIdToJSCode(const JsObjectId& id) { return QStringLiteral("top.__corvex__jsobjects[%1]").arg(id); }

JsObject::JsObject(const JsObjectId& id, HTMLComponent* connection)
    : reference(jsObjectIdToJSCode(id)), component(connection) {
  referencedValues.add(this, &reference, component);
}

JsObject::~JsObject() { referencedValues.remove(this); }

bool JsObject::hasValidReference() const { return reference != deadReference(); }

QString JsObject::deadError() {
  return QStringLiteral("The value belongs to a page that is gone. Get it again with retrieveJSObject.");
}

ValueResult JsObject::property(const QString& name) const {
  const QString code = isValidJSIdentifier(name) ? QStringLiteral("%1.%2;").arg(reference, name)
                                                 : QStringLiteral("%1[%2];").arg(reference, quoted(name));
  return retrieveJSObject(component, code);
}

ValueResult JsObject::call(const QString& method, const SharedPtr<Object>& arguments) const {
  const auto values = arguments ? ArrayClass::unwrapObject(arguments) : std::vector<SharedPtr<Object>>();
  const QString why = whyNotPass(component, values, 0);
  return why.isEmpty() ? retrieveJSObject(
                             component, QStringLiteral("%1.%2(%3);").arg(reference, method, joinObjectArray(values, 0)))
                       : ValueResult::failure(why);
}

ValueResult retrieveJSObject(HTMLComponent* component, const QString& code) {
  const JavaScriptAnswer answer =
      component->evaluateJS(QStringLiteral("__corvex__retrieveJsObjectInfo(%1);").arg(quoted(code)), 0);
  if (!answer.succeeded()) {
    return ValueResult::failure(answer.text);
  }
  if (answer.text == QLatin1String("[no eval]")) {
    const JavaScriptAnswer direct =
        component->evaluateJS(QStringLiteral("__corvex__jsObjectInfoOf(function () { return (\n%1\n); });")
                                  .arg(QString(code).remove(QRegularExpression(QStringLiteral(";\\s*$")))),
                              0);
    return direct.succeeded() ? objectFromJSResponse(component, direct.text)
                              : ValueResult::failure(QStringLiteral("The page's policy forbids eval, so that the code "
                                                                    "must be one expression: %1")
                                                         .arg(direct.text));
  }
  return objectFromJSResponse(component, answer.text);
}

}  // namespace Corvex::WebWrapper
