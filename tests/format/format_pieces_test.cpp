#include "format/format_pieces.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <ostream>
#include <random>
#include <regex>
#include <string>
#include <string_view>
#include <vector>

namespace {

/// A piece with its text kept.
struct Piece {
  bool isLiteral;
  std::string text;
  std::size_t argIndex;

  /// The argument of a literal piece does not count.
  bool operator==(const Piece& other) const {
    return isLiteral == other.isLiteral && text == other.text &&
           (isLiteral || argIndex == other.argIndex);
  }
};

void PrintTo(const Piece& piece, std::ostream* os) {
  *os << '"' << piece.text << '"';
  if (!piece.isLiteral) *os << " of argument " << piece.argIndex;
}

Piece Literal(const std::string& text) { return {true, text, 0}; }
Piece Conversion(const std::string& text, std::size_t argIndex) { return {false, text, argIndex}; }

std::vector<Piece> CutTerminated(const char* text) {
  std::vector<Piece> pieces;
  kx::FormatPieces rest(text);
  kx::FormatPieces skipping = rest;
  for (;;) {
    kx::ResultText literal;
    rest.CopyLiteral(literal);
    skipping.SkipLiteral();
    if (literal.Size() != 0) pieces.push_back(Literal(std::string(literal.View())));
    kx::FormatPiece piece;
    kx::FormatPiece same;
    const bool isThere = rest.TakeConversion(piece);
    EXPECT_EQ(isThere, skipping.TakeConversion(same));
    if (!isThere) return pieces;
    EXPECT_EQ(piece.text.data(), same.text.data());
    EXPECT_EQ(piece.argIndex, same.argIndex);
    pieces.push_back(Conversion(std::string(piece.text), piece.argIndex));
  }
}

/// Cuts the text in memory of its exact size, so that a sanitizer sees what reads too far.
std::vector<Piece> Cut(std::string_view text) {
  const auto exact = std::make_unique<char[]>(text.size() + 1);
  text.copy(exact.get(), text.size());
  return CutTerminated(exact.get());
}

struct CutCase {
  const char* name;
  const char* text;
  std::vector<Piece> expected;
};

void PrintTo(const CutCase& c, std::ostream* os) { *os << '"' << c.text << '"'; }

std::string NameOf(const testing::TestParamInfo<CutCase>& row) { return row.param.name; }

class FormatPieces : public testing::TestWithParam<CutCase> {};

TEST_P(FormatPieces, AreCut) { EXPECT_EQ(GetParam().expected, Cut(GetParam().text)); }

const CutCase kConversions[] = {
    {"NoText", "", {}},
    {"TextAlone", "a: b:1", {Literal("a: b:1")}},
    {"ConversionAlone", "%d", {Conversion("%d", 0)}},
    {"WholeConversion", "%-8.3f", {Conversion("%-8.3f", 0)}},
    {"TextOnBothSides", "a %s b", {Literal("a "), Conversion("%s", 0), Literal(" b")}},
    {"EveryLetter",
     "%c%d%i%o%p%u%x%f%s",
     {Conversion("%c", 0), Conversion("%d", 1), Conversion("%i", 2), Conversion("%o", 3),
      Conversion("%p", 4), Conversion("%u", 5), Conversion("%x", 6), Conversion("%f", 7),
      Conversion("%s", 8)}},
    {"OtherLettersGoOn", "%e%g%X%A%n, d", {Conversion("%e%g%X%A%n, d", 0)}},
    {"LengthsGoOn", "%lld%hhu", {Conversion("%lld", 0), Conversion("%hhu", 1)}},
    {"PercentSignGoesOn",
     "50%% of %s",
     {Literal("50"), Conversion("%% o", 0), Literal("f "), Conversion("%s", 1)}},
    {"ColonInsideGoesOn", "%:1d:2", {Conversion("%:1d", 1)}},
    {"BytesAbove127GoOn", "%\xC3\xA9 d", {Conversion("%\xC3\xA9 d", 0)}},
};

INSTANTIATE_TEST_SUITE_P(Conversions, FormatPieces, testing::ValuesIn(kConversions), NameOf);

const CutCase kNumbers[] = {
    {"FirstToLastNumber", "%d:1%d:9", {Conversion("%d", 0), Conversion("%d", 8)}},
    {"ZeroIsTheTenth", "%d:0", {Conversion("%d", 9)}},
    {"OneDigitOnly", "%d:12", {Conversion("%d", 0), Literal("2")}},
    {"ColonWithoutDigit", "%d:x", {Conversion("%d", 0), Literal(":x")}},
    {"ColonAtTheEnd", "%d:", {Conversion("%d", 0), Literal(":")}},
    {"TwoColons", "%d::1", {Conversion("%d", 0), Literal("::1")}},
    {"BlankBeforeTheColon", "%d :2", {Conversion("%d", 0), Literal(" :2")}},
    {"BytesBesideTheDigits",
     "%d:/%d::",
     {Conversion("%d", 0), Literal(":/"), Conversion("%d", 1), Literal("::")}},
    {"UnnumberedCountAlone",
     "%d:5%d%d:7%d",
     {Conversion("%d", 4), Conversion("%d", 0), Conversion("%d", 6), Conversion("%d", 1)}},
    {"UnnumberedPassTheTenth",
     "%d%d%d%d%d%d%d%d%d%d%s",
     {Conversion("%d", 0), Conversion("%d", 1), Conversion("%d", 2), Conversion("%d", 3),
      Conversion("%d", 4), Conversion("%d", 5), Conversion("%d", 6), Conversion("%d", 7),
      Conversion("%d", 8), Conversion("%d", 9), Conversion("%s", 10)}},
};

INSTANTIATE_TEST_SUITE_P(Numbers, FormatPieces, testing::ValuesIn(kNumbers), NameOf);

const CutCase kUnfinished[] = {
    {"PercentAlone", "%", {}},
    {"PercentAtTheEnd", "50%", {Literal("50")}},
    {"DoubledPercentAtTheEnd", "%5.1f%%", {Conversion("%5.1f", 0)}},
    {"NoLetterBehind", "a%5.2 <>", {Literal("a")}},
    {"OtherLettersOnly", "a%lgeX", {Literal("a")}},
    {"BehindANumber", "%s:2%", {Conversion("%s", 1)}},
};

INSTANTIATE_TEST_SUITE_P(Unfinished, FormatPieces, testing::ValuesIn(kUnfinished), NameOf);

TEST(FormatPiecesMemory, ConversionsLieInTheTextThatWasCut) {
  const std::string text = "one %5d:2 two %s three %";
  kx::FormatPieces pieces(text.c_str());
  kx::FormatPiece piece;
  for (const std::size_t begin : {4U, 14U}) {
    pieces.SkipLiteral();
    ASSERT_TRUE(pieces.TakeConversion(piece));
    EXPECT_EQ(text.data() + begin, piece.text.data());
  }
}

TEST(FormatPiecesMemory, AMegabyteIsCutIntoManyPieces) {
  std::string text;
  for (int i = 0; i < 200000; ++i) text += "%d,x:";
  const std::vector<Piece> pieces = Cut(text);
  ASSERT_EQ(400000U, pieces.size());
  EXPECT_EQ(Conversion("%d", 199999), pieces[399998]);
  EXPECT_EQ(Literal(",x:"), pieces[399999]);
}

TEST(FormatPiecesMemory, AMegabyteOfPercentSignsIsOnePieceOrNone) {
  const std::string signs(1U << 20U, '%');
  EXPECT_EQ(std::vector<Piece>{}, Cut(signs));
  EXPECT_EQ(std::vector<Piece>{Conversion(signs + "d", 0)}, Cut(signs + "d"));
}

/// The rules in one pattern.
std::vector<Piece> CutByPattern(const std::string& text) {
  static const std::regex* const piece =
      new std::regex("([^%]+)|(%[^cdiopuxfs]*[cdiopuxfs])(:[0-9])?|%[^]*");
  std::vector<Piece> pieces;
  std::size_t next = 0;
  for (std::sregex_iterator at(text.begin(), text.end(), *piece), end; at != end; ++at) {
    const std::smatch& found = *at;
    if (found[1].matched) pieces.push_back(Literal(found.str()));
    if (!found[2].matched) continue;
    // ":0" is the tenth: the place behind that of ":9".
    const std::size_t numbered =
        found[3].matched ? (std::stoul(found[3].str().substr(1)) + 9) % 10 : 0;
    pieces.push_back(Conversion(found[2].str(), found[3].matched ? numbered : next++));
  }
  return pieces;
}

TEST(FormatPiecesOfRandomTexts, AgreeWithThePattern) {
  std::mt19937 random(20240411);
  for (const std::string alphabet : {"%:dfiosxu0129 l", "%%%::d0s9x1e", "%d:12", "%% .-lhcpg:5s"}) {
    for (int i = 0; i < 5000; ++i) {
      std::string text(std::uniform_int_distribution<std::size_t>(0, 20)(random), ' ');
      for (char& c : text) {
        c = alphabet[std::uniform_int_distribution<std::size_t>(0, alphabet.size() - 1)(random)];
      }
      ASSERT_EQ(CutByPattern(text), Cut(text)) << '"' << text << '"';
    }
  }
}

}  // namespace
