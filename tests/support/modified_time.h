#ifndef KX_TESTS_SUPPORT_MODIFIED_TIME_H
#define KX_TESTS_SUPPORT_MODIFIED_TIME_H

#include <chrono>
#include <string>

/// Sets the time of last change of a file (UTF-8 path), to the unit that the system has: the
/// compiler's own library sets whole seconds on Windows.
void SetModifiedTime(const std::string& path, std::chrono::nanoseconds since1970);

#endif  // KX_TESTS_SUPPORT_MODIFIED_TIME_H
