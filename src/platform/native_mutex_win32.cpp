#include <windows.h>

#include "platform/native_mutex.h"

namespace kx {

static_assert(sizeof(SRWLOCK) == sizeof(void*), "the state is the system's lock");

void NativeMutex::lock() noexcept {
  ::AcquireSRWLockExclusive(reinterpret_cast<SRWLOCK*>(&state_));
}

void NativeMutex::unlock() noexcept {
  ::ReleaseSRWLockExclusive(reinterpret_cast<SRWLOCK*>(&state_));
}

}  // namespace kx
