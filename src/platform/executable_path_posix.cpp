#include "platform/executable_path.h"

#include <unistd.h>

#include <cstddef>
#include <utility>

namespace {

constexpr char kSelf[] = "/proc/self/exe";
constexpr std::size_t kFirstBytes = 256;
constexpr std::size_t kMostBytes = std::size_t{1024} * 1024;

}  // namespace

CKxExecutablePath::CKxExecutablePath() {
  // The call cuts a path that is too long without saying so: one that fills its room may be cut.
  for (std::size_t room = kFirstBytes; room <= kMostBytes; room *= 2) {
    std::string path(room, '\0');
    const ssize_t length = ::readlink(kSelf, path.data(), path.size());
    if (length < 0) return;
    if (static_cast<std::size_t>(length) == room) continue;
    path.resize(static_cast<std::size_t>(length));
    path_ = std::move(path);
    return;
  }
}
