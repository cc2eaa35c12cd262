#include "format/caller_buffer.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "support/guarded_buffer.h"

namespace {

struct CopyCase {
  const char* name;
  KxSize size;
  std::string text;
  std::string lookup;  // what CopyLookupText leaves in the buffer
  std::string insertion;
};

void PrintTo(const CopyCase& c, std::ostream* os) { *os << '"' << c.text << "\" into " << c.size; }

class CopyToCaller : public testing::TestWithParam<CopyCase> {};

TEST_P(CopyToCaller, LookupTextKeepsAByteForTheTerminator) {
  GuardedBuffer buffer(GetParam().size);
  kx::CopyLookupText(buffer.Data(), buffer.Size(), GetParam().text);
  EXPECT_EQ(GetParam().lookup, buffer.Text());
  EXPECT_EQ(GetParam().lookup.size() + 1, buffer.BytesWritten());
  EXPECT_TRUE(buffer.IsFrontUntouched());
}

TEST_P(CopyToCaller, InsertionMayPutItsTerminatorOneBehind) {
  GuardedBuffer buffer(GetParam().size);
  kx::CopyInsertion(buffer.Data(), buffer.Size(), GetParam().text);
  EXPECT_EQ(GetParam().insertion, buffer.Text());
  EXPECT_EQ(GetParam().insertion.size() + 1, buffer.BytesWritten());
  EXPECT_TRUE(buffer.IsFrontUntouched());
}

const CopyCase kCopies[] = {
    {"EmptyText", 8, "", "", ""},
    {"EmptyTextIntoOneByte", 1, "", "", ""},
    {"ShortText", 8, "abc", "abc", "abc"},
    {"OneByteLessThanTheSize", 4, "abc", "abc", "abc"},
    {"ExactlyTheSize", 3, "abc", "ab", "abc"},
    {"OneByteMoreThanTheSize", 3, "abcd", "ab", "ab"},
    {"MuchMoreThanTheSize", 3, "abcdefghijklmnop", "ab", "ab"},
    {"OneByteIntoOneByte", 1, "a", "", "a"},
    {"TwoBytesIntoOneByte", 1, "ab", "", ""},
    {"TwoBytesIntoTwo", 2, "ab", "a", "ab"},
    {"CutInsideASequence", 3, "a\xE2\x82\xAC", "a\xE2", "a\xE2"},
};

INSTANTIATE_TEST_SUITE_P(Sizes, CopyToCaller, testing::ValuesIn(kCopies),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(CopyToCallerLimits, SizeZeroWritesNothing) {
  GuardedBuffer buffer(0);
  kx::CopyLookupText(buffer.Data(), 0, "");
  kx::CopyLookupText(buffer.Data(), 0, "abc");
  kx::CopyInsertion(buffer.Data(), 0, "");
  kx::CopyInsertion(buffer.Data(), 0, "abc");
  EXPECT_EQ(0U, buffer.BytesWritten());
  EXPECT_TRUE(buffer.IsFrontUntouched());
}

TEST(CopyToCallerLimits, NullBufferIsLeftAlone) {
  EXPECT_NO_THROW(kx::CopyLookupText(nullptr, 8, "abc"));
  EXPECT_NO_THROW(kx::CopyLookupText(nullptr, 0, ""));
  EXPECT_NO_THROW(kx::CopyInsertion(nullptr, 8, "abc"));
  EXPECT_NO_THROW(kx::CopyInsertion(nullptr, 0, ""));
}

TEST(CopyToCallerLimits, LargestSizeCopiesTheText) {
  char buffer[8] = {};
  kx::CopyLookupText(buffer, 0xFFFFFFFFU, "lookup");
  EXPECT_STREQ("lookup", buffer);
  kx::CopyInsertion(buffer, 0xFFFFFFFFU, "insert");
  EXPECT_STREQ("insert", buffer);
}

TEST(CopyToCallerLimits, PartOfALongerTextIsCopiedToItsEndOnly) {
  const std::string_view part = std::string_view("abcdef").substr(1, 3);
  GuardedBuffer lookup(8);
  kx::CopyLookupText(lookup.Data(), lookup.Size(), part);
  EXPECT_EQ("bcd", lookup.Text());
  GuardedBuffer insertion(8);
  kx::CopyInsertion(insertion.Data(), insertion.Size(), part);
  EXPECT_EQ("bcd", insertion.Text());
}

TEST(AnswerLookup, TextFoundIsCopied) {
  GuardedBuffer buffer(8);
  EXPECT_TRUE(kx::AnswerLookup(buffer.Data(), buffer.Size(), "found", "fallback"));
  EXPECT_EQ("found", buffer.Text());
  EXPECT_EQ(6U, buffer.BytesWritten());
}

TEST(AnswerLookup, EmptyTextFoundIsFoundNonetheless) {
  GuardedBuffer buffer(8);
  EXPECT_TRUE(kx::AnswerLookup(buffer.Data(), buffer.Size(), "", "fallback"));
  EXPECT_EQ("", buffer.Text());
  EXPECT_EQ(1U, buffer.BytesWritten());
}

TEST(AnswerLookup, FallbackIsCopiedWhenNothingWasFound) {
  GuardedBuffer buffer(16);
  EXPECT_FALSE(kx::AnswerLookup(buffer.Data(), buffer.Size(), nullptr, "fallback"));
  EXPECT_EQ("fallback", buffer.Text());
  EXPECT_EQ(9U, buffer.BytesWritten());
}

TEST(AnswerLookup, BufferIsEmptiedWithoutFallback) {
  GuardedBuffer buffer(8);
  EXPECT_FALSE(kx::AnswerLookup(buffer.Data(), buffer.Size(), nullptr, nullptr));
  EXPECT_EQ("", buffer.Text());
  EXPECT_EQ(1U, buffer.BytesWritten());
}

TEST(AnswerLookup, TextOfExactlyTheSizeIsCut) {
  GuardedBuffer buffer(5);
  EXPECT_TRUE(kx::AnswerLookup(buffer.Data(), buffer.Size(), "found", nullptr));
  EXPECT_EQ("foun", buffer.Text());
  EXPECT_EQ(5U, buffer.BytesWritten());
  EXPECT_TRUE(buffer.IsFrontUntouched());
}

TEST(AnswerLookup, FallbackOfExactlyTheSizeIsCut) {
  GuardedBuffer buffer(8);
  EXPECT_FALSE(kx::AnswerLookup(buffer.Data(), buffer.Size(), nullptr, "fallback"));
  EXPECT_EQ("fallbac", buffer.Text());
  EXPECT_EQ(8U, buffer.BytesWritten());
}

TEST(AnswerLookup, OneByteTakesTheTerminatorAndTheTextCountsAsFound) {
  GuardedBuffer buffer(1);
  EXPECT_TRUE(kx::AnswerLookup(buffer.Data(), buffer.Size(), "found", nullptr));
  EXPECT_EQ("", buffer.Text());
  EXPECT_EQ(1U, buffer.BytesWritten());
}

TEST(AnswerLookup, SizeZeroWritesNothingAndAnswersFalse) {
  GuardedBuffer buffer(0);
  EXPECT_FALSE(kx::AnswerLookup(buffer.Data(), 0, "found", "fallback"));
  EXPECT_FALSE(kx::AnswerLookup(buffer.Data(), 0, nullptr, "fallback"));
  EXPECT_FALSE(kx::AnswerLookup(buffer.Data(), 0, nullptr, nullptr));
  EXPECT_EQ(0U, buffer.BytesWritten());
  EXPECT_TRUE(buffer.IsFrontUntouched());
}

TEST(AnswerLookup, NullBufferAnswersFalse) {
  EXPECT_FALSE(kx::AnswerLookup(nullptr, 8, "found", "fallback"));
  EXPECT_FALSE(kx::AnswerLookup(nullptr, 8, nullptr, "fallback"));
  EXPECT_FALSE(kx::AnswerLookup(nullptr, 0, nullptr, nullptr));
}

TEST(AnswerLookup, BufferMayHoldTheFallbackItself) {
  char buffer[] = "what it was";
  EXPECT_FALSE(kx::AnswerLookup(buffer, sizeof buffer, nullptr, buffer));
  EXPECT_STREQ("what it was", buffer);
}

}  // namespace
