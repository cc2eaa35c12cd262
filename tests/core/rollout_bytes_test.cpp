// What a roll-out of language files leaves in memory.

#include <gtest/gtest.h>

#include <string>

#include "core/language_cache_fixture.h"
#include "core/live_bytes.h"

namespace {

constexpr int kTexts = 1000;

/// A file with a thousand texts of 66 bytes, which begin with a letter.
std::string Catalogue(char letter) {
  std::string bytes = "Name n\n\n";
  for (int number = 0; number < kTexts; ++number) {
    std::string value = std::to_string(number);
    value.insert(0, 66 - value.size(), letter);
    bytes += "Key " + std::to_string(number) + "\nValue " + value + "\n";
  }
  return bytes;
}

using RolloutBytes = LanguageCache;

TEST_F(RolloutBytes, AreTheOldValuesAndLessThan100ForEach) {
  Write("FR/agent.lang", Catalogue('a'), 1000);
  FindFrench();
  const long before = LiveBytes();
  Write("FR/agent.lang", Catalogue('b'), 2000);
  FindFrench();
  const long left = LiveBytes() - before;
  EXPECT_LT(left, 100L * kTexts);
  EXPECT_GE(left, 66L * kTexts);
}

TEST_F(RolloutBytes, OfValuesThatWereThereBeforeAreNone) {
  Write("FR/agent.lang", Catalogue('a'), 1000);
  FindFrench();
  Write("FR/agent.lang", Catalogue('b'), 2000);
  FindFrench();
  const long before = LiveBytes();
  Write("FR/agent.lang", Catalogue('a'), 3000);
  FindFrench();
  EXPECT_LE(LiveBytes(), before);
}

TEST_F(RolloutBytes, AreNotGivenBackByFreeCacheButTheRestIs) {
  Write("FR/agent.lang", Catalogue('a'), 1000);
  const long before = LiveBytes();
  FindFrench();
  const long held = LiveBytes() - before;
  cache_->Clear();
  const long kept = LiveBytes() - before;
  EXPECT_GE(kept, 66L * kTexts);
  EXPECT_LT(kept, held);
}

}  // namespace
