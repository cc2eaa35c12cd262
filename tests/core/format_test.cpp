#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <map>
#include <ostream>
#include <string>
#include <type_traits>
#include <vector>

#include "CKxXlate.h"
#include "Xlate.h"
#include "support/set_environment.h"

namespace {

/// Answers texts from a table, and counts what is done with it.
class FakeTranslator final : public CKxXlate {
 public:
  ~FakeTranslator() override = default;

  void Release() override { ++released; }
  void AddRef() override { ++added; }
  const char* GetText(const char* key) override {
    keysAsked.emplace_back(key);
    const auto found = texts.find(key);
    return found == texts.end() ? nullptr : found->second.c_str();
  }

  const char* GetName() override { return Unexpected(); }
  const char* GetLanguageCode() override { return Unexpected(); }
  const char* GetCountryCode() override { return Unexpected(); }
  const char* GetLongName() override { return Unexpected(); }
  const char* GetCharset() override { return Unexpected(); }
  std::uint32_t GetId() override { return Unexpected() == nullptr ? 0 : 1; }
  const char* GetImageDirectory() override { return Unexpected(); }
  const char* GetDirection() override { return Unexpected(); }
  const char* GetPromptSuffix() override { return Unexpected(); }
  const char* GetDirectory(const char*) override { return Unexpected(); }
  bool GetDirectory(char*, KxSize, const char*) override { return Unexpected() != nullptr; }
  bool GetText(char*, KxSize, const char*, const char*) override { return Unexpected() != nullptr; }
  const char* GetLabel(const char*) override { return Unexpected(); }
  bool GetLabel(char*, KxSize, const char*) override { return Unexpected() != nullptr; }
  bool GetPrompt(char*, KxSize, const char*, const char*) override {
    return Unexpected() != nullptr;
  }

  std::map<std::string, std::string> texts;
  int added = 0;
  int released = 0;
  std::vector<std::string> keysAsked;

 private:
  static const char* Unexpected() {
    ADD_FAILURE() << "only the text by its key is to be asked for";
    return nullptr;
  }
};

/// Each text with its NUL, in a string that holds nothing more.
std::string Packed(const std::vector<std::string>& texts) {
  std::string packed;
  for (const std::string& text : texts) packed += text + '\0';
  packed.shrink_to_fit();
  return packed;
}

/// A message whose translator is given, so that none is looked up.
Xlate MessageOf(FakeTranslator& translator, const std::vector<std::string>& arguments = {}) {
  Xlate message;
  message.translator = &translator;
  message.resolved = true;
  message.argCount = arguments.size();
  message.args = Packed(arguments);
  return message;
}

std::vector<std::string> Letters(std::size_t count) {
  std::vector<std::string> letters;
  for (std::size_t i = 0; i < count; ++i) letters.emplace_back(1, static_cast<char>('a' + i));
  return letters;
}

struct FormatCase {
  const char* name;
  const char* key;
  std::vector<std::string> arguments;
  bool showKeys;
  const char* expected;
};

void PrintTo(const FormatCase& c, std::ostream* os) { *os << (c.key == nullptr ? "null" : c.key); }

class Format : public testing::TestWithParam<FormatCase> {
 protected:
  Format() {
    translator_.texts = {{"K1", "Hello"},
                         {"GREET", "Hello %0, %1 new"},
                         {"BRACES", "{1} before {0}"},
                         {"EMPTY", ""},
                         {"", "text of the empty key"}};
  }

  FakeTranslator translator_;
};

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

TEST_F(Format, UsesSixteenArguments) {
  Xlate message = MessageOf(translator_, Letters(16));
  EXPECT_STREQ("p a", CKxXlate::Format(&message, "%15 %0"));
  EXPECT_STREQ("o (p)", CKxXlate::Format(&message, "{14}"));
}

TEST_F(Format, UsesNoMoreThanSixteenArguments) {
  Xlate message = MessageOf(translator_, Letters(20));
  EXPECT_STREQ("%6 p", CKxXlate::Format(&message, "%16 %15"));
  EXPECT_STREQ("o (p)", CKxXlate::Format(&message, "%14"));
  EXPECT_STREQ("(a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p)",
               CKxXlate::Format(&message, nullptr));
}

TEST_F(Format, UsesNoMoreArgumentsThanAreCounted) {
  Xlate message = MessageOf(translator_, {"a", "b", "c"});
  message.argCount = 2;
  EXPECT_STREQ("Hello (a, b)", CKxXlate::Format(&message, "K1"));
  message.argCount = 0;
  EXPECT_STREQ("Hello", CKxXlate::Format(&message, "K1"));
}

// A count that says more than the string holds: the texts that are there count.
TEST_F(Format, TheStringsOwnTerminatorIsOneMoreArgument) {
  Xlate message = MessageOf(translator_, {"Ann"});
  message.argCount = 2;
  EXPECT_STREQ("Ann,", CKxXlate::Format(&message, "%0,%1"));
  EXPECT_STREQ("Hello (Ann, )", CKxXlate::Format(&message, "K1"));
  message.args = "Ann";  // where it ends the only one
  EXPECT_STREQ("Ann,%1", CKxXlate::Format(&message, "%0,%1"));
}

TEST_F(Format, ReadsNoArgumentBehindThoseThereAre) {
  const std::string longText(100, 'a');  // on the heap, where a sanitizer sees what reads too far
  for (const std::uint64_t count : {3ULL, 16ULL, 17ULL, 1ULL << 32U, ~0ULL}) {
    Xlate message = MessageOf(translator_, {longText, "b"});
    message.argCount = count;
    EXPECT_EQ("Hello (" + longText + ", b, )", CKxXlate::Format(&message, "K1")) << count;
    EXPECT_STREQ("%3 b", CKxXlate::Format(&message, "%3 %1")) << count;
  }
}

TEST_F(Format, ReadsNoArgumentBehindAnEmptyString) {
  Xlate message = MessageOf(translator_);
  message.argCount = 5;
  EXPECT_STREQ("Hello ()", CKxXlate::Format(&message, "K1"));
  EXPECT_STREQ(" %1", CKxXlate::Format(&message, "%0 %1"));
}

TEST_F(Format, LastArgumentMayLackItsNul) {
  Xlate message = MessageOf(translator_);
  message.args = "first" + std::string(1, '\0') + std::string(100, 'x');
  message.argCount = 2;
  EXPECT_EQ("Hello (first, " + std::string(100, 'x') + ")", CKxXlate::Format(&message, "K1"));
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

static_assert(std::is_same_v<CKxXlate*, decltype(Xlate::translator)>);
static_assert(std::is_same_v<std::uint64_t, decltype(Xlate::argCount)>);
static_assert(std::is_same_v<std::string, decltype(Xlate::args)>);
static_assert(std::is_same_v<CKxText, decltype(Xlate::output)>);
static_assert(std::is_same_v<std::string, decltype(Xlate::bundleName)>);
static_assert(std::is_same_v<CKxText, decltype(Xlate::locale)>);
static_assert(std::is_same_v<bool, decltype(Xlate::showKeys)>);
static_assert(std::is_same_v<bool, decltype(Xlate::resolved)>);
static_assert(std::is_same_v<bool, decltype(Xlate::useAdminLocale)>);
static_assert(std::is_polymorphic_v<CKxText>);

TEST(XlateFields, LieInTheAgreedOrder) {
  const Xlate message;
  const void* const fields[] = {&message.translator, &message.argCount,   &message.args,
                                &message.output,     &message.bundleName, &message.locale,
                                &message.showKeys,   &message.resolved,   &message.useAdminLocale};
  EXPECT_EQ(static_cast<const void*>(&message), fields[0]);
  for (std::size_t i = 1; i < std::size(fields); ++i) {
    EXPECT_LT(reinterpret_cast<std::uintptr_t>(fields[i - 1]),
              reinterpret_cast<std::uintptr_t>(fields[i]))
        << "field " << i;
  }
}

TEST(XlateFields, OfANewObjectAskForALookup) {
  const Xlate message;
  EXPECT_EQ(nullptr, message.translator);
  EXPECT_EQ(0U, message.argCount);
  EXPECT_FALSE(message.showKeys);
  EXPECT_FALSE(message.resolved);
  EXPECT_FALSE(message.useAdminLocale);
}

}  // namespace
