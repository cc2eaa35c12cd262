#include "platform/utf8_text.h"

#include <cstring>

namespace {

constexpr char kWhiteSpace[] = " \t\n\v\f\r";

bool IsWhiteSpace(char c) { return c != '\0' && std::strchr(kWhiteSpace, c) != nullptr; }

}  // namespace

char* KxUTF8Trim(char* text) {
  text += std::strspn(text, kWhiteSpace);
  char* end = text + std::strlen(text);
  while (end != text && IsWhiteSpace(end[-1])) --end;
  *end = '\0';
  return text;
}
