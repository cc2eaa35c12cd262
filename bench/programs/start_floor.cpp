// The floor of a start: reads the file whole and looks for the one text in it.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

#include "catalogue/messages.h"
#include "support/tree.h"

int main(int argc, char** argv) {
  const std::string size = argc == 2 ? argv[1] : "100";
  const std::string path = bench::TreePath("resources/texts" + size + ".properties");
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  struct stat status {};
  if (file < 0 || fstat(file, &status) != 0) return 1;
  const auto length = static_cast<std::size_t>(status.st_size);
  const auto bytes = std::make_unique_for_overwrite<char[]>(length);
  if (read(file, bytes.get(), length) != status.st_size) return 1;
  const std::string start = bench::MakeMessage(std::atoi(size.c_str()) - 1).key + " = ";
  const void* line = memmem(bytes.get(), length, start.data(), start.size());
  if (line == nullptr) return 1;
  const char* text = static_cast<const char*>(line) + start.size();
  const char* end = bytes.get() + length;
  const void* lineEnd = std::memchr(text, '\n', static_cast<std::size_t>(end - text));
  const char* textEnd = lineEnd == nullptr ? end : static_cast<const char*>(lineEnd);
  return std::printf("%.*s\n", static_cast<int>(textEnd - text), text) > 0 ? 0 : 1;
}
