// The headers and the library look for catalogues in the same places.

#include "face/locales_search.h"

namespace {

/// So deep that all four directories that the search looks at above a host lie in the tree.
constexpr char kDeep[] = "product/a/b/c/d";

TEST_F(LocalesSearch, NoneWithoutResources) { ExpectFound(kDeep, ""); }

TEST_F(LocalesSearch, TheNearestDirectoryAboveTheExecutable) {
  Provide("product", "aa");
  Provide("product/a", "bb");
  ExpectFound(kDeep, "bb ");
  Provide("product/a/b", "cc");
  ExpectFound(kDeep, "cc ");
  Provide("product/a/b/c", "dd");
  ExpectFound(kDeep, "dd ");
  Provide(kDeep, "ee");
  ExpectFound(kDeep, "ee ");
}

TEST_F(LocalesSearch, NotTheFifthDirectory) {
  Provide("product", "aa");
  ExpectFound(kDeep, "");
}

TEST_F(LocalesSearch, TheExecutableBeforeTheEnvironmentBeforeTheWorkingDirectory) {
  Provide("work", "aa");
  ExpectFound(kDeep, "aa ");
  Provide("elsewhere", "bb");
  tree_.SetEnvironment("TAVI_POLSRV_ROOT", tree_.Path("elsewhere"));
  ExpectFound(kDeep, "bb ");
  Provide("product/a", "cc");
  ExpectFound(kDeep, "cc ");
}

TEST_F(LocalesSearch, TheVariablesInTheirOrder) {
  std::string locale = "aa";
  for (const char* const variable : {"TAVI_POLSRV_ROOT", "TAVI_PROXY_ROOT", "PWSVC_HOME",
                                     "TAVI_AGENT_ROOT", "TAVI_XLATE_ROOT"}) {
    Provide(variable, locale);
    tree_.SetEnvironment(variable, tree_.Path(variable));
    ExpectFound(kDeep, locale + " ");
    ++locale[0];
  }
}

TEST_F(LocalesSearch, VariablesThatLeadNowhereArePassedOver) {
  tree_.SetEnvironment("TAVI_XLATE_ROOT", "");
  tree_.SetEnvironment("TAVI_AGENT_ROOT", tree_.Path("absent"));
  Provide("elsewhere \xC3\xA9", "aa");
  tree_.SetEnvironment("PWSVC_HOME", tree_.Path("elsewhere \xC3\xA9") + "/");
  ExpectFound(kDeep, "aa ");
}

TEST_F(LocalesSearch, AVariableMayBeRelative) {
  Provide("work/here", "aa");
  tree_.SetEnvironment("TAVI_XLATE_ROOT", "here");
  ExpectFound(kDeep, "aa ");
}

TEST_F(LocalesSearch, AFileIsNoDirectory) {
  tree_.Write("product/a/b/resources", "a file");
  Provide("product/a", "aa");
  ExpectFound(kDeep, "aa ");
}

TEST_F(LocalesSearch, BothKindsInOneDirectory) {
  Provide("product/a", "aa");
  ProvideLanguage("product/a/resources", "DE");
  ProvideLanguage("product/a/resources", "DE-AT");
  ProvideLanguage("product/a/Language", "FR");
  ExpectFound(kDeep, "DE DE-AT aa ");
}

TEST_F(LocalesSearch, AProductWithALetterOutsideAsciiInItsPath) {
  Provide("product \xC3\xA9", "aa");
  ExpectFound("product \xC3\xA9/bin", "aa ");
}

}  // namespace
