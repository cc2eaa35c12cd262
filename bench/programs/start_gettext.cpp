// The same as the library's own start, by the C library's gettext.
#include <libintl.h>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "catalogue/messages.h"
#include "support/tree.h"

int main(int argc, char** argv) {
  const std::string size = argc == 2 ? argv[1] : "100";
  const std::string domain = "texts" + size;
  setenv("LANGUAGE", "fr", 1);
  std::setlocale(LC_ALL, "C.UTF-8");
  bindtextdomain(domain.c_str(), bench::TreePath("peers/locale").c_str());
  textdomain(domain.c_str());
  const std::string key = bench::MakeMessage(std::atoi(size.c_str()) - 1).key;
  const char* text = gettext(key.c_str());
  return text != key.c_str() && std::puts(text) >= 0 ? 0 : 1;
}
