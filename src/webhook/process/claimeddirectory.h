#pragma once

#include <string>

#include "webhook/process/filedescriptor.h"

/// Directories that belong to a program as long as it runs, however it ends.
namespace Corvex::Webhook {

struct ClaimedDirectory {
  std::string path;      ///< "" when it could not be made; errno says why.
  FileDescriptor claim;  ///< Goes with the program at the latest.
};

/// Makes a directory for this user alone from a path that ends in "XXXXXX".
ClaimedDirectory makeClaimedDirectory(const std::string& pathTemplate);

/// Removes the directories that this user's programs made from the template and left when they were killed, and ends
/// the processes that have "markName=" and the directory's path in their environment. Any number of programs may do
/// that at the same time.
void removeAbandonedDirectories(const std::string& pathTemplate, const std::string& markName);

/// Removes a directory with all that it holds.
void removeTree(const std::string& path);

}  // namespace Corvex::Webhook
