// Texts that take their values in any order, compared with a list of what each value prints as: an
// argument that is passed over is read as the conversion that comes for it later says.

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>

#include "format/inserted.h"

namespace {

struct Value {
  const char* conversion;
  const char* printed;
};

// What Insert below passes, in its order; more of each kind than registers hold.
const Value kValues[] = {
    {"%d", "-7"}, {"%.2f", "1.25"}, {"%s", "text"},   {"%f", "2.500000"}, {"%lld", "-1"},
    {"%x", "ff"}, {"%.0f", "3"},    {"%5s", "  end"}, {"%c", "c"},        {"%.1f", "0.1"},
};
constexpr std::size_t kCount = std::size(kValues);

std::string Insert(const std::string& text) {
  return Inserted(text, -7, 1.25, "text", 2.5, std::int64_t{-1}, 255, 3.0, "end", 'c', 0.1);
}

/// ":1" to ":9", and ":0" for the tenth.
std::string NumberOf(std::size_t index) { return ':' + std::to_string((index + 1) % kCount); }

TEST(InsertVariableVAOrder, EachValueAloneIsFoundBehindAllOthers) {
  // All others are read, too, as nobody can step over a floating value.
  for (std::size_t index = 0; index < kCount; ++index) {
    std::string text = kValues[index].conversion + NumberOf(index);
    std::string expected = kValues[index].printed;
    for (std::size_t other = 0; other < kCount; ++other) {
      text += '|' + (kValues[other].conversion + NumberOf(other));
      expected += std::string("|") + kValues[other].printed;
    }
    EXPECT_EQ(expected, Insert(text)) << text;
  }
}

TEST(InsertVariableVAOrder, RandomOrdersFindTheirValues) {
  std::mt19937 random(20260103);
  const auto below = [&random](std::size_t limit) { return random() % limit; };
  for (int i = 0; i < 5000; ++i) {
    std::string text;
    std::string expected;
    std::size_t next = 0;  // of the conversions without a number
    const std::size_t numbered = below(3);
    for (std::size_t count = below(20); count > 0; --count) {
      const bool hasNumber = next == kCount || below(3) < numbered;
      const std::size_t index = hasNumber ? below(kCount) : next++;
      text += kValues[index].conversion + (hasNumber ? NumberOf(index) : "") + ", ";
      expected += std::string(kValues[index].printed) + ", ";
    }
    // At the end all, so that each is read as what it is.
    for (std::size_t index = 0; index < kCount; ++index) {
      text += kValues[index].conversion + NumberOf(index) + ';';
      expected += std::string(kValues[index].printed) + ';';
    }
    ASSERT_EQ(expected, Insert(text)) << text;
  }
}

TEST(InsertVariableVAOrder, AnIntegerIsReadWholeForALongerConversionBehind) {
  const std::int64_t value = 0x123456789ABCDEF0;
  EXPECT_EQ("9abcdef0 123456789abcdef0", Inserted("%x:1 %llx:1", value));
  EXPECT_EQ("9abcdef0 7 123456789abcdef0", Inserted("%x:1 %d:2 %llx:1", value, 7));
  EXPECT_EQ("7 9abcdef0 123456789abcdef0", Inserted("%d:2 %x:1 %llx:1", value, 7));
}

TEST(InsertVariableVAOrder, AnArgumentPassedOverIsReadAsItsFirstConversionSays) {
  constexpr std::uint64_t kBits = 0x4004000000000000;  // of 2.5
  EXPECT_EQ("x 2.500000 4004000000000000", Inserted("%s:2 %f:1 %llx:1", 2.5, "x"));
  EXPECT_EQ("x 4004000000000000 2.500000", Inserted("%s:2 %llx:1 %f:1", kBits, "x"));
}

TEST(InsertVariableVAOrder, APieceWithoutAConversionLeavesItsValueToOthers) {
  EXPECT_EQ("% o 7 text", Inserted("%% o %d:1 %s", 7, "text"));
  EXPECT_EQ("% o text 7", Inserted("%% o %s %d:1", 7, "text"));
}

}  // namespace
