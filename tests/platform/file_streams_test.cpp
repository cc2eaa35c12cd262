#include "platform/file_streams.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/stream_bytes.h"
#include "support/temp_tree.h"

namespace {

std::string AllBytes(std::size_t size) {
  std::string bytes;
  // Not a power of two, so that equal places of two blocks hold different bytes.
  for (std::size_t at = 0; at < size; ++at) bytes += static_cast<char>((at + at / 251) % 256);
  return bytes;
}

class FileOfSize : public testing::TestWithParam<std::size_t> {};

TEST_P(FileOfSize, IsReadByteForByte) {
  const TempTree tree;
  const std::string bytes = AllBytes(GetParam());
  tree.Write("file", bytes);
  EXPECT_TRUE(bytes == ReadThroughStream(tree.Path("file")));
}

INSTANTIATE_TEST_SUITE_P(InputStream, FileOfSize,
                         testing::Values(1u, 511u, 512u, 513u, 4095u, 4096u, 4097u, 16384u, 32768u,
                                         65535u, 65536u, 65537u, 204800u, 1048577u),
                         [](const auto& row) { return std::to_string(row.param); });

TEST(InputStream, OnAnEmptyFileIsOpenAndAtItsEnd) {
  const TempTree tree;
  tree.Write("file", "");
  CKxIfstream stream;
  KxIfstreamOpen(stream, tree.Path("file").c_str());
  EXPECT_TRUE(stream.good());
  EXPECT_EQ(std::char_traits<char>::eof(), stream.get());
  EXPECT_TRUE(stream.eof());
}

TEST(InputStream, DeliversLines) {
  const TempTree tree;
  tree.Write("file", "first\r\n\nlast");
  CKxIfstream stream;
  KxIfstreamOpen(stream, tree.Path("file").c_str());
  std::vector<std::string> lines;
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  EXPECT_EQ((std::vector<std::string>{"first\r", "", "last"}), lines);
}

TEST(InputStream, DeliversTheHighestByteAsAByte) {
  const TempTree tree;
  tree.Write("file", "\xFF\xFF");
  CKxIfstream stream;
  KxIfstreamOpen(stream, tree.Path("file").c_str());
  EXPECT_EQ(0xFF, stream.get());
  EXPECT_EQ(0xFF, stream.peek());
  EXPECT_EQ(0xFF, stream.get());
  EXPECT_EQ(std::char_traits<char>::eof(), stream.get());
}

TEST(InputStream, OpensUtf8Names) {
  const TempTree tree;
  tree.Write("d\xC3\xA9p\xC3\xB4t/\xE2\x82\xAC", "bytes");
  EXPECT_EQ("bytes", ReadThroughStream(tree.Path("d\xC3\xA9p\xC3\xB4t/\xE2\x82\xAC")));
}

TEST(InputStream, IsNotOpenWithoutAFile) {
  const TempTree tree;
  tree.Write("file", "x");
  EXPECT_EQ("(not open)", ReadThroughStream(tree.Path("missing")));
  EXPECT_EQ("(not open)", ReadThroughStream(tree.Path("file/inside")));
  EXPECT_EQ("(not open)", ReadThroughStream(""));
}

TEST(InputStream, IsNotOpenOnADirectory) {
  const TempTree tree;
  tree.MakeDirectory("directory");
  EXPECT_EQ("(not open)", ReadThroughStream(tree.Path("directory")));
  EXPECT_EQ("(not open)", ReadThroughStream(tree.Path("directory/")));
}

TEST(OutputStream, CreatesTheFile) {
  const TempTree tree;
  EXPECT_TRUE(Append(tree.Path("file"), "bytes"));
  EXPECT_EQ("bytes", tree.Read("file"));
}

TEST(OutputStream, CreatesTheFileBeforeAnythingIsWritten) {
  const TempTree tree;
  CKxOfstream stream;
  KxOfstreamOpen(stream, tree.Path("file").c_str());
  EXPECT_TRUE(stream.good());
  EXPECT_EQ("", tree.Read("file"));
}

TEST(OutputStream, KeepsWhatTheFileHolds) {
  const TempTree tree;
  tree.Write("file", "old");
  EXPECT_TRUE(Append(tree.Path("file"), "new"));
  EXPECT_TRUE(Append(tree.Path("file"), "newer"));
  EXPECT_EQ("oldnewnewer", tree.Read("file"));
}

TEST(OutputStream, GoesToTheEndAlsoWhenAnotherWroteMeanwhile) {
  const TempTree tree;
  CKxOfstream first;
  CKxOfstream second;
  KxOfstreamOpen(first, tree.Path("file").c_str());
  KxOfstreamOpen(second, tree.Path("file").c_str());
  first << "1" << std::flush;
  second << "2" << std::flush;
  first << "3" << std::flush;
  EXPECT_EQ("123", tree.Read("file"));
}

TEST(OutputStream, WritesByteForByte) {
  const TempTree tree;
  const std::string bytes = AllBytes(204800);
  EXPECT_TRUE(Append(tree.Path("file"), bytes));
  EXPECT_TRUE(bytes == tree.Read("file"));
}

TEST(OutputStream, WritesSingleCharactersToo) {
  const TempTree tree;
  CKxOfstream stream;
  KxOfstreamOpen(stream, tree.Path("file").c_str());
  stream.put('a').put('\xFF').put('\n').flush();
  EXPECT_TRUE(stream.good());
  EXPECT_EQ("a\xFF\n", tree.Read("file"));
}

TEST(OutputStream, TakesUtf8Paths) {
  const TempTree tree;
  tree.Write("d\xC3\xA9p\xC3\xB4t/\xE2\x82\xAC", "old");
  EXPECT_TRUE(Append(tree.Path("d\xC3\xA9p\xC3\xB4t/\xE2\x82\xAC"), "new"));
  EXPECT_EQ("oldnew", tree.Read("d\xC3\xA9p\xC3\xB4t/\xE2\x82\xAC"));
}

TEST(OutputStream, IsNotOpenWhereNoFileCanBe) {
  const TempTree tree;
  tree.MakeDirectory("directory");
  tree.Write("file", "x");
  EXPECT_FALSE(Append(tree.Path("directory"), "bytes"));
  EXPECT_FALSE(Append(tree.Path("missing/file"), "bytes"));
  EXPECT_FALSE(Append(tree.Path("file/inside"), "bytes"));
  EXPECT_FALSE(Append("", "bytes"));
}

}  // namespace
