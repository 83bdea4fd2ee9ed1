#pragma once

#include <QJsonObject>
#include <functional>

#include "scripting/scriptlistener.h"

namespace Corvex::Scripting {

/// Makes each event of a run a JSON object, which `replay` makes an event again. Their field "event" says what they
/// are, by the names of the operations of a listener.
class CORVEXSCRIPTING_EXPORT EventWriter : public ScriptListener {
public:
  using Sink = std::function<void(const QJsonObject& event)>;

  explicit EventWriter(const Sink& sink) : m_sink(sink) {}

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
  void write(const char* event, QJsonObject fields) const;

  Sink m_sink;
};

/// Tells the listener of an event that was written. False for an object that is none. Fields that are missing or of
/// another type count as empty.
CORVEXSCRIPTING_EXPORT bool replay(const QJsonObject& event, ScriptListener* listener);

}  // namespace Corvex::Scripting
