#include "lang/body_clauses.h"

#include <string_view>

#include "platform/ascii_case.h"
#include "platform/utf8_text.h"

namespace kx {
namespace {

using Open = LangFileParser::Open;

struct Clause {
  std::string_view keyword;
  Open opens;       ///< what a line with this keyword leaves open
  bool mayEndLine;  ///< names must follow their keyword; values may be empty
};

constexpr Clause kClauses[] = {{"Key", Open::kKey, false},
                               {"Button", Open::kButton, false},
                               {"Val", Open::kValue, true},
                               {"Value", Open::kValue, true},
                               {"Label", Open::kLabel, true}};

void OpenPair(LangFileParser& parser, LanguageContents& contents, const Clause& clause,
              std::string_view name) {
  CommitPendingPair(parser, contents);
  parser.open = clause.opens;
  parser.name = name;
}

// A value that nothing waits for drops the open pair as well, even a complete one: of two values
// for one key neither is stored.
void TakeValue(LangFileParser& parser, const Clause& clause, std::string_view text) {
  const Open awaited = clause.opens == Open::kValue ? Open::kKey : Open::kButton;
  if (parser.open != awaited) {
    parser.Report(LangProblem::kValueWithoutKey);
    parser.Reset();
    return;
  }
  parser.open = clause.opens;
  parser.text = text;
}

void Continue(LangFileParser& parser, std::string_view text) {
  switch (parser.open) {
    case Open::kKey:
    case Open::kButton: parser.name += text; return;
    case Open::kValue:
    case Open::kLabel: parser.text += text; return;
    case Open::kNothing: parser.Report(LangProblem::kUnrecognizedContinuation); return;
  }
}

}  // namespace

void ParseBodyClause(LangFileParser& parser, LanguageContents& contents) {
  const std::string_view line = parser.cursor;
  if (line.front() == '&') return Continue(parser, line.substr(1));
  for (const Clause& clause : kClauses) {
    if (line.size() < clause.keyword.size()) continue;
    // The byte behind the keyword first, since it alone rules out most clauses.
    const std::string_view behind = line.substr(clause.keyword.size());
    if (!behind.starts_with(' ') && !(clause.mayEndLine && behind.empty())) continue;
    if (!StartsWithIgnoringAsciiCase(line, clause.keyword)) continue;
    const std::string_view text = KxUTF8TrimStart(behind);
    return clause.mayEndLine ? TakeValue(parser, clause, text)
                             : OpenPair(parser, contents, clause, text);
  }
  parser.Report(LangProblem::kUnrecognizedText);
}

void CommitPendingPair(LangFileParser& parser, LanguageContents& contents) {
  switch (parser.open) {
    case Open::kNothing: break;
    case Open::kKey:
    case Open::kButton: parser.Report(LangProblem::kKeyWithoutValue); break;
    case Open::kValue:
      contents.texts.Set(parser.name, parser.strings.InternString(std::string_view(parser.text)));
      break;
    case Open::kLabel:
      contents.labels.Set(parser.name, parser.strings.InternString(std::string_view(parser.text)));
      break;
  }
  parser.Reset();
}

}  // namespace kx
