// What the system's calls may do besides what one expects of them.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <string>

#include "platform/directories.h"
#include "platform/entry_list.h"
#include "platform/stream_bytes.h"
#include "support/system_calls.h"
#include "support/temp_tree.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Bytes of which each stretch differs from the others, more than are read at once.
std::string ManyBytes() {
  std::string bytes;
  for (int number = 0; bytes.size() < 200'000; ++number) bytes += std::to_string(number) + ',';
  return bytes;
}

class MeddledCalls : public testing::Test {
 protected:
  int Traverse() { return KxTraverseDirectory(tree_.Path("d").c_str(), &list_); }

  TempTree tree_;
  EntryList list_;
};

// Reading

using ReadingAFile = MeddledCalls;

TEST_F(ReadingAFile, GoesOnAfterAnInterruption) {
  tree_.Write("file", ManyBytes());
  Calls().interruptions = 3;
  EXPECT_EQ(ManyBytes(), ReadThroughStream(tree_.Path("file")));
  EXPECT_EQ(3, Calls().meddled);
}

TEST_F(ReadingAFile, TakesWhatItGetsForNoEnd) {
  tree_.Write("file", ManyBytes());
  Calls().mostBytes = 1000;
  EXPECT_EQ(ManyBytes(), ReadThroughStream(tree_.Path("file")));
  EXPECT_GT(Calls().meddled, 100);
}

TEST_F(ReadingAFile, DoesNotTakeSomebodyElsesInterruptionForItsOwn) {
  tree_.Write("file", ManyBytes());
  Calls().staleErrors = 3;
  errno = EINTR;
  EXPECT_EQ(ManyBytes(), ReadThroughStream(tree_.Path("file")));
  EXPECT_EQ(3, Calls().meddled);
}

// Writing

using WritingAFile = MeddledCalls;

TEST_F(WritingAFile, GoesOnAfterAnInterruption) {
  Calls().interruptions = 1;
  EXPECT_TRUE(Append(tree_.Path("file"), "one line\n"));
  EXPECT_EQ("one line\n", tree_.Read("file"));
  EXPECT_EQ(1, Calls().meddled);
}

TEST_F(WritingAFile, GoesOnAfterAnInterruptionHalfWay) {
  Calls().interruptions = 3;
  Calls().mostBytes = 2;
  EXPECT_TRUE(Append(tree_.Path("file"), "one line\n"));
  EXPECT_EQ("one line\n", tree_.Read("file"));
  EXPECT_EQ(3 + 4, Calls().meddled);
}

TEST_F(WritingAFile, DoesNotTakeSomebodyElsesInterruptionForItsOwn) {
  Calls().staleErrors = 3;
  errno = EINTR;
  EXPECT_TRUE(Append(tree_.Path("file"), "one line\n"));
  EXPECT_EQ("one line\n", tree_.Read("file"));
  EXPECT_EQ(1, Calls().meddled);
}

TEST_F(WritingAFile, DoesNotTakeSomebodyElsesInterruptionForItsOwnHalfWay) {
  Calls().staleErrors = 9;
  Calls().mostBytes = 2;
  errno = EINTR;
  EXPECT_TRUE(Append(tree_.Path("file"), "one line\n"));
  EXPECT_EQ("one line\n", tree_.Read("file"));
  EXPECT_EQ(5 + 4, Calls().meddled);
}

// Listing

class ListingADirectory : public MeddledCalls {
 protected:
  ListingADirectory() {
    for (const char* file : {"d/a", "d/b", "d/c"}) tree_.Write(file, "");
    tree_.MakeDirectory("d/e");
    for (const char* target : {"a", "e", "missing"}) {
      std::filesystem::create_symlink(target, PathFromUtf8(tree_.Path("d/to-") + target));
    }
  }
};

TEST_F(ListingADirectory, FailsWhereTheSystemFailsHalfWay) {
  Calls().namedEntries = 5;  // two of them may be "." and ".."
  EXPECT_NE(0, Traverse());
  EXPECT_THAT(list_.entries, IsEmpty());
  EXPECT_EQ(1, Calls().meddled);
}

TEST_F(ListingADirectory, FailsWhereTheSystemFailsAtOnce) {
  Calls().namedEntries = 0;
  EXPECT_NE(0, Traverse());
  EXPECT_THAT(list_.entries, IsEmpty());
}

TEST_F(ListingADirectory, DoesNotTakeSomebodyElsesErrorForItsOwn) {
  errno = EIO;
  EXPECT_EQ(0, Traverse());
  EXPECT_THAT(list_.entries, ElementsAre("a", "b", "c", "e/", "to-a", "to-e/", "to-missing"));
}

TEST_F(ListingADirectory, AsksWhatAnEntryIsOfWhichTheSystemDoesNotSay) {
  Calls().hidesTypes = true;
  EXPECT_EQ(0, Traverse());
  EXPECT_THAT(list_.entries, ElementsAre("a", "b", "c", "e/", "to-a", "to-e/", "to-missing"));
  EXPECT_EQ(7 + 2, Calls().meddled);
}

}  // namespace
