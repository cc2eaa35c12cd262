#include <gtest/gtest.h>

#include <climits>
#include <cstdio>
#include <limits>
#include <string>

#include "CKxXlate.h"
#include "format/variable_cases.h"
#include "support/guarded_buffer.h"

namespace {

/// A call with these values.
template <class... Values>
Call With(Values... values) {
  return [=](char* buffer, KxSize size, const char* format) {
    CKxXlate::InsertVariable(buffer, size, format, values...);
  };
}

class InsertVariable : public testing::TestWithParam<VariableCase> {};

TEST_P(InsertVariable, Yields) {
  ExpectInserts(GetParam().call, GetParam().text, kAmple, GetParam().expected);
}

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr const char* kNullText = nullptr;

const VariableCase kConversions[] = {
    {"TextWithoutMarkers", "Nothing to insert: {0} $1 :1", With(), "Nothing to insert: {0} $1 :1"},
    {"EmptyText", "", With(), ""},
    {"StringAndNumber", "%s:1 has %d:2 files", With("disk", 12), "disk has 12 files"},
    {"Decimal", "%d:1", With(-12), "-12"},
    {"LowestDecimal", "%d:1", With(INT_MIN), "-2147483648"},
    {"HighestDecimal", "%d:1", With(INT_MAX), "2147483647"},
    {"DecimalZero", "%d:1", With(0), "0"},
    {"Integer", "%i:1", With(42), "42"},
    {"LowestInteger", "%i:1", With(INT_MIN), "-2147483648"},
    {"Octal", "%o:1", With(8U), "10"},
    {"OctalOfAllBits", "%o:1", With(UINT_MAX), "37777777777"},
    {"HexHasSmallLettersAndNoPrefix", "%x:1", With(255U), "ff"},
    {"HexOfAllBits", "%x:1", With(UINT_MAX), "ffffffff"},
    {"FloatHasSixDecimals", "%f:1", With(1.5), "1.500000"},
    {"FloatIsRounded", "%f:1", With(-2.0 / 3.0), "-0.666667"},
    {"NegativeZero", "%f:1", With(-0.0), "-0.000000"},
    {"Infinity", "%f:1 %f:2", With(kInfinity, -kInfinity), "inf -inf"},
    {"String", "%s:1", With("text"), "text"},
    {"EmptyString", "[%s:1]", With(""), "[]"},
    {"NullStringIsEmpty", "[%s:1]", With(kNullText), "[]"},
    {"NullStringFillsItsSlot", "[%s:1%s:2]", With(kNullText, "b"), "[b]"},
    {"ValueIsNotScannedAgain", "%s:1 %s:2", With("%s:2 %%", "b"), "%s:2 %% b"},
    {"BytesAreKept", "\xFF%s:1\x80", With("\xE2\x82\xAC\xC3"), "\xFF\xE2\x82\xAC\xC3\x80"},
    {"AllSixTogether", "%d:1 %i:2 %o:3 %x:4 %f:5 %s:6", With(1, -2, 8U, 10U, 0.25, "z"),
     "1 -2 10 a 0.250000 z"},
    {"ValuesOfAllKindsInTurn", "%s:1%f:2%d:3%s:4%f:5%x:6%s:7%f:8%o:9",
     With("a", 1.0, 2, "b", 3.0, 4U, "c", 5.0, 6U), "a1.0000002b3.0000004c5.0000006"},
};

INSTANTIATE_TEST_SUITE_P(Conversions, InsertVariable, testing::ValuesIn(kConversions), NameOf);

const VariableCase kNumbers[] = {
    {"NumberConversionsInTextOrder", "%d:2 items in %s:1", With(7, "cart"), "cart items in 7"},
    {"ReverseNine", "%d:9%d:8%d:7%d:6%d:5%d:4%d:3%d:2%d:1", With(1, 2, 3, 4, 5, 6, 7, 8, 9),
     "987654321"},
    {"AgainAndAgain", "%s:2%s:1%s:2", With("a", "b", "unused"), "bab"},
    {"NotAtAll", "%s:1%s:1", With("a", "b"), "aa"},
    {"LetterAtTheNumberDoesNotCount", "%s:2 %d:1", With("a", 7), "7 a"},
    {"NotFilledIsEmpty", "[%s:5]", With("a"), "[]"},
    {"FilledLaterInTheText", "%s:2 and %s:1", With("a", "b"), "b and a"},
    {"OnlyOneDigit", "%d:12", With(5), "52"},
    {"DirectlyBehindEachOther", "%d:1%d:2", With(5, 6), "56"},
    {"NineIsTheLast", "%d:1%d:2%d:3%d:4%d:5%d:6%d:7%d:8%d:9", With(1, 2, 3, 4, 5, 6, 7, 8, 9),
     "123456789"},
};

INSTANTIATE_TEST_SUITE_P(Numbers, InsertVariable, testing::ValuesIn(kNumbers), NameOf);

// Only d, i, o, x, f and s convert. "%" and any other byte vanish and take no value.
const VariableCase kNoConversions[] = {
    {"DoubledPercent", "100%% done", With(), "100 done"},
    {"DoubledPercentHidesALetter", "%%s:1", With("a"), "s:1"},
    {"DoubledPercentBeforeAConversion", "%%%s:1", With("a"), "a"},
    {"UnsignedTakesNoValue", "%u:1 left, %s:1", With("a"), ":1 left, a"},
    {"CharacterTakesNoValue", "%c:1|%s:1", With("a"), ":1|a"},
    {"ExponentTakesNoValue", "%e:1|%s:1", With("a"), ":1|a"},
    {"GeneralTakesNoValue", "%g:1|%s:1", With("a"), ":1|a"},
    {"PointerTakesNoValue", "%p:1|%s:1", With("a"), ":1|a"},
    {"CountTakesNoValue", "%n:1|%s:1", With("a"), ":1|a"},
    {"LengthIsNotKnown", "%ld:1|%s:1", With("a"), "d:1|a"},
    {"WidthIsNotKnown", "%5d:1|%s:1", With("a"), "d:1|a"},
    {"FlagIsNotKnown", "%-8s:1|%s:1", With("a"), "8s:1|a"},
    {"PrecisionIsNotKnown", "%.2f:1|%s:1", With("a"), "2f:1|a"},
    {"StarIsNotKnown", "%*d:1|%s:1", With("a"), "d:1|a"},
    {"CapitalsAreOtherLetters", "%S:1%D:1%X:1|%s:1", With("a"), ":1:1:1|a"},
    {"Blank", "100% sure", With(), "100sure"},
    {"Colon", "%:1", With(), "1"},
    {"Digit", "%1:1", With(), ":1"},
    {"ByteAbove127", "%\xC3\xA9", With(), "\xA9"},
};

INSTANTIATE_TEST_SUITE_P(NoConversions, InsertVariable, testing::ValuesIn(kNoConversions), NameOf);

// A conversion without its number vanishes with the byte behind it, and is meant to.
const VariableCase kLosses[] = {
    {"LostFullStop", "%s.", With("a"), ""},
    {"LostBlank", "%s is here", With("a"), "is here"},
    {"LostByteOfASequence", "%s\xC3\xA9", With("a"), "\xA9"},
    {"LostPercentOfTheNextConversion", "%s%s:1", With("a", "b"), "s:1"},
    {"LostPercentStillTakesAValue", "%s%d:1|%s:3", With("a", 5, "c"), "d:1|c"},
    {"LostFirstOfTwoPercents", "%d%%|%d:1", With(5, 6), "5"},
    {"LostDigit", "%d7 %d:2", With(5, 6), " 6"},
    {"LostLetter", "%dd%d:1", With(5, 6), "5"},
    {"LostNumberZero", "%s:0", With("a"), ""},
    {"LostNumberZeroOnly", "<%s:0>", With("a"), "<>"},
    {"LostNumberThatIsALetter", "%s:x:1", With("a"), ":1"},
    {"LostSecondColon", "%s::1", With("a"), "1"},
    {"LostBlankBehindTheColon", "%s: %s:1", With("a", "b"), "a"},
    {"LostPercentBehindTheColon", "%s:%d:1|%d:2", With("a", 5, 6), "d:1|5"},
    {"LostConversionsStillTakeTheirValues", "%s. %s:2", With("a", "b"), " b"},
    {"LostConversionsMayBeInserted", "%s. %s:1", With("a", "b"), " a"},
    {"LostNumberZeroStillTakesItsValue", "%s:0%d:2", With("a", 5), "5"},
};

INSTANTIATE_TEST_SUITE_P(Losses, InsertVariable, testing::ValuesIn(kLosses), NameOf);

const VariableCase kEnds[] = {
    {"PercentAlone", "%", With(), ""},
    {"PercentBehindText", "50%", With(), "50"},
    {"DoubledPercentAtTheEnd", "50%%", With(), "50"},
    {"ThreePercents", "%%%", With(), ""},
    {"OtherLetterAtTheEnd", "a%u", With(), "a"},
    {"LetterAtTheEnd", "a%s", With("x"), "a"},
    {"LetterAtTheEndFillsItsSlot", "%d:2 %s", With(1, "x"), "x "},
    {"ColonAtTheEnd", "a%s:", With("x"), "a"},
    {"ColonAtTheEndFillsItsSlot", "%d:2 %s:", With(1, "x"), "x "},
    {"LostByteIsTheLast", "a%s.", With("x"), "a"},
};

INSTANTIATE_TEST_SUITE_P(Ends, InsertVariable, testing::ValuesIn(kEnds), NameOf);

// There are nine slots. Further conversions take no value, so that none is read that was not given.
const VariableCase kTooMany[] = {
    {"TenthTakesNoValue", "%d:1%d:2%d:3%d:4%d:5%d:6%d:7%d:8%d:9|%s:1",
     With(1, 2, 3, 4, 5, 6, 7, 8, 9), "123456789|1"},
    {"TenthFillsNoSlot", "%d:1%d:2%d:3%d:4%d:5%d:6%d:7%d:8%d:9|%d:9%d:1",
     With(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11), "123456789|91"},
    {"TwelveOfEachKind", "%s:1%s:2%s:3%d:4%d:5%d:6%f:7%f:8%f:9|%s:3%f:7%d:4",
     With("a", "b", "c", 1, 2, 3, 0.5, 1.5, 2.5), "abc1230.5000001.5000002.500000|c0.5000001"},
    {"ConversionsWithoutNumberCount", "%d.%d.%d.%d.%d.%d.%d.%d.%d.|%s:9",
     With(1, 2, 3, 4, 5, 6, 7, 8, 9), "|9"},
    {"TenthWithoutNumberVanishesAlike", "%d.%d.%d.%d.%d.%d.%d.%d.%d.|%s.|%s:0|%s",
     With(1, 2, 3, 4, 5, 6, 7, 8, 9), "|||"},
    {"OthersDoNotCount", "%%%u%%%u%%%u%%%u%%%u%s:1", With("a"), "a"},
};

INSTANTIATE_TEST_SUITE_P(TooMany, InsertVariable, testing::ValuesIn(kTooMany), NameOf);

std::string Printed(double value) {
  char text[512];
  std::snprintf(text, sizeof text, "%f", value);
  return text;
}

TEST(InsertVariableLengths, ANumberIsCutAt255Bytes) {
  ASSERT_EQ(255U, Printed(2e247).size());
  for (const double value : {2e247, 2e248, 1e300, -2e246, -2e247, -1e300, 1.7976931348623157e308}) {
    ExpectInserts(With(value), "%f:1", kAmple, Printed(value).substr(0, 255));
  }
}

TEST(InsertVariableLengths, TextBehindACutNumberIsKept) {
  ExpectInserts(With(1e300, 7), "<%f:1> %d:2", kAmple, "<" + Printed(1e300).substr(0, 255) + "> 7");
}

TEST(InsertVariableLengths, AStringIsNotCut) {
  const std::string value(100000, 's');
  ExpectInserts(With(value.c_str()), "<%s:1>", 100010, "<" + value + ">");
}

TEST(InsertVariableLengths, TheTextIsNotCut) {
  const std::string text(100000, 't');
  ExpectInserts(With("a"), (text + "%s:1").c_str(), 100010, text + "a");
}

TEST(InsertVariableLengths, ManyInsertionsOfOneSlot) {
  const std::string value(100, 'v');
  std::string text = "%s:1";
  std::string expected = value;
  for (int i = 0; i < 2000; ++i) {
    text += "%d:1";
    expected += value;
  }
  ExpectInserts(With(value.c_str(), 0, 0, 0, 0, 0, 0, 0, 0), text.c_str(), 250000, expected);
}

TEST(InsertVariableBuffer, IsFilledWithZerosBehindTheResult) {
  ExpectInserts(With("abc"), "%s:1", 100, "abc");
  ExpectInserts(With(), "", 100, "");
}

TEST(InsertVariableBuffer, OneByteLessThanTheSizeFits) {
  ExpectInserts(With("123"), "ab%s:1", 6, "ab123");
}

TEST(InsertVariableBuffer, ExactlyTheSizeIsCutToOneByteLess) {
  ExpectInserts(With("123"), "ab%s:1", 5, "ab12");
}

TEST(InsertVariableBuffer, OneByteMoreThanTheSizeIsCutToOneByteLess) {
  ExpectInserts(With("123"), "ab%s:1", 4, "ab1");
}

TEST(InsertVariableBuffer, EverySizeKeepsTheRule) {
  const std::string result = "0123456789";
  for (KxSize size = 1; size <= 14; ++size) {
    SCOPED_TRACE(size);
    ExpectInserts(With(result.c_str()), "%s:1", size, result.substr(0, size - 1));
  }
}

TEST(InsertVariableBuffer, OneByteTakesTheTerminator) {
  ExpectInserts(With("123"), "ab%s:1", 1, "");
  ExpectInserts(With(), "", 1, "");
}

TEST(InsertVariableBuffer, CutMayFallInsideASequence) {
  ExpectInserts(With("\xE2\x82\xAC"), "a%s:1", 3, "a\xE2");
}

TEST(InsertVariableBuffer, NullTextIsTheEmptyText) { ExpectInserts(With(), nullptr, 8, ""); }

TEST(InsertVariableBuffer, SizeZeroWritesNothing) {
  GuardedBuffer buffer(0);
  CKxXlate::InsertVariable(buffer.Data(), 0, "%s:1", "abc");
  CKxXlate::InsertVariable(buffer.Data(), 0, "");
  CKxXlate::InsertVariable(buffer.Data(), 0, nullptr);
  EXPECT_EQ(0U, buffer.BytesWritten());
  EXPECT_TRUE(buffer.IsFrontUntouched());
}

TEST(InsertVariableBuffer, NullBufferWritesNothing) {
  EXPECT_NO_THROW(CKxXlate::InsertVariable(nullptr, 8, "%s:1", "abc"));
  EXPECT_NO_THROW(CKxXlate::InsertVariable(nullptr, 0, "%s:1", "abc"));
  EXPECT_NO_THROW(CKxXlate::InsertVariable(nullptr, 8, nullptr));
}

TEST(InsertVariableBuffer, MayBeTheTextItself) {
  char buffer[32] = "%s:2 before %s:1";
  CKxXlate::InsertVariable(buffer, sizeof buffer, buffer, "a", "b");
  EXPECT_EQ(ZeroFilled("b before a", sizeof buffer), std::string(buffer, sizeof buffer));
}

TEST(InsertVariableBuffer, MayBeAValue) {
  char buffer[16] = "value";
  CKxXlate::InsertVariable(buffer, sizeof buffer, "<%s:1 %s:1>", buffer, "b");
  EXPECT_EQ(ZeroFilled("<value value>", sizeof buffer), std::string(buffer, sizeof buffer));
}

}  // namespace
