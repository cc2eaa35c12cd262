#include "platform/admin_locale.h"

#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <ostream>
#include <string>

#include "support/set_environment.h"

namespace {

using Variables = std::map<std::string, std::string>;

struct AdminLocaleCase {
  const char* name;
  Variables variables;
  std::optional<std::string> expected;
};

void PrintTo(const AdminLocaleCase& c, std::ostream* os) {
  for (const auto& [name, value] : c.variables) *os << name << '=' << value << ' ';
}

class AdminLocale : public testing::TestWithParam<AdminLocaleCase> {
 protected:
  static void Set(const Variables& variables) {
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) RemoveVariable(name);
    for (const auto& [name, value] : variables) SetVariable(name, value);
  }
};

TEST_P(AdminLocale, IsThatOfTheEnvironment) {
  Set(GetParam().variables);
  EXPECT_EQ(GetParam().expected, KxGetAdminLocale());
}

const AdminLocaleCase kCases[] = {
    {"NoVariable", {}, std::nullopt},
    {"All", {{"LC_ALL", "fr_CA"}}, "fr_CA"},
    {"Messages", {{"LC_MESSAGES", "fr_CA"}}, "fr_CA"},
    {"Language", {{"LANG", "fr_CA"}}, "fr_CA"},
    {"AllBeforeMessages", {{"LC_ALL", "de"}, {"LC_MESSAGES", "fr"}, {"LANG", "it"}}, "de"},
    {"MessagesBeforeLanguage", {{"LC_MESSAGES", "fr"}, {"LANG", "it"}}, "fr"},
    {"EmptyIsSkipped", {{"LC_ALL", ""}, {"LC_MESSAGES", ""}, {"LANG", "it"}}, "it"},
    {"AllAreEmpty", {{"LC_ALL", ""}, {"LC_MESSAGES", ""}, {"LANG", ""}}, std::nullopt},
    {"EncodingIsLeftOut", {{"LANG", "fr_CA.UTF-8"}}, "fr_CA"},
    {"OtherEncodingIsLeftOut", {{"LC_ALL", "ja_JP.eucJP"}}, "ja_JP"},
    {"LanguageAloneWithEncoding", {{"LC_MESSAGES", "fr.ISO-8859-1"}}, "fr"},
    {"C", {{"LANG", "C"}}, std::nullopt},
    {"Posix", {{"LANG", "POSIX"}}, std::nullopt},
    {"CWithEncoding", {{"LANG", "C.UTF-8"}}, std::nullopt},
    {"PosixWithEncoding", {{"LC_ALL", "POSIX.UTF-8"}}, std::nullopt},
    {"EncodingAlone", {{"LANG", ".UTF-8"}}, std::nullopt},
    {"VariantAlone", {{"LC_ALL", "@euro"}}, std::nullopt},
    {"EncodingAloneDecides", {{"LC_ALL", ".UTF-8"}, {"LANG", "it"}}, std::nullopt},
    {"CDecides", {{"LC_ALL", "C"}, {"LC_MESSAGES", "fr"}, {"LANG", "it"}}, std::nullopt},
    {"CWithEncodingDecides", {{"LC_MESSAGES", "C.UTF-8"}, {"LANG", "it"}}, std::nullopt},
    {"CIsNotTheBeginningOfAName", {{"LANG", "Cy_GB"}}, "Cy_GB"},
    {"OtherVariablesDoNotCount", {{"LC_CTYPE", "fr_FR"}, {"LANGUAGE", "de"}}, std::nullopt},
};

INSTANTIATE_TEST_SUITE_P(Variables, AdminLocale, testing::ValuesIn(kCases),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(AdminLocale, IsAskedForAnewEachTime) {
  Set({{"LANG", "fr"}});
  EXPECT_EQ("fr", KxGetAdminLocale());
  Set({{"LANG", "de"}});
  EXPECT_EQ("de", KxGetAdminLocale());
  Set({});
  EXPECT_EQ(std::nullopt, KxGetAdminLocale());
}

}  // namespace
