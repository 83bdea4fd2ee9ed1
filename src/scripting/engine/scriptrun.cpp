#include "scripting/engine/scriptrun.h"

#include <QFile>
#include <QJSEngine>

#include "scripting/engine/evaluation.h"

namespace Corvex::Scripting {

namespace {

// In the order in which they run. Each is a function of the bridge and the global object.
const char* const preludeFiles[] = {"objects.js", "guards.js", "json.js", "classes.js", "functions.js", "waiting.js"};

}  // namespace

ScriptRun::ScriptRun(QJSEngine* engine, const ScriptHost& host, MemberCalls* calls, ScriptListener* listener,
                     ScriptResult* result)
    : m_engine(engine),
      m_result(result),
      m_files(result->path),
      m_bridge(engine, host, calls, listener, result, &m_files) {}

void ScriptRun::run() {
  if (!loadPrelude()) {
    return;
  }
  const Evaluation evaluation = evaluateFile(m_engine, &m_files, m_files.absolutePath());
  if (m_bridge.hasNews()) {
    m_bridge.tellNews(QString());
  }
  if (evaluation.failed) {
    const QJSValue stack = evaluation.thrown.property(QStringLiteral("stack"));
    fail(m_bridge.errorText(evaluation.thrown), m_files.traceOf(stack.toString()));
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
      fail(QStringLiteral("The script engine could not be set up: %1.").arg(outcome.toString()), m_files.traceOf({}));
      return false;
    }
  }
  return true;
}

void ScriptRun::fail(const QString& error, const ScriptTrace& trace) {
  m_result->error = error;
  m_result->trace = trace;
}

}  // namespace Corvex::Scripting
