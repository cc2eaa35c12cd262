// Messages that hosts copy and move, and their texts.

#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <utility>

#include "Xlate.h"

namespace {

// Hosts have them by value, compiled long ago: they hold a table of operations and a string.
struct TableAndString {
  const void* table;
  std::string text;
};
static_assert(sizeof(CKxText) == sizeof(TableAndString));
static_assert(alignof(CKxText) == alignof(TableAndString));

static_assert(std::is_copy_constructible_v<CKxText> && std::is_copy_assignable_v<CKxText>);
static_assert(std::is_nothrow_move_constructible_v<CKxText>);
static_assert(std::is_nothrow_move_assignable_v<CKxText>);
static_assert(std::is_nothrow_move_constructible_v<Xlate>);

/// Longer than what a string holds without memory of its own.
const std::string kLong(100, 'x');

CKxText TextOf(const std::string& text) {
  CKxText holder;
  holder.text = text;
  return holder;
}

TEST(MessageText, IsCopied) {
  const CKxText text = TextOf(kLong);
  const CKxText made = text;
  CKxText assigned = TextOf("other");
  assigned = text;
  EXPECT_EQ(kLong, made.text);
  EXPECT_EQ(kLong, assigned.text);
  EXPECT_EQ(kLong, text.text);
}

TEST(MessageText, IsMovedWithoutACopyOfItsBytes) {
  CKxText text = TextOf(kLong);
  const char* const bytes = text.text.c_str();
  CKxText made = std::move(text);
  EXPECT_EQ(bytes, made.text.c_str());
  CKxText assigned = TextOf("other");
  assigned = std::move(made);
  EXPECT_EQ(bytes, assigned.text.c_str());
  EXPECT_EQ(kLong, assigned.text);
}

TEST(MessageText, OfACopyIsChangedAlone) {
  const CKxText text = TextOf("a");
  CKxText copy = text;
  copy.Append("b");
  EXPECT_EQ("a", text.text);
  EXPECT_EQ("ab", copy.text);
}

TEST(Message, ThatIsNotResolvedIsCopied) {
  Xlate message;
  message.bundleName = "agent";
  message.locale.Set("fr");
  message.args = std::string("Ann\0", 4);
  message.argCount = 1;
  const Xlate copy = message;
  EXPECT_EQ("agent", copy.bundleName);
  EXPECT_EQ("fr", copy.locale.text);
  EXPECT_EQ(std::string("Ann\0", 4), copy.args);
  EXPECT_EQ(1U, copy.argCount);
  EXPECT_EQ(nullptr, copy.translator);
}

}  // namespace
