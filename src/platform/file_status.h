#ifndef KX_PLATFORM_FILE_STATUS_H
#define KX_PLATFORM_FILE_STATUS_H

#include <cstdint>
#include <string_view>

/// What the library needs to know of a file or directory.
struct KxFileStatus {
  std::int64_t modified = 0;  ///< last change, in whole seconds since 1970-01-01 00:00 UTC
  std::uint32_t modifiedNanoseconds = 0;  ///< the rest of it, to the finest unit the system gives
  std::uint64_t size = 0;                 ///< in bytes
  std::uint32_t mode = 0;  ///< kind bits, the same on every platform; see kKxModeDirectory
  /// Together they tell one file, and on some systems one state of it, from another that has its
  /// time and its size.
  std::uint64_t device = 0;
  std::uint64_t number = 0;  ///< within the device
  std::int64_t changed = 0;  ///< in any way, where the system tells; else when the file was made

  bool operator==(const KxFileStatus&) const = default;
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

/// Whether the system takes `path`, which was made from `directory` and more, for a place on
/// another machine or a device, though the directory is on this one. On Windows a path that begins
/// with two separators is such a place: a lone "/" and a file's name joined by a separator make
/// one. Nowhere else any is.
///
/// @param directory  without the separator that joins; may be ""
bool KxLeavesTheMachine(std::string_view directory, std::string_view path);

/// Whether `component`, a part of a path between two separators, names what it says: an entry of
/// the directory before it, and no other spelling of one. ".." leads out of the directory. Windows
/// drops dots and blanks at a name's end, and ":" is a drive's or a hidden stream's there.
///
/// To be asked of what strangers send, before a path is made of it.
bool KxIsPlainComponent(std::string_view component);

#endif  // KX_PLATFORM_FILE_STATUS_H
