#ifndef KX_LANG_LANG_FILE_PARSER_H
#define KX_LANG_LANG_FILE_PARSER_H

#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>

#include "lang/interned_strings.h"
#include "lang/lang_problems.h"
#include "lang/language_contents.h"
#include "log/problem_sink.h"

namespace kx {

/// The most bytes that a line of a language file may have.
constexpr std::size_t kMostLangLineBytes = 4095;

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

  std::string_view line;    ///< the current line, without white space at its end
  std::string_view cursor;  ///< the same without white space at its beginning
  unsigned lineNumber = 0;  ///< lines read so far
  Open open = Open::kNothing;
  std::string name;  ///< of the open key or button
  std::string text;  ///< its value or label

  const std::string& fileName;
  ProblemSink& problems;
  InternTable& strings;
};

/// Reads a whole language file into `contents`; docs/lang-files.md has the format.
///
/// Reading ends early at a line that is too long; what was complete by then is kept.
///
/// @param fileBytes  by which the tables foresee their sizes; 0 when not known
/// @return true: problems never make a file useless
///
/// Throws std::bad_alloc only.
bool ReadLangFile(LangFileParser& parser, std::istream& stream, LanguageContents& contents,
                  std::size_t fileBytes = 0);

}  // namespace kx

#endif  // KX_LANG_LANG_FILE_PARSER_H
