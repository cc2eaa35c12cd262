// The smallest host: greets in the locale given as first argument.
//
// The library finds the catalogues by itself: in a directory "resources" beside or above this
// program, under TAVI_XLATE_ROOT, or in the working directory. Where the library is installed:
//
//     g++ -std=c++17 host.cpp -o host -lKxXlate
//     TAVI_XLATE_ROOT=catalogues ./host fr-CA

#include <KxXlate.hpp>

#include <iostream>

int main(int count, char** values) {
  // Never empty for a name that is not: without catalogues the fallback below is shown.
  const kx::Translator texts = kx::Translator::find("agent", count > 1 ? values[1] : "en");
  std::cout << kx::insert(texts.text_or("WELCOME_USER", "%0 (%1)"), "Ann", 3) << '\n';
}
