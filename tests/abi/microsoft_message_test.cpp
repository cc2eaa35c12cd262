// The strings of messages for hosts of Microsoft's compiler. Only their linker reads the pragma;
// the rest lays out and runs alike with every compiler, and with the sanitizers of this one.
#pragma GCC diagnostic ignored "-Wunknown-pragmas"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "microsoft/Xlate.h"

namespace {

const std::string kLong(100, 'x');

std::string Whole(const CKxString& text) {
  EXPECT_EQ('\0', text.c_str()[text.size()]);
  return text;
}

TEST(MicrosoftString, IsEmptyAtFirstAndFromNull) {
  EXPECT_EQ("", Whole(CKxString()));
  EXPECT_TRUE(CKxString().empty());
  const char* null = nullptr;
  EXPECT_EQ("", Whole(CKxString(null)));
  CKxString text("before");
  text = null;
  EXPECT_EQ("", Whole(text));
  text += null;
  EXPECT_EQ("", Whole(text));
}

TEST(MicrosoftString, HoldsTextsWithNulsOfAnyLength) {
  CKxString text(kLong);
  EXPECT_EQ(kLong, Whole(text));
  text.assign("a\0b", 3);
  EXPECT_EQ(std::string("a\0b", 3), Whole(text));
  text = std::string("c\0d", 3);
  EXPECT_EQ(std::string("c\0d", 3), Whole(text));
  text.clear();
  EXPECT_EQ("", Whole(text));
  EXPECT_TRUE(text.empty());
}

TEST(MicrosoftString, GrowsByEachWayOfAppending) {
  CKxString text("a");
  text.append("b").append("cd", 1).append(std::string("d"));
  text += "e";
  text += std::string("f");
  text.push_back('g');
  EXPECT_EQ("abcdefg", Whole(text));

  std::string expected = "abcdefg";
  for (int i = 0; i < 1000; ++i) {
    text.push_back(static_cast<char>('a' + i % 26));
    expected.push_back(static_cast<char>('a' + i % 26));
  }
  EXPECT_EQ(expected, Whole(text));
}

TEST(MicrosoftString, TakesPartsOfItself) {
  CKxString text("one two");
  text.assign(text.c_str() + 4, 3);
  EXPECT_EQ("two", Whole(text));
  std::string expected = "two";
  for (int i = 0; i < 6; ++i) {
    text.append(text.c_str(), text.size());
    expected += std::string(expected);
  }
  EXPECT_EQ(expected, Whole(text));
  const CKxString& same = text;
  text = same;
  EXPECT_EQ(expected, Whole(text));
}

TEST(MicrosoftString, IsCopiedAndMoved) {
  CKxString original(kLong);
  const CKxString copy(original);
  EXPECT_NE(original.c_str(), copy.c_str());
  const CKxString moved(std::move(original));
  EXPECT_EQ(kLong, Whole(copy));
  EXPECT_EQ(kLong, Whole(moved));
  CKxString assigned("other");
  assigned = copy;
  EXPECT_EQ(kLong, Whole(assigned));
  assigned = CKxString("short");
  EXPECT_EQ("short", Whole(assigned));
}

TEST(MicrosoftText, IsChangedByItsOperations) {
  CKxText text;
  text.Set("set");
  text.Append(" more");
  text.Append(nullptr);
  text.AppendString(CKxString(" and more"));
  EXPECT_EQ("set more and more", Whole(text.text));
  text.Set(nullptr);
  EXPECT_EQ("", Whole(text.text));
  text.Append("again");
  text.Clear();
  EXPECT_EQ("", Whole(text.text));
}

TEST(MicrosoftMessage, IsFormattedByTheLibrary) {
  Xlate message;
  message.args.assign("Ann\0", 4);
  message.args += kLong;
  message.argCount = 2;
  message.showKeys = true;
  EXPECT_EQ("[%1 and %0] " + kLong + " and Ann", CKxXlate::Format(&message, "%1 and %0"));
  const std::vector<Xlate> copies(3, message);
  EXPECT_EQ("[%1 and %0] " + kLong + " and Ann", Whole(copies[2].output.text));
  ReleaseTranslator(message);
  EXPECT_FALSE(message.resolved);
}

}  // namespace
