#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "platform/wide_path_win32.h"

namespace {

struct PrefixCase {
  const char* name;
  std::wstring path;
  std::wstring expected;
};

void PrintTo(const PrefixCase& c, std::ostream* os) { *os << c.name; }

class WithoutLongPrefix : public testing::TestWithParam<PrefixCase> {};

TEST_P(WithoutLongPrefix, IsThePathAsOneWritesIt) {
  EXPECT_EQ(GetParam().expected, kx::WithoutLongPrefix(GetParam().path));
}

const PrefixCase kCut[] = {
    {"Drive", L"\\\\?\\D:\\a\\x.exe", L"D:\\a\\x.exe"},
    {"DriveInSmallLetters", L"\\\\?\\d:\\a\\x.exe", L"d:\\a\\x.exe"},
    {"RootOfADrive", L"\\\\?\\D:\\", L"D:\\"},
    {"Share", L"\\\\?\\UNC\\server\\share\\x.exe", L"\\\\server\\share\\x.exe"},
};

// Without the prefix these would be relative, and name something else or nothing.
const PrefixCase kKept[] = {
    {"Volume", L"\\\\?\\Volume{b75e2c83-0000-0000-0000-602f00000000}\\a\\x.exe",
     L"\\\\?\\Volume{b75e2c83-0000-0000-0000-602f00000000}\\a\\x.exe"},
    {"GlobalRoot", L"\\\\?\\GLOBALROOT\\Device\\HarddiskVolume2\\a\\x.exe",
     L"\\\\?\\GLOBALROOT\\Device\\HarddiskVolume2\\a\\x.exe"},
    {"DriveWithoutASeparator", L"\\\\?\\D:", L"\\\\?\\D:"},
    {"ColonBehindNoLetter", L"\\\\?\\1:\\a", L"\\\\?\\1:\\a"},
    {"ColonBehindAForeignLetter", L"\\\\?\\\u00C9:\\a", L"\\\\?\\\u00C9:\\a"},
    {"NothingElse", L"\\\\?\\", L"\\\\?\\"},
};

const PrefixCase kWithout[] = {
    {"NoPrefix", L"D:\\a\\x.exe", L"D:\\a\\x.exe"},
    {"ShareWithoutPrefix", L"\\\\server\\share\\x.exe", L"\\\\server\\share\\x.exe"},
    {"Empty", L"", L""},
};

std::string CaseName(const testing::TestParamInfo<PrefixCase>& row) { return row.param.name; }

INSTANTIATE_TEST_SUITE_P(Cut, WithoutLongPrefix, testing::ValuesIn(kCut), CaseName);
INSTANTIATE_TEST_SUITE_P(Kept, WithoutLongPrefix, testing::ValuesIn(kKept), CaseName);
INSTANTIATE_TEST_SUITE_P(Without, WithoutLongPrefix, testing::ValuesIn(kWithout), CaseName);

}  // namespace
