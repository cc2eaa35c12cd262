// Messages with real catalogues, and what becomes of the translators that they find.

#include <gtest/gtest.h>

#include <map>
#include <ostream>
#include <string>
#include <vector>

#include "support/host_tree.h"

namespace {

using Steps = std::vector<std::string>;

/// A product with language files in English, French and Canadian French, and a property bundle.
class FormattedMessage : public testing::Test {
 protected:
  FormattedMessage() {
    WriteLanguage("EN", "English", "Hello %0");
    WriteLanguage("FR", "French", "Bonjour %0");
    WriteLanguage("FR-CA", "Canadian French", "Allo %0");
    tree_.Write("product/resources/shop.properties", "GREET=Default %0\n");
    tree_.Write("product/resources/shop_fr.properties", "GREET=Salut %0\n");
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) tree_.SetEnvironment(name, "");
  }

  static std::string LanguageFile(const std::string& name, const std::string& greeting) {
    return "Name " + name + "\n\nKey GREET\nValue " + greeting + "\n";
  }

  void WriteLanguage(const std::string& directory, const std::string& name,
                     const std::string& greeting) {
    tree_.Write("product/resources/" + directory + "/(Common).lang", LanguageFile(name, greeting));
  }

  std::string LanguagePath(const std::string& directory) const {
    return tree_.Path("product/resources/" + directory + "/(Common).lang");
  }

  /// What the host prints that takes these steps without a problem.
  std::string Output(const Steps& steps) const {
    const HostRun run = tree_.RunCopyIn("product/bin", KXXLATE_FORMAT_HOST, steps);
    EXPECT_EQ(0, run.exitCode);
    EXPECT_EQ("", run.errors);
    return run.output;
  }

  HostTree tree_;
};

TEST_F(FormattedMessage, HasTheTextOfALanguageFile) {
  EXPECT_EQ("Bonjour Ann\nFR-\n", Output({"bundle", "agent", "locale", "fr", "argument", "Ann",
                                          "format", "GREET", "language"}));
}

TEST_F(FormattedMessage, HasTheTextOfTheRegion) {
  EXPECT_EQ("Allo Ann\nFR-CA\n", Output({"bundle", "agent", "locale", "fr_CA", "argument", "Ann",
                                         "format", "GREET", "language"}));
}

TEST_F(FormattedMessage, HasTheTextOfAPropertyBundle) {
  EXPECT_EQ("Salut Ann\n[GREET] Default Ann\n",
            Output({"bundle", "shop", "locale", "fr-CA", "argument", "Ann", "format", "GREET",  //
                    "new", "bundle", "shop", "argument", "Ann", "keys", "format", "GREET"}));
}

TEST_F(FormattedMessage, FallsBackToEnglishFiles) {
  EXPECT_EQ("Hello Ann\nEN-\n", Output({"bundle", "agent", "locale", "de-AT", "argument", "Ann",
                                        "format", "GREET", "language"}));
}

TEST_F(FormattedMessage, IsEnglishWithoutALocale) {
  EXPECT_EQ("Hello Ann\n", Output({"bundle", "agent", "argument", "Ann", "format", "GREET"}));
}

TEST_F(FormattedMessage, AbsentKeyIsFormattedAsTheText) {
  EXPECT_EQ("No user Ann\n[NO_KEY] NO_KEY (Ann)\n",
            Output({"bundle", "agent", "locale", "fr", "argument", "Ann", "format", "No user %0",
                    "keys", "format", "NO_KEY"}));
}

TEST_F(FormattedMessage, WithoutBundleNameEachKeyIsTheText) {
  EXPECT_EQ("GREET (Ann)\nfr resolved\nGREET (Ann)\n",
            Output({"locale", "fr", "argument", "Ann", "format", "GREET", "fields",
                    // Not looked up again, though there is a name now.
                    "bundle", "agent", "format", "GREET"}));
}

TEST_F(FormattedMessage, LaterLookupFindsWhatTheFirstOneDidNot) {
  EXPECT_EQ("GREET\nBonjour %0\n", Output({"locale", "fr", "format", "GREET", "bundle", "agent",
                                           "unresolve", "format", "GREET"}));
}

TEST_F(FormattedMessage, LaterLookupMayFindNothing) {
  EXPECT_EQ("Bonjour %0\nGREET\n", Output({"bundle", "agent", "locale", "fr", "format", "GREET",
                                           "bundle", "", "unresolve", "format", "GREET"}));
}

TEST_F(FormattedMessage, KeepsItsTranslatorUntilResolvedIsCleared) {
  EXPECT_EQ("Bonjour %0\nBonjour %0\nBonjour %0\nAllo %0\nDefault %0\n",
            Output({"bundle",    "agent",  "locale", "fr",    "format",    "GREET",  //
                    "locale",    "fr-CA",  "format", "GREET",                        //
                    "bundle",    "other",  "format", "GREET",                        //
                    "unresolve", "format", "GREET",                                  //
                    "bundle",    "shop",   "locale", "",      "unresolve", "format", "GREET"}));
}

TEST_F(FormattedMessage, KeepsItsTextsWhenAFileChanges) {
  EXPECT_EQ("Bonjour %0\nBonjour %0\nCoucou %0\nfalse\n",
            Output({"bundle", "agent", "locale", "fr", "format", "GREET",              //
                    "write", LanguagePath("FR"), LanguageFile("French", "Coucou %0"),  //
                    "touch", LanguagePath("FR"), "1000000000", "format", "GREET",      //
                    "unresolve", "format", "GREET", "same"}));
}

TEST_F(FormattedMessage, TwoOfOneBundleShareTheTranslator) {
  EXPECT_EQ("Bonjour %0\nBonjour %0\ntrue\n",
            Output({"bundle", "agent", "locale", "fr", "format", "GREET",  //
                    "new", "bundle", "agent", "locale", "FR", "format", "GREET", "same"}));
}

TEST_F(FormattedMessage, EachResolutionLeavesAReference) {
  // Found once: a reference of the message's own, one more, and the cache's.
  EXPECT_EQ("Bonjour %0\ntrue\nBonjour %0\nfalse\n",
            Output({"bundle", "agent", "locale", "fr", "format", "GREET", "release", "free",
                    "alive", "ask", "GREET", "drop", "alive"}));
}

TEST_F(FormattedMessage, EachResolutionLeavesAReferenceOnTheSameTranslatorAgain) {
  EXPECT_EQ("Bonjour %0\nBonjour %0\nBonjour %0\ntrue\ntrue\nBonjour %0\ntrue\nfalse\n",
            Output({"bundle",    "agent",  "locale", "fr",    "format", "GREET",  //
                    "unresolve", "format", "GREET",                               //
                    "unresolve", "format", "GREET",                               //
                    "release",   "free",   "drop",   "alive", "drop",   "alive",
                    "ask",       "GREET",  "alive",  "drop",  "alive"}));
}

TEST_F(FormattedMessage, EachResolutionLeavesAReferenceOnATranslatorThatIsReplaced) {
  // The translator watched stays the French one: with no name there is none in its place.
  EXPECT_EQ("Bonjour %0\nGREET\ntrue\nBonjour %0\nfalse\n",
            Output({"bundle", "agent", "locale", "fr", "format", "GREET", "bundle", "", "unresolve",
                    "format", "GREET", "free", "alive", "ask", "GREET", "drop", "alive"}));
}

TEST_F(FormattedMessage, EachMessageLeavesAReference) {
  EXPECT_EQ(
      "Bonjour %0\nBonjour %0\ntrue\nfalse\n",
      Output({"bundle", "agent",  "locale", "fr",     "format", "GREET",  "release",             //
              "new",    "bundle", "agent",  "locale", "fr",     "format", "GREET",   "release",  //
              "free",   "drop",   "alive",  "drop",   "alive"}));
}

TEST_F(FormattedMessage, WithoutALookupNoReferenceIsTaken) {
  EXPECT_EQ("Bonjour %0\nBonjour %0\nNO_KEY\ntrue\nfalse\n",
            Output({"bundle", "agent", "locale", "fr", "format", "GREET", "format", "GREET",
                    "format", "NO_KEY", "release", "free", "alive", "drop", "alive"}));
}

TEST_F(FormattedMessage, ManyMayBeFormattedAtOnce) {
  EXPECT_EQ("Bonjour Ann (3)\n", Output({"bundle", "agent", "locale", "fr", "argument", "Ann",
                                         "argument", "3", "threads", "8", "GREET"}));
  EXPECT_EQ("Salut Ann\n",
            Output({"bundle", "shop", "locale", "fr", "argument", "Ann", "threads", "8", "GREET"}));
  EXPECT_EQ("Hello Ann\n", Output({"bundle", "agent", "locale", "de", "argument", "Ann", "threads",
                                   "8", "GREET"}));
}

struct AdminCase {
  const char* name;
  std::map<std::string, std::string> variables;
  const char* locale;  // as it is left
  const char* text;
};

void PrintTo(const AdminCase& c, std::ostream* os) {
  for (const auto& [name, value] : c.variables) *os << name << '=' << value << ' ';
}

class AdminLocaleOfAMessage : public FormattedMessage,
                              public testing::WithParamInterface<AdminCase> {};

TEST_P(AdminLocaleOfAMessage, ReplacesTheLocaleBeforeTheFirstLookup) {
  for (const auto& [name, value] : GetParam().variables) tree_.SetEnvironment(name, value);
  const std::string text = GetParam().text;
  EXPECT_EQ(
      "fr admin\n" + text + "\n" + GetParam().locale + " resolved\n",
      Output({"bundle", "agent", "locale", "fr", "admin", "fields", "format", "GREET", "fields"}));
}

const AdminCase kAdminCases[] = {
    {"All", {{"LC_ALL", "fr_CA.UTF-8"}}, "fr_CA", "Allo %0"},
    {"Messages", {{"LC_MESSAGES", "fr_CA"}}, "fr_CA", "Allo %0"},
    {"Language", {{"LANG", "fr_CA.UTF-8"}}, "fr_CA", "Allo %0"},
    {"EmptyIsSkipped", {{"LC_ALL", ""}, {"LANG", "fr_CA"}}, "fr_CA", "Allo %0"},
    {"LanguageWithoutFilesIsEnglish", {{"LANG", "de_AT.UTF-8"}}, "de_AT", "Hello %0"},
    {"NoneKeepsTheLocale", {}, "fr", "Bonjour %0"},
    {"CKeepsTheLocale", {{"LC_ALL", "C"}}, "fr", "Bonjour %0"},
    {"CDecides", {{"LC_ALL", "C"}, {"LANG", "fr_CA"}}, "fr", "Bonjour %0"},
    {"PosixKeepsTheLocale", {{"LC_MESSAGES", "POSIX"}}, "fr", "Bonjour %0"},
    {"CWithEncodingKeepsTheLocale", {{"LANG", "C.UTF-8"}}, "fr", "Bonjour %0"},
};

INSTANTIATE_TEST_SUITE_P(Variables, AdminLocaleOfAMessage, testing::ValuesIn(kAdminCases),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(FormattedMessage, AdminLocaleIsUsedOnce) {
  tree_.SetEnvironment("LANG", "fr_CA.UTF-8");
  EXPECT_EQ("Allo %0\nHello %0\nen resolved\n",
            Output({"bundle", "agent", "admin", "format", "GREET", "locale", "en", "unresolve",
                    "format", "GREET", "fields"}));
}

TEST_F(FormattedMessage, AdminLocaleWaitsForALookup) {
  tree_.SetEnvironment("LANG", "fr_CA.UTF-8");
  EXPECT_EQ("Hello %0\nHello %0\nen resolved admin\nAllo %0\nfr_CA resolved\n",
            Output({"bundle", "agent", "locale", "en", "format", "GREET", "admin", "format",
                    "GREET", "fields", "unresolve", "format", "GREET", "fields"}));
}

TEST_F(FormattedMessage, LocaleIsKeptWithoutTheAdministratorsBeingAskedFor) {
  tree_.SetEnvironment("LANG", "fr_CA.UTF-8");
  EXPECT_EQ("Bonjour %0\nfr resolved\n",
            Output({"bundle", "agent", "locale", "fr", "format", "GREET", "fields"}));
}

}  // namespace
