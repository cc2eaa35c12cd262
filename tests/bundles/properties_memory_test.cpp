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

/// The entries are those of the first keys of the file, and whole.
void ExpectBeginningOf(const kx::PropertyTable& table) {
  const PropertyTexts texts = TextsOf(table);
  ASSERT_LE(texts.size(), kTexts.size());
  EXPECT_EQ(
      PropertyTexts(kTexts.begin(), kTexts.begin() + static_cast<std::ptrdiff_t>(texts.size())),
      texts);
}

TEST(PropertiesMemory, ShortageIsThrownAndKeepsWhatWasRead) {
  const std::string bytes = FileOfTexts();
  const int failures = FailEachAllocation(
      [&] {
        ProblemList problems;
        std::istringstream stream(bytes);
        kx::PropertyTable read;
        try {
          kx::ReadPropertiesStream("agent.properties", stream, read, problems);
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
  ProblemList problems;
  const int failures = FailEachAllocation(
      [&] {
        std::istringstream stream(bytes);
        kx::PropertiesLines lines("agent.properties", stream, problems);
        std::string_view line;
        ASSERT_TRUE(lines.ReadPropertiesLine(line));
        EXPECT_EQ(100000U, line.size());
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
  ProblemList problems;
  EXPECT_THROW(kx::ReadPropertiesStream("agent.properties", stream, table, problems),
               std::bad_alloc);
  EXPECT_EQ((PropertyTexts{{"a", "1"}, {"b", "2"}}), TextsOf(table));
}

}  // namespace
