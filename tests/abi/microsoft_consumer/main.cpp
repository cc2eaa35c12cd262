#include <Xlate.h>

#include <cstdio>

int main() {
  Xlate message;
  message.args.assign("ten\0three", 9);
  message.argCount = 2;
  // Without a bundle each key is its own text.
  std::fputs(CKxXlate::Format(&message, "%1 of %0"), stdout);
  ReleaseTranslator(message);
  CKxXlate::FreeCache();
  return message.translator == nullptr ? 0 : 1;
}
