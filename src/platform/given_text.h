#ifndef KX_PLATFORM_GIVEN_TEXT_H
#define KX_PLATFORM_GIVEN_TEXT_H

namespace kx {

/// Whether a caller gave a text at all: null and "" both say no.
constexpr bool IsGiven(const char* text) { return text != nullptr && *text != '\0'; }

}  // namespace kx

#endif  // KX_PLATFORM_GIVEN_TEXT_H
