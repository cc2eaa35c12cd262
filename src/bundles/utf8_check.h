#ifndef KX_BUNDLES_UTF8_CHECK_H
#define KX_BUNDLES_UTF8_CHECK_H

#include <string_view>

namespace kx {

/// Whether `text` is well-formed UTF-8 in the wide sense of its first definition: sequences of up
/// to six bytes pass, as do surrogates and code points above U+10FFFF, since old catalogues hold
/// them. Overlong forms and broken sequences do not.
bool IsWellFormedUtf8(std::string_view text) noexcept;

}  // namespace kx

#endif  // KX_BUNDLES_UTF8_CHECK_H
