#ifndef KX_PLATFORM_DECIMAL_POINT_H
#define KX_PLATFORM_DECIMAL_POINT_H

namespace kx {

/// The decimal point of the calling thread's locale, as printf would take it now; '\0' when it is
/// more than one byte. Asked anew each time: a host may change its locale between two calls.
char DecimalPoint() noexcept;

}  // namespace kx

#endif  // KX_PLATFORM_DECIMAL_POINT_H
