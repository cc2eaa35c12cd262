#ifndef KX_XLATE_VALUES_H
#define KX_XLATE_VALUES_H

#include <type_traits>

/// Ends the compilation where an object is among values that are passed as they are: nobody could
/// read the text of a std::string there.
template <bool kAnyIsObject>
struct KxValues {
  static_assert(!kAnyIsObject,
                "kx: an object cannot be a value here. Pass text.c_str(), or use "
                "kx::insert_variable");
  using Refused = int;  ///< never reached
};
/// Leaves all other calls alone.
template <>
struct KxValues<false> {};

/// Names a type for values that are refused, and none for others.
template <class... Values>
using KxRefused = typename KxValues<std::disjunction_v<std::is_class<Values>...>>::Refused;

#endif  // KX_XLATE_VALUES_H
