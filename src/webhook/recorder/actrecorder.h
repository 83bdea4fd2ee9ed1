#pragma once

#include "shared/functioncallresult.h"
#include "webhook/recorder/eventrecorder.h"
#include "webhook/recorder/pagemoves.h"

#include <functional>

namespace Corvex::Webhook {

/// Records what a person does besides presses and keys: moves by the browser's own buttons, context menus, drags,
/// checks; and says in a comment what could not be recorded.
class ActRecorder : public EventRecorder {
public:
  using EventRecorder::EventRecorder;

  /// `take` saves a picture of the object of a name, as it is now, and answers the file's name for the script.
  void setPictures(const std::function<FunctionCallResult<QString>(const QString& objectName)>& take) {
    m_takePicture = take;
  }

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

  void takePicture(const QString& objectName, const WebWrapper::EventMap& data);

  PageMoves m_moves;
  std::function<FunctionCallResult<QString>(const QString& objectName)> m_takePicture;
  /// Whether the next answer of a prompt is none.
  bool m_isPromptCancelled = false;
};

}  // namespace Corvex::Webhook
