#include "lang/header_directives.h"

#include <string>
#include <string_view>

#include "platform/ascii_case.h"
#include "platform/utf8_text.h"

namespace kx {
namespace {

void SetLongName(LangFileParser& parser, LanguageContents& contents, std::string_view value) {
  contents.longName = parser.strings.InternString(value);
}

void SetImageDirectory(LangFileParser& parser, LanguageContents& contents, std::string_view value) {
  contents.imageDirectory = parser.strings.InternString(value);
}

void SetPromptSuffix(LangFileParser& parser, LanguageContents& contents, std::string_view value) {
  contents.promptSuffix = parser.strings.InternString(value);
}

void SetCharset(LangFileParser& parser, LanguageContents& contents, std::string_view value) {
  if (!contents.charset.empty() && !EqualIgnoringAsciiCase(contents.charset, value)) {
    parser.problems.Line(DifferingCharsetLine(parser.fileName));
  }
  contents.charset = value;
}

// Only a blank ends the name: a tab is part of it.
void SetDirectory(LangFileParser& parser, LanguageContents& contents, std::string_view value) {
  const std::string_view name = value.substr(0, value.find(' '));
  const std::string_view path = KxUTF8TrimStart(value.substr(name.size()));
  contents.directories.Set(name, parser.strings.InternString(path));
}

// A direction that is not known is passed over without a word; files in use have such lines.
void SetDirection(LangFileParser& /*parser*/, LanguageContents& contents, std::string_view value) {
  if (value == "LTR" || value == "RTL") contents.direction = value;
}

struct HeaderDirective {
  std::string_view keyword;  ///< the blank at its end included
  void (*apply)(LangFileParser& parser, LanguageContents& contents, std::string_view value);
};

// A directive is a row, not a branch. "Description" is one more spelling of the long name.
constexpr HeaderDirective kDirectives[] = {
    {"Long Name ", SetLongName},
    {"LongName ", SetLongName},
    {"Name ", SetLongName},
    {"Description ", SetLongName},
    {"Images ", SetImageDirectory},
    {"Image Directory ", SetImageDirectory},
    {"Image Path ", SetImageDirectory},
    {"Charset ", SetCharset},
    {"Character Set ", SetCharset},
    {"Prompt Suffix ", SetPromptSuffix},
    {"Directory ", SetDirectory},
    {"Direction ", SetDirection},
};

}  // namespace

bool ParseHeaderDirective(LangFileParser& parser, LanguageContents& contents) {
  for (const HeaderDirective& directive : kDirectives) {
    if (!StartsWithIgnoringAsciiCase(parser.cursor, directive.keyword)) continue;
    directive.apply(parser, contents,
                    KxUTF8TrimStart(parser.cursor.substr(directive.keyword.size())));
    return true;
  }
  if (EqualIgnoringAsciiCase(parser.cursor, "Debug")) {
    contents.debug = true;
    return true;
  }
  parser.Report(LangProblem::kIllegalHeaderDirective);
  return false;
}

}  // namespace kx
