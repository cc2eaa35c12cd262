#ifndef KX_PLATFORM_CRITICAL_SECTION_H
#define KX_PLATFORM_CRITICAL_SECTION_H

#include "platform/native_mutex.h"
#include "platform/thread_annotations.h"

namespace kx {

/// A lock that clang's thread-safety analysis understands. Not recursive. Needs no construction at
/// run time, so a process-wide one is usable before any initialiser has run.
class KX_CAPABILITY("mutex") CriticalSection {
 public:
  CriticalSection() = default;
  CriticalSection(const CriticalSection&) = delete;
  CriticalSection& operator=(const CriticalSection&) = delete;

  void Enter() KX_ACQUIRE() { mutex_.lock(); }
  void Leave() KX_RELEASE() { mutex_.unlock(); }

 private:
  NativeMutex mutex_;
};

/// Holds a lock for as long as it lives, also when an exception ends the scope.
class KX_SCOPED_CAPABILITY CriticalSectionGuard {
 public:
  explicit CriticalSectionGuard(CriticalSection& lock) KX_ACQUIRE(lock) : lock_(lock) {
    lock_.Enter();
  }
  ~CriticalSectionGuard() KX_RELEASE() { lock_.Leave(); }
  CriticalSectionGuard(const CriticalSectionGuard&) = delete;
  CriticalSectionGuard& operator=(const CriticalSectionGuard&) = delete;

 private:
  CriticalSection& lock_;
};

}  // namespace kx

#endif  // KX_PLATFORM_CRITICAL_SECTION_H
