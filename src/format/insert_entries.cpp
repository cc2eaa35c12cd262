#include <algorithm>
#include <array>
#include <iterator>
#include <string>

#include "CKxXlate.h"
#include "format/caller_buffer.h"
#include "format/positional_insertion.h"

namespace {

constexpr std::size_t kMaxLooseArguments = 13;

// The result is whole before the first byte is copied, so that the buffer may be the same memory as
// the text or an argument.
void InsertIntoBuffer(char* buffer, KxSize size, const char* format, std::size_t count,
                      const char* const* arguments) {
  if (buffer == nullptr || size == 0) return;
  kx::ResultText result;
  kx::InsertArguments(result, format, count, arguments);
  kx::CopyInsertion(buffer, size, result.View());
}

}  // namespace

void CKxXlate::Insert(char* buffer, KxSize size, const char* format, const char* a0, const char* a1,
                      const char* a2, const char* a3, const char* a4, const char* a5,
                      const char* a6, const char* a7, const char* a8, const char* a9,
                      const char* a10, const char* a11, const char* a12) {
  const char* const arguments[kMaxLooseArguments] = {a0, a1, a2, a3,  a4,  a5, a6,
                                                     a7, a8, a9, a10, a11, a12};
  const auto last = std::find_if(std::rbegin(arguments), std::rend(arguments),
                                 [](const char* argument) { return argument != nullptr; });
  const auto count = static_cast<std::size_t>(std::rend(arguments) - last);
  InsertIntoBuffer(buffer, size, format, count, arguments);
}

void CKxXlate::FormatMessageA(char* buffer, KxSize size, const char* format, std::size_t count,
                              const char** arguments) {
  InsertIntoBuffer(buffer, size, format, count, arguments);
}

void CKxXlate::FormatMessageA(char* buffer, KxSize size, const char* format, std::size_t count,
                              const std::string* arguments) {
  std::array<const char*, kMaxLooseArguments> texts{};
  const std::size_t used = arguments == nullptr ? 0 : std::min(count, texts.size());
  for (std::size_t index = 0; index < used; ++index) texts[index] = arguments[index].c_str();
  InsertIntoBuffer(buffer, size, format, used, texts.data());
}
