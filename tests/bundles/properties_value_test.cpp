// Escapes and continuation lines.

#include <gtest/gtest.h>

#include <string>

#include "bundles/properties_rows.h"

namespace {

class PropertiesValue : public testing::TestWithParam<PropertiesCase> {};

TEST_P(PropertiesValue, Reads) {
  const PropertiesReading read = ReadProperties(GetParam().bytes);
  EXPECT_EQ(GetParam().texts, read.texts);
  EXPECT_EQ(GetParam().problems, read.problems);
}

TEST_P(PropertiesValue, ReadsTheSameWithCarriageReturns) {
  const PropertiesReading read = ReadProperties(WithCarriageReturns(GetParam().bytes));
  EXPECT_EQ(GetParam().texts, read.texts);
  EXPECT_EQ(GetParam().problems, read.problems);
}

std::string NameOf(const testing::TestParamInfo<PropertiesCase>& row) { return row.param.name; }

const PropertiesCase kEscapes[] = {
    {"Bell",
     "a=1\\a2\n",
     {{"a",
       "1\x07"
       "2"}},
     {}},
    {"Backspace",
     "a=1\\b2\n",
     {{"a",
       "1\x08"
       "2"}},
     {}},
    {"LineFeed", "a=1\\n2\n", {{"a", "1\n2"}}, {}},
    {"CarriageReturn", "a=1\\r2\n", {{"a", "1\r2"}}, {}},
    {"Tab", "a=1\\t2\n", {{"a", "1\t2"}}, {}},
    {"Backslash", "a=1\\\\2\n", {{"a", "1\\2"}}, {}},
    {"BackslashBeforeALetterIsNoEscapeOfIt", "a=1\\\\n2\n", {{"a", "1\\n2"}}, {}},
    {"EqualsSign", "a=1\\=2\n", {{"a", "1=2"}}, {}},
    {"NumberSign", "a=\\#1\n", {{"a", "#1"}}, {}},
    {"Blank", "a=1\\ 2\n", {{"a", "1 2"}}, {}},
    {"LeadingBlankIsKept", "a= \\  1\n", {{"a", "  1"}}, {}},
    {"LeadingTabIsKept", "a=\\\t1\n", {{"a", "\t1"}}, {}},
    {"ThereIsNoFormFeed", "a=\\f\n", {{"a", "f"}}, {}},
    {"ThereIsNoVerticalTab", "a=\\v\n", {{"a", "v"}}, {}},
    {"ThereIsNoUnicode", "k = \\u00e9\n", {{"k", "u00e9"}}, {}},
    {"ThereAreNoNumbers", "a=\\x41\\101\\0\n", {{"a", "x411010"}}, {}},
    {"CapitalsStandForThemselves", "a=\\A\\B\\N\\R\\T\n", {{"a", "ABNRT"}}, {}},
    {"OtherLettersStandForThemselves", "a=\\c\\d\\e\\s\\z\n", {{"a", "cdesz"}}, {}},
    {"PunctuationStandsForItself", "a=\\:\\!\\'\\\"\\%\\{\n", {{"a", ":!'\"%{"}}, {}},
    {"CharactersOfSeveralBytesStayWhole",
     "a=\\\xC3\xA9\\\xE2\x82\xAC\n",
     {{"a", "\xC3\xA9\xE2\x82\xAC"}},
     {}},
    {"AllInARow", "a=\\a\\b\\n\\r\\t\\\\\\=\\#\\ x\n", {{"a", "\x07\x08\n\r\t\\=# x"}}, {}},
    {"WhiteSpaceAtTheEndIsKept", "a=1\\n\nb=\\t\\r\n", {{"a", "1\n"}, {"b", "\t\r"}}, {}},
    {"WhiteSpaceInFrontIsKept", "a=\\n 1\n", {{"a", "\n 1"}}, {}},
    {"MarkersStay", "a=100%% of %0 {1} %s\n", {{"a", "100%% of %0 {1} %s"}}, {}},
};

INSTANTIATE_TEST_SUITE_P(Escapes, PropertiesValue, testing::ValuesIn(kEscapes), NameOf);

const PropertiesCase kContinuations[] = {
    {"LeadingBlanksOfTheNextLineGo",
     "Greeting = Hello \\\n   World\n",
     {{"Greeting", "Hello World"}},
     {}},
    {"BlanksBeforeTheBackslashStay", "a=1  \\\n2\n", {{"a", "1  2"}}, {}},
    {"BlanksBehindTheBackslashGo", "a=1\\ \t\n2\n", {{"a", "12"}}, {}},
    {"TrailingBlanksOfTheNextLineGo", "a=1\\\n2  \nb=3\n", {{"a", "12"}, {"b", "3"}}, {}},
    {"GoesOnOverManyLines", "a=1\\\n2\\\n 3 \\\n4\nb=5\n", {{"a", "123 4"}, {"b", "5"}}, {}},
    {"TextMayBeginOnTheNextLine", "a=\\\n  1\n", {{"a", "1"}}, {}},
    {"TextMayBeginOnTheNextLineBehindABlank", "a= \\\n1\n", {{"a", "1"}}, {}},
    {"IsNoComment", "a=1\\\n#2\n", {{"a", "1#2"}}, {}},
    {"IndentedIsNoCommentEither", "a=1\\\n  # 2\n", {{"a", "1# 2"}}, {}},
    {"IsNotSearchedForAKey", "a=1\\\nb=2\nc=3\n", {{"a", "1b=2"}, {"c", "3"}}, {}},
    {"NeedsNoEqualsSign", "a=1\\\nplain\n", {{"a", "1plain"}}, {}},
    {"EscapesAreRead", "a=1\\\n\\t2\\=\\\\\n", {{"a", "1\t2=\\"}}, {}},
    {"EscapedBlankInFrontIsKept", "a=1\\\n  \\  2\n", {{"a", "1  2"}}, {}},
    {"LetterOnTheNextLineIsNotEscaped", "a=1\\\nn2\n", {{"a", "1n2"}}, {}},
    {"BackslashOnTheNextLineIsNotEscaped", "a=1\\\n\\n2\n", {{"a", "1\n2"}}, {}},
    {"LineOfOneBackslashAddsNothing", "a=1\\\n\\\n2\n", {{"a", "12"}}, {}},
    {"DoubledBackslashAtTheEndContinuesNot", "a=1\\\\\nb=2\n", {{"a", "1\\"}, {"b", "2"}}, {}},
    {"ThirdBackslashAtTheEndContinues", "a=1\\\\\\\n2\n", {{"a", "1\\2"}}, {}},
    {"FourBackslashesAtTheEndContinueNot", "a=\\\\\\\\\nb=2\n", {{"a", "\\\\"}, {"b", "2"}}, {}},
    {"EmptyKeyIsContinued", "=1\\\n2\n", {{"", "12"}}, {}},
    {"OfAnEarlierKeyReplaces", "Key=1\nKEY=2\\\n3\n", {{"Key", "23"}}, {}},
};

INSTANTIATE_TEST_SUITE_P(Continuation, PropertiesValue, testing::ValuesIn(kContinuations), NameOf);

const PropertiesCase kContinuationEnds[] = {
    {"AtTheEndOfTheFile", "key=a\\", {{"key", "a"}}, {}},
    {"AtTheLastLineEnd", "key=a\\\n", {{"key", "a"}}, {}},
    {"WithoutAnyText", "key=\\", {{"key", ""}}, {}},
    {"InASecondLineAtTheEndOfTheFile", "key=a\\\nb\\", {{"key", "ab"}}, {}},
    {"AtAnEmptyLineWhichIsConsumed", "key=a\\\n\nother=b\n", {{"key", "a"}, {"other", "b"}}, {}},
    {"AtABlankLineWhichIsConsumed",
     "key=a\\\n \t\v\nother=b\n",
     {{"key", "a"}, {"other", "b"}},
     {}},
    {"AtTheFirstEmptyLine", "key=a\\\n\nplain\n", {{"key", "a"}}, {NoEqualsSign(3)}},
    {"AtAnEmptyLineKeepingBlanksBefore", "key=a  \\\n\n", {{"key", "a  "}}, {}},
    {"AtALineThatIsNotUtf8",
     "key=a\\\n\xC0\nother=b\n",
     {{"key", "a"}, {"other", "b"}},
     {NotUtf8(2)}},
    {"AtALineThatIsNotUtf8ThoughItGoesOn",
     "key=a\\\nb\xC0\\\nother=b\n",
     {{"key", "a"}, {"other", "b"}},
     {NotUtf8(2)}},
    {"LaterLineThatIsNotUtf8KeepsTheText",
     "key=a\\\nb\\\n\xFE\nc=d\n",
     {{"key", "ab"}, {"c", "d"}},
     {NotUtf8(3)}},
};

INSTANTIATE_TEST_SUITE_P(ContinuationEnds, PropertiesValue, testing::ValuesIn(kContinuationEnds),
                         NameOf);

const PropertiesCase kLineNumbers[] = {
    {"CountFromOne", "x\n", {}, {NoEqualsSign(1)}},
    {"CountEmptyLinesAndComments", "\n#\n \nx\n", {}, {NoEqualsSign(4)}},
    {"CountContinuationLines", "a=1\\\n2\\\n3\nx\n", {{"a", "123"}}, {NoEqualsSign(4)}},
    {"CountTheConsumedEmptyLine", "a=1\\\n\nx\n", {{"a", "1"}}, {NoEqualsSign(3)}},
    {"CountLinesThatAreNotUtf8", "\xC0\n\xC0\nx\n", {}, {NotUtf8(1), NotUtf8(2), NoEqualsSign(3)}},
    {"CountSkippedLines", "x\ny\n", {}, {NoEqualsSign(1), NoEqualsSign(2)}},
    {"HaveSeveralDigits", std::string(1233, '\n') + "x\n", {}, {NoEqualsSign(1234)}},
};

INSTANTIATE_TEST_SUITE_P(LineNumbers, PropertiesValue, testing::ValuesIn(kLineNumbers), NameOf);

// Values are trimmed before their escapes are read, so this one is continued.
TEST(PropertiesContinuation, BackslashAndBlankAtTheEndContinue) {
  EXPECT_EQ((PropertyTexts{{"a", "1b=2"}}), ReadProperties("a=1\\ \nb=2\n").texts);
}

}  // namespace
