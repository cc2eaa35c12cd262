#include "platform/key_hash.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace {

struct HashCase {
  const char* name;
  const char* key;
  std::uint64_t folded;
  std::uint64_t exact;
};

void PrintTo(const HashCase& c, std::ostream* os) { *os << '"' << c.key << '"'; }

class KeyHashValue : public testing::TestWithParam<HashCase> {};

TEST_P(KeyHashValue, IsTheSameOnEveryMachine) {
  EXPECT_EQ(GetParam().folded, kx::KeyHash()(GetParam().key));
  EXPECT_EQ(GetParam().exact, kx::NameHash()(GetParam().key));
}

// Worked out elsewhere, so that a slip in the code cannot hide in the test.
const HashCase kValues[] = {
    {"Empty", "", 0, 0},
    {"Small", "a", 0x61, 0x61},
    {"Capital", "A", 0x61, 0x41},
    {"TwoLetters", "ab", 0x611841, 0x611841},
    {"Word", "Title", 0x72c37baf15f1cc38, 0x5337d9069865ec18},
    {"Locale", "fr_CA", 0x64ff6b16f761a911, 0x64ff6b16f741a111},
    {"LongerThanTheArithmetic", "LOGIN_PROMPT_OF_THE_AGENT", 0x1e1e040f96d1ac74,
     0x2a3459f4a924b414},
    {"HighestByteIsUnsigned", "\xFF", 0xFF, 0xFF},
    {"BytesAbove127AreUnsignedAndNotFolded", "\xC3\x89t\xC3\xA9", 0xc0c44ce4dd144b14,
     0xc0c44ce4dd144b14},
    {"NeighboursOfTheCapitalsStay", "@[", 0x40 * 65599 + 0x5B, 0x40 * 65599 + 0x5B},
    {"NeighboursOfTheSmallLettersStay", "`{", 0x60 * 65599 + 0x7B, 0x60 * 65599 + 0x7B},
};

INSTANTIATE_TEST_SUITE_P(Values, KeyHashValue, testing::ValuesIn(kValues),
                         [](const auto& row) { return std::string(row.param.name); });

// The sum of byte times factor to the power of its place from the end, each power made anew.
std::uint64_t SlowHash(const std::string& key, bool folds) {
  std::uint64_t sum = 0;
  for (std::size_t i = 0; i < key.size(); ++i) {
    std::uint64_t term = static_cast<unsigned char>(key[i]);
    if (folds && term >= 65 && term <= 90) term += 32;
    for (std::size_t power = i + 1; power < key.size(); ++power) term *= 65599;
    sum += term;
  }
  return sum;
}

TEST(KeyHash, AgreesWithTheSumOfPowers) {
  std::string key;
  for (unsigned i = 0; i < 600; ++i) {
    EXPECT_EQ(SlowHash(key, true), kx::KeyHash()(key)) << "length " << key.size();
    EXPECT_EQ(SlowHash(key, false), kx::NameHash()(key)) << "length " << key.size();
    key += static_cast<char>(i * 37 % 256);
  }
}

TEST(KeyHash, EveryByteHashesToItsFoldedValue) {
  for (unsigned byte = 0; byte < 256; ++byte) {
    const char c = static_cast<char>(byte);
    const unsigned folded = byte >= 'A' && byte <= 'Z' ? byte + 32 : byte;
    EXPECT_EQ(folded, kx::KeyHash()(std::string_view(&c, 1))) << byte;
    EXPECT_EQ(byte, kx::NameHash()(std::string_view(&c, 1))) << byte;
  }
}

TEST(KeyHash, EqualKeysHashAlike) {
  const std::vector<std::string> spellings = {"Login_Prompt", "LOGIN_PROMPT", "login_prompt",
                                              "lOGIN_pROMPT"};
  for (const std::string& spelling : spellings) {
    EXPECT_TRUE(kx::KeyEqual()(spellings[0], spelling));
    EXPECT_EQ(kx::KeyHash()(spellings[0]), kx::KeyHash()(spelling));
  }
}

TEST(KeyEqual, FoldsAsciiLettersOnly) {
  EXPECT_TRUE(kx::KeyEqual()("", ""));
  EXPECT_TRUE(kx::KeyEqual()("AZaz09", "azAZ09"));
  EXPECT_FALSE(kx::KeyEqual()("\xC3\x89", "\xC3\xA9"));
  EXPECT_FALSE(kx::KeyEqual()("[", "{"));
  EXPECT_FALSE(kx::KeyEqual()("@", "`"));
  EXPECT_FALSE(kx::KeyEqual()("a-b", "a_b"));
}

TEST(KeyEqual, TellsAKeyFromItsPrefix) {
  EXPECT_FALSE(kx::KeyEqual()("abc", "ab"));
  EXPECT_FALSE(kx::KeyEqual()("ab", "abc"));
  EXPECT_FALSE(kx::KeyEqual()("", "a"));
}

TEST(KeyHash, ServesATableOfPointersByTheirTexts) {
  std::unordered_set<const char*, kx::KeyHash, kx::KeyEqual> keys = {"Title"};
  const std::string other = "TITLE";
  EXPECT_EQ(1U, keys.count(other.c_str()));
  EXPECT_FALSE(keys.insert(other.c_str()).second);
  EXPECT_TRUE(keys.insert("Titles").second);
}

}  // namespace
