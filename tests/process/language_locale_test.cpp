// Which directory a locale leads to.

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "process/language_directory.h"

namespace {

struct SplitCase {
  const char* name;
  const char* locale;
  const char* directory;  // the most specific one that is read
  const char* codes;
};

void PrintTo(const SplitCase& c, std::ostream* os) { *os << '"' << c.locale << '"'; }

const SplitCase kSplits[] = {
    {"Language", "de", "DE", "DE|"},
    {"Hyphen", "fr-CA", "FR-CA", "FR|CA"},
    {"Underscore", "fr_CA", "FR-CA", "FR|CA"},
    {"SmallLetters", "fr_ca", "FR-CA", "FR|CA"},
    {"Capitals", "FR-CA", "FR-CA", "FR|CA"},
    {"LongRegionIsDropped", "de_AUT", "DE", "DE|"},
    {"LongRegionBehindHyphenIsDropped", "de-AUT", "DE", "DE|"},
    {"NumericRegionIsDropped", "es-419", "ES", "ES|"},
    {"ShortRegionIsDropped", "de-A", "DE", "DE|"},
    {"EmptyRegion", "de-", "DE", "DE|"},
    {"ScriptIsDropped", "zh-Hant-TW", "ZH-TW", "ZH|TW"},
    {"ScriptAlone", "zh-Hant", "ZH", "ZH|"},
    {"ScriptWithUnderscores", "zh_Hant_TW", "ZH", "ZH|"},
    {"RegionRunsIntoTheRestBehindAScript", "zh-Hant-TW-x", "ZH-TW-X", "ZH|TW-X"},
    {"CountIsThePlaceOfTheSecondHyphen", "en-US-POSIX", "EN-US-PO", "EN|US-PO"},
    {"CountEndsWithTheLocale", "de-AT-x", "DE-AT-X", "DE|AT-X"},
    {"SecondHyphenAtTheEnd", "de-AT-", "DE-AT-", "DE|AT-"},
    {"OneLetterInBetween", "de-x-AT", "DE-AT", "DE|AT"},
    {"UnderscoreIsNoSecondSeparator", "en_US_x", "EN", "EN|"},
    {"UnderscoreBehindAHyphen", "fr-CA_x", "FR", "FR|"},
    {"UnderscoreBeforeAHyphen", "fr_CA-BE", "FR_CA-BE", "FR_CA|BE"},
    {"RegionAlone", "-AT", "-AT", "|AT"},
};

class LocaleOfHost : public testing::TestWithParam<SplitCase> {};

TEST_P(LocaleOfHost, LeadsToItsDirectory) {
  HostTree tree;
  for (const SplitCase& c : kSplits) {
    tree.Write(std::string("product/resources/") + c.directory + "/agent.lang", File(c.directory));
  }
  const SplitCase& c = GetParam();
  const HostRun run = tree.RunHostIn("product/bin", {"text", "agent", c.locale, "K", "info",
                                                     "agent", c.locale, "id", "agent", c.locale});
  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ(std::string(c.directory) + "\nagent|" + c.codes + "\n1\n", run.output);
  EXPECT_EQ("", run.errors);
  EXPECT_EQ("(no file)", tree.Read("product/log/translate.log"));
}

INSTANTIATE_TEST_SUITE_P(Locales, LocaleOfHost, testing::ValuesIn(kSplits),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
