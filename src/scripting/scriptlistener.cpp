#include "scripting/scriptlistener.h"

namespace Corvex::Scripting {

ScriptListener::~ScriptListener() = default;

void ScriptListener::scriptStarted(const QString&) {}

void ScriptListener::step(const QString&, qint64) {}

void ScriptListener::objectCall(const QString&, qint64) {}

void ScriptListener::check(bool, const QString&, const ScriptTrace&) {}

void ScriptListener::log(const QString&) {}

void ScriptListener::groupStarted(const QString&) {}

void ScriptListener::groupFinished(const QString&, const QString&, qint64) {}

void ScriptListener::functionStarted(const QString&) {}

void ScriptListener::functionFinished(const FunctionResult&) {}

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

void ListenerGroup::groupStarted(const QString& title) {
  for (ScriptListener* listener : m_listeners) {
    listener->groupStarted(title);
  }
}

void ListenerGroup::groupFinished(const QString& title, const QString& error, qint64 durationMs) {
  for (ScriptListener* listener : m_listeners) {
    listener->groupFinished(title, error, durationMs);
  }
}

void ListenerGroup::functionStarted(const QString& name) {
  for (ScriptListener* listener : m_listeners) {
    listener->functionStarted(name);
  }
}

void ListenerGroup::functionFinished(const FunctionResult& result) {
  for (ScriptListener* listener : m_listeners) {
    listener->functionFinished(result);
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
