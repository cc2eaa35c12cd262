#include "platform/environment.h"

#include <gtest/gtest.h>

#include <string>

#include "support/set_environment.h"

namespace {

const char* const kName = "KXXLATE_VARIABLE_OF_A_TEST";

TEST(Environment, AnswersTheValueOfAVariable) {
  SetVariable(kName, "C:\\a tree\\");
  EXPECT_STREQ("C:\\a tree\\", CKxGetEnv().set(kName));
}

TEST(Environment, AnswersNullForAVariableThatIsNotSet) {
  RemoveVariable(kName);
  EXPECT_EQ(nullptr, CKxGetEnv().set(kName));
}

TEST(Environment, AnswersTheEmptyTextForAVariableThatIsSetButEmpty) {
  SetVariable(kName, "");
  EXPECT_STREQ("", CKxGetEnv().set(kName));
}

TEST(Environment, ValuesAreUtf8) {
  SetVariable(kName, "/d\xC3\xA9p\xC3\xB4t/\xE2\x82\xAC");
  EXPECT_STREQ("/d\xC3\xA9p\xC3\xB4t/\xE2\x82\xAC", CKxGetEnv().set(kName));
}

TEST(Environment, ALongValueIsAnsweredWhole) {
  const std::string value(30000, 'v');
  SetVariable(kName, value);
  EXPECT_EQ(value, CKxGetEnv().set(kName));
}

TEST(Environment, KeepsTheValueWhenTheVariableChangesLater) {
  SetVariable(kName, "first value");
  CKxGetEnv environment;
  const char* value = environment.set(kName);
  SetVariable(kName, "other value");
  EXPECT_STREQ("first value", value);
  RemoveVariable(kName);
  EXPECT_STREQ("first value", value);
}

TEST(Environment, TheNextCallAnswersForItsOwnVariable) {
  SetVariable(kName, "first value");
  SetVariable("KXXLATE_OTHER_VARIABLE_OF_A_TEST", "other value");
  CKxGetEnv environment;
  EXPECT_STREQ("first value", environment.set(kName));
  EXPECT_STREQ("other value", environment.set("KXXLATE_OTHER_VARIABLE_OF_A_TEST"));
  SetVariable(kName, "changed");
  EXPECT_STREQ("changed", environment.set(kName));
  RemoveVariable(kName);
  EXPECT_EQ(nullptr, environment.set(kName));
}

TEST(Environment, ObjectsDoNotShareTheirValue) {
  SetVariable(kName, "first value");
  CKxGetEnv first;
  CKxGetEnv second;
  const char* value = first.set(kName);
  SetVariable(kName, "second value");
  EXPECT_STREQ("second value", second.set(kName));
  EXPECT_STREQ("first value", value);
}

}  // namespace
