#include <dirent.h>
#include <dlfcn.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "support/system_calls.h"

namespace {

/// The function that this program would call, were there none here.
template <class Function>
Function* Next(const char* name) {
  return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

bool IsInterrupted() {
  static bool wasInterrupted = false;
  wasInterrupted = !wasInterrupted && Calls().interruptions > 0;
  if (!wasInterrupted) return false;
  --Calls().interruptions;
  ++Calls().meddled;
  errno = EINTR;
  return true;
}

std::size_t Shortened(std::size_t size) {
  if (size > Calls().mostBytes) ++Calls().meddled;
  return std::min(size, Calls().mostBytes);
}

/// The result of a call, with what it leaves in errno.
ssize_t Left(ssize_t result) {
  if (result < 0 || Calls().staleErrors == 0) return result;
  ++Calls().meddled;
  errno = --Calls().staleErrors > 0 ? EINTR : 0;
  return result;
}

}  // namespace

SystemCalls& Calls() {
  static SystemCalls calls;
  return calls;
}

ssize_t read(int file, void* bytes, std::size_t size) {
  static auto* const next = Next<decltype(read)>("read");
  if (IsInterrupted()) return -1;
  return Left(next(file, bytes, Shortened(size)));
}

ssize_t write(int file, const void* bytes, std::size_t size) {
  static auto* const next = Next<decltype(write)>("write");
  if (IsInterrupted()) return -1;
  return Left(next(file, bytes, Shortened(size)));
}

dirent* readdir(DIR* directory) {
  static auto* const next = Next<decltype(readdir)>("readdir");
  if (Calls().namedEntries == 0) {
    ++Calls().meddled;
    errno = EIO;
    return nullptr;
  }
  dirent* const entry = next(directory);
  if (entry == nullptr) return nullptr;
  --Calls().namedEntries;
  if (Calls().hidesTypes) {
    ++Calls().meddled;
    entry->d_type = DT_UNKNOWN;
  }
  return entry;
}
