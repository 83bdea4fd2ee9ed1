#include "webhook/process/cleanup.h"

#include <pthread.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <mutex>
#include <set>
#include <thread>
#include <utility>

#include "webhook/process/processgroup.h"

namespace Corvex::Webhook::Cleanup {

namespace {

struct Notes {
  std::mutex mutex;
  std::map<pid_t, std::string> groups;
  std::set<std::string> directories;
};

Notes& notes() {
  static Notes* const instance = new Notes;  // never destroyed: used at exit() and by the signal thread
  return *instance;
}

void removeTree(const std::string& path) {
  std::error_code error;
  for (int attempt = 0; attempt < 3; ++attempt) {
    std::filesystem::remove_all(path, error);
    if (!error) {
      return;
    }
  }
}

void runLocked(Notes& all) {
  for (const auto& [group, mark] : all.groups) {
    killProcessGroup(group, mark);
  }
  for (const std::string& directory : all.directories) {
    removeTree(directory);
  }
  all.groups.clear();
  all.directories.clear();
}

void serveSignals(sigset_t signals) {
  int signal = 0;
  while (sigwait(&signals, &signal) != 0) {
  }
  Notes& all = notes();
  all.mutex.lock();  // for good: nothing new may begin any more
  runLocked(all);
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
  std::thread(serveSignals, signals).detach();
  std::atexit(run);
}

pid_t noteProcessGroup(const std::string& mark, const std::function<pid_t()>& start) {
  Notes& all = notes();
  std::lock_guard lock(all.mutex);
  const pid_t group = start();
  if (group > 0) {
    all.groups[group] = mark;
  }
  return group;
}

void endProcessGroup(pid_t group) {
  Notes& all = notes();
  std::lock_guard lock(all.mutex);
  const auto found = all.groups.find(group);
  if (found == all.groups.end()) {
    return;
  }
  killProcessGroup(group, found->second);
  all.groups.erase(found);
}

std::string makeDirectory(const std::string& pathTemplate) {
  Notes& all = notes();
  std::lock_guard lock(all.mutex);
  std::string path = pathTemplate;
  if (!mkdtemp(path.data())) {
    return {};
  }
  all.directories.insert(path);
  return path;
}

void removeDirectory(const std::string& path) {
  Notes& all = notes();
  std::lock_guard lock(all.mutex);
  if (all.directories.erase(path)) {
    removeTree(path);
  }
}

void run() {
  Notes& all = notes();
  std::lock_guard lock(all.mutex);
  runLocked(all);
}

}  // namespace Corvex::Webhook::Cleanup
