#include "texts/folded_key.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <random>
#include <set>
#include <string>

#include "platform/ascii_case.h"

namespace {

constexpr kx::HashSeed kSeed = {0x0123456789ABCDEF, 0xFEDCBA9876543210};

/// A stored key in a heap block of the least size that is allowed, so that a sanitizer sees what
/// reads too far.
class Stored {
 public:
  explicit Stored(const std::string& key, char behind = 'x')
      : bytes_(std::make_unique<char[]>(key.size() + 1 + kx::kKeyPadding)) {
    std::fill_n(bytes_.get(), key.size() + 1 + kx::kKeyPadding, behind);
    key.copy(bytes_.get(), key.size());
    bytes_[key.size()] = '\0';
  }
  const char* Get() const { return bytes_.get(); }

 private:
  std::unique_ptr<char[]> bytes_;
};

/// The same for a key that is asked for, behind which nothing may be read.
std::unique_ptr<char[]> Exact(const std::string& key) {
  auto bytes = std::make_unique<char[]>(key.size());
  key.copy(bytes.get(), key.size());
  return bytes;
}

bool AreEqual(const std::string& stored, const std::string& key) {
  const Stored block(stored);
  const auto bytes = Exact(key);
  return kx::EqualKey<kx::AnyCase>(block.Get(), {bytes.get(), key.size()});
}

std::uint64_t Hash(const std::string& key, const kx::HashSeed& seed = kSeed) {
  const auto bytes = Exact(key);
  return kx::HashKey<kx::AnyCase>({bytes.get(), key.size()}, seed);
}

std::string Letters(std::size_t size, char first) {
  std::string text;
  for (std::size_t at = 0; at < size; ++at)
    text += static_cast<char>(first + static_cast<char>(at % 26));
  return text;
}

class FoldedKeyOfSize : public testing::TestWithParam<std::size_t> {};

TEST_P(FoldedKeyOfSize, EqualsItselfInAnyCase) {
  const std::string small = Letters(GetParam(), 'a');
  const std::string capital = Letters(GetParam(), 'A');
  EXPECT_TRUE(AreEqual(small, small));
  EXPECT_TRUE(AreEqual(small, capital));
  EXPECT_TRUE(AreEqual(capital, small));
  EXPECT_EQ(Hash(small), Hash(capital));
}

TEST_P(FoldedKeyOfSize, DiffersInEachOfItsBytes) {
  const std::string key = Letters(GetParam(), 'a');
  for (std::size_t at = 0; at < key.size(); ++at) {
    for (const char other : {'\x01', '@', '[', '`', '{', '\x7F', '\x80', '\xFF'}) {
      std::string changed = key;
      changed[at] = other;
      EXPECT_FALSE(AreEqual(key, changed)) << at;
      EXPECT_FALSE(AreEqual(changed, key)) << at;
      EXPECT_NE(Hash(key), Hash(changed)) << at;
    }
  }
}

TEST_P(FoldedKeyOfSize, DiffersFromItsBeginningsAndContinuations) {
  const std::string key = Letters(GetParam(), 'a');
  for (std::size_t more = 1; more <= 20; ++more) {
    const std::string longer = key + std::string(more, 'x');
    EXPECT_FALSE(AreEqual(key, longer));
    EXPECT_FALSE(AreEqual(longer, key));
    EXPECT_NE(Hash(key), Hash(longer));
  }
}

// What lies behind a key does not count, even when it looks like the rest of a longer one.
TEST_P(FoldedKeyOfSize, EndsAtItsNul) {
  const std::string key = Letters(GetParam(), 'a');
  const Stored stored(key, 'x');
  for (std::size_t more = 1; more <= kx::kKeyPadding; ++more) {
    EXPECT_FALSE(kx::EqualKey<kx::AnyCase>(stored.Get(), key + std::string(more, 'x')));
  }
  EXPECT_TRUE(kx::EqualKey<kx::AnyCase>(stored.Get(), key));
}

INSTANTIATE_TEST_SUITE_P(Sizes, FoldedKeyOfSize,
                         testing::Values(0u, 1u, 2u, 3u, 4u, 5u, 7u, 8u, 9u, 15u, 16u, 17u, 27u,
                                         31u, 32u, 33u, 47u, 48u, 49u, 100u),
                         [](const auto& row) { return std::to_string(row.param); });

TEST(FoldedKey, OnlyAsciiLettersAreFolded) {
  for (int a = 1; a < 256; ++a) {
    for (int b = 1; b < 256; ++b) {
      const std::string first(3, static_cast<char>(a));
      const std::string second(3, static_cast<char>(b));
      const bool equal = kx::EqualIgnoringAsciiCase(first, second);
      ASSERT_EQ(equal, AreEqual(first, second)) << a << ' ' << b;
      ASSERT_EQ(equal, Hash(first) == Hash(second)) << a << ' ' << b;
    }
  }
}

TEST(FoldedKey, RandomKeysAreEqualAsThePlainComparisonSays) {
  std::mt19937 random(1);
  const auto key = [&random] {
    std::string text(random() % 40, '\0');
    for (char& c : text) c = "aAbBzZ@[`{_.\x80\xC3"[random() % 14];
    return text;
  };
  for (int round = 0; round < 20000; ++round) {
    const std::string first = key();
    std::string second = round % 2 == 0 ? key() : first;
    if (round % 4 == 1 && !second.empty()) second[random() % second.size()] ^= 0x20;
    const bool equal = kx::EqualIgnoringAsciiCase(first, second);
    ASSERT_EQ(equal, AreEqual(first, second)) << first << ' ' << second;
    ASSERT_EQ(equal, Hash(first) == Hash(second)) << first << ' ' << second;
  }
}

TEST(ExactKey, EachByteCounts) {
  for (const char* const key :
       {"a", "Key", "sixteen bytes..", "a key of more than sixteen bytes"}) {
    const std::string exact = key;
    std::string other = exact;
    other[0] ^= 0x20;
    EXPECT_TRUE(kx::EqualKey<kx::ExactCase>(Stored(exact).Get(), exact));
    EXPECT_FALSE(kx::EqualKey<kx::ExactCase>(Stored(exact).Get(), other));
    EXPECT_FALSE(kx::EqualKey<kx::ExactCase>(Stored(exact + "x").Get(), exact));
    EXPECT_NE(kx::HashKey<kx::ExactCase>(exact, kSeed), kx::HashKey<kx::ExactCase>(other, kSeed));
  }
}

TEST(FoldedKey, HashesOfOtherSeedsAreOthers) {
  const kx::HashSeed first = {kSeed.first + 1, kSeed.second};
  const kx::HashSeed second = {kSeed.first, kSeed.second + 1};
  for (const char* const key : {"", "a", "a key of more than sixteen bytes"}) {
    EXPECT_NE(Hash(key), Hash(key, second)) << key;
    EXPECT_NE(Hash(key), Hash(key, first)) << key;
  }
}

// Pairs in which one byte could make up for the size, if the size met it in the same operation.
TEST(FoldedKey, HashesTellSizesApartWhateverTheBytesSay) {
  EXPECT_NE(Hash("bccccccc"), Hash("bcccccccc"));
  std::set<std::uint64_t> hashes;
  for (std::size_t size = 33; size <= 47; ++size) {
    std::string key(size, '_');
    key[8] = static_cast<char>('`' ^ (size & 31));
    hashes.insert(Hash(key));
  }
  EXPECT_EQ(15u, hashes.size());
}

// Keys of catalogues differ in a few digits; each half of the hash has to tell them apart.
TEST(FoldedKey, HashesOfNumberedKeysSpread) {
  std::set<std::uint32_t> high;
  std::set<std::uint32_t> low;
  constexpr int kKeys = 20000;
  for (int number = 0; number < kKeys; ++number) {
    const std::uint64_t hash = Hash("MESSAGE_OF_COMPONENT_" + std::to_string(number));
    high.insert(static_cast<std::uint32_t>(hash >> 32));
    low.insert(static_cast<std::uint32_t>(hash));
  }
  // Of so many numbers of 32 bits chosen at random one pair in twenty such tests is equal.
  EXPECT_GE(high.size(), kKeys - 2u);
  EXPECT_GE(low.size(), kKeys - 2u);
}

}  // namespace
