// How a result reaches the caller's buffer: the same in all three exported forms.

#include <gtest/gtest.h>

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include "CKxXlate.h"
#include "support/guarded_buffer.h"

namespace {

using Arguments = std::vector<const char*>;

void InsertLoose(char* buffer, KxSize size, const char* format, const Arguments& arguments) {
  Arguments a = arguments;
  a.resize(13);
  CKxXlate::Insert(buffer, size, format, a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7], a[8], a[9],
                   a[10], a[11], a[12]);
}

void FormatPointers(char* buffer, KxSize size, const char* format, const Arguments& arguments) {
  Arguments a = arguments;
  CKxXlate::FormatMessageA(buffer, size, format, a.size(), a.data());
}

void FormatStrings(char* buffer, KxSize size, const char* format, const Arguments& arguments) {
  const std::vector<std::string> a(arguments.begin(), arguments.end());
  CKxXlate::FormatMessageA(buffer, size, format, a.size(), a.data());
}

struct Form {
  const char* name;
  void (*insert)(char* buffer, KxSize size, const char* format, const Arguments& arguments);
};

void PrintTo(const Form& form, std::ostream* os) { *os << form.name; }

class InsertionBuffer : public testing::TestWithParam<Form> {
 protected:
  static void Insert(GuardedBuffer& buffer, const char* format, const Arguments& arguments) {
    GetParam().insert(buffer.Data(), buffer.Size(), format, arguments);
  }

  static void Insert(char* buffer, KxSize size, const char* format, const Arguments& arguments) {
    GetParam().insert(buffer, size, format, arguments);
  }
};

const Form kForms[] = {{"LooseArguments", InsertLoose},
                       {"PointerArray", FormatPointers},
                       {"StringArray", FormatStrings}};

INSTANTIATE_TEST_SUITE_P(Forms, InsertionBuffer, testing::ValuesIn(kForms),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_P(InsertionBuffer, ReceivesTheResultAndItsTerminatorOnly) {
  GuardedBuffer buffer(64);
  Insert(buffer, "%1 before %0", {"a", "b"});
  EXPECT_EQ("b before a", buffer.Text());
  EXPECT_EQ(11U, buffer.BytesWritten());
  EXPECT_TRUE(buffer.IsFrontUntouched());
}

TEST_P(InsertionBuffer, ReceivesLeftovers) {
  GuardedBuffer buffer(64);
  Insert(buffer, "Cannot open file", {"a.txt", "denied"});
  EXPECT_EQ("Cannot open file (a.txt, denied)", buffer.Text());
  EXPECT_EQ(33U, buffer.BytesWritten());
}

TEST_P(InsertionBuffer, ReceivesBytesAsTheyAre) {
  GuardedBuffer buffer(64);
  Insert(buffer, "\xFF{0}\x80", {"\xE2\x82\xAC\xC3"});
  EXPECT_EQ("\xFF\xE2\x82\xAC\xC3\x80", buffer.Text());
  EXPECT_EQ(7U, buffer.BytesWritten());
}

TEST_P(InsertionBuffer, OneByteLessThanTheSizeFits) {
  GuardedBuffer buffer(6);
  Insert(buffer, "ab%0", {"123"});
  EXPECT_EQ("ab123", buffer.Text());
  EXPECT_EQ(6U, buffer.BytesWritten());
  EXPECT_TRUE(buffer.IsFrontUntouched());
}

TEST_P(InsertionBuffer, ExactlyTheSizeIsWholeWithItsTerminatorOneBehind) {
  GuardedBuffer buffer(5);
  Insert(buffer, "ab%0", {"123"});
  EXPECT_EQ("ab123", buffer.Text());
  EXPECT_EQ(6U, buffer.BytesWritten());
  EXPECT_EQ('\0', buffer.Data()[5]);
  EXPECT_EQ(GuardedBuffer::kUntouched, buffer.Data()[6]);
  EXPECT_TRUE(buffer.IsFrontUntouched());
}

TEST_P(InsertionBuffer, OneByteMoreThanTheSizeIsCutToOneByteLess) {
  GuardedBuffer buffer(4);
  Insert(buffer, "ab%0", {"123"});
  EXPECT_EQ("ab1", buffer.Text());
  EXPECT_EQ(4U, buffer.BytesWritten());
  EXPECT_EQ('\0', buffer.Data()[3]);
  EXPECT_EQ(GuardedBuffer::kUntouched, buffer.Data()[4]);
  EXPECT_TRUE(buffer.IsFrontUntouched());
}

TEST_P(InsertionBuffer, EverySizeKeepsTheRule) {
  const std::string result = "0123456789";
  for (KxSize size = 1; size <= 14; ++size) {
    GuardedBuffer buffer(size);
    Insert(buffer, "%0", {result.c_str()});
    const std::string expected = result.size() <= size ? result : result.substr(0, size - 1);
    EXPECT_EQ(expected, buffer.Text()) << "size " << size;
    EXPECT_EQ(expected.size() + 1, buffer.BytesWritten()) << "size " << size;
    EXPECT_TRUE(buffer.IsFrontUntouched()) << "size " << size;
  }
}

TEST_P(InsertionBuffer, OneByteTakesAnEmptyResult) {
  GuardedBuffer buffer(1);
  Insert(buffer, "", {});
  EXPECT_EQ("", buffer.Text());
  EXPECT_EQ(1U, buffer.BytesWritten());
}

TEST_P(InsertionBuffer, OneByteTakesAResultOfOneByteWhole) {
  GuardedBuffer buffer(1);
  Insert(buffer, "%0", {"x"});
  EXPECT_EQ("x", buffer.Text());
  EXPECT_EQ(2U, buffer.BytesWritten());
}

TEST_P(InsertionBuffer, OneByteIsEmptiedByALongerResult) {
  GuardedBuffer buffer(1);
  Insert(buffer, "%0", {"xy"});
  EXPECT_EQ("", buffer.Text());
  EXPECT_EQ(1U, buffer.BytesWritten());
}

TEST_P(InsertionBuffer, CutMayFallInsideASequence) {
  GuardedBuffer buffer(3);
  Insert(buffer, "a%0", {"\xE2\x82\xAC"});
  EXPECT_EQ("a\xE2", buffer.Text());
  EXPECT_EQ(3U, buffer.BytesWritten());
}

TEST_P(InsertionBuffer, MegabyteResultIsCutToASmallBuffer) {
  const std::string megabyte(std::size_t{1} << 20, 'm');
  GuardedBuffer buffer(10);
  Insert(buffer, "%0%0", {megabyte.c_str()});
  EXPECT_EQ("mmmmmmmmm", buffer.Text());
  EXPECT_EQ(10U, buffer.BytesWritten());
  EXPECT_TRUE(buffer.IsFrontUntouched());
}

TEST_P(InsertionBuffer, LargestSizeTakesTheResultOnly) {
  GuardedBuffer buffer(64);
  Insert(buffer.Data(), static_cast<KxSize>(0xFFFFFFFFU), "%0", {"abc"});
  EXPECT_EQ("abc", buffer.Text());
  EXPECT_EQ(4U, buffer.BytesWritten());
}

TEST_P(InsertionBuffer, SizeZeroWritesNothing) {
  GuardedBuffer buffer(0);
  Insert(buffer, "%0", {"abc"});
  Insert(buffer, "x", {});
  EXPECT_EQ(0U, buffer.BytesWritten());
  EXPECT_TRUE(buffer.IsFrontUntouched());
}

TEST_P(InsertionBuffer, SizeZeroWritesNoTerminatorOfAnEmptyResult) {
  GuardedBuffer buffer(0);
  Insert(buffer, "", {});
  Insert(buffer, nullptr, {});
  EXPECT_EQ(0U, buffer.BytesWritten());
  EXPECT_TRUE(buffer.IsFrontUntouched());
}

TEST_P(InsertionBuffer, NullBufferIsLeftAlone) {
  EXPECT_NO_THROW(Insert(nullptr, 64, "%0", {"abc"}));
  EXPECT_NO_THROW(Insert(nullptr, 64, "", {}));
  EXPECT_NO_THROW(Insert(nullptr, 0, "%0", {"abc"}));
}

TEST_P(InsertionBuffer, NullFormatIsTheEmptyText) {
  GuardedBuffer buffer(64);
  Insert(buffer, nullptr, {});
  EXPECT_EQ("", buffer.Text());
  EXPECT_EQ(1U, buffer.BytesWritten());
}

TEST_P(InsertionBuffer, NullFormatTakesLeftovers) {
  GuardedBuffer buffer(64);
  Insert(buffer, nullptr, {"a", "b"});
  EXPECT_EQ("(a, b)", buffer.Text());
  EXPECT_EQ(7U, buffer.BytesWritten());
}

TEST_P(InsertionBuffer, MayBeTheFormatItself) {
  char buffer[32] = "%1 before %0, %1";
  Insert(buffer, 31, buffer, {"first", "second"});
  EXPECT_STREQ("second before first, second", buffer);
}

TEST_P(InsertionBuffer, MayBeAnArgumentItself) {
  char buffer[32] = "x.txt";
  Insert(buffer, 31, "{0}, then {1} and {0}", {buffer, "b"});
  EXPECT_STREQ("x.txt, then b and x.txt", buffer);
}

TEST_P(InsertionBuffer, MayHoldAnArgumentBehindItsStart) {
  char buffer[32] = "....name";
  Insert(buffer, 31, "%0 is %0", {buffer + 4});
  EXPECT_STREQ("name is name", buffer);
}

TEST_P(InsertionBuffer, MayHoldFormatAndArgumentsAtOnce) {
  char buffer[32] = "%1%0%1\0one\0two";
  Insert(buffer, 31, buffer, {buffer + 7, buffer + 11});
  EXPECT_STREQ("twoonetwo", buffer);
}

TEST_P(InsertionBuffer, MayBeTheFormatOfAResultThatIsCut) {
  char buffer[9] = "%0%0%0%0";
  Insert(buffer, 8, buffer, {"abc"});
  EXPECT_STREQ("abcabca", buffer);
}

}  // namespace
