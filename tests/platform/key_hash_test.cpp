#include "platform/key_hash.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <ostream>
#include <string>
#include <unordered_set>
#include <vector>

namespace {

struct HashCase {
  const char* name;
  const char* text;
  std::uint64_t hash;
};

void PrintTo(const HashCase& c, std::ostream* os) { *os << '"' << c.text << '"'; }

class NameHashValue : public testing::TestWithParam<HashCase> {};

TEST_P(NameHashValue, IsTheSameOnEveryMachine) {
  EXPECT_EQ(GetParam().hash, kx::NameHash()(GetParam().text));
}

// Worked out elsewhere, so that a slip in the code cannot hide in the test.
const HashCase kValues[] = {
    {"Empty", "", 0},
    {"Small", "a", 0x61},
    {"Capital", "A", 0x41},
    {"TwoLetters", "ab", 0x611841},
    {"Word", "Title", 0x5337d9069865ec18},
    {"LongerThanTheArithmetic", "LOGIN_PROMPT_OF_THE_AGENT", 0x2a3459f4a924b414},
    {"HighestByteIsUnsigned", "\xFF", 0xFF},
};

INSTANTIATE_TEST_SUITE_P(Values, NameHashValue, testing::ValuesIn(kValues),
                         [](const auto& row) { return std::string(row.param.name); });

/// The byte of `length` that differs from all others stands at `place`.
std::string KeyWith(std::size_t length, std::size_t place, unsigned byte) {
  std::string key(length, '-');
  key[place] = static_cast<char>(byte);
  return key;
}

TEST(KeyHash, FoldsEveryCapitalInEveryPlaceAndNothingElse) {
  for (const std::size_t length : {1U, 7U, 8U, 9U, 17U}) {
    for (std::size_t place = 0; place < length; ++place) {
      std::unordered_set<std::size_t> hashes;
      for (unsigned byte = 0; byte < 256; ++byte) {
        const bool isCapital = byte >= 'A' && byte <= 'Z';
        const std::size_t hash = kx::KeyHash()(KeyWith(length, place, byte));
        EXPECT_EQ(isCapital, hash == kx::KeyHash()(KeyWith(length, place, byte + 32))) << byte;
        hashes.insert(hash);
      }
      EXPECT_EQ(256U - 26U, hashes.size()) << place << " of " << length;
    }
  }
}

TEST(KeyHash, TellsLengthsApart) {
  std::unordered_set<std::size_t> hashes;
  for (std::size_t length = 0; length < 100; ++length) {
    hashes.insert(kx::KeyHash()(std::string(length, '\0')));
  }
  EXPECT_EQ(100U, hashes.size());
}

// These two have one value under the polynomial of bundle names, and so have all rows of them: a
// catalogue made of such rows once took minutes to load.
TEST(KeyHash, CannotBeMadeToCollideByRowsOfCollidingWords) {
  const std::string words[] = {"baffaaeaajcaaafc", "acaagbacbaabccaa"};
  ASSERT_EQ(kx::NameHash()(words[0]), kx::NameHash()(words[1]));
  std::unordered_set<std::size_t> hashes;
  for (unsigned row = 0; row < 4096; ++row) {
    std::string key;
    for (unsigned bit = 0; bit < 12; ++bit) key += words[row >> bit & 1];
    hashes.insert(kx::KeyHash()(key));
  }
  EXPECT_EQ(4096U, hashes.size());
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
