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

/// Whether any of them is an object. In words that compilers know whose default is C++14.
template <class... Values>
struct KxAnyObject : std::false_type {};
template <class First, class... Rest>
struct KxAnyObject<First, Rest...>
    : std::conditional<std::is_class<First>::value, std::true_type, KxAnyObject<Rest...>>::type {};

/// Names a type for values that are refused, and none for others.
template <class... Values>
using KxRefused = typename KxValues<KxAnyObject<Values...>::value>::Refused;

#endif  // KX_XLATE_VALUES_H
