#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <initializer_list>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/directories.h"
#include "platform/entry_list.h"
#include "platform/file_status.h"
#include "support/temp_tree.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr unsigned kAnyAccess = 0777;

class FileStatus : public testing::Test {
 protected:
  FileStatus() {
    tree_.Write("file", "x");
    tree_.MakeDirectory("directory");
  }

  int Status(const std::string& relative) { return KxStat(tree_.Path(relative).c_str(), &status_); }
  bool SaysDirectory() const { return (status_.mode & kKxModeDirectory) != 0; }
  bool IsDirectory(const std::string& relative) const {
    return KxIsDirectory(tree_.Path(relative).c_str());
  }

  TempTree tree_;
  KxFileStatus status_;
};

TEST_F(FileStatus, OfADirectoryCarriesTheDirectoryBit) {
  EXPECT_EQ(0, Status("directory"));
  EXPECT_TRUE(SaysDirectory());
  EXPECT_TRUE(IsDirectory("directory"));
}

TEST_F(FileStatus, OfAFileDoesNot) {
  EXPECT_EQ(0, Status("file"));
  EXPECT_FALSE(SaysDirectory());
  EXPECT_FALSE(IsDirectory("file"));
}

TEST_F(FileStatus, FailsForWhatIsMissingAndLeavesTheRecord) {
  status_.modified = 54321;
  status_.mode = 0x12345;
  EXPECT_NE(0, Status("missing"));
  EXPECT_NE(0, Status("missing/file"));
  EXPECT_NE(0, Status("file/inside"));
  EXPECT_NE(0, KxStat("", &status_));
  EXPECT_EQ(54321, status_.modified);
  EXPECT_EQ(0x12345u, status_.mode);
  EXPECT_FALSE(IsDirectory("missing"));
  EXPECT_FALSE(KxIsDirectory(""));
}

TEST_F(FileStatus, TellsTheTimeOfTheLastChange) {
  using std::chrono::nanoseconds;
  // Units of a tenth of a microsecond, which every system has.
  // The last one does not fit into 32 bits.
  for (const std::int64_t seconds :
       std::initializer_list<std::int64_t>{1, 1000000001, 4102444800}) {
    for (const std::uint32_t rest : {0U, 100U, 123456700U, 999999900U}) {
      tree_.SetModified("file", std::chrono::seconds(seconds) + nanoseconds(rest));
      EXPECT_EQ(0, Status("file"));
      EXPECT_EQ(seconds, status_.modified);
      EXPECT_EQ(rest, status_.modifiedNanoseconds);
    }
  }
}

TEST_F(FileStatus, TellsTheSize) {
  for (const std::size_t size : {0U, 1U, 4096U, 100000U}) {
    tree_.Write("file", std::string(size, 'x'));
    EXPECT_EQ(0, Status("file"));
    EXPECT_EQ(size, status_.size);
  }
}

TEST_F(FileStatus, AcceptsASeparatorBehindADirectory) {
  EXPECT_EQ(0, Status("directory/"));
  EXPECT_TRUE(SaysDirectory());
  EXPECT_TRUE(IsDirectory("directory/"));
}

TEST_F(FileStatus, TakesUtf8Paths) {
  tree_.MakeDirectory("d\xC3\xA9p\xC3\xB4t \xE2\x82\xAC");
  EXPECT_EQ(0, Status("d\xC3\xA9p\xC3\xB4t \xE2\x82\xAC"));
  EXPECT_TRUE(SaysDirectory());
}

class MadeDirectory : public testing::Test {
 protected:
  int Make(const std::string& relative) const {
    return KxMakeDir(tree_.Path(relative).c_str(), kAnyAccess);
  }

  TempTree tree_;
};

TEST_F(MadeDirectory, IsThereAndEmpty) {
  EXPECT_EQ(0, Make("log"));
  EXPECT_TRUE(std::filesystem::is_empty(PathFromUtf8(tree_.Path("log"))));
}

TEST_F(MadeDirectory, MayHaveAUtf8Name) {
  EXPECT_EQ(0, Make("journ\xC3\xA9"));
  EXPECT_TRUE(KxIsDirectory(tree_.Path("journ\xC3\xA9").c_str()));
}

TEST_F(MadeDirectory, FailsWhenTheNameIsTaken) {
  tree_.Write("file", "x");
  tree_.MakeDirectory("directory");
  EXPECT_NE(0, Make("file"));
  EXPECT_NE(0, Make("directory"));
  EXPECT_EQ("x", tree_.Read("file"));
}

TEST_F(MadeDirectory, FailsWithoutItsParent) {
  EXPECT_NE(0, Make("missing/log"));
  EXPECT_FALSE(tree_.Exists("missing"));
}

class Traversal : public testing::Test {
 protected:
  int Traverse(const std::string& relative = "") {
    return KxTraverseDirectory(tree_.Path(relative).c_str(), &list_);
  }

  TempTree tree_;
  EntryList list_;
};

TEST_F(Traversal, NamesTheEntriesInByteOrder) {
  for (const char* name : {"a", "\xC3\xA9", "B", "ab", "a.b", "C", "_", "10", "9", "~", "Z"}) {
    tree_.Write(name, "");
  }
  EXPECT_EQ(0, Traverse());
  EXPECT_THAT(list_.entries,
              ElementsAre("10", "9", "B", "C", "Z", "_", "a", "a.b", "ab", "~", "\xC3\xA9"));
}

TEST_F(Traversal, LeavesOutOnlyTheTwoDotEntries) {
  tree_.Write(".hidden", "");
  tree_.Write("..a", "");
  EXPECT_EQ(0, Traverse());
  EXPECT_THAT(list_.entries, ElementsAre("..a", ".hidden"));
}

TEST_F(Traversal, NamesDirectoriesButDoesNotVisitThem) {
  tree_.Write("sub/inside", "");
  tree_.Write("file", "");
  tree_.MakeDirectory("empty");
  EXPECT_EQ(0, Traverse());
  EXPECT_THAT(list_.entries, ElementsAre("empty/", "file", "sub/"));
}

TEST_F(Traversal, StopsWhenTheCallbackSaysSo) {
  for (const char* name : {"c", "b", "a", "d"}) tree_.Write(name, "");
  list_.most = 2;
  Traverse();
  EXPECT_THAT(list_.entries, ElementsAre("a", "b"));
}

TEST_F(Traversal, PassesOnWhatTheCallbackThrows) {
  for (const char* name : {"a", "b", "c"}) tree_.Write(name, "");
  list_.most = 2;
  list_.throwAtLast = true;
  EXPECT_THROW(Traverse(), std::runtime_error);
  EXPECT_THAT(list_.entries, ElementsAre("a", "b"));
}

TEST_F(Traversal, OfAnEmptyDirectorySucceeds) {
  EXPECT_EQ(0, Traverse());
  EXPECT_THAT(list_.entries, IsEmpty());
}

TEST_F(Traversal, AcceptsASeparatorAtTheEndAndUtf8) {
  tree_.Write("d\xC3\xA9p\xC3\xB4t/a", "");
  EXPECT_EQ(0, Traverse("d\xC3\xA9p\xC3\xB4t/"));
  EXPECT_EQ(0, Traverse("d\xC3\xA9p\xC3\xB4t"));
  EXPECT_THAT(list_.entries, ElementsAre("a", "a"));
}

TEST_F(Traversal, OfWhatIsNoDirectoryFails) {
  tree_.Write("file", "");
  EXPECT_NE(0, Traverse("missing"));
  EXPECT_NE(0, Traverse("file"));
  EXPECT_NE(0, KxTraverseDirectory("", &list_));
  EXPECT_THAT(list_.entries, IsEmpty());
}

}  // namespace
