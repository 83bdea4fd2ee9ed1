#include "webhook/process/cleanup.h"

#include <pthread.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <cstring>
#include <map>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

#include "webhook/process/claimeddirectory.h"
#include "webhook/process/processgroup.h"

namespace Corvex::Webhook::Cleanup {

namespace {

struct Notes {
  std::mutex mutex;
  std::map<pid_t, NotedGroup> groups;
  std::map<std::string, FileDescriptor> directories;  ///< With the claims to them.
};

Notes& notes() {
  static Notes* const instance = new Notes;  // never destroyed: used at exit() and by the signal thread
  return *instance;
}

void runLocked(Notes& all) {
  std::vector<pid_t> leaders;
  for (const auto& [group, noted] : all.groups) {
    if (noted.cleansUp) {
      leaders.push_back(group);
    }
  }
  askToEnd(leaders);
  for (const auto& [group, noted] : all.groups) {
    killProcessGroup(group, noted.mark);
  }
  for (const auto& [directory, claim] : all.directories) {
    removeTree(directory);
  }
  all.groups.clear();
  all.directories.clear();
}

std::atomic<std::atomic<bool>*> stopFlag{nullptr};
std::atomic<const char*> farewell{nullptr};

/// Whether a signal is only a wish.
bool isWish() {
  std::atomic<bool>* const flag = stopFlag.exchange(nullptr);
  if (flag) {
    *flag = true;
  }
  return flag;
}

void serveSignals(sigset_t signals) {
  int signal = 0;
  while (sigwait(&signals, &signal) != 0 || isWish()) {
  }
  Notes& all = notes();
  all.mutex.lock();  // for good: nothing new may begin any more
  runLocked(all);
  const char* const text = farewell;
  if (text && write(STDOUT_FILENO, text, std::strlen(text)) < 0) {
    _exit(128 + signal);
  }
  _exit(128 + signal);
}

}  // namespace

void install() {
  static bool installed = false;
  if (std::exchange(installed, true)) {
    return;
  }
  sigset_t signals;
  sigemptyset(&signals);
  for (int signal : {SIGHUP, SIGINT, SIGTERM}) {
    sigaddset(&signals, signal);
  }
  pthread_sigmask(SIG_BLOCK, &signals, nullptr);
  std::signal(SIGPIPE, SIG_IGN);
  std::thread(serveSignals, signals).detach();
  std::atexit(run);
}

void setStopFlag(std::atomic<bool>* flag) { stopFlag = flag; }

void setFarewell(const char* text) { farewell = text; }

pid_t noteProcessGroup(const NotedGroup& group, const std::function<pid_t()>& start) {
  Notes& all = notes();
  std::lock_guard lock(all.mutex);
  const pid_t leader = start();
  if (leader > 0) {
    all.groups[leader] = group;
  }
  return leader;
}

void endProcessGroup(pid_t group) {
  Notes& all = notes();
  std::lock_guard lock(all.mutex);
  const auto found = all.groups.find(group);
  if (found == all.groups.end()) {
    return;
  }
  if (found->second.cleansUp) {
    askToEnd({group});
  }
  killProcessGroup(group, found->second.mark);
  all.groups.erase(found);
}

std::string makeDirectory(const std::string& pathTemplate) {
  Notes& all = notes();
  std::lock_guard lock(all.mutex);
  ClaimedDirectory made = makeClaimedDirectory(pathTemplate);
  if (!made.path.empty()) {
    all.directories[made.path] = std::move(made.claim);
  }
  return made.path;
}

void removeDirectory(const std::string& path) {
  Notes& all = notes();
  std::lock_guard lock(all.mutex);
  const auto found = all.directories.find(path);
  if (found == all.directories.end()) {
    return;
  }
  removeTree(path);
  all.directories.erase(found);
}

void run() {
  Notes& all = notes();
  std::lock_guard lock(all.mutex);
  runLocked(all);
}

}  // namespace Corvex::Webhook::Cleanup
