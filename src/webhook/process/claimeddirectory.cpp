#include "webhook/process/claimeddirectory.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>
#include <string_view>
#include <vector>

#include "webhook/process/processgroup.h"

namespace Corvex::Webhook {

namespace {

/// Tells a directory of this program from one that only has such a name.
const char* const signName = "owned-by-corvexweb";
constexpr std::string_view placeholder = "XXXXXX";

FileDescriptor openDirectory(const std::string& path) {
  return FileDescriptor(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
}

/// The system drops the lock with the descriptor, so also when its program is killed.
bool lock(const FileDescriptor& directory) {
  return directory.isValid() && ::flock(directory.get(), LOCK_EX | LOCK_NB) == 0;
}

bool isStillAt(const std::string& path, const FileDescriptor& directory) {
  struct stat opened = {};
  struct stat there = {};
  return ::fstat(directory.get(), &opened) == 0 && ::lstat(path.c_str(), &there) == 0 &&
         opened.st_dev == there.st_dev && opened.st_ino == there.st_ino;
}

bool putSign(const FileDescriptor& directory) {
  return FileDescriptor(::openat(directory.get(), signName, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600)).isValid();
}

bool isOwn(const struct stat& file) { return file.st_uid == ::geteuid() && (file.st_mode & 077) == 0; }

bool isSigned(const FileDescriptor& directory) {
  struct stat file = {};
  return ::fstat(directory.get(), &file) == 0 && isOwn(file) &&
         ::fstatat(directory.get(), signName, &file, AT_SYMLINK_NOFOLLOW) == 0 && isOwn(file) && S_ISREG(file.st_mode);
}

bool isMadeFrom(const std::string& name, const std::string& nameTemplate) {
  const std::size_t length = nameTemplate.size() - placeholder.size();
  return name.size() == nameTemplate.size() && name.compare(0, length, nameTemplate, 0, length) == 0;
}

std::vector<std::string> directoriesMadeFrom(const std::string& pathTemplate) {
  const std::filesystem::path pattern(pathTemplate);
  std::vector<std::string> found;
  std::error_code error;
  for (std::filesystem::directory_iterator entry(pattern.parent_path(), error), end; !error && entry != end;
       entry.increment(error)) {
    if (isMadeFrom(entry->path().filename(), pattern.filename())) {
      found.push_back(entry->path());
    }
  }
  return found;
}

}  // namespace

ClaimedDirectory makeClaimedDirectory(const std::string& pathTemplate) {
  std::string path = pathTemplate;
  if (!::mkdtemp(path.data())) {
    return {};
  }
  FileDescriptor directory = openDirectory(path);
  // Only with its sign is it looked at by others, and then the claim holds already.
  if (!lock(directory) || !putSign(directory)) {
    ::rmdir(path.c_str());
    return {};
  }
  return {path, std::move(directory)};
}

void removeAbandonedDirectories(const std::string& pathTemplate, const std::string& markName) {
  for (const std::string& path : directoriesMadeFrom(pathTemplate)) {
    const FileDescriptor directory = openDirectory(path);
    if (isSigned(directory) && lock(directory) && isStillAt(path, directory)) {
      killMarkedProcesses(markName + "=" + path);
      removeTree(path);
    }
  }
}

void removeTree(const std::string& path) {
  // The sign goes last, so that a removal that is broken off can be made up for.
  std::error_code error;
  for (std::filesystem::directory_iterator entry(path, error), end; !error && entry != end; entry.increment(error)) {
    if (entry->path().filename() != signName) {
      std::error_code ignored;
      std::filesystem::remove_all(entry->path(), ignored);
    }
  }
  for (int attempt = 0; attempt < 3; ++attempt) {
    std::filesystem::remove_all(path, error);
    if (!error) {
      return;
    }
  }
}

}  // namespace Corvex::Webhook
