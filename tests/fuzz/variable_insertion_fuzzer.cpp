// The texts of both variable insertions. Their types cannot be checked against the values, so the
// values suit every type: all pointers point at a short terminated text that is also a terminated
// wide text, and floating values come last. Where they have places of their own they are found
// there; where all values share their places, a pointer read as a floating value does no harm.
// Long doubles are read from the places of pointers everywhere, two or three for each.

#include <cstdarg>

#include "CKxXlate.h"
#include "format/format_pieces.h"
#include "fuzz/fuzz_target.h"

namespace {

constexpr std::size_t kMostArguments = 40;
constexpr KxSize kSize = 64;

alignas(16) constexpr char kText[32] = "text";

void InsertList(char* buffer, const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  CKxXlate::InsertVariableVA(buffer, kSize, format, arguments);
  va_end(arguments);
}

/// Whether there are enough values for the text.
bool HasValuesFor(const char* text) {
  kx::FormatPieces pieces(text);
  kx::FormatPiece piece;
  for (pieces.SkipLiteral(); pieces.TakeConversion(piece); pieces.SkipLiteral()) {
    if (piece.argIndex >= kMostArguments) return false;
  }
  return true;
}

}  // namespace

#define KX_TEN_TEXTS kText, kText, kText, kText, kText, kText, kText, kText, kText, kText
#define KX_HUNDRED_TEXTS                                                              \
  KX_TEN_TEXTS, KX_TEN_TEXTS, KX_TEN_TEXTS, KX_TEN_TEXTS, KX_TEN_TEXTS, KX_TEN_TEXTS, \
      KX_TEN_TEXTS, KX_TEN_TEXTS, KX_TEN_TEXTS, KX_TEN_TEXTS
#define KX_ALL_VALUES KX_HUNDRED_TEXTS, 1.5, -2.0, 1e300, 0.0, 5.0, 6.0, 7.0, 8.0

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const ExactText text(data, size);
  const std::unique_ptr<char[]> buffer(new char[kSize]);
  CKxXlate::InsertVariable(buffer.get(), kSize, text.Get(), KX_ALL_VALUES);
  Require(buffer[kSize - 1] == '\0');
  if (!HasValuesFor(text.Get())) return 0;
  InsertList(buffer.get(), text.Get(), KX_ALL_VALUES);
  Require(buffer[kSize - 1] == '\0');
  return 0;
}
