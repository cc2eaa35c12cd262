#ifndef KX_KXXLATE_TYPED_FIT_HPP
#define KX_KXXLATE_TYPED_FIT_HPP

#include <cstdint>
#include <limits>
#include <string_view>

#include "conversion.hpp"
#include "typed_value.hpp"

namespace kx::detail {

/// How a conversion may be handed the value that it asks for.
struct TypedFit {
  enum class Way : std::uint8_t {
    kAsItIs,
    kChanged,  ///< with this length and letter
    kAsText,   ///< not at all: the value's text takes its place
  };

  Way way = Way::kAsItIs;
  std::string_view length = {};
  char letter = '\0';
  bool asFloating = false;  ///< an integer is passed as a double

  static TypedFit Changed(std::string_view length, char letter) {
    return {Way::kChanged, length, letter};
  }
  static TypedFit Text() { return {Way::kAsText}; }
};

inline TypedFit FitDecimal(const ConversionGroup& group, const TypedValue& value) {
  const bool isSigned = group.letter != 'u';
  if (value.IsWithin(group.Bits(), isSigned)) return {};
  // What only "ll" can tell the sign or the size of.
  if (value.isNegative) return TypedFit::Changed("ll", 'd');
  return TypedFit::Changed("ll", value.IsWithin(64, isSigned) ? group.letter : 'u');
}

inline TypedFit FitInteger(const ConversionGroup& group, const TypedValue& value) {
  if (!value.IsWhole()) return TypedFit::Text();
  const int bits = group.Bits();
  // "%hd" and "%hhd" take an int and print a part of it: whoever writes them wants that.
  if (bits < 32 && !value.isWide) return {};
  if (IsOneOf("diu", group.letter)) return FitDecimal(group, value);
  // The others print bits, those of the value's own type.
  if (value.isWide) {
    const bool isWhole = bits == 64 || value.IsWithin(bits, false);
    return isWhole ? TypedFit{} : TypedFit::Changed("ll", group.letter);
  }
  return value.isNegative && bits > 32 ? TypedFit::Changed("", group.letter) : TypedFit{};
}

inline TypedFit FitCharacter(const ConversionGroup& group, const TypedValue& value) {
  constexpr std::uint64_t kMostAscii = 0x7F;
  constexpr std::uint64_t kMostWide = sizeof(wchar_t) > 2 ? 0x10FFFF : 0xFFFF;
  if (value.kind == TypedValue::Kind::kCharacter) {
    return group.IsWide() && value.word > kMostAscii ? TypedFit::Changed("", 'c') : TypedFit{};
  }
  // A number above would be half of a UTF-8 sequence.
  const std::uint64_t most = group.IsWide() ? kMostWide : kMostAscii;
  return value.IsWhole() && value.word <= most ? TypedFit{} : TypedFit::Text();
}

inline TypedFit FitFloating(const ConversionGroup& group, const TypedValue& value) {
  // Hosts pass no long double: what that is depends on the compiler.
  TypedFit fit = group.length == ConversionGroup::Length::kExtended
                     ? TypedFit::Changed("", group.letter)
                     : TypedFit{};
  if (value.kind == TypedValue::Kind::kFloating) return fit;
  if (value.kind != TypedValue::Kind::kInteger || !value.IsExactFloating()) return TypedFit::Text();
  fit.asFloating = true;
  return fit;
}

/// @param group  a conversion
inline TypedFit FitOf(const ConversionGroup& group, const TypedValue& value) {
  if (group.IsInteger()) return FitInteger(group, value);
  if (group.IsFloating()) return FitFloating(group, value);
  if (group.letter == 'c') return FitCharacter(group, value);
  if (group.letter == 'p') {
    return value.kind == TypedValue::Kind::kPointer ? TypedFit{} : TypedFit::Text();
  }
  if (value.kind != TypedValue::Kind::kText) return TypedFit::Text();
  return group.IsWide() ? TypedFit::Changed("", 's') : TypedFit{};
}

}  // namespace kx::detail

#endif  // KX_KXXLATE_TYPED_FIT_HPP
