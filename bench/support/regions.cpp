#include "support/regions.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <stdexcept>

#include "support/tree.h"

namespace bench {

std::vector<std::string> RegionLocales(int count) {
  std::vector<std::string> locales;
  for (int number = 0; number < count; ++number) {
    locales.push_back(std::string("it-") + static_cast<char>('a' + number / 26) +
                      static_cast<char>('a' + number % 26));
  }
  return locales;
}

void AskForRegion(const std::string& locale) {
  struct stat status {};
  stat(TreePath("resources/IT/(Common).lang").c_str(), &status);
  if (stat(TreePath("resources/IT/region.lang").c_str(), &status) != 0) {
    throw std::runtime_error("the language is not there");
  }
  for (const char* name : {"/(Common).lang", "/region.lang"}) {
    const int file = open((TreePath("resources/") + locale + name).c_str(), O_RDONLY | O_CLOEXEC);
    if (file >= 0) throw std::runtime_error("the region has files");
  }
}

}  // namespace bench
