#ifndef KX_XLATE_EXPORT_H
#define KX_XLATE_EXPORT_H

// KXXLATE_BUILDING is set only while the library itself is compiled.
#if defined(_WIN32)
#if defined(KXXLATE_BUILDING)
#define KXXLATE_API __declspec(dllexport)
#else
#define KXXLATE_API __declspec(dllimport)
#endif
#else
/// Marks what the shared library hands out.
#define KXXLATE_API __attribute__((visibility("default")))
#endif

#endif  // KX_XLATE_EXPORT_H
