#pragma once

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

#include "scripting/engine/scriptengine.h"
#include "support/testbrowser.h"
#include "webhook/recorder/actrecorder.h"
#include "webhook/recorder/recordedcalls.h"
#include "webhook/recorder/scriptline.h"
#include "webhook/run/browsercontrol.h"

namespace TestSupport {

/// A browser in which scripts act, with its own input. What happens is recorded if it is to be, with real names.
class RecordedBrowser {
public:
  explicit RecordedBrowser(bool isRecorded, const Corvex::Webhook::SessionOptions& options = testBrowser());
  ~RecordedBrowser();

  /// Leaves one window, with this page; starts the browser if need be. What was recorded is forgotten.
  /// Answers what went wrong.
  QString show(const QString& page);
  /// Runs statements of a script; answers what went wrong.
  QString act(const QString& statements);
  /// The script lines of what happened since `show`.
  QStringList recorded();
  /// Takes the pointer away from all things.
  void restPointer();
  /// Presses the pointer beside all things, so that pages close what they show only for the moment.
  void pressBeside();
  /// The content of all windows: addresses, texts, fields.
  QString state();
  /// The same once it is this one, or after a while.
  QString stateAwaited(const QString& state);

  Corvex::Webhook::BrowserControl& control() { return m_control; }

private:
  /// The lines of what was not taken back.
  struct Lines : Corvex::Webhook::RecordingOutput {
    void write(const Corvex::EventData& call) override {
      lines << Corvex::Webhook::scriptLine(call, call.objectName());
    }
    void takeBackLast() override { lines.removeLast(); }
    QStringList lines;
  };
  struct Logger : Corvex::Webhook::ActRecorder {
    using ActRecorder::ActRecorder;
    void logEvent(const QString& text) override;
    int markers = 0;
    QDeadlineTimer silence;
  };

  /// Until pages have told of all that happened.
  void awaitMessages();

  QTemporaryDir m_folder;
  Lines m_lines;
  Corvex::Webhook::RecordedCalls m_calls{m_lines};
  Logger m_logger{m_calls};
  Corvex::Webhook::BrowserControl m_control;
  Corvex::Scripting::ListenerGroup m_noListeners;
  std::unique_ptr<Corvex::Scripting::ScriptEngine> m_engine;
};

}  // namespace TestSupport
