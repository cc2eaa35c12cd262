// What the tool's file says to the system.

#include <gtest/gtest.h>
#include <windows.h>

#include <cstddef>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "CKxXlate.h"
#include "support/temp_tree.h"

namespace {

constexpr wchar_t kSettings[] = L"http://schemas.microsoft.com/SMI/2016/WindowsSettings";

std::wstring Tool() { return PathFromUtf8(KXXLATE_TOOL).make_preferred().wstring(); }

std::vector<std::byte> Description() {
  const std::wstring tool = Tool();
  std::vector<std::byte> description(::GetFileVersionInfoSizeW(tool.c_str(), nullptr));
  const auto size = static_cast<DWORD>(description.size());
  if (::GetFileVersionInfoW(tool.c_str(), 0, size, description.data()) == 0) return {};
  return description;
}

/// A text of the description; "(absent)" when it has none of that name.
std::wstring Text(const std::vector<std::byte>& description, const std::wstring& name) {
  const std::wstring path = L"\\StringFileInfo\\040904B0\\" + name;
  void* text = nullptr;
  UINT size = 0;
  if (::VerQueryValueW(description.data(), path.c_str(), &text, &size) == 0) return L"(absent)";
  return static_cast<const wchar_t*>(text);
}

/// The number in the library's banner.
std::wstring LibrarysVersion() {
  std::istringstream banner(getProductVersion());
  std::string word;
  for (int at = 0; at < 3; ++at) banner >> word;
  return {word.begin(), word.end()};
}

/// The manifest in the tool's file, as the system reads it.
class Manifest {
 public:
  Manifest() {
    const std::wstring tool = Tool();
    ACTCTXW asked = {};
    asked.cbSize = sizeof asked;
    asked.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID;
    asked.lpSource = tool.c_str();
    asked.lpResourceName = MAKEINTRESOURCEW(1);
    read_ = ::CreateActCtxW(&asked);
  }
  ~Manifest() {
    if (IsRead()) ::ReleaseActCtx(read_);
  }
  Manifest(const Manifest&) = delete;
  Manifest& operator=(const Manifest&) = delete;

  bool IsRead() const { return read_ != INVALID_HANDLE_VALUE; }

  std::wstring Setting(const wchar_t* space, const wchar_t* name) const {
    wchar_t value[20] = {};
    if (::QueryActCtxSettingsW(0, read_, space, name, value, 20, nullptr) == 0) return L"(absent)";
    return value;
  }

 private:
  HANDLE read_;
};

TEST(ToolsFile, HasTheVersionOfTheLibrary) {
  const std::vector<std::byte> description = Description();
  ASSERT_FALSE(description.empty());
  EXPECT_EQ(L"12.8.0801.3003", LibrarysVersion());
  EXPECT_EQ(LibrarysVersion(), Text(description, L"FileVersion"));
  EXPECT_EQ(LibrarysVersion(), Text(description, L"ProductVersion"));
  EXPECT_EQ(L"kxxlate.exe", Text(description, L"OriginalFilename"));
  EXPECT_EQ(L"kxxlate", Text(description, L"InternalName"));
  EXPECT_EQ(L"Texts of KxXlate catalogues", Text(description, L"FileDescription"));

  void* fixed = nullptr;
  UINT size = 0;
  ASSERT_NE(0, ::VerQueryValueW(description.data(), L"\\", &fixed, &size));
  const auto* const numbers = static_cast<const VS_FIXEDFILEINFO*>(fixed);
  EXPECT_EQ(12u << 16U | 8u, numbers->dwFileVersionMS);
  EXPECT_EQ(801u << 16U | 3003u, numbers->dwFileVersionLS);
  EXPECT_EQ(12u << 16U | 8u, numbers->dwProductVersionMS);
  EXPECT_EQ(801u << 16U | 3003u, numbers->dwProductVersionLS);
  EXPECT_EQ(VFT_APP, static_cast<int>(numbers->dwFileType));
}

TEST(ToolsFile, AsksForLongPathsAndForNoCodePage) {
  const Manifest manifest;
  ASSERT_TRUE(manifest.IsRead());
  EXPECT_EQ(L"true", manifest.Setting(kSettings, L"longPathAware"));
  EXPECT_EQ(L"(absent)", manifest.Setting(L"http://schemas.microsoft.com/SMI/2019/WindowsSettings",
                                          L"activeCodePage"));
}

TEST(ToolsFile, NamesNoCallThatChangesAConsolesCodePage) {
  std::ifstream stream(PathFromUtf8(KXXLATE_TOOL), std::ios::binary);
  const std::string file{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
  ASSERT_NE(std::string::npos, file.find("WriteConsoleW"));
  EXPECT_EQ(std::string::npos, file.find("SetConsoleOutputCP"));
  EXPECT_EQ(std::string::npos, file.find("SetConsoleCP"));
}

}  // namespace
