#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <tuple>

#include "KxXlate.hpp"
#include "format/conversion.h"
#include "format/format_pieces.h"

// What the headers read in a text is what the library reads, and no text makes them pass a value
// that is read as another. Under the address sanitizer these texts also show what they touch.

namespace {

constexpr int kRounds = 40000;

/// Texts of what conversions are made of, in any order.
class HostileTexts {
 public:
  std::string Next() {
    constexpr std::string_view kBytes =
        "%%%%%%%%%%%%%%%%%%%%%%%%%%%%%%ddiouxXccspffeEgGaAFnhhlllIIjztLw001233456789..--+ "
        "#**::::ab\x7F";
    constexpr std::size_t kMostBytes = 40;
    std::string text(random_() % kMostBytes, '\0');
    for (char& byte : text) byte = kBytes[random_() % kBytes.size()];
    return text;
  }

 private:
  std::mt19937 random_{12};  // the same texts in every run
};

void ExpectTheSameGroup(std::string_view text) {
  const kx::ConversionGroup library = kx::ReadGroup(text);
  const kx::detail::ConversionGroup face = kx::detail::GroupReader(text).Read();
  EXPECT_EQ(library.text, face.text);
  EXPECT_EQ(static_cast<int>(library.meaning), static_cast<int>(face.meaning));
  EXPECT_EQ(library.hasStar, face.hasStar);
  if (!face.width.empty()) {
    EXPECT_EQ(library.conversion.width,
              std::min(16383, std::stoi("0" + std::string(face.width.substr(0, 6)))));
  }
  EXPECT_EQ(library.conversion.isLeft, face.isLeft);
  if (face.meaning != kx::detail::ConversionGroup::Meaning::kConversion) return;
  EXPECT_EQ(library.conversion.letter, face.letter);
  EXPECT_EQ(static_cast<int>(library.conversion.length), static_cast<int>(face.length));
  EXPECT_EQ(library.conversion.IsFloating(), face.IsFloating());
  EXPECT_EQ(library.conversion.IsInteger(), face.IsInteger());
  EXPECT_EQ(library.conversion.IsWide(), face.IsWide());
  EXPECT_EQ(library.conversion.Bits(), face.Bits());
}

TEST(FaceGrammar, ReadsGroupsAsTheLibraryDoes) {
  HostileTexts texts;
  for (int round = 0; round < kRounds; ++round) {
    const std::string text = "%" + texts.Next();
    ExpectTheSameGroup(text);
    ASSERT_FALSE(HasFailure()) << text;
  }
}

TEST(FaceGrammar, CutsTextsAsTheLibraryDoes) {
  HostileTexts texts;
  for (int round = 0; round < kRounds; ++round) {
    const std::string text = texts.Next();
    kx::FormatPieces library(text.c_str());
    kx::detail::ConversionPieces face(text);
    kx::FormatPiece expected;
    kx::detail::ConversionPiece piece;
    for (bool more = true; more;) {
      kx::ResultText literal;
      library.CopyLiteral(literal);
      ASSERT_EQ(literal.View(), face.TakeLiteral()) << text;
      more = library.TakeConversion(expected);
      ASSERT_EQ(more, face.TakePiece(piece)) << text;
      if (!more) break;
      ASSERT_EQ(expected.text, piece.text) << text;
      ASSERT_EQ(expected.argIndex, piece.index) << text;
    }
  }
}

template <class... Values>
std::string PieceByPiece(const std::string& text, const Values&... values) {
  const std::tuple<kx::detail::TypedOf<Values>...> given(values...);
  return std::apply(
      [&text](const auto&... each) {
        const std::array<kx::detail::TypedValue, sizeof...(Values)> list{each.Value()...};
        return kx::detail::TypedPieces(list.data(), list.size())
            .Insert(text, kx::detail::WholeResult::kAll);
      },
      given);
}

template <class... Values>
void ExpectTheSameEitherWay(const std::string& text, const Values&... values) {
  EXPECT_EQ(PieceByPiece(text, values...), kx::insert_typed(text, values...)) << text;
}

// Each piece is formatted alone, or the whole text at once: a value that is read as what it is not,
// or from a place where it is not, shows as a difference.
TEST(FaceInsertTyped, OfAnyTextIsTheSameWholeAndPieceByPiece) {
  HostileTexts texts;
  const std::string standard = "standard";
  const std::string_view view = std::string_view("viewed!").substr(0, 6);
  for (int round = 0; round < kRounds && !testing::Test::HasFailure(); ++round) {
    const std::string text = texts.Next();
    ExpectTheSameEitherWay(text);
    ExpectTheSameEitherWay(text, 7);
    ExpectTheSameEitherWay(text, -7, "text", 2.5);
    ExpectTheSameEitherWay(text, 1.5, 2.5, 3.5F, 4.5, 5.5, 6.5, 7.5, 8.5, 9.5, 10.5);
    ExpectTheSameEitherWay(text, std::int64_t{5'000'000'000}, 'c', standard, 0.1, view,
                           std::uint8_t{200}, nullptr, 4000000000U, -1LL, "last");
  }
}

std::string Raw(const std::string& text) {
  char buffer[400];
  CKxXlate::InsertVariable(buffer, sizeof buffer, text.c_str(), 1, 2, 3, 4, 5, 6, 7, 1, 2);
  return buffer;
}

TEST(FaceInsertVariable, OfAnyTextIsWhatTheLibraryMakesOfFittingValues) {
  HostileTexts texts;
  for (int round = 0; round < kRounds; ++round) {
    std::string text = texts.Next();
    ASSERT_LE(kx::insert_variable(text).size(), 2 * text.size()) << text;
    ASSERT_LE(kx::insert_variable(text, 1.5, nullptr, -1LL).size(), 10 * text.size()) << text;
    // Conversions of integers alone, for which the raw call can be made.
    for (char& byte : text) byte = byte == 'f' || byte == 's' ? 'd' : byte;
    ASSERT_EQ(Raw(text), kx::insert_variable(text, 1, 2, 3, 4, 5, 6, 7, 1, 2)) << text;
    ASSERT_EQ(Raw(text), kx::insert_variable(text, "1", 2, "3", 4, 5, 6, "7", 1, 2)) << text;
    ASSERT_EQ(Raw(text), kx::insert_variable(text, 1LL, 2, 3, 4, 5, 6, 7, 1, 2)) << text;
  }
}

}  // namespace
