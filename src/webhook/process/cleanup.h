#pragma once

#include <sys/types.h>

#include <atomic>
#include <functional>
#include <string>

/// What must not outlive this program: process groups and temporary directories. Each is noted here the moment it comes
/// into being, and everything that is still noted is ended and removed when the program ends: at exit(), and on SIGHUP,
/// SIGINT and SIGTERM even while the main thread is stuck. Callable from any thread.
namespace Corvex::Webhook::Cleanup {

/// Call first in main(), before any thread exists. From then on the three signals are taken by a thread of their own,
/// which cleans up and ends the program with exit code 128 + signal. A reader that goes away makes writing fail, and
/// ends nothing.
void install();

/// Has the next of the signals only set this flag, so that the program can end in order; the one after it ends the
/// program as ever. Null has each signal end it.
void setStopFlag(std::atomic<bool>* flag);

/// A process group that must not outlive the program.
struct NotedGroup {
  /// An entry of the environment ("NAME=value") of every process to end, those that left the group included.
  std::string mark;
  /// Its leader cleans up on SIGTERM, and gets a moment for that.
  bool cleansUp = false;
};

/// Runs `start`, which forks a process that leads its own group, and notes the group that it returns (none if below 1).
/// No signal is served between the two.
pid_t noteProcessGroup(const NotedGroup& group, const std::function<pid_t()>& start);

/// Kills and reaps the group and what carries its mark, and forgets it.
void endProcessGroup(pid_t group);

/// Makes a claimed directory from a path that ends in "XXXXXX". Gives the path, or "" (errno says why).
std::string makeDirectory(const std::string& pathTemplate);

/// Removes the directory with all that it holds, and forgets it.
void removeDirectory(const std::string& path);

/// What is written to the standard output when a signal ends the program, so that a terminal is left in order; null for
/// nothing. The text is not copied.
void setFarewell(const char* text);

/// Ends and removes everything that is noted.
void run();

}  // namespace Corvex::Webhook::Cleanup
