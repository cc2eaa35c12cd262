#ifndef KX_KXXLATE_TYPED_VALUE_HPP
#define KX_KXXLATE_TYPED_VALUE_HPP

#include <cstdint>
#include <string>
#include <type_traits>

#include "terminated.hpp"

namespace kx::detail {

/// A value whose type only the running program compares with what a text says of it.
struct TypedValue {
  enum class Kind : std::uint8_t { kInteger, kCharacter, kFloating, kText, kPointer };

  Kind kind = Kind::kInteger;
  bool isNegative = false;
  bool isWide = false;   ///< an integer of more than 32 bits
  bool isFloat = false;  ///< has the digits of a float
  std::uint64_t word = 0;
  double number = 0;
  const char* text = nullptr;
  const void* pointer = nullptr;

  bool IsWhole() const { return kind == Kind::kInteger || kind == Kind::kCharacter; }

  /// Whether an integer conversion of so many bits prints the integer that this is.
  bool IsWithin(int bits, bool isSigned) const {
    if (isNegative) return isSigned && word >= ~(std::uint64_t{0}) << (bits - 1);
    return (word >> (isSigned ? bits - 2 : bits - 1)) <= 1;
  }

  /// Whether a double has all digits of this integer.
  bool IsExactFloating() const {
    const std::uint64_t magnitude = isNegative ? ~word + 1 : word;
    return magnitude <= std::uint64_t{1} << 53U;
  }
  double Floating() const {
    if (kind == Kind::kFloating) return number;
    return isNegative ? -static_cast<double>(~word + 1) : static_cast<double>(word);
  }
};

/// Keeps a value for as long as a call takes, and passes it on through "...".
template <class T>
class TypedNumber {
 public:
  explicit TypedNumber(T number) noexcept : number_(number) {}

  TypedValue Value() const {
    TypedValue value;
    if constexpr (std::is_floating_point_v<T>) {
      value.kind = TypedValue::Kind::kFloating;
      value.isFloat = std::is_same_v<T, float>;
      value.number = static_cast<double>(number_);
    } else {
      if (kIsCharacter<T>) value.kind = TypedValue::Kind::kCharacter;
      value.isNegative = number_ < T{};
      value.isWide = sizeof(T) > sizeof(int);
      value.word = static_cast<std::uint64_t>(number_);
    }
    return value;
  }

  /// As the widest of its kind: conversions look at the part that they name.
  auto Passed() const {
    if constexpr (std::is_floating_point_v<T>) {
      return static_cast<double>(number_);
    } else if constexpr (std::is_signed_v<T>) {
      return static_cast<long long>(number_);
    } else {
      return static_cast<unsigned long long>(number_);
    }
  }

  /// As the language itself would.
  auto Promoted() const {
    if constexpr (std::is_floating_point_v<T>) {
      return static_cast<double>(number_);
    } else {
      return +number_;
    }
  }

 private:
  T number_;
};

class TypedPointer {
 public:
  explicit TypedPointer(const void* pointer) noexcept : pointer_(pointer) {}

  TypedValue Value() const {
    TypedValue value;
    value.kind = TypedValue::Kind::kPointer;
    value.pointer = pointer_;
    return value;
  }
  const void* Passed() const noexcept { return pointer_; }
  const void* Promoted() const noexcept { return pointer_; }

 private:
  const void* pointer_;
};

template <class T>
class TypedText {
 public:
  explicit TypedText(const T& text) : text_(text) {}

  TypedValue Value() const {
    TypedValue value;
    value.kind = TypedValue::Kind::kText;
    value.text = text_.Get() == nullptr ? "" : text_.Get();
    return value;
  }
  const char* Passed() const noexcept { return text_.Get(); }
  const char* Promoted() const noexcept { return text_.Get(); }

 private:
  TextOf<T> text_;
};

template <class T>
inline constexpr bool kIsPlainPointer = std::is_same_v<T, void*> || std::is_same_v<T, const void*>;

template <class T, class Value = std::decay_t<T>>
using TypedOf = std::conditional_t<
    kIsText<Value>, TypedText<T>,
    std::conditional_t<kIsPlainPointer<Value>, TypedPointer, TypedNumber<Value>>>;

template <class T>
constexpr void CheckTypedValue() {
  using Value = std::decay_t<T>;
  static_assert(kIsText<Value> || kIsCharacter<Value> || kIsNumber<Value> || kIsPlainPointer<Value>,
                "kx: a typed value must be a text (char*, std::string, std::string_view), a number "
                "or a void*. Turn this one into text first");
}

/// The text of a number, as kx::insert writes it, or of a character.
inline std::string TextOfNumber(const TypedValue& value) {
  if (value.kind == TypedValue::Kind::kCharacter) return {static_cast<char>(value.word)};
  if (value.kind == TypedValue::Kind::kFloating) {
    if (value.isFloat) return NumberText(static_cast<float>(value.number)).Get();
    return NumberText(value.number).Get();
  }
  if (value.isNegative) return NumberText(static_cast<std::int64_t>(value.word)).Get();
  return NumberText(value.word).Get();
}

}  // namespace kx::detail

#endif  // KX_KXXLATE_TYPED_VALUE_HPP
