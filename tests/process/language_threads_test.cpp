#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "support/host_tree.h"

namespace {

class LanguageThreads : public testing::Test {
 protected:
  void Provide(const std::string& file, const std::string& text) {
    tree_.Write("product/resources/" + file, "Name n\n\nKey K\nValue " + text + "\n");
  }

  void ExpectOutput(const std::vector<std::string>& steps, const std::string& output) {
    const HostRun run = tree_.RunHostIn("product/bin", steps);
    EXPECT_EQ(0, run.exitCode);
    EXPECT_EQ(output, run.output);
    EXPECT_EQ("", run.errors);
  }

  std::vector<std::string> LogLines() const {
    std::istringstream log(tree_.Read("product/log/translate.log"));
    std::vector<std::string> lines;
    for (std::string line; std::getline(log, line);) lines.push_back(line);
    return lines;
  }

  HostTree tree_;
};

TEST_F(LanguageThreads, GetOneTranslatorThatWasReadOnce) {
  Provide("FR/agent.lang", "text");
  ExpectOutput({"threads", "8", "agent", "fr-CA", "K", "id", "agent", "fr-CA"}, "1\n1\n");
  EXPECT_EQ("(no file)", tree_.Read("product/log/translate.log"));
}

TEST_F(LanguageThreads, GetOneEnglishTranslatorForAnAbsentLanguage) {
  Provide("EN/agent.lang", "text");
  ExpectOutput({"threads", "8", "agent", "de", "K"}, "1\n");
  EXPECT_EQ(std::vector<std::string>(8, "No \"DE (agent)\" files found, trying EN."), LogLines());
}

TEST_F(LanguageThreads, ReportTheProblemsOfAFileOnce) {
  tree_.Write("product/resources/FR/agent.lang", "x\nName n\n\nKey K\nValue text\n");
  ExpectOutput({"threads", "8", "agent", "fr", "K"}, "1\n");
  EXPECT_EQ(std::vector<std::string>{"Illegal Header Directive in FR/agent.lang at line #1: x"},
            LogLines());
}

TEST_F(LanguageThreads, ReportEachAbsentKeyOnce) {
  Provide("FR/agent.lang", "text");
  ExpectOutput({"misses", "8", "agent", "fr"}, "");
  std::multiset<std::string> expected;
  for (int key = 0; key < 50; ++key) {
    expected.insert("FR (agent) key not found: ABSENT" + std::to_string(key));
  }
  const std::vector<std::string> lines = LogLines();
  EXPECT_EQ(expected, std::multiset<std::string>(lines.begin(), lines.end()));
}

TEST_F(LanguageThreads, ReadManyLanguagesAtATime) {
  Provide("FR/agent.lang", "text");
  ExpectOutput({"locales", "8", "agent", "text", "agent", "fr", "K"}, "done\ntext\n");
  EXPECT_EQ("(no file)", tree_.Read("product/log/translate.log"));
}

class LanguageChurn : public LanguageThreads {
 protected:
  void Churn(const std::string& locale) {
    const std::string file = tree_.Path("product/resources/FR/agent.lang");
    ExpectOutput({"churn", "8", "agent", locale, "K", file, "text", "agent", locale, "K"},
                 "done\ntext\n");
  }

  /// Expects nothing but whole lines that report the keys that churning asks for in vain.
  void ExpectMisses(const std::string& displayName) {
    std::set<std::string> expected;
    for (int key = 0; key < 10; ++key) {
      expected.insert(displayName + " key not found: ABSENT" + std::to_string(key));
    }
    const std::vector<std::string> lines = LogLines();
    EXPECT_EQ(expected, std::set<std::string>(lines.begin(), lines.end()));
  }
};

TEST_F(LanguageChurn, FindsTextsWhileFilesChangeAndTheCacheIsFreed) {
  Provide("FR/agent.lang", "text");
  Churn("fr");
  ExpectMisses("FR (agent)");
}

TEST_F(LanguageChurn, FindsTextsOfSeveralFilesMeanwhile) {
  Provide("FR/(Common).lang", "common");
  Provide("FR/agent.lang", "named");
  Provide("FR-CA/agent.lang", "text");
  Churn("fr-ca");
  ExpectMisses("FR-ca (agent)");
}

TEST_F(LanguageChurn, FindsTextsOfARegionWithoutFilesMeanwhile) {
  Provide("FR/agent.lang", "text");
  Churn("fr-ca");
  ExpectMisses("FR-ca (agent)");
}

TEST_F(LanguageChurn, FindsTextsOfABundleMeanwhile) {
  Provide("FR/agent.lang", "wrong");
  tree_.Write("product/resources/agent.properties", "K=text\n");
  Churn("fr");
  EXPECT_EQ("(no file)", tree_.Read("product/log/translate.log"));
}

}  // namespace
