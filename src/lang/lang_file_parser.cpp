#include "lang/lang_file_parser.h"

#include <cstring>
#include <istream>

#include "lang/body_clauses.h"
#include "lang/header_directives.h"

namespace kx {
namespace {

bool IsComment(const char* text) {
  return *text == ';' || *text == '#' || (text[0] == '/' && text[1] == '/');
}

void StripEnd(char* line) {
  char* end = line + std::strlen(line);
  // Vertical tabs and form feeds stay here, though they are skipped at a line's start.
  while (end != line && std::strchr(" \t\n\r", end[-1]) != nullptr) --end;
  *end = '\0';
}

/// Reads the next line; false when it is too long.
bool ReadLine(LangFileParser& parser, std::istream& stream) {
  stream.getline(parser.line, sizeof parser.line);
  ++parser.lineNumber;
  StripEnd(parser.line);
  parser.cursor = SkipWhiteSpace(parser.line);
  return stream.good() || stream.eof();
}

}  // namespace

const char* SkipWhiteSpace(const char* text) { return text + std::strspn(text, " \t\n\v\f\r"); }

bool ReadLangFile(LangFileParser& parser, std::istream& stream, LanguageContents& contents) {
  bool inHeader = true;
  bool headerAccepted = false;
  // The read that finds nothing but the end of the file counts as a line, too.
  while (!stream.eof() && ReadLine(parser, stream)) {
    if (IsComment(parser.cursor)) continue;
    if (*parser.cursor == '\0') {
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
