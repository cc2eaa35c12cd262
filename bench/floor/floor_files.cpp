#include "floor/floor_files.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstring>
#include <stdexcept>
#include <string_view>

#include "support/tree.h"

namespace bench {

namespace {

const char* const kFour[] = {"DE/(Common).lang", "DE/gateway.lang", "DE-AT/(Common).lang",
                             "DE-AT/gateway.lang"};

void Expect(bool done, const char* what) {
  if (!done) throw std::runtime_error(what);
}

FlatTable TableOf(const std::string& names, std::size_t count) {
  auto block = std::make_unique_for_overwrite<char[]>(names.size());
  std::memcpy(block.get(), names.data(), names.size());
  FlatTable table(std::move(block), count);
  std::size_t at = 0;
  while (at < names.size()) {
    const std::size_t length = std::strlen(names.c_str() + at);
    table.Add(static_cast<std::uint32_t>(at), static_cast<std::uint32_t>(length),
              static_cast<std::uint32_t>(at));
    at += length + 1;
  }
  return table;
}

void AskFor(const std::string& path) {
  struct stat status {};
  Expect(stat(path.c_str(), &status) == 0, "a catalogue is not there");
}

}  // namespace

FlatTable BundleTable(const std::vector<std::string>& names) {
  std::string all;
  for (const std::string& name : names) all.append(name).push_back('\0');
  return TableOf(all, names.size());
}

void AskForFourFiles() {
  static const std::vector<std::string> paths = [] {
    std::vector<std::string> all;
    for (const char* name : kFour) all.push_back(TreePath("resources/") + name);
    return all;
  }();
  for (const std::string& path : paths) AskFor(path);
}

void AskForFourFilesBelow() {
  static const int directory =
      open(TreePath("resources").c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
  for (const char* name : kFour) {
    struct stat status {};
    Expect(fstatat(directory, name, &status, 0) == 0, "a catalogue is not there");
  }
}

void AskForAbsentLanguage() {
  static const std::string absent[] = {TreePath("resources/XY/(Common).lang"),
                                       TreePath("resources/XY/gateway.lang")};
  static const std::string english[] = {TreePath("resources/EN/(Common).lang"),
                                        TreePath("resources/EN/gateway.lang")};
  static const int log =
      open(TreePath("floor.log").c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666);
  constexpr std::string_view kLine = "No \"XY (gateway)\" files found, trying EN.\n";
  for (const std::string& path : absent) {
    Expect(open(path.c_str(), O_RDONLY | O_CLOEXEC) < 0, "a catalogue is there");
  }
  Expect(write(log, kLine.data(), kLine.size()) > 0, "no line can be logged");
  for (const std::string& path : english) AskFor(path);
}

FlatTable RegisterBundleFiles(const std::string& directory) {
  constexpr std::string_view kSuffix = ".properties";
  DIR* const listing = opendir(directory.c_str());
  Expect(listing != nullptr, "no directory");
  std::string names;
  std::size_t count = 0;
  while (const dirent* entry = readdir(listing)) {
    const std::string_view name = entry->d_name;
    if (!name.ends_with(kSuffix)) continue;
    names.append(name.substr(0, name.size() - kSuffix.size())).push_back('\0');
    ++count;
  }
  closedir(listing);
  return TableOf(names, count);
}

}  // namespace bench
