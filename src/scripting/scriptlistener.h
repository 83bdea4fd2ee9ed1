#pragma once

#include <vector>

#include "scripting/scriptevents.h"

namespace Corvex::Scripting {

/// Told of what a running script does, while it does it. All that it is told is plain data, so that it can be written
/// down and told again elsewhere. Every operation does nothing until it is overridden.
class CORVEXSCRIPTING_EXPORT ScriptListener {
public:
  virtual ~ScriptListener();
  /// Facts about the run, at any time. Of one name there may be several values, such as those of two browsers.
  virtual void environment(const QVector<Fact>& facts);
  virtual void scriptStarted(const QString& path);
  /// A global function was called and has ended, well or not.
  virtual void step(const Step& step);
  /// A member of an object was used.
  virtual void objectCall(const Step& call);
  virtual void check(const Check& check);
  virtual void log(const QString& text);
  virtual void pageMessage(const PageMessage& message);
  /// One of a failure belongs to the check or step before it, if that has failed, or else to the error that is told
  /// next.
  virtual void picture(const Picture& picture);
  /// The objects of the page of the picture before it, as JSON that its viewer understands. An empty one stands for a
  /// tree that was left out, as there are enough.
  virtual void tree(const QByteArray& json);
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

  void environment(const QVector<Fact>& facts) override;
  void scriptStarted(const QString& path) override;
  void step(const Step& step) override;
  void objectCall(const Step& call) override;
  void check(const Check& check) override;
  void log(const QString& text) override;
  void pageMessage(const PageMessage& message) override;
  void picture(const Picture& picture) override;
  void tree(const QByteArray& json) override;
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
