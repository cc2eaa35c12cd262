// The search with programs and places that only this system has.

#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <stdexcept>

#include "face/locales_search.h"
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

void MakeProgramOfAnotherUser(const std::string& path) {
  constexpr uid_t kNobody = 65534;
  constexpr gid_t kSameGroup = static_cast<gid_t>(-1);
  if (::chown(path.c_str(), kNobody, kSameGroup) != 0 || ::chmod(path.c_str(), 04755) != 0) {
    throw std::runtime_error("cannot give away " + path);
  }
}

TEST_F(LocalesSearchNearTheTop, BelievesNothingOfItsCallerInASetUserIdProgram) {
  if (!IsSuperUser()) GTEST_SKIP() << "only the super-user can make another user's program";
  const std::string probe = tree_.CopyProgram("probe", "/usr/bin/id");
  MakeProgramOfAnotherUser(probe);
  if (tree_.Run(probe, {"-u"}).output != "65534\n") {
    GTEST_SKIP() << "set-user-ID has no effect in this place";
  }
  Provide("elsewhere", "aa");
  Provide("work", "bb");
  tree_.SetEnvironment("TAVI_XLATE_ROOT", tree_.Path("elsewhere"));
  for (const auto& entry : std::filesystem::recursive_directory_iterator(tree_.Path())) {
    std::filesystem::permissions(
        entry.path(), std::filesystem::perms::others_read | std::filesystem::perms::others_exec,
        std::filesystem::perm_options::add);
  }
  std::filesystem::permissions(tree_.Path(), std::filesystem::perms::others_exec,
                               std::filesystem::perm_options::add);
  const std::string host = tree_.CopyProgram("a/b/c/d", KXXLATE_LISTING_HOST);
  for (const char* const directory : {"a", "a/b", "a/b/c", "a/b/c/d"}) {
    std::filesystem::permissions(tree_.Path(directory), std::filesystem::perms(0755));
  }
  EXPECT_EQ("aa \n", tree_.Run(host, {"agent"}).output);
  MakeProgramOfAnotherUser(host);
  EXPECT_EQ("\n", tree_.Run(host, {"agent"}).output);
  Provide("a", "cc");
  std::filesystem::permissions(tree_.Path("a/resources"), std::filesystem::perms(0755));
  EXPECT_EQ("cc \n", tree_.Run(host, {"agent"}).output);
}

}  // namespace
