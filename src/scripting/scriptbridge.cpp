#include "scripting/scriptbridge.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QJSEngine>
#include <QQmlEngine>

#include "corvexhook/inspector.h"
#include "scripting/standardfunctions.h"

namespace Corvex::Scripting {

namespace {

const int maxStepText = 160;

// The value of a script that ran to its end: an error that is no Error object
// cannot be told from a value otherwise.
const QLatin1String completed("\x01script completed");

QString withMessage(const QJSValue& message, const QString& text) {
  return message.isUndefined() || message.toString().isEmpty() ? text : message.toString() + QLatin1String(": ") + text;
}

QString countError(const ScriptFunction& function, int got) {
  const QString expected = function.minArguments == function.maxArguments
                               ? QString::number(function.minArguments)
                               : QStringLiteral("%1 to %2").arg(function.minArguments).arg(function.maxArguments);
  return QStringLiteral("%1 takes %2 argument(s), but got %3. Use it as %4.")
      .arg(function.name, expected, QString::number(got), function.usage);
}

}  // namespace

ScriptBridge::ScriptBridge(QJSEngine* engine, const ScriptHost& host, MemberCalls* calls, ScriptListener* listener,
                           ScriptResult* result)
    : m_engine(engine),
      m_values(engine),
      m_calls(calls),
      m_listener(listener),
      m_result(result),
      m_files(result->path) {
  QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
  std::vector<ScriptFunction> functions = standardFunctions(m_calls, &m_values.liveObjects());
  functions.insert(functions.end(), host.functions.begin(), host.functions.end());
  for (const ScriptFunction& function : functions) {
    m_names << function.name;
    m_functions.insert(function.name, function);
  }
  for (const GlobalMethod* method : Inspector::self()->globalClass()->methods()) {
    if (!m_names.contains(method->name())) {
      m_names << method->name();
    }
  }
}

void ScriptBridge::run() {
  const FunctionCallResult<QString> text = m_files.read(m_files.absolutePath());
  if (text.failed()) {
    return fail(text.error, {m_result->path, 0});
  }
  if (!loadPrelude()) {
    return;
  }
  const Evaluation evaluation = evaluate(m_files.absolutePath());
  if (!evaluation.failed) {
    return;
  }
  const QJSValue stack = evaluation.thrown.property(QStringLiteral("stack"));
  fail(thrownText(evaluation.thrown, m_memberErrors), m_files.locationOf(stack.toString()));
}

bool ScriptBridge::loadPrelude() {
  const QString path = QStringLiteral(":/scripting/prelude.js");
  QFile file(path);
  file.open(QIODevice::ReadOnly);
  QJSValue prelude = m_engine->evaluate(QString::fromUtf8(file.readAll()), path);
  const QJSValue wrappers = prelude.call({m_engine->newQObject(this), m_engine->globalObject()});
  if (wrappers.isError() || !wrappers.isObject()) {
    fail(QStringLiteral("The script engine could not be set up: %1.").arg(wrappers.toString()), {});
    return false;
  }
  m_values.setWrappers(wrappers.property(QStringLiteral("wrap")), wrappers.property(QStringLiteral("handleOf")));
  return true;
}

ScriptBridge::Evaluation ScriptBridge::evaluate(const QString& absolutePath) {
  const FunctionCallResult<QString> text = m_files.read(absolutePath);
  if (text.failed()) {
    return {m_engine->newErrorObject(QJSValue::GenericError, text.error), true};
  }
  const QString program = text.value + QLatin1String("\n;'") + completed + QLatin1String("'");
  const QJSValue value = m_engine->evaluate(program, absolutePath);
  return {value, !value.isString() || value.toString() != completed};
}

QJSValue ScriptBridge::functionNames() const { return scriptArray(m_names); }

QJSValue ScriptBridge::scriptArray(const QStringList& texts) const {
  QJSValue array = m_engine->newArray(static_cast<uint>(texts.size()));
  for (int i = 0; i < texts.size(); ++i) {
    array.setProperty(static_cast<quint32>(i), texts.at(i));
  }
  return array;
}

QJSValue ScriptBridge::describeClass(int classNumber) {
  const Class* cls = m_values.classOfNumber(classNumber);
  QStringList properties;
  for (int id = cls->superClassOffset(Class::PropertyOffset); id < cls->numProperties(); ++id) {
    if (const Property* property = cls->property(id)) {
      properties << property->name();
    }
  }
  QStringList methods;
  for (int id = cls->superClassOffset(Class::MethodOffset); id < cls->numMethods(); ++id) {
    const Method* method = cls->method(id);
    // Of a property and a method of one name scripts see the property.
    if (method && !cls->property(method->name())) {
      methods << method->name();
    }
  }
  methods.removeDuplicates();
  QJSValue description = m_engine->newObject();
  description.setProperty(QStringLiteral("superClass"), m_values.numberOfClass(cls->superClass()));
  description.setProperty(QStringLiteral("properties"), scriptArray(properties));
  description.setProperty(QStringLiteral("methods"), scriptArray(methods));
  return description;
}

QJSValue ScriptBridge::callFunction(const QString& name, const QJSValue& arguments) {
  QElapsedTimer timer;
  timer.start();
  const FunctionCallResult<ObjectList> list = m_values.listFromScript(arguments);
  const ObjectResult result =
      list.failed() ? ObjectResult::failure(name + QLatin1String(": ") + list.error) : callByName(name, list.value);
  m_listener->step(stepText(name, arguments), timer.elapsed());
  return finished(result);
}

ObjectResult ScriptBridge::callByName(const QString& name, const ObjectList& arguments) {
  const auto found = m_functions.constFind(name);
  if (found == m_functions.constEnd()) {
    return m_calls->callGlobalMethod(name, arguments);
  }
  if (arguments.size() < found->minArguments || arguments.size() > found->maxArguments) {
    return ObjectResult::failure(countError(*found, arguments.size()));
  }
  const ObjectResult result = found->call(arguments);
  const QString reported = Inspector::self()->takeScriptError();
  return result.failed() || reported.isEmpty() ? result : ObjectResult::failure(reported);
}

QJSValue ScriptBridge::callMethod(const QJSValue& handle, const QString& name, const QJSValue& arguments) {
  const FunctionCallResult<ObjectList> list = m_values.listFromScript(arguments);
  if (list.failed()) {
    return finished(ObjectResult::failure(name + QLatin1String(": ") + list.error));
  }
  return finished(m_calls->callMethod(Values::objectOfHandle(handle), name, list.value));
}

QJSValue ScriptBridge::readProperty(const QJSValue& handle, const QString& name) {
  return finished(m_calls->readProperty(Values::objectOfHandle(handle), name));
}

void ScriptBridge::writeProperty(const QJSValue& handle, const QString& name, const QJSValue& value) {
  const ObjectResult native = m_values.fromScript(value);
  const QString error = native.failed() ? name + QLatin1String(": ") + native.error
                                        : m_calls->writeProperty(Values::objectOfHandle(handle), name, native.value);
  if (!error.isEmpty()) {
    m_engine->throwError(error);
  }
}

void ScriptBridge::unknownMember(const QJSValue& handle, const QString& name) {
  const SharedPtr<Object> object = Values::objectOfHandle(handle);
  if (!object) {
    return;
  }
  const QString error = MemberCalls::unknownMemberError(object->objectClass(), name);
  m_memberErrors.insert(name, error);
  m_engine->throwError(error);
}

QString ScriptBridge::textOf(const QJSValue& handle) const {
  const SharedPtr<Object> object = Values::objectOfHandle(handle);
  if (!object) {
    return QString();
  }
  const QString text = object->toString();
  return text.isEmpty() ? QStringLiteral("[object %1]").arg(object->objectClass()->name()) : text;
}

bool ScriptBridge::areEqual(const QJSValue& a, const QJSValue& b) const { return m_values.areEqual(a, b); }

bool ScriptBridge::verify(bool condition, const QJSValue& message, const QString& stack) {
  const QString text = message.isUndefined() ? QStringLiteral("the condition") : message.toString();
  return checked(condition, condition ? text : text + QLatin1String(" does not hold"), stack);
}

bool ScriptBridge::compare(const QJSValue& actual, const QJSValue& expected, const QJSValue& message,
                           const QString& stack) {
  const QString shown = m_values.describe(actual);
  const QString wanted = m_values.describe(expected);
  const bool equal = m_values.areEqual(actual, expected);
  const QString text = equal ? QStringLiteral("got %1 as expected").arg(shown)
                             : QStringLiteral("got %1, but expected %2").arg(shown, wanted);
  return checked(equal, withMessage(message, text), stack);
}

void ScriptBridge::log(const QString& text) { m_listener->log(text); }

QJSValue ScriptBridge::source(const QString& path, const QString& stack) {
  const ScriptLocation caller = m_files.locationOf(stack);
  const QDir directory = QFileInfo(caller.file).absoluteDir();
  const QString absolutePath = QDir::cleanPath(directory.absoluteFilePath(path));
  const Evaluation evaluation = evaluate(absolutePath);
  m_listener->step(QStringLiteral("source ") + path, 0);
  QJSValue outcome = m_engine->newObject();
  outcome.setProperty(QStringLiteral("failed"), evaluation.failed);
  outcome.setProperty(QStringLiteral("error"), evaluation.thrown);
  return outcome;
}

QJSValue ScriptBridge::finished(const ObjectResult& result) {
  if (!result.failed()) {
    return m_values.toScript(result.value);
  }
  m_engine->throwError(result.error);
  return QJSValue();
}

void ScriptBridge::fail(const QString& error, const ScriptLocation& location) {
  m_result->error = error;
  m_result->location = location;
  m_result->sourceLine = m_files.sourceLine(location);
}

bool ScriptBridge::checked(bool passed, const QString& text, const QString& stack) {
  const ScriptLocation location = m_files.locationOf(stack);
  if (passed) {
    ++m_result->checksPassed;
  } else {
    m_result->failedChecks.push_back({text, location});
  }
  m_listener->check(passed, text, location);
  return passed;
}

QString ScriptBridge::stepText(const QString& name, const QJSValue& arguments) const {
  const quint32 count = arguments.property(QStringLiteral("length")).toUInt();
  QStringList texts;
  for (quint32 i = 0; i < count; ++i) {
    const QJSValue argument = arguments.property(i);
    const bool isName = i == 0 && argument.isString();
    texts << (isName ? argument.toString() : m_values.describe(argument));
  }
  const QString text = name + QLatin1Char(' ') + texts.join(QLatin1String(", "));
  return text.size() <= maxStepText ? text.simplified() : text.left(maxStepText).simplified() + QChar(0x2026);
}

}  // namespace Corvex::Scripting
