#include "core/counted_new.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdlib>

namespace {

constexpr std::size_t kMaxWatched = 8;

std::atomic<long> g_live = 0;
thread_local long g_untilFailure = 0;  // 1: the next one fails

// Arrays, because to free a block must not allocate.
std::array<void*, kMaxWatched> g_watched = {};
std::array<void*, kMaxWatched> g_freed = {};
std::size_t g_freedCount = 0;

void* Allocate(std::size_t size) noexcept {
  if (g_untilFailure > 0 && --g_untilFailure == 0) return nullptr;
  void* const block = std::malloc(size == 0 ? 1 : size);
  if (block != nullptr) ++g_live;
  return block;
}

void* AllocateOrThrow(std::size_t size) {
  void* const block = Allocate(size);
  if (block == nullptr) throw std::bad_alloc();
  return block;
}

void Free(void* block) noexcept {
  if (block == nullptr) return;
  --g_live;
  void** const watched = std::find(g_watched.begin(), g_watched.end(), block);
  if (watched != g_watched.end()) {
    *watched = nullptr;
    g_freed[g_freedCount++] = block;
  }
  std::free(block);
}

}  // namespace

void* operator new(std::size_t size) { return AllocateOrThrow(size); }
void* operator new[](std::size_t size) { return AllocateOrThrow(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return Allocate(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return Allocate(size); }
void operator delete(void* block) noexcept { Free(block); }
void operator delete[](void* block) noexcept { Free(block); }
void operator delete(void* block, std::size_t) noexcept { Free(block); }
void operator delete[](void* block, std::size_t) noexcept { Free(block); }
void operator delete(void* block, const std::nothrow_t&) noexcept { Free(block); }
void operator delete[](void* block, const std::nothrow_t&) noexcept { Free(block); }

long LiveBlocks() { return g_live; }

void FailAllocation(long number) { g_untilFailure = number; }

long AllocationsUntilFailure() { return g_untilFailure; }

void WatchBlocks(const std::vector<void*>& blocks) {
  std::copy_n(blocks.begin(), std::min(blocks.size(), kMaxWatched), g_watched.begin());
  g_freedCount = 0;
}

std::vector<void*> FreedBlocks() {
  g_watched.fill(nullptr);
  return std::vector<void*>(g_freed.begin(),
                            g_freed.begin() + static_cast<std::ptrdiff_t>(g_freedCount));
}
