#ifndef KX_TESTS_SUPPORT_GUARDED_BUFFER_H
#define KX_TESTS_SUPPORT_GUARDED_BUFFER_H

#include <string>

#include "CKxXlate.h"

/// A caller's buffer of `size` bytes with bytes in front of and behind it, all of one value, so
/// that a test sees exactly which were written.
class GuardedBuffer {
 public:
  static constexpr char kUntouched = '\x5A';

  explicit GuardedBuffer(KxSize size)
      : size_(size), bytes_(kGuardBytes + size + kGuardBytes, kUntouched) {}

  char* Data() { return bytes_.data() + kGuardBytes; }
  KxSize Size() const { return size_; }

  /// The text in the buffer; "(no NUL)" when it does not end within the buffer and the one byte
  /// behind it that positional insertion may use.
  std::string Text() const {
    const std::string inside = bytes_.substr(kGuardBytes, size_ + 1);
    const std::size_t end = inside.find('\0');
    return end == std::string::npos ? "(no NUL)" : inside.substr(0, end);
  }

  /// Number of bytes from the buffer's start to the last one that differs from kUntouched.
  std::size_t BytesWritten() const {
    const std::size_t last = bytes_.find_last_not_of(kUntouched);
    return last == std::string::npos || last < kGuardBytes ? 0 : last - kGuardBytes + 1;
  }

  bool IsFrontUntouched() const { return bytes_.find_first_not_of(kUntouched) >= kGuardBytes; }

 private:
  static constexpr std::size_t kGuardBytes = 16;
  KxSize size_;
  std::string bytes_;
};

#endif  // KX_TESTS_SUPPORT_GUARDED_BUFFER_H
