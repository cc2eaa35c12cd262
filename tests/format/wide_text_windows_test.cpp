// Wide texts in the locales of the runtime that the library is built with.

#include <gtest/gtest.h>

#include <clocale>
#include <cwchar>
#include <string>

#include "format/inserted.h"

namespace {

class WideTextOnWindows : public testing::Test {
 protected:
  void TearDown() override { std::setlocale(LC_ALL, "C"); }
};

// On other systems these become nothing, as what is no ASCII does there.
TEST_F(WideTextOnWindows, WithoutALocaleLatinLettersAreBytes) {
  EXPECT_EQ("<caf\xE9|\xFF>", Inserted("<%ls|%lc>", L"caf\xE9", wint_t{0xFF}));
}

TEST_F(WideTextOnWindows, HasTheCodePageOfTheLocale) {
  ASSERT_NE(nullptr, std::setlocale(LC_ALL, ".1252"));
  EXPECT_EQ("<\x80 \xE9|  \x80> 7", Inserted("<%ls|%3lc> %d", L"\x20AC \xE9", wint_t{0x20AC}, 7));
}

TEST_F(WideTextOnWindows, PrecisionCountsBytesAndCutsNoCharacter) {
  ASSERT_NE(nullptr, std::setlocale(LC_ALL, ".932"));
  const wchar_t* const text = L"\x3042\x3042";
  EXPECT_EQ("<\x82\xA0\x82\xA0|  \x82\xA0|\x82\xA0|>",
            Inserted("<%ls|%4.3ls|%.2ws|%.1ls>", text, text, text, text));
}

}  // namespace
