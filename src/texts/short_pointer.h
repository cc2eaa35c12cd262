#ifndef KX_TEXTS_SHORT_POINTER_H
#define KX_TEXTS_SHORT_POINTER_H

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace kx {

// Pointers to texts as tables keep them, in six bytes. The addresses of a process have no more than
// 47 bits on the systems that this is for, unless it asks for larger ones.

inline constexpr std::size_t kShortPointerBytes = 6;
inline constexpr int kUnusedPointerBits = 16;
static_assert(sizeof(const char*) == 8 && std::endian::native == std::endian::little);

/// Whether six bytes hold this pointer.
inline bool IsShortPointer(const char* pointer) noexcept {
  return reinterpret_cast<std::uintptr_t>(pointer) >> (64 - kUnusedPointerBits) == 0;
}

/// @param pointer  that six bytes hold
inline void StoreShortPointer(char* place, const char* pointer) noexcept {
  std::memcpy(place, &pointer, kShortPointerBytes);
}

/// The pointer that begins at `place`. Reads the two bytes behind it, too: one load is all it
/// takes.
inline const char* LoadShortPointerAt(const char* place) noexcept {
  std::uint64_t bits;
  std::memcpy(&bits, place, sizeof bits);
  return std::bit_cast<const char*>(bits << kUnusedPointerBits >> kUnusedPointerBits);
}

/// The pointer that ends before `end`. Reads the two bytes before it, too.
inline const char* LoadShortPointerBefore(const char* end) noexcept {
  std::uint64_t bits;
  std::memcpy(&bits, end - sizeof bits, sizeof bits);
  return std::bit_cast<const char*>(bits >> kUnusedPointerBits);
}

}  // namespace kx

#endif  // KX_TEXTS_SHORT_POINTER_H
