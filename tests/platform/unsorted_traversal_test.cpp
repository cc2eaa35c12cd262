#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "platform/directories.h"
#include "platform/entry_list.h"
#include "support/temp_tree.h"

namespace {

using testing::IsEmpty;
using testing::UnorderedElementsAre;

class UnsortedTraversal : public testing::Test {
 protected:
  int Traverse(const std::string& relative = "") {
    return KxTraverseUnsorted(tree_.Path(relative).c_str(), &list_);
  }

  TempTree tree_;
  EntryList list_;
};

TEST_F(UnsortedTraversal, NamesEachEntryOnceAndTellsDirectories) {
  tree_.Write("b", "");
  tree_.Write("a.properties", "");
  tree_.Write("\xC3\xA9", "");
  tree_.Write("directory/not visited", "");
  EXPECT_EQ(0, Traverse());
  EXPECT_THAT(list_.entries, UnorderedElementsAre("a.properties", "b", "\xC3\xA9", "directory/"));
}

TEST_F(UnsortedTraversal, OfAnEmptyDirectoryNamesNothing) {
  EXPECT_EQ(0, Traverse());
  EXPECT_THAT(list_.entries, IsEmpty());
}

TEST_F(UnsortedTraversal, FailsForWhatIsNoDirectory) {
  tree_.Write("file", "");
  EXPECT_NE(0, Traverse("missing"));
  EXPECT_NE(0, Traverse("file"));
  EXPECT_NE(0, KxTraverseUnsorted("", &list_));
  EXPECT_THAT(list_.entries, IsEmpty());
}

/// Wants so many entries and no more.
class Sated final : public CKxTraverseCallback {
 public:
  explicit Sated(int wanted) : wanted_(wanted) {}

  bool OnEntry(const char* /*name*/, bool /*isDirectory*/) override { return ++told < wanted_; }

  int told = 0;

 private:
  const int wanted_;
};

TEST_F(UnsortedTraversal, EndsWhenNoMoreAreWanted) {
  for (const char* name : {"a", "b", "c"}) tree_.Write(name, "");
  Sated callback(2);
  EXPECT_EQ(0, KxTraverseUnsorted(tree_.Path().c_str(), &callback));
  EXPECT_EQ(2, callback.told);
}

}  // namespace
