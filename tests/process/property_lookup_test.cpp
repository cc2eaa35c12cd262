#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include "support/host_tree.h"

namespace {

using testing::UnorderedElementsAreArray;

constexpr const char* kLog = "product/log/translate.log";

/// A product whose bundle "agent" has a default, English, French and Canadian French.
class PropertyLookup : public testing::Test {
 protected:
  PropertyLookup() {
    Write("agent.properties", "Hello=Hi\nOnlyDefault=x\n");
    Write("agent_en.properties", "Hello=Hello\n");
    Write("agent_fr.properties", "Hello=Bonjour\nOnlyFrench=x\nEmpty=\n");
    Write("agent_fr_CA.properties", "Hello=Allo\n");
  }

  void Write(const std::string& name, const std::string& bytes) {
    tree_.Write("product/resources/" + name, bytes);
  }

  /// What a host prints that takes these steps without a problem.
  std::string Output(const std::vector<std::string>& steps) const {
    const HostRun run = tree_.RunHostIn("product/bin", steps);
    EXPECT_EQ(0, run.exitCode);
    EXPECT_EQ("", run.errors);
    return run.output;
  }

  std::string Log() const { return tree_.Read(kLog); }

  /// The library's path of a bundle file; it begins as the system tells the executable's.
  std::string BundlePath(const std::string& name) const {
    return tree_.SystemPath("product") + "/resources/" + name;
  }

  /// The log's line for a key that the file lacks.
  std::string Line(const std::string& name, const std::string& key) const {
    return BundlePath(name) + " key not found: " + key + "\n";
  }

  HostTree tree_;
};

TEST_F(PropertyLookup, KeyThatIsThereIsNotLogged) {
  EXPECT_EQ("Bonjour\nBonjour\n\n", Output({"text", "agent", "fr", "Hello",  //
                                            "text", "agent", "fr", "HELLO",  //
                                            "text", "agent", "fr", "Empty"}));
  EXPECT_FALSE(tree_.Exists("product/log"));
}

TEST_F(PropertyLookup, AbsentKeyIsNullAndLoggedOnce) {
  EXPECT_EQ("(null)\n(null)\n(null)\n",
            Output({"keep", "agent", "fr", "kept", "ABSENT", "kept", "ABSENT", "kept", "ABSENT"}));
  EXPECT_EQ(Line("agent_fr.properties", "ABSENT"), Log());
}

TEST_F(PropertyLookup, AbsentKeyIsLoggedOnceThroughManyReferences) {
  EXPECT_EQ("(null)\n(null)\n(null)\n", Output({"text", "agent", "fr", "ABSENT",     //
                                                "text", "agent", "FR-be", "ABSENT",  //
                                                "language", "agent", "fr", "CH", "ABSENT"}));
  EXPECT_EQ(Line("agent_fr.properties", "ABSENT"), Log());
}

TEST_F(PropertyLookup, AbsentKeyInOtherAsciiCaseIsNotLoggedAgain) {
  EXPECT_EQ("(null)\n(null)\n(null)\n",
            Output({"keep", "agent", "fr", "kept", "Absent", "kept", "ABSENT", "kept", "absent"}));
  EXPECT_EQ(Line("agent_fr.properties", "Absent"), Log());
}

TEST_F(PropertyLookup, AbsentKeysThatDifferOutsideAsciiAreTwo) {
  EXPECT_EQ("(null)\n(null)\n",
            Output({"keep", "agent", "fr", "kept", "\xC3\xA9", "kept", "\xC3\x89"}));
  EXPECT_EQ(Line("agent_fr.properties", "\xC3\xA9") + Line("agent_fr.properties", "\xC3\x89"),
            Log());
}

TEST_F(PropertyLookup, EachAbsentKeyIsLoggedInTheOrderOfRequests) {
  EXPECT_EQ("(null)\nBonjour\n(null)\n(null)\n", Output({"keep", "agent", "fr", "kept", "B", "kept",
                                                         "Hello", "kept", "A", "kept", "b"}));
  EXPECT_EQ(Line("agent_fr.properties", "B") + Line("agent_fr.properties", "A"), Log());
}

TEST_F(PropertyLookup, EachTranslatorLogsForItself) {
  EXPECT_EQ("(null)\n(null)\n(null)\n", Output({"text", "agent", "fr", "ABSENT",     //
                                                "text", "agent", "fr-CA", "ABSENT",  //
                                                "text", "agent", "de", "ABSENT"}));
  EXPECT_EQ(Line("agent_fr.properties", "ABSENT") + Line("agent_fr_CA.properties", "ABSENT") +
                Line("agent.properties", "ABSENT"),
            Log());
}

TEST_F(PropertyLookup, AbsentKeyIsNotLookedUpInOtherFilesOfTheBundle) {
  EXPECT_EQ("(null)\n(null)\n", Output({"text", "agent", "fr-CA", "OnlyFrench",  //
                                        "text", "agent", "fr-CA", "OnlyDefault"}));
  EXPECT_EQ(
      Line("agent_fr_CA.properties", "OnlyFrench") + Line("agent_fr_CA.properties", "OnlyDefault"),
      Log());
}

TEST_F(PropertyLookup, NullKeyIsNotLogged) {
  EXPECT_EQ("(null)\n", Output({"text", "agent", "fr", "(null)"}));
  EXPECT_FALSE(tree_.Exists("product/log"));
}

TEST_F(PropertyLookup, DirectoriesLabelsAndPromptsAreNotLogged) {
  EXPECT_EQ("(null)\n(null)\nfalse \nfalse \n", Output({"label", "agent", "fr", "ABSENT",        //
                                                        "directory", "agent", "fr", "ABSENT",    //
                                                        "prompt", "agent", "fr", "ABSENT", "d",  //
                                                        "prompt", "agent", "fr", "Hello", "d"}));
  EXPECT_FALSE(tree_.Exists("product/log"));
}

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

struct KeyCase {
  const char* name;
  std::string key;
  std::string logged;
};

void PrintTo(const KeyCase& c, std::ostream* os) { *os << '"' << c.logged << '"'; }

class AbsentKey : public PropertyLookup, public testing::WithParamInterface<KeyCase> {};

TEST_P(AbsentKey, IsOneLineOfTheLog) {
  EXPECT_EQ("(null)\n(null)\n",
            Output({"keep", "agent", "fr", "kept", GetParam().key, "kept", GetParam().key}));
  EXPECT_EQ(Line("agent_fr.properties", GetParam().logged), Log());
}

const KeyCase kKeys[] = {
    {"Empty", "", ""},
    {"Blanks", "  a b  ", "  a b  "},
    {"LineFeed", "a\nb", "a\\nb"},
    {"CarriageReturn", "a\rb", "a\\rb"},
    {"LineEnds", "\r\n\n", "\\r\\n\\n"},
    {"ForgedLine", "x\n/etc/agent.properties key not found: y",
     "x\\n/etc/agent.properties key not found: y"},
    {"BackslashStays", "a\\nb", "a\\nb"},
    {"Tab", "a\tb", "a\tb"},
    {"PercentSigns", "%s%n%999999999d", "%s%n%999999999d"},
    {"EqualsSign", "Hello=Bonjour", "Hello=Bonjour"},
    {"NotUtf8", "\xFF\xC0", "\xFF\xC0"},
    {"Long", std::string(50'000, 'x'), std::string(50'000, 'x')},
};

INSTANTIATE_TEST_SUITE_P(Keys, AbsentKey, testing::ValuesIn(kKeys),
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

TEST_F(PropertyLookup, ThreadsLogEachAbsentKeyOnceAndInWholeLines) {
  EXPECT_EQ("(null)\n", Output({"misses", "8", "agent", "fr", "text", "agent", "fr", "ABSENT7"}));

  std::vector<std::string> expected;
  for (int key = 0; key < 50; ++key) {
    expected.push_back(Line("agent_fr.properties", "ABSENT" + std::to_string(key)));
  }
  std::vector<std::string> lines;
  std::istringstream log(Log());
  for (std::string line; std::getline(log, line);) lines.push_back(line + "\n");
  EXPECT_THAT(lines, UnorderedElementsAreArray(expected));
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
