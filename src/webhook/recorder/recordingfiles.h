#pragma once

#include "webhook/recorder/linefile.h"
#include "webhook/recorder/recordedcalls.h"
#include "webhook/recorder/symbolicnames.h"

#include <QString>

#include <functional>
#include <memory>

namespace Corvex::Webhook {

/// Writes a recording: each call as a line of a script, and the names of its objects into an object map.
class RecordingFiles : public RecordingOutput {
public:
  struct Options {
    QString script;     ///< Empty for none.
    QString objectMap;  ///< Empty for none: lines have the real names then. What the file holds already is used.
    bool appends = false;
  };

  /// `show` gets each line at once, `complain` what went wrong.
  RecordingFiles(const std::function<void(const QString&)>& show, const std::function<void(const QString&)>& complain);

  /// Answers why the recording could not be written.
  QString open(const Options& options);

  /// Has what is typed into the objects that `isSecret` says written as a look-up of this variable.
  void hideSecrets(const QString& variable, const std::function<bool(const QString& objectName)>& isSecret);

  void write(const EventData& call) override;
  void takeBackLast() override;

private:
  QString scriptName(const QString& realName);
  EventData withSymbolicTarget(const EventData& call);
  bool hides(const EventData& call) const;

  std::function<void(const QString&)> m_show;
  std::function<void(const QString&)> m_complain;
  LineFile m_script;
  LineFile m_map;
  std::unique_ptr<SymbolicNames> m_names;
  QString m_secretVariable;
  std::function<bool(const QString&)> m_isSecret;
};

}  // namespace Corvex::Webhook
