// What a list of values becomes, conversion by conversion.

#include <gtest/gtest.h>

#include <bit>
#include <climits>
#include <cstdint>
#include <cwchar>

#include "format/varied_calls.h"

namespace {

class InsertVariableVA : public testing::TestWithParam<VariableCase> {};

TEST_P(InsertVariableVA, Yields) {
  ExpectInserts(GetParam().call, GetParam().text, kAmple, GetParam().expected);
}

constexpr const char* kNullText = nullptr;
constexpr const wchar_t* kNullWide = nullptr;
constexpr std::int64_t kFarBelow = INT64_MIN;
constexpr std::int64_t kFarAbove = INT64_MAX;

const VariableCase kConversions[] = {
    {"TextWithoutMarkers", "Nothing to insert: {0} $1 :1", With(), "Nothing to insert: {0} $1 :1"},
    {"EmptyText", "", With(), ""},
    {"WholeConversionsAreKept", "[%-8.3f|%+d|%#x|%05d|%.2s|% d]", With(1.5, 3, 255U, -42, "abc", 7),
     "[1.500   |+3|0xff|-0042|ab| 7]"},
    {"AllLetters", "%c %d %i %o %u %x %f %s", With('A', -1, 2, 8U, 3U, 255U, 0.5, "z"),
     "A -1 2 10 3 ff 0.500000 z"},
    {"WidthFromTheLeftAndRight", "[%5s|%-5s|%5c|%-5c]", With("ab", "cd", 'e', 'f'),
     "[   ab|cd   |    e|f    ]"},
    {"LongLong", "%lld %lld %llu %llx", With(kFarBelow, kFarAbove, UINT64_MAX, UINT64_MAX),
     "-9223372036854775808 9223372036854775807 18446744073709551615 ffffffffffffffff"},
    {"Long", "%ld %lu %lx", With(LONG_MIN, ULONG_MAX, 255UL),
     sizeof(long) == 8 ? "-9223372036854775808 18446744073709551615 ff"
                       : "-2147483648 4294967295 ff"},
    {"Short", "%hd %hu %hhd %hhu", With(65537, -1, 257, -1), "1 65535 1 255"},
    {"WideTextAndCharacter", "%ls|%5ls|%lc", With(L"wide", L"w", static_cast<wint_t>(L'c')),
     "wide|    w|c"},
    {"EmptyString", "[%s]", With(""), "[]"},
    {"NullStringIsEmpty", "[%s]", With(kNullText), "[]"},
    {"NullStringIsPaddedToItsWidth", "[%5s|%-3s]", With(kNullText, kNullText), "[     |   ]"},
    {"NullStringWithPrecision", "[%.3s|%4.1s]", With(kNullText, kNullText), "[|    ]"},
    {"NullWideStringIsEmpty", "[%ls|%2ls]", With(kNullWide, kNullWide), "[|  ]"},
    {"ValueBehindANullString", "%s%d", With(kNullText, 5), "5"},
    {"ValueIsNotScannedAgain", "%s %s", With("%s %d", "b"), "%s %d b"},
    {"BytesAreKept", "\xFF%s\x80", With("\xE2\x82\xAC\xC3"), "\xFF\xE2\x82\xAC\xC3\x80"},
    {"TextBehindANulCharacterIsKept", "<%c>", With(0), "<>"},
};

INSTANTIATE_TEST_SUITE_P(Conversions, InsertVariableVA, testing::ValuesIn(kConversions), NameOf);

const VariableCase kNumbers[] = {
    {"Reordered", "%s:2 before %s:1", With("a", "b"), "b before a"},
    {"InTurn", "%d and %d", With(1, 2), "1 and 2"},
    {"SkipsArguments", "%s:3", With("a", "b", "c"), "c"},
    {"SkipsIntegersAndTexts", "%f:4 %d:2", With(1, 2, "c", 0.5), "0.500000 2"},
    {"ZeroIsTheTenth", "%s:0", With("a", "b", "c", "d", "e", "f", "g", "h", "i", "j"), "j"},
    {"NineAndTen", "%d:9 %d:0 %d:1", With(1, 2, 3, 4, 5, 6, 7, 8, 9, 10), "9 10 1"},
    {"RepeatedInOtherForms", "%d:1 %x:1 %5d:1 %o:1 %u:1", With(30), "30 1e    30 36 30"},
    {"RepeatedText", "%s:1 %.1s:1 %5s:1", With("abc"), "abc a   abc"},
    {"NumberOnEachSideOfATextNumber", "%d:2%s:1%f:3", With("s", 5, 0.25), "5s0.250000"},
    {"UnnumberedCountApartFromNumbered", "%d:2 %d %d:1 %d", With(5, 6), "6 5 5 6"},
    {"UnnumberedStartAtTheFirst", "%s:3 %s %s", With("a", "b", "c"), "c a b"},
    {"OnlyOneDigit", "%d:12", With(5), "52"},
    {"ColonWithoutDigitIsText", "%d: %d:x %d:", With(1, 2, 3), "1: 2:x 3:"},
    {"SecondColonIsText", "%d::1", With(5), "5::1"},
    {"BlankBeforeTheColon", "%d :2", With(5), "5 :2"},
    {"NumberBehindAPercentIsAWidth", "%2d", With(5), " 5"},
    {"DirectlyBehindEachOther", "%d:2%d:1", With(5, 6), "65"},
};

INSTANTIATE_TEST_SUITE_P(Numbers, InsertVariableVA, testing::ValuesIn(kNumbers), NameOf);

// "%%" is no escape: a conversion goes on to its letter, whatever stands between.
const VariableCase kOddConversions[] = {
    {"PercentSignTakesAnArgument", "50%% of %s", With("x", "y"), "50% of y"},
    {"PercentSignSharesANumberedArgument", "50%% of:2 %s:1", With("x"), "50% of:2 x"},
    {"PercentSignBeforeAConversion", "%%%d", With(5), "%5"},
    {"PercentSignBeforeAnotherConversion", "100%% %d!", With(5), "100% 5!"},
    {"UnfinishedAtTheEnd", "%5.1f%%", With(2.5), "  2.5"},
    {"UnfinishedTakesNoArgument", "%d %l", With(1), "1 "},
    {"UnfinishedSwallowsText", "%d 100% -> 5", With(1), "1 100"},
    {"UnfinishedAlone", "%", With(), ""},
    {"UnfinishedWithOtherLetters", "a%Xgea%", With(), "a"},
    {"StarTakesNoArgument", "%*d %d", With(1, 2), "1 2"},
    {"StarAsPrecisionTakesNoArgument", "%.*f %*.*d", With(1.5, 2), "1.500000 2"},
};

INSTANTIATE_TEST_SUITE_P(OddConversions, InsertVariableVA, testing::ValuesIn(kOddConversions),
                         NameOf);

constexpr auto kHalfBits = std::bit_cast<std::int64_t>(0.5);

// An argument that several conversions read is a floating value when the first of them says so.
// Otherwise it is a word, and each of them sees its bytes.
const VariableCase kReadTwice[] = {
    {"NumberInTwoLengths", "%d:1 %lld:1", With(std::int64_t{0x100000007}), "7 4294967303"},
    {"NumberInTwoLengthsTurned", "%lld:1 %d:1", With(std::int64_t{0x100000007}), "4294967303 7"},
    {"FloatThenItsBytes", "%f:1 %llx:1", With(0.5), "0.500000 3fe0000000000000"},
    {"FloatThenItsFirstBytes", "%f:1 %d:1", With(0.5), "0.500000 0"},
    {"BytesThenTheFloatOfThem", "%llx:1 %f:1", With(kHalfBits), "3fe0000000000000 0.500000"},
    {"UnusedThenFloat", "%% o:1 %f:1 %d:2", With(0.5, 7), "% o 0.500000 7"},
    {"FloatTwice", "%f:1 %.1f:1", With(0.5), "0.500000 0.5"},
};

INSTANTIATE_TEST_SUITE_P(ReadTwice, InsertVariableVA, testing::ValuesIn(kReadTwice), NameOf);

// More values than a platform passes in registers, of every kind.
const VariableCase kManyArguments[] = {
    {"TenIntegersByNumber", "%d:0%d:9%d:8%d:7%d:6%d:5%d:4%d:3%d:2%d:1",
     With(0, 1, 2, 3, 4, 5, 6, 7, 8, 9), "9876543210"},
    {"TenFractionsByNumber", "%.0f:0%.0f:9%.0f:8%.0f:7%.0f:6%.0f:5%.0f:4%.0f:3%.0f:2%.0f:1",
     With(0.0, 1.0, 2.0, 3.0, 4.0, 5.0, 6.0, 7.0, 8.0, 9.0), "9876543210"},
    {"TenOfAllKindsByNumber", "%s:0%.1f:9%lld:8%d:7%s:6%.1f:5%lld:4%d:3%s:2%.1f:1",
     With(0.5, "b", 3, kFarBelow, 4.5, "f", 7, kFarAbove, 8.5, "j"),
     "j8.592233720368547758077f4.5-92233720368547758083b0.5"},
    {"ThirtyInterleaved",
     "%d%.1f%s,%d%.1f%s,%d%.1f%s,%d%.1f%s,%d%.1f%s,%d%.1f%s,%d%.1f%s,%d%.1f%s,%d%.1f%s,%d%.1f%s",
     With(0, 0.5, "a", 1, 1.5, "b", 2, 2.5, "c", 3, 3.5, "d", 4, 4.5, "e", 5, 5.5, "f", 6, 6.5, "g",
          7, 7.5, "h", 8, 8.5, "i", 9, 9.5, "j"),
     "00.5a,11.5b,22.5c,33.5d,44.5e,55.5f,66.5g,77.5h,88.5i,99.5j"},
    {"TwelveFractionsBeforeTwelveTexts",
     "%.0f%.0f%.0f%.0f%.0f%.0f%.0f%.0f%.0f%.0f%.0f%.0f%s%s%s%s%s%s%s%s%s%s%s%s",
     With(1.0, 2.0, 3.0, 4.0, 5.0, 6.0, 7.0, 8.0, 9.0, 1.0, 2.0, 3.0, "a", "b", "c", "d", "e", "f",
          "g", "h", "i", "j", "k", "l"),
     "123456789123abcdefghijkl"},
    {"TwelveInTurnAndAgainByNumber", "%d%s%f%d%s%f%d%s%f%d%s%f %d:0%f:9%s:8%d:1",
     With(1, "a", 0.5, 2, "b", 1.5, 3, "c", 2.5, 4, "d", 3.5),
     "1a0.5000002b1.5000003c2.5000004d3.500000 42.500000c1"},
    {"SkipsMoreThanTheRegisters", "%s:0 %f:9", With(1, 2, 3, 4, 5, 6, 7, 8, 0.5, "j"),
     "j 0.500000"},
    {"SequenceBehindTheTenth", "%d%d%d%d%d%d%d%d%d%d%d%d%d %d:0",
     With(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, -13), "123456789101112-13 10"},
};

INSTANTIATE_TEST_SUITE_P(ManyArguments, InsertVariableVA, testing::ValuesIn(kManyArguments),
                         NameOf);

}  // namespace
