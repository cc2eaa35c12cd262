#include <algorithm>
#include <cstdarg>
#include <string>
#include <vector>

#include "CKxXlate.h"
#include "format/argument_value.h"
#include "format/argument_walker.h"
#include "format/caller_buffer.h"
#include "format/format_pieces.h"
#include "format/printf_piece.h"

// CKxXlate::InsertVariableVA. It shares nothing with InsertVariable but how a fraction is printed:
// the two have different rules.

namespace {

using kx::ArgumentKind;

bool IsFloating(ArgumentKind kind) {
  return kind == ArgumentKind::kDouble || kind == ArgumentKind::kLongDouble;
}

/// How to read an argument that two conversions read differently. As the first one's floating value
/// when it says so, else as a word, which holds the bytes for both.
ArgumentKind Merge(ArgumentKind first, ArgumentKind other) {
  if (first == ArgumentKind::kUnread || first == other) return other;
  if (other == ArgumentKind::kUnread || IsFloating(first)) return first;
  return ArgumentKind::kWord;
}

/// The kinds of all arguments up to the last one that a conversion reads.
std::vector<ArgumentKind> KindsOfArguments(const std::vector<kx::FormatPiece>& pieces) {
  std::vector<ArgumentKind> kinds;
  for (const kx::FormatPiece& piece : pieces) {
    if (piece.isLiteral) continue;
    const ArgumentKind kind = kx::PrintfPiece(piece.text).Kind();
    if (kind == ArgumentKind::kUnread) continue;
    kinds.resize(std::max(kinds.size(), piece.argIndex + 1), ArgumentKind::kUnread);
    kinds[piece.argIndex] = Merge(kinds[piece.argIndex], kind);
  }
  return kinds;
}

/// Joins no more pieces than the first `size` bytes need: the rest is cut anyway.
std::string Join(const std::vector<kx::FormatPiece>& pieces,
                 const std::vector<kx::ArgumentValue>& values, KxSize size) {
  std::string result;
  for (const kx::FormatPiece& piece : pieces) {
    if (result.size() >= size) break;
    if (piece.isLiteral) {
      result += piece.text;
    } else {
      // A piece without a conversion may have a number past the last argument.
      const kx::ArgumentValue none = 0;
      const bool hasValue = piece.argIndex < values.size();
      kx::PrintfPiece(piece.text).AppendTo(result, hasValue ? values[piece.argIndex] : none);
    }
  }
  return result;
}

}  // namespace

void CKxXlate::InsertVariableVA(char* buffer, KxSize size, const char* format,
                                std::va_list arguments) {
  const std::vector<kx::FormatPiece> pieces = kx::CutIntoPieces(format == nullptr ? "" : format);
  const std::vector<kx::ArgumentValue> values =
      kx::TakeArguments(KindsOfArguments(pieces), arguments);
  kx::CopyVariableInsertion(buffer, size, Join(pieces, values, size));
}
