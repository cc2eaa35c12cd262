#include <algorithm>
#include <cstdarg>
#include <cstddef>

#include "CKxXlate.h"
#include "format/argument_walker.h"
#include "format/caller_buffer.h"
#include "format/format_pieces.h"
#include "format/printf_piece.h"
#include "format/result_text.h"
#include "format/short_list.h"

// CKxXlate::InsertVariableVA. It shares nothing with InsertVariable but how a value is printed: the
// two have different rules.

namespace {

using kx::ArgumentKind;

/// Takes all arguments up to the last that the text reads, each as the first conversion reads it:
/// `piece`, which is of `kind`, or one of those behind it.
void TakeAll(kx::ArgumentWalker& arguments, kx::FormatPiece piece, ArgumentKind kind,
             kx::FormatPieces behind) {
  kx::ShortList<ArgumentKind, 16> kinds;
  for (;;) {
    if (kind != ArgumentKind::kUnread && piece.argIndex >= arguments.Taken()) {
      const std::size_t index = piece.argIndex - arguments.Taken();
      while (kinds.Size() <= index) kinds.Add(ArgumentKind::kUnread);
      if (kinds[index] == ArgumentKind::kUnread) kinds[index] = kind;
    }
    behind.SkipLiteral();
    if (!behind.TakeConversion(piece)) break;
    kind = kx::PrintfPiece(piece.text).Kind();
  }
  for (const ArgumentKind each : kinds) arguments.Take(each);
}

/// An argument is read once, as floating value if the first conversion that reads it says so, else
/// as a word, which holds the bytes for all. Most texts name their arguments in order, and each is
/// taken when its conversion comes; what stands behind is looked at only when one is passed over.
///
/// Inserts no more pieces than the first `size` bytes need: the rest is cut anyway.
void InsertPieces(kx::ResultText& result, KxSize size, const char* text,
                  kx::ArgumentWalker& arguments) {
  kx::FormatPieces pieces(text);
  for (;;) {
    pieces.CopyLiteral(result);
    kx::FormatPiece piece;
    if (result.Size() >= size || !pieces.TakeConversion(piece)) return;
    const kx::PrintfPiece printed(piece.text);
    const ArgumentKind kind = printed.Kind();
    if (kind == ArgumentKind::kUnread) {
      printed.AppendTo(result, std::uint64_t{0});
      continue;
    }
    if (piece.argIndex == arguments.Taken()) {
      arguments.Take(kind);
    } else if (piece.argIndex > arguments.Taken()) {
      TakeAll(arguments, piece, kind, pieces);
    }
    printed.AppendTo(result, arguments[piece.argIndex]);
  }
}

}  // namespace

void CKxXlate::InsertVariableVA(char* buffer, KxSize size, const char* format,
                                std::va_list arguments) {
  kx::ArgumentWalker walker(arguments);
  kx::ResultText result;
  InsertPieces(result, size, format == nullptr ? "" : format, walker);
  kx::CopyVariableInsertion(buffer, size, result.View());
}
