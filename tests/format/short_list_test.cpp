#include "format/short_list.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <vector>

namespace {

constexpr std::size_t kInPlace = 4;

struct Item {
  Item(int first, double second) : number(first), fraction(second) {}
  int number;
  double fraction;
};

class ShortListOf : public testing::TestWithParam<int> {};

TEST_P(ShortListOf, KeepsItsItemsInOrder) {
  kx::ShortList<Item, kInPlace> list;
  for (int i = 0; i < GetParam(); ++i) {
    list.Add(i, i + 0.5);
    // Each one after each growth.
    ASSERT_EQ(static_cast<std::size_t>(i) + 1, list.Size());
    for (int j = 0; j <= i; ++j) {
      ASSERT_EQ(j, list[static_cast<std::size_t>(j)].number);
      ASSERT_EQ(j + 0.5, list[static_cast<std::size_t>(j)].fraction);
    }
  }
  std::vector<int> walked;
  for (const Item& item : list) walked.push_back(item.number);
  ASSERT_EQ(list.Size(), walked.size());
  for (std::size_t i = 0; i < walked.size(); ++i) EXPECT_EQ(static_cast<int>(i), walked[i]);
}

TEST_P(ShortListOf, MayBeChangedInItsPlace) {
  kx::ShortList<char, kInPlace> list;
  for (int i = 0; i < GetParam(); ++i) list.Add('a');
  for (std::size_t i = 0; i < list.Size(); ++i) list[i] = static_cast<char>('b' + i % 20);
  for (std::size_t i = 0; i < list.Size(); ++i) EXPECT_EQ(static_cast<char>('b' + i % 20), list[i]);
}

INSTANTIATE_TEST_SUITE_P(Sizes, ShortListOf, testing::Values(0, 1, 3, 4, 5, 7, 8, 9, 100));

}  // namespace
