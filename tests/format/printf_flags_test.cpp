// Where the systems' printf differ: flags that mean nothing, and what each of them gets wrong.

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <ostream>
#include <string>

#include "CKxXlate.h"
#include "format/inserted.h"

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

struct FlagCase {
  const char* name;
  const char* text;
  Insertion insert;
  const char* expected;
};

void PrintTo(const FlagCase& c, std::ostream* os) { *os << '"' << c.text << '"'; }

class ConversionFlags : public testing::TestWithParam<FlagCase> {};

TEST_P(ConversionFlags, Yields) {
  EXPECT_EQ(GetParam().expected, GetParam().insert(GetParam().text));
}

std::string NameOf(const testing::TestParamInfo<FlagCase>& row) { return row.param.name; }

const FlagCase kIdle[] = {
    {"SignOfUnsigned", "[%+u|% u|%+x|% o|% +X o]", Inserting(1U, 2U, 10U, 8U, 10U),
     "[1|2|a|10|A o]"},
    {"SignOfUnsignedWithPrecision", "[% .10llu|%+ 12.10llx]", Inserting(UINT64_C(7), UINT64_C(255)),
     "[0000000007|  00000000ff]"},
    {"OtherFormOfDecimal", "[%#d|%#i|%#u|%#5.3d]", Inserting(1, 2, 3U, 4), "[1|2|3|  004]"},
    {"ZerosOfATextOrCharacter", "[%05s|%05c|%-05s|%0.2s]", Inserting("ab", 'c', "de", "fgh"),
     "[   ab|    c|de   |fg]"},
    {"SignAndFormOfATextOrCharacter", "[%+s|% c|%#s|% #+5c]", Inserting("ab", 'c', "de", 'f'),
     "[ab|c|de|    f]"},
    {"BlankBesideAPlus", "[% +d|%+ d|% +.1f]", Inserting(1, 2, 3.0), "[+1|+2|+3.0]"},
    {"ZerosBesideToTheLeft", "[%-05d|%0-5d|%-08.1f|%-09a o]", Inserting(1, 2, 3.0, 1.0),
     "[1    |2    |3.0     |0x1p+0    o]"},
    {"ZerosBesideAPrecision", "[%05.2d|%05.0d|%08.4x]", Inserting(1, 0, 255),
     "[   01|     |    00ff]"},
};

INSTANTIATE_TEST_SUITE_P(WithoutMeaning, ConversionFlags, testing::ValuesIn(kIdle), NameOf);

const FlagCase kOtherForm[] = {
    {"OctalZeroWithoutDigits", "[%#.0o|%#5.o|%#-5.0o|%.0o|%#.0x|%#o]", Inserting(0, 0, 0, 0, 0, 0),
     "[0|    0|0    |||0]"},
    {"Octal", "[%#o|%#.5o|%#06o]", Inserting(8, 8, 8), "[010|00010|000010]"},
    {"Hexadecimal", "[%#x|%#X o|%#.3x|%#08x|%#x]", Inserting(255, 255, 255, 255, 0),
     "[0xff|0XFF o|0x0ff|0x0000ff|0]"},
    {"FractionWithoutDigits", "[%#.0f|%#.0e o|%#.0g o|%#.0a o]", Inserting(2.0, 2.0, 2.0, 1.0),
     "[2.|2.e+00 o|2. o|0x1.p+0 o]"},
};

INSTANTIATE_TEST_SUITE_P(OtherForm, ConversionFlags, testing::ValuesIn(kOtherForm), NameOf);

const FlagCase kFractions[] = {
    {"GeneralPowersOfTenHaveTheirWidth", "[%4g o|%-5g o|%06G o|%31.22g o]",
     Inserting(100.0, 10.0, 100.0, 1e16),
     "[ 100 o|10    o|000100 o|              10000000000000000 o]"},
    {"GeneralRoundedUpToAPowerOfTenKeepsItsZeros", "[%#g o|%#G o|%#.3g o|%#g o]",
     Inserting(999999.5, 9.9999995, 999.9, 0.0), "[1.00000e+06 o|10.0000 o|1.00e+03 o|0.00000 o]"},
    {"GeneralChoosesByTheRoundedValue", "[%g o|%g o|%.3g o|%.0g o|%G o]",
     Inserting(999999.5, 0.00009999995, 999.9, 0.00001, 0.00001),
     "[1e+06 o|0.0001 o|1e+03 o|1e-05 o|1E-05 o]"},
    {"GeneralOfManyDigits", "[%.20g o|%.17g o|%.3g o]", Inserting(0.1, 0.1, 123456.0),
     "[0.10000000000000000555 o|0.10000000000000001 o|1.23e+05 o]"},
    {"HexadecimalTieGoesToTheEvenDigit", "[%.1a o|%.1a o|%.0a o|%.2A o|%.3a o]",
     Inserting(0x1.08p0, 0x1.18p0, 0x1.8p0, -0x1.c88p+9, 0x1.0008p0),
     "[0x1.0p+0 o|0x1.2p+0 o|0x2p+0 o|-0X1.C8P+9 o|0x1.000p+0 o]"},
    {"HexadecimalBesideATie", "[%.1a o|%.1a o|%.13a o]",
     Inserting(0x1.0800000000001p0, 0x1.07fffffffffffp0, 0x1.8p0),
     "[0x1.1p+0 o|0x1.0p+0 o|0x1.8000000000000p+0 o]"},
    {"HexadecimalOfTheSmallest", "[%a o|%.0a o|%.12a o]",
     Inserting(0x1p-1074, 0x0.8p-1022, 0x3p-1074),
     "[0x0.0000000000001p-1022 o|0x0p-1022 o|0x0.000000000000p-1022 o]"},
    {"TiesGoToTheEvenDigit", "[%.0f|%.0f|%.0f|%.1f|%.1f|%.0e o]",
     Inserting(0.5, 1.5, 2.5, 0.25, 0.75, 2.5), "[0|2|2|0.2|0.8|2e+00 o]"},
    {"NoNumber", "[%f|%+f|% f|%+G o|%6f|%-6f|%06f]",
     Inserting(kNoNumber, kNoNumber, kNoNumber, kNoNumber, kNoNumber, kNoNumber, kNoNumber),
     "[nan|+nan| nan|+NAN o|   nan|nan   |   nan]"},
    {"NoNumberWithASign", "[%f|%+f|% f|%E o|%6f|%-6f|%06f]",
     Inserting(-kNoNumber, -kNoNumber, -kNoNumber, -kNoNumber, -kNoNumber, -kNoNumber, -kNoNumber),
     "[-nan|-nan|-nan|-NAN o|  -nan|-nan  |  -nan]"},
    {"Infinity", "[%f|%+f|% e o|%A o|%6g o|%-6f|%06.2f|%#f]",
     Inserting(kInfinity, kInfinity, kInfinity, kInfinity, -kInfinity, -kInfinity, -kInfinity,
               kInfinity),
     "[inf|+inf| inf o|INF o|  -inf o|-inf  |  -inf|inf]"},
    {"TwoDigitsOfExponent", "[%e o|%.0E o|%e o]", Inserting(1.0, 1e-9, 1e100),
     "[1.000000e+00 o|1E-09 o|1.000000e+100 o]"},
};

INSTANTIATE_TEST_SUITE_P(Fractions, ConversionFlags, testing::ValuesIn(kFractions), NameOf);

TEST(ConversionFlagsOfManyDigits, GeneralFormKeepsToItsRule) {
  for (const std::size_t precision : {2U, 12000U, 12001U, 12002U, 16370U, 16382U, 16383U}) {
    const std::string text = std::to_string(precision);
    EXPECT_EQ("0.5 o", Inserted("%." + text + "g o", 0.5)) << text;
    const std::string whole = "1.5" + std::string(precision - 2, '0') + " o";
    EXPECT_EQ(whole.substr(0, 16383), Inserted("%#." + text + "g o", 1.5)) << text;
  }
}

TEST(ConversionFlagsOfSlots, AFractionThatIsNoNumberHasItsSign) {
  char line[64];
  CKxXlate::InsertVariable(line, sizeof line, "%f:1 %f:2 %f:3 %f:4", kNoNumber, -kNoNumber,
                           kInfinity, -kInfinity);
  EXPECT_STREQ("nan -nan inf -inf", line);
}

TEST(ConversionFlagsOfSlots, AFractionIsCutAt255Bytes) {
  char line[512];
  CKxXlate::InsertVariable(line, sizeof line, "%f:1|", 1e300);
  char whole[512];
  Vary(whole, sizeof whole, "%f", 1e300);
  EXPECT_EQ(std::string(whole, 255) + "|", line);
}

}  // namespace
