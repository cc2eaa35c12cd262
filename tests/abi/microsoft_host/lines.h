#ifndef KX_TESTS_ABI_LINES_H
#define KX_TESTS_ABI_LINES_H

#include <CKxXlate.h>

#include <cstdio>
#include <cstring>

inline void Line(const char* name, const char* text) {
  std::fputs(name, stdout);
  std::fputs(text == nullptr ? " is null" : ": ", stdout);
  std::fputs(text == nullptr ? "" : text, stdout);
  std::fputs("\n", stdout);
}

inline void Number(const char* name, std::uint64_t number) {
  char digits[24];
  char* at = digits + sizeof digits;
  *--at = '\0';
  do {
    *--at = static_cast<char>('0' + number % 10);
    number /= 10;
  } while (number != 0);
  Line(name, at);
}

/// A buffer that shows when a byte behind it was written.
class GuardedBuffer {
 public:
  GuardedBuffer() { std::memset(bytes_, '#', sizeof bytes_); }

  char* Data() { return bytes_; }
  static constexpr KxSize Size() { return kSize; }

  void Line(const char* name, bool found = true) {
    ::Line(name, bytes_);
    if (!found) std::fputs("  not found\n", stdout);
    for (KxSize i = kSize; i < sizeof bytes_; ++i) {
      if (bytes_[i] != '#') std::fputs("  wrote behind the buffer\n", stdout);
    }
  }

 private:
  static constexpr KxSize kSize = 80;
  char bytes_[kSize + 16];
};

#endif  // KX_TESTS_ABI_LINES_H
