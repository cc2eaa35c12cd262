// Loads the library by hand, looks a text up, unloads the library, and tells whether it is gone;
// does that as often as it is told. Arguments: the library's full path, a bundle, a locale, a key,
// the number of rounds.

#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>

#include "CKxXlate.h"

namespace {

using GetBundleEntry = CKxXlate* (*)(const char*, const char*);

bool DoRound(const char* path, char** request) {
  void* library = ::dlopen(path, RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) {
    std::fprintf(stderr, "%s\n", ::dlerror());
    return false;
  }
  const auto getBundle =
      reinterpret_cast<GetBundleEntry>(::dlsym(library, "_ZN8CKxXlate9GetBundleEPKcS1_"));
  CKxXlate* translator = getBundle(request[0], request[1]);
  const char* text = translator->GetText(request[2]);
  std::puts(text == nullptr ? "(null)" : text);
  // Taken while the library lives: it never frees property translators, so none is destroyed here.
  translator->Release();
  ::dlclose(library);
  void* again = ::dlopen(path, RTLD_NOW | RTLD_NOLOAD);
  std::puts(again == nullptr ? "unloaded" : "still loaded");
  std::fflush(stdout);  // a leak checker that fails ends the process without that
  return true;
}

}  // namespace

int main(int count, char** values) {
  if (count != 6) return 3;
  for (int round = std::atoi(values[5]); round > 0; --round) {
    if (!DoRound(values[1], values + 2)) return 3;
  }
  return 0;
}
