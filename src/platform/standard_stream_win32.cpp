#include "platform/standard_stream.h"

#include <windows.h>

#include <string>

#include "platform/console_win32.h"
#include "platform/file_handle.h"

namespace kx {
namespace {

std::string WithCarriageReturns(std::string_view text) {
  std::string result;
  result.reserve(text.size() + 1);
  for (const char c : text) {
    if (c == '\n') result += '\r';
    result += c;
  }
  return result;
}

}  // namespace

bool WriteToStandardStream(StandardStream stream, std::string_view text) {
  const HANDLE handle =
      ::GetStdHandle(stream == StandardStream::kOutput ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE);
  if (handle == nullptr || handle == INVALID_HANDLE_VALUE) return false;
  const std::string bytes = WithCarriageReturns(text);
  if (IsConsole(handle)) return WriteToConsole(handle, bytes);
  return WriteFileBlock(reinterpret_cast<FileHandle>(handle), bytes.data(), bytes.size()) ==
         bytes.size();
}

}  // namespace kx
