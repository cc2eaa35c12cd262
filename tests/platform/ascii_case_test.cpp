#include "platform/ascii_case.h"

#include <gtest/gtest.h>

#include <clocale>
#include <ostream>
#include <string>
#include <string_view>

namespace {

using std::string_view_literals::operator""sv;

TEST(FoldAscii, TurnsCapitalsIntoSmallLettersAndLeavesAllElse) {
  for (unsigned byte = 0; byte < 256; ++byte) {
    const unsigned expected = byte >= 65 && byte <= 90 ? byte + 32 : byte;
    EXPECT_EQ(expected, kx::FoldAscii(static_cast<char>(byte))) << byte;
  }
}

TEST(FoldAscii, DoesNotDependOnTheLocaleOfTheHost) {
  std::setlocale(LC_ALL, "");
  EXPECT_EQ('i', kx::FoldAscii('I'));
  EXPECT_EQ(0xC9, kx::FoldAscii('\xC9'));
  std::setlocale(LC_ALL, "C");
}

TEST(FoldAscii, IsKnownToTheCompiler) {
  static_assert(kx::FoldAscii('Q') == 'q');
  static_assert(kx::EqualIgnoringAsciiCase("Key", "KEY"));
  static_assert(kx::EndsWithIgnoringAsciiCase("a.PROPERTIES", ".properties"));
  EXPECT_EQ('q', kx::FoldAscii('Q'));
}

struct EqualCase {
  const char* name;
  std::string_view a;
  std::string_view b;
  bool equal;
};

void PrintTo(const EqualCase& c, std::ostream* os) { *os << c.a << " | " << c.b; }

class EqualIgnoringAsciiCase : public testing::TestWithParam<EqualCase> {};

TEST_P(EqualIgnoringAsciiCase, ComparesBothWays) {
  EXPECT_EQ(GetParam().equal, kx::EqualIgnoringAsciiCase(GetParam().a, GetParam().b));
  EXPECT_EQ(GetParam().equal, kx::EqualIgnoringAsciiCase(GetParam().b, GetParam().a));
}

const EqualCase kEqual[] = {
    {"EmptyTexts", "", "", true},
    {"NoTextAtAll", std::string_view(), "", true},
    {"SameText", "key", "key", true},
    {"OtherCase", "kEy-Az09", "KeY-aZ09", true},
    {"OtherLetter", "key", "kex", false},
    {"OtherFirstLetter", "key", "jey", false},
    {"Prefix", "key", "keys", false},
    {"EmptyAndNot", "", "k", false},
    {"AtSignAndGraveAccent", "@", "`", false},
    {"BracketAndBrace", "[", "{", false},
    {"BackslashAndBar", "\\", "|", false},
    {"LettersAbove127", "\xC3\x84", "\xC3\xA4", false},
    {"SameLettersAbove127", "\xC3\x84", "\xC3\x84", true},
    {"DotlessAndDottedI", "\xC4\xB1", "i", false},
    {"KelvinSign", "\xE2\x84\xAA", "k", false},
    {"BehindANul", "a\0b"sv, "A\0c"sv, false},
    {"EqualBehindANul", "a\0b"sv, "A\0B"sv, true},
};

INSTANTIATE_TEST_SUITE_P(Texts, EqualIgnoringAsciiCase, testing::ValuesIn(kEqual),
                         [](const auto& row) { return std::string(row.param.name); });

struct EndCase {
  const char* name;
  std::string_view text;
  std::string_view suffix;
  bool ends;
};

void PrintTo(const EndCase& c, std::ostream* os) { *os << c.text << " | " << c.suffix; }

class EndsWithIgnoringAsciiCase : public testing::TestWithParam<EndCase> {};

TEST_P(EndsWithIgnoringAsciiCase, LooksAtTheEndOnly) {
  EXPECT_EQ(GetParam().ends, kx::EndsWithIgnoringAsciiCase(GetParam().text, GetParam().suffix));
}

const EndCase kEnds[] = {
    {"SameCase", "agent.properties", ".properties", true},
    {"OtherCase", "agent.PROPERTIES", ".properties", true},
    {"SuffixInCapitals", "agent.properties", ".PROPERTIES", true},
    {"WholeText", ".properties", ".properties", true},
    {"ShorterText", "properties", ".properties", false},
    {"EmptyText", "", ".properties", false},
    {"EmptySuffix", "agent", "", true},
    {"BothEmpty", "", "", true},
    {"InTheMiddle", "agent.properties.bak", ".properties", false},
    {"OtherByteOfTheSameBits", "agent\x0Eproperties", ".properties", false},
};

INSTANTIATE_TEST_SUITE_P(Texts, EndsWithIgnoringAsciiCase, testing::ValuesIn(kEnds),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
