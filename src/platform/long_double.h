#ifndef KX_PLATFORM_LONG_DOUBLE_H
#define KX_PLATFORM_LONG_DOUBLE_H

namespace kx {

/// What a host passes in a variable argument list where a text says "%Lf".
///
/// The compilers of hosts on Windows have nothing beyond a double there, and pass one. The compiler
/// that builds this library has, but passes its address, which no other of them would understand.
#if defined(_WIN32)
using HostLongDouble = double;
#else
using HostLongDouble = long double;
#endif

}  // namespace kx

#endif  // KX_PLATFORM_LONG_DOUBLE_H
