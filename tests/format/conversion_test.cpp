#include "format/conversion.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>

#include "format/call_printf.h"

namespace {

using Meaning = kx::ConversionGroup::Meaning;

struct GroupCase {
  const char* name;
  const char* text;
  const char* group;
  Meaning meaning;
};

void PrintTo(const GroupCase& c, std::ostream* os) { *os << '"' << c.text << '"'; }

class ConversionGroup : public testing::TestWithParam<GroupCase> {};

TEST_P(ConversionGroup, EndsWithItsLetter) {
  const kx::ConversionGroup group = kx::ReadGroup(GetParam().text);
  EXPECT_EQ(GetParam().group, group.text);
  EXPECT_EQ(GetParam().meaning, group.meaning);
}

const GroupCase kGroups[] = {
    {"Conversion", "%d of", "%d", Meaning::kConversion},
    {"WholeConversion", "%-+ #012.34I64Xo", "%-+ #012.34I64X", Meaning::kConversion},
    {"PercentSign", "%%%d", "%%", Meaning::kPercentSign},
    {"PercentSignWithAWidth", "%-5.2l% d", "%-5.2l%", Meaning::kPercentSign},
    {"Count", "%hhn d", "%hhn", Meaning::kCount},
    {"OtherLetter", "%q%d", "%q", Meaning::kText},
    {"SecondLength", "%hls", "%hl", Meaning::kText},
    {"WideNumber", "%wd", "%wd", Meaning::kText},
    {"WideText", "%wsd", "%ws", Meaning::kConversion},
    {"OtherBits", "%I16d", "%I1", Meaning::kText},
    {"FlagBehindTheWidth", "%5-d", "%5-", Meaning::kText},
    {"SignAlone", "%", "%", Meaning::kText},
    {"WithoutALetter", "%-5.l", "%-5.l", Meaning::kText},
};

INSTANTIATE_TEST_SUITE_P(Groups, ConversionGroup, testing::ValuesIn(kGroups),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(ConversionGroupStar, IsSeenInBothPlaces) {
  EXPECT_TRUE(kx::ReadGroup("%*d").hasStar);
  EXPECT_TRUE(kx::ReadGroup("%5.*d").hasStar);
  EXPECT_FALSE(kx::ReadGroup("%5.2d*").hasStar);
}

struct SpellingCase {
  const char* name;
  const char* text;
  const char* forPrintf;
};

void PrintTo(const SpellingCase& c, std::ostream* os) { *os << '"' << c.text << '"'; }

class Conversion : public testing::TestWithParam<SpellingCase> {};

// Printf is asked only what C defines, so that no system answers for itself.
TEST_P(Conversion, KeepsWhatMeansSomething) {
  const kx::Conversion conversion = kx::ReadGroup(GetParam().text).conversion;
  EXPECT_STREQ(GetParam().forPrintf, kx::PrintfFormat(conversion, "").data());
}

const SpellingCase kSpellings[] = {
    {"Plain", "%d", "%d"},
    {"LengthIsGivenApart", "%I64x", "%x"},
    {"FlagsOnceAndInOrder", "%0#--+0+e", "%-+#e"},
    {"WidthAndPrecision", "%012.34f", "%012.34f"},
    {"Limits", "%99999.99999f", "%16383.16383f"},
    {"LongestOfAll", "%+#016383.16383e", "%+#016383.16383e"},
    {"PointAlone", "%.f", "%.0f"},
    {"StarsAreNotGiven", "%*.*d", "%d"},
    {"SignedInteger", "%+ #0i", "%+0i"},
    {"BlankOfASignedInteger", "% #0d", "% 0d"},
    {"UnsignedInteger", "%+ #0u", "%0u"},
    {"Octal", "%+ #0o", "%#0o"},
    {"Hexadecimal", "%+ #0x", "%#0x"},
    {"CapitalHexadecimal", "%+ #-0X", "%-#X"},
    {"Fraction", "%+ #0g", "%+#0g"},
    {"BlankOfAFraction", "% #0a", "% #0a"},
    {"Text", "%+ #0s", "%s"},
    {"TextToTheLeft", "%+ #-05s", "%-5s"},
    {"Character", "%+ #0c", "%c"},
    {"PointerIsTheSystemsOwn", "%-+ #0p", "%-+ #0p"},
};

INSTANTIATE_TEST_SUITE_P(Spellings, Conversion, testing::ValuesIn(kSpellings),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
