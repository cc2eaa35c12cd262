// A host may include the system's header as well, in either order: both declare what the headers
// ask the system.

// clang-format off
#include <windows.h>

#include "KxXlate.hpp"
// clang-format on

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

TEST(FaceBesideTheSystemsHeader, WindowsHeaderBefore) {
  EXPECT_NE("", kx::detail::ExecutablePath());
  EXPECT_TRUE(::SetEnvironmentVariableW(L"KX_FACE_TEST", L"\x00E9"));
  EXPECT_EQ("\xC3\xA9", kx::detail::EnvironmentVariable("KX_FACE_TEST"));
  EXPECT_EQ("", kx::detail::EnvironmentVariable("KX_FACE_ABSENT"));
}

}  // namespace
