// What languages hold in memory.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/language_cache_fixture.h"
#include "core/live_bytes.h"

namespace {

constexpr long kReadBlock = 64 * 1024;

/// What a translator has whatever its size.
constexpr long kTranslator = 8 * 1024;

/// A file with keys of 27 bytes and values of 66.
std::string Catalogue(int keys) {
  std::string bytes = "Name n\n\n";
  for (int number = 0; number < keys; ++number) {
    std::string key = std::to_string(number);
    key.insert(0, 27 - key.size(), 'k');
    std::string value = std::to_string(number);
    value.insert(0, 66 - value.size(), 'v');
    bytes += "Key " + key + "\nValue " + value + "\n";
  }
  return bytes;
}

class LanguageBytes : public LanguageCache, public testing::WithParamInterface<int> {};

TEST_P(LanguageBytes, AreAtMost145ForEachEntryAndALittleMoreWhileItIsRead) {
  const int keys = GetParam();
  Write("FR/agent.lang", Catalogue(keys));
  const long before = LiveBytes();
  PeakOfLiveBytes();
  const Held french = FindFrench();
  const long held = LiveBytes() - before;
  EXPECT_LE(held, 145L * keys + (keys < 10'000 ? kTranslator : 0));
  EXPECT_LE(PeakOfLiveBytes() - before, held + held / 10 + kReadBlock + kReadBlock / 16);
  EXPECT_NE(nullptr, french->GetText("kkkkkkkkkkkkkkkkkkkkkkkkkk9"));
}

// At no size are tables that have just grown too large.
INSTANTIATE_TEST_SUITE_P(Of, LanguageBytes,
                         testing::Values(1000, 2000, 3000, 5000, 8000, 10'000, 12'500, 16'000,
                                         20'000, 27'000, 100'000, 130'000));

TEST_F(LanguageBytes, OfReloadsAreNoMoreThanOfTheFirstLoad) {
  Write("FR/agent.lang", Catalogue(10'000), 1000);
  FindFrench();
  const long before = LiveBytes();
  for (int round = 1; round < 5; ++round) {
    Touch("FR/agent.lang", 1000 + round);
    FindFrench();
  }
  EXPECT_LE(LiveBytes(), before);
}

TEST_F(LanguageBytes, OfARegionWithoutFilesAreAtMost2048) {
  Write("IT/agent.lang", Catalogue(2000));
  const long before = LiveBytes();
  constexpr int kRegions = 2000;
  for (int region = 0; region < kRegions; ++region) {
    // Also when the language itself is never asked for.
    const Held held = Find("agent", "it", ("R" + std::to_string(region)).c_str());
    ASSERT_NE(nullptr, held->GetText("kkkkkkkkkkkkkkkkkkkkkkk1999"));
  }
  EXPECT_LE(LiveBytes() - before, 145L * 2000 + 2048L * kRegions);
}

TEST_F(LanguageBytes, OfALanguageDoNotGrowWithTheProblemsOfItsFiles) {
  std::string broken = "Name n\n\n";
  for (int line = 0; line < 20'000; ++line) broken += "no clause of any kind\n";
  Write("IT/agent.lang", broken);
  const long before = LiveBytes();
  const Held italian = Find("agent", "it", nullptr);
  EXPECT_STREQ("n", italian->GetLongName());
  EXPECT_LE(LiveBytes() - before, 64 * 1024);
}

TEST_F(LanguageBytes, OfAnAbsentLanguageAreNone) {
  Find("agent", "xy", "ZZ");
  const long before = LiveBytes();
  for (int round = 0; round < 100; ++round) {
    EXPECT_EQ(nullptr, Find("agent", ("x" + std::to_string(round)).c_str(), "ZZ"));
  }
  EXPECT_EQ(before, LiveBytes());
}

}  // namespace
