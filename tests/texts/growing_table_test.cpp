#include "texts/growing_table.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdint>
#include <deque>
#include <thread>
#include <vector>

namespace {

struct Entry {
  int number;
};

/// The entries of a table by their numbers, with the hashes that a test gives them.
class Numbers {
 public:
  explicit Numbers(std::uint64_t (*hash)(int)) : hash_(hash) {}

  void Add(int number) {
    table_.Reserve();
    table_.Add(&entries_.emplace_back(Entry{number}), hash_(number));
  }

  const Entry* Find(int number) const {
    return table_.Find(hash_(number),
                       [number](const Entry* entry) { return entry->number == number; });
  }

 private:
  std::uint64_t (*hash_)(int);
  std::deque<Entry> entries_;
  kx::GrowingTable<const Entry> table_;
};

std::uint64_t Scattered(int number) {
  return static_cast<std::uint64_t>(number) * 0x9E3779B97F4A7C15U;
}

TEST(GrowingTable, HasNothingAtFirst) {
  const Numbers numbers(Scattered);
  EXPECT_EQ(nullptr, numbers.Find(1));
}

// Hashes that differ in what gives no place, that all end at the last place, or that are all one.
TEST(GrowingTable, FindsWhatWasAddedWhateverTheHashes) {
  std::uint64_t (*const kHashes[])(int) = {
      Scattered, [](int number) { return static_cast<std::uint64_t>(number) << 40; },
      [](int number) { return static_cast<std::uint64_t>(number % 7) - 1; },
      [](int) { return std::uint64_t{0}; }};
  for (const auto hash : kHashes) {
    Numbers numbers(hash);
    for (int added = 0; added < 500; ++added) {
      ASSERT_EQ(nullptr, numbers.Find(added));
      numbers.Add(added);
      ASSERT_NE(nullptr, numbers.Find(added));
    }
    for (int number = 0; number < 500; ++number) {
      ASSERT_NE(nullptr, numbers.Find(number));
      EXPECT_EQ(number, numbers.Find(number)->number);
    }
    EXPECT_EQ(nullptr, numbers.Find(500));
  }
}

TEST(GrowingTable, EntriesStayWhereTheyAre) {
  Numbers numbers(Scattered);
  numbers.Add(0);
  const Entry* const first = numbers.Find(0);
  for (int number = 1; number < 1000; ++number) numbers.Add(number);
  EXPECT_EQ(first, numbers.Find(0));
}

TEST(GrowingTable, MayHaveRoomForNothing) {
  kx::GrowingTable<const Entry> table;
  table.Reserve();
  table.Reserve();
  EXPECT_EQ(nullptr, table.Find(0, [](const Entry*) { return true; }));
}

// What is behind an entry is seen with it, though nothing else tells the readers of it.
TEST(GrowingTable, IsReadWhileAnotherAdds) {
  constexpr int kEntries = 5000;
  Numbers numbers(Scattered);
  std::atomic<int> wrong = 0;
  {
    std::vector<std::jthread> readers;
    for (int reader = 0; reader < 3; ++reader) {
      readers.emplace_back([&numbers, &wrong] {
        for (int next = 0; next < kEntries;) {
          const Entry* const found = numbers.Find(next);
          if (found == nullptr) continue;
          if (found->number != next) ++wrong;
          ++next;
        }
      });
    }
    for (int number = 0; number < kEntries; ++number) numbers.Add(number);
  }
  EXPECT_EQ(0, wrong);
}

}  // namespace
