#include "texts/line_reader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace {

using Kind = kx::LineReader::Kind;
using Lines = std::vector<std::pair<std::string, Kind>>;

/// Hands out its text in pieces of one size, as a slow source does.
class Pieces final : public std::streambuf {
 public:
  Pieces(std::string text, std::size_t size) : text_(std::move(text)), size_(size) {}

 protected:
  int_type underflow() override {
    const std::size_t size = std::min(size_, text_.size() - next_);
    if (size == 0) return traits_type::eof();
    char* const begin = text_.data() + next_;
    next_ += size;
    setg(begin, begin, begin + size);
    return traits_type::to_int_type(*begin);
  }

 private:
  std::string text_;
  const std::size_t size_;
  std::size_t next_ = 0;
};

/// All lines up to the last one, or the first that is too long.
Lines Read(kx::LineReader& reader) {
  Lines lines;
  do {
    const kx::LineReader::Line line = reader.Next();
    lines.emplace_back(line.text, line.kind);
  } while (lines.back().second == Kind::kLine && lines.size() < 1000000);
  return lines;
}

Lines Read(const std::string& text) {
  std::stringbuf source(text);
  kx::LineReader reader(source);
  return Read(reader);
}

TEST(LineReader, OfNothingHasAnEmptyLastLine) { EXPECT_EQ((Lines{{"", Kind::kLast}}), Read("")); }

TEST(LineReader, TellsWhetherTheLastLineHasAnEnd) {
  EXPECT_EQ((Lines{{"a", Kind::kLine}, {"", Kind::kLast}}), Read("a\n"));
  EXPECT_EQ((Lines{{"a", Kind::kLine}, {"b", Kind::kLast}}), Read("a\nb"));
  EXPECT_EQ((Lines{{"", Kind::kLine}, {"", Kind::kLine}, {"", Kind::kLast}}), Read("\n\n"));
}

TEST(LineReader, LeavesAllOtherBytesAsTheyAre) {
  const std::string bytes("a\r\0\v\f\xFF", 6);
  EXPECT_EQ((Lines{{bytes, Kind::kLine}, {bytes, Kind::kLast}}), Read(bytes + '\n' + bytes));
}

TEST(LineReader, HasTheLastLineAgainAndAgain) {
  std::stringbuf source("a\nb");
  kx::LineReader reader(source);
  EXPECT_EQ("a", reader.Next().text);
  EXPECT_EQ("b", reader.Next().text);
  for (int round = 0; round < 3; ++round) {
    const kx::LineReader::Line line = reader.Next();
    EXPECT_EQ("", line.text);
    EXPECT_EQ(Kind::kLast, line.kind);
  }
}

TEST(LineReader, CountsTheBytesThatItHandedOut) {
  std::stringbuf source("a\n\nbcd");
  kx::LineReader reader(source);
  EXPECT_EQ(0u, reader.BytesTaken());
  for (const std::size_t taken : {2u, 3u, 6u, 6u}) {
    reader.Next();
    EXPECT_EQ(taken, reader.BytesTaken());
  }
}

TEST(LineReader, KnowsFromWhereOnThereMayBeNuls) {
  const std::string without(300000, 'x');
  std::stringbuf source(without + "\na" + std::string(1, '\0') + "b\nend");
  kx::LineReader reader(source);
  EXPECT_FALSE(reader.HasNul());
  EXPECT_EQ(without, reader.Next().text);
  EXPECT_EQ(3u, reader.Next().text.size());
  EXPECT_TRUE(reader.HasNul());
  EXPECT_EQ("end", reader.Next().text);
  EXPECT_TRUE(reader.HasNul());
}

class LinesOfSize : public testing::TestWithParam<std::size_t> {};

// Sizes around those of the reader's block, in which lines begin at every place.
TEST_P(LinesOfSize, AreWholeWhereverTheyLie) {
  const std::string line(GetParam(), 'x');
  std::string text;
  Lines expected;
  for (int number = 0; number < 40; ++number) {
    text += line + std::to_string(number) + '\n';
    expected.emplace_back(line + std::to_string(number), Kind::kLine);
  }
  expected.emplace_back("", Kind::kLast);
  EXPECT_EQ(expected, Read(text));
}

TEST_P(LinesOfSize, AreWholeFromASlowSource) {
  const std::string line(GetParam(), 'x');
  for (const std::size_t piece : {std::size_t{1000}, std::size_t{65536}, GetParam() + 1}) {
    Pieces source(line + "\n" + line + "\n\nend", piece);
    kx::LineReader reader(source);
    EXPECT_EQ(
        (Lines{{line, Kind::kLine}, {line, Kind::kLine}, {"", Kind::kLine}, {"end", Kind::kLast}}),
        Read(reader));
  }
}

INSTANTIATE_TEST_SUITE_P(Sizes, LinesOfSize,
                         testing::Values(0u, 1u, 4095u, 16383u, 65534u, 65535u, 65536u, 65537u,
                                         131071u, 131072u, 300000u),
                         [](const auto& row) { return std::to_string(row.param); });

TEST(LineReader, EndsAtALineThatIsTooLong) {
  const std::string most(10, 'x');
  for (const std::string& behind :
       {std::string("x"), std::string("x\nmore"), std::string(200000, 'x')}) {
    std::stringbuf source("a\n" + most + "\n" + most + behind);
    kx::LineReader reader(source, most.size());
    EXPECT_EQ((Lines{{"a", Kind::kLine}, {most, Kind::kLine}, {most, Kind::kTooLong}}),
              Read(reader));
  }
  std::stringbuf source(most);
  kx::LineReader reader(source, most.size());
  EXPECT_EQ((Lines{{most, Kind::kLast}}), Read(reader));
}

}  // namespace
