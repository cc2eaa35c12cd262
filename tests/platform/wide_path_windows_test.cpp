// What the system's calls are given. That they take it is shown in files_windows_test.cpp.

#include "platform/wide_path_win32.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <filesystem>
#include <ostream>
#include <string>

#include "platform/locale_name_win32.h"
#include "support/temp_tree.h"

namespace {

struct PathCase {
  const char* name;
  std::string path;
  std::wstring expected;
};

void PrintTo(const PathCase& c, std::ostream* os) { *os << '"' << c.path << '"'; }

class WidePath : public testing::TestWithParam<PathCase> {};

TEST_P(WidePath, IsWhatTheCallsTake) {
  EXPECT_EQ(GetParam().expected, kx::WidePath(GetParam().path.c_str()));
}

/// `path`, filled up with "x" to so many characters.
template <class Text>
Text Filled(Text path, std::size_t length) {
  path.resize(length, 'x');
  return path;
}

const PathCase kPlain[] = {
    {"Backslashes", "D:\\a\\b", L"D:\\a\\b"},
    {"Slashes", "D:/a/b", L"D:\\a\\b"},
    {"SeparatorAtTheEndStays", "D:/a/", L"D:\\a\\"},
    {"TwoSeparatorsAreOne", "D:/a//b", L"D:\\a\\b"},
    {"Dots", "D:/a/./b/../c", L"D:\\a\\c"},
    {"DotAndBlankBehindTheNameAreDropped", "D:/a/b. ", L"D:\\a\\b"},
    {"LettersOfTwoToFourBytes", "D:/\xC3\xA9\xE6\x97\xA5\xF0\x9F\x98\x80",
     L"D:\\\u00E9\u65E5\U0001F600"},
    {"OtherMachine", "\\\\server\\share/a", L"\\\\server\\share\\a"},
    {"OtherMachineWithSlashes", "//server/share/a", L"\\\\server\\share\\a"},
    {"LongestWithoutPrefix", Filled<std::string>("D:/", 247), Filled<std::wstring>(L"D:\\", 247)},
};

const PathCase kPrefixed[] = {
    {"Long", Filled<std::string>("D:/", 248), L"\\\\?\\" + Filled<std::wstring>(L"D:\\", 248)},
    {"LongOnOtherMachine", Filled<std::string>("//server/share/", 300),
     L"\\\\?\\UNC\\" + Filled<std::wstring>(L"\\\\server\\share\\", 300).substr(2)},
    {"PrefixIsKept", "\\\\?\\D:\\a", L"\\\\?\\D:\\a"},
    {"BehindThePrefixSlashesSeparateToo", "\\\\?\\D:\\a/b//c", L"\\\\?\\D:\\a\\b\\c"},
    {"PrefixWithSlashes", "//?/D:/a", L"\\\\?\\D:\\a"},
    {"LongWithPrefix", Filled<std::string>("//?/D:/", 300),
     Filled<std::wstring>(L"\\\\?\\D:\\", 300)},
};

const PathCase kRefused[] = {
    {"Empty", "", L""},
    {"Device", "NUL", L""},
    {"DeviceInSmallLetters", "con", L""},
    {"DeviceByItsPath", "\\\\.\\COM1", L""},
    {"PipeByItsPath", "//./pipe/x", L""},
    {"BrokenUtf8", "D:/a\xC3", L""},
    {"SurrogateInUtf8", "D:/\xED\xA0\x80", L""},
};

std::string CaseName(const testing::TestParamInfo<PathCase>& row) { return row.param.name; }

INSTANTIATE_TEST_SUITE_P(Plain, WidePath, testing::ValuesIn(kPlain), CaseName);
INSTANTIATE_TEST_SUITE_P(Prefixed, WidePath, testing::ValuesIn(kPrefixed), CaseName);
INSTANTIATE_TEST_SUITE_P(Refused, WidePath, testing::ValuesIn(kRefused), CaseName);

TEST(RelativePath, CountsWithTheWorkingDirectory) {
  const TempTree tree;
  const std::string directory(200 - tree.Path().size(), 'd');
  tree.MakeDirectory(directory);
  std::filesystem::current_path(PathFromUtf8(tree.Path(directory)));
  const std::wstring expected = PathFromUtf8(tree.SystemPath(directory)).wstring() + L"\\";

  EXPECT_EQ(expected + std::wstring(40, 'x'), kx::WidePath(std::string(40, 'x').c_str()));
  EXPECT_EQ(L"\\\\?\\" + expected + std::wstring(100, 'x'),
            kx::WidePath(("./" + std::string(100, 'x')).c_str()));
  std::filesystem::current_path(PathFromUtf8(tree.Path("..")));
}

TEST(LocaleFromSystemName, HasNoSortOrder) {
  EXPECT_EQ("es-ES", kx::LocaleFromSystemName(L"es-ES_tradnl"));
  EXPECT_EQ("zh-Hant-TW", kx::LocaleFromSystemName(L"zh-Hant-TW"));
  EXPECT_EQ("fr", kx::LocaleFromSystemName(L"fr"));
}

}  // namespace
