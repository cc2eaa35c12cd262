// Reading by file name, with the problems on standard error.

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "bundles/properties_reader.h"
#include "bundles/properties_rows.h"
#include "support/special_files.h"
#include "support/temp_tree.h"

namespace {

class PropertiesFile : public testing::Test {
 protected:
  bool Read(const char* path) {
    testing::internal::CaptureStderr();
    testing::internal::CaptureStdout();
    const bool result = kx::ReadPropertiesFile(path, table_);
    output_ = testing::internal::GetCapturedStdout();
    errors_ = testing::internal::GetCapturedStderr();
    return result;
  }

  void ExpectCannotOpen(const std::string& path) {
    EXPECT_FALSE(Read(path.c_str()));
    EXPECT_EQ(0U, table_.Size());
    EXPECT_EQ("cannot open file: " + path + "\n", errors_);
    EXPECT_EQ("", output_);
  }

  TempTree tree_;
  kx::PropertyTable table_;
  std::string output_;
  std::string errors_;
};

TEST_F(PropertiesFile, IsReadWithoutAWord) {
  tree_.Write("agent.properties", "\xEF\xBB\xBFHello=Bonjour\r\n# comment\r\nBye=Au revoir\r\n");
  EXPECT_TRUE(Read(tree_.Path("agent.properties").c_str()));
  EXPECT_EQ((PropertyTexts{{"Hello", "Bonjour"}, {"Bye", "Au revoir"}}), TextsOf(table_));
  EXPECT_EQ("", errors_);
  EXPECT_EQ("", output_);
}

TEST_F(PropertiesFile, ThatIsEmptyIsRead) {
  tree_.Write("agent.properties", "");
  EXPECT_TRUE(Read(tree_.Path("agent.properties").c_str()));
  EXPECT_EQ(0U, table_.Size());
  EXPECT_EQ("", errors_);
}

TEST_F(PropertiesFile, WithSkippedLinesIsReadAndReported) {
  tree_.Write("agent.properties", "a=1\nnonsense\n\xC0\nb=2\n");
  const std::string path = tree_.Path("agent.properties");
  EXPECT_TRUE(Read(path.c_str()));
  EXPECT_EQ((PropertyTexts{{"a", "1"}, {"b", "2"}}), TextsOf(table_));
  EXPECT_EQ(path + ":2 does not contain '='. Skipped\n" + path +
                ":3 contains non-UTF-8 character(s). Skipped\n",
            errors_);
  EXPECT_EQ("", output_);
}

TEST_F(PropertiesFile, WithoutAnyUsableLineIsReadAllTheSame) {
  tree_.Write("agent.properties", "x\n");
  const std::string path = tree_.Path("agent.properties");
  EXPECT_TRUE(Read(path.c_str()));
  EXPECT_EQ(0U, table_.Size());
  EXPECT_EQ(path + ":1 does not contain '='. Skipped\n", errors_);
}

TEST_F(PropertiesFile, LaterTextsReplaceEarlierOnes) {
  tree_.Write("agent.properties", "Title=x\nTITLE=y\n");
  EXPECT_TRUE(Read(tree_.Path("agent.properties").c_str()));
  EXPECT_EQ((PropertyTexts{{"Title", "y"}}), TextsOf(table_));
}

TEST_F(PropertiesFile, NameIsUtf8) {
  const std::string name = "r\xC3\xA9s/\xE4\xBD\xA0 100%s.properties";
  tree_.Write(name, "a=1\nx\n");
  EXPECT_TRUE(Read(tree_.Path(name).c_str()));
  EXPECT_EQ((PropertyTexts{{"a", "1"}}), TextsOf(table_));
  EXPECT_EQ(tree_.Path(name) + ":2 does not contain '='. Skipped\n", errors_);
}

TEST_F(PropertiesFile, LargeOneIsReadWhole) {
  const std::string megabyte(std::size_t{1} << 20, 'x');
  tree_.Write("agent.properties", "a=" + megabyte + "\nb=\\\n" + megabyte + "\\\n" + megabyte);
  EXPECT_TRUE(Read(tree_.Path("agent.properties").c_str()));
  EXPECT_EQ((PropertyTexts{{"a", megabyte}, {"b", megabyte + megabyte}}), TextsOf(table_));
  EXPECT_EQ("", errors_);
}

TEST_F(PropertiesFile, OfEveryLengthAroundABlockIsReadWhole) {
  for (const std::size_t block : {512U, 4096U, 8192U, 16384U, 32768U, 65536U}) {
    for (std::size_t size = block - 3; size <= block + 3; ++size) {
      tree_.Write("agent.properties", "a=" + std::string(size - 4, 'x') + "\nb");
      kx::PropertyTable table;
      testing::internal::CaptureStderr();
      EXPECT_TRUE(kx::ReadPropertiesFile(tree_.Path("agent.properties").c_str(), table));
      EXPECT_EQ(tree_.Path("agent.properties") + ":2 does not contain '='. Skipped\n",
                testing::internal::GetCapturedStderr())
          << size;
      EXPECT_EQ(size - 4, TextsOf(table)["a"].size()) << size;
    }
  }
}

TEST_F(PropertiesFile, EarlierEntriesStay) {
  tree_.Write("one.properties", "Kept=1\nShared=2\n");
  tree_.Write("two.properties", "SHARED=3\n");
  EXPECT_TRUE(Read(tree_.Path("one.properties").c_str()));
  EXPECT_TRUE(Read(tree_.Path("two.properties").c_str()));
  EXPECT_EQ((PropertyTexts{{"Kept", "1"}, {"Shared", "3"}}), TextsOf(table_));
}

TEST_F(PropertiesFile, NameOfNullIsRefusedWithoutAWord) {
  EXPECT_FALSE(Read(nullptr));
  EXPECT_EQ(0U, table_.Size());
  EXPECT_EQ("", errors_);
}

TEST_F(PropertiesFile, ThatIsMissingIsReported) { ExpectCannotOpen(tree_.Path("no.properties")); }

TEST_F(PropertiesFile, InAMissingDirectoryIsReported) {
  ExpectCannotOpen(tree_.Path("no/agent.properties"));
}

TEST_F(PropertiesFile, EmptyNameIsReported) { ExpectCannotOpen(""); }

TEST_F(PropertiesFile, NameWithFormatCharactersIsReportedAsItIs) {
  ExpectCannotOpen(tree_.Path("%s%n %d\xC3\xA9.properties"));
}

TEST_F(PropertiesFile, DirectoryCannotBeOpened) {
  tree_.MakeDirectory("agent.properties");
  ExpectCannotOpen(tree_.Path("agent.properties"));
}

TEST_F(PropertiesFile, PipeCannotBeOpenedAndIsNotWaitedFor) {
  MakeNamedPipe(tree_.Path("agent.properties"));
  ExpectCannotOpen(tree_.Path("agent.properties"));
}

TEST_F(PropertiesFile, LinkIsFollowed) {
  tree_.Write("elsewhere/texts", "a=1\n");
  std::filesystem::create_symlink(PathFromUtf8(tree_.Path("elsewhere/texts")),
                                  PathFromUtf8(tree_.Path("agent.properties")));
  EXPECT_TRUE(Read(tree_.Path("agent.properties").c_str()));
  EXPECT_EQ((PropertyTexts{{"a", "1"}}), TextsOf(table_));
}

TEST_F(PropertiesFile, LinkToNothingIsReported) {
  std::filesystem::create_symlink(PathFromUtf8(tree_.Path("gone")),
                                  PathFromUtf8(tree_.Path("agent.properties")));
  ExpectCannotOpen(tree_.Path("agent.properties"));
}

TEST_F(PropertiesFile, CannotBeOpenedLeavesEarlierEntries) {
  tree_.Write("agent.properties", "a=1\n");
  EXPECT_TRUE(Read(tree_.Path("agent.properties").c_str()));
  EXPECT_FALSE(Read(tree_.Path("no.properties").c_str()));
  EXPECT_EQ((PropertyTexts{{"a", "1"}}), TextsOf(table_));
}

}  // namespace
