#include "platform/os/SingleInstance.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>

namespace fenvale {
namespace {

std::string lockFileOfUser() {
  if (const char* folder = std::getenv("XDG_RUNTIME_DIR"); folder != nullptr && *folder == '/')
    if (::access(folder, W_OK) == 0) return std::string(folder) + "/gestor-fenvale.lock";
  return "/tmp/gestor-fenvale-" + std::to_string(::getuid()) + ".lock";
}

}  // namespace

SingleInstance::SingleInstance() : SingleInstance(lockFileOfUser()) {}

SingleInstance::SingleInstance(const std::string& lockFile) {
  // In a folder that all may write to, nobody shall lead us to a file of somebody else's choice.
  descriptor_ = ::open(lockFile.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
  if (descriptor_ < 0) return;
  if (::flock(descriptor_, LOCK_EX | LOCK_NB) != 0) first_ = errno != EWOULDBLOCK;
}

SingleInstance::~SingleInstance() {
  if (descriptor_ >= 0) ::close(descriptor_);
}

}  // namespace fenvale
