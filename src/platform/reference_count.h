#ifndef KX_PLATFORM_REFERENCE_COUNT_H
#define KX_PLATFORM_REFERENCE_COUNT_H

#include <atomic>
#include <cstdint>

namespace kx {

/// Counts the holders of an object that destroys itself. Any thread.
///
/// An atomic rather than a locked number: the object dies inside Drop's caller, and there is no
/// lock that would have to be left first.
class ReferenceCount {
 public:
  explicit ReferenceCount(std::int64_t start) noexcept : count_(start) {}

  void Add() noexcept { count_.fetch_add(1, std::memory_order_relaxed); }

  /// True when the caller must destroy the object: nobody holds it any more, or nobody ever did.
  [[nodiscard]] bool Drop() noexcept {
    // What other holders did with the object happens before its destruction.
    return count_.fetch_sub(1, std::memory_order_acq_rel) <= 1;
  }

 private:
  // Wide, since a host may take a reference with every message for years and give none back.
  std::atomic<std::int64_t> count_;
};

}  // namespace kx

#endif  // KX_PLATFORM_REFERENCE_COUNT_H
