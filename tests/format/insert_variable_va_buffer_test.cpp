// What InsertVariableVA writes into its caller's buffer, and where it reads nothing.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <cstdint>
#include <cwchar>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "CKxXlate.h"
#include "format/varied_calls.h"
#include "support/guarded_buffer.h"

namespace {

TEST(InsertVariableVAHostile, CountWritesNothing) {
  for (const char* text : {"%n d", "%nd", "%hhns", "%5nx", "%1$nd", "%%%n d", "%d%n d", "%-nu"}) {
    std::int64_t first = 0x1234567;
    std::int64_t second = 0x1234567;
    GuardedBuffer buffer(kAmple);
    Vary(buffer.Data(), buffer.Size(), text, &first, &second, &second);
    EXPECT_EQ(0x1234567, first) << text;
    EXPECT_EQ(0x1234567, second) << text;
    EXPECT_EQ(kAmple, buffer.BytesWritten()) << text;
  }
}

TEST(InsertVariableVAHostile, SecondGroupOfAPieceTakesNoArgument) {
  GuardedBuffer buffer(kAmple);
  Vary(buffer.Data(), buffer.Size(), "<%e, %d> %d", 2.5, 7);
  EXPECT_THAT(buffer.Text(), testing::AnyOf("<2.500000e+00, %d> 7", "<2.500000e+00, > 7"));
  Vary(buffer.Data(), buffer.Size(), "<%X, %s:2> %s:1", "a", 255);
  EXPECT_THAT(buffer.Text(), testing::AnyOf("<FF, %s> a", "<FF, > a"));
}

TEST(InsertVariableVAHostile, CharactersThatCannotBeToldDoNotHurtTheRest) {
  GuardedBuffer buffer(kAmple);
  Vary(buffer.Data(), buffer.Size(), "<%ls|%lc> %d", L"\x20AC", static_cast<wint_t>(0x20AC), 7);
  const std::string text = buffer.Text();
  ASSERT_GE(text.size(), 5U);
  EXPECT_EQ('<', text.front());
  EXPECT_NE(std::string::npos, text.find('|'));
  EXPECT_EQ("> 7", text.substr(text.size() - 3));
}

TEST(InsertVariableVAHostile, PrecisionKeepsWithinATextThatHasNoEnd) {
  const auto text = std::make_unique<char[]>(3);
  text[0] = text[1] = text[2] = 'x';
  ExpectInserts(With(text.get()), "[%.3s|%5.2s:1]", kAmple, "[xxx|   xx]");
}

TEST(InsertVariableVALengths, OneValueIsCutAt16383Bytes) {
  const std::string value(20000, 'v');
  ExpectInserts(With(value.c_str(), 7), "<%s> %d", 30000, "<" + value.substr(0, 16383) + "> 7");
  ExpectInserts(With(5, 6), "<%20000d|%.20000d>", 40000,
                "<" + std::string(16382, ' ') + "5|" + std::string(16382, '0') + "6>");
}

TEST(InsertVariableVALengths, TheResultIsNotCut) {
  const std::string value(10000, 'v');
  std::string text;
  std::string expected;
  for (int i = 0; i < 100; ++i) {
    text += "%s:1,";
    expected += value + ",";
  }
  ExpectInserts(With(value.c_str()), text.c_str(), 1100000, expected);
}

TEST(InsertVariableVALengths, ManyPieces) {
  std::string text;
  std::string expected;
  for (int i = 0; i < 50000; ++i) {
    text += "%d:2 %s:1,";
    expected += "7 a,";
  }
  ExpectInserts(With("a", 7), text.c_str(), 250000, expected);
}

TEST(InsertVariableVALengths, AMegabyteWithoutALetterIsDropped) {
  const std::string text = "<%d" + std::string(1U << 20U, '%');
  ExpectInserts(With(5), text.c_str(), 16, "<5");
}

TEST(InsertVariableVABuffer, IsFilledWithZerosBehindTheResult) {
  ExpectInserts(With("abc"), "%s", 100, "abc");
  ExpectInserts(With(), "", 100, "");
}

TEST(InsertVariableVABuffer, OneByteLessThanTheSizeFits) {
  ExpectInserts(With("123"), "ab%s", 6, "ab123");
}

TEST(InsertVariableVABuffer, ExactlyTheSizeIsCutToOneByteLess) {
  ExpectInserts(With("123"), "ab%s", 5, "ab12");
}

TEST(InsertVariableVABuffer, OneByteMoreThanTheSizeIsCutToOneByteLess) {
  ExpectInserts(With("123"), "ab%s", 4, "ab1");
}

TEST(InsertVariableVABuffer, EverySizeKeepsTheRule) {
  const std::string result = "0123456789";
  for (KxSize size = 1; size <= 14; ++size) {
    SCOPED_TRACE(size);
    ExpectInserts(With(result.c_str()), "%s", size, result.substr(0, size - 1));
  }
}

TEST(InsertVariableVABuffer, OneByteTakesTheTerminator) {
  ExpectInserts(With("123"), "ab%s", 1, "");
  ExpectInserts(With(), "", 1, "");
}

TEST(InsertVariableVABuffer, NullTextIsTheEmptyText) { ExpectInserts(With("abc"), nullptr, 8, ""); }

TEST(InsertVariableVABuffer, SizeZeroWritesNothing) {
  GuardedBuffer buffer(0);
  Vary(buffer.Data(), 0, "%s", "abc");
  Vary(buffer.Data(), 0, "");
  Vary(buffer.Data(), 0, nullptr);
  EXPECT_EQ(0U, buffer.BytesWritten());
  EXPECT_TRUE(buffer.IsFrontUntouched());
}

TEST(InsertVariableVABuffer, NullBufferWritesNothing) {
  EXPECT_NO_THROW(Vary(nullptr, 8, "%s", "abc"));
  EXPECT_NO_THROW(Vary(nullptr, 0, "%s", "abc"));
  EXPECT_NO_THROW(Vary(nullptr, 8, nullptr));
}

TEST(InsertVariableVABuffer, MayBeTheTextOrAValue) {
  char buffer[32] = "%s:2 before %s:1";
  Vary(buffer, sizeof buffer, buffer, "a", "b");
  EXPECT_EQ(ZeroFilled("b before a", sizeof buffer), std::string(buffer, sizeof buffer));
  Vary(buffer, sizeof buffer, "<%s|%.1s:1>", buffer);
  EXPECT_EQ(ZeroFilled("<b before a|b>", sizeof buffer), std::string(buffer, sizeof buffer));
}

TEST(InsertVariableVAThreads, CallsAtOnceDoNotDisturbEachOther) {
  std::vector<std::thread> threads;
  std::atomic<int> wrong = 0;
  for (int number = 0; number < 8; ++number) {
    threads.emplace_back([number, &wrong] {
      const std::string expected = std::to_string(number) + " of " + std::to_string(number);
      for (int round = 0; round < 500; ++round) {
        char fixed[32];
        CKxXlate::InsertVariable(fixed, sizeof fixed, "%d:1 of %d:2", number, number);
        char varied[32];
        Vary(varied, sizeof varied, "%d of %u:1", number);
        if (fixed != expected || varied != expected) ++wrong;
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(0, wrong);
}

}  // namespace
