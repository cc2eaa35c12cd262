// Which paths lead away from this machine, and which names are other spellings of names.

#include <gtest/gtest.h>

#include <string>

#include "bundles/xlate_manager.h"
#include "lang/lang_loader.h"
#include "platform/file_status.h"

namespace {

TEST(PlainComponentOnWindows, IsOneThatTheSystemDoesNotFoldIntoAnother) {
  for (const char* const plain : {"", "DE", "(Common)", " DE", ".DE", "D.E", "D E", "..DE"}) {
    EXPECT_TRUE(KxIsPlainComponent(plain)) << plain;
  }
  for (const char* const odd :
       {"DE.", "DE ", "DE. ", "DE .", ".", "..", "...", " ", "C:", "a:b", ":", "DE::$DATA"}) {
    EXPECT_FALSE(KxIsPlainComponent(odd)) << odd;
  }
}

TEST(PartOfAPathOnWindows, HasPlainComponents) {
  for (const char* const odd :
       {"DE.", "DE ", "a/DE.", "DE./a", "DE \\a", "a:", "a/b:c", "./a", "a/./b"}) {
    EXPECT_FALSE(kx::StaysInDirectory(odd)) << odd;
  }
  EXPECT_TRUE(kx::StaysInDirectory(".a/ b\\c.d"));
}

TEST(PathOnWindows, LeavesTheMachineWhenTwoSeparatorsComeTogetherAtItsBeginning) {
  EXPECT_TRUE(KxLeavesTheMachine("/", "//name.properties"));
  EXPECT_TRUE(KxLeavesTheMachine("\\", "\\/name.properties"));
  EXPECT_TRUE(KxLeavesTheMachine("", "//name"));
  EXPECT_FALSE(KxLeavesTheMachine("//machine/share", "//machine/share/name"));
  EXPECT_FALSE(KxLeavesTheMachine("C:\\a", "C:\\a/name"));
  EXPECT_FALSE(KxLeavesTheMachine("", "/name"));
  EXPECT_FALSE(KxLeavesTheMachine("/a", "/a//name"));
  EXPECT_FALSE(KxLeavesTheMachine("", "/"));
  EXPECT_FALSE(KxLeavesTheMachine("", ""));
}

TEST(XlateManagerOnWindows, KnowsNoBundlesThatWouldLieOnAnotherMachine) {
  for (const char* const root : {"/", "\\"}) {
    XlateManager manager(root);
    EXPECT_TRUE(manager.OnEntry("name.properties", false));
    EXPECT_EQ(nullptr, manager.FindEntry("name", "")) << root;
  }
  XlateManager manager("//machine/share");
  EXPECT_TRUE(manager.OnEntry("name.properties", false));
  ASSERT_NE(nullptr, manager.FindEntry("name", ""));
  EXPECT_EQ("//machine/share/name.properties", manager.FindEntry("name", "")->GetFile()->Path());
}

}  // namespace
