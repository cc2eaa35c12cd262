#ifndef KX_PLATFORM_ARGUMENT_LIST_H
#define KX_PLATFORM_ARGUMENT_LIST_H

#include <cstdarg>
#include <type_traits>

namespace kx {

/// A std::va_list as a parameter has it: an object may keep it and take arguments from it, without
/// a copy of the list. On Linux a list is an array, and a parameter the address of the caller's; on
/// Windows it is an address of its own kind, which no template gives back.
#if defined(_WIN32)
using ArgumentList = std::va_list;
#else
using ArgumentList = std::decay_t<std::va_list>;
#endif

}  // namespace kx

#endif  // KX_PLATFORM_ARGUMENT_LIST_H
