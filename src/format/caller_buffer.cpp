#include "format/caller_buffer.h"

#include <cstring>

namespace kx {
namespace {

bool IsAbsent(const char* dst, KxSize size) { return dst == nullptr || size == 0; }

// The text may lie in the buffer: a host may well pass the default that it already put there.
void CopyTerminated(char* dst, std::string_view text) {
  if (!text.empty()) std::memmove(dst, text.data(), text.size());
  dst[text.size()] = '\0';
}

}  // namespace

void CopyLookupText(char* dst, KxSize size, std::string_view text) {
  if (IsAbsent(dst, size)) return;
  CopyTerminated(dst, text.substr(0, size - 1));
}

void CopyInsertion(char* dst, KxSize size, std::string_view text) {
  if (IsAbsent(dst, size)) return;
  CopyTerminated(dst, text.size() > size ? text.substr(0, size - 1) : text);
}

void CopyVariableInsertion(char* dst, KxSize size, std::string_view text) {
  if (IsAbsent(dst, size)) return;
  text = text.substr(0, size - 1);
  CopyTerminated(dst, text);
  std::memset(dst + text.size(), 0, size - text.size());
}

bool AnswerLookup(char* dst, KxSize size, const char* found, const char* fallback) {
  if (IsAbsent(dst, size)) return false;
  const char* text = found != nullptr ? found : fallback;
  CopyLookupText(dst, size, text == nullptr ? "" : text);
  return found != nullptr;
}

}  // namespace kx
