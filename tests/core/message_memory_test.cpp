// When the translators that messages found are destroyed.

#include <gtest/gtest.h>

#include <vector>

#include "CKxXlate.h"
#include "Xlate.h"
#include "core/counted_new.h"
#include "lang/language_paths.h"
#include "platform/critical_section.h"
#include "support/temp_tree.h"

namespace {

using Blocks = std::vector<void*>;

/// Messages with the language files of a tree, which are found by the road that hosts' calls take.
class MessageMemory : public testing::Test {
 protected:
  MessageMemory() {
    tree_.Write("FR/agent.lang", "Name French\n\nKey GREET\nValue Bonjour %0\n");
    tree_.Write("DE/agent.lang", "Name German\n\nKey GREET\nValue Hallo %0\n");
    const kx::CriticalSectionGuard guard(kx::CacheLock());
    kx::ProcessLanguagePaths() = {true, tree_.Path(), tree_.Path() + "/"};
  }
  ~MessageMemory() override { CKxXlate::FreeCache(); }

  static Xlate MessageIn(const char* locale) {
    Xlate message;
    message.bundleName = "agent";
    message.locale.Set(locale);
    return message;
  }

  /// Formats the message; answers the translator that it then has.
  static CKxXlate* Format(Xlate& message, const char* expected) {
    EXPECT_STREQ(expected, CKxXlate::Format(&message, "GREET"));
    EXPECT_TRUE(message.resolved);
    return message.translator;
  }

  /// What is destroyed of these by giving the message's translator back.
  static Blocks DestroyedByRelease(Xlate& message, const Blocks& watched) {
    return FreedBy(watched, [&message] { ReleaseTranslator(message); });
  }

  static Blocks DestroyedByFreeCache(const Blocks& watched) {
    return FreedBy(watched, [] { CKxXlate::FreeCache(); });
  }

  TempTree tree_;
};

TEST_F(MessageMemory, ReleaseTranslatorGivesBackAllThatALookupLeft) {
  Xlate message = MessageIn("fr");
  CKxXlate* const translator = Format(message, "Bonjour %0");
  EXPECT_EQ(Blocks{}, DestroyedByRelease(message, {translator}));
  EXPECT_EQ(nullptr, message.translator);
  EXPECT_FALSE(message.resolved);
  EXPECT_EQ(Blocks{translator}, DestroyedByFreeCache({translator}));
}

TEST_F(MessageMemory, ReleaseTranslatorDestroysWhatNobodyElseHolds) {
  Xlate message = MessageIn("fr");
  CKxXlate* const translator = Format(message, "Bonjour %0");
  EXPECT_EQ(Blocks{}, DestroyedByFreeCache({translator}));
  EXPECT_EQ(Blocks{translator}, DestroyedByRelease(message, {translator}));
}

TEST_F(MessageMemory, ReleaseTranslatorLeavesTheReferencesOfOthers) {
  Xlate message = MessageIn("fr");
  Xlate other = MessageIn("FR");
  CKxXlate* const translator = Format(message, "Bonjour %0");
  EXPECT_EQ(translator, Format(other, "Bonjour %0"));
  CKxXlate::FreeCache();
  EXPECT_EQ(Blocks{}, DestroyedByRelease(message, {translator}));
  EXPECT_STREQ("Bonjour %0", translator->GetText("GREET"));
  EXPECT_EQ(Blocks{translator}, DestroyedByRelease(other, {translator}));
}

TEST_F(MessageMemory, NothingIsLeftOfAMessageThatReleasesBeforeEachOtherLocale) {
  Xlate message = MessageIn("fr");
  CKxXlate* const french = Format(message, "Bonjour %0");
  ReleaseTranslator(message);
  message.locale.Set("de");
  CKxXlate* const german = Format(message, "Hallo %0");
  ReleaseTranslator(message);
  message.locale.Set("fr");
  EXPECT_EQ(french, Format(message, "Bonjour %0"));
  ReleaseTranslator(message);
  EXPECT_EQ((Blocks{german, french}), DestroyedByFreeCache({french, german}));
}

// As the header says: what is forgotten so, nobody can give back but who knows of it.
TEST_F(MessageMemory, EachLookupAfterResolvedWasClearedByHandLosesAReference) {
  Xlate message = MessageIn("fr");
  CKxXlate* const french = Format(message, "Bonjour %0");
  message.resolved = false;
  message.locale.Set("de");
  CKxXlate* const german = Format(message, "Hallo %0");
  message.resolved = false;
  EXPECT_EQ(german, Format(message, "Hallo %0"));
  CKxXlate::FreeCache();
  EXPECT_EQ(Blocks{}, DestroyedByRelease(message, {french, german}));
  EXPECT_EQ(Blocks{french}, FreedBy({french}, [french] { french->Release(); }));
  EXPECT_EQ(Blocks{german}, FreedBy({german}, [german] { german->Release(); }));
}

TEST_F(MessageMemory, ReleaseTranslatorLeavesAnObjectThatIsNotResolvedAsItIs) {
  Xlate fresh = MessageIn("fr");
  ReleaseTranslator(fresh);
  EXPECT_EQ(nullptr, fresh.translator);

  Xlate message = MessageIn("fr");
  CKxXlate* const translator = Format(message, "Bonjour %0");
  CKxXlate::FreeCache();
  message.resolved = false;
  EXPECT_EQ(Blocks{}, DestroyedByRelease(message, {translator}));
  EXPECT_EQ(translator, message.translator);
  message.resolved = true;
  EXPECT_EQ(Blocks{translator}, DestroyedByRelease(message, {translator}));
}

TEST_F(MessageMemory, ReleaseTranslatorTwiceIsOnce) {
  Xlate message = MessageIn("fr");
  CKxXlate* const translator = Format(message, "Bonjour %0");
  ReleaseTranslator(message);
  EXPECT_EQ(Blocks{}, DestroyedByRelease(message, {translator}));
  EXPECT_STREQ("Bonjour %0", translator->GetText("GREET"));  // the cache's
}

TEST_F(MessageMemory, AfterReleaseTranslatorANameIsLookedUpThatWasAbsentBefore) {
  Xlate message = MessageIn("fr");
  message.bundleName.clear();
  EXPECT_EQ(nullptr, Format(message, "GREET"));
  message.bundleName = "agent";
  EXPECT_EQ(nullptr, Format(message, "GREET"));
  ReleaseTranslator(message);
  EXPECT_NE(nullptr, Format(message, "Bonjour %0"));
  ReleaseTranslator(message);
}

TEST_F(MessageMemory, ReleaseTranslatorLeavesTheTextAndTheRequest) {
  Xlate message = MessageIn("fr");
  message.args.assign("Ann", 4);
  message.argCount = 1;
  message.showKeys = true;
  const char* const text = CKxXlate::Format(&message, "GREET");
  ReleaseTranslator(message);
  EXPECT_STREQ("[GREET] Bonjour Ann", text);
  EXPECT_EQ(text, message.output.text.c_str());
  EXPECT_EQ("agent", message.bundleName);
  EXPECT_EQ("fr", message.locale.text);
  EXPECT_EQ(1U, message.argCount);
  EXPECT_TRUE(message.showKeys);
}

}  // namespace
