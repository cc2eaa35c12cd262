// What hosts get from property bundles.

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "process/property_lookup.h"

namespace {

struct CopyCase {
  const char* name;
  std::vector<std::string> arguments;  ///< size, key, default
  const char* output;
  const char* loggedKey;  ///< null when nothing is logged
};

void PrintTo(const CopyCase& c, std::ostream* os) { *os << c.output; }

class PropertyCopy : public PropertyLookup, public testing::WithParamInterface<CopyCase> {};

TEST_P(PropertyCopy, Yields) {
  const CopyCase& c = GetParam();
  std::vector<std::string> steps = {"copy", "agent", "fr"};
  steps.insert(steps.end(), c.arguments.begin(), c.arguments.end());

  EXPECT_EQ(c.output, Output(steps));
  EXPECT_EQ(c.loggedKey == nullptr ? "(no file)" : Line("agent_fr.properties", c.loggedKey), Log());
}

const CopyCase kCopies[] = {
    {"Text", {"100", "Hello", "n/a"}, "true Bonjour\n", nullptr},
    {"TextCut", {"4", "hello", "n/a"}, "true Bon\n", nullptr},
    {"TextCutToNothing", {"1", "Hello", "n/a"}, "true \n", nullptr},
    {"EmptyText", {"100", "Empty", "n/a"}, "true \n", nullptr},
    {"Default", {"100", "ABSENT", "n/a"}, "false n/a\n", "ABSENT"},
    {"DefaultCut", {"3", "ABSENT", "n/a"}, "false n/\n", "ABSENT"},
    {"DefaultCutToNothing", {"1", "ABSENT", "n/a"}, "false \n", "ABSENT"},
    {"EmptyDefault", {"100", "ABSENT", ""}, "false \n", "ABSENT"},
    {"NullDefault", {"100", "ABSENT", "(null)"}, "false \n", "ABSENT"},
    {"DefaultIsNoFormat", {"100", "ABSENT", "%s%n"}, "false %s%n\n", "ABSENT"},
    {"NullKey", {"100", "(null)", "n/a"}, "false n/a\n", nullptr},
    {"NullKeyAndDefault", {"100", "(null)", "(null)"}, "false \n", nullptr},
};

INSTANTIATE_TEST_SUITE_P(Lookups, PropertyCopy, testing::ValuesIn(kCopies),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(PropertyLookup, FileThatCannotBeOpenedIsReportedOnceAndItsKeysAreLogged) {
  Write("agent_de.properties", "Hello=Hallo\n");

  const std::string file = tree_.Path("product/resources/agent_de.properties");
  const HostRun run = tree_.RunHostIn("product/bin", {"remove", file,                     //
                                                      "text", "agent", "de", "Hello",     //
                                                      "text", "agent", "de-AT", "Hello",  //
                                                      "text", "agent", "de", "Other"});

  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ("(null)\n(null)\n(null)\n", run.output);
  EXPECT_EQ("cannot open file: " + BundlePath("agent_de.properties") + "\n", run.errors);
  EXPECT_EQ(Line("agent_de.properties", "Hello") + Line("agent_de.properties", "Other"), Log());
}

TEST_F(PropertyLookup, MalformedLinesAreReportedOnceAndTheOthersUsed) {
  Write("agent_de.properties", "no key\nHello=Hallo\n");

  const HostRun run = tree_.RunHostIn(
      "product/bin", {"threads", "8", "agent", "de", "Hello", "text", "agent", "de", "Hello"});

  EXPECT_EQ(0, run.exitCode);
  EXPECT_EQ("1\nHallo\n", run.output);
  EXPECT_EQ(BundlePath("agent_de.properties") + ":1 does not contain '='. Skipped\n", run.errors);
}

TEST_F(PropertyLookup, ReportIsNotLostWithTheProcess) {
  Write("agent_de.properties", "no key\nHello=Hallo\n");

  const HostRun run =
      tree_.RunHostIn("product/bin", {"buffer", "text", "agent", "de", "Hello", "vanish"});

  EXPECT_EQ("Hallo\n", run.output);
  EXPECT_EQ(BundlePath("agent_de.properties") + ":1 does not contain '='. Skipped\n", run.errors);
}

TEST_F(PropertyLookup, ThreadsShareOneTranslator) {
  EXPECT_EQ("1\n", Output({"threads", "8", "agent", "fr-BE", "Hello"}));
  EXPECT_FALSE(tree_.Exists("product/log"));
}

TEST_F(PropertyLookup, ThreadsAskForManyLocales) {
  EXPECT_EQ("done\nBonjour\n",
            Output({"locales", "8", "agent", "text", "agent", "fr-x3-4", "Hello"}));
}

TEST_F(PropertyLookup, TranslatorTellsWhatItsFileIs) {
  EXPECT_EQ("agent|fr|CA\nagent|fr|\nagent||\n", Output({"info", "agent", "FR-ca-x",  //
                                                         "info", "agent", "fr-BE",    //
                                                         "info", "agent", "de"}));
}

TEST_F(PropertyLookup, SameTranslatorIsAnsweredEachTime) {
  EXPECT_EQ("true\ntrue\nfalse\n", Output({"keep", "agent", "fr_CA",    //
                                           "same", "agent", "fr_CA",    //
                                           "same", "agent", "FR-ca-x",  //
                                           "same", "agent", "fr"}));
}

TEST_F(PropertyLookup, ChangedFileIsNotReadAgain) {
  const std::string file = tree_.Path("product/resources/agent_fr.properties");

  EXPECT_EQ("Bonjour\nBonjour\nBonjour\n", Output({"text", "agent", "fr", "Hello",     //
                                                   "write", file, "Hello=Salut\n",     //
                                                   "text", "agent", "fr-BE", "Hello",  //
                                                   "remove", file,                     //
                                                   "text", "agent", "fr", "Hello"}));
}

struct RequestCase {
  const char* name;
  std::vector<std::string> step;
  const char* output;
};

void PrintTo(const RequestCase& c, std::ostream* os) { *os << c.step[0] << ' ' << c.step[1]; }

class PropertyRequest : public PropertyLookup, public testing::WithParamInterface<RequestCase> {};

TEST_P(PropertyRequest, Answers) {
  EXPECT_EQ(GetParam().output, Output(GetParam().step));
  EXPECT_EQ("(no file)", Log());
}

const RequestCase kRequests[] = {
    {"Locale", {"text", "agent", "fr-CA", "Hello"}, "Allo\n"},
    {"EmptyLocaleIsTheDefault", {"text", "agent", "", "Hello"}, "Hi\n"},
    {"NullLocaleIsTheDefault", {"text", "agent", "(null)", "Hello"}, "Hi\n"},
    {"NullName", {"text", "(null)", "fr", "Hello"}, "(null)\n"},
    {"EmptyName", {"text", "", "fr", "Hello"}, "(null)\n"},
    {"NullNameAndLocale", {"text", "(null)", "(null)", "Hello"}, "(null)\n"},
    {"LanguageAndRegion", {"language", "agent", "fr", "CA", "Hello"}, "Allo\n"},
    {"LanguageAndRegionInOtherCase", {"language", "agent", "FR", "ca", "Hello"}, "Allo\n"},
    {"LanguageAndOtherRegion", {"language", "agent", "fr", "BE", "Hello"}, "Bonjour\n"},
    {"LanguageAndEmptyRegion", {"language", "agent", "fr", "", "Hello"}, "Bonjour\n"},
    {"LanguageAndNullRegion", {"language", "agent", "fr", "(null)", "Hello"}, "Bonjour\n"},
    {"OtherLanguage", {"language", "agent", "de", "AT", "Hello"}, "Hi\n"},
    {"EmptyLanguageIsEnglish", {"language", "agent", "", "", "Hello"}, "Hello\n"},
    {"NullLanguageIsEnglish", {"language", "agent", "(null)", "(null)", "Hello"}, "Hello\n"},
    {"RegionWithoutALanguageIsEnglish", {"language", "agent", "", "CA", "Hello"}, "Hello\n"},
    {"RegionWithANullLanguageIsEnglish", {"language", "agent", "(null)", "CA", "Hello"}, "Hello\n"},
    {"LanguageMayHoldTheRegion", {"language", "agent", "fr_CA", "", "Hello"}, "Allo\n"},
    {"LanguageMayHoldTheRegionAndMore", {"language", "agent", "fr_CA", "x", "Hello"}, "Allo\n"},
    {"RegionIsJoinedWithAHyphen", {"language", "agent", "fr", "CA_x", "Hello"}, "Bonjour\n"},
    {"LanguageOfANullName", {"language", "(null)", "fr", "CA", "Hello"}, "(null)\n"},
    {"LanguageOfAnEmptyName", {"language", "", "fr", "CA", "Hello"}, "(null)\n"},
    {"LanguageOfNothing", {"language", "(null)", "(null)", "(null)", "Hello"}, "(null)\n"},
};

INSTANTIATE_TEST_SUITE_P(Requests, PropertyRequest, testing::ValuesIn(kRequests),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(PropertyLookup, EmptyNameIsNoBundleEvenIfAFileHasNone) {
  Write(".properties", "Hello=nameless\n");
  Write("_fr.properties", "Hello=nameless\n");

  EXPECT_EQ("(null)\n(null)\n",
            Output({"text", "", "fr", "Hello", "language", "", "fr", "", "Hello"}));
}

TEST_F(PropertyLookup, KeptTranslatorWorksAfterAReplacement) {
  tree_.Write("elsewhere/agent_fr.properties", "Hello=Salut\n");

  EXPECT_EQ("true\nBonjour\nSalut\n(null)\n", Output({"keep", "agent", "fr",           //
                                                      "use", tree_.Path("elsewhere"),  //
                                                      "kept", "Hello",                 //
                                                      "text", "agent", "fr", "Hello",  //
                                                      "kept", "ABSENT"}));
  EXPECT_EQ(Line("agent_fr.properties", "ABSENT"), Log());
}

}  // namespace
