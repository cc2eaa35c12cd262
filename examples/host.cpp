// The smallest host: greets in the locale given as first argument.
//
// The library finds the catalogues by itself: in a directory "resources" beside or above this
// program, under TAVI_XLATE_ROOT, or in the working directory.

#include <CKxXlate.h>

#include <iostream>

int main(int count, char** values) {
  // Never null for a name that is not empty: without catalogues the defaults below are shown.
  CKxXlate* texts = CKxXlate::GetBundle("agent", count > 1 ? values[1] : "en");
  char text[200];
  texts->GetText(text, sizeof text, "WELCOME_USER", "%0 (%1)");
  char line[256];
  CKxXlate::Insert(line, sizeof line - 1, text, "Ann", "3");
  std::cout << line << '\n';
  texts->Release();
  CKxXlate::FreeCache();
}
