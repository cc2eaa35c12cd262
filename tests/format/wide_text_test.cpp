// Wide texts in the locale of a program that has set none, which has ASCII alone.

#include <gtest/gtest.h>

#include <cwchar>
#include <string>

#include "format/inserted.h"

namespace {

const wchar_t* const kEuro =
    L"a\x20AC"
    L"b";

TEST(WideText, IsNothingWhenTheLocaleLacksOneOfItsCharacters) {
  EXPECT_EQ("<||> 7", Inserted("<%ls|%10ws|%-3.3ls> %d", kEuro, kEuro, kEuro, 7));
}

TEST(WideText, ACharacterThatTheLocaleLacksIsNothing) {
  EXPECT_EQ("<||> 7",
            Inserted("<%lc|%5wc|%-3lc> %d", wint_t{0x20AC}, wint_t{0x3042}, wint_t{0xFFFD}, 7));
}

TEST(WideText, WhatStandsBehindItsPrecisionIsNotLookedAt) {
  EXPECT_EQ("<a|  a|a  |>", Inserted("<%.1ls|%3.1ws|%-3.1ls|%.0ls>", kEuro, kEuro, kEuro, kEuro));
}

TEST(WideText, PrecisionOfACharacterCountsForNothing) {
  EXPECT_EQ("<w|  w|w>",
            Inserted("<%.0lc|%3.0wc|%.5lc>", wint_t{L'w'}, wint_t{L'w'}, wint_t{L'w'}));
}

TEST(WideText, ANulCharacterEndsItsValueAsOtherwise) {
  EXPECT_EQ("<|    |>", Inserted("<%lc|%5wc|%-5lc>", wint_t{0}, wint_t{0}, wint_t{0}));
}

}  // namespace
