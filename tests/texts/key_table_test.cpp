#include "texts/key_table.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "platform/ascii_case.h"
#include "texts/text_arena.h"

namespace {

/// A table with the memory of its keys, and a model of both.
class Keys {
 public:
  explicit Keys(kx::TableFill fill = kx::TableFill::kForSearches,
                const kx::HashSeed& seed = kx::ProcessHashSeed())
      : table_(fill, seed) {}

  const char* Find(const std::string& key) const { return table_.Find(key, table_.Hash(key)); }

  const char* Store(const std::string& key) {
    char* const place = arena_.Take(key.size() + 1);
    kx::PutText(place, key);
    return place;
  }

  const char* Add(const std::string& key) {
    const char* const stored = Store(key);
    table_.Add(stored, table_.Hash(key));
    model_[key] = stored;
    return stored;
  }

  void Move(const std::string& key) {
    const char* const stored = Store(key);
    table_.Move(Find(key), table_.Hash(key), stored);
    model_[key] = stored;
  }

  bool HasInModel(const std::string& key) const { return model_.count(key) != 0; }

  void ExpectLikeModel() const {
    EXPECT_EQ(model_.size(), table_.Size());
    for (const auto& [key, stored] : model_) ASSERT_EQ(stored, Find(key)) << key;
    std::set<const char*> all;
    table_.ForEach([&all](const char* key) { EXPECT_TRUE(all.insert(key).second) << key; });
    for (const auto& [key, stored] : model_) EXPECT_EQ(1u, all.count(stored)) << key;
    EXPECT_EQ(model_.size(), all.size());
  }

 private:
  kx::TextArena arena_;
  kx::KeyTable table_;
  std::map<std::string, const char*, kx::LessIgnoringAsciiCase> model_;
};

TEST(KeyTable, OfNothingFindsNothing) {
  const Keys keys;
  EXPECT_EQ(nullptr, keys.Find(""));
  EXPECT_EQ(nullptr, keys.Find("key"));
  keys.ExpectLikeModel();
}

TEST(KeyTable, FindsKeysInAnyCaseWhereTheyAreStored) {
  Keys keys;
  const char* const title = keys.Add("Title");
  const char* const empty = keys.Add("");
  EXPECT_EQ(title, keys.Find("tITLE"));
  EXPECT_EQ(empty, keys.Find(""));
  EXPECT_EQ(nullptr, keys.Find("Titl"));
  EXPECT_EQ(nullptr, keys.Find("Titles"));
}

TEST(KeyTable, AnswersTheNewPlaceOfAKeyThatMoved) {
  Keys keys;
  for (int number = 0; number < 100; ++number) keys.Add(std::to_string(number));
  for (int number = 0; number < 100; number += 3) keys.Move(std::to_string(number));
  keys.ExpectLikeModel();
}

class KeyTableOfSize : public testing::TestWithParam<int> {};

TEST_P(KeyTableOfSize, HoldsAllKeysAndNoOthers) {
  for (const kx::TableFill fill : {kx::TableFill::kForSearches, kx::TableFill::kForMemory}) {
    Keys keys(fill);
    for (int number = 0; number < GetParam(); ++number) {
      keys.Add("Key." + std::to_string(number) + ".of.many");
    }
    keys.ExpectLikeModel();
    for (int number = 0; number < GetParam(); ++number) {
      ASSERT_EQ(nullptr, keys.Find("Absent." + std::to_string(number)));
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Sizes, KeyTableOfSize,
                         testing::Values(1, 2, 3, 4, 5, 7, 8, 15, 16, 17, 100, 1000, 10000),
                         [](const auto& row) { return std::to_string(row.param); });

// Whatever the hashes of keys are: all of them equal, all at the end of the table, or as they come.
class KeyTableOfHashes : public testing::TestWithParam<std::uint64_t> {};

TEST_P(KeyTableOfHashes, FindsEachKey) {
  kx::TextArena arena;
  kx::KeyTable table;
  std::vector<const char*> stored;
  for (int number = 0; number < 300; ++number) {
    const std::string key = "key" + std::to_string(number);
    char* const place = arena.Take(key.size() + 1);
    kx::PutText(place, key);
    EXPECT_EQ(nullptr, table.Find(key, GetParam()));
    table.Add(place, GetParam());
    stored.push_back(place);
  }
  for (const char* const key : stored) EXPECT_EQ(key, table.Find(key, GetParam()));
  EXPECT_EQ(nullptr, table.Find("other", GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Adversary, KeyTableOfHashes,
                         testing::Values(std::uint64_t{0}, ~std::uint64_t{0},
                                         std::uint64_t{0xFFFFFFFF00000000},
                                         std::uint64_t{0x00000000FFFFFFFF}),
                         [](const auto& row) { return "Hash" + std::to_string(row.param); });

TEST(KeyTable, AgreesWithAModelOnRandomKeys) {
  std::mt19937 random(2);
  for (int round = 0; round < 20; ++round) {
    Keys keys(kx::TableFill::kForSearches, {random(), random()});
    for (int step = 0; step < 2000; ++step) {
      std::string key(random() % 5, '\0');
      for (char& c : key) c = "aAbBcC.\xC3"[random() % 8];
      ASSERT_EQ(keys.HasInModel(key), keys.Find(key) != nullptr) << key;
      if (keys.HasInModel(key)) {
        keys.Move(key);
      } else {
        keys.Add(key);
      }
    }
    keys.ExpectLikeModel();
  }
}

TEST(TextArena, KeepsWhatItHandedOut) {
  kx::TextArena arena;
  std::vector<std::pair<char*, std::string>> texts;
  for (std::size_t size : {0u, 1u, 100u, 1000u, 5000u, 1u, 100000u, 3u, 2000000u, 7u}) {
    const std::string text(size, static_cast<char>('a' + texts.size()));
    char* const place = arena.Take(text.size() + 1);
    EXPECT_EQ(place + text.size() + 1, kx::PutText(place, text));
    texts.emplace_back(place, text);
  }
  for (const auto& [place, text] : texts) EXPECT_EQ(text, place);
}

}  // namespace
