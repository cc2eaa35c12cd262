// What is left when memory runs out while a file is read.

#include <gtest/gtest.h>

#include <new>
#include <sstream>
#include <streambuf>
#include <string>
#include <utility>
#include <vector>

#include "bundles/properties_rows.h"
#include "support/failing_new.h"
#include "support/temp_tree.h"

namespace {

const std::string kLong(300, 'x');

// Texts in the order of the file, all of them too long to be kept without an allocation.
const std::vector<std::pair<std::string, std::string>> kTexts = {{"one." + kLong, "1" + kLong},
                                                                 {"two." + kLong, kLong + kLong},
                                                                 {"three." + kLong, "3" + kLong}};

std::string FileOfTexts() {
  return "# " + kLong + kLong + "\n" + kTexts[0].first + "=" + kTexts[0].second + "\n" +
         kTexts[1].first + "=" + kLong + "\\\n" + kLong + "\n" + kTexts[2].first + " = " +
         kTexts[2].second;
}

/// The entries are those of the first keys of the file, and whole but for the last of them.
void ExpectBeginningOf(const kx::PropertyTable& table) {
  ASSERT_LE(table.size(), kTexts.size());
  for (std::size_t i = 0; i < table.size(); ++i) {
    const auto found = table.find(kTexts[i].first.c_str());
    ASSERT_NE(table.end(), found) << i;
    if (i + 1 < table.size()) {
      EXPECT_EQ(kTexts[i].second, found->second);
    } else {
      EXPECT_EQ(0U, kTexts[i].second.rfind(found->second, 0));
    }
  }
}

TEST(PropertiesMemory, ShortageIsThrownAndKeepsWhatWasRead) {
  const std::string bytes = FileOfTexts();
  const int failures = FailEachAllocation(
      [&] {
        kx::PropertyKeyPool keys;
        ProblemList problems;
        std::istringstream stream(bytes);
        kx::PropertyTable read;
        try {
          kx::ReadPropertiesStream("agent.properties", stream, read, keys, problems);
        } catch (const std::bad_alloc&) {
          ExpectBeginningOf(read);
          throw;
        }
        EXPECT_EQ(PropertyTexts(kTexts.begin(), kTexts.end()), TextsOf(read));
        EXPECT_TRUE(problems.Lines().empty());
      },
      [] {});
  EXPECT_GT(failures, 5);
}

TEST(PropertiesMemory, ShortageIsThrownFromTheReadingOfAFile) {
  TempTree tree;
  tree.Write("agent.properties", FileOfTexts());
  const std::string path = tree.Path("agent.properties");
  const int failures = FailEachAllocation(
      [&] {
        kx::PropertyTable table;
        EXPECT_TRUE(kx::ReadPropertiesFile(path.c_str(), table));
        EXPECT_EQ(PropertyTexts(kTexts.begin(), kTexts.end()), TextsOf(table));
      },
      [] {});
  EXPECT_GT(failures, 5);
}

TEST(PropertiesMemory, ShortageIsThrownFromTheReadingOfALine) {
  const std::string bytes = std::string(100000, 'x') + "\nnext\n";
  std::string buffer;
  std::size_t lineNumber = 0;
  ProblemList problems;
  const int failures = FailEachAllocation(
      [&] {
        buffer = std::string();
        lineNumber = 0;
        std::istringstream stream(bytes);
        const char* const line =
            kx::ReadPropertiesLine("agent.properties", stream, buffer, lineNumber, problems);
        ASSERT_NE(nullptr, line);
        EXPECT_EQ(100000U, std::string(line).size());
      },
      [] {});
  EXPECT_GT(failures, 0);
}

/// Hands out one text and then finds no memory for its next block.
class HungryBuffer final : public std::streambuf {
 public:
  explicit HungryBuffer(std::string text) : text_(std::move(text)) {
    setg(text_.data(), text_.data(), text_.data() + text_.size());
  }

 protected:
  int_type underflow() override { throw std::bad_alloc(); }

 private:
  std::string text_;
};

// Streams of the standard library turn what their buffer throws into a state, and the file would
// then seem to end there.
TEST(PropertiesMemory, ShortageInTheStreamIsNotTakenForTheEndOfTheFile) {
  HungryBuffer buffer("a=1\nb=2\n");
  std::istream stream(&buffer);
  kx::PropertyTable table;
  kx::PropertyKeyPool keys;
  ProblemList problems;
  EXPECT_THROW(kx::ReadPropertiesStream("agent.properties", stream, table, keys, problems),
               std::bad_alloc);
  EXPECT_EQ((PropertyTexts{{"a", "1"}, {"b", "2"}}), TextsOf(table));
}

TEST(PropertyKeyPoolMemory, ShortageLeavesThePoolUsable) {
  kx::PropertyKeyPool pool;
  const char* const before = pool.InternPropertyKey("before");
  const char* pooled = nullptr;
  const int failures =
      FailEachAllocation([&] { pooled = pool.InternPropertyKey(kLong.c_str()); },
                         [&] { EXPECT_EQ(before, pool.InternPropertyKey("before")); });
  EXPECT_GT(failures, 0);
  EXPECT_EQ(kLong, pooled);
  EXPECT_EQ(pooled, pool.InternPropertyKey(kLong.c_str()));
}

}  // namespace
