// docs/lang-files.md: which files are read, and when they are read again. What it shows is read
// from it and run.

#include <chrono>
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "docs/language_document.h"
#include "support/host_tree.h"

namespace {

using std::filesystem::file_time_type;

class LanguageRollout : public LanguageDocument {
 protected:
  std::filesystem::path File(const std::string& path) const {
    return PathFromUtf8(tree_.Path("lang/" + path));
  }

  void SetTime(const std::string& path, std::chrono::seconds since1970) {
    const std::chrono::system_clock::time_point time{since1970};
    std::filesystem::last_write_time(
        File(path),
        file_time_type::clock::from_sys(std::chrono::time_point_cast<std::chrono::seconds>(time)));
  }

  /// A second ago or so, so that what is written next has another time in whole seconds, too.
  void WriteEarlier(const std::string& path, const std::string& bytes) {
    Write(path, bytes);
    SetTime(path, std::chrono::seconds(1'000'000'000));
  }

  void Remove(const std::string& path) { std::filesystem::remove(File(path)); }
};

TEST_F(LanguageRollout, FilesShownAreMergedInTheirOrder) {
  std::vector<std::string> files;
  std::string block = document_.Block("Names");
  while (!block.empty()) {
    const std::string line = block.substr(0, block.find('\n'));
    block.erase(0, line.size() + 1);
    const std::string path = line.substr(0, line.find("  "));
    ASSERT_EQ("resources/", path.substr(0, 10));
    files.push_back(path.substr(10));
  }
  ASSERT_EQ(4U, files.size());
  // The value of each key is then that of the last file that has it, which is read behind the
  // others.
  const std::vector<std::string> keys = {"FIRST", "SECOND", "THIRD", "FOURTH"};
  for (std::size_t file = 0; file < files.size(); ++file) {
    std::string bytes = "Name n\n\n";
    for (std::size_t key = file; key < keys.size(); ++key) {
      bytes += "Key " + keys[key] + "\nValue " + files[file] + "\n";
    }
    Write(files[file], bytes);
  }
  for (std::size_t key = 0; key < keys.size(); ++key) {
    EXPECT_EQ(files[key], TextOf(keys[key].c_str(), "fr", "ca"));
  }
  EXPECT_EQ("(no file)", Log());
}

TEST_F(LanguageRollout, AFileRenamedOverTheOldOneIsReadByTheNextRequest) {
  WriteEarlier("FR/agent.lang", FileOf("old"));
  CRealKxXlate* const held = cache_.FindOrLoad("agent", "fr", nullptr);
  Write("FR/agent.lang.new", FileOf("new"));
  EXPECT_EQ("old", TextOf("K", "fr"));
  std::filesystem::rename(File("FR/agent.lang.new"), File("FR/agent.lang"));
  EXPECT_EQ("new", TextOf("K", "fr"));
  EXPECT_STREQ("old", held->GetText("K"));
  held->Release();
}

TEST_F(LanguageRollout, AnOlderTimeIsAChangeToo) {
  Write("FR/agent.lang", FileOf("new"));
  EXPECT_EQ("new", TextOf("K", "fr"));
  WriteEarlier("FR/agent.lang", FileOf("old"));
  EXPECT_EQ("old", TextOf("K", "fr"));
}

TEST_F(LanguageRollout, ANewFileIsReadAfterAnotherOneHasChangedOrAfterFreeCache) {
  WriteEarlier("FR/(Common).lang", FileOf("common"));
  EXPECT_EQ("common", TextOf("K", "fr"));
  Write("FR/agent.lang", FileOf("agent"));
  EXPECT_EQ("common", TextOf("K", "fr"));
  Write("FR/(Common).lang", FileOf("common again"));
  EXPECT_EQ("agent", TextOf("K", "fr"));

  EXPECT_EQ("agent", TextOf("K", "fr", "ca"));
  Write("FR-CA/agent.lang", FileOf("Canadian"));
  EXPECT_EQ("agent", TextOf("K", "fr", "ca"));
  FreeCache();
  EXPECT_EQ("Canadian", TextOf("K", "fr", "ca"));
}

TEST_F(LanguageRollout, FilesThatComeBackAfterAllHadVanishedAreReadAfterFreeCache) {
  Write("FR/agent.lang", FileOf("agent"));
  EXPECT_EQ("agent", TextOf("K", "fr"));
  Remove("FR/agent.lang");
  EXPECT_EQ("(none)", TextOf("K", "fr"));
  Write("FR/agent.lang", FileOf("again"));
  EXPECT_EQ("(none)", TextOf("K", "fr"));
  FreeCache();
  EXPECT_EQ("again", TextOf("K", "fr"));
}

TEST_F(LanguageRollout, EnglishFilesThatComeLaterAreReadAfterFreeCache) {
  EXPECT_EQ("(none)", TextOf("K", "en"));
  Write("EN/agent.lang", FileOf("English"));
  EXPECT_EQ("(none)", TextOf("K", "en"));
  FreeCache();
  EXPECT_EQ("English", TextOf("K", "en"));
}

TEST_F(LanguageRollout, AnyOtherLanguageWithoutFilesIsLookedForByEveryRequest) {
  EXPECT_EQ("(none)", TextOf("K", "fr"));
  Write("FR/agent.lang", FileOf("agent"));
  EXPECT_EQ("agent", TextOf("K", "fr"));
}

TEST_F(LanguageRollout, AFileOfTheFirstSecondOf1970IsNeverLookedAtAgain) {
  Write("FR/agent.lang", FileOf("old"));
  SetTime("FR/agent.lang", std::chrono::seconds(0));
  EXPECT_EQ("old", TextOf("K", "fr"));
  Write("FR/agent.lang", FileOf("a new one, of another size"));
  EXPECT_EQ("old", TextOf("K", "fr"));
  Remove("FR/agent.lang");
  EXPECT_EQ("old", TextOf("K", "fr"));
  FreeCache();
  EXPECT_EQ("(none)", TextOf("K", "fr"));
}

// What hosts get

class LanguageDocumentOfHosts : public testing::Test {
 protected:
  void Provide(const std::string& path) {
    tree_.Write("product/resources/" + path, "Name n\n\nKey K\nValue " + path + "\n");
  }

  void ExpectOutput(const std::string& output, const std::vector<std::string>& steps) {
    const HostRun run = tree_.RunHostIn("product/bin", steps);
    EXPECT_EQ(0, run.exitCode);
    EXPECT_EQ(output, run.output);
    EXPECT_EQ("", run.errors);
  }

  const MarkdownParts document_{"lang-files.md"};
  HostTree tree_;
};

TEST_F(LanguageDocumentOfHosts, LocalesLeadToTheDirectoriesListedAndToNoOthers) {
  const auto rows = document_.Table("Locale | Directories, in the order in which they are read");
  std::set<std::string> directories;
  for (const auto& row : rows) directories.insert(row.at(1).begin(), row.at(1).end());
  for (const std::string& directory : directories) {
    tree_.Write("product/resources/" + directory + "/agent.lang",
                "Name n\n\nKey LAST\nValue " + directory + "\nKey " + directory + "\nValue read\n");
  }
  for (const auto& row : rows) {
    ASSERT_FALSE(row.at(1).empty());
    const std::set<std::string> read(row.at(1).begin(), row.at(1).end());
    for (const std::string& locale : row.at(0)) {
      SCOPED_TRACE(locale);
      std::vector<std::string> steps = {"text", "agent", locale, "LAST"};
      std::string output = row.at(1).back() + "\n";
      for (const std::string& directory : directories) {
        steps.insert(steps.end(), {"text", "agent", locale, directory});
        output += read.count(directory) != 0 ? "read\n" : "(null)\n";
      }
      ExpectOutput(output, steps);
    }
  }
}

TEST_F(LanguageDocumentOfHosts, GetLanguageSplitsNothing) {
  Provide("ES/agent.lang");
  Provide("ES-419/agent.lang");
  ExpectOutput("ES-419/agent.lang\nES/agent.lang\n",
               {"language", "agent", "es", "419", "K", "text", "agent", "es-419", "K"});
}

TEST_F(LanguageDocumentOfHosts, APropertyBundleWithADefaultShadowsEveryLanguageFile) {
  Provide("FR/agent.lang");
  Provide("EN/agent.lang");
  tree_.Write("product/resources/agent.properties", "OTHER=other\n");
  ExpectOutput("(null)\n(null)\n(null)\n", {"text", "agent", "fr", "K", "text", "agent", "fr-CA",
                                            "K", "text", "agent", "", "K"});
}

TEST_F(LanguageDocumentOfHosts, APropertyBundleWithEnglishShadowsEveryLanguageFile) {
  Provide("FR/agent.lang");
  tree_.Write("product/resources/agent_en.properties", "OTHER=other\n");
  ExpectOutput("(null)\nother\n", {"text", "agent", "fr", "K", "text", "agent", "fr", "OTHER"});
}

TEST_F(LanguageDocumentOfHosts, AnyOtherPropertyBundleLeavesTheLocalesThatItDoesNotAnswer) {
  Provide("FR/agent.lang");
  Provide("DE/agent.lang");
  tree_.Write("product/resources/agent_fr.properties", "OTHER=other\n");
  ExpectOutput("(null)\nDE/agent.lang\n",
               {"text", "agent", "fr-CA", "K", "text", "agent", "de-AT", "K"});
}

TEST_F(LanguageDocumentOfHosts, ALanguageWithoutFilesIsAnsweredByEnglishWithoutARegion) {
  Provide("EN/(Common).lang");
  Provide("EN-CA/agent.lang");
  ExpectOutput("EN/(Common).lang\n", {"text", "agent", "fr-CA", "K"});
  EXPECT_EQ("No \"FR-CA (agent)\" files found, trying EN.\n",
            tree_.Read("product/log/translate.log"));
}

TEST_F(LanguageDocumentOfHosts, AKeyThatALanguageLacksIsNotLookedForInEnglish) {
  Provide("EN/agent.lang");
  tree_.Write("product/resources/FR/agent.lang", "Name n\n");
  ExpectOutput("(null)\n", {"text", "agent", "fr", "K"});
}

TEST_F(LanguageDocumentOfHosts, TheLogLiesBesideTheResourcesFoundNotBesideThoseNamedLater) {
  tree_.MakeDirectory("product/resources");
  tree_.MakeDirectory("elsewhere/resources");
  ExpectOutput("true\n(null)\n",
               {"use", tree_.Path("elsewhere/resources"), "text", "agent", "fr", "K"});
  EXPECT_EQ("No \"FR (agent)\" files found, trying EN.\n", tree_.Read("product/log/translate.log"));
  EXPECT_FALSE(tree_.Exists("elsewhere/log"));
}

}  // namespace
