#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace Corvex::Webhook {

/// Makes this process the parent of every descendant whose own parent ended, so that killProcessGroup() can reap it.
void adoptOrphans();

/// Has processes that clean up before they end do so, and reaps them. Returns when they are gone, after 3 s at the
/// latest.
void askToEnd(const std::vector<pid_t>& processes);

/// Kills all processes of `group` and all that carry `mark` ("NAME=value", exactly as set) in the environment that they
/// were started with, and reaps those that are this process's own. Returns when they are gone, after 3 s at the latest.
void killProcessGroup(pid_t group, const std::string& mark);

/// Kills the processes with that mark, whoever started them. Returns when they are gone, after 3 s at the latest.
void killMarkedProcesses(const std::string& mark);

}  // namespace Corvex::Webhook
