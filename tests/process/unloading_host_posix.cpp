// Loads the library by hand, looks a text up, unloads the library, and tells whether it is gone.
// Arguments: the library's full path, a bundle, a locale, a key.

#include <dlfcn.h>

#include <cstdio>

#include "CKxXlate.h"

namespace {

using GetBundleEntry = CKxXlate* (*)(const char*, const char*);

}  // namespace

int main(int count, char** values) {
  if (count != 5) return 3;
  void* library = ::dlopen(values[1], RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) {
    std::fprintf(stderr, "%s\n", ::dlerror());
    return 3;
  }
  const auto getBundle =
      reinterpret_cast<GetBundleEntry>(::dlsym(library, "_ZN8CKxXlate9GetBundleEPKcS1_"));
  CKxXlate* translator = getBundle(values[2], values[3]);
  const char* text = translator->GetText(values[4]);
  std::puts(text == nullptr ? "(null)" : text);
  // Taken while the library lives: it never frees property translators, so none is destroyed here.
  translator->Release();
  ::dlclose(library);
  void* again = ::dlopen(values[1], RTLD_NOW | RTLD_NOLOAD);
  std::puts(again == nullptr ? "unloaded" : "still loaded");
  std::fflush(stdout);  // a leak checker that fails ends the process without that
  return 0;
}
