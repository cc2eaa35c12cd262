#include <gtest/gtest.h>

#include <cstdint>
#include <new>
#include <string>

#include "lang/language_contents.h"

namespace {

TEST(LanguageTable, AnswersTheValuesThatItWasGiven) {
  const std::string values(300, 'v');
  kx::LanguageTable table;
  for (int number = 0; number < 300; ++number) {
    table.Set("key" + std::to_string(number), values.c_str() + number);
  }
  for (int number = 0; number < 300; number += 2) {
    table.Set("KEY" + std::to_string(number), values.c_str());
  }
  EXPECT_EQ(300u, table.Size());
  for (int number = 0; number < 300; ++number) {
    const char* const value = values.c_str() + (number % 2 == 0 ? 0 : number);
    EXPECT_EQ(value, table.Find("Key" + std::to_string(number))) << number;
  }
  EXPECT_EQ(nullptr, table.Find("key300"));
}

TEST(LanguageTable, RefusesAValueThatItCannotHold) {
  kx::LanguageTable table;
  table.Set("key", "text");
  const auto* const beyond = reinterpret_cast<const char*>(std::uintptr_t{1} << 48);
  EXPECT_THROW(table.Set("key", beyond), std::bad_alloc);
  EXPECT_THROW(table.Set("other", beyond), std::bad_alloc);
  EXPECT_STREQ("text", table.Find("key"));
  EXPECT_EQ(nullptr, table.Find("other"));
  EXPECT_EQ(1u, table.Size());
}

}  // namespace
