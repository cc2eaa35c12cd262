// Which of a language's files answers when all of them say everything: each row is a tree of files,
// a request, and the file that wins.

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "scenarios/language_files.h"

namespace {

struct PrecedenceCase {
  const char* name;
  std::vector<std::string> files;
  Request request;
  std::string winner;
};

void PrintTo(const PrecedenceCase& c, std::ostream* os) { *os << c.winner; }

class LanguagePrecedence : public LanguageFiles,
                           public testing::WithParamInterface<PrecedenceCase> {};

TEST_P(LanguagePrecedence, AnswersFromTheMostSpecificFile) {
  const PrecedenceCase& c = GetParam();
  for (const std::string& file : c.files) {
    Write(file, "Name " + file + "\nImages " + file + "\nCharset UTF-8\nPrompt Suffix " + file +
                    "\nDirectory K " + file + "\n\nKey K\nValue " + file + "\nButton K\nLabel " +
                    file + "\n");
  }
  const Held translator = Find(c.request);
  ASSERT_NE(nullptr, translator);
  EXPECT_EQ(c.winner, translator->GetText("K"));
  EXPECT_EQ(c.winner, translator->GetLabel("K"));
  EXPECT_EQ(c.winner, translator->GetDirectory("K"));
  EXPECT_EQ(c.winner + "|UTF-8|" + c.winner + "||" + c.winner + "|", HeaderOf(*translator));
  EXPECT_EQ("(no file)", Log());
}

const std::vector<std::string> kAllFour = {kCommon, kNamed, kCommonOfCountry, kNamedOfCountry};

const PrecedenceCase kPrecedence[] = {
    {"AllFour", kAllFour, kCanadian, kNamedOfCountry},
    {"CommonOfCountryBeforeNamed",
     {kCommon, kNamed, kCommonOfCountry},
     kCanadian,
     kCommonOfCountry},
    {"NamedBeforeCommon", {kCommon, kNamed}, kCanadian, kNamed},
    {"NamedOfCountryBeforeCommonOfCountry",
     {kCommonOfCountry, kNamedOfCountry},
     kCanadian,
     kNamedOfCountry},
    {"CommonAlone", {kCommon}, kCanadian, kCommon},
    {"NamedAlone", {kNamed}, kCanadian, kNamed},
    {"CommonOfCountryAlone", {kCommonOfCountry}, kCanadian, kCommonOfCountry},
    {"NamedOfCountryAlone", {kNamedOfCountry}, kCanadian, kNamedOfCountry},
    {"WithoutCountryItsFilesAreNotRead", kAllFour, kFrench, kNamed},
    {"EmptyCountryIsNone", {kNamed, "FR-/agent.lang"}, {"agent", "fr", ""}, kNamed},
    {"FilesOfOtherComponentsAreNotRead", {kCommon, "FR/other.lang"}, kFrench, kCommon},
    {"FilesOfOtherCountriesAreNotRead", {kNamed, "FR-BE/agent.lang"}, kCanadian, kNamed},
    {"EmptyNameReadsTheCommonFiles", kAllFour, {"", "fr", "ca"}, kCommonOfCountry},
    {"CodesAreFoundInCapitals",
     {kNamedOfCountry, "fr-ca/agent.lang", "Fr/agent.lang"},
     {"agent", "Fr", "cA"},
     kNamedOfCountry},
    {"NamesAreFoundAsGiven", {kNamed, "FR/Agent.lang"}, {"Agent", "fr", nullptr}, "FR/Agent.lang"},
    {"EmptyLanguageReadsTheTop",
     {"(Common).lang", "agent.lang"},
     {"agent", "", nullptr},
     "agent.lang"},
    {"EmptyLanguageWithCountry",
     {"agent.lang", "-AT/agent.lang"},
     {"agent", "", "at"},
     "-AT/agent.lang"},
    {"EnglishOfACountry",
     {"EN/agent.lang", "EN-US/agent.lang"},
     {"agent", "en", "us"},
     "EN-US/agent.lang"},
};

INSTANTIATE_TEST_SUITE_P(Trees, LanguagePrecedence, testing::ValuesIn(kPrecedence),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
