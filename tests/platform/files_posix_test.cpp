// Files and directories that only this system has: links, pipes, permissions.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>
#include <filesystem>
#include <string>

#include "platform/directories.h"
#include "platform/entry_list.h"
#include "platform/file_status.h"
#include "support/special_files.h"
#include "support/temp_tree.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FilesOnPosix : public testing::Test {
 protected:
  int Status(const std::string& relative) { return KxStat(tree_.Path(relative).c_str(), &status_); }
  bool SaysDirectory() const { return (status_.mode & kKxModeDirectory) != 0; }
  bool IsDirectory(const std::string& relative) const {
    return KxIsDirectory(tree_.Path(relative).c_str());
  }
  int Make(const std::string& relative) const {
    constexpr unsigned kAnyAccess = 0777;
    return KxMakeDir(tree_.Path(relative).c_str(), kAnyAccess);
  }
  int Traverse(const std::string& relative = "") {
    return KxTraverseDirectory(tree_.Path(relative).c_str(), &list_);
  }
  void Link(const std::string& target, const std::string& link) const {
    std::filesystem::create_symlink(PathFromUtf8(target), PathFromUtf8(tree_.Path(link)));
  }

  TempTree tree_;
  KxFileStatus status_;
  EntryList list_;
};

using DirectoriesOnPosix = FilesOnPosix;
using TraversalOnPosix = FilesOnPosix;

TEST_F(FilesOnPosix, TellTheTimeOfWhatALinkNames) {
  tree_.Write("file", "x");
  Link("file", "link");
  using std::chrono::file_clock;
  const std::chrono::sys_seconds time(std::chrono::seconds(1000000001));
  std::filesystem::last_write_time(PathFromUtf8(tree_.Path("file")), file_clock::from_sys(time));
  EXPECT_EQ(0, Status("link"));
  EXPECT_EQ(1000000001, status_.modified);
}

TEST_F(DirectoriesOnPosix, AreNotMadeInPlaceOfALink) {
  Link("missing", "link");
  EXPECT_NE(0, Make("link"));
}

TEST_F(TraversalOnPosix, NamesAFileThatIsNothingButDots) {
  tree_.Write("...", "");
  EXPECT_EQ(0, Traverse());
  EXPECT_THAT(list_.entries, ElementsAre("..."));
}

TEST_F(TraversalOnPosix, GoesThroughALink) {
  tree_.Write("directory/a", "");
  Link("directory", "link");
  EXPECT_EQ(0, Traverse("link"));
  EXPECT_THAT(list_.entries, ElementsAre("a"));
}

TEST_F(FilesOnPosix, OfAPipeIsToldWithoutWaiting) {
  MakeNamedPipe(tree_.Path("pipe"));
  EXPECT_EQ(0, Status("pipe"));
  EXPECT_FALSE(SaysDirectory());
  EXPECT_FALSE(IsDirectory("pipe"));
}

TEST_F(FilesOnPosix, FailsForWhatMayNotBeLookedAt) {
  tree_.Write("directory/file", "x");
  const Restricted closed(tree_.Path("directory"), std::filesystem::perms::none);
  EXPECT_NE(0, Status("directory/file"));
  EXPECT_EQ(0, Status("directory"));
}

TEST_F(FilesOnPosix, FollowSymbolicLinks) {
  tree_.Write("file", "x");
  tree_.MakeDirectory("directory");
  Link("directory", "to-directory");
  Link("file", "to-file");
  Link("missing", "to-nothing");
  EXPECT_EQ(0, Status("to-file"));
  EXPECT_FALSE(SaysDirectory());
  EXPECT_EQ(0, Status("to-directory"));
  EXPECT_TRUE(SaysDirectory());
  EXPECT_TRUE(IsDirectory("to-directory"));
  EXPECT_NE(0, Status("to-nothing"));
  EXPECT_FALSE(IsDirectory("to-nothing"));
}

TEST_F(DirectoriesOnPosix, FailsWithoutPermission) {
  tree_.MakeDirectory("parent");
  {
    const Restricted readOnly(tree_.Path("parent"), std::filesystem::perms{0555});
    EXPECT_NE(0, Make("parent/log"));
  }
  EXPECT_FALSE(tree_.Exists("parent/log"));
}

TEST_F(DirectoriesOnPosix, HasThePermissionsAskedForLessTheMask) {
  const mode_t before = ::umask(027);
  const int result = Make("log");
  ::umask(before);
  EXPECT_EQ(0, result);
  const auto status = std::filesystem::status(PathFromUtf8(tree_.Path("log")));
  EXPECT_EQ(std::filesystem::perms{0750}, status.permissions());
}

TEST_F(TraversalOnPosix, FollowsSymbolicLinksToTellDirectories) {
  tree_.MakeDirectory("directory");
  tree_.Write("file", "");
  Link("directory", "to-directory");
  Link("file", "to-file");
  Link("missing", "to-nothing");
  EXPECT_EQ(0, Traverse());
  EXPECT_THAT(list_.entries,
              ElementsAre("directory/", "file", "to-directory/", "to-file", "to-nothing"));
}

TEST_F(TraversalOnPosix, NamesAPipeWithoutOpeningIt) {
  MakeNamedPipe(tree_.Path("pipe"));
  EXPECT_EQ(0, Traverse());
  EXPECT_THAT(list_.entries, ElementsAre("pipe"));
}

TEST_F(TraversalOnPosix, FailsWithoutPermission) {
  tree_.Write("directory/file", "");
  const Restricted closed(tree_.Path("directory"), std::filesystem::perms::none);
  EXPECT_NE(0, Traverse("directory"));
  EXPECT_THAT(list_.entries, IsEmpty());
}

}  // namespace
