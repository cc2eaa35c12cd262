#include "format/print_text.h"

#include <cstddef>
#include <cstring>

#include "format/field.h"
#include "format/wide_text.h"

namespace kx {
namespace {

/// As %s of a text that ends at the precision at the latest.
void AppendText(ResultText& result, const Conversion& conversion, const char* text) {
  if (text == nullptr) text = "";
  const std::size_t limit = LimitOf(conversion);
  const void* const end = std::memchr(text, '\0', limit);
  const std::size_t size =
      end == nullptr ? limit : static_cast<std::size_t>(static_cast<const char*>(end) - text);
  const std::size_t start = result.Size();
  result.Append({text, size});
  Pad(result, conversion, start);
}

/// A NUL ends its value: no blank behind it is printed.
void AppendByte(ResultText& result, const Conversion& conversion, char byte) {
  const std::size_t start = result.Size();
  result.Append(byte);
  Pad(result, conversion, start);
  if (byte == '\0') result.Cut(conversion.isLeft ? start : result.Size() - 1);
}

}  // namespace

void AppendCharacter(ResultText& result, const Conversion& conversion, std::uint64_t word) {
  const auto wide = static_cast<wchar_t>(word);
  if (conversion.IsWide() && wide != L'\0') {
    AppendWideCharacter(result, conversion, wide);
  } else {
    AppendByte(result, conversion, static_cast<char>(word));
  }
}

void AppendString(ResultText& result, const Conversion& conversion, const ArgumentValue& value) {
  if (conversion.IsWide()) {
    AppendWideText(result, conversion, value.Text<wchar_t>());
  } else {
    AppendText(result, conversion, value.Text<char>());
  }
}

}  // namespace kx
