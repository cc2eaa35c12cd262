#include <gtest/gtest.h>

#include <cstdint>
#include <new>
#include <string>
#include <vector>

#include "support/failing_new.h"
#include "texts/fill_forecast.h"
#include "texts/key_table.h"
#include "texts/text_arena.h"

namespace {

class GrowingTable {
 public:
  kx::KeyTable& Table() { return table_; }

  /// Adds numbered keys until there are `size`; their memory is got before.
  void FillTo(std::size_t size, int allowedAllocations) {
    std::vector<const char*> stored;
    for (std::size_t number = table_.Size(); number < size; ++number)
      stored.push_back(Store(number));
    const FailingNew failing(allowedAllocations);
    for (const char* const key : stored) table_.Add(key, table_.Hash(key));
  }

  bool Has(std::size_t number) const {
    const std::string key = std::to_string(number);
    return table_.Find(key, table_.Hash(key)) != nullptr;
  }

  void ExpectHasAll() const {
    for (std::size_t number = 0; number < table_.Size(); ++number) {
      ASSERT_TRUE(Has(number)) << number;
    }
    EXPECT_FALSE(Has(table_.Size()));
  }

 private:
  const char* Store(std::size_t number) {
    const std::string key = std::to_string(number);
    char* const place = arena_.Take(key.size() + 1);
    kx::PutText(place, key);
    return place;
  }

  kx::TextArena arena_;
  kx::KeyTable table_;
};

constexpr int kAsManyAsItTakes = 1000;

TEST(KeyTableGrowth, GoesToWhatIsExpectedAtOnce) {
  GrowingTable table;
  table.FillTo(500, kAsManyAsItTakes);
  table.Table().Expect(3000);
  table.FillTo(3000, 1);
  table.ExpectHasAll();
}

TEST(KeyTableGrowth, BelievesNoPromiseBeyondEightTimesOfWhatIsThere) {
  GrowingTable table;
  table.FillTo(4, kAsManyAsItTakes);
  table.Table().Expect(std::size_t{1} << 60);
  table.FillTo(300, 3);
  table.ExpectHasAll();
}

TEST(KeyTableGrowth, GoesOnWhereMoreComesThanWasExpected) {
  GrowingTable table;
  table.Table().Expect(10);
  table.FillTo(5000, kAsManyAsItTakes);
  table.ExpectHasAll();
}

TEST(KeyTableGrowth, LeavesTheTableAsItWasWithoutMemory) {
  GrowingTable table;
  table.FillTo(4, kAsManyAsItTakes);
  EXPECT_THROW(table.FillTo(5, 0), std::bad_alloc);
  EXPECT_EQ(4u, table.Table().Size());
  table.ExpectHasAll();
}

TEST(KeyTableGrowth, RefusesAPlaceThatNoBucketCanHold) {
  kx::KeyTable table;
  const auto* const beyond = reinterpret_cast<const char*>(std::uintptr_t{1} << 48);
  EXPECT_THROW(table.Add(beyond, 0), std::bad_alloc);
  EXPECT_EQ(0u, table.Size());
}

struct Forecast {
  std::size_t Size() const { return size; }
  void Expect(std::size_t count) { expected = count; }

  std::size_t size = 0;
  std::size_t expected = 0;
};

TEST(FillForecast, CountsWhatWasAddedAgainstTheShareThatWasRead) {
  Forecast table{1000};
  kx::FillForecast forecast(table, 10000);
  table.size += 50;
  forecast.Update(2500);
  EXPECT_EQ(1200u, table.expected);
}

TEST(FillForecast, SaysNothingOfAFileOfUnknownOrOtherSize) {
  for (const std::size_t size : {0u, 99u, 100u}) {
    Forecast table;
    kx::FillForecast forecast(table, size);
    table.size = 5;
    forecast.Update(100);
    EXPECT_EQ(0u, table.expected) << size;
  }
  Forecast table;
  kx::FillForecast(table, 100).Update(0);
  EXPECT_EQ(0u, table.expected);
}

}  // namespace
