#ifndef KX_KXXLATE_TERMINATED_HPP
#define KX_KXXLATE_TERMINATED_HPP

#include <charconv>
#include <cstddef>
#include <string>
#include <string_view>
#include <type_traits>

// What hosts pass, as the terminated texts that the library takes. No host names what stands in
// kx::detail.

namespace kx::detail {

template <class>
inline constexpr bool kNever = false;

/// A text that is terminated where it lies.
class PointerText {
 public:
  explicit PointerText(const char* text) noexcept : text_(text) {}
  template <class Traits, class Allocator>
  explicit PointerText(const std::basic_string<char, Traits, Allocator>& text) noexcept
      : text_(text.c_str()) {}

  const char* Get() const noexcept { return text_; }

 private:
  const char* text_;
};

/// A text that ends without a NUL: a copy, which has one. Short ones ask for no memory.
class CopiedText {
 public:
  explicit CopiedText(std::string_view text) {
    if (text.size() < sizeof near_) {
      near_[text.copy(near_, text.size())] = '\0';
    } else {
      far_ = text;
      text_ = far_.c_str();
    }
  }
  CopiedText(const CopiedText&) = delete;
  CopiedText& operator=(const CopiedText&) = delete;

  const char* Get() const noexcept { return text_; }

 private:
  char near_[128];
  std::string far_;
  const char* text_ = near_;
};

/// A number in decimal, whatever the locale of the host: an integer whole, a floating value in the
/// fewest digits that give it back.
class NumberText {
 public:
  template <class Number>
  explicit NumberText(Number number) noexcept {
    // Wide enough for the longest floating value that a compiler has.
    *std::to_chars(text_, text_ + sizeof text_ - 1, number).ptr = '\0';
  }

  const char* Get() const noexcept { return text_; }

 private:
  char text_[64];
};

/// One character.
class CharacterText {
 public:
  explicit CharacterText(char character) noexcept : text_{character, '\0'} {}

  const char* Get() const noexcept { return text_; }

 private:
  char text_[2];
};

template <class T>
struct IsStandardString : std::false_type {};
template <class Traits, class Allocator>
struct IsStandardString<std::basic_string<char, Traits, Allocator>> : std::true_type {};

template <class T>
inline constexpr bool kIsTerminated =
    std::is_convertible_v<T, const char*> || IsStandardString<T>::value;

/// Texts of all kinds. Not text(key) as it is answered: there may be none.
template <class T>
inline constexpr bool kIsText = kIsTerminated<T> || std::is_convertible_v<T, std::string_view>;

template <class T>
inline constexpr bool kIsCharacter = std::is_same_v<T, char>;

// The other types of characters are integers only to the language.
template <class T>
inline constexpr bool kIsInteger =
    std::is_integral_v<T> && !std::is_same_v<T, bool> && !kIsCharacter<T> &&
    !std::is_same_v<T, wchar_t> && !std::is_same_v<T, char16_t> && !std::is_same_v<T, char32_t> &&
    (std::is_same_v<T, signed char> || std::is_same_v<T, unsigned char> || sizeof(T) > 1) &&
    sizeof(T) <= sizeof(long long);

template <class T>
inline constexpr bool kIsNumber = kIsInteger<T> || std::is_floating_point_v<T>;

/// Holds the terminated text of a T for as long as a call takes.
template <class T, class Value = std::decay_t<T>>
using TextOf = std::conditional_t<
    kIsTerminated<Value>, PointerText,
    std::conditional_t<kIsText<Value>, CopiedText,
                       std::conditional_t<kIsCharacter<Value>, CharacterText, NumberText>>>;

/// The terminated text of a key, a name or a text with markers.
template <class T>
class GivenText : public TextOf<T> {
 public:
  static_assert(kIsText<std::decay_t<T>>,
                "kx: this must be a text (char*, std::string, std::string_view). What text(key) "
                "answers may be none: pass text_or(key, fallback)");
  explicit GivenText(const T& text) : TextOf<T>(text) {}
};

template <class T>
constexpr void CheckValue() {
  using Value = std::decay_t<T>;
  static_assert(kIsText<Value> || kIsCharacter<Value> || kIsNumber<Value>,
                "kx: a value must be a text (char*, std::string, std::string_view) or a number. "
                "Turn this one into text first");
}

}  // namespace kx::detail

#endif  // KX_KXXLATE_TERMINATED_HPP
