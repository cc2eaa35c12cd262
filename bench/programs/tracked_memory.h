#ifndef KX_BENCH_TRACKED_MEMORY_H
#define KX_BENCH_TRACKED_MEMORY_H

#include <cstddef>

namespace bench {

/// What the whole process has asked the allocator and, past it, the system for. The program that
/// links this counts every block with what the allocator adds to it, so the numbers are the same
/// in every run.
struct TrackedMemory {
  std::size_t bytes;        ///< held now
  std::size_t peak;         ///< most since the last ForgetPeak
  std::size_t allocations;  ///< so far
};

TrackedMemory Tracked();

void ForgetPeak();

}  // namespace bench

#endif  // KX_BENCH_TRACKED_MEMORY_H
