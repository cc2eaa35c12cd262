#ifndef KX_KXXLATE_INSERT_TYPED_HPP
#define KX_KXXLATE_INSERT_TYPED_HPP

#include <array>
#include <cstdarg>
#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>

#include "../CKxXlate.h"
#include "buffer.hpp"
#include "conversion.hpp"
#include "terminated.hpp"
#include "typed_fit.hpp"
#include "typed_value.hpp"
#include "whole_result.hpp"

namespace kx {
namespace detail {

inline void CallTyped(char* buffer, KxSize size, const char* text, ...) {
  std::va_list values;
  va_start(values, text);
  try {
    CKxXlate::InsertVariableVA(buffer, size, text, values);
  } catch (...) {
    va_end(values);
    throw;
  }
  va_end(values);
}

/// Whether the library reads all that the text asks for, and nothing else, when it is handed the
/// values as they are.
///
/// @param isRead  as many as there are values, all false
inline bool AllFit(std::string_view text, const TypedValue* values, std::size_t count,
                   bool* isRead) {
  ConversionPieces pieces(text);
  ConversionPiece piece;
  std::size_t used = 0;
  for (pieces.TakeLiteral(); pieces.TakePiece(piece); pieces.TakeLiteral()) {
    if (!piece.HasConversion()) continue;
    if (piece.index >= count) return false;
    const TypedFit fit = FitOf(piece.group, values[piece.index]);
    if (fit.way != TypedFit::Way::kAsItIs || fit.asFloating) return false;
    isRead[piece.index] = true;
    used = piece.index < used ? used : piece.index + 1;
  }
  // A value that nobody reads is stepped over as an integer, which a floating value is not.
  for (std::size_t index = 0; index < used; ++index) {
    if (!isRead[index] && values[index].kind == TypedValue::Kind::kFloating) return false;
  }
  return true;
}

/// Puts a result together piece by piece: each is formatted by the library, alone and with a value
/// of the type that it asks for.
class TypedPieces {
 public:
  TypedPieces(const TypedValue* values, std::size_t count) : values_(values), count_(count) {}

  /// @param most  of a result with more bytes at least that many, and one, are enough
  std::string Insert(std::string_view text, std::size_t most) {
    ConversionPieces pieces(text);
    ConversionPiece piece;
    for (;;) {
      result_ += pieces.TakeLiteral();
      if (result_.size() > most || !pieces.TakePiece(piece)) return std::move(result_);
      Append(piece);
    }
  }

  /// One conversion, that and nothing else.
  template <class Value>
  void AppendConversion(const std::string& conversion, Value value) {
    // Nothing becomes longer than this, so the second attempt is the last.
    constexpr std::size_t kMostBytes = 16384;
    const std::size_t start = result_.size();
    std::size_t size = 0;
    for (std::size_t room : {std::size_t{256}, kMostBytes}) {
      result_.resize(start + room);
      CallTyped(&result_[start], static_cast<KxSize>(room), conversion.c_str(), value);
      size = std::strlen(&result_[start]);
      if (size != room - 1) break;
    }
    result_.resize(start + size);
  }

  void AppendText(const ConversionGroup& group, const TypedValue& value) {
    if (value.kind == TypedValue::Kind::kPointer) {
      AppendConversion(group.ForText("p"), value.pointer);
    } else if (value.kind == TypedValue::Kind::kText) {
      AppendConversion(group.ForText(), value.text);
    } else {
      AppendConversion(group.ForText(), TextOfNumber(value).c_str());
    }
  }

  std::string Take() { return std::move(result_); }

 private:
  void Append(const ConversionPiece& piece) {
    if (!piece.HasConversion()) return AppendConversion(std::string(piece.text), 0LL);
    if (piece.index >= count_) {
      result_ += piece.asWritten;
      return;
    }
    const TypedValue& value = values_[piece.index];
    const TypedFit fit = FitOf(piece.group, value);
    if (fit.way == TypedFit::Way::kAsText) {
      AppendAround(piece.before, true);
      AppendText(piece.group, value);
      AppendAround(piece.after, false);
      return;
    }
    std::string conversion(piece.text);
    if (fit.way == TypedFit::Way::kChanged) {
      conversion.replace(piece.before.size(), piece.group.text.size(),
                         piece.group.With(fit.length, fit.letter));
    }
    AppendFitting(conversion, fit.asFloating, value);
  }

  void AppendFitting(const std::string& conversion, bool asFloating, const TypedValue& value) {
    if (asFloating || value.kind == TypedValue::Kind::kFloating) {
      AppendConversion(conversion, value.Floating());
    } else if (value.kind == TypedValue::Kind::kText) {
      AppendConversion(conversion, value.text);
    } else if (value.kind == TypedValue::Kind::kPointer) {
      AppendConversion(conversion, value.pointer);
    } else {
      AppendConversion(conversion, static_cast<unsigned long long>(value.word));
    }
  }

  /// What stands beside the conversion in its piece: "%%" is a percent sign and "%n" nothing, as
  /// the library has it.
  void AppendAround(std::string_view text, bool isBefore) {
    while (!text.empty()) {
      const std::string_view literal = text.substr(0, text.find('%'));
      result_ += literal;
      text.remove_prefix(literal.size());
      if (text.empty()) return;
      const ConversionGroup group = GroupReader(text).Read();
      text.remove_prefix(group.text.size());
      const bool isSign = group.meaning == ConversionGroup::Meaning::kPercentSign;
      if (isSign && (isBefore || !group.hasStar)) {
        result_ += '%';
      } else if (!isBefore || group.meaning != ConversionGroup::Meaning::kCount) {
        result_ += group.text;
      }
    }
  }

  const TypedValue* values_;
  std::size_t count_;
  std::string result_;
};

/// CKxXlate::InsertVariableVA over what hosts pass.
struct TypedEngine {
  template <class Text, class... Values>
  static WholeResult Run(std::size_t most, const Text& text, const Values&... values) {
    (CheckTypedValue<Values>(), ...);
    const GivenText<Text> format(text);
    const char* const whole = format.Get() == nullptr ? "" : format.Get();
    const std::tuple<TypedOf<Values>...> given(values...);
    return std::apply(
        [whole, most](const auto&... each) {
          constexpr std::size_t kCount = sizeof...(Values);
          const std::array<TypedValue, kCount> list{each.Value()...};
          std::array<bool, kCount> isRead{};
          if (!AllFit(whole, list.data(), kCount, isRead.data())) {
            return WholeResult(TypedPieces(list.data(), kCount).Insert(whole, most));
          }
          return WholeResult(
              [&](char* buffer, KxSize size) { CallTyped(buffer, size, whole, each.Passed()...); },
              most);
        },
        given);
  }
};

}  // namespace detail

/// Inserts typed values into a text by the conversions of CKxXlate::InsertVariableVA ("%-8.3f:2",
/// "%s"), after each has been compared with its value: no text ends the host or shows its memory.
///
/// What does not fit is replaced by what does:
///
/// - an integer that is wider than its conversion is printed whole ("%d" of 5000000000), and so is
///   one of another sign ("%u" of -1); "%hd" and "%hhd" print the part that they name
/// - an integer is printed by a floating conversion ("%.2f" of 3 is 3.00)
/// - anything else as its text, in the width of the conversion: "%s" of 3 is 3, "%5d" of "ab" is
///   three blanks and ab, "%d" of 2.5 is 2.5
/// - a conversion whose value is missing stays as it is written, number included
///
/// @param text    any text, also a catalogue's that nobody has checked
/// @param values  any number of texts, characters, numbers and void pointers; numbers and wide
///                conversions follow what docs/markers.md says, a null text is empty
/// @return the whole result. A text can ask for 16,383 bytes by each of its conversions
///
/// Reentrant. Throws std::bad_alloc, and std::length_error for a result above 4 GiB.
///
///     std::string line = kx::insert_typed("%s:2 has %d:1 files", 12, "disk");
///     line = kx::insert_typed("%s:1 has %d:2 files", 12, "disk");  // "12 has disk files"
template <class Text, class... Values>
[[nodiscard]] std::string insert_typed(const Text& text, const Values&... values) {
  return detail::TypedEngine::Run(detail::WholeResult::kAll, text, values...).Take();
}

/// The same into a buffer, in the forms and by the rules of kx::insert_into.
template <class Buffer, class... Rest>
Inserted insert_typed_into(Buffer&& buffer, const Rest&... rest) {
  return detail::InsertInto<detail::TypedEngine>(std::forward<Buffer>(buffer), rest...);
}

}  // namespace kx

#endif  // KX_KXXLATE_INSERT_TYPED_HPP
