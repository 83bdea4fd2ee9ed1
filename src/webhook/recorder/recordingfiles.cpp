#include "webhook/recorder/recordingfiles.h"

#include "corvexhook/inspector.h"
#include "corvexhook/objectmap.h"
#include "webhook/recorder/scriptline.h"

#include <QFileInfo>

namespace Corvex::Webhook {

RecordingFiles::RecordingFiles(const std::function<void(const QString&)>& show,
                               const std::function<void(const QString&)>& complain)
    : m_show(show), m_complain(complain) {}

QString RecordingFiles::open(const Options& options) {
  if (!options.objectMap.isEmpty()) {
    ObjectMap map;
    QString error = QFileInfo::exists(options.objectMap) ? map.load(options.objectMap) : QString();
    if (error.isEmpty()) {
      error = m_map.open(options.objectMap, LineFile::Append);
    }
    if (!error.isEmpty()) {
      return error;
    }
    m_names = std::make_unique<SymbolicNames>(map);
  }
  return options.script.isEmpty()
             ? QString()
             : m_script.open(options.script, options.appends ? LineFile::Append : LineFile::Replace);
}

QString RecordingFiles::scriptName(const QString& realName) {
  if (!m_names) {
    return realName;
  }
  const SymbolicNames::Answer name = m_names->nameFor(realName);
  const QString error = name.isNew ? m_map.write(name.symbolicName + QLatin1Char('\t') + realName) : QString();
  if (!error.isEmpty()) {
    m_complain(error);
    return realName;
  }
  return name.symbolicName;
}

void RecordingFiles::hideSecrets(const QString& variable, const std::function<bool(const QString&)>& isSecret) {
  m_secretVariable = variable;
  m_isSecret = isSecret;
}

// The key that sends a form is no secret.
bool RecordingFiles::hides(const EventData& call) const {
  const bool isText =
      call.functionName() == QLatin1String("typeText") || call.functionName() == QLatin1String("setText");
  return isText && !m_secretVariable.isEmpty() && m_isSecret(call.objectName()) &&
         call.arguments().at(0)->toString() != QLatin1String("<Return>");
}

// A drag ends on an object, too.
EventData RecordingFiles::withSymbolicTarget(const EventData& call) {
  const bool isDrag = call.functionName() == QLatin1String("dragTo");
  return isDrag ? EventData(call.functionName(), call.objectName(),
                            {Inspector::self()->wrapString(scriptName(call.arguments().at(0)->toString()))})
                : call;
}

void RecordingFiles::write(const EventData& call) {
  const QString name = namesAnObject(call) ? scriptName(call.objectName()) : call.objectName();
  const QString line =
      hides(call) ? scriptLineWithSecret(call, name, m_secretVariable) : scriptLine(withSymbolicTarget(call), name);
  // It is in the file before anybody sees it.
  const QString error = m_script.isOpen() ? m_script.write(line) : QString();
  if (!error.isEmpty()) {
    m_complain(error);
  }
  m_show(line);
}

void RecordingFiles::takeBackLast() {
  const QString error = m_script.isOpen() ? m_script.takeBackLast() : QString();
  if (!error.isEmpty()) {
    m_complain(error);
  }
  m_show(QStringLiteral("// The line before is taken back."));
}

}  // namespace Corvex::Webhook
