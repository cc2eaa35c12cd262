// The lengths of conversions: how long a value is read, and that the values behind it are read from
// their own places whatever a length says.

#include <gtest/gtest.h>

#include <cstdint>
#include <cwchar>
#include <limits>
#include <ostream>
#include <string>

#include "format/inserted.h"
#include "platform/long_double.h"

namespace {

using kx::HostLongDouble;

struct LengthCase {
  const char* name;
  const char* text;
  Insertion insert;
  const char* expected;
};

void PrintTo(const LengthCase& c, std::ostream* os) { *os << '"' << c.text << '"'; }

class ConversionLength : public testing::TestWithParam<LengthCase> {};

TEST_P(ConversionLength, Yields) {
  EXPECT_EQ(GetParam().expected, GetParam().insert(GetParam().text));
}

std::string NameOf(const testing::TestParamInfo<LengthCase>& row) { return row.param.name; }

constexpr std::int64_t kWideNumber = 0x1200000007;  // seen as an int it is 7
constexpr HostLongDouble Long(double value) { return static_cast<HostLongDouble>(value); }

constexpr HostLongDouble kHalf = Long(0.5);
constexpr HostLongDouble kMany = Long(1234567.875);
constexpr HostLongDouble kInfinity = std::numeric_limits<HostLongDouble>::infinity();
constexpr HostLongDouble kNoNumber = std::numeric_limits<HostLongDouble>::quiet_NaN();

const LengthCase kFractions[] = {
    {"Fixed", "%Lf", Inserting(kHalf), "0.500000"},
    {"Exponential", "%.3Le o %LE o", Inserting(kMany, -kHalf), "1.235e+06 o -5.000000E-01 o"},
    {"General", "%Lg, of %LG, of %d", Inserting(kMany, kHalf, 7), "1.23457e+06, of 0.5, of 7"},
    {"InAPieceThatASecondEnds", "%LG, %d", Inserting(kHalf, 7), "0.5, %d"},
    {"Capital", "[%9.2LF o]", Inserting(kHalf), "[     0.50 o]"},
    {"FlagsAndWidth", "[%-+9.2Lf|%09.1Lf|%#.0Lf]", Inserting(kHalf, -kMany, Long(2)),
     "[+0.50    |-1234567.9|2.]"},
    {"BeforeAText", "%Lf of %s:2", Inserting(kHalf, "all"), "0.500000 of all"},
    {"BehindAText", "%s: %Lf, %s", Inserting("a", kHalf, "b"), "a: 0.500000, b"},
    {"BetweenOthersByNumber", "%s:5 %.1Lf:4 %d:3 %.1f:2 %.1Lf:1",
     Inserting(kHalf, 1.5, 2, Long(3.5), "end"), "end 3.5 2 1.5 0.5"},
    {"MoreThanAnyRegistersHold",
     "%d %.0Lf %.0f %s|%d %.0Lf %.0f %s|%d %.0Lf %.0f %s|%d %.0Lf %.0f %s|"
     "%d %.0Lf %.0f %s|%d %.0Lf %.0f %s|%d %.0Lf %.0f %s|%.0f %.0f %.0f %.0Lf %d",
     Inserting(1, Long(2), 3.0, "a", 4, Long(5), 6.0, "b", 7, Long(8), 9.0, "c", 10, Long(11), 12.0,
               "d", 13, Long(14), 15.0, "e", 16, Long(17), 18.0, "f", 19, Long(20), 21.0, "g", 22.0,
               23.0, 24.0, Long(25), 26),
     "1 2 3 a|4 5 6 b|7 8 9 c|10 11 12 d|13 14 15 e|16 17 18 f|19 20 21 g|22 23 24 25 26"},
    {"SteppedOverWhenOnlyTheNextIsPrinted", "%.0Lf:1%.0s:2%d:3", Inserting(kHalf, "b", 3), "03"},
    {"OrdinaryFractionsKeepTheirOwn", "%lf %f %s", Inserting(0.5, 1.5, "a"), "0.500000 1.500000 a"},
    {"InfinityAndNoNumber", "[%+Lf|%6Lf|%-6Lf]", Inserting(kInfinity, -kInfinity, -kNoNumber),
     "[+inf|  -inf|-nan  ]"},
};

INSTANTIATE_TEST_SUITE_P(Fractions, ConversionLength, testing::ValuesIn(kFractions), NameOf);

const LengthCase kIntegers[] = {
    {"SixtyFourDecimal", "%I64d %I64i", Inserting(INT64_MIN, INT64_MAX),
     "-9223372036854775808 9223372036854775807"},
    {"SixtyFourUnsigned", "%I64u %I64x %I64o", Inserting(UINT64_MAX, UINT64_MAX, UINT64_MAX),
     "18446744073709551615 ffffffffffffffff 1777777777777777777777"},
    {"SixtyFourCapitalHexadecimal", "%I64X o", Inserting(UINT64_MAX), "FFFFFFFFFFFFFFFF o"},
    {"SixtyFourWithFlagsAndWidth", "[%-8I64d|%+.5I64d|%#10I64x]",
     Inserting(kWideNumber, std::int64_t{5}, std::int64_t{255}), "[77309411335|+00005|      0xff]"},
    {"ThirtyTwo", "%I32d %I32u %I32x", Inserting(-1, -1, 255), "-1 4294967295 ff"},
    {"ThirtyTwoSeesTheLowBytes", "%I32d", Inserting(kWideNumber), "7"},
    {"OfPointers", "%Id %Iu %Ix", Inserting(INT64_MIN, UINT64_MAX, kWideNumber),
     "-9223372036854775808 18446744073709551615 1200000007"},
    {"LongLongByItsOtherName", "%Ld %Lu %Lx", Inserting(INT64_MIN, UINT64_MAX, kWideNumber),
     "-9223372036854775808 18446744073709551615 1200000007"},
    {"ReorderedWithTexts", "%s:2 %I64d:1 %Iu:3", Inserting(kWideNumber, "of", std::size_t{3}),
     "of 77309411335 3"},
};

INSTANTIATE_TEST_SUITE_P(Integers, ConversionLength, testing::ValuesIn(kIntegers), NameOf);

const LengthCase kTexts[] = {
    {"WideText", "[%ws|%6ws|%-6.2ws|%.0ws]", Inserting(L"wide", L"wide", L"wide", L"wide"),
     "[wide|  wide|wi    |]"},
    {"WideCharacter", "[%wc|%3wc|%-3wc]", Inserting(wint_t{L'w'}, wint_t{L'x'}, wint_t{L'y'}),
     "[w|  x|y  ]"},
    {"NoWideText", "[%3ws]", Inserting(static_cast<const wchar_t*>(nullptr)), "[   ]"},
    {"WideAndNarrow", "%ws:2 %s:1 %ls:2", Inserting("narrow", L"wide"), "wide narrow wide"},
};

INSTANTIATE_TEST_SUITE_P(Texts, ConversionLength, testing::ValuesIn(kTexts), NameOf);

// The letter alone says what is read, so that the values behind it are found.
const LengthCase kWithoutMeaning[] = {
    {"SixtyFourBeforeAFraction", "%I64f %d", Inserting(0.5, 7), "0.500000 7"},
    {"ThirtyTwoBeforeAFraction", "%I32f %d", Inserting(0.5, 7), "0.500000 7"},
    {"PointerSizeBeforeAFraction", "%If %d", Inserting(0.5, 7), "0.500000 7"},
    {"LongLongBeforeAFraction", "%llf %hf %zf %d", Inserting(0.5, 1.5, 2.5, 7),
     "0.500000 1.500000 2.500000 7"},
    {"SixtyFourBeforeAText", "%I64s %I32s %Is %d", Inserting("a", "b", "c", 7), "a b c 7"},
    {"SixtyFourBeforeACharacter", "%I64c%I32c%Ic %d", Inserting('a', 'b', 'c', 7), "abc 7"},
    {"ExtendedBeforeATextOrCharacter", "%Ls %Lc %d", Inserting("a", 'b', 7), "a b 7"},
};

INSTANTIATE_TEST_SUITE_P(WithoutMeaning, ConversionLength, testing::ValuesIn(kWithoutMeaning),
                         NameOf);

const LengthCase kUnknown[] = {
    {"OtherBits", "%I16d %I6d %I8d %d", Inserting(1, 2, 3, 7), "%I16d %I6d %I8d 7"},
    {"OtherLetters", "%qd %Zd %vs %d", Inserting(1, 2, "c", 7), "%qd %Zd %vs 7"},
    {"WideNumber", "%wd %wx %wu %d", Inserting(1, 2, 3, 7), "%wd %wx %wu 7"},
    {"TwoLengths", "%hls %hld %LLd %I64lld %d", Inserting("a", 2, 3, 4, 7),
     "%hls %hld %LLd %I64lld 7"},
    {"SixtyFourTurned", "%64Id", Inserting(kWideNumber),
     "                                                     77309411335"},
};

INSTANTIATE_TEST_SUITE_P(Unknown, ConversionLength, testing::ValuesIn(kUnknown), NameOf);

// What several conversions read is read once, as the first floating one of them says when it is the
// first of all, and each sees it in its own way. A floating value is nowhere taken for a text.
const LengthCase kReadTwice[] = {
    {"LongThenOrdinary", "%Lf:1 %.1f:1 %s:2", Inserting(kHalf, "b"), "0.500000 0.5 b"},
    {"OrdinaryThenLong", "%.1f:1 %Lf:1 %s:2", Inserting(0.5, "b"), "0.5 0.500000 b"},
    {"LongThenItsBytes", "%Lf:1 %llx:1 %d:1 %s:2", Inserting(kHalf, "b"),
     "0.500000 3fe0000000000000 0 b"},
    {"BytesThenTheFractionOfThem", "%llx:1 %Lf:1 %s:2", Inserting(INT64_C(0x3fe0000000000000), "b"),
     "3fe0000000000000 0.500000 b"},
    {"LongIsNoText", "%Lf:1 [%s:1|%3s:1|%ls:1] %s:2", Inserting(kHalf, "b"), "0.500000 [|   |] b"},
    {"OrdinaryIsNoText", "%.1f:1 [%s:1|%3s:1|%ws:1] %s:2", Inserting(0.5, "b"), "0.5 [|   |] b"},
    {"TextIsSomeFraction", "%s:1 %.0s:1%.0Lf:1%n d:1 %s:2", Inserting("a", "b"), "a 0 d b"},
};

INSTANTIATE_TEST_SUITE_P(ReadTwice, ConversionLength, testing::ValuesIn(kReadTwice), NameOf);

}  // namespace
