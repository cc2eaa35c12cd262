#include "platform/file_handle.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <ctime>

#include "platform/file_status_posix.h"

namespace kx {
namespace {

// Opening a pipe that nobody writes to would wait, and hold whatever lock its caller holds.
constexpr int kNeverWait = O_NONBLOCK | O_NOCTTY | O_CLOEXEC;

int Descriptor(FileHandle file) { return static_cast<int>(file); }

constexpr int kFirstOfOurs = STDERR_FILENO + 1;

constexpr long kPauseNanoseconds = 5'000'000;
constexpr int kMostPauses = 20;

/// Whether what failed for the reason `error` may succeed a moment later.
bool IsPassing(int error) {
  return error == EAGAIN || error == EMFILE || error == ENFILE || error == ENOMEM;
}

void Pause() {
  const timespec pause = {0, kPauseNanoseconds};
  ::nanosleep(&pause, nullptr);
}

/// Moves a descriptor to a number that is no standard stream's.
int MoveFromStandardStreams(int descriptor) {
  if (descriptor < 0 || descriptor >= kFirstOfOurs) return descriptor;
  const int moved = ::fcntl(descriptor, F_DUPFD_CLOEXEC, kFirstOfOurs);
  ::close(descriptor);
  // The system has other words for it when the limit allows only the standard streams.
  if (moved < 0) errno = EMFILE;
  return moved;
}

/// -1 and a reason in `errno` when `path` cannot be opened.
int Open(const char* path, int flags) {
  constexpr mode_t kReadAndWriteForAll = 0666;  // less the process's mask
  for (int pauses = 0;;) {
    const int descriptor = ::open(path, flags | kNeverWait, kReadAndWriteForAll);
    if (descriptor < 0 && errno == EINTR) continue;
    // Another program has a lease on the file, and the system has told it by now.
    const bool isHeld = descriptor < 0 && errno == EAGAIN;
    if (!isHeld || pauses++ == kMostPauses) return MoveFromStandardStreams(descriptor);
    Pause();
  }
}

mode_t KindOf(int descriptor) {
  struct stat found;
  return ::fstat(descriptor, &found) == 0 ? found.st_mode & S_IFMT : 0;
}

}  // namespace

OpenedFile OpenRegularFile(const char* path, KxFileStatus* status) {
  // Opening alone has effects on what is no file: it lets a pipe's writer go on, it winds a tape.
  struct stat found;
  if (::stat(path, &found) != 0) return {kNoFile, IsPassing(errno)};
  if (status != nullptr) SetStatus(found, *status);
  if (!S_ISREG(found.st_mode)) return {};
  const int descriptor = Open(path, O_RDONLY);
  if (descriptor < 0) return {kNoFile, IsPassing(errno)};
  // Asked of the open file, not of the path, which may name another file by now.
  if (KindOf(descriptor) == S_IFREG) return {descriptor, false};
  ::close(descriptor);
  return {};
}

OpenedFile OpenForAppending(const char* path) {
  const int descriptor = Open(path, O_WRONLY | O_APPEND | O_CREAT);
  if (descriptor < 0) return {kNoFile, IsPassing(errno)};
  // A pipe's reader may go away, and the next write would then end the process.
  if (KindOf(descriptor) != S_IFIFO) return {descriptor, false};
  ::close(descriptor);
  return {};
}

FileBlock ReadFileBlock(FileHandle file, char* block, std::size_t size) {
  ssize_t count;
  do {
    count = ::read(Descriptor(file), block, size);
  } while (count < 0 && errno == EINTR);
  return count < 0 ? FileBlock{0, true} : FileBlock{static_cast<std::size_t>(count), false};
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
