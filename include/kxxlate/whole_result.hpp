#ifndef KX_KXXLATE_WHOLE_RESULT_HPP
#define KX_KXXLATE_WHOLE_RESULT_HPP

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <limits>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include "../CKxXlate.h"

namespace kx::detail {

/// A result of the library that is never cut.
///
/// The library tells nobody how long a result is, and cuts it to `size` - 1 bytes. One of exactly
/// that length may therefore have been cut, and is asked for again with more room; all others are
/// whole, nearly all at the first call. Positional insertion copies a result of `size` bytes
/// whole, with its NUL behind them: each buffer here has a byte more than it says.
class WholeResult {
 public:
  // In brackets, here and elsewhere, since the header of Windows makes macros of min and max.
  static constexpr std::size_t kAll = (std::numeric_limits<std::size_t>::max)();

  /// @param run   called with a buffer and its size, until the result fits
  /// @param most  of a result with more bytes at least that many, and one, are enough
  template <class Run>
  explicit WholeResult(const Run& run, std::size_t most = kAll) {
    run(near_, static_cast<KxSize>(kNearBytes));
    size_ = std::strlen(near_);
    if (size_ == kNearBytes - 1 && size_ <= most) Grow(run, most);
  }

  /// A result that is whole already.
  explicit WholeResult(std::string&& text) noexcept
      : far_(std::move(text)), size_(far_.size()), isFar_(true) {
    near_[0] = '\0';
  }

  WholeResult(const WholeResult&) = delete;
  WholeResult& operator=(const WholeResult&) = delete;

  std::string_view View() const noexcept { return {isFar_ ? far_.data() : near_, size_}; }

  /// To be called once, last.
  std::string Take() { return isFar_ ? std::move(far_) : std::string(near_, size_); }

 private:
  static constexpr std::size_t kNearBytes = 512;
  static constexpr std::size_t kMostBytes = (std::numeric_limits<KxSize>::max)();

  template <class Run>
  void Grow(const Run& run, std::size_t most) {
    isFar_ = true;
    std::size_t room = kNearBytes;
    do {
      if (room == kMostBytes) throw std::length_error("kx: a text of more than 4 GiB");
      room = (std::min)(room * 8, kMostBytes);
      far_.resize(room);  // the string has one byte more, its terminator's
      run(far_.data(), static_cast<KxSize>(room));
      size_ = std::strlen(far_.data());
    } while (size_ == room - 1 && size_ <= most);
    far_.resize(size_);
  }

  char near_[kNearBytes + 1];
  std::string far_;
  std::size_t size_ = 0;
  bool isFar_ = false;
};

}  // namespace kx::detail

#endif  // KX_KXXLATE_WHOLE_RESULT_HPP
