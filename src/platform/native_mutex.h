#ifndef KX_PLATFORM_NATIVE_MUTEX_H
#define KX_PLATFORM_NATIVE_MUTEX_H

// The system's own lock. On Windows the compiler's std::mutex would allocate at its first use, and
// throw when it cannot.
#if defined(_WIN32)

namespace kx {

class NativeMutex {
 public:
  void lock() noexcept;
  void unlock() noexcept;

 private:
  void* state_ = nullptr;  // all that the system needs, and null is its beginning
};

}  // namespace kx

#else

#include <mutex>

namespace kx {

using NativeMutex = std::mutex;

}  // namespace kx

#endif

#endif  // KX_PLATFORM_NATIVE_MUTEX_H
