#include "texts/text_arena.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace kx {
namespace {

// A chunk is a share of what is there already: what stays unused of the last one is a few bytes for
// each text, in small catalogues and in large ones.
constexpr std::size_t kSmallestChunk = 1024;
constexpr std::size_t kLargestChunk = std::size_t{1} << 20;
constexpr std::size_t kShare = 32;

}  // namespace

TextArena::~TextArena() {
  while (newest_ != nullptr) {
    Chunk* const chunk = newest_;
    newest_ = chunk->before;
    ::operator delete(chunk);
  }
}

void TextArena::AddChunk(std::size_t size) {
  const std::size_t room =
      std::max(size, std::clamp(total_ / kShare, kSmallestChunk, kLargestChunk));
  void* const memory = ::operator new(sizeof(Chunk) + room + kKeyPadding);
  newest_ = new (memory) Chunk{newest_};
  next_ = static_cast<char*>(memory) + sizeof(Chunk);
  left_ = room;
  total_ += room;
}

char* PutText(char* place, std::string_view text) noexcept {
  if (!text.empty()) std::memcpy(place, text.data(), text.size());
  place[text.size()] = '\0';
  return place + text.size() + 1;
}

}  // namespace kx
