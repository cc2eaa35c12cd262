#include "texts/noted_keys.h"

#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

namespace {

constexpr kx::HashSeed kSeed = {11, 12};

std::uint64_t Hash(const std::string& key) { return kx::HashKey<kx::AnyCase>(key, kSeed); }

std::string Key(int number) { return "Absent.key." + std::to_string(number); }

void Note(kx::NotedKeys& keys, const std::string& key) { keys.Note(keys.Prepare(key), Hash(key)); }

bool Has(const kx::NotedKeys& keys, const std::string& key) { return keys.Has(key, Hash(key)); }

TEST(NotedKeys, HasNothingAtFirst) {
  const kx::NotedKeys keys;
  EXPECT_FALSE(Has(keys, ""));
  EXPECT_FALSE(Has(keys, "key"));
}

TEST(NotedKeys, HasWhatWasNotedInAnyCase) {
  kx::NotedKeys keys;
  Note(keys, "Key");
  Note(keys, "");
  EXPECT_TRUE(Has(keys, "kEY"));
  EXPECT_TRUE(Has(keys, ""));
  EXPECT_FALSE(Has(keys, "Ke"));
  EXPECT_FALSE(Has(keys, "Keys"));
}

TEST(NotedKeys, HasNotWhatWasOnlyPrepared) {
  kx::NotedKeys keys;
  keys.Prepare("key");
  EXPECT_FALSE(Has(keys, "key"));
  Note(keys, "key");
  EXPECT_TRUE(Has(keys, "key"));
}

TEST(NotedKeys, HasAllOfMany) {
  kx::NotedKeys keys;
  constexpr int kKeys = 20000;
  for (int number = 0; number < kKeys; ++number) {
    ASSERT_FALSE(Has(keys, Key(number)));
    Note(keys, Key(number));
    ASSERT_TRUE(Has(keys, Key(number)));
  }
  for (int number = 0; number < kKeys; ++number) ASSERT_TRUE(Has(keys, Key(number)));
  EXPECT_FALSE(Has(keys, Key(kKeys)));
}

TEST(NotedKeys, EqualHashesAreToldApart) {
  kx::NotedKeys keys;
  for (int number = 0; number < 200; ++number) keys.Note(keys.Prepare(Key(number)), 5);
  for (int number = 0; number < 200; ++number) EXPECT_TRUE(keys.Has(Key(number), 5));
  EXPECT_FALSE(keys.Has(Key(200), 5));
}

// Readers see a key from some moment on, and then always; the table grows many times meanwhile.
TEST(NotedKeys, AreReadWhileOthersAreNoted) {
  kx::NotedKeys keys;
  constexpr int kKeys = 3000;
  std::atomic<int> noted = 0;
  std::vector<std::jthread> readers;
  for (int reader = 0; reader < 3; ++reader) {
    readers.emplace_back([&keys, &noted] {
      for (int known = 0; known < kKeys;) {
        known = noted.load(std::memory_order_acquire);
        for (int number = known > 50 ? known - 50 : 0; number < known; ++number) {
          ASSERT_TRUE(Has(keys, Key(number))) << number;
        }
        ASSERT_FALSE(Has(keys, Key(kKeys)));
      }
    });
  }
  for (int number = 0; number < kKeys; ++number) {
    Note(keys, Key(number));
    noted.store(number + 1, std::memory_order_release);
  }
}

}  // namespace
