#ifndef KX_LANG_LANG_FILE_PARSER_H
#define KX_LANG_LANG_FILE_PARSER_H

#include <cstddef>
#include <iosfwd>
#include <string>

#include "lang/interned_strings.h"
#include "lang/lang_problems.h"
#include "lang/language_contents.h"
#include "log/problem_sink.h"

namespace kx {

/// Room for one line of a language file, its NUL included.
constexpr std::size_t kLangLineBytes = 4096;

/// What the lines of one file have in common; made afresh for each file.
struct LangFileParser {
  /// What the next VALUE or continuation belongs to.
  enum class Open {
    kNothing,
    kKey,     ///< a "Key" waits for its value
    kValue,   ///< it has its value; continuations may lengthen it
    kButton,  ///< a "Button" waits for its label
    kLabel,   ///< it has its label; continuations may lengthen it
  };

  /// @param file   its name in problem lines; must outlive this object, as must the others
  /// @param sink   is told of each problem
  /// @param table  keeps the values
  LangFileParser(const std::string& file, ProblemSink& sink, InternTable& table)
      : fileName(file), problems(sink), strings(table) {}

  void Report(LangProblem problem) {
    problems.Line(LangProblemLine(problem, fileName, lineNumber, line));
  }

  /// Forgets the open pair.
  void Reset() {
    open = Open::kNothing;
    name.clear();
    text.clear();
  }

  char line[kLangLineBytes] = {};  ///< the current line, without white space at its end
  const char* cursor = line;       ///< its first character that is not white space
  unsigned lineNumber = 0;         ///< lines read so far
  Open open = Open::kNothing;
  std::string name;  ///< of the open key or button
  std::string text;  ///< its value or label

  const std::string& fileName;
  ProblemSink& problems;
  InternTable& strings;
};

/// Skips blanks, tabs, line feeds, vertical tabs, form feeds and carriage returns. Bytes above 127
/// are never white space.
const char* SkipWhiteSpace(const char* text);

/// Reads a whole language file into `contents`; docs/lang-files.md has the format.
///
/// Reading ends early at a line that does not fit its room; what was complete by then is kept.
///
/// @return true: problems never make a file useless
///
/// Throws std::bad_alloc only.
bool ReadLangFile(LangFileParser& parser, std::istream& stream, LanguageContents& contents);

}  // namespace kx

#endif  // KX_LANG_LANG_FILE_PARSER_H
