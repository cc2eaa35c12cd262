#include "core/live_bytes.h"

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

// The size of a block stands before it, and keeps its place aligned.
constexpr std::size_t kHead = alignof(std::max_align_t);

std::atomic<long> g_live = 0;
std::atomic<long> g_peak = 0;

}  // namespace

void* operator new(std::size_t size) {
  void* const block = std::malloc(kHead + size);
  if (block == nullptr) throw std::bad_alloc();
  *static_cast<std::size_t*>(block) = kHead + size;
  g_live += static_cast<long>(kHead + size);
  g_peak = std::max<long>(g_peak, g_live);
  return static_cast<char*>(block) + kHead;
}

void operator delete(void* memory) noexcept {
  if (memory == nullptr) return;
  void* const block = static_cast<char*>(memory) - kHead;
  g_live -= static_cast<long>(*static_cast<std::size_t*>(block));
  std::free(block);
}

void operator delete(void* memory, std::size_t) noexcept { operator delete(memory); }

long LiveBytes() { return g_live; }

long PeakOfLiveBytes() { return g_peak.exchange(g_live); }
