#include "lang/lang_problems.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace {

using kx::LangProblem;
using kx::LangProblemLine;

const std::string kFile = "FR-CA/(Common).lang";

TEST(LangProblem, LinesAreWordForWord) {
  EXPECT_EQ("Illegal Header Directive in FR-CA/(Common).lang at line #1: Debug on",
            LangProblemLine(LangProblem::kIllegalHeaderDirective, kFile, 1, "Debug on"));
  EXPECT_EQ("Unrecognized text in FR-CA/(Common).lang at line #12: Key",
            LangProblemLine(LangProblem::kUnrecognizedText, kFile, 12, "Key"));
  EXPECT_EQ("Unrecognized continuation text in FR-CA/(Common).lang at line #3: & more",
            LangProblemLine(LangProblem::kUnrecognizedContinuation, kFile, 3, "& more"));
  EXPECT_EQ("VALUE found without a KEY in FR-CA/(Common).lang at line #13: Val",
            LangProblemLine(LangProblem::kValueWithoutKey, kFile, 13, "Val"));
  EXPECT_EQ("Two KEY clauses without intervening VALUE in FR-CA/(Common).lang at line #4: Key b",
            LangProblemLine(LangProblem::kKeyWithoutValue, kFile, 4, "Key b"));
}

TEST(LangProblem, LineEndsBehindItsBlankWhenNoTextIsShown) {
  EXPECT_EQ("Two KEY clauses without intervening VALUE in FR/agent.lang at line #9: ",
            LangProblemLine(LangProblem::kKeyWithoutValue, "FR/agent.lang", 9, ""));
}

TEST(LangProblem, ShowsNamesAndTextsAsTheyAre) {
  EXPECT_EQ(
      "Unrecognized text in \xC3\x89 %s.lang at line #2: \t %d\v\xFF \x01",
      LangProblemLine(LangProblem::kUnrecognizedText, "\xC3\x89 %s.lang", 2, "\t %d\v\xFF \x01"));
  EXPECT_EQ("Unrecognized text in  at line #2: x",
            LangProblemLine(LangProblem::kUnrecognizedText, "", 2, "x"));
}

TEST(LangProblem, NumbersLinesInPlainDecimal) {
  EXPECT_EQ("Unrecognized text in f at line #1234567: x",
            LangProblemLine(LangProblem::kUnrecognizedText, "f", 1234567, "x"));
  EXPECT_EQ("Unrecognized text in f at line #4294967295: x",
            LangProblemLine(LangProblem::kUnrecognizedText, "f",
                            std::numeric_limits<unsigned>::max(), "x"));
}

TEST(LangProblem, ShowsLongTextsWhole) {
  const std::string text(4095, 'x');
  EXPECT_EQ("Unrecognized text in f at line #1: " + text,
            LangProblemLine(LangProblem::kUnrecognizedText, "f", 1, text.c_str()));
}

TEST(LangProblem, DifferingCharsetHasNoLineNumber) {
  EXPECT_EQ("FR-CA/agent.lang contains a differing value for CHARSET from default language",
            kx::DifferingCharsetLine("FR-CA/agent.lang"));
}

TEST(LangProblem, NoFilesNamesTheLanguageInQuotationMarks) {
  EXPECT_EQ("No \"DE (agent)\" files found, trying EN.", kx::NoFilesLine("DE (agent)"));
  EXPECT_EQ("No \"FR-ca ()\" files found, trying EN.", kx::NoFilesLine("FR-ca ()"));
}

TEST(LangProblem, KeyNotFoundHasABlankAtBothEnds) {
  EXPECT_EQ(" key not found: ", kx::kKeyNotFound);
}

}  // namespace
