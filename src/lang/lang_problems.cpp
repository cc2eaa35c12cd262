#include "lang/lang_problems.h"

namespace kx {
namespace {

const char* BeginningOf(LangProblem problem) {
  switch (problem) {
    case LangProblem::kIllegalHeaderDirective: return "Illegal Header Directive in ";
    case LangProblem::kUnrecognizedText: return "Unrecognized text in ";
    case LangProblem::kUnrecognizedContinuation: return "Unrecognized continuation text in ";
    case LangProblem::kValueWithoutKey: return "VALUE found without a KEY in ";
    case LangProblem::kKeyWithoutValue: return "Two KEY clauses without intervening VALUE in ";
  }
  return "";
}

}  // namespace

std::string LangProblemLine(LangProblem problem, const std::string& fileName, unsigned lineNumber,
                            std::string_view line) {
  return (BeginningOf(problem) + fileName + " at line #" + std::to_string(lineNumber) + ": ")
      .append(line);
}

std::string DifferingCharsetLine(const std::string& fileName) {
  return fileName + " contains a differing value for CHARSET from default language";
}

std::string NoFilesLine(const std::string& displayName) {
  return "No \"" + displayName + "\" files found, trying EN.";
}

}  // namespace kx
