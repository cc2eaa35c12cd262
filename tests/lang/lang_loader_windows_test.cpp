// Two separators at the beginning of a path lead away from this machine, or past its file system.

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <string>

#include "lang/interned_strings.h"
#include "lang/lang_loader.h"
#include "support/lasting_log.h"
#include "support/temp_tree.h"

namespace {

class LangLoaderOnWindows : public testing::Test {
 protected:
  LangLoaderOnWindows() { tree_.Write("FR/agent.lang", "Name French\n"); }

  bool Loads(const std::string& directory, const std::string& language) {
    kx::LanguagePaths paths{true, tree_.Path(), directory};
    std::uint32_t nextId = 1;
    const kx::LanguageContext context{paths, strings_, nextId, LastingLog()};
    kx::LanguageContents contents;
    kx::LangCandidate candidate;
    return kx::LoadLangFile(context, {language, "", "agent"}, contents, candidate);
  }

  TempTree tree_;
  kx::InternTable strings_;
};

// Wine's way to a file past its drives, which has no ":" in it.
std::string PathPastDrives(const TempTree& tree) {
  const std::string path = tree.Path();
  const std::string drive =
      path[0] == 'Z' ? "" : std::getenv("WINEPREFIX") + std::string("/drive_c");
  return "?/unix" + drive + path.substr(path.find('/'));
}

TEST_F(LangLoaderOnWindows, ARequestDoesNotLeadAway) {
  EXPECT_FALSE(Loads("/", "/" + PathPastDrives(tree_) + "/FR"));
  EXPECT_FALSE(Loads("/", "\\" + PathPastDrives(tree_) + "/FR"));
  EXPECT_FALSE(Loads("//", PathPastDrives(tree_) + "/FR"));
}

TEST_F(LangLoaderOnWindows, ADirectoryMayLieElsewhere) {
  EXPECT_TRUE(Loads("//" + PathPastDrives(tree_) + "/", "FR"));
  EXPECT_TRUE(Loads("//?/" + tree_.Path() + "/", "FR"));
  EXPECT_TRUE(Loads("\\\\?\\" + tree_.SystemPath() + "/", "FR"));
}

TEST_F(LangLoaderOnWindows, ADirectoryHasOneSpelling) {
  tree_.Write("FR-CA/agent.lang", "Name French\n");
  const std::string directory = tree_.Path() + "/";
  EXPECT_TRUE(Loads(directory, "FR"));
  EXPECT_TRUE(Loads(directory, "fr-ca"));
  for (const char* const language : {"FR.", "FR ", "FR-CA.", "FR::$INDEX_ALLOCATION", "./FR"}) {
    EXPECT_FALSE(Loads(directory, language)) << language;
  }
}

}  // namespace
