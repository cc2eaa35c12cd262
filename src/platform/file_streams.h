#ifndef KX_PLATFORM_FILE_STREAMS_H
#define KX_PLATFORM_FILE_STREAMS_H

#include <cstddef>
#include <istream>
#include <memory>
#include <ostream>
#include <streambuf>

#include "platform/file_handle.h"

// Streams of our own rather than std::ifstream and std::ofstream, which can neither be opened on a
// descriptor that was checked first nor be told not to wait for a pipe.

namespace kx {

/// Reads a file in large blocks. A read error counts as the end of the file, but is remembered.
class FileInputBuffer final : public std::streambuf {
 public:
  FileInputBuffer() = default;
  /// Takes over an open file.
  explicit FileInputBuffer(FileHandle file) : file_(file) {}
  FileInputBuffer(const FileInputBuffer&) = delete;
  FileInputBuffer& operator=(const FileInputBuffer&) = delete;
  ~FileInputBuffer() override;

  bool Open(const char* path);
  bool MayWorkLater() const noexcept { return mayWorkLater_; }

 protected:
  int_type underflow() override;
  std::streamsize xsgetn(char* bytes, std::streamsize size) override;

 private:
  std::size_t Read(char* bytes, std::size_t size);

  FileHandle file_ = kNoFile;
  bool mayWorkLater_ = false;
  std::unique_ptr<char[]> block_;
};

/// Hands each write to the system at once, so that a line written whole lands whole in the file. A
/// line that was cut, as by a full disk, is ended before the next one begins.
class FileOutputBuffer final : public std::streambuf {
 public:
  FileOutputBuffer() = default;
  FileOutputBuffer(const FileOutputBuffer&) = delete;
  FileOutputBuffer& operator=(const FileOutputBuffer&) = delete;
  ~FileOutputBuffer() override;

  bool Open(const char* path);
  bool MayWorkLater() const noexcept { return mayWorkLater_; }

 protected:
  std::streamsize xsputn(const char* text, std::streamsize size) override;
  int_type overflow(int_type c) override;

 private:
  std::size_t Write(const char* text, std::size_t size);

  FileHandle file_ = kNoFile;
  bool mayWorkLater_ = false;
  bool isCut_ = false;
};

}  // namespace kx

/// An input stream over one regular file. Closes the file when it is destroyed.
class CKxIfstream final : public std::istream {
 public:
  CKxIfstream() : std::istream(nullptr) { init(&buffer_); }

  /// Over a file that is open, and that the stream takes over.
  explicit CKxIfstream(kx::FileHandle file) : std::istream(nullptr), buffer_(file) {
    init(&buffer_);
  }

  /// Whether there is a file whose text this stream has not given, or not to its end, for a reason
  /// that passes: see OpenedFile. Every read that fails half-way counts as one.
  bool MayWorkLater() const noexcept { return buffer_.MayWorkLater(); }

 private:
  friend void KxIfstreamOpen(CKxIfstream& stream, const char* path);
  kx::FileInputBuffer buffer_;
};

/// An output stream to the end of one file. Closes the file when it is destroyed.
class CKxOfstream final : public std::ostream {
 public:
  CKxOfstream() : std::ostream(nullptr) { init(&buffer_); }

  /// Whether the file could not be opened for a reason that passes: see OpenedFile.
  bool MayWorkLater() const noexcept { return buffer_.MayWorkLater(); }

 private:
  friend void KxOfstreamOpen(CKxOfstream& stream, const char* path);
  kx::FileOutputBuffer buffer_;
};

/// Opens `stream`, which must be new, on the regular file `path` (UTF-8). When there is no such
/// file, when it may not be read or is no regular file, the stream is in the fail state.
void KxIfstreamOpen(CKxIfstream& stream, const char* path);

/// Opens `stream`, which must be new, for writing at the end of the file `path` (UTF-8), which is
/// created when missing. The stream is in the fail state when that is not possible.
void KxOfstreamOpen(CKxOfstream& stream, const char* path);

#endif  // KX_PLATFORM_FILE_STREAMS_H
