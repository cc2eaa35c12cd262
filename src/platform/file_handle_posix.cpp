#include "platform/file_handle.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace kx {
namespace {

// Opening a pipe that nobody writes to would wait, and hold whatever lock its caller holds.
constexpr int kNeverWait = O_NONBLOCK | O_NOCTTY | O_CLOEXEC;

int Descriptor(FileHandle file) { return static_cast<int>(file); }

mode_t KindOf(int descriptor) {
  struct stat found;
  return ::fstat(descriptor, &found) == 0 ? found.st_mode & S_IFMT : 0;
}

}  // namespace

FileHandle OpenRegularFile(const char* path) {
  // Opening alone has effects on what is no file: it lets a pipe's writer go on, it winds a tape.
  struct stat found;
  if (::stat(path, &found) != 0 || !S_ISREG(found.st_mode)) return kNoFile;
  const int descriptor = ::open(path, O_RDONLY | kNeverWait);
  if (descriptor < 0) return kNoFile;
  // Asked of the open file, not of the path, which may name another file by now.
  if (KindOf(descriptor) == S_IFREG) return descriptor;
  ::close(descriptor);
  return kNoFile;
}

FileHandle OpenForAppending(const char* path) {
  const int descriptor = ::open(path, O_WRONLY | O_APPEND | O_CREAT | kNeverWait, 0666);
  // A pipe's reader may go away, and the next write would then end the process.
  if (descriptor < 0 || KindOf(descriptor) != S_IFIFO) return descriptor;
  ::close(descriptor);
  return kNoFile;
}

std::size_t ReadFileBlock(FileHandle file, char* block, std::size_t size) {
  ssize_t count;
  do {
    count = ::read(Descriptor(file), block, size);
  } while (count < 0 && errno == EINTR);
  return count < 0 ? 0 : static_cast<std::size_t>(count);
}

std::size_t WriteFileBlock(FileHandle file, const char* block, std::size_t size) {
  std::size_t written = 0;
  while (written < size) {
    const ssize_t count = ::write(Descriptor(file), block + written, size - written);
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) break;
    written += static_cast<std::size_t>(count);
  }
  return written;
}

void CloseFile(FileHandle file) { ::close(Descriptor(file)); }

}  // namespace kx
