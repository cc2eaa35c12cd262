// Long lines, long files, several files, and streams that fail.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <istream>
#include <sstream>
#include <stdexcept>
#include <streambuf>
#include <string>
#include <utility>
#include <vector>

#include "lang/lang_file_cases.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

constexpr std::size_t kLongestLine = 4095;
const std::string kHeader = "Name F\n\n";

/// A line of `size` bytes that begins with `text`.
std::string Line(const std::string& text, std::size_t size) {
  return text + std::string(size - text.size(), 'x');
}

/// What a line holds behind the first `skipped` bytes.
std::string Rest(const std::string& line, std::size_t skipped) { return line.substr(skipped); }

class LangFileLongLine : public testing::Test {
 protected:
  void Read(const std::string& body) { reading_.Read(kHeader + body); }
  const char* Text(const char* key) { return reading_.contents.texts.Find(key); }
  const std::vector<std::string>& Problems() const { return reading_.problems.Lines(); }

  LangReading reading_;
  const std::string longest_ = Line("Value ", kLongestLine);
  const std::string tooLong_ = Line("Value ", kLongestLine + 1);
};

TEST_F(LangFileLongLine, OfTheGreatestLengthIsTakenWhole) {
  Read("Key a\n" + longest_ + "\nKey b\nValue y\n");
  EXPECT_EQ(Rest(longest_, 6), Text("a"));
  EXPECT_STREQ("y", Text("b"));
  EXPECT_THAT(Problems(), IsEmpty());
}

TEST_F(LangFileLongLine, OfTheGreatestLengthNeedsNoLineEnd) {
  Read("Key a\n" + longest_);
  EXPECT_EQ(Rest(longest_, 6), Text("a"));
  EXPECT_THAT(Problems(), IsEmpty());
}

TEST_F(LangFileLongLine, OfTheGreatestLengthIsShownWhole) {
  const std::string junk = Line("junk ", kLongestLine);
  Read(junk + "\nKey a\n" + junk);
  EXPECT_THAT(Problems(),
              ElementsAre(Unrecognized(3, junk), Unrecognized(5, junk), NoValue(5, junk)));
}

TEST_F(LangFileLongLine, CountsACarriageReturn) {
  Read("Key a\n" + Line("Value ", kLongestLine - 1) + "\r\nKey b\r\n" + longest_ + "\r\n");
  EXPECT_EQ(Rest(Line("Value ", kLongestLine - 1), 6), Text("a"));
  EXPECT_EQ(nullptr, Text("b"));
}

TEST_F(LangFileLongLine, CountsTrailingBlanks) {
  Read("Key a\nValue x" + std::string(kLongestLine - 7, ' ') + "\nKey b\nValue y" +
       std::string(kLongestLine - 6, ' ') + "\nKey c\nValue z\n");
  EXPECT_STREQ("x", Text("a"));
  EXPECT_EQ(nullptr, Text("b"));
  EXPECT_EQ(nullptr, Text("c"));
}

TEST_F(LangFileLongLine, CountsWhatIsBehindANul) {
  const std::string nul(1, '\0');
  Read("Key a\n" + Line("Value x" + nul, kLongestLine) + "\nKey b\n" +
       Line("Value y" + nul, kLongestLine + 1) + "\nKey c\nValue z\n");
  EXPECT_STREQ("x", Text("a"));
  EXPECT_EQ(nullptr, Text("b"));
  EXPECT_EQ(nullptr, Text("c"));
}

TEST_F(LangFileLongLine, LeavesNothingForShorterLinesBehindIt) {
  Read("Key a\n" + longest_ + "\nKey b\nValue y\njunk\n\nKey c");
  EXPECT_STREQ("y", Text("b"));
  EXPECT_THAT(Problems(), ElementsAre(Unrecognized(7, "junk"), NoValue(9, "Key c")));
}

TEST_F(LangFileLongLine, LongerTextIsMadeByContinuations) {
  const std::string more = Line("&", kLongestLine);
  Read("Key a\n" + longest_ + "\n" + more + "\n" + more + "\n");
  EXPECT_EQ(Rest(longest_, 6) + Rest(more, 1) + Rest(more, 1), Text("a"));
  EXPECT_THAT(Problems(), IsEmpty());
}

TEST_F(LangFileLongLine, LongKeysAreMadeByContinuations) {
  const std::string more = Line("&", kLongestLine);
  Read(Line("Key ", kLongestLine) + "\n" + more + "\nValue v\n");
  const std::string key = Rest(Line("Key ", kLongestLine), 4) + Rest(more, 1);
  EXPECT_STREQ("v", Text(key.c_str()));
  EXPECT_THAT(Problems(), IsEmpty());
}

TEST_F(LangFileLongLine, ThatIsTooLongEndsTheFileAfterWhatWasComplete) {
  for (const char* const lineEnd : {"\n", ""}) {
    LangReading reading;
    reading.Read(kHeader + "Key a\nValue x\n" + Line("&more", kLongestLine + 1) + lineEnd +
                 (*lineEnd == '\0' ? "" : "Key b\nValue y\njunk\n"));
    ExpectStoredAndReported(reading, "Key a Key b", {"name = F", "text a = x"}, {});
  }
}

TEST_F(LangFileLongLine, ThatIsTooLongLeavesAKeyWithoutItsValue) {
  Read("Key a\nValue x\nKey b\n" + tooLong_ + "\nValue y\n");
  EXPECT_STREQ("x", Text("a"));
  EXPECT_EQ(nullptr, Text("b"));
  EXPECT_THAT(Problems(), ElementsAre(StartsWith(
                              "Two KEY clauses without intervening VALUE in FR/agent.lang at line "
                              "#6: ")));
}

TEST_F(LangFileLongLine, MuchTooLongEndsTheFileToo) {
  for (const std::size_t size : {kLongestLine + 2, 2 * kLongestLine, 2 * kLongestLine + 1,
                                 2 * kLongestLine + 2, 100 * kLongestLine}) {
    SCOPED_TRACE(size);
    LangReading reading;
    reading.Read(kHeader + "Key a\nValue x\n" + Line("; c", size) + "\nKey b\nValue y\n");
    ExpectStoredAndReported(reading, "Key a Key b", {"name = F", "text a = x"}, {});
  }
}

TEST_F(LangFileLongLine, TooLongToBeBlankEndsTheFile) {
  Read(std::string(kLongestLine, ' ') + "\nKey a\nValue x\n" + std::string(kLongestLine + 1, ' ') +
       "\nKey b\nValue y\n");
  EXPECT_STREQ("x", Text("a"));
  EXPECT_EQ(nullptr, Text("b"));
  EXPECT_THAT(Problems(), IsEmpty());
}

TEST_F(LangFileLongLine, TooLongInAHeaderEndsTheFile) {
  LangReading reading;
  reading.Read(Line("Name ", kLongestLine) + "\nDebug\n" + Line("Name y", kLongestLine + 1) +
               "\nDirection RTL\n\nKey a\nValue x\n");
  ExpectStoredAndReported(reading, "Key a",
                          {"name = " + Rest(Line("Name ", kLongestLine), 5), "debug"}, {});
}

TEST_F(LangFileLongLine, TooLongInOneFileDoesNotConcernTheNext) {
  Read("Key a\nValue x\n" + tooLong_ + "\nKey b\nValue x\n");
  Read("Key c\nValue z\n");
  EXPECT_STREQ("x", Text("a"));
  EXPECT_EQ(nullptr, Text("b"));
  EXPECT_STREQ("z", Text("c"));
}

// ---------------------------------------------------------------------------------------------

TEST(LangFile, LinesAreCountedFromOneInDecimal) {
  LangReading reading;
  reading.Read("junk\n" + std::string(69998, '\n') + "junk\nName F\n\njunk\n");
  EXPECT_THAT(reading.problems.Lines(),
              ElementsAre(Illegal(1, "junk"), Illegal(70000, "junk"), Unrecognized(70003, "junk")));
}

TEST(LangFile, ManyPairsAreAllStored) {
  std::string bytes = kHeader;
  for (int i = 0; i < 3000; ++i) {
    bytes += "Key k" + std::to_string(i) + "\nValue v" + std::to_string(i % 7) + "\n";
  }
  LangReading reading;
  reading.Read(bytes);
  for (int i = 0; i < 3000; ++i) {
    const char* const value = reading.contents.texts.Find("K" + std::to_string(i));
    ASSERT_STREQ(("v" + std::to_string(i % 7)).c_str(), value) << i;
  }
  EXPECT_THAT(reading.problems.Lines(), IsEmpty());
}

TEST(LangFile, ProblemsNameTheFileAsItWasGiven) {
  LangReading reading;
  reading.Read("Charset A\nCharset B\njunk\n\n& c\nVal\njunk\nKey a\nKey b\nValue x",
               "FR-CA/(Common).lang");
  EXPECT_THAT(
      reading.problems.Lines(),
      ElementsAre(
          "FR-CA/(Common).lang contains a differing value for CHARSET from default language",
          "Illegal Header Directive in FR-CA/(Common).lang at line #3: junk",
          "Unrecognized continuation text in FR-CA/(Common).lang at line #5: & c",
          "VALUE found without a KEY in FR-CA/(Common).lang at line #6: Val",
          "Unrecognized text in FR-CA/(Common).lang at line #7: junk",
          "Two KEY clauses without intervening VALUE in FR-CA/(Common).lang at line #9: Key b"));
}

TEST(LangFile, EachHasAHeaderAndLineNumbersOfItsOwn) {
  LangReading reading;
  reading.Read("Name F\n\nKey a\nValue x\n");
  const std::string second = "Key a\nName G\n\nKey a\nValue y\njunk\n";
  reading.Read(second);
  ExpectStoredAndReported(reading, second, {"name = G", "text a = y"},
                          {Illegal(1, "Key a"), Unrecognized(6, "junk")});
}

TEST(LangFile, AKeyOfOneTakesNoValueOfTheNext) {
  LangReading reading;
  reading.Read("Name F\n\nKey a\n");
  const std::string second = "Name F\n\nValue x\n& y\n";
  reading.Read(second);
  ExpectStoredAndReported(reading, "Key a " + second, {"name = F"},
                          {NoValue(4, ""), NoKey(3, "Value x"), StrayContinuation(4, "& y")});
}

TEST(LangFile, TheOneReadLaterWinsAndLeavesTheRest) {
  LangReading reading;
  reading.Read(
      "Name F\nImages /i\nPrompt Suffix :\nDirection LTR\nDirectory d /d\nDirectory e /e\n\n"
      "Key a\nValue x\nKey b\nValue x\nButton c\nLabel x\nButton d\nLabel x\n",
      "FR/(Common).lang");
  const std::string second =
      "Direction RTL\nDirectory D /new\nDebug\n\nKey A\nValue y\nKey e\nVal\nButton C\nLabel y\n";
  reading.Read(second);
  ExpectStoredAndReported(
      reading, second,
      {"name = F", "images = /i", "direction = RTL", "prompt = :", "debug", "directory d = /new",
       "directory e = /e", "text a = y", "text b = x", "text e = ", "label c = y", "label d = x"},
      {});
}

TEST(LangFile, EqualValuesHaveOneCopy) {
  LangReading reading;
  reading.Read(
      "Name same\nImages same\nPrompt Suffix same\nDirectory d same\nDirectory e\n\n"
      "Key a\nValue sa\n&me\nButton b\nLabel same\nKey c\nVal\n");
  const char* const same = reading.contents.longName;
  EXPECT_EQ(same, reading.contents.imageDirectory);
  EXPECT_EQ(same, reading.contents.promptSuffix);
  EXPECT_EQ(same, reading.contents.directories.Find("d"));
  EXPECT_EQ(same, reading.contents.texts.Find("a"));
  EXPECT_EQ(same, reading.contents.labels.Find("b"));
  EXPECT_EQ(reading.contents.directories.Find("e"), reading.contents.texts.Find("c"));
}

TEST(LangFile, ReadAgainSharesItsValuesWithTheFirstTime) {
  kx::InternTable strings;
  ProblemList problems;
  kx::LanguageContents contents[2];
  for (kx::LanguageContents& each : contents) {
    std::istringstream stream("Name F\n\nKey a\nValue x\n");
    kx::LangFileParser parser(kAgentFile, problems, strings);
    kx::ReadLangFile(parser, stream, each);
  }
  ASSERT_NE(nullptr, contents[0].longName);
  EXPECT_EQ(contents[0].longName, contents[1].longName);
  ASSERT_NE(nullptr, contents[0].texts.Find("a"));
  EXPECT_EQ(contents[0].texts.Find("a"), contents[1].texts.Find("a"));
}

// ---------------------------------------------------------------------------------------------

TEST(LangFileStream, ThatHasAlreadyFailedIsAnEmptyFile) {
  LangReading reading;
  std::istringstream stream("Name F\n");
  stream.setstate(std::ios::failbit);
  reading.ReadStream(stream);
  ExpectStoredAndReported(reading, "", {}, {});
}

/// Has some bytes, and then the disk breaks.
class BreakingBuffer final : public std::streambuf {
 public:
  explicit BreakingBuffer(std::string bytes) : bytes_(std::move(bytes)) {
    setg(bytes_.data(), bytes_.data(), bytes_.data() + bytes_.size());
  }

 protected:
  int_type underflow() override { throw std::runtime_error("the disk broke"); }

 private:
  std::string bytes_;
};

TEST(LangFileStream, ThatBreaksEndsTheFileAfterWhatWasComplete) {
  BreakingBuffer buffer("Name F\n\nKey a\nValue x\n");
  std::istream stream(&buffer);
  LangReading reading;
  reading.ReadStream(stream);
  ExpectStoredAndReported(reading, "Key a", {"name = F", "text a = x"}, {});
}

}  // namespace
