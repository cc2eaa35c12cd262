#include "lang/interned_strings.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <set>
#include <string>
#include <vector>

namespace {

class InternedStrings : public testing::Test {
 protected:
  const char* Intern(const std::string& text) { return table_.InternString(text.c_str()); }

  kx::InternTable table_;
};

TEST_F(InternedStrings, NullIsNull) { EXPECT_EQ(nullptr, table_.InternString(nullptr)); }

TEST_F(InternedStrings, EmptyTextsShareOneEmptyString) {
  const char first[] = "";
  const char second[] = "\0x";
  const char* const empty = table_.InternString(first);
  EXPECT_STREQ("", empty);
  EXPECT_EQ(empty, table_.InternString(second));
  EXPECT_NE(first, empty);
}

TEST_F(InternedStrings, TheEmptyStringStaysTheSameAmongOthers) {
  const char* const empty = Intern("");
  Intern("a");
  Intern(" ");
  EXPECT_EQ(empty, Intern(""));
  EXPECT_STREQ("", empty);
}

TEST_F(InternedStrings, EqualTextsShareOneCopy) {
  const std::string text = "Nom d'utilisateur";
  const char* const copy = Intern(text);
  EXPECT_EQ(text, copy);
  EXPECT_EQ(copy, Intern(std::string("Nom ") + "d'utilisateur"));
}

TEST_F(InternedStrings, CopyIsNotTheCallersMemory) {
  char text[] = "abc";
  const char* const copy = table_.InternString(text);
  EXPECT_NE(text, copy);
  text[0] = 'x';
  EXPECT_STREQ("abc", copy);
  EXPECT_EQ(copy, Intern("abc"));
  EXPECT_STREQ("xbc", Intern("xbc"));
}

TEST_F(InternedStrings, InterningACopyAnswersItself) {
  const char* const copy = Intern("abc");
  EXPECT_EQ(copy, table_.InternString(copy));
}

TEST_F(InternedStrings, PartOfACopyIsATextOfItsOwn) {
  const char* const copy = Intern("abc");
  const char* const part = table_.InternString(copy + 1);
  EXPECT_STREQ("bc", part);
  EXPECT_NE(copy + 1, part);
}

TEST_F(InternedStrings, EveryByteCounts) {
  const std::vector<std::string> texts = {
      "Login",   "login",   "LOGIN", "Logi", "Loginn",   " Login",   "Login ",
      "Login\t", "Login\n", "A",     "a",    "\xC3\xA9", "\xC3\x89", "e\xCC\x81",
      "e",       "\x7F",    "\x80",  "\xFF", "\x01",     " ",        "  "};
  std::set<const char*> copies;
  for (const std::string& text : texts) {
    const char* const copy = Intern(text);
    EXPECT_EQ(text, copy);
    copies.insert(copy);
  }
  EXPECT_EQ(texts.size(), copies.size());
}

TEST_F(InternedStrings, CopiesStayWhereTheyAre) {
  constexpr int kTexts = 5000;
  std::vector<const char*> copies;
  for (int i = 0; i < kTexts; ++i) copies.push_back(Intern("text " + std::to_string(i)));
  for (int i = 0; i < kTexts; ++i) {
    const std::string text = "text " + std::to_string(i);
    ASSERT_EQ(text, copies[static_cast<std::size_t>(i)]);
    ASSERT_EQ(copies[static_cast<std::size_t>(i)], Intern(text));
  }
}

TEST_F(InternedStrings, LongTextsAreKeptWhole) {
  const std::string text(100000, 'x');
  const char* const copy = Intern(text);
  EXPECT_EQ(text, copy);
  EXPECT_EQ(copy, Intern(text));
  EXPECT_NE(copy, Intern(text + "x"));
}

TEST_F(InternedStrings, TablesAreApart) {
  kx::InternTable other;
  const char* const copy = Intern("abc");
  const char* const otherCopy = other.InternString("abc");
  EXPECT_NE(copy, otherCopy);
  EXPECT_STREQ("abc", otherCopy);
}

TEST_F(InternedStrings, TheProcessHasOneTable) {
  const char* const copy = kx::ProcessInternTable().InternString("of the process");
  EXPECT_EQ(copy, kx::ProcessInternTable().InternString("of the process"));
  EXPECT_NE(copy, Intern("of the process"));
}

}  // namespace
