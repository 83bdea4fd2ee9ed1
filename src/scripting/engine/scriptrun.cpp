#include "scripting/engine/scriptrun.h"

#include <QElapsedTimer>
#include <QFile>
#include <QJSEngine>
#include <QSet>
#include <algorithm>
#include <iterator>

#include "scripting/testfunctions.h"

namespace Corvex::Scripting {

namespace {

// In the order in which they run. Each is a function of the bridge and the global object.
const char* const preludeFiles[] = {"objects.js", "guards.js",      "json.js",          "classes.js", "functions.js",
                                    "checks.js",  "environment.js", "testfunctions.js", "waiting.js"};

const QString setUpFunction = QStringLiteral("setUp");
const QString tearDownFunction = QStringLiteral("tearDown");

}  // namespace

ScriptRun::ScriptRun(QJSEngine* engine, const ScriptHost& host, MemberCalls* calls, ScriptListener* listener,
                     ScriptResult* result, Interruption* interruption)
    : m_engine(engine),
      m_listener(listener),
      m_result(result),
      m_interruption(interruption),
      m_files(result->path),
      m_bridge(engine, host, calls, listener, &m_files, interruption) {}

void ScriptRun::run(const QStringList& chosenFunctions) {
  m_bridge.checks().setOutcome(m_result);
  if (!loadPrelude()) {
    return;
  }
  const QStringList namesBefore = m_bridge.globalFunctions();
  const QSet<QString> before(namesBefore.begin(), namesBefore.end());
  runBody();
  if (m_interruption->isScriptEnded()) {
    return;
  }
  for (const QString& name : m_files.inOrderOfDeclaration(m_bridge.globalFunctions())) {
    if (!before.contains(name)) {
      m_functions << name;
    }
  }
  const QStringList tests = testFunctions();
  const bool isBodyDone = m_result->error.isEmpty() && !m_result->isSkipped;
  if (isBodyDone && (!tests.isEmpty() || !chosenFunctions.isEmpty())) {
    runTestFunctions(chosenFunctions.isEmpty() ? tests : chosenFunctions);
  }
  if (tests.isEmpty()) {
    if (isBodyDone && m_functions.contains(setUpFunction)) {
      fail(
          QStringLiteral("The script defines setUp(), but no main() and no function whose name begins with test, which "
                         "it would run before."));
    }
    call(tearDownFunction, m_result);
  }
}

bool ScriptRun::loadPrelude() {
  for (const char* name : preludeFiles) {
    const QString path = QStringLiteral(":/scripting/prelude/") + QLatin1String(name);
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    QJSValue prelude = m_engine->evaluate(QString::fromUtf8(file.readAll()), path);
    const QJSValue outcome = prelude.call({m_engine->newQObject(&m_bridge), m_engine->globalObject()});
    if (outcome.isError()) {
      fail(QStringLiteral("The script engine could not be set up: %1.").arg(outcome.toString()));
      return false;
    }
  }
  return true;
}

QStringList ScriptRun::testFunctions() const {
  QStringList names;
  std::copy_if(m_functions.begin(), m_functions.end(), std::back_inserter(names), isTestFunction);
  return names;
}

void ScriptRun::runBody() {
  const Evaluation evaluation = evaluateFile(m_engine, &m_files, m_files.absolutePath());
  noteEnd(evaluation, m_result);
}

void ScriptRun::runTestFunctions(const QStringList& names) {
  for (const QString& name : names) {
    if (!m_functions.contains(name)) {
      fail(QStringLiteral("The script has not defined the function %1() that was chosen.").arg(name));
    } else if (!m_interruption->isScriptEnded()) {
      runTestFunction(name);
    }
  }
}

void ScriptRun::runTestFunction(const QString& name) {
  FunctionResult result;
  result.name = name;
  m_listener->functionStarted(name);
  m_bridge.checks().setOutcome(&result);
  QElapsedTimer timer;
  timer.start();
  if (call(setUpFunction, &result)) {
    call(name, &result);
  }
  call(tearDownFunction, &result);
  result.durationMs = timer.elapsed();
  m_bridge.checks().setOutcome(m_result);
  m_listener->functionFinished(result);
  m_result->functions.push_back(result);
  if (m_interruption->isScriptEnded()) {
    m_result->trace = result.trace;
  }
}

bool ScriptRun::call(const QString& name, Outcome* outcome) {
  if (!m_functions.contains(name) || m_interruption->isScriptEnded()) {
    return true;
  }
  return noteEnd(m_bridge.callGlobalFunction(name), outcome);
}

bool ScriptRun::noteEnd(const Evaluation& evaluation, Outcome* outcome) {
  m_interruption->resume();
  if (m_bridge.hasNews()) {
    m_bridge.tellNews(QString());
  }
  m_bridge.checks().closeGroups();
  if (m_bridge.checks().takeSkip() || !evaluation.failed) {
    return !evaluation.failed;
  }
  const bool isEnded = m_interruption->isScriptEnded();
  const QString error = isEnded ? QStringLiteral("The script was ended.") : m_bridge.errorText(evaluation.thrown);
  const QString stack =
      isEnded ? m_bridge.stackOfEnd() : evaluation.thrown.property(QStringLiteral("stack")).toString();
  if (outcome->error.isEmpty()) {
    outcome->error = error;
    outcome->trace = m_files.traceOf(stack);
    m_bridge.look(Moment::CodeFailed);
  } else {
    m_listener->log(QStringLiteral("After the error there was another one, in %1: %2")
                        .arg(traceText(m_files.traceOf(stack)), error));
  }
  return false;
}

void ScriptRun::fail(const QString& error) {
  m_result->error = error;
  m_result->trace = m_files.traceOf({});
}

}  // namespace Corvex::Scripting
