#include <gtest/gtest.h>

#include "CKxXlate.h"

/// The library's entry by the name that stands in its table of names.
const char* VersionByUndecoratedName() __asm__("getProductVersion");

namespace {

TEST(ProductVersion, IsTheBanner) {
  EXPECT_STREQ("Vantorel version 12.8.0801.3003 [KxXlate.dll in common]", getProductVersion());
}

TEST(ProductVersion, IsTheSamePointerEachTime) {
  const char* const first = getProductVersion();
  EXPECT_EQ(first, getProductVersion());
  EXPECT_EQ(first, getProductVersion());
}

TEST(ProductVersion, IsFoundByItsUndecoratedName) {
  EXPECT_EQ(getProductVersion(), VersionByUndecoratedName());
}

}  // namespace
