#include "support/failing_new.h"

#include <cstdlib>

namespace {

constexpr int kNever = -1;
thread_local int allowedAllocations = kNever;

}  // namespace

FailingNew::FailingNew(int allowed) { allowedAllocations = allowed; }
FailingNew::~FailingNew() { allowedAllocations = kNever; }

void* operator new(std::size_t size) {
  if (allowedAllocations == 0) {
    allowedAllocations = kNever;
    throw std::bad_alloc();
  }
  if (allowedAllocations > 0) --allowedAllocations;
  if (void* block = std::malloc(size == 0 ? 1 : size)) return block;
  throw std::bad_alloc();
}

// A sanitizer's own would not come here.
void* operator new[](std::size_t size) { return operator new(size); }

void operator delete(void* block) noexcept { std::free(block); }

void operator delete(void* block, std::size_t) noexcept { std::free(block); }

void operator delete[](void* block) noexcept { std::free(block); }

void operator delete[](void* block, std::size_t) noexcept { std::free(block); }
