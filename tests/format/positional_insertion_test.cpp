#include "format/positional_insertion.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <thread>
#include <vector>

namespace {

struct InsertionCase {
  const char* name;
  const char* text;
  std::vector<const char*> arguments;
  const char* expected;
};

void PrintTo(const InsertionCase& c, std::ostream* os) {
  *os << (c.text == nullptr ? "(null)" : c.text);
}

std::string Inserted(const char* text, const std::vector<const char*>& arguments) {
  std::string result = "left over from the last call";
  kx::InsertArguments(result, text, arguments.size(), arguments.data());
  return result;
}

std::string NameOf(const testing::TestParamInfo<InsertionCase>& info) { return info.param.name; }

class PositionalInsertion : public testing::TestWithParam<InsertionCase> {};

TEST_P(PositionalInsertion, Yields) {
  const InsertionCase& c = GetParam();
  EXPECT_EQ(c.expected, Inserted(c.text, c.arguments));
}

const std::vector<const char*> kFive = {"a", "b", "c", "d", "e"};
const std::vector<const char*> kTwelve = {"a", "b", "c", "d", "e", "f",
                                          "g", "h", "i", "j", "k", "l"};

const InsertionCase kPlainText[] = {
    {"NullTextIsEmpty", nullptr, {}, ""},
    {"NullTextTakesLeftovers", nullptr, {"a", "b"}, "(a, b)"},
    {"EmptyTextStaysEmpty", "", {}, ""},
    {"TextWithoutMarkersStays", "Cannot open file", {}, "Cannot open file"},
    {"OtherPunctuationIsText", "}{a} $1 \\%0 #} }", {}, "}{a} $1 \\%0 #} }"},
    {"ClosingBraceAloneDecidesNothing", "}%0", {"a"}, "}a"},
    {"BytesAbove127AreText",
     "\xC3\xA9 \xFF\x80%0",
     {"\xE2\x82\xAC"},
     "\xC3\xA9 \xFF\x80\xE2\x82\xAC"},
    {"LineEndsAreText", "a\r\n%0\n", {"x"}, "a\r\nx\n"},
};

INSTANTIATE_TEST_SUITE_P(PlainText, PositionalInsertion, testing::ValuesIn(kPlainText), NameOf);

// The first '%' or '{' anywhere decides, whatever becomes of it.
const InsertionCase kStyle[] = {
    {"PercentNumbers",
     "Hello %0, you have %1 messages",
     {"Ann", "3"},
     "Hello Ann, you have 3 messages"},
    {"BraceNumbers", "{1} before {0}", {"a", "b"}, "b before a"},
    {"BraceIsTextInPercentStyle", "%0 {1} {x", {"a"}, "a {1} {x"},
    {"PercentIsTextInBraceStyle", "{0} is 100%", {"x"}, "x is 100%"},
    {"PercentMarkersAreTextInBraceStyle", "{0} %1 %s %%", {"x"}, "x %1 %s %%"},
    {"DoubledPercentDecides", "Rate: 50%% of {0}", {"v"}, "Rate: 50% of {0} (v)"},
    {"DoubledBraceDecides", "{{ %0 {0}", {"v"}, "{ %0 v"},
    {"MalformedBraceDecides", "{name} %0 {0}", {"v"}, "{name} %0 v"},
    {"UnclosedBraceDecides", "{1x %0 {0}", {"v"}, "{1x %0 v"},
    {"AbsentPercentDecides", "%5 {0}", {}, "%5 {0}"},
    {"BraceTakenBySequentialMarkerIsGone", "%{0}", {"v"}, "v0}"},
    {"PercentTakenByMalformedBraceIsGone", "{%0}", {}, "{%0}"},
};

INSTANTIATE_TEST_SUITE_P(Style, PositionalInsertion, testing::ValuesIn(kStyle), NameOf);

const InsertionCase kLiteralMarkers[] = {
    {"DoubledPercentIsOne", "100%%", {}, "100%"},
    {"FourPercentsAreTwo", "%%%%", {}, "%%"},
    {"ThreePercentsEndInOneMore", "%%%", {}, "%%"},
    {"PercentMarkerBehindDoubledPercent", "%%%0", {"a"}, "%a"},
    {"DoubledPercentHidesDigits", "%%0", {}, "%0"},
    {"DoubledBraceIsOne", "{{0}", {}, "{0}"},
    {"FourBracesAreTwo", "{{{{", {}, "{{"},
    {"MarkerBehindDoubledBrace", "{{{0}}}", {"a"}, "{a}}"},
    {"DoubledClosingBraceIsNothingSpecial", "{0}}}", {"a"}, "a}}"},
    {"PercentAtEndStays", "100%", {}, "100%"},
    {"PercentAtEndTakesNoArgument", "100%", {"a"}, "100% (a)"},
    {"BraceAtEndStays", "{", {}, "{"},
    {"BraceAtEndTakesNoArgument", "x{", {"a"}, "x{ (a)"},
    {"BraceAtEndBehindMarker", "{0}{", {"a"}, "a{"},
};

INSTANTIATE_TEST_SUITE_P(LiteralMarkers, PositionalInsertion, testing::ValuesIn(kLiteralMarkers),
                         NameOf);

const InsertionCase kNumbers[] = {
    {"PercentTwoDigits", "%10-%11", kTwelve, "k-l"},
    {"BraceTwoDigits", "{10}-{11}", kTwelve, "k-l"},
    {"PercentThirdDigitIsText", "%110", kTwelve, "l0"},
    {"PercentLeadingZero", "%01%00", {"a", "b"}, "ba"},
    {"PercentZeroThenThirdDigit", "%001", {"a"}, "a1"},
    {"BraceLeadingZero", "{01}{00}", {"a", "b"}, "ba"},
    {"NumberThenText", "%0th", {"4"}, "4th"},
    {"NumberThenLetterTakesOneArgument", "%0s", {"a"}, "as"},
    {"SameArgumentTwice", "%0 and %0", {"a"}, "a and a"},
    {"AdjacentMarkers", "%0%1{2}", {"a", "b"}, "ab{2}"},
    {"EmptyArgument", "[%0]", {""}, "[]"},
    {"HighestNumber", "%99", {}, "%9"},
    {"DigitsInsideArgumentsAreNotMarkers", "%0 %1", {"%1", "%0"}, "%1 %0"},
    {"BracesInsideArgumentsAreNotMarkers", "{0}{1}", {"{1}", "{{"}, "{1}{{"},
    {"ArgumentAndFollowingTextDoNotJoin", "%01 %02", {"%", "b", "c"}, "b c"},
};

INSTANTIATE_TEST_SUITE_P(Numbers, PositionalInsertion, testing::ValuesIn(kNumbers), NameOf);

const InsertionCase kMalformedBraces[] = {
    {"NameStays", "{name}", {}, "{name}"},
    {"NameTakesNoArgument", "{name}", {"a"}, "{name} (a)"},
    {"EmptyBracesStay", "{}", {}, "{}"},
    {"BlankInsideStays", "{ 0}", {"a"}, "{ 0} (a)"},
    {"BlankBehindNumberStays", "{0 }", {"a"}, "{0 } (a)"},
    {"MinusStays", "{-1}", {}, "{-1}"},
    {"OneDigitUnclosed", "{1x", {}, "{1x"},
    {"OneDigitUnclosedAtEnd", "{1", {}, "{1"},
    {"TwoDigitsUnclosed", "{12x", {}, "{12x"},
    {"TwoDigitsUnclosedAtEnd", "{12", {}, "{12"},
    {"LeadingZeroIsLost", "{05x", {}, "{5x"},
    {"LeadingZeroIsLostAtEnd", "{05", {}, "{5"},
    {"OneOfTwoZerosIsLost", "{00x", {}, "{0x"},
    {"ZeroUnclosedStays", "{0x", {}, "{0x"},
    {"ThreeDigitsStay", "{123}", {}, "{123}"},
    {"ThreeDigitsWithLeadingZeroLoseIt", "{012}", {}, "{12}"},
    {"BraceBehindDigitsIsTaken", "{1{0}", {"a"}, "{1{0} (a)"},
    {"BraceBehindTwoDigitsIsTaken", "{12{{0}", {"a"}, "{12{a"},
    {"PercentBehindBraceIsTaken", "{%{0}", {"a"}, "{%a"},
    {"UnclosedNumberReferencesNothing", "{1x{0}", {"a", "b"}, "{1xa (b)"},
    {"SecondBraceBehindNameCounts", "{x{0}", {"a"}, "{xa"},
    {"LetterLIsNothingSpecial", "{l{0}", {"a"}, "{la"},
    {"ByteAbove127Stays",
     "{\xC3\xA9{0}",
     {"a"},
     "{\xC3\xA9"
     "a"},
};

INSTANTIATE_TEST_SUITE_P(MalformedBraces, PositionalInsertion, testing::ValuesIn(kMalformedBraces),
                         NameOf);

const InsertionCase kSequential[] = {
    {"LettersTakeArgumentsInTurn", "%s and %s", {"x", "y"}, "x and y"},
    {"BehindNumberTakesTheNext", "%1 then %s", {"a", "b", "c"}, "b then c"},
    {"BehindLowerNumberTakesTheNextOfTheHighest", "%3%0%s", kFive, "dae"},
    {"LongFormIsOneMarker", "%ld of %ls", {"1", "2"}, "1 of 2"},
    {"LetterLAtEnd", "%l", {"a"}, "a"},
    {"LongFormTakesAnyByte", "%l %l%%l1", {"a", "b", "c"}, "abc"},
    {"LongFormTakesOneByteOnly", "%lld", {"a"}, "ad"},
    {"LongFormTakesBrace", "%l{0}", {"a"}, "a0}"},
    {"CapitalLIsAnOrdinaryLetter", "%Ld", {"a"}, "ad"},
    {"BlankIsAMarker", "100% sure", {"X"}, "100Xsure"},
    {"PunctuationIsAMarker", "%.%,%-", {"a", "b", "c"}, "abc"},
    {"BraceIsAMarker", "%{", {"a"}, "a"},
    {"LineFeedIsAMarker", "%\n", {"a"}, "a"},
    {"ByteAbove127IsAMarker", "%\xC3\xA9", {"a"}, "a\xA9"},
    {"WidthIsNotRead", "%-5d", {"a"}, "a5d"},
    {"BehindAbsentNumberIsAbsentToo", "%7%s", {"a"}, "%7%s"},
    {"DoubledPercentTakesNone", "%s%%%s", {"a", "b"}, "a%b"},
    {"NumberThenSequenceThenNumber", "%s%0%s%1", {"a", "b"}, "aabb"},
};

INSTANTIATE_TEST_SUITE_P(Sequential, PositionalInsertion, testing::ValuesIn(kSequential), NameOf);

// Absent arguments come back shortened, and are meant to.
const InsertionCase kAbsent[] = {
    {"OneDigit", "%7", {}, "%7"},
    {"TwoDigitsLoseTheTens", "%12", {}, "%2"},
    {"LeadingZeroIsLost", "%07", {}, "%7"},
    {"BraceOneDigit", "{7}", {}, "{7}"},
    {"BraceTwoDigitsLoseTheTens", "{12}", {}, "{2}"},
    {"BraceLeadingZeroIsLost", "{07}", {}, "{7}"},
    {"Letter", "%d", {}, "%d"},
    {"LongFormLosesTheL", "%ls", {}, "%s"},
    {"LongFormWithDigit", "%l1", {}, "%1"},
    {"LongFormWithPercent", "%l%", {}, "%%"},
    {"LetterLAtEnd", "%l", {}, "%l"},
    {"Blank", "100% sure", {}, "100% sure"},
    {"OneBehindTheLast", "%0%1", {"a"}, "a%1"},
    {"NullInTheMiddle", "%0 %1 %2", {"a", nullptr, "c"}, "a %1 c"},
    {"NullInTheMiddleOfBraces", "{0} {1} {2}", {"a", nullptr, "c"}, "a {1} c"},
    {"NullTakenInTurn", "%s %s %s", {"a", nullptr, "c"}, "a %s c"},
    {"NullOnly", "%0", {nullptr}, "%0"},
    {"ThirdDigitFollowsTheShortened", "%123", {}, "%23"},
};

INSTANTIATE_TEST_SUITE_P(Absent, PositionalInsertion, testing::ValuesIn(kAbsent), NameOf);

const InsertionCase kLeftovers[] = {
    {"AreAppendedInBrackets",
     "Cannot open file",
     {"a.txt", "denied"},
     "Cannot open file (a.txt, denied)"},
    {"OneHasNoComma", "Cannot open file", {"a.txt"}, "Cannot open file (a.txt)"},
    {"BehindEmptyTextHaveNoBlank", "", {"a.txt", "denied"}, "(a.txt, denied)"},
    {"BehindEmptyResultHaveNoBlank", "%0", {"", "b"}, "(b)"},
    {"BehindTextEndingInBlankHaveOneMore", "x ", {"a"}, "x  (a)"},
    {"BehindTheHighestOnly", "%3", kFive, "d (e)"},
    {"BelowTheHighestAreNotAppended", "%1", {"a", "b"}, "b"},
    {"AbsentNumberCountsAsHighest", "%3", {"a"}, "%3"},
    {"NumberFarAboveCountsAsHighest", "{99}", {"a", "b"}, "{9}"},
    {"NullNumberCountsAsHighest", "%1", {"a", nullptr, "c"}, "%1 (c)"},
    {"MalformedNumberDoesNotCount", "{4x", {"a"}, "{4x (a)"},
    {"DoubledPercentDoesNotCount", "%%", {"a"}, "% (a)"},
    {"BehindSequence", "%s", {"a", "b", "c"}, "a (b, c)"},
    {"NullIsEmpty", "x", {"a", nullptr, "c"}, "x (a, , c)"},
    {"NullFirstIsEmpty", "x", {nullptr, "b"}, "x (, b)"},
    {"NullLastIsEmpty", "x", {"a", nullptr}, "x (a, )"},
    {"SingleNullIsEmpty", "x", {nullptr}, "x ()"},
    {"NullsOnEmptyText", "", {nullptr, nullptr}, "(, )"},
    {"EmptyArgumentsKeepTheirCommas", "", {"", "", ""}, "(, , )"},
    {"MarkersInsideAreNotReplaced", "x", {"%0", "{1}"}, "x (%0, {1})"},
    {"AreNotLimitedInNumber", "%0", kTwelve, "a (b, c, d, e, f, g, h, i, j, k, l)"},
};

INSTANTIATE_TEST_SUITE_P(Leftovers, PositionalInsertion, testing::ValuesIn(kLeftovers), NameOf);

TEST(PositionalInsertionEngine, NullArrayIsAnEmptyOne) {
  std::string result = "old";
  kx::InsertArguments(result, "%0 {", 0, nullptr);
  EXPECT_EQ("%0 {", result);
}

TEST(PositionalInsertionEngine, NullArrayIsAnEmptyOneWhateverTheCount) {
  std::string result = "old";
  kx::InsertArguments(result, "%0", 3, nullptr);
  EXPECT_EQ("%0", result);
}

TEST(PositionalInsertionEngine, ReplacesALongResultByAShortOne) {
  std::string result(10000, 'x');
  kx::InsertArguments(result, "", 0, nullptr);
  EXPECT_EQ("", result);
}

TEST(PositionalInsertionEngine, ArgumentHundredAndAboveAreReachedInTurnOnly) {
  const std::vector<std::string> texts = [] {
    std::vector<std::string> made;
    for (int i = 0; i < 103; ++i) made.push_back(std::to_string(i));
    return made;
  }();
  std::vector<const char*> arguments;
  for (const std::string& text : texts) arguments.push_back(text.c_str());

  EXPECT_EQ("99 100 101 (102)", Inserted("%99 %s %s", arguments));
  EXPECT_EQ("990 (100, 101, 102)", Inserted("{99}0", arguments));
}

TEST(PositionalInsertionEngine, LongTextsAndArgumentsAreInsertedWhole) {
  const std::string megabyte(std::size_t{1} << 20, 'm');
  const std::string text = megabyte + "%0%1" + megabyte;
  EXPECT_EQ(megabyte + megabyte + "x" + megabyte, Inserted(text.c_str(), {megabyte.c_str(), "x"}));
}

TEST(PositionalInsertionEngine, ManyMarkersAreAllReplaced) {
  std::string text;
  std::string expected;
  for (int i = 0; i < 100000; ++i) {
    text += "{1}{0}";
    expected += "ba";
  }
  EXPECT_EQ(expected, Inserted(text.c_str(), {"a", "b"}));
}

TEST(PositionalInsertionEngine, RunsOnManyThreadsAtOnce) {
  constexpr int kThreads = 8;
  std::vector<std::string> results(kThreads);
  std::vector<std::thread> threads;
  for (std::string& result : results) {
    threads.emplace_back([&result] {
      for (int i = 0; i < 2000; ++i) result = Inserted("%1 %0 %s {0}", kFive);
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(std::vector<std::string>(kThreads, "b a c {0} (d, e)"), results);
}

}  // namespace
