// Files that cannot be opened for the moment, and those that cannot be opened at all.

#include <gtest/gtest.h>

#include <string>

#include "platform/file_streams.h"
#include "platform/stream_bytes.h"
#include "support/held_file.h"
#include "support/temp_tree.h"

namespace {

class PassingFailure : public testing::Test {
 protected:
  bool InputMayWorkLater(const std::string& path) {
    CKxIfstream stream;
    KxIfstreamOpen(stream, path.c_str());
    EXPECT_TRUE(stream.fail());
    return stream.MayWorkLater();
  }

  bool OutputMayWorkLater(const std::string& path) {
    CKxOfstream stream;
    KxOfstreamOpen(stream, path.c_str());
    EXPECT_TRUE(stream.fail());
    return stream.MayWorkLater();
  }

  const TempTree tree_;
};

TEST_F(PassingFailure, IsThatOfAFileInUse) {
  tree_.Write("file", "bytes");
  const std::string path = tree_.Path("file");
  {
    const HeldFile held(path);
    EXPECT_TRUE(InputMayWorkLater(path));
    EXPECT_TRUE(OutputMayWorkLater(path));
  }
  EXPECT_EQ("bytes", ReadThroughStream(path));
  EXPECT_TRUE(Append(path, "!"));
  EXPECT_EQ("bytes!", tree_.Read("file"));
}

TEST_F(PassingFailure, IsNotThatOfAnAbsentFile) {
  tree_.Write("file", "bytes");
  EXPECT_FALSE(InputMayWorkLater(tree_.Path("missing")));
  EXPECT_FALSE(InputMayWorkLater(tree_.Path("missing/file")));
  EXPECT_FALSE(InputMayWorkLater(tree_.Path("file/file")));
  EXPECT_FALSE(InputMayWorkLater(""));
  EXPECT_FALSE(OutputMayWorkLater(tree_.Path("missing/file")));
  EXPECT_FALSE(OutputMayWorkLater(""));
}

TEST_F(PassingFailure, IsNotThatOfAnAbsentFileWhileNoneCanBeOpened) {
  tree_.Write("file", "bytes");
  const HeldFile held(tree_.Path("file"));
  EXPECT_FALSE(InputMayWorkLater(tree_.Path("missing")));
}

TEST_F(PassingFailure, IsNotThatOfADirectory) {
  tree_.MakeDirectory("directory");
  EXPECT_FALSE(InputMayWorkLater(tree_.Path("directory")));
  EXPECT_FALSE(OutputMayWorkLater(tree_.Path("directory")));
}

TEST_F(PassingFailure, IsNoneWhenAllWasRead) {
  tree_.Write("file", std::string(100000, 'x'));
  CKxIfstream stream;
  KxIfstreamOpen(stream, tree_.Path("file").c_str());
  EXPECT_FALSE(stream.MayWorkLater());
  std::string line;
  std::getline(stream, line);
  EXPECT_EQ(100000u, line.size());
  EXPECT_TRUE(stream.eof());
  EXPECT_FALSE(stream.MayWorkLater());
}

}  // namespace
