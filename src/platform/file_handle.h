#ifndef KX_PLATFORM_FILE_HANDLE_H
#define KX_PLATFORM_FILE_HANDLE_H

#include <cstddef>
#include <cstdint>

struct KxFileStatus;

namespace kx {

/// An open file of the system: a descriptor or a handle.
using FileHandle = std::intptr_t;

constexpr FileHandle kNoFile = -1;

/// What came of opening a file.
struct OpenedFile {
  FileHandle file = kNoFile;
  /// Not open, for a reason that passes: another program keeps the file to itself, too many files
  /// are open, or there is no memory. A file that is absent or forbidden is no such case.
  bool mayOpenLater = false;
};

/// What came of reading a piece of a file.
struct FileBlock {
  std::size_t size = 0;  ///< bytes read; 0 at the end of the file and when reading failed
  bool failed = false;
};

// Both open nothing that would wait for another process, but ask for up to a tenth of a second
// again for a file that another program keeps to itself: editors and installers do so while they
// write. And neither takes the place of a standard stream that the host has closed, since what the
// host or the library prints would land in the file.

/// Opens the regular file `path` (UTF-8) for reading; nothing that is not a regular file, such as a
/// pipe, a device or a directory.
///
/// @param status  null, or where to put the status that `path` had before it was opened, also when
///                it could not be opened; untouched when there is nothing of that name
OpenedFile OpenRegularFile(const char* path, KxFileStatus* status = nullptr);

/// Opens `path` (UTF-8) for writing at its end and creates it when missing; no pipe.
OpenedFile OpenForAppending(const char* path);

/// Reads up to `size` bytes.
FileBlock ReadFileBlock(FileHandle file, char* block, std::size_t size);

/// Writes `size` bytes, or as many as is possible; answers how many.
std::size_t WriteFileBlock(FileHandle file, const char* block, std::size_t size);

void CloseFile(FileHandle file);

}  // namespace kx

#endif  // KX_PLATFORM_FILE_HANDLE_H
