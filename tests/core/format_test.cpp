#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "CKxXlate.h"
#include "Xlate.h"
#include "core/format_fixture.h"
#include "support/set_environment.h"

namespace {

TEST_P(Format, Yields) {
  Xlate message = MessageOf(translator_, GetParam().arguments);
  message.showKeys = GetParam().showKeys;
  message.output.text = "left over from the last call";
  EXPECT_STREQ(GetParam().expected, CKxXlate::Format(&message, GetParam().key));
  EXPECT_EQ(GetParam().expected, message.output.text);
}

const FormatCase kCases[] = {
    {"Text", "K1", {}, false, "Hello"},
    {"TextWithItsKey", "K1", {}, true, "[K1] Hello"},
    {"ArgumentsAreInserted", "GREET", {"Ann", "3"}, false, "Hello Ann, 3 new"},
    {"ArgumentsInBraces", "BRACES", {"a", "b"}, false, "b before a"},
    {"ArgumentsWithTheKey", "GREET", {"Ann", "3"}, true, "[GREET] Hello Ann, 3 new"},
    {"ArgumentsLeftOverAreAppended", "K1", {"a", "b"}, false, "Hello (a, b)"},
    {"ArgumentsAbsentLeaveTheirMarkers", "GREET", {}, false, "Hello %0, %1 new"},
    {"EmptyArguments", "GREET", {"", ""}, false, "Hello ,  new"},
    {"EmptyTextIsFound", "EMPTY", {"a"}, false, "(a)"},
    {"EmptyTextWithItsKey", "EMPTY", {}, true, "[EMPTY] "},
    {"AbsentKeyIsTheText", "Not there", {}, false, "Not there"},
    {"AbsentKeyWithItsKey", "Not there", {}, true, "[Not there] Not there"},
    {"AbsentKeyTakesArguments", "No %1 in %0", {"a", "b"}, false, "No b in a"},
    {"AbsentKeyShownIsAsItWas", "No %1 in %0", {"a", "b"}, true, "[No %1 in %0] No b in a"},
    {"AbsentKeyWithLeftovers", "NO_KEY", {"a", "b"}, false, "NO_KEY (a, b)"},
    {"EmptyKeyIsAskedFor", "", {}, false, "text of the empty key"},
    {"EmptyKeyShown", "", {}, true, "[] text of the empty key"},
    {"NullKeyIsTheEmptyText", nullptr, {}, false, ""},
    {"NullKeyTakesArguments", nullptr, {"a", "b"}, false, "(a, b)"},
    {"NullKeyShown", nullptr, {}, true, "[] "},
    {"NullKeyShownWithArguments", nullptr, {"a"}, true, "[] (a)"},
};

INSTANTIATE_TEST_SUITE_P(Messages, Format, testing::ValuesIn(kCases),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(Format, AnswersTheTextOfTheOutput) {
  Xlate message = MessageOf(translator_);
  const char* answer = CKxXlate::Format(&message, "K1");
  EXPECT_EQ(message.output.text.c_str(), answer);
}

TEST_F(Format, NullObjectAnswersNull) {
  EXPECT_EQ(nullptr, CKxXlate::Format(nullptr, "K1"));
  EXPECT_EQ(nullptr, CKxXlate::Format(nullptr, nullptr));
}

TEST_F(Format, AsksTheTranslatorOnceByTheKey) {
  Xlate message = MessageOf(translator_, {"a"});
  CKxXlate::Format(&message, "K1");
  CKxXlate::Format(&message, "Not there");
  CKxXlate::Format(&message, nullptr);
  EXPECT_EQ((std::vector<std::string>{"K1", "Not there"}), translator_.keysAsked);
}

TEST_F(Format, LeavesAllOtherFieldsOfAResolvedObject) {
  Xlate message = MessageOf(translator_, {"a", "b"});
  message.bundleName = "agent";
  message.locale.text = "fr";
  message.useAdminLocale = true;
  CKxXlate::Format(&message, "K1");
  EXPECT_EQ(&translator_, message.translator);
  EXPECT_EQ(0, translator_.added);
  EXPECT_EQ(0, translator_.released);
  EXPECT_EQ(2U, message.argCount);
  EXPECT_EQ(std::string("a\0b\0", 4), message.args);
  EXPECT_EQ("agent", message.bundleName);
  EXPECT_EQ("fr", message.locale.text);
  EXPECT_FALSE(message.showKeys);
  EXPECT_TRUE(message.resolved);
  EXPECT_TRUE(message.useAdminLocale);
}

TEST_F(Format, WithoutTranslatorEachKeyIsTheText) {
  Xlate message = MessageOf(translator_, {"Ann"});
  message.translator = nullptr;
  EXPECT_STREQ("K1 (Ann)", CKxXlate::Format(&message, "K1"));
  EXPECT_STREQ("Hello Ann", CKxXlate::Format(&message, "Hello %s"));
  EXPECT_STREQ("(Ann)", CKxXlate::Format(&message, nullptr));
  EXPECT_EQ(nullptr, message.translator);
}

TEST_F(Format, ReplacesTheTranslatorOfAnObjectThatIsNotResolved) {
  Xlate message = MessageOf(translator_);
  message.resolved = false;  // and there is no bundle without a name
  EXPECT_STREQ("K1", CKxXlate::Format(&message, "K1"));
  EXPECT_EQ(nullptr, message.translator);
  EXPECT_TRUE(message.resolved);
  EXPECT_EQ(0, translator_.added);
  EXPECT_EQ(1, translator_.released);
  EXPECT_TRUE(translator_.keysAsked.empty());
}

TEST_F(Format, KeepsThatThereIsNoTranslator) {
  Xlate message;
  EXPECT_STREQ("K1", CKxXlate::Format(&message, "K1"));
  EXPECT_TRUE(message.resolved);
  message.bundleName = "agent";
  EXPECT_STREQ("K2", CKxXlate::Format(&message, "K2"));
  EXPECT_EQ(nullptr, message.translator);
}

TEST_F(Format, TakesTheAdministratorsLocaleOnceAndForAll) {
  SetVariable("LC_ALL", "fr_CA.UTF-8");
  Xlate message;
  message.locale.text = "de";
  message.useAdminLocale = true;
  CKxXlate::Format(&message, "K1");
  EXPECT_EQ("fr_CA", message.locale.text);
  EXPECT_FALSE(message.useAdminLocale);
  message.locale.text = "de";
  message.resolved = false;
  CKxXlate::Format(&message, "K1");
  EXPECT_EQ("de", message.locale.text);
}

TEST_F(Format, KeepsTheLocaleWhenTheAdministratorHasNone) {
  SetVariable("LC_ALL", "C");
  Xlate message;
  message.locale.text = "de";
  message.useAdminLocale = true;
  CKxXlate::Format(&message, "K1");
  EXPECT_EQ("de", message.locale.text);
  EXPECT_FALSE(message.useAdminLocale);
}

TEST_F(Format, KeyMayLieInTheOutput) {
  Xlate message = MessageOf(translator_);
  message.showKeys = true;
  message.output.text = "A key that is longer than what lies in the object itself";
  const std::string key = message.output.text;
  EXPECT_EQ("[" + key + "] " + key, CKxXlate::Format(&message, message.output.text.c_str()));
  message.output.text = "K1";
  EXPECT_STREQ("[K1] Hello", CKxXlate::Format(&message, message.output.text.c_str()));
}

TEST_F(Format, AnswerOfTheLastCallMayBeTheKey) {
  Xlate message = MessageOf(translator_, {"a"});
  const char* answer = CKxXlate::Format(&message, "A message that is not short: %0");
  answer = CKxXlate::Format(&message, answer);
  EXPECT_STREQ("A message that is not short: a (a)", answer);
}

TEST_F(Format, KeyMayLieInTheArguments) {
  Xlate message = MessageOf(translator_, {"GREET", "b"});
  EXPECT_STREQ("Hello GREET, b new", CKxXlate::Format(&message, message.args.c_str()));
}

TEST_F(Format, ObjectsDoNotShareTheirOutput) {
  Xlate first = MessageOf(translator_, {"a", "b"});
  Xlate second = MessageOf(translator_);
  const char* text = CKxXlate::Format(&first, "BRACES");
  CKxXlate::Format(&second, "K1");
  EXPECT_STREQ("b before a", text);
}

}  // namespace
