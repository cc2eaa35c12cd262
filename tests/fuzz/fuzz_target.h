#ifndef KX_TESTS_FUZZ_FUZZ_TARGET_H
#define KX_TESTS_FUZZ_FUZZ_TARGET_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>

/// What each fuzzer defines: takes one input apart. Called by the fuzzing engine or, in the
/// ordinary tests, by replay_main.cpp with the saved inputs.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

/// The input as a terminated text in a block of its exact size, so that a sanitizer sees the first
/// byte read behind it.
class ExactText {
 public:
  ExactText(const std::uint8_t* data, std::size_t size) : bytes_(new char[size + 1]) {
    if (size > 0) std::memcpy(bytes_.get(), data, size);
    bytes_[size] = '\0';
  }
  const char* Get() const { return bytes_.get(); }

 private:
  std::unique_ptr<char[]> bytes_;
};

/// Ends the process when a promise is broken, as a sanitizer does.
inline void Require(bool kept) {
  if (!kept) __builtin_trap();
}

#endif  // KX_TESTS_FUZZ_FUZZ_TARGET_H
