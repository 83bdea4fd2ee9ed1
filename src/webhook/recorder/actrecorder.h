#pragma once

#include "webhook/recorder/eventrecorder.h"
#include "webhook/recorder/pagemoves.h"

namespace Corvex::Webhook {

/// Records what a person does besides presses and keys: moves by the browser's own buttons, context menus, drags,
/// checks; and says in a comment what could not be recorded.
class ActRecorder : public EventRecorder {
public:
  using EventRecorder::EventRecorder;

  bool compressedNonRecordingEventData(const QString& objectName, const WebWrapper::EventMap& data) override;

private:
  struct Row;
  static const Row rows[];

  void takeLeaving(const QString& objectName, const WebWrapper::EventMap& data);
  void takeArrived(const QString& objectName, const WebWrapper::EventMap& data);

  void takeCancelledPrompt(const QString& objectName, const WebWrapper::EventMap& data);
  void takeHover(const QString& objectName, const WebWrapper::EventMap& data);
  void takeKeys(const QString& objectName, const WebWrapper::EventMap& data);
  void takeMenu(const QString& objectName, const WebWrapper::EventMap& data);
  void takeDrag(const QString& objectName, const WebWrapper::EventMap& data);
  void takeUnrecorded(const QString& objectName, const WebWrapper::EventMap& data);
  void takeCheck(const QString& objectName, const WebWrapper::EventMap& data);
  /// What was recorded of a press that turned out to be the beginning of something else.
  void takeBackPress(const QString& objectName);

  PageMoves m_moves;
  /// Whether the next answer of a prompt is none.
  bool m_isPromptCancelled = false;
};

}  // namespace Corvex::Webhook
