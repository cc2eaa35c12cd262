#include <bit>
#include <cstdarg>
#include <cstddef>
#include <cstdint>

#include "CKxXlate.h"
#include "format/caller_buffer.h"
#include "format/conversion.h"
#include "format/letters.h"
#include "format/marked_text.h"
#include "format/print_fraction.h"
#include "format/print_integer.h"
#include "format/result_text.h"

// CKxXlate::InsertVariable. It shares nothing with InsertVariableVA but how a value is printed: the
// two have different rules.

namespace {

constexpr std::size_t kSlots = 9;
constexpr std::size_t kMostNumberBytes = 255;
constexpr kx::Letters kConversions("dfiosx");

/// The bytes of a value and the conversion that took it.
struct Slot {
  char letter;
  std::uint64_t word;
};

/// The values, in the order of the conversions in the text; the numbers behind them play no part
/// here. A conversion past the ninth takes no value.
class Slots {
 public:
  Slots(const kx::MarkedText& text, std::va_list& arguments)
      : text_(text), next_(text.Begin()), arguments_(arguments) {}

  /// Null when the text has no such conversion. Values are taken up to this one: most texts are
  /// numbered as they stand, and then no part of them is searched in vain.
  const Slot* At(std::size_t index) {
    if (index >= kSlots) return nullptr;
    while (taken_ <= index) {
      if (!TakeNext()) return nullptr;
    }
    return &slots_[index];
  }

 private:
  bool TakeNext() {
    for (;;) {
      const char* const place = text_.Find(next_, '%');
      if (place == text_.End() || place[1] == '\0') return false;
      next_ = place + 2;
      if (!kConversions.Has(place[1])) continue;
      slots_[taken_++] = {place[1], TakeValue(place[1])};
      return true;
    }
  }

  /// Takes the value of one conversion from the argument list, as its bytes.
  std::uint64_t TakeValue(char letter) {
    switch (letter) {
      case 'f': return std::bit_cast<std::uint64_t>(va_arg(arguments_, double));
      case 's': return std::bit_cast<std::uint64_t>(va_arg(arguments_, const char*));
      case 'o':
      case 'x': return va_arg(arguments_, unsigned);
      default: return static_cast<std::uint64_t>(va_arg(arguments_, int));
    }
  }

  const kx::MarkedText& text_;
  const char* next_;
  std::va_list& arguments_;
  std::size_t taken_ = 0;
  Slot slots_[kSlots];
};

void AppendText(kx::ResultText& result, std::uint64_t word) {
  const auto* const text = std::bit_cast<const char*>(word);
  if (text != nullptr) result.Append(text);
}

void AppendNumber(kx::ResultText& result, const Slot& slot) {
  const std::size_t start = result.Size();
  kx::Conversion conversion;
  conversion.letter = slot.letter;
  if (slot.letter == 'f') {
    kx::AppendFraction(result, conversion, std::bit_cast<double>(slot.word));
  } else {
    kx::AppendInteger(result, conversion, slot.word);
  }
  result.Cut(start + kMostNumberBytes);
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
const char* TakeMarker(kx::ResultText& result, const char* text, Slots& slots) {
  if (!kConversions.Has(text[1])) return Skip(text, 2);
  if (text[2] != ':') return Skip(text, 3);
  // What is no number from 1 to 9 gives a large index.
  const Slot* const slot = slots.At(static_cast<std::size_t>(text[3] - '1'));
  if (slot == nullptr) return Skip(text, 4);
  if (slot->letter == 's') {
    AppendText(result, slot->word);
  } else {
    AppendNumber(result, *slot);
  }
  return text + 4;
}

/// Builds no more than the first `size` bytes or so: the rest is cut anyway.
void Build(kx::ResultText& result, const kx::MarkedText& text, Slots& slots, KxSize size) {
  const char* place = text.CopyUpTo(result, text.Begin(), '%', '%');
  while (place != text.End() && result.Size() < size) {
    const char* const next = TakeMarker(result, place, slots);
    place = text.CopyUpTo(result, next, '%', '%');
  }
}

}  // namespace

void CKxXlate::InsertVariable(char* buffer, KxSize size, const char* format, ...) {
  const kx::MarkedText text(format == nullptr ? "" : format);
  kx::ResultText result;
  std::va_list arguments;
  va_start(arguments, format);
  try {
    Slots slots(text, arguments);
    Build(result, text, slots, size);
  } catch (...) {
    va_end(arguments);
    throw;
  }
  va_end(arguments);
  kx::CopyVariableInsertion(buffer, size, result.View());
}
