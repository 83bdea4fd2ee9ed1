#include "scripting/scriptlistener.h"

namespace Corvex::Scripting {

ScriptListener::~ScriptListener() = default;

void ScriptListener::scriptStarted(const QString&) {}

void ScriptListener::step(const QString&, qint64) {}

void ScriptListener::objectCall(const QString&, qint64) {}

void ScriptListener::check(bool, const QString&, const ScriptTrace&) {}

void ScriptListener::log(const QString&) {}

void ScriptListener::scriptFinished(const ScriptResult&) {}

void ScriptListener::runFinished(const RunSummary&) {}

void ListenerGroup::scriptStarted(const QString& path) {
  for (ScriptListener* listener : m_listeners) {
    listener->scriptStarted(path);
  }
}

void ListenerGroup::step(const QString& text, qint64 durationMs) {
  for (ScriptListener* listener : m_listeners) {
    listener->step(text, durationMs);
  }
}

void ListenerGroup::objectCall(const QString& text, qint64 durationMs) {
  for (ScriptListener* listener : m_listeners) {
    listener->objectCall(text, durationMs);
  }
}

void ListenerGroup::check(bool passed, const QString& text, const ScriptTrace& trace) {
  for (ScriptListener* listener : m_listeners) {
    listener->check(passed, text, trace);
  }
}

void ListenerGroup::log(const QString& text) {
  for (ScriptListener* listener : m_listeners) {
    listener->log(text);
  }
}

void ListenerGroup::scriptFinished(const ScriptResult& result) {
  for (ScriptListener* listener : m_listeners) {
    listener->scriptFinished(result);
  }
}

void ListenerGroup::runFinished(const RunSummary& summary) {
  for (ScriptListener* listener : m_listeners) {
    listener->runFinished(summary);
  }
}

}  // namespace Corvex::Scripting
