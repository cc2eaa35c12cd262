// What the operations that copy write into their caller's buffer.

#include <gtest/gtest.h>

#include <limits>
#include <ostream>
#include <string>

#include "bundles/properties_translator.h"
#include "support/guarded_buffer.h"

namespace {

constexpr KxSize kHugeSize = std::numeric_limits<KxSize>::max();

TEST_F(PropertiesTranslator, HasNoDirectoriesAndLabels) {
  CKxXlate& translator = Read("Hello=Bonjour\n");

  for (const char* name : {"Hello", "absent", "", static_cast<const char*>(nullptr)}) {
    SCOPED_TRACE(name == nullptr ? "(null)" : name);
    EXPECT_EQ(nullptr, translator.GetDirectory(name));
    EXPECT_EQ(nullptr, translator.GetLabel(name));
    for (const KxSize size : {1u, 8u}) {
      GuardedBuffer directory(size);
      EXPECT_FALSE(translator.GetDirectory(directory.Data(), size, name));
      EXPECT_EQ("", directory.Text());
      EXPECT_EQ(1u, directory.BytesWritten());
      EXPECT_TRUE(directory.IsFrontUntouched());
      GuardedBuffer label(size);
      EXPECT_FALSE(translator.GetLabel(label.Data(), size, name));
      EXPECT_EQ("", label.Text());
      EXPECT_EQ(1u, label.BytesWritten());
      EXPECT_TRUE(label.IsFrontUntouched());
    }
  }
}

TEST_F(PropertiesTranslator, HasNoPromptsAndDoesNotUseTheirDefault) {
  CKxXlate& translator = Read("Hello=Bonjour\n");

  for (const char* key : {"Hello", "absent", "", static_cast<const char*>(nullptr)}) {
    for (const char* dflt : {"default", "", static_cast<const char*>(nullptr)}) {
      SCOPED_TRACE(key == nullptr ? "(null)" : key);
      GuardedBuffer buffer(16);
      EXPECT_FALSE(translator.GetPrompt(buffer.Data(), buffer.Size(), key, dflt));
      EXPECT_EQ("", buffer.Text());
      EXPECT_EQ(1u, buffer.BytesWritten());
      EXPECT_TRUE(buffer.IsFrontUntouched());
    }
  }
}

struct CopyCase {
  const char* name;
  KxSize size;
  const char* expected;
};

void PrintTo(const CopyCase& c, std::ostream* os) { *os << c.size; }

class PropertiesTranslatorCopies : public PropertiesTranslator,
                                   public testing::WithParamInterface<CopyCase> {};

TEST_P(PropertiesTranslatorCopies, WhatFitsAndAnswersThatItWasFound) {
  const CopyCase& c = GetParam();
  CKxXlate& translator = Read("K=Hello\n");
  GuardedBuffer buffer(c.size);

  EXPECT_TRUE(translator.GetText(buffer.Data(), c.size, "k", "default"));
  EXPECT_EQ(c.expected, buffer.Text());
  EXPECT_EQ(std::string(c.expected).size() + 1, buffer.BytesWritten());
  EXPECT_TRUE(buffer.IsFrontUntouched());
}

TEST_P(PropertiesTranslatorCopies, WhatFitsOfTheDefault) {
  const CopyCase& c = GetParam();
  CKxXlate& translator = Read("K=x\n");
  GuardedBuffer buffer(c.size);

  EXPECT_FALSE(translator.GetText(buffer.Data(), c.size, nullptr, "Hello"));
  EXPECT_EQ(c.expected, buffer.Text());
  EXPECT_EQ(std::string(c.expected).size() + 1, buffer.BytesWritten());
  EXPECT_TRUE(buffer.IsFrontUntouched());
}

const CopyCase kCopies[] = {
    {"TerminatorOnly", 1, ""}, {"OneByte", 2, "H"},           {"SomeBytes", 4, "Hel"},
    {"OneTooFew", 5, "Hell"},  {"ExactlyEnough", 6, "Hello"}, {"OneToSpare", 7, "Hello"},
    {"Much", 200, "Hello"},
};

INSTANTIATE_TEST_SUITE_P(Sizes, PropertiesTranslatorCopies, testing::ValuesIn(kCopies),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(PropertiesTranslator, CopyIsCutBetweenBytes) {
  CKxXlate& translator = Read("K=\xC3\xA9\xC3\xA9\n");
  GuardedBuffer buffer(4);

  EXPECT_TRUE(translator.GetText(buffer.Data(), buffer.Size(), "K", nullptr));
  EXPECT_EQ("\xC3\xA9\xC3", buffer.Text());
}

TEST_F(PropertiesTranslator, EmptyTextIsFound) {
  CKxXlate& translator = Read("K=\n");
  GuardedBuffer buffer(8);

  EXPECT_STREQ("", translator.GetText("K"));
  EXPECT_TRUE(translator.GetText(buffer.Data(), buffer.Size(), "K", "default"));
  EXPECT_EQ("", buffer.Text());
  EXPECT_EQ(1u, buffer.BytesWritten());
}

TEST_F(PropertiesTranslator, NullDefaultIsTheEmptyText) {
  CKxXlate& translator = Read("K=x\n");
  GuardedBuffer buffer(8);

  EXPECT_FALSE(translator.GetText(buffer.Data(), buffer.Size(), nullptr, nullptr));
  EXPECT_EQ("", buffer.Text());
  EXPECT_EQ(1u, buffer.BytesWritten());
}

TEST_F(PropertiesTranslator, BufferMayBeItsOwnDefault) {
  CKxXlate& translator = Read("K=x\n");
  char buffer[16] = "as before";

  EXPECT_FALSE(translator.GetText(buffer, sizeof buffer, nullptr, buffer));
  EXPECT_STREQ("as before", buffer);
}

TEST_F(PropertiesTranslator, SizeMayBeTheLargest) {
  CKxXlate& translator = Read("K=Hello\n");
  GuardedBuffer buffer(8);

  EXPECT_TRUE(translator.GetText(buffer.Data(), kHugeSize, "K", nullptr));
  EXPECT_EQ("Hello", buffer.Text());
  EXPECT_EQ(6u, buffer.BytesWritten());
}

TEST_F(PropertiesTranslator, SizeZeroWritesNothing) {
  CKxXlate& translator = Read("K=Hello\n");
  GuardedBuffer buffer(8);
  char* const dst = buffer.Data();

  EXPECT_FALSE(translator.GetText(dst, 0, "K", "default"));
  EXPECT_FALSE(translator.GetText(dst, 0, nullptr, "default"));
  EXPECT_FALSE(translator.GetText(dst, 0, nullptr, nullptr));
  EXPECT_FALSE(translator.GetPrompt(dst, 0, "K", "default"));
  EXPECT_FALSE(translator.GetDirectory(dst, 0, "K"));
  EXPECT_FALSE(translator.GetLabel(dst, 0, "K"));
  EXPECT_EQ(0u, buffer.BytesWritten());
  EXPECT_TRUE(buffer.IsFrontUntouched());
}

TEST_F(PropertiesTranslator, NullBufferAnswersFalse) {
  CKxXlate& translator = Read("K=Hello\n");

  for (const KxSize size : {KxSize{0}, KxSize{1}, KxSize{8}, kHugeSize}) {
    SCOPED_TRACE(size);
    EXPECT_FALSE(translator.GetText(nullptr, size, "K", "default"));
    EXPECT_FALSE(translator.GetText(nullptr, size, nullptr, "default"));
    EXPECT_FALSE(translator.GetPrompt(nullptr, size, "K", "default"));
    EXPECT_FALSE(translator.GetDirectory(nullptr, size, "K"));
    EXPECT_FALSE(translator.GetLabel(nullptr, size, "K"));
  }
}

}  // namespace
