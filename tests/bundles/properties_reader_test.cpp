#include "bundles/properties_reader.h"

#include <gtest/gtest.h>

#include <string>

#include "bundles/properties_rows.h"

namespace {

using std::string_literals::operator""s;

const char* const kMark = "\xEF\xBB\xBF";  // the byte-order mark

class PropertiesReader : public testing::TestWithParam<PropertiesCase> {};

TEST_P(PropertiesReader, Reads) {
  const PropertiesReading read = ReadProperties(GetParam().bytes);
  EXPECT_EQ(GetParam().texts, read.texts);
  EXPECT_EQ(GetParam().problems, read.problems);
}

TEST_P(PropertiesReader, ReadsTheSameWithCarriageReturns) {
  const PropertiesReading read = ReadProperties(WithCarriageReturns(GetParam().bytes));
  EXPECT_EQ(GetParam().texts, read.texts);
  EXPECT_EQ(GetParam().problems, read.problems);
}

std::string NameOf(const testing::TestParamInfo<PropertiesCase>& row) { return row.param.name; }

const PropertiesCase kLines[] = {
    {"EmptyFileHasNoTexts", "", {}, {}},
    {"EmptyLinesAreIgnored", "\n\n\n", {}, {}},
    {"BlankLinesAreIgnored", "  \n\t\n \v\f\r \n", {}, {}},
    {"OneLine", "Hello=Bonjour\n", {{"Hello", "Bonjour"}}, {}},
    {"LastLineNeedsNoEnd", "a=1\nb=2", {{"a", "1"}, {"b", "2"}}, {}},
    {"LastLineWithoutEndIsReportedToo", "a=1\nb", {{"a", "1"}}, {NoEqualsSign(2)}},
    {"CarriageReturnAloneEndsNoLine", "a=1\rb=2\n", {{"a", "1\rb=2"}}, {}},
    {"VerticalTabAndFormFeedEndNoLine", "a=1\vb=2\fc=3\n", {{"a", "1\vb=2\fc=3"}}, {}},
    {"UnicodeLineEndsEndNoLine",
     "a=1\xE2\x80\xA8"
     "b=2\xC2\x85"
     "c=3\n",
     {{"a",
       "1\xE2\x80\xA8"
       "b=2\xC2\x85"
       "c=3"}},
     {}},
    {"NumberSignBeginsAComment", "# a=1\n#\n##\nb=2\n", {{"b", "2"}}, {}},
    {"CommentMayBeIndented", " \t# a=1\n", {}, {}},
    {"CommentNeedsNoEnd", "#a=1", {}, {}},
    {"NumberSignInsideIsText",
     "a=1 # one\nb#=2\nc=#\n",
     {{"a", "1 # one"}, {"b#", "2"}, {"c", "#"}},
     {}},
    {"ExclamationMarkBeginsNoComment", "!a=1\n!b\n", {{"!a", "1"}}, {NoEqualsSign(2)}},
    {"SemicolonBeginsNoComment", ";a=1\n", {{";a", "1"}}, {}},
    {"CommentIsNotContinued", "# c\\\na=1\n", {{"a", "1"}}, {}},
    {"TextsInAllScripts",
     "gru\xC3\x9F=\xE4\xBD\xA0\xF0\x9F\x98\x80\n",
     {{"gru\xC3\x9F", "\xE4\xBD\xA0\xF0\x9F\x98\x80"}},
     {}},
};

INSTANTIATE_TEST_SUITE_P(Lines, PropertiesReader, testing::ValuesIn(kLines), NameOf);

const PropertiesCase kEqualsSigns[] = {
    {"LineWithoutIsReportedAndSkipped",
     "a=1\nnonsense\nb=2\n",
     {{"a", "1"}, {"b", "2"}},
     {NoEqualsSign(2)}},
    {"EachLineWithoutIsReported",
     "x\n\ny\n# z\nz\n",
     {},
     {NoEqualsSign(1), NoEqualsSign(3), NoEqualsSign(5)}},
    {"ColonDoesNotSeparate", "a:1\n", {}, {NoEqualsSign(1)}},
    {"BlankDoesNotSeparate", "a 1\n", {}, {NoEqualsSign(1)}},
    {"ColonBelongsToTheKey", "a:b=1\n", {{"a:b", "1"}}, {}},
    {"BlankInsideBelongsToTheKey", "a b = 1\n", {{"a b", "1"}}, {}},
    {"FirstOneSeparates", "a=b=c\n", {{"a", "b=c"}}, {}},
    {"SecondOneIsText", "a==b\n", {{"a", "=b"}}, {}},
    {"EscapedOneSeparatesAllTheSame", "a\\=b\n", {{"a\\", "b"}}, {}},
    {"LineWithoutIsNotContinued", "nonsense\\\na=1\n", {{"a", "1"}}, {NoEqualsSign(1)}},
    {"BackslashAloneHasNone", "\\\n", {}, {NoEqualsSign(1)}},
    {"FullWidthOneIsNone",
     "a\xEF\xBC\x9D"
     "b\n",
     {},
     {NoEqualsSign(1)}},
};

INSTANTIATE_TEST_SUITE_P(EqualsSigns, PropertiesReader, testing::ValuesIn(kEqualsSigns), NameOf);

const PropertiesCase kKeys[] = {
    {"MayBeEmpty", "=v\n", {{"", "v"}}, {}},
    {"MayBeEmptyWithAnEmptyText", "=\n", {{"", ""}}, {}},
    {"OfWhiteSpaceIsEmpty", " \t = v\n", {{"", "v"}}, {}},
    {"MayHaveAnEmptyText", "a=\nb = \n", {{"a", ""}, {"b", ""}}, {}},
    {"HasNoEscapes", "a\\tb\\\\c\\#=1\n", {{"a\\tb\\\\c\\#", "1"}}, {}},
    {"KeepsABackslashInFront", "\\#a=1\n", {{"\\#a", "1"}}, {}},
    {"KeepsItsCase", "MiXed=1\n", {{"MiXed", "1"}}, {}},
    {"InQuotesKeepsThem", "\"a\"=\"1\"\n", {{"\"a\"", "\"1\""}}, {}},
    {"ReadAgainTakesTheLastText", "a=1\nb=2\na=3\n", {{"a", "3"}, {"b", "2"}}, {}},
    {"ReadAgainKeepsItsFirstSpelling", "Title=x\nTITLE=y\ntitle=z\n", {{"Title", "z"}}, {}},
    {"ReadAgainEmptyHasAnEmptyText", "a=long text\nA=\n", {{"a", ""}}, {}},
    {"ReadAgainContinuedHasTheNewTextOnly", "a=x\\\ny\nA=1\\\n2\n", {{"a", "12"}}, {}},
    {"EmptyReadAgainTakesTheLastText", "=1\n = 2\n", {{"", "2"}}, {}},
    {"FoldsAsciiOnly", "\xC3\x89=1\n\xC3\xA9=2\n", {{"\xC3\x89", "1"}, {"\xC3\xA9", "2"}}, {}},
    {"FoldsLettersOnly",
     "[=1\n{=2\n@=3\n`=4\n",
     {{"[", "1"}, {"{", "2"}, {"@", "3"}, {"`", "4"}},
     {}},
    {"PrefixIsAnotherKey", "ab=1\na=2\nabc=3\n", {{"a", "2"}, {"ab", "1"}, {"abc", "3"}}, {}},
};

INSTANTIATE_TEST_SUITE_P(Key, PropertiesReader, testing::ValuesIn(kKeys), NameOf);

// Exactly blank, tab, line feed, vertical tab, form feed and carriage return.
const PropertiesCase kWhiteSpace[] = {
    {"GoesAroundTheLine", " \t\v\f\ra=1\r\f\v\t \n", {{"a", "1"}}, {}},
    {"GoesBehindTheKey", "a \t\v\f\r=1\n", {{"a", "1"}}, {}},
    {"GoesInFrontOfTheText", "a= \t\v\f\r1\n", {{"a", "1"}}, {}},
    {"InsideTheTextStays", "a=1 \t\v\f\r2\n", {{"a", "1 \t\v\f\r2"}}, {}},
    {"InsideTheKeyStays", "a \t\vb=1\n", {{"a \t\vb", "1"}}, {}},
    {"NoBreakSpaceIsNone",
     "\xC2\xA0"
     "a=\xC2\xA0"
     "1\xC2\xA0\n",
     {{"\xC2\xA0"
       "a",
       "\xC2\xA0"
       "1\xC2\xA0"}},
     {}},
    {"NextLineIsNone", "a=\xC2\x85\n", {{"a", "\xC2\x85"}}, {}},
    {"IdeographicSpaceIsNone",
     "a=\xE3\x80\x80"
     "1\xE3\x80\x80\n",
     {{"a",
       "\xE3\x80\x80"
       "1\xE3\x80\x80"}},
     {}},
    {"LineSeparatorIsNone", "a=\xE2\x80\xA8\n", {{"a", "\xE2\x80\xA8"}}, {}},
    {"ControlCharactersAreNone",
     "\x01"
     "a\x1F=\x08\x1C\x0E\x7F\n",
     {{"\x01"
       "a\x1F",
       "\x08\x1C\x0E\x7F"}},
     {}},
    {"NoBreakSpaceAloneIsALine", "\xC2\xA0\n", {}, {NoEqualsSign(1)}},
    {"NoBreakSpaceHidesTheCommentSign", "\xC2\xA0# a=1\n", {{"\xC2\xA0# a", "1"}}, {}},
};

INSTANTIATE_TEST_SUITE_P(WhiteSpace, PropertiesReader, testing::ValuesIn(kWhiteSpace), NameOf);

const PropertiesCase kByteOrderMarks[] = {
    {"IsDropped", kMark + "a=1\n"s, {{"a", "1"}}, {}},
    {"AloneIsAnEmptyLine", kMark + "\na=1\n"s, {{"a", "1"}}, {}},
    {"AloneIsAnEmptyFile", kMark, {}, {}},
    {"MayStandBeforeAComment", kMark + "# a=1\n"s, {}, {}},
    {"MayStandBeforeWhiteSpace", kMark + " \t# a=1\nb=2\n"s, {{"b", "2"}}, {}},
    {"MayStandBeforeTheEqualsSign", kMark + "=1\n"s, {{"", "1"}}, {}},
    {"MayStandBeforeAContinuedLine", kMark + "a=1\\\n2\n"s, {{"a", "12"}}, {}},
    {"IsDroppedOnce", kMark + (kMark + "a=1\n"s), {{kMark + "a"s, "1"}}, {}},
    {"BehindWhiteSpaceStays", " "s + kMark + "a=1\n", {{kMark + "a"s, "1"}}, {}},
    {"OnTheSecondLineStays", "\n"s + kMark + "a=1\n", {{kMark + "a"s, "1"}}, {}},
    {"OnTheSecondLineHidesTheCommentSign", "\n"s + kMark + "#a\n", {}, {NoEqualsSign(2)}},
    {"OnAContinuationLineStays", "a=1\\\n"s + kMark + "2\n", {{"a", "1"s + kMark + "2"}}, {}},
    {"InTheTextStays", "a="s + kMark + "1\n", {{"a", kMark + "1"s}}, {}},
    {"CutShortIsNotUtf8", "\xEF\xBB\na=1\n", {{"a", "1"}}, {NotUtf8(1)}},
    {"BrokenIsNotUtf8",
     "\xEF\xBB"
     "a=1\n",
     {},
     {NotUtf8(1)}},
    {"NextCodePointIsNone",
     "\xEF\xBC\x80"
     "a=1\n",
     {{"\xEF\xBC\x80"
       "a",
       "1"}},
     {}},
    {"OfSixteenBitsIsNotUtf8",
     "\xFF\xFE"
     "a=1\n",
     {},
     {NotUtf8(1)}},
    {"DoesNotHideABrokenLine", kMark + "a=\xC0\n"s, {}, {NotUtf8(1)}},
};

INSTANTIATE_TEST_SUITE_P(ByteOrderMark, PropertiesReader, testing::ValuesIn(kByteOrderMarks),
                         NameOf);

const PropertiesCase kNotUtf8[] = {
    {"LineIsReportedAndSkipped", "a=1\nb=\xC0\nc=3\n", {{"a", "1"}, {"c", "3"}}, {NotUtf8(2)}},
    {"LineCountsOn", "\xC0\nnonsense\n\xFF\n", {}, {NotUtf8(1), NoEqualsSign(2), NotUtf8(3)}},
    {"CommentIsReportedToo", "# \xE9t\xE9\n", {}, {NotUtf8(1)}},
    {"LineIsReportedOnce", "\xE9=\xE9 \xC0\n", {}, {NotUtf8(1)}},
    {"LineWithoutEqualsSignIsReportedOnce", "\xE9\n", {}, {NotUtf8(1)}},
    {"LastLineWithoutEnd", "a=1\nb=\xE2\x82", {{"a", "1"}}, {NotUtf8(2)}},
    {"SequenceDoesNotCrossTheLineEnd", "a=\xC3\n\xA9=1\n", {}, {NotUtf8(1), NotUtf8(2)}},
    {"KeyIsSkippedToo", "\xC3=1\n", {}, {NotUtf8(1)}},
    {"EarlierTextOfTheKeyStays", "a=1\na=\x80\n", {{"a", "1"}}, {NotUtf8(2)}},
    {"LongFormsPass",
     "a=\xF8\x88\x80\x80\x80\nb=\xFC\x84\x80\x80\x80\x80\n",
     {{"a", "\xF8\x88\x80\x80\x80"}, {"b", "\xFC\x84\x80\x80\x80\x80"}},
     {}},
    {"SurrogatesPass", "a=\xED\xA0\x80\n", {{"a", "\xED\xA0\x80"}}, {}},
    {"HighCodePointsPass", "a=\xF4\x90\x80\x80\n", {{"a", "\xF4\x90\x80\x80"}}, {}},
};

INSTANTIATE_TEST_SUITE_P(NotUtf8, PropertiesReader, testing::ValuesIn(kNotUtf8), NameOf);

const PropertiesCase kNuls[] = {
    {"EndsTheTextOfItsLine", "a=b\0c\nd=e\n"s, {{"a", "b"}, {"d", "e"}}, {}},
    {"InFrontLeavesAnEmptyLine", "\0a=b\nc=d\n"s, {{"c", "d"}}, {}},
    {"BeforeTheEqualsSignHidesIt", "a\0=b\n"s, {}, {NoEqualsSign(1)}},
    {"WhiteSpaceBeforeItGoes", "a=b \0c\n"s, {{"a", "b"}}, {}},
    {"BehindABackslashContinues", "a=1\\\0x\n2\n"s, {{"a", "12"}}, {}},
    {"HidesABackslash", "a=1\0\\\nb=2\n"s, {{"a", "1"}, {"b", "2"}}, {}},
    {"EndsTheTextOfAContinuationLine", "a=1\\\n2\0\\\nb=3\n"s, {{"a", "12"}, {"b", "3"}}, {}},
    {"InFrontOfAContinuationLineCompletesTheText",
     "a=1\\\n\0x\nb=2\n"s,
     {{"a", "1"}, {"b", "2"}},
     {}},
    {"DoesNotCompleteASequence", "a=\xC3\0\xA9\n"s, {}, {NotUtf8(1)}},
    {"BehindTheByteOrderMarkLeavesAnEmptyLine", "\xEF\xBB\xBF\0a=b\n"s, {}, {}},
};

INSTANTIATE_TEST_SUITE_P(NulByte, PropertiesReader, testing::ValuesIn(kNuls), NameOf);

}  // namespace
