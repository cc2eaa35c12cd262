#ifndef KX_FORMAT_ARGUMENT_VALUE_H
#define KX_FORMAT_ARGUMENT_VALUE_H

#include <bit>
#include <cstdint>

namespace kx {

/// An argument as it was read, which each conversion that names it may see as another type.
class ArgumentValue {
 public:
  /// An integer, extended by its sign, or a pointer. Implicit: a word is the plain case.
  constexpr ArgumentValue(std::uint64_t word) noexcept : bytes_{.word = word}, type_(Type::kWord) {}
  explicit ArgumentValue(double fraction) noexcept
      : bytes_{.word = std::bit_cast<std::uint64_t>(fraction)}, type_(Type::kDouble) {}
  explicit ArgumentValue(long double fraction) noexcept
      : bytes_{.longDouble = fraction}, type_(Type::kLongDouble) {}

  /// The bytes; those of a long double as a double has them.
  std::uint64_t Word() const noexcept {
    if (type_ != Type::kLongDouble) return bytes_.word;
    return std::bit_cast<std::uint64_t>(static_cast<double>(bytes_.longDouble));
  }

  bool IsLongDouble() const noexcept { return type_ == Type::kLongDouble; }
  long double LongDouble() const noexcept { return bytes_.longDouble; }  ///< only if IsLongDouble
  double Double() const noexcept { return std::bit_cast<double>(Word()); }

  /// Null for what was read as a floating value: wherever such bytes point, no text is there.
  template <class Character>
  const Character* Text() const noexcept {
    return type_ == Type::kWord ? std::bit_cast<const Character*>(bytes_.word) : nullptr;
  }

 private:
  enum class Type : std::uint8_t { kWord, kDouble, kLongDouble };

  union Bytes {
    std::uint64_t word;
    long double longDouble;
  };

  Bytes bytes_;
  Type type_;
};

}  // namespace kx

#endif  // KX_FORMAT_ARGUMENT_VALUE_H
