// The text of a positional insertion, with present, absent and empty arguments.

#include <string>

#include "CKxXlate.h"
#include "format/positional_insertion.h"
#include "fuzz/fuzz_target.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const ExactText text(data, size);
  const char* arguments[] = {"zero", nullptr, "", "th%3ee{0}", "four"};
  std::string result;
  kx::InsertArguments(result, text.Get(), std::size(arguments), arguments);
  // No marker is shorter than two bytes and no argument longer than nine.
  Require(result.size() <= 10 * size + 64);

  constexpr KxSize kSize = 16;
  const std::unique_ptr<char[]> buffer(new char[kSize + 1]);
  CKxXlate::FormatMessageA(buffer.get(), kSize, text.Get(), std::size(arguments), arguments);
  const std::size_t expected = result.size() <= kSize ? result.size() : kSize - 1;
  Require(result.compare(0, expected, buffer.get()) == 0);
  return 0;
}
