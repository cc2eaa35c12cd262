#ifndef KX_BUNDLES_SPLIT_LOCALE_H
#define KX_BUNDLES_SPLIT_LOCALE_H

#include <string>
#include <string_view>

namespace kx {

/// Splits a locale into language and country.
///
/// The separator is the first "-" or, when there is none, the first "_". "fr-CA" and "fr_CA" give
/// fr and CA, "zh-Hant-TW" gives zh and TW. A last part that is not two bytes long is dropped
/// ("es_419" is es alone).
///
/// @param language  replaced; empty when there is none
/// @param country   replaced; empty when there is none
/// @return how many parts were found: 0 for an empty locale, 1 for a language alone, 2 for both
int SplitLocale(std::string_view locale, std::string& language, std::string& country);

}  // namespace kx

#endif  // KX_BUNDLES_SPLIT_LOCALE_H
