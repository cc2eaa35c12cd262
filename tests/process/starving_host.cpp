// A host that asks a property bundle for absent keys while memory runs out: each allocation of a
// request gets its turn to fail, with a key of its own, and the same key is then asked for again.
// Prints the keys. Arguments: a bundle, a locale, the beginning of the keys.
//
// It holds the library's code itself, so that its allocations are this program's on every system.

#include <iostream>
#include <new>
#include <string>
#include <vector>

#include "CKxXlate.h"
#include "support/failing_new.h"
#include "support/held_reference.h"
#include "tools/arguments.h"

namespace {

/// Whether the request got all the memory that it asked for.
bool AskWithMemoryFor(int allocations, CKxXlate& translator, const std::string& key) {
  try {
    const FailingNew failing(allocations);
    translator.GetText(key.c_str());
    return true;
  } catch (const std::bad_alloc&) {
    return false;
  }
}

}  // namespace

int main(int count, char** values) {
  const std::vector<std::string> words = Utf8Arguments(count, values);
  if (words.size() != 3) return 3;
  const HeldReference<CKxXlate> translator(CKxXlate::GetBundle(words[0].c_str(), words[1].c_str()));
  bool isServed = false;
  for (int allocations = 0; !isServed; ++allocations) {
    const std::string key = words[2] + std::to_string(allocations);
    isServed = AskWithMemoryFor(allocations, *translator, key);
    translator->GetText(key.c_str());
    std::cout << key << std::endl;
  }
  return 0;
}
