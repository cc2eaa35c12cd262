#include <algorithm>
#include <array>
#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <string>

#include "CKxXlate.h"
#include "format/caller_buffer.h"
#include "format/conversion.h"
#include "format/print_fraction.h"

// CKxXlate::InsertVariable. It shares nothing with InsertVariableVA but how a fraction is printed:
// the two have different rules.

namespace {

constexpr std::size_t kSlots = 9;
constexpr std::size_t kNumberBytes = 256;  // the room for one printed number, its NUL included

bool IsConversion(char c) { return c != '\0' && std::strchr("dfiosx", c) != nullptr; }

using Slots = std::array<std::string, kSlots>;

/// As "%f" has it on every system.
std::string FractionText(double value) {
  kx::Conversion conversion;
  conversion.letter = 'f';
  std::string text;
  kx::AppendFraction(text, conversion, value);
  text.resize(std::min(text.size(), kNumberBytes - 1));
  return text;
}

/// Takes the value of one conversion from the argument list, as text.
std::string TakeValue(char conversion, std::va_list& arguments) {
  char number[kNumberBytes];
  switch (conversion) {
    case 'o': std::snprintf(number, sizeof number, "%o", va_arg(arguments, unsigned)); break;
    case 'x': std::snprintf(number, sizeof number, "%x", va_arg(arguments, unsigned)); break;
    case 'f': return FractionText(va_arg(arguments, double));
    case 's': {
      const char* text = va_arg(arguments, const char*);
      return text == nullptr ? "" : text;
    }
    default: std::snprintf(number, sizeof number, "%d", va_arg(arguments, int)); break;
  }
  return number;
}

/// Fills the slots with the values in the order of the conversions in the text; the numbers behind
/// them play no part here. A conversion past the ninth takes no value.
void Collect(Slots& slots, const char* text, std::va_list& arguments) {
  std::size_t filled = 0;
  while ((text = std::strchr(text, '%')) != nullptr && *++text != '\0') {
    const char next = *text++;
    if (IsConversion(next) && filled < kSlots) slots[filled++] = TakeValue(next, arguments);
  }
}

/// Skips at most `count` bytes, and not past the end of the text.
const char* Skip(const char* text, std::size_t count) {
  while (count-- > 0 && *text != '\0') ++text;
  return text;
}

/// Takes what begins with a "%" at `text`, and answers where the text goes on. Only "%", a
/// conversion, ":" and a number from 1 to 9 give a value. All else vanishes, together with the byte
/// behind it, and is meant to: conversions are to be written with their number. Held by
/// InsertVariable.Yields/Lost*.
const char* TakeMarker(std::string& result, const char* text, const Slots& slots) {
  if (!IsConversion(text[1])) return Skip(text, 2);
  if (text[2] != ':') return Skip(text, 3);
  const char number = text[3];
  if (number >= '1' && number <= '9') result += slots[static_cast<std::size_t>(number - '1')];
  return Skip(text, 4);
}

/// Builds no more than the first `size` bytes or so: the rest is cut anyway.
std::string Build(const char* text, const Slots& slots, KxSize size) {
  std::string result;
  while (*text != '\0' && result.size() < size) {
    const std::size_t plain = std::strcspn(text, "%");
    result.append(text, plain);
    text += plain;
    if (*text != '\0') text = TakeMarker(result, text, slots);
  }
  return result;
}

}  // namespace

void CKxXlate::InsertVariable(char* buffer, KxSize size, const char* format, ...) {
  const char* text = format == nullptr ? "" : format;
  Slots slots;
  std::va_list arguments;
  va_start(arguments, format);
  try {
    Collect(slots, text, arguments);
  } catch (...) {
    va_end(arguments);
    throw;
  }
  va_end(arguments);
  kx::CopyVariableInsertion(buffer, size, Build(text, slots, size));
}
