#include "texts/line_reader.h"

#include <algorithm>
#include <cstring>
#include <exception>
#include <new>
#include <utility>

namespace kx {
namespace {

// Four times as large, it was as fast, and what its memory left stayed with the process.
constexpr std::size_t kBlockBytes = std::size_t{16} * 1024;

}  // namespace

LineReader::Line LineReader::Next() {
  for (;;) {
    const char* const text = block_.get() + begin_;
    const std::size_t size = end_ - begin_;
    if (searched_ < size) {
      const void* const feed = std::memchr(text + searched_, '\n', size - searched_);
      if (feed != nullptr) {
        const auto length = static_cast<std::size_t>(static_cast<const char*>(feed) - text);
        return Take(length, Kind::kLine);
      }
      searched_ = size;
    }
    if (size > mostBytes_) return Take(size, Kind::kTooLong);
    if (isAtEnd_) return Take(size, Kind::kLast);
    ReadMore();
  }
}

LineReader::Line LineReader::Take(std::size_t size, Kind kind) {
  const std::string_view text(block_.get() + begin_, size);
  if (size > mostBytes_) return {text.substr(0, mostBytes_), Kind::kTooLong};
  const std::size_t taken = size + (kind == Kind::kLine ? 1 : 0);
  begin_ += taken;
  taken_ += taken;
  searched_ = 0;
  return {text, kind};
}

void LineReader::ReadMore() {
  const std::size_t kept = end_ - begin_;
  if (kept == room_) {  // a line that fills the block, or no block yet
    const std::size_t room = room_ == 0 ? kBlockBytes : room_ * 2;
    auto block = std::make_unique_for_overwrite<char[]>(room);
    if (kept > 0) std::memcpy(block.get(), block_.get() + begin_, kept);
    block_ = std::move(block);
    room_ = room;
  } else if (kept > 0) {
    std::memmove(block_.get(), block_.get() + begin_, kept);
  }
  begin_ = 0;
  end_ = kept;
  // What the source has at hand first: asked for more it may throw, and with that be lost.
  const auto room = static_cast<std::streamsize>(room_ - kept);
  const std::streamsize ready = source_.in_avail();
  const std::streamsize asked = ready > 0 ? std::min(ready, room) : room;
  const std::streamsize count = Read(block_.get() + kept, asked);
  hasNul_ = hasNul_ || std::memchr(block_.get() + kept, '\0', static_cast<std::size_t>(count));
  end_ += static_cast<std::size_t>(count);
  isAtEnd_ = count < asked;
}

std::streamsize LineReader::Read(char* bytes, std::streamsize size) {
  try {
    return source_.sgetn(bytes, size);
  } catch (const std::bad_alloc&) {
    throw;  // or a catalogue would be cut short without a word
  } catch (const std::exception&) {
    return 0;
  }
}

}  // namespace kx
