// The search with programs and places that only this system has.

#include <string>

#include "face/locales_search.h"
#include "support/set_user_id_posix.h"
#include "support/special_files.h"

namespace {

/// In a tree with but one directory above it.
class LocalesSearchNearTheTop : public LocalesSearch {
 protected:
  LocalesSearchNearTheTop() : LocalesSearch("/tmp") {}
};

TEST_F(LocalesSearchNearTheTop, LanguagesHaveADirectoryOfTheirOwn) {
  ProvideLanguage("Language", "FR");
  ProvideLanguage("work/Language", "DE");
  ExpectFound("bin", "FR ");
  ExpectFound("", "FR ");
}

TEST_F(LocalesSearchNearTheTop, LanguagesAreFoundInTheWorkingDirectory) {
  ProvideLanguage("work/Language", "DE");
  ExpectFound("", "DE ");
}

TEST_F(LocalesSearchNearTheTop, ResourcesHaveBothKinds) {
  Provide(".", "aa");
  ProvideLanguage("resources", "FR");
  ProvideLanguage("Language", "DE");
  ExpectFound("bin", "FR aa ");
}

TEST_F(LocalesSearchNearTheTop, BelievesNothingOfItsCallerInASetUserIdProgram) {
  if (!IsSuperUser()) GTEST_SKIP() << "only the super-user can make another user's program";
  if (!IsSetUserIdHonoured(tree_)) GTEST_SKIP() << "set-user-ID has no effect in this place";
  Provide("elsewhere", "aa");
  Provide("work", "bb");
  tree_.SetEnvironment("TAVI_XLATE_ROOT", tree_.Path("elsewhere"));
  const std::string host = tree_.CopyProgram("a/b/c/d", KXXLATE_LISTING_HOST);
  OpenToAllUsers(tree_.Path());
  EXPECT_EQ("aa \n", tree_.Run(host, {"agent"}).output);
  MakeProgramOfAnotherUser(host, true);
  EXPECT_EQ("\n", tree_.Run(host, {"agent"}).output);
  Provide("a", "cc");
  OpenToAllUsers(tree_.Path("a/resources"));
  EXPECT_EQ("cc \n", tree_.Run(host, {"agent"}).output);
}

}  // namespace
