// The text on the stack and on the heap, at the limit between them.

#include "format/result_text.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

namespace {

using kx::ResultText;

constexpr std::size_t kLimit = ResultText::kBytesInPlace;

std::string Mixed(std::size_t size) {
  std::string text;
  while (text.size() < size) text += static_cast<char>('a' + text.size() * 7 % 26);
  return text;
}

class ResultTextOfSize : public testing::TestWithParam<std::size_t> {};

TEST_P(ResultTextOfSize, TakesTextsOfAnyLength) {
  const std::string text = Mixed(GetParam());
  for (std::size_t first = 0; first <= text.size(); ++first) {
    ResultText result;
    result.Append(std::string_view(text).substr(0, first));
    result.Append(std::string_view(text).substr(first));
    ASSERT_EQ(text, result.View()) << first;
  }
}

TEST_P(ResultTextOfSize, TakesByteAfterByte) {
  const std::string text = Mixed(GetParam());
  ResultText result;
  for (const char c : text) result.Append(c);
  EXPECT_EQ(text, result.View());
}

TEST_P(ResultTextOfSize, TakesManyOfOneByte) {
  ResultText result;
  result.Append("ab");
  result.Append(GetParam(), '-');
  EXPECT_EQ("ab" + std::string(GetParam(), '-'), result.View());
}

TEST_P(ResultTextOfSize, MakesRoomAtEachPlace) {
  const std::string text = Mixed(GetParam());
  for (std::size_t place = 0; place <= text.size(); ++place) {
    ResultText result;
    result.Append(text);
    result.Insert(place, 3, '0');
    ASSERT_EQ(std::string(text).insert(place, "000"), result.View()) << place;
  }
}

TEST_P(ResultTextOfSize, HasTheSlackBehindWhatWasReserved) {
  const std::string text = Mixed(GetParam());
  ResultText result;
  char* const to = result.Reserve(text.size());
  text.copy(to, text.size());
  std::string(ResultText::kSlack, '!').copy(to + text.size(), ResultText::kSlack);
  result.EndAt(to + text.size());
  result.Append("end");
  EXPECT_EQ(text + "end", result.View());
}

TEST_P(ResultTextOfSize, IsCutToItsFirstBytes) {
  const std::string text = Mixed(GetParam());
  ResultText result;
  result.Append(text);
  result.Cut(text.size() + 1);
  EXPECT_EQ(text, result.View());
  result.Cut(text.size() / 2);
  EXPECT_EQ(text.substr(0, text.size() / 2), result.View());
}

INSTANTIATE_TEST_SUITE_P(Sizes, ResultTextOfSize,
                         testing::Values(0, 1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 31, 33, kLimit - 4,
                                         kLimit - 3, kLimit - 2, kLimit - 1, kLimit, kLimit + 1,
                                         2 * kLimit - 1, 2 * kLimit, 2 * kLimit + 1, 3000));

}  // namespace
