#include "scripting/scriptlistener.h"

namespace Corvex::Scripting {

ScriptListener::~ScriptListener() = default;

void ScriptListener::environment(const QVector<Fact>&) {}

void ScriptListener::scriptStarted(const QString&) {}

void ScriptListener::step(const Step&) {}

void ScriptListener::objectCall(const Step&) {}

void ScriptListener::check(const Check&) {}

void ScriptListener::log(const QString&) {}

void ScriptListener::pageMessage(const PageMessage&) {}

void ScriptListener::picture(const Picture&) {}

void ScriptListener::tree(const QByteArray&) {}

void ScriptListener::groupStarted(const QString&) {}

void ScriptListener::groupFinished(const QString&, const QString&, qint64) {}

void ScriptListener::functionStarted(const QString&) {}

void ScriptListener::functionFinished(const FunctionResult&) {}

void ScriptListener::scriptFinished(const ScriptResult&) {}

void ScriptListener::runFinished(const RunSummary&) {}

void ListenerGroup::environment(const QVector<Fact>& facts) {
  for (ScriptListener* listener : m_listeners) {
    listener->environment(facts);
  }
}

void ListenerGroup::scriptStarted(const QString& path) {
  for (ScriptListener* listener : m_listeners) {
    listener->scriptStarted(path);
  }
}

void ListenerGroup::step(const Step& step) {
  for (ScriptListener* listener : m_listeners) {
    listener->step(step);
  }
}

void ListenerGroup::objectCall(const Step& call) {
  for (ScriptListener* listener : m_listeners) {
    listener->objectCall(call);
  }
}

void ListenerGroup::check(const Check& check) {
  for (ScriptListener* listener : m_listeners) {
    listener->check(check);
  }
}

void ListenerGroup::log(const QString& text) {
  for (ScriptListener* listener : m_listeners) {
    listener->log(text);
  }
}

void ListenerGroup::pageMessage(const PageMessage& message) {
  for (ScriptListener* listener : m_listeners) {
    listener->pageMessage(message);
  }
}

void ListenerGroup::picture(const Picture& picture) {
  for (ScriptListener* listener : m_listeners) {
    listener->picture(picture);
  }
}

void ListenerGroup::tree(const QByteArray& json) {
  for (ScriptListener* listener : m_listeners) {
    listener->tree(json);
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
