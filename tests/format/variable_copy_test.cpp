// The three ways a text reaches a caller's buffer, side by side.

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>

#include "format/caller_buffer.h"
#include "support/guarded_buffer.h"

namespace {

struct CopyCase {
  const char* name;
  KxSize size;
  std::string text;
  std::string lookup;
  std::string insertion;
  std::string variableInsertion;
};

void PrintTo(const CopyCase& c, std::ostream* os) { *os << '"' << c.text << "\" into " << c.size; }

class CopyRules : public testing::TestWithParam<CopyCase> {
 protected:
  using Copy = void (*)(char* dst, KxSize size, std::string_view text);

  /// Copies and checks the first `written` bytes: the text, then zeros. Nothing else is written.
  static void ExpectLeaves(Copy copy, std::string expected, std::size_t written) {
    GuardedBuffer buffer(GetParam().size);
    copy(buffer.Data(), buffer.Size(), GetParam().text);
    EXPECT_EQ(expected, buffer.Text());
    EXPECT_EQ(written, buffer.BytesWritten());
    EXPECT_TRUE(buffer.IsFrontUntouched());
    expected.resize(written, '\0');
    EXPECT_EQ(expected, std::string(buffer.Data(), written));
  }
};

TEST_P(CopyRules, LookupTextIsCutAndTheRestIsUntouched) {
  ExpectLeaves(kx::CopyLookupText, GetParam().lookup, GetParam().lookup.size() + 1);
}

TEST_P(CopyRules, InsertionOfExactlyTheSizeIsWholeAndTheRestIsUntouched) {
  ExpectLeaves(kx::CopyInsertion, GetParam().insertion, GetParam().insertion.size() + 1);
}

TEST_P(CopyRules, VariableInsertionIsCutAndTheRestIsZeros) {
  ExpectLeaves(kx::CopyVariableInsertion, GetParam().variableInsertion, GetParam().size);
}

const CopyCase kCopies[] = {
    // name, size, text, lookup, insertion, variable insertion
    {"EmptyText", 8, "", "", "", ""},
    {"EmptyTextIntoOneByte", 1, "", "", "", ""},
    {"ShortText", 8, "abc", "abc", "abc", "abc"},
    {"TwoBytesLessThanTheSize", 5, "abc", "abc", "abc", "abc"},
    {"OneByteLessThanTheSize", 4, "abc", "abc", "abc", "abc"},
    {"ExactlyTheSize", 3, "abc", "ab", "abc", "ab"},
    {"OneByteMoreThanTheSize", 3, "abcd", "ab", "ab", "ab"},
    {"MuchMoreThanTheSize", 3, "abcdefghijklmnop", "ab", "ab", "ab"},
    {"OneByteIntoOneByte", 1, "a", "", "a", ""},
    {"TwoBytesIntoOneByte", 1, "ab", "", "", ""},
    {"TwoBytesIntoTwo", 2, "ab", "a", "ab", "a"},
    {"CutInsideASequence", 3, "a\xE2\x82\xAC", "a\xE2", "a\xE2", "a\xE2"},
    {"LargeBuffer", 5000, "abc", "abc", "abc", "abc"},
    {"LongText", 5000, std::string(5000, 'x'), std::string(4999, 'x'), std::string(5000, 'x'),
     std::string(4999, 'x')},
};

INSTANTIATE_TEST_SUITE_P(Sizes, CopyRules, testing::ValuesIn(kCopies),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(CopyVariableInsertion, SizeZeroWritesNothing) {
  GuardedBuffer buffer(0);
  kx::CopyVariableInsertion(buffer.Data(), 0, "");
  kx::CopyVariableInsertion(buffer.Data(), 0, "abc");
  EXPECT_EQ(0U, buffer.BytesWritten());
  EXPECT_TRUE(buffer.IsFrontUntouched());
}

TEST(CopyVariableInsertion, NullBufferIsLeftAlone) {
  EXPECT_NO_THROW(kx::CopyVariableInsertion(nullptr, 8, "abc"));
  EXPECT_NO_THROW(kx::CopyVariableInsertion(nullptr, 0, ""));
}

TEST(CopyVariableInsertion, PartOfALongerTextIsCopiedToItsEndOnly) {
  GuardedBuffer buffer(8);
  kx::CopyVariableInsertion(buffer.Data(), buffer.Size(), std::string_view("abcdef").substr(1, 3));
  EXPECT_EQ("bcd", buffer.Text());
  EXPECT_EQ(std::string("bcd\0\0\0\0\0", 8), std::string(buffer.Data(), 8));
}

}  // namespace
