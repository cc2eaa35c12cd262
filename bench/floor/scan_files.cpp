#include "floor/scan_files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <stdexcept>

namespace bench {

namespace {

struct Block {
  std::unique_ptr<char[]> bytes;
  std::size_t size;
};

Block ReadWhole(const std::string& path) {
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  struct stat status {};
  if (file < 0 || fstat(file, &status) != 0) throw std::runtime_error("cannot read " + path);
  const auto size = static_cast<std::size_t>(status.st_size);
  Block block{std::make_unique_for_overwrite<char[]>(size + 1), size};
  const ssize_t got = read(file, block.bytes.get(), size);
  close(file);
  if (got != status.st_size) throw std::runtime_error("cannot read " + path);
  // A last line without its line feed ends here.
  block.bytes[size] = '\0';
  return block;
}

/// The end of the line that begins at `line`: its line feed, or `end`.
char* LineEnd(char* line, char* end) {
  auto* found = static_cast<char*>(std::memchr(line, '\n', static_cast<std::size_t>(end - line)));
  return found == nullptr ? end : found;
}

/// Ends what lies between two places with NUL, without the blanks at its ends.
char* TrimAndEnd(char* begin, char*& end) {
  while (begin != end && *begin == ' ') ++begin;
  while (begin != end && end[-1] == ' ') --end;
  *end = '\0';
  return begin;
}

}  // namespace

FlatTable ScanProperties(const std::string& path) {
  Block block = ReadWhole(path);
  char* const start = block.bytes.get();
  char* const end = start + block.size;
  const auto lines = static_cast<std::size_t>(std::count(start, end, '\n'));
  FlatTable table(std::move(block.bytes), lines);
  for (char* line = start; line < end;) {
    char* lineEnd = LineEnd(line, end);
    char* const next = lineEnd + 1;
    if (auto* keyEnd =
            static_cast<char*>(std::memchr(line, '=', static_cast<std::size_t>(lineEnd - line)))) {
      const char* const text = TrimAndEnd(keyEnd + 1, lineEnd);
      const char* const key = TrimAndEnd(line, keyEnd);
      table.Add(static_cast<std::uint32_t>(key - start), static_cast<std::uint32_t>(keyEnd - key),
                static_cast<std::uint32_t>(text - start));
    }
    line = next;
  }
  return table;
}

FlatTable ScanLang(const std::string& path) {
  Block block = ReadWhole(path);
  char* const start = block.bytes.get();
  char* const end = start + block.size;
  const auto lines = static_cast<std::size_t>(std::count(start, end, '\n'));
  FlatTable table(std::move(block.bytes), lines / 2);
  char* key = nullptr;
  char* keyEnd = nullptr;
  for (char* line = start; line < end;) {
    char* lineEnd = LineEnd(line, end);
    char* const next = lineEnd + 1;
    if (std::strncmp(line, "Key ", 4) == 0) {
      keyEnd = lineEnd;
      key = TrimAndEnd(line + 4, keyEnd);
    } else if (key != nullptr && std::strncmp(line, "Value ", 6) == 0) {
      const char* const text = TrimAndEnd(line + 6, lineEnd);
      table.Add(static_cast<std::uint32_t>(key - start), static_cast<std::uint32_t>(keyEnd - key),
                static_cast<std::uint32_t>(text - start));
    }
    line = next;
  }
  return table;
}

}  // namespace bench
