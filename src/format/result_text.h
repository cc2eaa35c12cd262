#ifndef KX_FORMAT_RESULT_TEXT_H
#define KX_FORMAT_RESULT_TEXT_H

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <memory>
#include <string_view>

namespace kx {

/// The result of an insertion while it is put together: on the stack while it is short, on the heap
/// from there on. So messages of the usual length ask for no memory, and the caller's buffer, which
/// may hold the text and its values, is not touched before all of them have been read.
class ResultText {
 public:
  /// The longest result that stays on the stack.
  static constexpr std::size_t kBytesInPlace = 480;
  /// Bytes that may be written behind those that Reserve promised: a block need not be cut to fit.
  static constexpr std::size_t kSlack = 16;

  /// Leaves the bytes in place as they are: they are written before they are read.
  ResultText() noexcept : begin_(inPlace_), at_(begin_), end_(begin_ + kBytesInPlace) {}
  ResultText(const ResultText&) = delete;
  ResultText& operator=(const ResultText&) = delete;

  std::size_t Size() const noexcept { return static_cast<std::size_t>(at_ - begin_); }
  std::string_view View() const noexcept { return {begin_, Size()}; }

  /// The end of the text, with room for so many bytes and kSlack more. What is written there counts
  /// as soon as EndAt is told of it.
  char* Reserve(std::size_t size) {
    if (size > static_cast<std::size_t>(end_ - at_)) Grow(size);
    return at_;
  }
  void EndAt(char* end) noexcept { at_ = end; }

  /// The text must not lie in this one. Short ones are copied here: a call for each value took a
  /// twelfth of the time of a message.
  void Append(std::string_view text) {
    char* const to = Reserve(text.size());
    const char* const from = text.data();
    const std::size_t size = text.size();
    if (size > 16) {
      std::memcpy(to, from, size);
    } else if (size >= 8) {
      CopyEnds<8>(to, from, size);
    } else if (size >= 4) {
      CopyEnds<4>(to, from, size);
    } else if (size >= 2) {
      CopyEnds<2>(to, from, size);
    } else if (size == 1) {
      *to = *from;
    }
    at_ = to + size;
  }

  void Append(char byte) {
    *Reserve(1) = byte;
    ++at_;
  }

  void Append(std::size_t count, char byte) {
    std::memset(Reserve(count), byte, count);
    at_ += count;
  }

  /// Moves what stands at `place` and behind it to make room for so many bytes.
  void Insert(std::size_t place, std::size_t count, char byte) {
    Reserve(count);
    char* const from = begin_ + place;
    std::memmove(from + count, from, Size() - place);
    std::memset(from, byte, count);
    at_ += count;
  }

  /// Drops what stands behind the first `size` bytes, if anything.
  void Cut(std::size_t size) noexcept { at_ = begin_ + std::min(size, Size()); }

 private:
  /// Copies a text that is once or twice as long as kBytes, or between that.
  template <std::size_t kBytes>
  static void CopyEnds(char* to, const char* from, std::size_t size) {
    char first[kBytes];
    char last[kBytes];
    std::memcpy(first, from, kBytes);
    std::memcpy(last, from + size - kBytes, kBytes);
    std::memcpy(to, first, kBytes);
    std::memcpy(to + size - kBytes, last, kBytes);
  }

  void Grow(std::size_t size);

  char inPlace_[kBytesInPlace + kSlack];
  char* begin_;
  char* at_;
  char* end_;
  std::unique_ptr<char[]> onHeap_;
};

}  // namespace kx

#endif  // KX_FORMAT_RESULT_TEXT_H
