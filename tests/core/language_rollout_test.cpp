// Ways to roll languages out under a process that has read them: the next request notices each.
// They are the reason why a request asks for each file by its whole path: a directory that is kept
// open stays what it was when another has taken its name.

#include <gtest/gtest.h>

#include "core/language_switch.h"

namespace {

TEST_F(LanguageSwitch, OfAFileInPlaceIsNoticed) {
  WriteVersion("product/lang", "first");
  ExpectText("first");
  tree_.Write("product/lang/FR/agent.lang", File("second"));
  ExpectText("second");
}

TEST_F(LanguageSwitch, OfAFileRenamedOverTheOldOneIsNoticed) {
  WriteVersion("product/lang", "first");
  WriteVersion("new", "second");
  ExpectText("first");
  Rename("new/FR/agent.lang", "product/lang/FR/agent.lang");
  ExpectText("second");
}

TEST_F(LanguageSwitch, OfALanguagesDirectoryIsNoticed) {
  WriteVersion("product/lang", "first");
  WriteVersion("new", "second");
  ExpectText("first");
  Rename("product/lang/FR", "product/lang/FR.old");
  Rename("new/FR", "product/lang/FR");
  ExpectText("second");
}

TEST_F(LanguageSwitch, OfTheLanguageDirectoryIsNoticed) {
  WriteVersion("product/lang", "first");
  WriteVersion("new", "second");
  ExpectText("first");
  Rename("product/lang", "product/lang.old");
  Rename("new", "product/lang");
  ExpectText("second");
  Rename("product/lang", "new");
  Rename("product/lang.old", "product/lang");
  ExpectText("first");
}

TEST_F(LanguageSwitch, OfADirectoryAboveIsNoticed) {
  WriteVersion("product/lang", "first");
  WriteVersion("new/lang", "second");
  ExpectText("first");
  Rename("product", "old");
  Rename("new", "product");
  ExpectText("second");
}

TEST_F(LanguageSwitch, ThatTakesTheLanguageAwayIsNoticed) {
  WriteVersion("product/lang", "first");
  ExpectText("first");
  Rename("product/lang", "product/lang.old");
  EXPECT_EQ(nullptr, FindFrench()->GetText("K"));
  EXPECT_EQ(nullptr, Find("agent", "fr", "NEW"));
}

TEST_F(LanguageSwitch, OfAFileBesideTheOthersIsNoticedByRegionsThatWereNotAskedForYet) {
  WriteVersion("product/lang", "first");
  ExpectText("first");
  tree_.Write("product/lang/FR-CA/(Common).lang", "Key K\n");
  tree_.Write("product/lang/FR-CA/agent.lang", File("Canadian"));
  EXPECT_STREQ("Canadian", Find("agent", "fr", "CA")->GetText("K"));
  ExpectText("first");
}

}  // namespace
