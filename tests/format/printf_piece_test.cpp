#include "format/printf_piece.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <ostream>
#include <random>
#include <string>
#include <string_view>

#include "format/argument_kind.h"
#include "format/result_text.h"

namespace {

using kx::ArgumentKind;

std::uint64_t Word(int value) { return static_cast<std::uint64_t>(std::int64_t{value}); }
std::uint64_t Word(std::uint64_t value) { return value; }
std::uint64_t Word(double value) { return std::bit_cast<std::uint64_t>(value); }
std::uint64_t Word(const void* value) { return reinterpret_cast<std::uintptr_t>(value); }

/// Hands the piece over in memory of its exact size, so that a sanitizer sees what reads too far.
std::string Formatted(std::string_view piece, std::uint64_t word) {
  const auto exact = std::make_unique<char[]>(piece.size());
  piece.copy(exact.get(), piece.size());
  kx::ResultText result;
  result.Append("in front|");
  kx::PrintfPiece(std::string_view(exact.get(), piece.size())).AppendTo(result, word);
  EXPECT_EQ("in front|", result.View().substr(0, 9));
  return std::string(result.View().substr(9));
}

struct PieceCase {
  const char* name;
  const char* piece;
  std::uint64_t word;
  const char* expected;
};

void PrintTo(const PieceCase& c, std::ostream* os) { *os << '"' << c.piece << '"'; }

std::string NameOf(const testing::TestParamInfo<PieceCase>& row) { return row.param.name; }

class PrintfPiece : public testing::TestWithParam<PieceCase> {};

TEST_P(PrintfPiece, Yields) {
  EXPECT_EQ(GetParam().expected, Formatted(GetParam().piece, GetParam().word));
}

const PieceCase kWellFormed[] = {
    {"LeftAndPrecision", "%-8.3f", Word(1.5), "1.500   "},
    {"IntegerOfNegativeWord", "%d", Word(-5), "-5"},
    {"IntegerSeesTheLowBytes", "%d", Word(std::uint64_t{0x1200000007}), "7"},
    {"UnsignedSeesTheLowBytes", "%u", Word(-1), "4294967295"},
    {"HexSeesTheLowBytes", "%x", Word(-1), "ffffffff"},
    {"ZeroWithPrecisionZeroIsEmpty", "%.0d", Word(0), ""},
    {"PointAlone", "%.f", Word(2.5), "2"},
    {"FlagsMayRepeat", "%--++5d", Word(3), "+3   "},
    {"LongChangesNoFraction", "%lf", Word(0.5), "0.500000"},
    {"NullText", "%s", 0, ""},
    {"NullTextWithWidth", "%4s", 0, "    "},
    {"NullTextToTheLeft", "%-4.2s", 0, "    "},
    {"NullWideText", "%3ls", 0, "   "},
    {"WideText", "%6.2ls", Word(L"wide"), "    wi"},
    {"WideCharacter", "%3lc", Word(int{L'w'}), "  w"},
    {"ShortLengthBeforeText", "%hs", Word("text"), "text"},
    {"ShorterLengthBeforeText", "%hhs", Word("text"), "text"},
    {"OtherLengthsBeforeText", "%zs", Word("text"), "text"},
    {"MoreLengthsBeforeText", "%js", Word("text"), "text"},
    {"DifferenceLengthBeforeText", "%ts", Word("text"), "text"},
    {"ShortLengthBeforeCharacter", "%hc", Word(int{'c'}), "c"},
    {"OtherLengthBeforeCharacter", "%3zc", Word(int{'c'}), "  c"},
    {"TextEndsAtANulCharacter", "%c", Word(0), ""},
    {"BlanksBeforeANulCharacterStay", "%5c", Word(0), "    "},
    {"BlanksBehindANulCharacterGo", "%-5c", Word(0), ""},
    {"ByteAbove127", "%c", Word(0xE9), "\xE9"},
};

INSTANTIATE_TEST_SUITE_P(WellFormed, PrintfPiece, testing::ValuesIn(kWellFormed), NameOf);

const PieceCase kPercentSigns[] = {
    {"DoubledPercentAndLetter", "%% o", Word(1), "% o"},
    {"DoubledPercentAtTheLetter", "%%s", Word(1), "%s"},
    {"DoubledPercentBeforeAConversion", "%%%d", Word(5), "%5"},
    {"DoubledPercentAndText", "%% -> %d", Word(5), "% -> 5"},
    {"TwoDoubledPercents", "%%%% o", Word(5), "%% o"},
};

INSTANTIATE_TEST_SUITE_P(PercentSigns, PrintfPiece, testing::ValuesIn(kPercentSigns), NameOf);

const PieceCase kStars[] = {
    {"StarAsWidth", "%*d", Word(5), "5"},
    {"StarBehindFlags", "%-+*d", Word(5), "+5"},
    {"StarAsPrecision", "%.*f", Word(1.5), "1.500000"},
    {"StarAsPrecisionOfAText", "%.*s", Word("text"), "text"},
    {"StarsAsBoth", "%*.*d", Word(0), "0"},
    {"StarAsWidthWithPrecision", "%*.3d", Word(5), "005"},
    {"WidthWithStarAsPrecision", "%3.*d", Word(5), "  5"},
};

INSTANTIATE_TEST_SUITE_P(Stars, PrintfPiece, testing::ValuesIn(kStars), NameOf);

TEST(PrintfPieceKind, IsThatOfTheConversion) {
  const auto kindOf = [](std::string_view piece) { return kx::PrintfPiece(piece).Kind(); };
  for (const char* piece :
       {"%d",   "%i",  "%-05d", "%u",  "%x",  "%o",  "%c", "%hd",  "%hhu", "%%%d", "%X, %s",
        "%lld", "%jd", "%llx",  "%ju", "%ld", "%zu", "%s", "%.3s", "%ls",  "%hs",  "%p"}) {
    EXPECT_EQ(ArgumentKind::kWord, kindOf(piece)) << piece;
  }
  for (const char* piece : {"%f", "%+.3f", "%lf", "%% %f", "%e %d", "%g%s"}) {
    EXPECT_EQ(ArgumentKind::kDouble, kindOf(piece)) << piece;
  }
  for (const char* piece : {"%% o", "%%s", "%%%%f"}) {
    EXPECT_EQ(ArgumentKind::kUnread, kindOf(piece)) << piece;
  }
}

std::string Repeated(std::size_t count, char c) { return std::string(count, c); }

TEST(PrintfPieceLimits, WidthsAndPrecisionsAbove16383ActAs16383) {
  for (const char* number :
       {"16383", "16384", "20000", "2147483647", "2147483648", "4294967297", "9223372036854775807",
        "18446744073709551617", "999999999999999999999999999999999999"}) {
    const std::string n = number;
    EXPECT_EQ(Repeated(16382, ' ') + "5", Formatted("%" + n + "d", Word(5))) << n;
    EXPECT_EQ("5" + Repeated(16382, ' '), Formatted("%-" + n + "d", Word(5))) << n;
    EXPECT_EQ(Repeated(16382, '0') + "5", Formatted("%0" + n + "d", Word(5))) << n;
    EXPECT_EQ(Repeated(16382, '0') + "5", Formatted("%." + n + "d", Word(5))) << n;
    EXPECT_EQ("1.5" + Repeated(16380, '0'), Formatted("%." + n + "f", Word(1.5))) << n;
    EXPECT_EQ("text", Formatted("%." + n + "s", Word("text"))) << n;
    EXPECT_EQ(Repeated(16379, ' ') + "text", Formatted("%" + n + "s", Word("text"))) << n;
  }
}

TEST(PrintfPieceLimits, WidthsUpTo16383AreKept) {
  for (const std::size_t width : {511U, 512U, 1023U, 4096U, 16381U, 16382U, 16383U}) {
    EXPECT_EQ(Repeated(width - 1, ' ') + "5",
              Formatted("%" + std::to_string(width) + "d", Word(5)));
  }
}

TEST(PrintfPieceLimits, AValueIsCutAt16383Bytes) {
  const std::string text = Repeated(16382, 't') + "12345";
  EXPECT_EQ(text.substr(0, 16383), Formatted("%s", Word(text.c_str())));
  EXPECT_EQ(text.substr(0, 16383), Formatted("%.16385s", Word(text.c_str())));
  EXPECT_EQ(text.substr(0, 16382), Formatted("%.16382s", Word(text.c_str())));
  EXPECT_EQ("%" + text.substr(0, 16382), Formatted("%%%s", Word(text.c_str())));
  EXPECT_EQ("+" + Repeated(16382, '0'), Formatted("%+.16383d", Word(5)));
}

TEST(PrintfPieceLimits, PrecisionKeepsWithinATextThatHasNoEnd) {
  const auto text = std::make_unique<char[]>(4);
  for (std::size_t i = 0; i < 4; ++i) text[i] = 'x';
  EXPECT_EQ("xxxx", Formatted("%.4s", Word(text.get())));
  EXPECT_EQ("     xxx", Formatted("%8.3s", Word(text.get())));

  const std::string longText(16383, 'x');
  const auto exact = std::make_unique<char[]>(longText.size());
  longText.copy(exact.get(), longText.size());
  EXPECT_EQ(longText, Formatted("%.16383s", Word(exact.get())));
  EXPECT_EQ(longText, Formatted("%.99999s", Word(exact.get())));
}

TEST(PrintfPieceLimits, PrecisionKeepsWithinAWideTextThatHasNoEnd) {
  const auto text = std::make_unique<wchar_t[]>(4);
  for (std::size_t i = 0; i < 4; ++i) text[i] = L'x';
  EXPECT_EQ("xxxx", Formatted("%.4ls", Word(text.get())));
  EXPECT_EQ("     xxx", Formatted("%8.3ls", Word(text.get())));
}

TEST(PrintfPieceLimits, AWideValueIsCutAt16383Bytes) {
  const std::wstring text(20000, L'w');
  EXPECT_EQ(Repeated(16383, 'w'), Formatted("%ls", Word(text.c_str())));
  EXPECT_EQ(Repeated(16383, 'w'), Formatted("%-20000.18000ls", Word(text.c_str())));
  EXPECT_EQ(Repeated(15000, 'w'), Formatted("%.15000ls", Word(text.c_str())));
}

TEST(PrintfPieceLimits, TextBehindACutValueIsCutToo) {
  EXPECT_EQ("%" + Repeated(16382, ' '), Formatted("%%%20000d", Word(5)));
  EXPECT_EQ(Repeated(16382, ' ') + "F", Formatted("%20000X, %d", Word(15)));
}

TEST(PrintfPieceLimits, AMegabyteOfOneByte) {
  constexpr std::size_t kMegabyte = 1U << 20U;
  EXPECT_EQ(Repeated(16383, '%'), Formatted(Repeated(kMegabyte, '%') + "d", Word(5)));
  EXPECT_EQ(Repeated(16383, '%'), Formatted(Repeated(kMegabyte + 1, '%') + "d", Word(5)));
  EXPECT_EQ("%%" + Repeated(16381, 'y'),
            Formatted("%%%%" + Repeated(kMegabyte, 'y') + "d", Word(5)));
  EXPECT_EQ(Repeated(16382, ' ') + "5", Formatted("%" + Repeated(kMegabyte, '9') + "d", Word(5)));
  EXPECT_EQ(Repeated(16382, '0') + "5", Formatted("%." + Repeated(kMegabyte, '9') + "d", Word(5)));
  EXPECT_EQ("5  ", Formatted("%" + Repeated(kMegabyte, '-') + "3d", Word(5)));
  EXPECT_EQ("005", Formatted("%" + Repeated(kMegabyte, '0') + "3d", Word(5)));
  EXPECT_EQ("005", Formatted("%." + Repeated(kMegabyte, '0') + "3d", Word(5)));
}

// The letters that end no piece convert nonetheless, as the first of a piece. What stands behind
// the first conversion has no argument left.
struct SecondGroupCase {
  const char* name;
  const char* piece;
  std::uint64_t word;
  std::string beginning;
  std::string secondGroup;
};

void PrintTo(const SecondGroupCase& c, std::ostream* os) { *os << '"' << c.piece << '"'; }

class PieceWithASecondGroup : public testing::TestWithParam<SecondGroupCase> {};

TEST_P(PieceWithASecondGroup, EndsWithItsTextOrNothing) {
  const std::string result = Formatted(GetParam().piece, GetParam().word);
  if (result != GetParam().beginning) {
    EXPECT_EQ(GetParam().beginning + GetParam().secondGroup, result);
  }
}

const SecondGroupCase kSecondGroups[] = {
    {"CapitalHex", "%X, %d", Word(255), "FF, ", "%d"},
    {"CapitalHexWithWidth", "%-6X|%5.2s", Word(255), "FF    |", "%5.2s"},
    {"LongCapitalHex", "%llX %c", Word(std::uint64_t{0xABCDEF0123}), "ABCDEF0123 ", "%c"},
    {"Exponent", "%e, %s", Word(2.5), "2.500000e+00, ", "%s"},
    {"CapitalExponent", "%.1E, %ls", Word(2.5), "2.5E+00, ", "%ls"},
    {"General", "%g, %p", Word(2.5), "2.5, ", "%p"},
    {"CapitalGeneral", "%5G, %u", Word(2.5), "  2.5, ", "%u"},
    {"BehindADoubledPercent", "%%%X %f", Word(255), "%FF ", "%f"},
};

INSTANTIATE_TEST_SUITE_P(Pieces, PieceWithASecondGroup, testing::ValuesIn(kSecondGroups),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(PrintfPieceHostile, MalformedGroupsPrintTheValueOnceAtMost) {
  for (const char* piece :
       {"%e %s", "%g%s",    "%n%s", "%q%s", "%5%s", "%l%s",  "%-%s", "%.%s", "%a%A%E%G%s",
        "%1$%s", "%ll%%%s", "%1$s", "%2$s", "%'s",  "%Is",   "%l5s", "%5-s", "%..3s",
        "%.-3s", "%5*s",    "%*5s", "%hls", "%lhs", "%llls", "%Lls", "%s"}) {
    const std::string result = Formatted(piece, Word(L"x"));
    EXPECT_LE(result.size(), 40U) << piece;
    EXPECT_EQ(result.find('x'), result.rfind('x')) << piece;
  }
}

TEST(PrintfPieceHostile, CountWritesNothing) {
  for (const char* piece : {"%n d", "%nd", "%5ns", "%hhnx", "%lln u", "%%%n d", "%1$nd", "%-.3ns",
                            "%*ns", "%n%n%n%n%s"}) {
    std::int64_t counted[2] = {0x1234567, 0x1234567};
    EXPECT_LE(Formatted(piece, Word(counted)).size(), 64U) << piece;
    EXPECT_EQ(0x1234567, counted[0]) << piece;
    EXPECT_EQ(0x1234567, counted[1]) << piece;
  }
}

TEST(PrintfPieceHostile, RandomPiecesKeepTheLimits) {
  constexpr std::string_view kBytes = "%%%%....**lhLqjzt$'I0123456789-+ #negEGXaAS\xFF,:";
  constexpr std::string_view kLetters = "cdiopuxfs";
  std::mt19937 random(20240401);
  const auto below = [&random](std::size_t limit) {
    return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random);
  };
  // Wide enough as to be a text of either width.
  const wchar_t text[] = {L'a', L'b', 0};
  for (int i = 0; i < 20000; ++i) {
    std::string piece = "%";
    for (std::size_t length = below(12); length > 0; --length)
      piece += kBytes[below(kBytes.size())];
    piece += kLetters[below(kLetters.size())];
    const std::string result = Formatted(piece, Word(text));
    ASSERT_LE(result.size(), 16383U) << piece;
    ASSERT_EQ(std::string::npos, result.find('\0')) << piece;
  }
}

}  // namespace
