// A host that lists locales and does not load the library, so that it can run for a user who may
// not be let into the folder of the build.

#include <iostream>
#include <string>

#include "kxxlate/locales.hpp"

int main(int count, char** values) {
  for (const std::string& locale : kx::locales(count > 1 ? values[1] : "")) {
    std::cout << locale << ' ';
  }
  std::cout << std::endl;
  return 0;
}
