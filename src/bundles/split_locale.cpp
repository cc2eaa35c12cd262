#include "bundles/split_locale.h"

#include <cstddef>

namespace kx {
namespace {

constexpr std::size_t kNone = std::string_view::npos;
constexpr std::size_t kCountryLength = 2;

std::size_t FindSeparator(std::string_view locale) {
  const std::size_t hyphen = locale.find('-');
  return hyphen != kNone ? hyphen : locale.find('_');
}

/// The country in a locale that has a further hyphen, at `next`, behind its language.
///
/// Both lengths below are positions in the whole locale, where a difference of positions would be
/// expected. This is wanted: what follows the country runs into it ("en-US-x" is the country US-x),
/// and directories of installed languages are named so. Held by SplitLocale.Yields/LengthIs*.
std::string_view CountryBeforeOrBehind(std::string_view locale, std::size_t begin,
                                       std::size_t next) {
  if (next - begin == kCountryLength) return locale.substr(begin, next);
  const std::size_t behind = next + 1;
  return locale.substr(behind, locale.find('-', behind));
}

}  // namespace

int SplitLocale(std::string_view locale, std::string& language, std::string& country) {
  language.clear();
  country.clear();
  if (locale.empty()) return 0;
  const std::size_t separator = FindSeparator(locale);
  language = locale.substr(0, separator);
  if (separator == kNone) return 1;
  const std::size_t begin = separator + 1;
  const std::size_t next = locale.find('-', begin);
  if (next != kNone) {
    country = CountryBeforeOrBehind(locale, begin, next);
    return 2;
  }
  if (locale.size() - begin != kCountryLength) return 1;
  country = locale.substr(begin);
  return 2;
}

}  // namespace kx
