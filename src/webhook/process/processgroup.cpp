#include "webhook/process/processgroup.h"

#include <dirent.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string_view>
#include <thread>
#include <vector>

namespace Corvex::Webhook {

namespace {

using Clock = std::chrono::steady_clock;

bool carriesMark(const std::string& process, const std::string& mark) {
  std::ifstream file("/proc/" + process + "/environ", std::ios::binary);
  const std::string environment((std::istreambuf_iterator<char>(file)), {});
  return (std::string_view(environment).substr(0, mark.size() + 1) ==
          std::string_view(mark.c_str(), mark.size() + 1)) ||
         environment.find('\0' + mark + '\0') != std::string::npos;
}

std::vector<pid_t> processesWithMark(const std::string& mark) {
  std::vector<pid_t> found;
  DIR* directory = opendir("/proc");
  if (!directory) {
    return found;
  }
  while (const dirent* entry = readdir(directory)) {
    const pid_t process = std::atoi(entry->d_name);
    if (process > 0 && process != getpid() && carriesMark(entry->d_name, mark)) {
      found.push_back(process);
    }
  }
  closedir(directory);
  return found;
}

// The waits of this file serve no events: they also run where a program ends, with no event loop left.
Clock::time_point patience() { return Clock::now() + std::chrono::seconds(3); }

void waitUntilGone(pid_t process, Clock::time_point end) {
  const auto isGone = [process] {
    waitpid(process, nullptr, WNOHANG);
    return kill(process, 0) != 0 && errno == ESRCH;
  };
  while (!isGone() && Clock::now() < end) {
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
}

}  // namespace

void adoptOrphans() { prctl(PR_SET_CHILD_SUBREAPER, 1); }

void askToEnd(const std::vector<pid_t>& processes) {
  const Clock::time_point end = patience();
  for (pid_t process : processes) {
    kill(process, SIGTERM);
  }
  for (pid_t process : processes) {
    waitUntilGone(process, end);
  }
}

void killProcessGroup(pid_t group, const std::string& mark) {
  const Clock::time_point end = patience();
  const std::vector<pid_t> strays = processesWithMark(mark);
  kill(-group, SIGKILL);
  for (pid_t process : strays) {
    kill(process, SIGKILL);
  }
  waitUntilGone(-group, end);
  for (pid_t process : strays) {
    waitUntilGone(process, end);
  }
  for (pid_t process : processesWithMark(mark)) {
    kill(process, SIGKILL);
    waitUntilGone(process, end);
  }
}

void killMarkedProcesses(const std::string& mark) {
  const Clock::time_point end = patience();
  std::vector<pid_t> marked = processesWithMark(mark);
  while (!marked.empty() && Clock::now() < end) {
    for (pid_t process : marked) {
      kill(process, SIGKILL);
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
    marked = processesWithMark(mark);
  }
}

}  // namespace Corvex::Webhook
