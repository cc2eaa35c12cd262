// A host that compares what the headers list with what the library serves.
//
//   face_host BUNDLE LOCALE...   prints the locales that kx::locales lists, and in the next line
//   those
//                                of the given ones for which the library has a text "Origin"

#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "KxXlate.hpp"
#include "tools/arguments.h"

int main(int count, char** values) {
  const std::vector<std::string> arguments = Utf8Arguments(count, values);
  const std::string& bundle = arguments.at(0);
  for (const std::string& locale : kx::locales(bundle)) std::cout << locale << ' ';
  std::cout << std::endl;
  for (std::size_t index = 1; index < arguments.size(); ++index) {
    const kx::Translator texts = kx::Translator::find(bundle, arguments[index]);
    // English answers where nothing else does.
    const bool isItsOwn = texts.text_or("Origin", "") == std::string_view(arguments[index]);
    if (isItsOwn) std::cout << arguments[index] << ' ';
  }
  std::cout << std::endl;
  CKxXlate::FreeCache();
  return 0;
}
