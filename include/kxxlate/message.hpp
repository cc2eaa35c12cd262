#ifndef KX_KXXLATE_MESSAGE_HPP
#define KX_KXXLATE_MESSAGE_HPP

#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>

#include "../CKxXlate.h"
#include "../Xlate.h"
#include "terminated.hpp"

namespace kx {

/// A message to show, for CKxXlate::Format: an Xlate that is filled without mistakes and gives back
/// all references that the formatting takes.
///
/// Holds up to 16 values; more do not compile when they are given at once, and are refused when
/// they are added one by one. A copy has the same bundle, locale and values, and looks its
/// translator up anew; a move takes everything and leaves a message without bundle. One object must
/// not be used by two threads at once.
///
///     kx::Message message("agent", "fr-CA");
///     message.set_values("Ann", 3);
///     Show(message.format("WELCOME_USER"));
class Message {
 public:
  /// As many as CKxXlate::Format inserts.
  static constexpr std::size_t kMostValues = 16;

  /// @param locale  as CKxXlate::GetBundle takes it
  template <class Bundle, class Locale>
  Message(const Bundle& bundle, const Locale& locale) {
    const detail::GivenText<Bundle> name(bundle);
    const detail::GivenText<Locale> where(locale);
    if (name.Get() != nullptr) xlate_.bundleName = name.Get();
    xlate_.locale.Set(where.Get());
  }

  Message(const Message& other) { CopyFrom(other); }
  Message(Message&& other) noexcept { Swap(other); }
  Message& operator=(Message other) noexcept {
    Swap(other);
    return *this;
  }
  ~Message() { ReleaseTranslator(xlate_); }

  /// Replaces all values. Texts and numbers are written as by kx::insert; a null pointer is empty.
  template <class... Values>
  void set_values(const Values&... values) {
    static_assert(sizeof...(Values) <= kMostValues, "kx: a message takes 16 values at most");
    xlate_.args.clear();
    xlate_.argCount = 0;
    (static_cast<void>(add_value(values)), ...);
  }

  /// Appends one value; false, with nothing changed, when there are 16.
  template <class Value>
  [[nodiscard]] bool add_value(const Value& value) {
    detail::CheckValue<Value>();
    if (xlate_.argCount == kMostValues) return false;
    const detail::TextOf<Value> text(value);
    const char* const given = text.Get() == nullptr ? "" : text.Get();
    // In one step with its NUL: a value for which there is no memory leaves nothing behind.
    xlate_.args.append(given, std::strlen(given) + 1);
    ++xlate_.argCount;
    return true;
  }

  /// Whether each result begins with its key in brackets.
  void show_keys(bool shown) noexcept { xlate_.showKeys = shown; }

  /// Shows the message in another locale from now on.
  template <class Locale>
  void set_locale(const Locale& locale) {
    const detail::GivenText<Locale> where(locale);
    ReleaseTranslator(xlate_);
    xlate_.useAdminLocale = false;
    xlate_.locale.Set(where.Get());
  }

  /// Shows it in the administrator's locale, where there is one.
  void use_admin_locale() {
    ReleaseTranslator(xlate_);
    xlate_.useAdminLocale = true;
  }

  /// The text of a key with the values inserted, terminated and never null: the key itself stands
  /// for a text that is absent. Valid until the next call, or the end or the move of this object.
  template <class Key>
  [[nodiscard]] const char* format(const Key& key) & {
    const detail::GivenText<Key> asked(key);
    return CKxXlate::Format(&xlate_, asked.Get());
  }
  template <class Key>
  const char* format(const Key&) && {
    static_assert(detail::kNever<Key>,
                  "kx: this message is dropped at the end of the statement, and its text with it. "
                  "Keep it in a variable");
    return nullptr;
  }

 private:
  void CopyFrom(const Message& other) {
    xlate_.argCount = other.xlate_.argCount;
    xlate_.args = other.xlate_.args;
    xlate_.output = other.xlate_.output;
    xlate_.bundleName = other.xlate_.bundleName;
    xlate_.locale = other.xlate_.locale;
    xlate_.showKeys = other.xlate_.showKeys;
    xlate_.useAdminLocale = other.xlate_.useAdminLocale;
  }

  void Swap(Message& other) noexcept { std::swap(xlate_, other.xlate_); }

  Xlate xlate_;
};

}  // namespace kx

#endif  // KX_KXXLATE_MESSAGE_HPP
