#ifndef KX_KXXLATE_INSERT_VARIABLE_HPP
#define KX_KXXLATE_INSERT_VARIABLE_HPP

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>

#include "../CKxXlate.h"
#include "buffer.hpp"
#include "insert_typed.hpp"
#include "terminated.hpp"
#include "typed_value.hpp"
#include "whole_result.hpp"

namespace kx {
namespace detail {

constexpr bool IsSlotLetter(char c) noexcept { return IsOneOf("dfiosx", c); }

/// The conversions of a text for CKxXlate::InsertVariable, in the order in which they take values.
class SlotConversions {
 public:
  static constexpr std::size_t kMost = 9;  // a tenth takes none

  explicit SlotConversions(std::string_view text) {
    std::size_t place = text.find('%');
    while (count_ < kMost && place != std::string_view::npos && place + 1 < text.size()) {
      if (IsSlotLetter(text[place + 1])) places_[count_++] = place + 1;
      place = text.find('%', place + 2);
    }
  }

  std::size_t Count() const { return count_; }

  /// Where the letter of a conversion stands in the text.
  std::size_t LetterPlace(std::size_t index) const { return places_[index]; }

 private:
  std::array<std::size_t, kMost> places_{};
  std::size_t count_ = 0;
};

/// Whether the library may take a value for this conversion.
inline bool FitsSlot(char letter, const TypedValue& value) {
  switch (letter) {
    case 's': return value.kind == TypedValue::Kind::kText;
    case 'f': return value.kind == TypedValue::Kind::kFloating;
    case 'o':
    case 'x': return value.IsWhole() && !value.isWide;
    default: return value.IsWhole() && !value.isWide && value.IsWithin(32, true);
  }
}

/// The text of a value as a conversion prints it, or, where it does not fit, as kx::insert_typed
/// would.
inline std::string TextOfSlot(char letter, const TypedValue& value) {
  const std::string conversion{'%', letter, ':', '1'};
  char number[256];
  if (letter == 's' && value.kind == TypedValue::Kind::kText) return value.text;
  if (letter == 'f' &&
      (value.kind == TypedValue::Kind::kFloating || (value.IsWhole() && value.IsExactFloating()))) {
    CKxXlate::InsertVariable(number, sizeof number, conversion.c_str(), value.Floating());
    return number;
  }
  if (FitsSlot(letter, value)) {
    CKxXlate::InsertVariable(number, sizeof number, conversion.c_str(),
                             static_cast<unsigned>(value.word));
    return number;
  }
  TypedPieces pieces(nullptr, 0);
  if (value.IsWhole() && IsOneOf("ox", letter)) {
    pieces.AppendConversion(std::string("%ll") + letter, value.word);
  } else {
    pieces.AppendText(ConversionGroup(), value);
  }
  return pieces.Take();
}

/// Puts the texts of values into a text, whose markers are read as the library reads them: all that
/// is none vanishes with what stands behind it.
inline std::string BuildFromSlots(std::string_view text, const std::string* slots,
                                  std::size_t count, std::size_t most) {
  const auto at = [text](std::size_t place) { return place < text.size() ? text[place] : '\0'; };
  std::string result;
  for (std::size_t place = 0; place < text.size() && result.size() <= most;) {
    const std::size_t marker = (std::min)(text.find('%', place), text.size());
    result += text.substr(place, marker - place);
    place = marker + 2;
    if (!IsSlotLetter(at(marker + 1))) continue;
    ++place;
    if (at(marker + 2) != ':') continue;
    ++place;
    const char digit = at(marker + 3);
    if (digit >= '1' && digit <= '9' && static_cast<std::size_t>(digit - '1') < count) {
      result += slots[digit - '1'];
    }
  }
  return result;
}

/// The result of a text whose values do not fit: each is turned into text first, by the library and
/// with a value of the type that its conversion asks for.
inline WholeResult InsertSlotTexts(std::size_t most, std::string_view text,
                                   const SlotConversions& conversions, const TypedValue* values,
                                   std::size_t count) {
  std::string slots[SlotConversions::kMost];
  for (std::size_t index = 0; index < conversions.Count(); ++index) {
    const char letter = text[conversions.LetterPlace(index)];
    if (index < count) {
      slots[index] = TextOfSlot(letter, values[index]);
    } else {
      slots[index] = {'%', letter, ':', static_cast<char>('1' + index)};
    }
  }
  return WholeResult(BuildFromSlots(text, slots, conversions.Count(), most));
}

/// CKxXlate::InsertVariable over what hosts pass.
struct VariableEngine {
  template <class Text, class... Values>
  static WholeResult Run(std::size_t most, const Text& text, const Values&... values) {
    (CheckTypedValue<Values>(), ...);
    const GivenText<Text> format(text);
    const std::string_view whole = format.Get() == nullptr ? "" : format.Get();
    const SlotConversions conversions(whole);
    const std::tuple<TypedOf<Values>...> given(values...);
    return std::apply(
        [&](const auto&... each) {
          constexpr std::size_t kCount = sizeof...(Values);
          const std::array<TypedValue, kCount> list{each.Value()...};
          bool allFit = conversions.Count() <= kCount;
          for (std::size_t index = 0; allFit && index < conversions.Count(); ++index) {
            allFit = FitsSlot(whole[conversions.LetterPlace(index)], list[index]);
          }
          if (!allFit) {
            return InsertSlotTexts(most, whole, conversions, list.data(), kCount);
          }
          return WholeResult(
              [&](char* buffer, KxSize size) {
                CKxXlate::InsertVariable(buffer, size, whole.data(), each.Promoted()...);
              },
              most);
        },
        given);
  }
};

}  // namespace detail

/// Inserts typed values into a text by the conversions of CKxXlate::InsertVariable ("%d:1 files on
/// %s:2"), after each has been compared with its value. For texts that were written for that
/// function, in which ":" and a digit number conversions and not values.
///
/// A value that does not fit is inserted as kx::insert_typed would; the marker of one that is
/// missing stays. All else is as there; what vanishes from such a text is told in docs/markers.md.
///
///     std::string line = kx::insert_variable("%s:1 has %d:2 files", "disk", 12);
template <class Text, class... Values>
[[nodiscard]] std::string insert_variable(const Text& text, const Values&... values) {
  return detail::VariableEngine::Run(detail::WholeResult::kAll, text, values...).Take();
}

/// The same into a buffer, in the forms and by the rules of kx::insert_into.
template <class Buffer, class... Rest>
Inserted insert_variable_into(Buffer&& buffer, const Rest&... rest) {
  return detail::InsertInto<detail::VariableEngine>(std::forward<Buffer>(buffer), rest...);
}

}  // namespace kx

#endif  // KX_KXXLATE_INSERT_VARIABLE_HPP
