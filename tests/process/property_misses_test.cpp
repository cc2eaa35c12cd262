// What the log says of keys that property bundles lack.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include "process/property_lookup.h"

namespace {

using testing::UnorderedElementsAreArray;

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

}  // namespace
