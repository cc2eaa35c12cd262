#include "format/wide_text.h"

#include <climits>
#include <cstddef>
#include <cwchar>

#include "format/field.h"

namespace kx {

void AppendWideText(ResultText& result, const Conversion& conversion, const wchar_t* text) {
  if (text == nullptr) text = L"";
  const std::size_t limit = LimitOf(conversion);
  const std::size_t start = result.Size();
  std::mbstate_t state{};
  for (; result.Size() - start < limit && *text != L'\0'; ++text) {
    char* const to = result.Reserve(MB_LEN_MAX);
    const std::size_t bytes = std::wcrtomb(to, *text, &state);
    if (bytes == static_cast<std::size_t>(-1)) {
      result.Cut(start);
      return;
    }
    if (result.Size() - start + bytes > limit) break;
    result.EndAt(to + bytes);
  }
  Pad(result, conversion, start);
}

void AppendWideCharacter(ResultText& result, const Conversion& conversion, wchar_t character) {
  const wchar_t text[] = {character, L'\0'};
  Conversion whole = conversion;
  whole.precision = Conversion::kNotGiven;
  AppendWideText(result, whole, text);
}

}  // namespace kx
