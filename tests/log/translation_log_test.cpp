#include "log/translation_log.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "support/lasting_log.h"
#include "support/temp_tree.h"

namespace {

/// Goes to a directory and comes back at the end.
class WorkingDirectory {
 public:
  explicit WorkingDirectory(const std::string& path) : before_(std::filesystem::current_path()) {
    std::filesystem::current_path(PathFromUtf8(path));
  }
  ~WorkingDirectory() { std::filesystem::current_path(before_); }
  WorkingDirectory(const WorkingDirectory&) = delete;
  WorkingDirectory& operator=(const WorkingDirectory&) = delete;

 private:
  std::filesystem::path before_;
};

struct PlaceCase {
  const char* name;
  std::vector<std::string> directories;
  std::map<std::string, std::string> files;
  std::string root;  // as given to the log, behind the path of the tree
  std::string log;   // where the line lands; empty: on standard output
  std::vector<std::string> untouched = {};
};

class LogPlace : public testing::TestWithParam<PlaceCase> {
 protected:
  LogPlace() {
    for (const std::string& directory : GetParam().directories) tree_.MakeDirectory(directory);
    for (const auto& [path, bytes] : GetParam().files) tree_.Write(path, bytes);
  }

  TempTree tree_;
};

TEST_P(LogPlace, FollowsFromTheRoot) {
  const PlaceCase& c = GetParam();
  kx::TranslationLog& log = LastingLog();
  testing::internal::CaptureStdout();
  log.WriteLine(tree_.Path() + c.root, {"a line"});
  const std::string output = testing::internal::GetCapturedStdout();

  EXPECT_EQ(c.log.empty() ? "a line\n" : "", output);
  if (!c.log.empty()) {
    const auto before = c.files.find(c.log);
    EXPECT_EQ((before == c.files.end() ? "" : before->second) + "a line\n", tree_.Read(c.log));
  }
  for (const std::string& path : c.untouched) EXPECT_FALSE(tree_.Exists(path)) << path;
  for (const auto& [path, bytes] : c.files) {
    if (path == c.log) continue;
    EXPECT_EQ(bytes, tree_.Read(path)) << path;
  }
}

const PlaceCase kLogDirectoryCases[] = {
    {"DirectoryIsMade", {"r"}, {}, "/r", "r/log/translate.log", {"r/translate.log"}},
    {"SlashAtTheEnd", {"r"}, {}, "/r/", "r/log/translate.log"},
    {"BackslashAtTheEnd", {"r"}, {}, "/r\\", "r/log/translate.log", {"r\\"}},
    {"OnlyOneBackslashIsDropped", {"r", "r\\"}, {}, "/r\\\\", "r\\/log/translate.log"},
    {"OnlyTheLastOfMixedIsDropped", {"r", "r\\"}, {}, "/r\\/", "r\\/log/translate.log"},
    {"TwoSlashes", {"r"}, {}, "/r//", "r/log/translate.log"},
    {"Utf8Root",
     {"d\xC3\xA9p\xC3\xB4t"},
     {},
     "/d\xC3\xA9p\xC3\xB4t",
     "d\xC3\xA9p\xC3\xB4t/log/translate.log"},
    {"ExistingDirectoryIsUsed", {}, {{"r/log/other", "x"}}, "/r", "r/log/translate.log"},
    {"ExistingLogIsContinued", {}, {{"r/log/translate.log", "old\n"}}, "/r", "r/log/translate.log"},
    {"NoLineEndIsAddedToOldContent",
     {},
     {{"r/log/translate.log", "old"}},
     "/r",
     "r/log/translate.log"},
    {"LogInTheRootIsNotLookedAt", {}, {{"r/translate.log", "old\n"}}, "/r", "r/log/translate.log"},
};

const PlaceCase kBlockedDirectoryCases[] = {
    {"FileNamedLog", {}, {{"r/log", "x"}}, "/r", "r/translate.log"},
    {"FileNamedLogAndSlashAtTheEnd", {}, {{"r/log", "x"}}, "/r/", "r/translate.log"},
    {"FileNamedLogAndExistingLog",
     {},
     {{"r/log", "x"}, {"r/translate.log", "old\n"}},
     "/r",
     "r/translate.log"},
    // In the root itself the root is used as given, with its separator.
    {"FileNamedLogAndBackslashAtTheEnd", {"r\\"}, {{"r/log", "x"}}, "/r\\", "r\\/translate.log"},
};

const PlaceCase kStandardOutputCases[] = {
    {"RootIsMissing", {}, {}, "/r", "", {"r"}},
    {"ParentOfTheRootIsMissing", {}, {}, "/p/r/", "", {"p"}},
    {"RootIsAFile", {}, {{"r", "x"}}, "/r", ""},
    {"NeitherPlaceCanBeOpened", {"r/translate.log"}, {{"r/log", "x"}}, "/r", ""},
    {"RootIsNoSecondChoiceForTheDirectory",
     {"r/log/translate.log"},
     {},
     "/r",
     "",
     {"r/translate.log"}},
};

const auto kCaseName = [](const auto& row) { return std::string(row.param.name); };

INSTANTIATE_TEST_SUITE_P(Directory, LogPlace, testing::ValuesIn(kLogDirectoryCases), kCaseName);
INSTANTIATE_TEST_SUITE_P(Root, LogPlace, testing::ValuesIn(kBlockedDirectoryCases), kCaseName);
INSTANTIATE_TEST_SUITE_P(Output, LogPlace, testing::ValuesIn(kStandardOutputCases), kCaseName);

TEST(TranslationLog, EmptyRootIsTheWorkingDirectory) {
  const TempTree tree;
  const WorkingDirectory inside(tree.Path());
  kx::TranslationLog& log = LastingLog();
  log.WriteLine("", {"a line"});
  EXPECT_EQ("a line\n", tree.Read("log/translate.log"));
}

TEST(TranslationLog, EmptyRootFallsBackToTheWorkingDirectoryItself) {
  const TempTree tree;
  tree.Write("log", "x");
  const WorkingDirectory inside(tree.Path());
  kx::TranslationLog& log = LastingLog();
  log.WriteLine("", {"a line"});
  EXPECT_EQ("a line\n", tree.Read("translate.log"));
}

TEST(TranslationLog, RelativeRootLiesInTheWorkingDirectory) {
  const TempTree tree;
  tree.MakeDirectory("r");
  const WorkingDirectory inside(tree.Path());
  kx::TranslationLog& log = LastingLog();
  log.WriteLine("r", {"a line"});
  EXPECT_EQ("a line\n", tree.Read("r/log/translate.log"));
}

TEST(TranslationLog, StaysWhenTheWorkingDirectoryChanges) {
  const TempTree first;
  const TempTree second;
  kx::TranslationLog& log = LastingLog();
  {
    const WorkingDirectory inside(first.Path());
    log.WriteLine(".", {"first"});
  }
  const WorkingDirectory inside(second.Path());
  log.WriteLine(".", {"second"});
  EXPECT_EQ("first\nsecond\n", first.Read("log/translate.log"));
  EXPECT_FALSE(second.Exists("log"));
}

TEST(TranslationLog, IsNotMadeBeforeTheFirstLine) {
  const TempTree tree;
  const WorkingDirectory inside(tree.Path());
  kx::TranslationLog& log = LastingLog();
  EXPECT_FALSE(tree.Exists("log"));
  EXPECT_FALSE(tree.Exists("translate.log"));
  log.WriteLine("", {"a line"});
  EXPECT_TRUE(tree.Exists("log"));
}

TEST(TranslationLog, FirstWriterDecidesForAllRoots) {
  const TempTree first;
  const TempTree second;
  kx::TranslationLog& log = LastingLog();
  log.WriteLine(first.Path(), {"first"});
  log.WriteLine(second.Path(), {"second"});
  log.WriteLine("", {"third"});
  EXPECT_EQ("first\nsecond\nthird\n", first.Read("log/translate.log"));
  EXPECT_FALSE(second.Exists("log"));
}

TEST(TranslationLog, StandardOutputToo) {
  const TempTree tree;
  kx::TranslationLog& log = LastingLog();
  testing::internal::CaptureStdout();
  log.WriteLine(tree.Path("missing"), {"first"});
  tree.MakeDirectory("missing");
  log.WriteLine(tree.Path("missing"), {"second"});
  log.WriteLine(tree.Path(), {"third"});
  EXPECT_EQ("first\nsecond\nthird\n", testing::internal::GetCapturedStdout());
  EXPECT_FALSE(tree.Exists("log"));
  EXPECT_FALSE(tree.Exists("missing/log"));
}

TEST(TranslationLog, EachObjectHasItsOwnPlace) {
  const TempTree tree;
  tree.MakeDirectory("one");
  tree.MakeDirectory("two");
  kx::TranslationLog& one = LastingLog();
  kx::TranslationLog& two = LastingLog();
  one.WriteLine(tree.Path("one"), {"first"});
  two.WriteLine(tree.Path("two"), {"second"});
  EXPECT_EQ("first\n", tree.Read("one/log/translate.log"));
  EXPECT_EQ("second\n", tree.Read("two/log/translate.log"));
}

TEST(TranslationLog, TwoObjectsOnOneFileDoNotOverwriteEachOther) {
  const TempTree tree;
  kx::TranslationLog& one = LastingLog();
  kx::TranslationLog& two = LastingLog();
  one.WriteLine(tree.Path(), {"first"});
  two.WriteLine(tree.Path(), {"second"});
  one.WriteLine(tree.Path(), {"third"});
  EXPECT_EQ("first\nsecond\nthird\n", tree.Read("log/translate.log"));
}

TEST(TranslationLog, EachLineIsInTheFileAtOnce) {
  const TempTree tree;
  kx::TranslationLog& log = LastingLog();
  log.WriteLine(tree.Path(), {"first"});
  EXPECT_EQ("first\n", tree.Read("log/translate.log"));
  log.WriteLine(tree.Path(), {"second"});
  EXPECT_EQ("first\nsecond\n", tree.Read("log/translate.log"));
}

struct LineCase {
  const char* name;
  std::vector<std::string_view> pieces;  // two of them
  std::string written;
};

class LogLine : public testing::TestWithParam<LineCase> {};

TEST_P(LogLine, IsOneLine) {
  const LineCase& c = GetParam();
  const TempTree tree;
  kx::TranslationLog& log = LastingLog();
  log.WriteLine(tree.Path(), {c.pieces[0], c.pieces[1]});
  log.WriteLine(tree.Path(), {"next"});
  EXPECT_EQ(c.written + "\nnext\n", tree.Read("log/translate.log"));
}

using namespace std::string_view_literals;
using namespace std::string_literals;

const LineCase kLineCases[] = {
    {"NothingStandsBetweenThePieces",
     {"agent.lang", " key not found: "},
     "agent.lang key not found: "},
    {"BlanksAtBothEndsStay", {"  a", "b\t "}, "  ab\t "},
    {"EmptyPieces", {"", ""}, ""},
    {"LineFeed", {"a\nb", "\n"}, "a\\nb\\n"},
    {"CarriageReturn", {"a\rb", "\r"}, "a\\rb\\r"},
    {"BothInARow", {"a\r\n", "\r\nb"}, "a\\r\\n\\r\\nb"},
    {"BackslashesAreNotDoubled", {"C:\\new\\r", "\\"}, "C:\\new\\r\\"},
    {"PercentSignsAreNoFormat", {"100%n", "%s%%"}, "100%n%s%%"},
    {"OtherControlCharactersStay", {"\x01\t\x0B", "\x0C\x1B\x7F"}, "\x01\t\x0B\x0C\x1B\x7F"},
    {"BytesAboveAsciiStay", {"\xC3\xA9", "\xFF\x85"}, "\xC3\xA9\xFF\x85"},
    {"NulIsAByteAsAnyOther", {"a\0b"sv, "c"}, "a\0bc"s},
};

INSTANTIATE_TEST_SUITE_P(Log, LogLine, testing::ValuesIn(kLineCases), kCaseName);

TEST(TranslationLog, ALineWithoutPiecesIsEmpty) {
  const TempTree tree;
  kx::TranslationLog& log = LastingLog();
  log.WriteLine(tree.Path(), {});
  EXPECT_EQ("\n", tree.Read("log/translate.log"));
}

TEST(TranslationLog, ALongLineIsWrittenWhole) {
  const TempTree tree;
  const std::string piece(300000, 'x');
  kx::TranslationLog& log = LastingLog();
  log.WriteLine(tree.Path(), {piece, "\n", piece});
  EXPECT_TRUE(piece + "\\n" + piece + "\n" == tree.Read("log/translate.log"));
}

TEST(TranslationLog, LineEndsAreShownOnStandardOutputToo) {
  const TempTree tree;
  kx::TranslationLog& log = LastingLog();
  testing::internal::CaptureStdout();
  log.WriteLine(tree.Path("missing"), {"a\n", "\rb%s"});
  EXPECT_EQ("a\\n\\rb%s\n", testing::internal::GetCapturedStdout());
}

}  // namespace
