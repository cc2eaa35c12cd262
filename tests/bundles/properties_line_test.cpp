// The line reader by itself, and what only the table or the stream can show.

#include <gtest/gtest.h>

#include <cstddef>
#include <sstream>
#include <streambuf>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "bundles/properties_reader.h"
#include "bundles/properties_rows.h"
#include "support/problem_list.h"

namespace {

constexpr std::size_t kMegabyte = std::size_t{1} << 20;

class PropertiesLine : public testing::Test {
 protected:
  using Texts = std::vector<std::string>;

  /// All lines to the end; "(too many)" behind a thousand.
  Texts Lines(std::istream& stream) {
    kx::PropertiesLines reader("agent.properties", stream, problems_);
    Texts lines;
    for (std::string_view line; reader.ReadPropertiesLine(line);) {
      lines.emplace_back(line);
      if (lines.size() > 1000) return {"(too many)"};
    }
    return lines;
  }

  Texts Lines(const std::string& bytes) {
    std::istringstream stream(bytes);
    return Lines(stream);
  }

  ProblemList problems_;
};

TEST_F(PropertiesLine, EmptyFileHasNone) { EXPECT_EQ(Texts{}, Lines("")); }

TEST_F(PropertiesLine, LineEndAtTheEndBeginsNoOther) { EXPECT_EQ(Texts{"a"}, Lines("a\n")); }

TEST_F(PropertiesLine, LastOneNeedsNoEnd) { EXPECT_EQ((Texts{"a", "b"}), Lines("a\nb")); }

TEST_F(PropertiesLine, IsTrimmedAndOtherwiseAsWritten) {
  EXPECT_EQ((Texts{"a = b\\", "", "# c", "", "d"}), Lines(" a = b\\ \n\n\t# c\r\n \t \nd\r"));
}

TEST_F(PropertiesLine, EachOneCounts) {
  std::istringstream stream("a\n\n \\\n\xC0\nb");
  kx::PropertiesLines lines("agent.properties", stream, problems_);
  std::string_view line;
  for (std::size_t expected = 1; expected <= 5; ++expected) {
    EXPECT_TRUE(lines.ReadPropertiesLine(line));
    EXPECT_EQ(expected, lines.LineNumber());
  }
  EXPECT_FALSE(lines.ReadPropertiesLine(line));
}

TEST_F(PropertiesLine, BehindTheEndThereIsNoneAgainAndAgain) {
  std::istringstream stream("a");
  kx::PropertiesLines lines("agent.properties", stream, problems_);
  std::string_view line;
  EXPECT_TRUE(lines.ReadPropertiesLine(line));
  EXPECT_FALSE(lines.ReadPropertiesLine(line));
  EXPECT_FALSE(lines.ReadPropertiesLine(line));
}

TEST_F(PropertiesLine, ThatIsNotUtf8IsEmptyAndReported) {
  EXPECT_EQ((Texts{"a", "", "c"}), Lines("a\n b\xC0 \nc\n"));
  EXPECT_EQ(Texts{"agent.properties:2 contains non-UTF-8 character(s). Skipped"},
            problems_.Lines());
}

TEST_F(PropertiesLine, LosesTheByteOrderMarkAsTheFirstOnly) {
  EXPECT_EQ((Texts{"a",
                   "\xEF\xBB\xBF"
                   "b"}),
            Lines("\xEF\xBB\xBF a\n\xEF\xBB\xBF"
                  "b\n"));
}

TEST_F(PropertiesLine, EndsItsTextAtANulByte) {
  EXPECT_EQ((Texts{"a", "", "c"}), Lines(std::string("a \0b\n\0b\nc", 9)));
}

TEST_F(PropertiesLine, OfAMegabyteIsWhole) {
  const std::string megabyte(kMegabyte, 'x');
  EXPECT_EQ((Texts{megabyte, "b"}), Lines(megabyte + "\nb\n"));
}

TEST_F(PropertiesLine, OfABrokenStreamIsNone) {
  std::istringstream stream("a=1\n");
  stream.setstate(std::ios::badbit);
  EXPECT_EQ(Texts{}, Lines(stream));
}

/// Hands out one text and then nothing more, whatever the file still holds.
class FailingBuffer final : public std::streambuf {
 public:
  explicit FailingBuffer(std::string text) : text_(std::move(text)) {
    setg(text_.data(), text_.data(), text_.data() + text_.size());
  }

 protected:
  int_type underflow() override { return traits_type::eof(); }

 private:
  std::string text_;
};

TEST_F(PropertiesLine, AtAReadErrorIsNone) {
  FailingBuffer buffer("a\n");
  std::istream stream(&buffer);
  EXPECT_EQ(Texts{"a"}, Lines(stream));
}

TEST(PropertiesStream, ReadErrorEndsTheFileAndKeepsWhatWasRead) {
  FailingBuffer buffer("a=1\nb=2\nc=3\\\n");
  std::istream stream(&buffer);
  kx::PropertyTable table;
  ProblemList problems;
  kx::ReadPropertiesStream("agent.properties", stream, table, problems);
  EXPECT_EQ((PropertyTexts{{"a", "1"}, {"b", "2"}, {"c", "3"}}), TextsOf(table));
  EXPECT_TRUE(problems.Lines().empty());
}

TEST(PropertiesStream, KeysAreSpelledAsTheyWereFirst) {
  std::istringstream stream("Title=x\nTITLE=y\n = z\n");
  kx::PropertyTable table;
  ProblemList problems;
  kx::ReadPropertiesStream("agent.properties", stream, table, problems);
  EXPECT_EQ((PropertyTexts{{"Title", "y"}, {"", "z"}}), TextsOf(table));
  for (const char* spelling : {"Title", "TITLE", "title", "tItLe"}) {
    EXPECT_STREQ("y", table.Find(spelling, table.Hash(spelling))) << spelling;
  }
  EXPECT_STREQ("z", table.Find("", table.Hash("")));
}

TEST(PropertiesStream, EarlierEntriesStayOrTakeTheNewText) {
  kx::PropertyTable table;
  ProblemList problems;
  std::istringstream first("Kept=1\nShared=2\n");
  kx::ReadPropertiesStream("one.properties", first, table, problems);
  std::istringstream second("SHARED=3\nNew=4\nx\n");
  kx::ReadPropertiesStream("two.properties", second, table, problems);
  EXPECT_EQ((PropertyTexts{{"Kept", "1"}, {"Shared", "3"}, {"New", "4"}}), TextsOf(table));
  EXPECT_EQ(std::vector<std::string>{"two.properties:3 does not contain '='. Skipped"},
            problems.Lines());
}

TEST(PropertiesStream, LongKeysTextsAndContinuationsAreWhole) {
  const std::string key(kMegabyte, 'k');
  const std::string text(kMegabyte, 't');
  const PropertiesReading read =
      ReadProperties(key + "=" + text + "\nb = \\\n" + text + "\\\n " + text + " \nc=1\n" +
                     std::string(kMegabyte, '#') + "\n" + std::string(kMegabyte, ' ') + "\n");
  EXPECT_EQ((PropertyTexts{{key, text}, {"b", text + text}, {"c", "1"}}), read.texts);
  EXPECT_TRUE(read.problems.empty());
}

TEST(PropertiesStream, LongLinesAreCheckedToTheirEnd) {
  const std::string text(kMegabyte, 't');
  const PropertiesReading read = ReadProperties("a=" + text + "\xC0\n" + text + "\nb=1\n");
  EXPECT_EQ((PropertyTexts{{"b", "1"}}), read.texts);
  EXPECT_EQ((std::vector<std::string>{NotUtf8(1), NoEqualsSign(2)}), read.problems);
}

TEST(PropertiesStream, ManyContinuationLinesMakeOneText) {
  std::string bytes = "a=";
  std::string text;
  for (int i = 0; i < 100000; ++i) {
    bytes += "x\\\n";
    text += "x";
  }
  const PropertiesReading read = ReadProperties(bytes + "\nb\n");
  EXPECT_EQ((PropertyTexts{{"a", text}}), read.texts);
  EXPECT_EQ(std::vector<std::string>{NoEqualsSign(100002)}, read.problems);
}

TEST(PropertiesStream, ManyKeysAreAllRead) {
  std::string bytes;
  PropertyTexts texts;
  for (int i = 0; i < 20000; ++i) {
    const std::string number = std::to_string(i);
    bytes += "Key" + number + " = text " + number + "\n";
    texts["Key" + number] = "text " + number;
  }
  EXPECT_EQ(texts, ReadProperties(bytes).texts);
}

TEST(PropertiesStream, FileNameIsToldAsItIs) {
  std::istringstream stream("x\n\xC0\n");
  kx::PropertyTable table;
  ProblemList problems;
  kx::ReadPropertiesStream("C:/r\xC3\xA9s/100%s %n.properties", stream, table, problems);
  EXPECT_EQ((std::vector<std::string>{
                "C:/r\xC3\xA9s/100%s %n.properties:1 does not contain '='. Skipped",
                "C:/r\xC3\xA9s/100%s %n.properties:2 contains non-UTF-8 character(s). Skipped"}),
            problems.Lines());
}

}  // namespace
