// Percent signs behind the conversion of a piece.

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "format/inserted.h"

namespace {

struct PercentCase {
  const char* name;
  const char* text;
  Insertion insert;
  const char* expected;
};

void PrintTo(const PercentCase& c, std::ostream* os) { *os << '"' << c.text << '"'; }

class PercentSign : public testing::TestWithParam<PercentCase> {};

TEST_P(PercentSign, Yields) { EXPECT_EQ(GetParam().expected, GetParam().insert(GetParam().text)); }

std::string NameOf(const testing::TestParamInfo<PercentCase>& row) { return row.param.name; }

const PercentCase kBehindTheConversion[] = {
    {"OfAFraction", "%g%% of %s", Inserting(2.5, "x"), "2.5% of x"},
    {"OfCapitalHexadecimal", "%X%% d", Inserting(255), "FF% d"},
    {"NumberedPiece", "%s:2 %E%% o:1", Inserting(2.5, "x"), "x 2.500000E+00% o"},
    {"Several", "%a%%%% %% d", Inserting(1.0), "0x1p+0%% % d"},
    {"BetweenTexts", "[%G a%%b c]", Inserting(1.5), "[1.5 a%b c]"},
    {"OnBothSides", "%%%e%%%% o", Inserting(1.0), "%1.000000e+00%% o"},
    {"WithFlagsAndWidth", "%g%-5% %.3% %05% %l% o", Inserting(2.5), "2.5% % % % o"},
};

INSTANTIATE_TEST_SUITE_P(BehindTheConversion, PercentSign, testing::ValuesIn(kBehindTheConversion),
                         NameOf);

// These are no part of the value any more, and a piece prints one.
const PercentCase kTextBehindTheConversion[] = {
    {"AnotherConversion", "%g, %5.2d %s", Inserting(2.5, "x"), "2.5, %5.2d x"},
    {"PercentSignThenAConversion", "%g%%%d %s", Inserting(2.5, "x"), "2.5%%d x"},
    {"TwoConversionsAroundAPercentSign", "%g %E%% %d %s", Inserting(2.5, "x"), "2.5 %E% %d x"},
    {"Count", "%g%n d %s", Inserting(2.5, "x"), "2.5%n d x"},
    {"CountThenAPercentSign", "%g%hhn%% d", Inserting(2.5), "2.5%hhn% d"},
    {"Star", "%g%*d %s", Inserting(2.5, "x"), "2.5%*d x"},
    {"StarBeforeAPercentSign", "%g%*% %.*% d", Inserting(2.5), "2.5%*% %.*% d"},
    {"UnknownLength", "%g %q%% d", Inserting(2.5), "2.5 %q% d"},
};

INSTANTIATE_TEST_SUITE_P(TextBehindTheConversion, PercentSign,
                         testing::ValuesIn(kTextBehindTheConversion), NameOf);

const PercentCase kBeforeTheConversion[] = {
    {"Alone", "%%%g%% of", Inserting(2.5), "%2.5% of"},
    {"WithFlagsAndWidth", "%-5%%.3%%05%%d", Inserting(5), "%%%5"},
    {"WithAStar", "%*%%d", Inserting(5), "%5"},
};

INSTANTIATE_TEST_SUITE_P(BeforeTheConversion, PercentSign, testing::ValuesIn(kBeforeTheConversion),
                         NameOf);

}  // namespace
