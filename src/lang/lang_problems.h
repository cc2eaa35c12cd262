#ifndef KX_LANG_LANG_PROBLEMS_H
#define KX_LANG_LANG_PROBLEMS_H

#include <string>
#include <string_view>

namespace kx {

// The texts of all problem lines of language files. Hosts match them; they stand nowhere else.

enum class LangProblem {
  kIllegalHeaderDirective,
  kUnrecognizedText,
  kUnrecognizedContinuation,
  kValueWithoutKey,
  kKeyWithoutValue,
};

/// "Unrecognized text in FR/agent.lang at line #12: Kay a"
std::string LangProblemLine(LangProblem problem, const std::string& fileName, unsigned lineNumber,
                            std::string_view line);

/// A file names another character set than the files before it.
std::string DifferingCharsetLine(const std::string& fileName);

/// A language has no files at all.
std::string NoFilesLine(const std::string& displayName);

/// What stands between a translator's display name and a key that it does not have.
inline constexpr std::string_view kKeyNotFound = " key not found: ";

}  // namespace kx

#endif  // KX_LANG_LANG_PROBLEMS_H
