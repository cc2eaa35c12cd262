#ifndef KX_FORMAT_ARGUMENT_KIND_H
#define KX_FORMAT_ARGUMENT_KIND_H

#include <cstdint>

namespace kx {

/// How an argument of a variable argument list is read.
enum class ArgumentKind : std::uint8_t {
  kUnread,  ///< no conversion reads it; it is stepped over as a word
  kWord,    ///< a pointer or an integer, of which conversions may look at the lower bits alone
  kDouble,
  kLongDouble,  ///< what hosts pass for "%Lf": see platform/long_double.h
};

}  // namespace kx

#endif  // KX_FORMAT_ARGUMENT_KIND_H
