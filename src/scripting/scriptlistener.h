#pragma once

#include <vector>

#include "scripting/scriptresult.h"

namespace Corvex::Scripting {

/// Told of what a running script does, while it does it. Every operation does
/// nothing until it is overridden.
class CORVEXSCRIPTING_EXPORT ScriptListener {
public:
  virtual ~ScriptListener();
  virtual void scriptStarted(const QString& path);
  /// A global function was called and has ended, well or not.
  virtual void step(const QString& text, qint64 durationMs);
  /// A member of an object was used.
  virtual void objectCall(const QString& text, qint64 durationMs);
  /// `trace` is where the check stands.
  virtual void check(bool passed, const QString& text, const ScriptTrace& trace);
  virtual void log(const QString& text);
  /// A group of `test.step` begins, perhaps in another one; what follows belongs to it.
  virtual void groupStarted(const QString& title);
  /// `error` is what the group was left with; empty when it ran to its end.
  virtual void groupFinished(const QString& title, const QString& error, qint64 durationMs);
  /// A test function of the script, with the `setUp` and `tearDown` around it.
  virtual void functionStarted(const QString& name);
  virtual void functionFinished(const FunctionResult& result);
  virtual void scriptFinished(const ScriptResult& result);
  virtual void runFinished(const RunSummary& summary);
};

/// Passes all on to several listeners, in their order. Borrows them.
class CORVEXSCRIPTING_EXPORT ListenerGroup : public ScriptListener {
public:
  void add(ScriptListener* listener) { m_listeners.push_back(listener); }

  void scriptStarted(const QString& path) override;
  void step(const QString& text, qint64 durationMs) override;
  void objectCall(const QString& text, qint64 durationMs) override;
  void check(bool passed, const QString& text, const ScriptTrace& trace) override;
  void log(const QString& text) override;
  void groupStarted(const QString& title) override;
  void groupFinished(const QString& title, const QString& error, qint64 durationMs) override;
  void functionStarted(const QString& name) override;
  void functionFinished(const FunctionResult& result) override;
  void scriptFinished(const ScriptResult& result) override;
  void runFinished(const RunSummary& summary) override;

private:
  std::vector<ScriptListener*> m_listeners;
};

}  // namespace Corvex::Scripting
