// Loads the library by hand, looks a text up, unloads the library, and tells whether it is gone;
// does that as often as it is told. Arguments: the library's full path, a bundle, a locale, a key,
// the number of rounds.

#include <windows.h>

#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "CKxXlate.h"
#include "tools/arguments.h"

namespace {

using GetBundleEntry = CKxXlate* (*)(const char*, const char*);

GetBundleEntry FindGetBundle(HMODULE library) {
  const FARPROC entry = ::GetProcAddress(library, "_ZN8CKxXlate9GetBundleEPKcS1_");
  return reinterpret_cast<GetBundleEntry>(reinterpret_cast<void*>(entry));
}

bool DoRound(const std::filesystem::path& path, const std::vector<std::string>& words) {
  const HMODULE library = ::LoadLibraryW(path.c_str());
  if (library == nullptr) {
    std::fprintf(stderr, "error %lu\n", ::GetLastError());
    return false;
  }
  CKxXlate* translator = FindGetBundle(library)(words[1].c_str(), words[2].c_str());
  const char* text = translator->GetText(words[3].c_str());
  std::puts(text == nullptr ? "(null)" : text);
  // Taken while the library lives: it never frees property translators, so none is destroyed here.
  translator->Release();
  ::FreeLibrary(library);
  std::puts(::GetModuleHandleW(path.filename().c_str()) == nullptr ? "unloaded" : "still loaded");
  return true;
}

}  // namespace

int main(int count, char** values) {
  const std::vector<std::string> words = Utf8Arguments(count, values);
  if (words.size() != 5) return 3;
  const std::filesystem::path path(std::u8string(words[0].begin(), words[0].end()));
  for (int round = std::stoi(words[4]); round > 0; --round) {
    if (!DoRound(path, words)) return 3;
  }
  return 0;
}
