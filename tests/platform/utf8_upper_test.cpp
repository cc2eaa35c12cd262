#include <gtest/gtest.h>

#include <clocale>
#include <cstddef>
#include <ostream>
#include <random>
#include <string>

#include "platform/utf8_text.h"

namespace {

std::string Upper(const std::string& text) { return CKxUTF8ToUpper(text.c_str()).Text(); }

/// The UTF-8 form of a character below U+10000.
std::string Utf8(unsigned c) {
  const auto byte = [](unsigned value) { return static_cast<char>(value); };
  if (c < 0x80) return {byte(c)};
  if (c < 0x800) return {byte(0xC0 | c >> 6), byte(0x80 | (c & 0x3F))};
  return {byte(0xE0 | c >> 12), byte(0x80 | (c >> 6 & 0x3F)), byte(0x80 | (c & 0x3F))};
}

// ---------------------------------------------------------------------------------------------

/// Letters from `first` to `last`; each is `distance` behind its capital.
struct Letters {
  const char* name;
  unsigned first;
  unsigned last;
  int distance;
};

void PrintTo(const Letters& letters, std::ostream* os) { *os << letters.name; }

class UpperCaseOfLetters : public testing::TestWithParam<Letters> {};

TEST_P(UpperCaseOfLetters, IsTheirCapital) {
  const Letters& letters = GetParam();
  for (unsigned c = letters.first; c <= letters.last; ++c) {
    const unsigned capital = static_cast<unsigned>(static_cast<int>(c) - letters.distance);
    EXPECT_EQ(Utf8(capital), Upper(Utf8(c))) << std::hex << c;
    EXPECT_EQ(Utf8(capital), Upper(Utf8(capital))) << std::hex << capital;
  }
}

const Letters kAlphabets[] = {
    {"Ascii", 'a', 'z', 32},
    {"Latin1BeforeTheDivisionSign", 0xE0, 0xF6, 32},
    {"Latin1BehindTheDivisionSign", 0xF8, 0xFE, 32},
    {"GreekAlphaToRho", 0x3B1, 0x3C1, 32},
    {"GreekSigmaToOmega", 0x3C3, 0x3C9, 32},
    {"CyrillicAToYa", 0x430, 0x44F, 32},
    {"CyrillicIeWithGraveToDzhe", 0x450, 0x45F, 80},
};

INSTANTIATE_TEST_SUITE_P(Alphabets, UpperCaseOfLetters, testing::ValuesIn(kAlphabets),
                         [](const auto& tested) { return std::string(tested.param.name); });

// ---------------------------------------------------------------------------------------------

struct UpperCase {
  const char* name;
  const char* text;
  const char* expected;
};

void PrintTo(const UpperCase& c, std::ostream* os) { *os << testing::PrintToString(c.text); }

class UpperCaseOfTexts : public testing::TestWithParam<UpperCase> {};

TEST_P(UpperCaseOfTexts, Is) { EXPECT_EQ(GetParam().expected, Upper(GetParam().text)); }

const UpperCase kTexts[] = {
    {"Empty", "", ""},
    {"LanguageCode", "fr", "FR"},
    {"LanguageCodeInMixedCase", "zH", "ZH"},
    {"CapitalsStay", "FR-CA", "FR-CA"},
    {"DigitsAndMarksStay", "es-419_x@[`{|}~]^\\ \t\n\x01\x7F", "ES-419_X@[`{|}~]^\\ \t\n\x01\x7F"},
    {"SeveralBlocks", "a\xC3\xA9\xCE\xB1\xD0\xB1z", "A\xC3\x89\xCE\x91\xD0\x91Z"},
    {"AccentOfItsOwn", "e\xCC\x81", "E\xCC\x81"},
};

INSTANTIATE_TEST_SUITE_P(Whole, UpperCaseOfTexts, testing::ValuesIn(kTexts),
                         [](const auto& tested) { return std::string(tested.param.name); });

const UpperCase kOthersStay[] = {
    {"SharpS", "\xC3\x9F", "\xC3\x9F"},  // its capital is longer
    {"DivisionAndMultiplicationSign", "\xC3\xB7\xC3\x97", "\xC3\xB7\xC3\x97"},
    {"Latin1Marks", "\xC2\xA0\xC2\xAA\xC2\xBA\xC2\xBF", "\xC2\xA0\xC2\xAA\xC2\xBA\xC2\xBF"},
    {"LettersOffTheirAlphabetsRow", "\xC3\xBF\xCE\xAC\xCF\x82\xD1\xA1",
     "\xC3\xBF\xCE\xAC\xCF\x82\xD1\xA1"},
    {"GreekIotaAndUpsilonWithTwoMarks", "\xCE\x90\xCE\xB0", "\xCE\x90\xCE\xB0"},  // no one capital
    {"GreekMarks", "\xCD\xBA\xCD\xBE\xCE\x84\xCF\xB6\xCF\xBC",
     "\xCD\xBA\xCD\xBE\xCE\x84\xCF\xB6\xCF\xBC"},
    {"CyrillicMarks", "\xD2\x82\xD2\x83\xD2\x89", "\xD2\x82\xD2\x83\xD2\x89"},
    {"LatinLettersOfOtherBlocks", "\xC4\x81\xC4\xB1\xC5\xBF\xC6\xBF",
     "\xC4\x81\xC4\xB1\xC5\xBF\xC6\xBF"},
    {"GreekWithMoreMarks", "\xE1\xBC\x80", "\xE1\xBC\x80"},
    {"ArmenianAndGeorgian", "\xD5\xA1\xE1\x83\x90", "\xD5\xA1\xE1\x83\x90"},
    {"FullWidth", "\xEF\xBD\x81", "\xEF\xBD\x81"},
    {"Ideographs", "\xE6\x97\xA5\xE6\x9C\xAC", "\xE6\x97\xA5\xE6\x9C\xAC"},
    {"FourBytes", "\xF0\x9F\x98\x80\xF0\x90\x90\xA8", "\xF0\x9F\x98\x80\xF0\x90\x90\xA8"},
    {"ByteOrderMark", "\xEF\xBB\xBF", "\xEF\xBB\xBF"},
};

INSTANTIATE_TEST_SUITE_P(Others, UpperCaseOfTexts, testing::ValuesIn(kOthersStay),
                         [](const auto& tested) { return std::string(tested.param.name); });

// A broken sequence stays and what follows it is taken as usual.
const UpperCase kBroken[] = {
    {"OneByteCharacterSets",
     "fran\xE7"
     "ais",
     "FRAN\xE7"
     "AIS"},
    {"LeadAtTheEnd", "a\xC3", "A\xC3"},
    {"LeadOfThreeAtTheEnd", "a\xE2\x82", "A\xE2\x82"},
    {"LeadBeforeALetter",
     "\xC3"
     "a\xCE"
     "b",
     "\xC3"
     "A\xCE"
     "B"},
    {"LeadBeforeALead", "\xC3\xC3\xA9", "\xC3\xC3\x89"},
    {"TrailAlone",
     "\xA9"
     "a",
     "\xA9"
     "A"},
    {"TooManyTrails", "\xC3\xA9\xA9", "\xC3\x89\xA9"},
    {"LongerThanNeeded", "\xC1\xA1\xE0\x83\xA9", "\xC1\xA1\xE0\x83\xA9"},
    {"Surrogate", "\xED\xA0\x80", "\xED\xA0\x80"},
    {"BytesThatNeverOccur", "\xFE\xFF\xC0\xF8z", "\xFE\xFF\xC0\xF8Z"},
};

INSTANTIATE_TEST_SUITE_P(Broken, UpperCaseOfTexts, testing::ValuesIn(kBroken),
                         [](const auto& tested) { return std::string(tested.param.name); });

// ---------------------------------------------------------------------------------------------

TEST(UpperCaseText, IsTheSameInEveryLocale) {
  const std::string text = "istanbul \xC3\xA9\xC3\xBE \xCF\x83 \xD1\x8F \xE9\xFF";
  const std::string expected = "ISTANBUL \xC3\x89\xC3\x9E \xCE\xA3 \xD0\xAF \xE9\xFF";
  for (const char* const name : {"C", "C.UTF-8", "tr_TR.UTF-8", "tr_TR.ISO-8859-9", "fr_FR"}) {
    std::setlocale(LC_ALL, name);  // has no effect where there is no such locale
    EXPECT_EQ(expected, Upper(text)) << name;
  }
  std::setlocale(LC_ALL, "C");
}

TEST(UpperCaseText, IsACopy) {
  char text[] = "fr";
  const CKxUTF8ToUpper upper(text);
  text[0] = 'x';
  EXPECT_EQ("FR", upper.Text());
  EXPECT_STREQ("xr", text);
}

TEST(UpperCaseText, OfAnyBytesHasTheirLengthAndIsItsOwnUpperCase) {
  std::mt19937 random{20240229};
  std::uniform_int_distribution<int> byte(1, 255);
  std::uniform_int_distribution<std::size_t> size(0, 12);
  for (int i = 0; i < 20000; ++i) {
    std::string text(size(random), ' ');
    for (char& c : text) c = static_cast<char>(byte(random));
    const std::string upper = Upper(text);
    ASSERT_EQ(text.size(), upper.size()) << testing::PrintToString(text);
    ASSERT_EQ(upper, Upper(upper)) << testing::PrintToString(text);
  }
}

}  // namespace
