#ifndef KX_FORMAT_ARGUMENT_WALKER_H
#define KX_FORMAT_ARGUMENT_WALKER_H

#include <cstdarg>
#include <cstdint>
#include <vector>

#include "format/argument_value.h"

namespace kx {

/// How an argument of a variable argument list is read.
enum class ArgumentKind : std::uint8_t {
  kUnread,  ///< no conversion reads it; it is stepped over as a word
  kInt,
  kWord,  ///< a pointer or an integer of 64 bits
  kDouble,
  kLongDouble,  ///< what hosts pass for "%Lf": see platform/long_double.h
};

/// Reads arguments by position, one for each of `kinds`.
///
/// The kinds of all arguments must be known before the first is read: on 64-bit Windows each
/// argument is one place of 8 bytes, but on 64-bit Linux integers, floating values and long ones
/// come from different areas, so that an argument of unknown kind cannot even be skipped.
///
/// @param arguments  is used up
std::vector<ArgumentValue> TakeArguments(const std::vector<ArgumentKind>& kinds,
                                         std::va_list arguments);

}  // namespace kx

#endif  // KX_FORMAT_ARGUMENT_WALKER_H
