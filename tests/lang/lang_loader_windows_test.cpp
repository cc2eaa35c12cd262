// Two separators at the beginning of a path lead away from this machine, or past its file system.

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "lang/interned_strings.h"
#include "lang/lang_loader.h"
#include "support/lasting_log.h"
#include "support/temp_tree.h"

namespace {

class LangLoaderOnWindows : public testing::Test {
 protected:
  LangLoaderOnWindows() { tree_.Write("FR/agent.lang", "Name French\n"); }

  bool Loads(const std::string& directory, const std::string& relative) {
    kx::LanguagePaths paths{true, tree_.Path(), directory};
    std::uint32_t nextId = 1;
    const kx::LanguageContext context{paths, strings_, nextId, LastingLog()};
    kx::LanguageContents contents;
    kx::LangCandidate candidate;
    return kx::LoadLangFile(context, relative, contents, candidate);
  }

  TempTree tree_;
  kx::InternTable strings_;
};

TEST_F(LangLoaderOnWindows, ARequestDoesNotLeadAway) {
  EXPECT_FALSE(Loads("/", "/?/" + tree_.Path("FR/agent.lang")));
  EXPECT_FALSE(Loads("/", "\\?/" + tree_.Path("FR/agent.lang")));
  EXPECT_FALSE(Loads("//", "?/" + tree_.Path("FR/agent.lang")));
}

TEST_F(LangLoaderOnWindows, ADirectoryMayLieElsewhere) {
  EXPECT_TRUE(Loads("//?/" + tree_.Path() + "/", "FR/agent.lang"));
  EXPECT_TRUE(Loads("\\\\?\\" + tree_.SystemPath() + "/", "FR/agent.lang"));
}

}  // namespace
