#include "programs/tracked_memory.h"

#include <malloc.h>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdint>

// The allocator's own functions under the names that stay when the usual ones are replaced.
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
void __libc_free(void* block);
}

namespace {

// The allocator's own word in front of each block.
const std::size_t kBlockHead = 8;

std::atomic<std::size_t> g_bytes{0};
std::atomic<std::size_t> g_peak{0};
std::atomic<std::size_t> g_allocations{0};

void Took(std::size_t bytes) {
  const std::size_t now = g_bytes += bytes;
  // Measured programs have one thread; a lost race would only miss a peak.
  if (now > g_peak) g_peak = now;
}

void* TookBlock(void* block) {
  if (block == nullptr) return nullptr;
  ++g_allocations;
  Took(malloc_usable_size(block) + kBlockHead);
  return block;
}

void GaveBlock(void* block) {
  if (block != nullptr) g_bytes -= malloc_usable_size(block) + kBlockHead;
}

}  // namespace

extern "C" {

void* malloc(std::size_t size) noexcept { return TookBlock(__libc_malloc(size)); }

void* calloc(std::size_t count, std::size_t size) noexcept {
  return TookBlock(__libc_calloc(count, size));
}

void* realloc(void* block, std::size_t size) noexcept {
  GaveBlock(block);
  return TookBlock(__libc_realloc(block, size));
}

void* memalign(std::size_t alignment, std::size_t size) noexcept {
  return TookBlock(__libc_memalign(alignment, size));
}

void* aligned_alloc(std::size_t alignment, std::size_t size) noexcept {
  return memalign(alignment, size);
}

int posix_memalign(void** block, std::size_t alignment, std::size_t size) noexcept {
  *block = memalign(alignment, size);
  return *block == nullptr ? ENOMEM : 0;
}

void free(void* block) noexcept {
  GaveBlock(block);
  __libc_free(block);
}

void* mmap(void* wanted, std::size_t length, int protection, int flags, int file,
           off_t offset) noexcept {
  const long mapped = syscall(SYS_mmap, wanted, length, protection, flags, file, offset);
  if (mapped != -1) Took(length);
  return reinterpret_cast<void*>(mapped);
}

int munmap(void* block, std::size_t length) noexcept {
  const long result = syscall(SYS_munmap, block, length);
  if (result == 0) g_bytes -= length;
  return static_cast<int>(result);
}

}  // extern "C"

namespace bench {

TrackedMemory Tracked() { return {g_bytes, g_peak, g_allocations}; }

void ForgetPeak() { g_peak = g_bytes.load(); }

}  // namespace bench
