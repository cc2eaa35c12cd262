#include "format/print_value.h"

#include <array>
#include <bit>
#include <climits>
#include <cstdint>
#include <cwchar>

#include "format/call_printf.h"
#include "format/print_fraction.h"

namespace kx {
namespace {

void AppendInteger(std::string& result, Conversion conversion, std::uint64_t word) {
  const int unused = 64 - conversion.Bits();
  const std::uint64_t top = word << unused;
  // "%#.0o" of 0 is "0", but nothing where printf forgets it.
  const bool isOctalForm = conversion.letter == 'o' && conversion.isOtherForm;
  if (isOctalForm && top == 0 && conversion.precision == 0) conversion.precision = 1;
  if (conversion.IsSigned()) {
    AppendPrinted(result, conversion, "ll", static_cast<long long>(top) >> unused);
  } else {
    AppendPrinted(result, conversion, "ll", static_cast<unsigned long long>(top >> unused));
  }
}

/// As %s of a text that ends at the precision at the latest.
void AppendText(std::string& result, Conversion conversion, const char* text) {
  conversion.letter = 's';
  // Without a precision, printf walks the whole of a text to count it, and refuses one of 2 GB.
  if (conversion.precision == Conversion::kNotGiven) {
    conversion.precision = static_cast<int>(kMaxPieceBytes);
  }
  AppendPrinted(result, conversion, "", text == nullptr ? "" : text);
}

/// As C says of %ls: in the encoding of the host's locale, cut at the precision, which counts
/// bytes, but within no character. Printf does it itself, but some count characters, and some end
/// at one that cannot be expressed. Here a text with such a character is nothing.
void AppendWideText(std::string& result, const Conversion& conversion, const wchar_t* text) {
  if (text == nullptr) text = L"";
  const std::size_t limit = conversion.precision == Conversion::kNotGiven
                                ? kMaxPieceBytes
                                : static_cast<std::size_t>(conversion.precision);
  std::array<char, kMaxPieceBytes + MB_LEN_MAX> narrow;
  std::size_t size = 0;
  std::mbstate_t state{};
  while (size < limit && *text != L'\0') {
    const std::size_t bytes = std::wcrtomb(&narrow[size], *text++, &state);
    if (bytes == static_cast<std::size_t>(-1)) return;
    if (size + bytes > limit) break;
    size += bytes;
  }
  narrow[size] = '\0';
  AppendText(result, conversion, narrow.data());
}

void AppendCharacter(std::string& result, const Conversion& conversion, std::uint64_t word) {
  const auto wide = static_cast<wchar_t>(word);
  if (!conversion.IsWide() || wide == L'\0') {
    AppendPrinted(result, conversion, "", static_cast<int>(word));
    return;
  }
  const wchar_t text[] = {wide, L'\0'};
  Conversion whole = conversion;
  whole.precision = Conversion::kNotGiven;
  AppendWideText(result, whole, text);
}

}  // namespace

void AppendValue(std::string& result, const Conversion& conversion, const ArgumentValue& value) {
  if (conversion.IsInteger()) {
    AppendInteger(result, conversion, value.Word());
  } else if (conversion.letter == 'c') {
    AppendCharacter(result, conversion, value.Word());
  } else if (conversion.letter == 's' && conversion.IsWide()) {
    AppendWideText(result, conversion, value.Text<wchar_t>());
  } else if (conversion.letter == 's') {
    AppendText(result, conversion, value.Text<char>());
  } else if (conversion.letter == 'p') {
    AppendPrinted(result, conversion, "", std::bit_cast<const void*>(value.Word()));
  } else if (value.IsLongDouble()) {
    AppendFraction(result, conversion, value.LongDouble());
  } else {
    AppendFraction(result, conversion, value.Double());
  }
}

}  // namespace kx
