#include "scripting/engine/scriptbridge.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QJSEngine>
#include <QJSValueIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcessEnvironment>
#include <QQmlEngine>
#include <algorithm>

#include "corvexhook/hostservices.h"
#include "corvexhook/inspector.h"
#include "scripting/engine/evaluation.h"
#include "scripting/functions/tablereader.h"
#include "scripting/objects/classmembers.h"
#include "scripting/objects/valuecomparison.h"
#include "scripting/objects/valuetext.h"

namespace Corvex::Scripting {

namespace {

const int maxStepText = 160;

const std::size_t mostCallsOfStep = 5;

QJSValueList entriesOf(const QJSValue& array) {
  QJSValueList entries;
  const quint32 count = Values::lengthOf(array);
  for (quint32 i = 0; i < count; ++i) {
    entries << array.property(i);
  }
  return entries;
}

/// Of an object that is gone nothing can be asked, whatever the arguments.
ObjectResult unusableArguments(const QString& name, const SharedPtr<Object>& object, const QString& error) {
  const QString gone = object ? Inspector::self()->hostServices().whyNotUse(object) : QString();
  return ObjectResult::failure(gone.isEmpty() ? name + QLatin1String(": ") + error : gone);
}

}  // namespace

ScriptBridge::ScriptBridge(QJSEngine* engine, const ScriptHost& host, MemberCalls* calls, ScriptListener* listener,
                           ScriptFiles* files, Interruption* interruption)
    : m_engine(engine),
      m_values(engine),
      m_calls(calls),
      m_listener(listener),
      m_files(files),
      m_interruption(interruption),
      m_arguments(host.arguments),
      m_functions(host, {calls, &m_values.liveObjects()}),
      m_checks({m_values,
                {calls, &m_values.liveObjects()},
                listener,
                files->folder(),
                host.pictureOf,
                [this] { look(Moment::CheckFailed); },
                [interruption] { interruption->endCode(); }}),
      m_waits(m_values),
      m_takeNews(host.takeNews),
      m_look(host.look) {
  QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
  m_calls->setPlace([this] { return here(); });
}

ScriptBridge::~ScriptBridge() {
  m_calls->setPlace({});
  m_calls->takeLastUsed();
}

QString ScriptBridge::errorText(const QJSValue& thrown) const {
  return m_errors.textOf(thrown, m_functions.names() + Waits::names());
}

void ScriptBridge::setWrappers(const QJSValue& wrap, const QJSValue& handleOf) { m_values.setWrappers(wrap, handleOf); }

void ScriptBridge::setRunner(const QJSValue& names, const QJSValue& run) {
  m_namesOfFunctions = names;
  m_runFunction = run;
}

QStringList ScriptBridge::globalFunctions() const {
  QJSValue namesOfFunctions = m_namesOfFunctions;
  QStringList names;
  for (const QJSValue& name : entriesOf(namesOfFunctions.call())) {
    names << name.toString();
  }
  return names;
}

Evaluation ScriptBridge::callGlobalFunction(const QString& name) {
  const QJSValue outcome = m_runFunction.call({name});
  // That of code that was ended is none.
  const QJSValue failed = outcome.property(QStringLiteral("failed"));
  return {outcome.property(QStringLiteral("error")), !failed.isBool() || failed.toBool()};
}

QJSValue ScriptBridge::scriptArray(const QStringList& texts) const {
  QJSValue array = m_engine->newArray(static_cast<uint>(texts.size()));
  for (int i = 0; i < texts.size(); ++i) {
    array.setProperty(static_cast<quint32>(i), texts.at(i));
  }
  return array;
}

QJSValue ScriptBridge::scriptObject(const QMap<QString, QString>& texts) const {
  QJSValue object = m_engine->newObject();
  for (auto text = texts.begin(); text != texts.end(); ++text) {
    object.setProperty(text.key(), text.value());
  }
  return object;
}

QJSValue ScriptBridge::describeClass(int classNumber) {
  const Class* cls = m_values.classOfNumber(classNumber);
  QJSValue description = m_engine->newObject();
  description.setProperty(QStringLiteral("superClass"), m_values.numberOfClass(cls->superClass()));
  description.setProperty(QStringLiteral("properties"), scriptArray(ownProperties(cls)));
  description.setProperty(QStringLiteral("methods"), scriptArray(ownMethods(cls)));
  return description;
}

QJSValue ScriptBridge::callMethod(const QJSValue& handle, const QString& name, const QJSValue& arguments) {
  const SharedPtr<Object> object = Values::objectOfHandle(handle);
  const FunctionCallResult<ObjectList> list = m_values.listFromScript(arguments);
  return finished(list.failed() ? unusableArguments(name, object, list.error)
                                : m_calls->callMethod(object, name, list.value));
}

QJSValue ScriptBridge::readProperty(const QJSValue& handle, const QString& name) {
  const SharedPtr<Object> object = Values::objectOfHandle(handle);
  m_errors.noteReadProperty(object, name);
  return finished(m_calls->readProperty(object, name));
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
  m_errors.noteLackedMember(name, error);
  m_engine->throwError(error);
}

bool ScriptBridge::isCalled(const QString& name, const QString& stack) const {
  return m_files->callsMember(stack, name);
}

QString ScriptBridge::textOf(const QJSValue& handle) const {
  const SharedPtr<Object> object = Values::objectOfHandle(handle);
  return object ? Values::textOf(object) : QString();
}

QJSValue ScriptBridge::classNames() const { return scriptArray(globalClasses()); }

QJSValue ScriptBridge::staticMethods(const QString& className) const {
  return scriptArray(ownStaticMethods(Inspector::self()->classByName(className)));
}

QJSValue ScriptBridge::enumItems(const QString& className) const {
  QJSValue items = m_engine->newObject();
  if (const Enum* const values = Inspector::self()->classByName(className)->createEnum(0)) {
    for (const Enum::Item& item : values->items()) {
      items.setProperty(QString::fromLatin1(item.name), item.value);
    }
  }
  return items;
}

QJSValue ScriptBridge::callStatic(const QString& className, const QString& name, const QJSValue& arguments) {
  const FunctionCallResult<ObjectList> list = m_values.listFromScript(arguments);
  return finished(list.failed() ? ObjectResult::failure(name + QLatin1String(": ") + list.error)
                                : m_calls->callStatic(Inspector::self()->classByName(className), name, list.value));
}

QJSValue ScriptBridge::functionNames() const { return scriptArray(m_functions.names()); }

QJSValue ScriptBridge::callFunction(const QString& name, const QJSValue& arguments) {
  QElapsedTimer timer;
  timer.start();
  const ScriptFunction* const function = m_functions.find(name);
  const FunctionCallResult<ObjectList> list = argumentsFor(function, arguments);
  const ObjectResult first = list.failed() ? m_values.fromScript(arguments.property(0)) : ObjectResult();
  const ObjectResult result =
      list.failed() ? unusableArguments(name, first.value, list.error) : m_functions.call(name, list.value);
  tellStep(name, arguments, timer.elapsed(), result.error);
  if (m_interruption->isScriptEnded() && m_stackOfEnd.isEmpty()) {
    m_stackOfEnd = stackHere();
  }
  if (result.failed() || !function || !function->givesJson || !result.value) {
    return finished(result);
  }
  const QJsonDocument json = QJsonDocument::fromJson(result.value->toString().toUtf8());
  return json.isArray() ? m_engine->toScriptValue(json.array()) : m_engine->toScriptValue(json.object());
}

FunctionCallResult<ObjectList> ScriptBridge::argumentsFor(const ScriptFunction* function, const QJSValue& arguments) {
  const quint32 count = Values::lengthOf(arguments);
  const QJSValue last = count > 0 ? arguments.property(count - 1) : QJSValue();
  const bool isPlain =
      last.isObject() && !last.isArray() && !last.isCallable() && !last.isDate() && !m_values.objectOf(last);
  if (!function || !function->takesOptions || !isPlain) {
    return m_values.listFromScript(arguments);
  }
  QJsonObject options;
  for (QJSValueIterator each(last); each.next();) {
    const QJSValue value = each.value();
    const bool isSimple = value.isString() || value.isNumber() || value.isBool();
    if (!value.isUndefined()) {
      options.insert(each.name(), isSimple ? QJsonValue::fromVariant(value.toVariant()) : QJsonValue());
    }
  }
  QJSValue rewritten = m_engine->newArray(count);
  for (quint32 i = 0; i + 1 < count; ++i) {
    rewritten.setProperty(i, arguments.property(i));
  }
  rewritten.setProperty(count - 1, QString::fromUtf8(QJsonDocument(options).toJson(QJsonDocument::Compact)));
  return m_values.listFromScript(rewritten);
}

bool ScriptBridge::hasNews() {
  if (m_takeNews) {
    const std::vector<HostNews> news = m_takeNews();
    m_news.insert(m_news.end(), news.begin(), news.end());
  }
  return !m_news.empty();
}

void ScriptBridge::tellNews(const QString& stack) {
  for (const HostNews& news : std::exchange(m_news, {})) {
    if (news.isFailure) {
      m_checks.fail(news.text, m_files->traceOf(stack));
    } else {
      m_listener->pageMessage({news.kind, news.text});
    }
  }
}

QString ScriptBridge::stackHere() const {
  return m_engine->newErrorObject(QJSValue::GenericError).property(QStringLiteral("stack")).toString();
}

ScriptTrace ScriptBridge::here() const {
  ScriptTrace trace = m_files->traceOf(stackHere());
  trace.resize(std::min(trace.size(), mostCallsOfStep));
  return trace;
}

void ScriptBridge::look(Moment moment, const SharedPtr<Object>& about) {
  const SharedPtr<Object> used = m_calls->takeLastUsed();
  // A run that is to end has no time for more.
  if (m_look && !m_interruption->isRunEnded()) {
    m_look(moment, about ? about : used, m_listener);
  }
}

SharedPtr<Object> ScriptBridge::objectOfStep(const QJSValue& arguments) const {
  const ObjectResult first = m_values.fromScript(arguments.property(0));
  return first.failed() ? nullptr : first.value;
}

void ScriptBridge::tellStep(const QString& name, const QJSValue& arguments, qint64 durationMs, const QString& error) {
  if (m_waiting == 0) {
    m_listener->step({stepText(name, arguments), durationMs, here(), error});
    look(error.isEmpty() ? Moment::StepDone : Moment::StepFailed, objectOfStep(arguments));
  }
}

QJSValue ScriptBridge::checkNames() const { return scriptArray(Checks::names()); }

QJSValue ScriptBridge::callCheck(const QString& name, const QJSValue& arguments, const QString& stack) {
  const Checks::Answer answer = m_checks.call(name, entriesOf(arguments), m_files->traceOf(stack));
  if (answer.failed()) {
    m_engine->throwError(answer.error);
  }
  return answer.value;
}

bool ScriptBridge::noteCheck(bool passed, const QString& text, const QString& stack) {
  return m_checks.note({passed, text, m_files->traceOf(stack), {}});
}

void ScriptBridge::beginGroup(const QString& title) { m_checks.beginGroup(title); }

void ScriptBridge::endGroup(const QString& error) { m_checks.endGroup(error); }

QJSValue ScriptBridge::scriptFacts() const {
  const QFileInfo file(m_files->absolutePath());
  QJSValue facts = m_engine->newObject();
  facts.setProperty(QStringLiteral("path"), file.filePath());
  facts.setProperty(QStringLiteral("name"), file.completeBaseName());
  facts.setProperty(QStringLiteral("arguments"), scriptObject(m_arguments));
  return facts;
}

QJSValue ScriptBridge::environment() const {
  const QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
  QMap<QString, QString> texts;
  for (const QString& name : variables.keys()) {
    texts.insert(name, variables.value(name));
  }
  return scriptObject(texts);
}

QJSValue ScriptBridge::readTable(const QString& path) {
  const FunctionCallResult<Table> table = Scripting::readTable(QDir(m_files->folder()).absoluteFilePath(path), path);
  if (table.failed()) {
    m_engine->throwError(table.error);
    return QJSValue();
  }
  if (!table.value.json.isEmpty()) {
    return table.value.json;
  }
  QJSValue rows = m_engine->newArray(static_cast<uint>(table.value.rows.size()));
  for (std::size_t i = 0; i < table.value.rows.size(); ++i) {
    const QStringList& values = table.value.rows[i];
    QJSValue row = m_engine->newObject();
    for (int column = 0; column < values.size(); ++column) {
      row.setProperty(table.value.columns.at(column), values.at(column));
    }
    rows.setProperty(static_cast<quint32>(i), row);
  }
  return rows;
}

void ScriptBridge::checkWait(const QString& name, const QJSValue& arguments) {
  const QString error = m_waits.whyNot(name, entriesOf(arguments));
  if (!error.isEmpty()) {
    m_engine->throwError(error);
  }
}

QJSValue ScriptBridge::wait(const QString& name, const QJSValue& arguments, const QJSValue& attempt) {
  QElapsedTimer timer;
  timer.start();
  ++m_waiting;
  const Waits::Answer answer =
      m_waits.wait(name, entriesOf(arguments), attempt, [this](const QJSValue& thrown) { return errorText(thrown); });
  --m_waiting;
  tellStep(name, arguments, timer.elapsed(), answer.error);
  if (answer.failed()) {
    m_engine->throwError(answer.error);
  }
  return answer.value;
}

bool ScriptBridge::areEqual(const QJSValue& a, const QJSValue& b) {
  const FunctionCallResult<Difference> difference = firstDifference(m_values, a, b);
  if (difference.failed()) {
    m_engine->throwError(difference.error);
  }
  return !difference.failed() && difference.value.isNone;
}

QJSValue ScriptBridge::source(const QString& path, const QString& stack) {
  QElapsedTimer timer;
  timer.start();
  const ScriptLocation caller = m_files->traceOf(stack).front();
  const QDir directory = QFileInfo(caller.file).absoluteDir();
  const Evaluation evaluation = evaluateFile(m_engine, m_files, QDir::cleanPath(directory.absoluteFilePath(path)));
  const QString error = evaluation.failed ? errorText(evaluation.thrown) : QString();
  m_listener->step({QStringLiteral("source ") + path, timer.elapsed(), here(), error});
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

QString ScriptBridge::stepText(const QString& name, const QJSValue& arguments) const {
  const ScriptFunction* const function = m_functions.find(name);
  const int shown = function ? function->shownArguments : -1;
  QStringList texts;
  for (const QJSValue& argument : entriesOf(arguments)) {
    if (texts.size() == shown) {
      texts << QString(QChar(0x2026));
      break;
    }
    const bool isName = texts.isEmpty() && argument.isString();
    texts << (isName ? argument.toString() : valueText(m_values, argument));
  }
  const QString text = name + QLatin1Char(' ') + texts.join(QLatin1String(", "));
  return text.size() <= maxStepText ? text.simplified() : text.left(maxStepText).simplified() + QChar(0x2026);
}

}  // namespace Corvex::Scripting
