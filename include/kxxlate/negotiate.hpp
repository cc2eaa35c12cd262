#ifndef KX_KXXLATE_NEGOTIATE_HPP
#define KX_KXXLATE_NEGOTIATE_HPP

#include <algorithm>
#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "locale_text.hpp"

namespace kx {
namespace detail {

constexpr std::string_view Trimmed(std::string_view text) noexcept {
  while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
  while (!text.empty() && (text.back() == ' ' || text.back() == '\t')) text.remove_suffix(1);
  return text;
}

/// Takes what stands before the next separator off the front of `rest`, and the separator.
constexpr std::string_view TakeUpTo(std::string_view& rest, char separator) noexcept {
  const std::size_t end = rest.find(separator);
  const std::string_view part = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  return part;
}

/// In small letters and with hyphens, for comparison.
inline std::string ComparableLocale(std::string_view locale) {
  std::string comparable = Lowered(locale);
  std::replace(comparable.begin(), comparable.end(), '_', '-');
  return comparable;
}

/// "*", or parts of one to eight letters or digits, of which the first has letters alone.
inline bool IsLanguageRange(std::string_view range) noexcept {
  if (range == "*") return true;
  constexpr std::size_t kMostOfAPart = 8;
  std::size_t size = 0;
  bool isFirst = true;
  for (const char c : range) {
    const bool isLetter = Lower(c) >= 'a' && Lower(c) <= 'z';
    const bool isDigit = c >= '0' && c <= '9';
    if (c == '-') {
      if (size == 0) return false;
      size = 0;
      isFirst = false;
    } else if ((!isLetter && (isFirst || !isDigit)) || ++size > kMostOfAPart) {
      return false;
    }
  }
  return size != 0;
}

/// A weight between "0" and "1" with up to three decimals, in thousandths.
inline std::optional<int> WeightOf(std::string_view text) noexcept {
  constexpr std::size_t kMostBytes = 5;
  if (text.empty() || text.size() > kMostBytes || (text[0] != '0' && text[0] != '1')) return {};
  if (text.size() > 1 && text[1] != '.') return {};
  int weight = text[0] == '1' ? 1000 : 0;
  int unit = 100;
  for (const char c : text.substr(std::min<std::size_t>(text.size(), 2))) {
    if (c < '0' || c > '9') return {};
    weight += (c - '0') * unit;
    unit /= 10;
  }
  return weight > 1000 ? std::nullopt : std::optional(weight);
}

/// The weight that the parameters of a range give it: 1 without any, nothing when malformed.
inline std::optional<int> WeightOfParameters(std::string_view parameters) noexcept {
  if (parameters.empty()) return 1000;
  std::string_view value = Trimmed(parameters);
  if (value.size() < 2 || Lower(value[0]) != 'q' || value[1] != '=') return {};
  return WeightOf(value.substr(2));
}

/// The ranges of an Accept-Language header.
class AcceptedLanguages {
 public:
  explicit AcceptedLanguages(std::string_view header) {
    while (!header.empty()) {
      std::string_view rest = TakeUpTo(header, ',');
      const bool hasParameters = rest.find(';') != std::string_view::npos;
      const std::string_view range = Trimmed(TakeUpTo(rest, ';'));
      const auto weight = hasParameters && rest.empty() ? std::nullopt : WeightOfParameters(rest);
      if (!weight || !IsLanguageRange(range)) continue;
      // Of a range that is named twice the first weight counts.
      const auto [place, isNew] = weights_.emplace(Lowered(range), *weight);
      if (isNew && *weight > 0) wanted_.emplace_back(*weight, place->first);
    }
    std::stable_sort(wanted_.begin(), wanted_.end(),
                     [](const Wanted& a, const Wanted& b) { return a.first > b.first; });
  }

  using Wanted = std::pair<int, std::string_view>;

  /// With their weights, the heaviest first, in their order where these are equal.
  const std::vector<Wanted>& InOrder() const { return wanted_; }

  /// Whether the closest range that covers a locale says "not this one".
  ///
  /// @param locale  comparable
  bool Excludes(std::string_view locale) const {
    for (std::string_view each = locale; !each.empty(); each = ParentLocale(each)) {
      const auto found = weights_.find(std::string(each));
      if (found != weights_.end()) return found->second == 0;
    }
    const auto any = weights_.find("*");
    return any != weights_.end() && any->second == 0;
  }

  /// Whether a range other than "*" covers the locale.
  bool Names(std::string_view locale) const {
    for (std::string_view each = locale; !each.empty(); each = ParentLocale(each)) {
      if (weights_.count(std::string(each)) != 0) return true;
    }
    return false;
  }

 private:
  std::map<std::string, int> weights_;
  std::vector<Wanted> wanted_;
};

/// The locales to choose from. What the header excludes is not among them.
class OfferedLocales {
 public:
  OfferedLocales(const std::vector<std::string>& locales, const AcceptedLanguages& accepted) {
    for (const std::string& locale : locales) {
      std::string comparable = ComparableLocale(locale);
      if (comparable.empty() || accepted.Excludes(comparable)) continue;
      longest_ = (std::max)(longest_, comparable.size());
      if (any_ == nullptr || (anyIsNamed_ && !accepted.Names(comparable))) {
        any_ = &locale;
        anyIsNamed_ = accepted.Names(comparable);
      }
      byName_.emplace(std::move(comparable), &locale);
    }
  }

  /// What "*" stands for: the first that no other range names, or else the first; or null.
  const std::string* Any() const { return any_; }

  /// The locale of a range or of the closest of its parents; or null.
  const std::string* Find(std::string_view range) const {
    // A header may be long. No locale is, and what is longer is cut at once.
    if (range.size() > longest_) range = Cut(range, range.rfind('-', longest_));
    while (!range.empty()) {
      const auto found = byName_.find(std::string(range));
      if (found != byName_.end()) return found->second;
      range = Cut(range, range.rfind('-'));
    }
    return nullptr;
  }

 private:
  /// What stands before a "-". A single letter or digit introduces what follows it, and goes with
  /// it.
  static std::string_view Cut(std::string_view range, std::size_t place) noexcept {
    if (place == std::string_view::npos) return {};
    while (place > 2 && range[place - 2] == '-') place -= 2;
    return range.substr(0, place);
  }

  std::map<std::string, const std::string*> byName_;
  std::size_t longest_ = 0;
  const std::string* any_ = nullptr;
  bool anyIsNamed_ = false;
};

}  // namespace detail

/// Picks the locale for a request by its Accept-Language header, as RFC 4647 looks one up: ranges
/// are tried by their weight, and by their order where the weights are equal; each is cut from its
/// end until it is a locale that is installed. "*" stands for the first that no other range names.
/// A weight of 0 excludes what no longer range names. Parts that are malformed are skipped.
///
/// @param acceptLanguage  any bytes, also of a stranger who means harm: the time grows with their
///                        number times its logarithm
/// @param locales         what there is, "_" and "-" alike, in any case: see kx::locales
/// @return one of `locales`, as it is spelled there, or "" when none fits, which asks
///         CKxXlate::GetBundle for a bundle's default
///
/// Reentrant. Throws std::bad_alloc only.
///
///     const std::vector<std::string> installed = {"de", "fr", "fr_CA"};
///     std::string locale = kx::negotiate("fr-CH, de;q=0.8, *;q=0.5", installed);  // "fr"
[[nodiscard]] inline std::string negotiate(std::string_view acceptLanguage,
                                           const std::vector<std::string>& locales) {
  const detail::AcceptedLanguages accepted(acceptLanguage);
  const detail::OfferedLocales offered(locales, accepted);
  for (const auto& [weight, range] : accepted.InOrder()) {
    const std::string* const found = range == "*" ? offered.Any() : offered.Find(range);
    if (found != nullptr) return *found;
  }
  return {};
}

/// The same for a header that ends with a NUL; null, which many servers answer for a request
/// without one, is an empty header.
[[nodiscard]] inline std::string negotiate(const char* acceptLanguage,
                                           const std::vector<std::string>& locales) {
  return negotiate(std::string_view(acceptLanguage == nullptr ? "" : acceptLanguage), locales);
}

}  // namespace kx

#endif  // KX_KXXLATE_NEGOTIATE_HPP
