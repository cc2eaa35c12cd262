// Streams on what only this system can put in a file's place.

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "platform/stream_bytes.h"
#include "support/special_files.h"
#include "support/temp_tree.h"

namespace {

void Link(const TempTree& tree, const std::string& target, const std::string& link) {
  std::filesystem::create_symlink(PathFromUtf8(target), PathFromUtf8(tree.Path(link)));
}

TEST(InputStreamOnPosix, OpensThroughASymbolicLink) {
  const TempTree tree;
  tree.Write("d\xC3\xA9p\xC3\xB4t/\xE2\x82\xAC", "bytes");
  Link(tree, "d\xC3\xA9p\xC3\xB4t/\xE2\x82\xAC", "link");
  EXPECT_EQ("bytes", ReadThroughStream(tree.Path("link")));
}

TEST(InputStreamOnPosix, IsNotOpenThroughALinkToNoFile) {
  const TempTree tree;
  tree.MakeDirectory("directory");
  Link(tree, "missing", "to-nothing");
  Link(tree, "loop", "loop");
  Link(tree, "directory", "to-directory");
  EXPECT_EQ("(not open)", ReadThroughStream(tree.Path("to-nothing")));
  EXPECT_EQ("(not open)", ReadThroughStream(tree.Path("loop")));
  EXPECT_EQ("(not open)", ReadThroughStream(tree.Path("to-directory")));
}

TEST(InputStreamOnPosix, IsNotOpenOnAPipeAndDoesNotWaitForAWriter) {
  const TempTree tree;
  MakeNamedPipe(tree.Path("pipe"));
  Link(tree, "pipe", "link");
  EXPECT_EQ("(not open)", ReadThroughStream(tree.Path("pipe")));
  EXPECT_EQ("(not open)", ReadThroughStream(tree.Path("link")));
}

TEST(InputStreamOnPosix, IsNotOpenOnADevice) {
  EXPECT_EQ("(not open)", ReadThroughStream("/dev/null"));
  EXPECT_EQ("(not open)", ReadThroughStream("/dev/zero"));
}

TEST(InputStreamOnPosix, IsNotOpenWithoutPermission) {
  const TempTree tree;
  tree.Write("file", "x");
  const Restricted closed(tree.Path("file"), std::filesystem::perms::none);
  EXPECT_EQ("(not open)", ReadThroughStream(tree.Path("file")));
}

TEST(OutputStreamOnPosix, GoesThroughASymbolicLink) {
  const TempTree tree;
  tree.Write("d\xC3\xA9p\xC3\xB4t/\xE2\x82\xAC", "old");
  Link(tree, "d\xC3\xA9p\xC3\xB4t/\xE2\x82\xAC", "link");
  EXPECT_TRUE(Append(tree.Path("link"), "new"));
  EXPECT_EQ("oldnew", tree.Read("d\xC3\xA9p\xC3\xB4t/\xE2\x82\xAC"));
}

TEST(OutputStreamOnPosix, IsNotOpenWithoutPermission) {
  const TempTree tree;
  tree.Write("file", "x");
  {
    const Restricted readOnly(tree.Path("file"), std::filesystem::perms{0444});
    EXPECT_FALSE(Append(tree.Path("file"), "bytes"));
  }
  EXPECT_EQ("x", tree.Read("file"));
}

TEST(OutputStreamOnPosix, DoesNotWaitForThePipesReader) {
  const TempTree tree;
  MakeNamedPipe(tree.Path("pipe"));
  EXPECT_FALSE(Append(tree.Path("pipe"), "bytes"));
}

TEST(OutputStreamOnPosix, TellsThatNothingCouldBeWritten) {
  const TempTree tree;
  Link(tree, "/dev/full", "full");
  EXPECT_FALSE(Append(tree.Path("full"), "bytes"));
}

}  // namespace
