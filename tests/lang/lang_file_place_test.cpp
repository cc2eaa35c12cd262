// Which names of languages, regions and components may be parts of a path.

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "lang/lang_loader.h"

namespace {

struct StayCase {
  const char* name;
  const char* part;
  bool stays;
};

void PrintTo(const StayCase& c, std::ostream* os) { *os << '"' << c.part << '"'; }

class PartOfAPath : public testing::TestWithParam<StayCase> {};

TEST_P(PartOfAPath, StaysInDirectoryOrNot) {
  EXPECT_EQ(GetParam().stays, kx::StaysInDirectory(GetParam().part));
}

const StayCase kStays[] = {
    {"Empty", "", true},
    {"Language", "FR", true},
    {"Name", "agent", true},
    {"NameWithBrackets", "(Common)", true},
    {"Deeper", "a/b/c/agent", true},
    {"DeeperWithBackslashes", "a\\b\\c\\agent", true},
    {"BeginsWithASlash", "/agent", true},
    {"EndsWithASlash", "agent/", true},
    {"EmptyParts", "a//b\\\\c", true},
    {"DotsInNames", "..agent/a..b/..x", true},
    {"Above", "..", false},
    {"AboveAndAFile", "../agent", false},
    {"AboveWithBackslash", "..\\agent", false},
    {"BehindADirectory", "a/..", false},
    {"BehindADirectoryWithBackslash", "a\\..", false},
    {"BackAndForth", "a/../b", false},
    {"BackAndForthMixed", "a\\../b", false},
    {"BackAndForthMixedTheOtherWay", "a/..\\b", false},
    {"BackAndForthBackslashes", "a\\..\\b", false},
    {"BehindASlash", "/..", false},
    {"BehindTwoSlashes", "//..", false},
    {"BeforeASlash", "../", false},
    {"FarAbove", "a/../../../../etc", false},
    {"BehindTheOwnDirectory", "./..", false},
};

INSTANTIATE_TEST_SUITE_P(Names, PartOfAPath, testing::ValuesIn(kStays),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
