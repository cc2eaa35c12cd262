// A host that goes on using the library while its process ends: in threads that nobody waits for,
// and in the destructor of a global. Arguments: a property bundle, a component with language files,
// a locale, a key.

#include <atomic>
#include <cstdio>
#include <string>
#include <thread>

#include "CKxXlate.h"

namespace {

std::string g_bundle;
std::string g_component;
std::string g_locale;
std::string g_key;

void LookUp(const std::string& name) {
  CKxXlate* translator = CKxXlate::GetBundle(name.c_str(), g_locale.c_str());
  translator->GetText(g_key.c_str());
  translator->GetText("ABSENT");
  translator->Release();
}

struct LastWords {
  ~LastWords() {
    LookUp(g_bundle);
    LookUp(g_component);
    CKxXlate::FreeCache();
    std::puts("ended");
  }
} g_lastWords;

// The strings above must outlive the threads, which outlive everything.
[[noreturn]] void LookUpForEver(CKxXlate* translator, const char* key, std::atomic<int>& rounds) {
  for (;;) {
    translator->GetText(key);
    translator->GetText("ABSENT");
    ++rounds;
  }
}

}  // namespace

int main(int count, char** values) {
  if (count != 5) return 3;
  g_bundle = values[1];
  g_component = values[2];
  g_locale = values[3];
  g_key = values[4];
  static std::atomic<int> rounds = 0;
  for (const char* name : {values[1], values[2]}) {
    std::thread(LookUpForEver, CKxXlate::GetBundle(name, values[3]), values[4], std::ref(rounds))
        .detach();
  }
  while (rounds < 1000) std::this_thread::yield();
  return 0;
}
