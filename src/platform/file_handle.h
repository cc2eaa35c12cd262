#ifndef KX_PLATFORM_FILE_HANDLE_H
#define KX_PLATFORM_FILE_HANDLE_H

#include <cstddef>
#include <cstdint>

namespace kx {

/// An open file of the system: a descriptor or a handle.
using FileHandle = std::intptr_t;

constexpr FileHandle kNoFile = -1;

/// Opens the regular file `path` (UTF-8) for reading. kNoFile for anything that is not a regular
/// file, such as a pipe, a device or a directory; never waits for another process.
FileHandle OpenRegularFile(const char* path);

/// Opens `path` (UTF-8) for writing at its end and creates it when missing; kNoFile when that is
/// not possible or it is a pipe. Never waits for another process.
FileHandle OpenForAppending(const char* path);

/// Reads up to `size` bytes. 0 at the end of the file and when reading fails.
std::size_t ReadFileBlock(FileHandle file, char* block, std::size_t size);

/// Writes `size` bytes, or as many as is possible; answers how many.
std::size_t WriteFileBlock(FileHandle file, const char* block, std::size_t size);

void CloseFile(FileHandle file);

}  // namespace kx

#endif  // KX_PLATFORM_FILE_HANDLE_H
