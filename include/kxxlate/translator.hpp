#ifndef KX_KXXLATE_TRANSLATOR_HPP
#define KX_KXXLATE_TRANSLATOR_HPP

#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "../CKxXlate.h"
#include "insert.hpp"
#include "terminated.hpp"

namespace kx {
namespace detail {

/// What an empty translator answers. Apart, so that the compiler lays the other way out as the
/// straight one: the face may take two of a lookup's hundred instructions, and each jump is one.
#if defined(__GNUC__)
__attribute__((cold, noinline))
#endif
inline const char*
NoText() noexcept {
  return nullptr;
}

inline std::optional<std::string_view> Maybe(const char* text) {
  if (text == nullptr) return std::nullopt;
  return std::string_view(text);
}

inline std::string_view OrEmpty(const char* text) { return text == nullptr ? "" : text; }

template <class T>
std::string_view ViewOf(const T& text) {
  if constexpr (std::is_convertible_v<const T&, const char*>) {
    return OrEmpty(text);
  } else {
    return text;
  }
}

/// For what would answer a text of a translator that is a temporary.
template <class T>
constexpr void RefuseDropped() {
  static_assert(kNever<T>,
                "kx: this translator is dropped at the end of the statement, and its texts with "
                "it. Keep it in a variable");
}

}  // namespace detail

/// One reference on a translator: a copy takes one more, a move hands it over, the end gives it
/// back. Or empty, which finds nothing and does no harm.
///
/// What it answers as a std::string_view belongs to the translator, ends with a NUL, and stays
/// valid for as long as anybody has a reference; so a translator that is dropped at once does not
/// compile. Different threads may use one translator, but each object is one thread's at a time, as
/// usual. What the library promises of each operation stands in CKxXlate.h. Of what it throws,
/// std::bad_alloc is all.
///
/// Keys are texts of any kind, in any case. A host should look up no strangers' keys: each that is
/// absent is kept and logged, once.
///
///     const kx::Translator texts = kx::Translator::find("agent", "fr-CA");
///     const std::string_view prompt = texts.text_or("LOGIN_PROMPT", "User name");
///     Show(prompt.data());
///     Show(texts.format("WELCOME_USER", "Ann", 3).c_str());
class Translator {
 public:
  /// Empty.
  constexpr Translator() noexcept = default;

  Translator(const Translator& other) : raw_(other.raw_) {
    if (raw_ != nullptr) raw_->AddRef();
  }
  Translator(Translator&& other) noexcept : raw_(std::exchange(other.raw_, nullptr)) {}
  Translator& operator=(Translator other) noexcept {
    std::swap(raw_, other.raw_);
    return *this;
  }
  ~Translator() {
    if (raw_ != nullptr) raw_->Release();
  }

  /// The translator of a bundle for a locale, as CKxXlate::GetBundle answers it: with fallback, so
  /// that it is empty only for an empty name. Strangers' locales should be negotiated first.
  template <class Bundle, class Locale>
  [[nodiscard]] static Translator find(const Bundle& bundle, const Locale& locale) {
    const detail::GivenText<Bundle> name(bundle);
    const detail::GivenText<Locale> where(locale);
    return Translator(CKxXlate::GetBundle(name.Get(), where.Get()));
  }

  /// The same for a language and a region given apart, as CKxXlate::GetLanguage.
  template <class Bundle, class Language, class Region>
  [[nodiscard]] static Translator find_language(const Bundle& bundle, const Language& language,
                                                const Region& region) {
    const detail::GivenText<Bundle> name(bundle);
    const detail::GivenText<Language> code(language);
    const detail::GivenText<Region> country(region);
    return Translator(CKxXlate::GetLanguage(name.Get(), code.Get(), country.Get()));
  }

  /// Takes over the reference that the caller has on a raw translator. Null gives an empty one.
  [[nodiscard]] static Translator adopt(CKxXlate* raw) noexcept { return Translator(raw); }

  /// Takes one more reference; the caller keeps its own. Null gives an empty one.
  [[nodiscard]] static Translator share(CKxXlate* raw) {
    if (raw != nullptr) raw->AddRef();
    return Translator(raw);
  }

  /// Hands the reference over to the caller, who gives it back by Release; empty afterwards.
  [[nodiscard]] CKxXlate* release() noexcept { return std::exchange(raw_, nullptr); }

  /// The raw translator, for calls that have not moved here yet; the reference stays with this
  /// object. Null when empty.
  [[nodiscard]] CKxXlate* get() const& noexcept { return raw_; }
  CKxXlate* get() && = delete;

  /// Whether there is a translator.
  [[nodiscard]] explicit operator bool() const noexcept { return raw_ != nullptr; }

  /// Whether both stand for the same texts in memory.
  [[nodiscard]] friend bool operator==(const Translator& a, const Translator& b) noexcept {
    return a.raw_ == b.raw_;
  }
  [[nodiscard]] friend bool operator!=(const Translator& a, const Translator& b) noexcept {
    return a.raw_ != b.raw_;
  }

  /// The text of a key, or none.
  template <class Key>
  [[nodiscard]] std::optional<std::string_view> text(const Key& key) const& {
    return detail::Maybe(c_text(key));
  }

  /// The text of a key, or `fallback`, a text of any kind that must live as long as the answer.
  template <class Key, class Fallback>
  [[nodiscard]] std::string_view text_or(const Key& key, Fallback&& fallback) const& {
    using Given = std::decay_t<Fallback>;
    static_assert(
        std::is_lvalue_reference_v<Fallback> || !detail::IsStandardString<Given>::value,
        "kx: this fallback is dropped at the end of the statement. Keep it in a variable");
    const char* const found = c_text(key);
    if (found != nullptr) return found;
    return detail::ViewOf<Given>(fallback);
  }

  /// The text of a key as the library answers it, terminated; null when there is none. For those
  /// who need no length.
  template <class Key>
  [[nodiscard]] const char* c_text(const Key& key) const& {
    const detail::GivenText<Key> asked(key);
    if (raw_ == nullptr) return detail::NoText();
    return raw_->GetText(asked.Get());
  }

  /// The text of a key with values inserted, as kx::insert does. A key that has no text is itself
  /// the text, so that the user sees at least key and values.
  template <class Key, class... Values>
  [[nodiscard]] std::string format(const Key& key, const Values&... values) const {
    const detail::GivenText<Key> asked(key);
    const char* const found = raw_ == nullptr ? nullptr : raw_->GetText(asked.Get());
    return insert(found == nullptr ? asked.Get() : found, values...);
  }

  /// The label of a button, or none.
  template <class Key>
  [[nodiscard]] std::optional<std::string_view> label(const Key& key) const& {
    const detail::GivenText<Key> asked(key);
    return detail::Maybe(raw_ == nullptr ? nullptr : raw_->GetLabel(asked.Get()));
  }

  /// The path that is listed under a name, or none.
  template <class Key>
  [[nodiscard]] std::optional<std::string_view> directory(const Key& name) const& {
    const detail::GivenText<Key> asked(name);
    return detail::Maybe(raw_ == nullptr ? nullptr : raw_->GetDirectory(asked.Get()));
  }

  /// A text with the language's prompt suffix, such as "Name:"; none when the key has no text, and
  /// for all keys of property bundles, which have no prompts.
  template <class Key>
  [[nodiscard]] std::optional<std::string> prompt(const Key& key) const {
    const detail::GivenText<Key> asked(key);
    const char* const found = raw_ == nullptr ? nullptr : raw_->GetText(asked.Get());
    if (found == nullptr) return std::nullopt;
    // Room for both and their NUL: the suffix is appended only where all of it fits.
    std::string whole(std::strlen(found) + prompt_suffix().size(), '\0');
    const auto size = static_cast<KxSize>(whole.size() + 1);
    if (!raw_->GetPrompt(whole.data(), size, asked.Get(), nullptr)) return std::nullopt;
    whole.resize(std::strlen(whole.c_str()));
    return whole;
  }

  // What the translator says of itself; empty where it says nothing.

  /// The bundle's name.
  [[nodiscard]] std::string_view name() const& { return Say<&CKxXlate::GetName>(); }

  /// The codes are in capitals from language files, as the file's name spells them from property
  /// bundles, and empty from a bundle's default.
  [[nodiscard]] std::string_view language() const& { return Say<&CKxXlate::GetLanguageCode>(); }
  /// In the same spelling.
  [[nodiscard]] std::string_view country() const& { return Say<&CKxXlate::GetCountryCode>(); }

  /// The language's name for people.
  [[nodiscard]] std::string_view long_name() const& { return Say<&CKxXlate::GetLongName>(); }

  /// "UTF-8" where it says nothing, since that is what it means.
  [[nodiscard]] std::string_view charset() const& {
    const std::string_view said = Say<&CKxXlate::GetCharset>();
    return said.empty() ? "UTF-8" : said;
  }

  /// Where the language's images lie.
  [[nodiscard]] std::string_view image_directory() const& {
    return Say<&CKxXlate::GetImageDirectory>();
  }

  /// "LTR", "RTL" or empty.
  [[nodiscard]] std::string_view direction() const& { return Say<&CKxXlate::GetDirection>(); }

  /// The text put behind prompts, such as ":".
  [[nodiscard]] std::string_view prompt_suffix() const& {
    return Say<&CKxXlate::GetPromptSuffix>();
  }

  /// New whenever a language was read again; 0 for texts that never change.
  [[nodiscard]] std::uint32_t id() const { return raw_ == nullptr ? 0 : raw_->GetId(); }

  // A translator that is dropped at once: nothing that it answers could be read.

  template <class Key>
  std::optional<std::string_view> text(const Key&) && {
    return detail::RefuseDropped<Key>(), std::nullopt;
  }
  template <class Key, class Fallback>
  std::string_view text_or(const Key&, Fallback&&) && {
    return detail::RefuseDropped<Key>(), std::string_view();
  }
  template <class Key>
  const char* c_text(const Key&) && {
    return detail::RefuseDropped<Key>(), nullptr;
  }
  template <class Key>
  std::optional<std::string_view> label(const Key&) && {
    return detail::RefuseDropped<Key>(), std::nullopt;
  }
  template <class Key>
  std::optional<std::string_view> directory(const Key&) && {
    return detail::RefuseDropped<Key>(), std::nullopt;
  }
  std::string_view name() && = delete;
  std::string_view language() && = delete;
  std::string_view country() && = delete;
  std::string_view long_name() && = delete;
  std::string_view charset() && = delete;
  std::string_view image_directory() && = delete;
  std::string_view direction() && = delete;
  std::string_view prompt_suffix() && = delete;

 private:
  explicit constexpr Translator(CKxXlate* raw) noexcept : raw_(raw) {}

  template <const char* (CKxXlate::*kSay)()>
  std::string_view Say() const {
    return detail::OrEmpty(raw_ == nullptr ? nullptr : (raw_->*kSay)());
  }

  CKxXlate* raw_ = nullptr;
};

}  // namespace kx

#endif  // KX_KXXLATE_TRANSLATOR_HPP
