#include "platform/file_streams.h"

#include <algorithm>
#include <cstring>

namespace kx {
namespace {

constexpr std::size_t kBlockBytes = std::size_t{64} * 1024;

}  // namespace

FileInputBuffer::~FileInputBuffer() {
  if (file_ != kNoFile) CloseFile(file_);
}

bool FileInputBuffer::Open(const char* path) {
  const OpenedFile opened = OpenRegularFile(path);
  file_ = opened.file;
  mayWorkLater_ = opened.mayOpenLater;
  return file_ != kNoFile;
}

FileInputBuffer::int_type FileInputBuffer::underflow() {
  if (block_ == nullptr) block_ = std::make_unique_for_overwrite<char[]>(kBlockBytes);
  const std::size_t count = Read(block_.get(), kBlockBytes);
  if (count == 0) return traits_type::eof();
  setg(block_.get(), block_.get(), block_.get() + count);
  return traits_type::to_int_type(block_[0]);
}

// Into the caller's memory at once: readers of whole files have a block of their own.
std::streamsize FileInputBuffer::xsgetn(char* bytes, std::streamsize size) {
  const std::streamsize kept = std::min<std::streamsize>(egptr() - gptr(), size);
  if (kept > 0) std::memcpy(bytes, gptr(), static_cast<std::size_t>(kept));
  gbump(static_cast<int>(kept));
  std::streamsize done = kept;
  while (done < size) {
    const std::size_t count = Read(bytes + done, static_cast<std::size_t>(size - done));
    if (count == 0) break;
    done += static_cast<std::streamsize>(count);
  }
  return done;
}

std::size_t FileInputBuffer::Read(char* bytes, std::size_t size) {
  if (file_ == kNoFile) return 0;
  const FileBlock read = ReadFileBlock(file_, bytes, size);
  mayWorkLater_ = mayWorkLater_ || read.failed;
  return read.size;
}

FileOutputBuffer::~FileOutputBuffer() {
  if (file_ != kNoFile) CloseFile(file_);
}

bool FileOutputBuffer::Open(const char* path) {
  const OpenedFile opened = OpenForAppending(path);
  file_ = opened.file;
  mayWorkLater_ = opened.mayOpenLater;
  return file_ != kNoFile;
}

std::streamsize FileOutputBuffer::xsputn(const char* text, std::streamsize size) {
  if (file_ == kNoFile) return 0;
  if (isCut_ && Write("\n", 1) == 0) return 0;
  return static_cast<std::streamsize>(Write(text, static_cast<std::size_t>(size)));
}

std::size_t FileOutputBuffer::Write(const char* text, std::size_t size) {
  const std::size_t written = WriteFileBlock(file_, text, size);
  // What was lost whole leaves the end of the file as it was.
  if (written > 0) isCut_ = written < size;
  return written;
}

FileOutputBuffer::int_type FileOutputBuffer::overflow(int_type c) {
  if (traits_type::eq_int_type(c, traits_type::eof())) return traits_type::not_eof(c);
  const char byte = traits_type::to_char_type(c);
  return xsputn(&byte, 1) == 1 ? c : traits_type::eof();
}

}  // namespace kx

void KxIfstreamOpen(CKxIfstream& stream, const char* path) {
  if (!stream.buffer_.Open(path)) stream.setstate(std::ios::failbit);
}

void KxOfstreamOpen(CKxOfstream& stream, const char* path) {
  if (!stream.buffer_.Open(path)) stream.setstate(std::ios::failbit);
}
