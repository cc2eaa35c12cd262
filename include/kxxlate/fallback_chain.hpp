#ifndef KX_KXXLATE_FALLBACK_CHAIN_HPP
#define KX_KXXLATE_FALLBACK_CHAIN_HPP

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "locale_text.hpp"
#include "terminated.hpp"
#include "translator.hpp"

namespace kx {

/// The translators of a bundle for a locale, from the most specific to the most general: those of
/// the locale itself, of what it falls back to ("fr-CA", "fr"), and of none, which is the bundle's
/// default or English. None is there twice.
///
/// The library falls back by files: a key that the Canadian file lacks is not looked for in the
/// French one. A host that wants that asks the chain. It keeps the chain for as long as it needs
/// the texts, but no longer than it wants to miss new files of a language.
///
/// Locales above 64 bytes fall back to those below. Throws std::bad_alloc only.
///
///     const std::vector<kx::Translator> chain = kx::fallback_chain("agent", "fr-CA");
///     Show(kx::first_text(chain, "LOGIN_PROMPT").value_or("User name").data());
template <class Bundle, class Locale>
[[nodiscard]] std::vector<Translator> fallback_chain(const Bundle& bundle, const Locale& locale) {
  constexpr std::size_t kMostBytes = 64;
  const detail::GivenText<Bundle> name(bundle);
  const detail::GivenText<Locale> where(locale);
  std::vector<Translator> chain;
  std::string current = where.Get() == nullptr ? "" : where.Get();
  for (;;) {
    Translator next = Translator::find(name.Get(), current);
    if (next) {
      // English answers for what is not installed, also ahead of what is ("de_AT" of "de_AT-1996").
      chain.erase(std::remove(chain.begin(), chain.end(), next), chain.end());
      chain.push_back(std::move(next));
    }
    if (current.empty()) return chain;
    do {
      current.resize(detail::ParentLocale(current).size());
    } while (current.size() > kMostBytes);
  }
}

/// The text of a key by the first translator that has one, or none.
template <class Key>
[[nodiscard]] std::optional<std::string_view> first_text(const std::vector<Translator>& chain,
                                                         const Key& key) {
  for (const Translator& texts : chain) {
    if (const auto found = texts.text(key)) return found;
  }
  return std::nullopt;
}
template <class Key>
std::optional<std::string_view> first_text(std::vector<Translator>&&, const Key&) = delete;

}  // namespace kx

#endif  // KX_KXXLATE_FALLBACK_CHAIN_HPP
