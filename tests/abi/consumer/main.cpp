#include <CKxXlate.h>

#include <cstdio>

int main() {
  char line[32];
  CKxXlate::Insert(line, sizeof line - 1, "%1 of %0", "ten", "three");
  std::fputs(line, stdout);
  return CKxXlate::GetBundle("", "en") == nullptr ? 0 : 1;
}
