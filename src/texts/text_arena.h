#ifndef KX_TEXTS_TEXT_ARENA_H
#define KX_TEXTS_TEXT_ARENA_H

#include <cstddef>
#include <cstring>
#include <string_view>

#include "texts/folded_key.h"

namespace kx {

/// Memory for texts that live together and are never freed one by one, in a few large pieces.
///
/// Behind each text kKeyPadding more bytes can be read. Texts never move. Not locked.
class TextArena {
 public:
  TextArena() = default;
  ~TextArena();
  TextArena(const TextArena&) = delete;
  TextArena& operator=(const TextArena&) = delete;

  /// Room for `size` bytes, on any address. Throws std::bad_alloc, with the arena as it was.
  char* Take(std::size_t size) {
    if (size > left_) AddChunk(size);
    char* const place = next_;
    next_ += size;
    left_ -= size;
    // What is read behind the text has a value.
    std::memset(next_, 0, kKeyPadding);
    return place;
  }

 private:
  struct Chunk {
    Chunk* before;
  };

  void AddChunk(std::size_t size);

  char* next_ = nullptr;
  std::size_t left_ = 0;
  Chunk* newest_ = nullptr;
  std::size_t total_ = 0;  ///< bytes of all chunks
};

/// Copies `text` and a NUL to `place`; answers the place behind.
char* PutText(char* place, std::string_view text) noexcept;

}  // namespace kx

#endif  // KX_TEXTS_TEXT_ARENA_H
