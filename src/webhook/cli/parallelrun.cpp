#include "webhook/cli/parallelrun.h"

#include "shared/wait.h"
#include "webhook/cli/commandline.h"
#include "webhook/cli/output.h"
#include "webhook/cli/workerrequest.h"

#include <QCoreApplication>
#include <QDir>

#include <algorithm>
#include <limits>

namespace Corvex::Webhook {

namespace {

// How soon an ended script makes room for the next one.
const int attentionMs = 20;

}  // namespace

struct ParallelRun::Script {
  Scripting::ScriptChoice choice;
  /// What was told of all attempts.
  QFile events;
  std::unique_ptr<Worker> worker;
  bool isOver = false;
};

ParallelRun::ParallelRun(const Plan& plan) : m_plan(plan) {
  Worker::removeAbandoned();
  for (const Scripting::ScriptChoice& choice : plan.scripts) {
    auto script = std::make_unique<Script>();
    script->choice = choice;
    script->choice.attempts = plan.policy.retries + 1;
    script->events.setFileName(m_directory.filePath(QString::number(m_scripts.size())));
    m_scripts.push_back(std::move(script));
  }
}

ParallelRun::~ParallelRun() = default;

QString ParallelRun::whyNotRun() const {
  return m_directory.path().isEmpty()
             ? QStringLiteral(
                   "No folder for temporary files can be made in '%1'. Set TMPDIR to one that you may write to.")
                   .arg(QDir::tempPath())
             : QString();
}

Scripting::RunSummary ParallelRun::run() {
  QElapsedTimer time;
  time.start();
  poll(std::numeric_limits<int>::max(), attentionMs, [this] {
    collect();
    beginMore();
    return m_isStopped || std::none_of(m_scripts.begin(), m_scripts.end(),
                                       [](const auto& script) { return script->worker != nullptr; });
  });
  for (const auto& script : m_scripts) {
    script->worker.reset();
    if (!script->isOver) {
      m_summary.notRun << script->choice.path;
    }
  }
  tellInOrder(true);
  m_summary.durationMs = time.elapsed();
  for (Scripting::ScriptListener* listener : {m_followed, m_shown, m_report}) {
    listener->runFinished(m_summary);
  }
  return m_summary;
}

void ParallelRun::beginMore() {
  const auto running =
      std::count_if(m_scripts.begin(), m_scripts.end(), [](const auto& script) { return script->worker != nullptr; });
  for (auto free = m_plan.jobs - running; free > 0 && m_begun < m_scripts.size() && !m_isStopped; --free) {
    if (m_plan.policy.isOver(m_summary)) {
      return;
    }
    begin(m_scripts[m_begun++].get());
  }
}

void ParallelRun::begin(Script* script) {
  if (!script->events.isOpen()) {
    script->events.open(QIODevice::ReadWrite);
  }
  const QStringList arguments =
      QStringList{QStringLiteral("run"), QStringLiteral("--worker"), workerRequest(script->choice)} + m_plan.arguments;
  script->worker =
      std::make_unique<Worker>(QCoreApplication::applicationFilePath(), arguments, script->choice, &script->events);
  m_followed->scriptStarted(script->choice.path);
}

void ParallelRun::collect() {
  for (const auto& script : m_scripts) {
    if (script->worker && !m_isStopped && script->worker->hasEnded()) {
      finishAttempt(script.get());
    }
  }
}

void ParallelRun::finishAttempt(Script* script) {
  const Scripting::ScriptResult result = script->worker->finish();
  const QString words = script->worker->words();
  const bool browserFailed = script->worker->exitCode() == ExitCode::BrowserFailed;
  script->worker.reset();
  m_followed->scriptFinished(result);
  m_summary.add(result);
  if (!words.isEmpty()) {
    printError(words);
  }
  if (script->events.error() != QFile::NoError) {
    // Nothing of it can be shown from there.
    printError(QStringLiteral("corvexweb run: %1: %2\n").arg(result.path, result.error));
  }
  if (result.runsAgain) {
    ++script->choice.attempt;
    begin(script);
    return;
  }
  m_browserFailure = m_browserFailure || browserFailed;
  script->isOver = true;
  script->events.seek(0);
  replayEvents(&script->events, m_shown);
  script->events.close();
  tellInOrder();
}

void ParallelRun::tellInOrder(bool all) {
  for (; m_told < m_scripts.size() && (all || m_scripts[m_told]->isOver); ++m_told) {
    Script& script = *m_scripts[m_told];
    if (script.isOver && script.events.open(QIODevice::ReadOnly)) {
      replayEvents(&script.events, m_report);
      script.events.close();
    }
    script.events.remove();
  }
}

}  // namespace Corvex::Webhook
