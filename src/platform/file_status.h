#ifndef KX_PLATFORM_FILE_STATUS_H
#define KX_PLATFORM_FILE_STATUS_H

#include <cstdint>

/// What the library needs to know of a file or directory.
struct KxFileStatus {
  std::int64_t modified = 0;  ///< last change, in whole seconds since 1970-01-01 00:00 UTC
  std::uint32_t mode = 0;     ///< kind bits, the same on every platform; see kKxModeDirectory
};

/// Bit of KxFileStatus::mode that says "directory".
constexpr std::uint32_t kKxModeDirectory = 0x4000;

/// Asks the system for the status of `path`.
///
/// @param path    UTF-8, "/" and (on Windows) "\" both accepted; not null
/// @param status  filled on success, untouched on failure
/// @return 0 on success, non-zero when there is no such file or it may not be looked at; the
///         reason is not told, because no caller acts on it
///
/// Follows symbolic links. Safe from any thread.
int KxStat(const char* path, KxFileStatus* status);

/// Whether `path` names a directory that can be looked at.
bool KxIsDirectory(const char* path);

/// Whether the system takes `path` for a place on another machine or a device: on Windows one that
/// begins with two separators; nowhere else any.
bool KxIsNetworkPath(const char* path);

#endif  // KX_PLATFORM_FILE_STATUS_H
