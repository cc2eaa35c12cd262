#ifndef KX_XLATE_VERSION_H
#define KX_XLATE_VERSION_H

// The version of these headers, for #if. The library that a host has loaded may be another one: it
// tells its own by getProductVersion. CMake refuses to configure when these differ from the
// project's version, and a test compares them with the banner.

/// Hosts are built anew when this changes, and not before.
#define KXXLATE_VERSION_MAJOR 12
/// Grows when something is added.
#define KXXLATE_VERSION_MINOR 8
/// Grows with each release between.
#define KXXLATE_VERSION_PATCH 801

/// One number, which grows with each version: 12080801 for 12.8.801.
#define KXXLATE_VERSION \
  (KXXLATE_VERSION_MAJOR * 1000000 + KXXLATE_VERSION_MINOR * 10000 + KXXLATE_VERSION_PATCH)

/// The same to read.
#define KXXLATE_VERSION_STRING "12.8.801"

#endif  // KX_XLATE_VERSION_H
