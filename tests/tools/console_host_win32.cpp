// Sets the console's code page to 437, has the library report a problem and log a missing key, and
// prints the code page.
// Argument: the directory of the catalogues, whose bundle "agent" has the problem. Serves as the
// key, too.

#include <windows.h>

#include <cstdio>
#include <string>
#include <vector>

#include "CKxXlate.h"
#include "tools/arguments.h"

int main(int count, char** values) {
  const std::vector<std::string> words = Utf8Arguments(count, values);
  if (words.size() != 1) return 3;
  ::SetConsoleOutputCP(437);
  CKxXlate::SetResourceDirectory(words[0].c_str());
  CKxXlate* const translator = CKxXlate::GetBundle("agent", "fr");
  translator->GetText(words[0].c_str());
  translator->Release();
  std::printf("code page %u\n", ::GetConsoleOutputCP());
  return 0;
}
