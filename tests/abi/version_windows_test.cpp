// What the system's own tools say of the library.

#include <gtest/gtest.h>
#include <windows.h>

#include <cstddef>
#include <string>
#include <vector>

#include "CKxXlate.h"

namespace {

/// The block of the DLL that describes it; empty when it has none.
std::vector<std::byte> Description() {
  const DWORD size = ::GetFileVersionInfoSizeW(L"KxXlate.dll", nullptr);
  std::vector<std::byte> description(size);
  if (::GetFileVersionInfoW(L"KxXlate.dll", 0, size, description.data()) == 0) return {};
  return description;
}

/// A value of the block; null when it is absent.
const void* Value(const std::vector<std::byte>& description, const wchar_t* path) {
  void* value = nullptr;
  UINT size = 0;
  return ::VerQueryValueW(description.data(), path, &value, &size) != 0 ? value : nullptr;
}

std::string Numbers(DWORD high, DWORD low) {
  return std::to_string(HIWORD(high)) + "." + std::to_string(LOWORD(high)) + "." +
         std::to_string(HIWORD(low)) + "." + std::to_string(LOWORD(low));
}

TEST(VersionResource, HasTheNumbersOfTheBanner) {
  ASSERT_STREQ("Vantorel version 12.8.0801.3003 [KxXlate.dll in common]", getProductVersion());
  const std::vector<std::byte> description = Description();
  ASSERT_FALSE(description.empty());

  const auto* const fixed = static_cast<const VS_FIXEDFILEINFO*>(Value(description, L"\\"));
  ASSERT_NE(nullptr, fixed);
  EXPECT_EQ("12.8.801.3003", Numbers(fixed->dwFileVersionMS, fixed->dwFileVersionLS));
  EXPECT_EQ("12.8.801.3003", Numbers(fixed->dwProductVersionMS, fixed->dwProductVersionLS));
  for (const wchar_t* const name : {L"FileVersion", L"ProductVersion"}) {
    const std::wstring path = std::wstring(L"\\StringFileInfo\\040904B0\\") + name;
    const auto* const text = static_cast<const wchar_t*>(Value(description, path.c_str()));
    ASSERT_NE(nullptr, text);
    EXPECT_STREQ(L"12.8.0801.3003", text);
  }
}

}  // namespace
