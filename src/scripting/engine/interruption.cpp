#include "scripting/engine/interruption.h"

#include <QJSEngine>

#include "corvexhook/inspector.h"

namespace Corvex::Scripting {

Interruption::Interruption() = default;

Interruption::~Interruption() = default;

void Interruption::setRunning(QJSEngine* engine) {
  const QMutexLocker locker(&m_mutex);
  m_running = engine;
  m_isScriptEnded = m_isRunEnded.load();
  if (engine && m_isRunEnded) {
    engine->setInterrupted(true);
  }
  Inspector::self()->setInterruption(engine ? &m_isScriptEnded : nullptr);
}

void Interruption::endRun() {
  const QMutexLocker locker(&m_mutex);
  m_isRunEnded = true;
  m_isScriptEnded = true;
  if (m_running) {
    m_running->setInterrupted(true);
  }
}

void Interruption::endScript() {
  const QMutexLocker locker(&m_mutex);
  if (m_running) {
    m_isScriptEnded = true;
    m_running->setInterrupted(true);
  }
}

void Interruption::endCode() {
  const QMutexLocker locker(&m_mutex);
  m_running->setInterrupted(true);
}

void Interruption::resume() {
  const QMutexLocker locker(&m_mutex);
  m_running->setInterrupted(m_isScriptEnded);
}

}  // namespace Corvex::Scripting
