#include "lang/lang_file_parser.h"

#include <istream>

#include "lang/body_clauses.h"
#include "lang/header_directives.h"
#include "platform/utf8_text.h"
#include "texts/fill_forecast.h"
#include "texts/line_reader.h"

namespace kx {
namespace {

// Vertical tabs and form feeds stay here, though they are skipped at a line's start.
bool IsStrippedAtTheEnd(char c) { return KxIsWhiteSpace(c) && c != '\v' && c != '\f'; }

bool IsComment(std::string_view text) {
  return text.starts_with(';') || text.starts_with('#') || text.starts_with("//");
}

void TakeLine(LangFileParser& parser, std::string_view text) {
  ++parser.lineNumber;
  while (!text.empty() && IsStrippedAtTheEnd(text.back())) text.remove_suffix(1);
  parser.line = text;
  parser.cursor = KxUTF8TrimStart(text);
}

}  // namespace

bool ReadLangFile(LangFileParser& parser, std::istream& stream, LanguageContents& contents,
                  std::size_t fileBytes) {
  FillForecast texts(contents.texts, fileBytes);
  FillForecast values(parser.strings, fileBytes);
  LineReader lines(*stream.rdbuf(), kMostLangLineBytes);
  bool inHeader = true;
  bool headerAccepted = false;
  auto kind = stream.good() ? LineReader::Kind::kLine : LineReader::Kind::kLast;
  while (kind == LineReader::Kind::kLine) {
    const LineReader::Line read = lines.Next();
    kind = read.kind;
    // What stands behind the last line feed counts as a line, too, even when it is nothing.
    TakeLine(parser, lines.HasNul() ? read.text.substr(0, read.text.find('\0')) : read.text);
    if (parser.lineNumber % texts.kLines == 0) {
      texts.Update(lines.BytesTaken());
      values.Update(lines.BytesTaken());
    }
    if (kind == LineReader::Kind::kTooLong) break;
    if (IsComment(parser.cursor)) continue;
    if (parser.cursor.empty()) {
      inHeader = inHeader && !headerAccepted;
    } else if (inHeader) {
      headerAccepted |= ParseHeaderDirective(parser, contents);
    } else {
      ParseBodyClause(parser, contents);
    }
  }
  CommitPendingPair(parser, contents);
  return true;
}

}  // namespace kx
