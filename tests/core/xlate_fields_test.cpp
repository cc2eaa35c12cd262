// The message object that hosts and the library share.

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <type_traits>

#include "CKxXlate.h"
#include "Xlate.h"

namespace {

static_assert(std::is_same_v<CKxXlate*, decltype(Xlate::translator)>);
static_assert(std::is_same_v<std::uint64_t, decltype(Xlate::argCount)>);
static_assert(std::is_same_v<std::string, decltype(Xlate::args)>);
static_assert(std::is_same_v<CKxText, decltype(Xlate::output)>);
static_assert(std::is_same_v<std::string, decltype(Xlate::bundleName)>);
static_assert(std::is_same_v<CKxText, decltype(Xlate::locale)>);
static_assert(std::is_same_v<bool, decltype(Xlate::showKeys)>);
static_assert(std::is_same_v<bool, decltype(Xlate::resolved)>);
static_assert(std::is_same_v<bool, decltype(Xlate::useAdminLocale)>);
static_assert(std::is_polymorphic_v<CKxText>);

TEST(XlateFields, LieInTheAgreedOrder) {
  const Xlate message;
  const void* const fields[] = {&message.translator, &message.argCount,   &message.args,
                                &message.output,     &message.bundleName, &message.locale,
                                &message.showKeys,   &message.resolved,   &message.useAdminLocale};
  EXPECT_EQ(static_cast<const void*>(&message), fields[0]);
  for (std::size_t i = 1; i < std::size(fields); ++i) {
    EXPECT_LT(reinterpret_cast<std::uintptr_t>(fields[i - 1]),
              reinterpret_cast<std::uintptr_t>(fields[i]))
        << "field " << i;
  }
}

TEST(XlateFields, OfANewObjectAskForALookup) {
  const Xlate message;
  EXPECT_EQ(nullptr, message.translator);
  EXPECT_EQ(0U, message.argCount);
  EXPECT_FALSE(message.showKeys);
  EXPECT_FALSE(message.resolved);
  EXPECT_FALSE(message.useAdminLocale);
}

}  // namespace
