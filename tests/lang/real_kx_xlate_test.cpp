#include "lang/real_kx_xlate.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <thread>
#include <type_traits>
#include <vector>

#include "lang/language_translator.h"

namespace {

static_assert(!std::is_destructible_v<CRealKxXlate>, "only Release destroys a translator");

TEST_F(LanguageTranslator, WithoutFilesHasADefaultHeaderAndNoTexts) {
  const Held translator = Load("agent", "en", nullptr);
  EXPECT_FALSE(translator->AnyFileFound());
  EXPECT_EQ(nullptr, translator->GetLongName());
  EXPECT_STREQ("ISO-8859-1", translator->GetCharset());
  EXPECT_EQ(nullptr, translator->GetImageDirectory());
  EXPECT_STREQ("", translator->GetDirection());
  EXPECT_EQ(nullptr, translator->GetPromptSuffix());
  EXPECT_EQ(nullptr, translator->GetText("HELLO"));
  EXPECT_EQ(nullptr, translator->GetLabel("OK"));
  EXPECT_EQ(nullptr, translator->GetDirectory("help"));
}

TEST_F(LanguageTranslator, AnEmptyFileIsAFileAndLeavesTheDefaults) {
  Write("FR/agent.lang", "");
  const Held translator = Load("agent", "fr", nullptr);
  EXPECT_TRUE(translator->AnyFileFound());
  EXPECT_EQ(nullptr, translator->GetLongName());
  EXPECT_STREQ("ISO-8859-1", translator->GetCharset());
  EXPECT_EQ(nullptr, translator->GetImageDirectory());
  EXPECT_STREQ("", translator->GetDirection());
  EXPECT_EQ(nullptr, translator->GetPromptSuffix());
  EXPECT_EQ("(no file)", Log());
}

TEST_F(LanguageTranslator, AnyOfTheFourFilesIsEnough) {
  for (const std::string file :
       {"FR/(Common).lang", "FR/agent.lang", "FR-CA/(Common).lang", "FR-CA/agent.lang"}) {
    Write(file, kWholeFile);
    const Held translator = Load("agent", "fr", "ca");
    EXPECT_TRUE(translator->AnyFileFound()) << file;
    EXPECT_STREQ("Bonjour", translator->GetText("HELLO")) << file;
    std::filesystem::remove(PathFromUtf8(tree_.Path("lang/" + file)));
  }
  EXPECT_EQ("(no file)", Log());
}

TEST_F(LanguageTranslator, ReadsEachFileOnce) {
  Write("FR/(Common).lang", "x\n");
  Write("FR/agent.lang", "y\n");
  const Held withoutCountry = Load("agent", "fr", "");
  EXPECT_EQ(
      "Illegal Header Directive in FR/(Common).lang at line #1: x\n"
      "Illegal Header Directive in FR/agent.lang at line #1: y\n",
      Log());
}

TEST_F(LanguageTranslator, WithoutANameReadsTheCommonFilesTwice) {
  Write("FR/(Common).lang", "x\n");
  Write("FR-CA/(Common).lang", "y\n");
  Write("FR/.lang", "z\n");
  const Held translator = Load("", "fr", "CA");
  EXPECT_EQ(
      "Illegal Header Directive in FR/(Common).lang at line #1: x\n"
      "Illegal Header Directive in FR/(Common).lang at line #1: x\n"
      "Illegal Header Directive in FR-CA/(Common).lang at line #1: y\n"
      "Illegal Header Directive in FR-CA/(Common).lang at line #1: y\n",
      Log());
}

TEST_F(LanguageTranslator, AssigningCopiesNothing) {
  Write("FR/agent.lang", kWholeFile);
  const Held french = Load("agent", "fr", nullptr);
  const Held english = Load("agent", "en", nullptr);
  CKxXlate& target = *english;
  EXPECT_EQ(&target, &(target = *french));
  EXPECT_STREQ("EN", english->GetLanguageCode());
  EXPECT_EQ(2u, english->GetId());
  EXPECT_EQ(nullptr, english->GetText("HELLO"));
}

TEST_F(LanguageTranslator, SharesItsValuesWithOthersOfTheSameTexts) {
  Write("FR/agent.lang", kWholeFile);
  const Held first = Load("agent", "fr", nullptr);
  const Held second = Load("agent", "fr", nullptr);
  EXPECT_EQ(first->GetText("HELLO"), second->GetText("HELLO"));
  EXPECT_EQ(first->GetLongName(), second->GetLongName());
  EXPECT_EQ(strings_.InternString("Bonjour"), first->GetText("HELLO"));
}

TEST_F(LanguageTranslator, IsCountedInManyThreads) {
  Write("FR/agent.lang", kWholeFile);
  const Held translator = Load("agent", "fr", nullptr);
  translator->AddRef();
  std::vector<std::thread> threads;
  for (int thread = 0; thread < 8; ++thread) {
    threads.emplace_back([&translator] {
      for (int round = 0; round < 2000; ++round) {
        translator->AddRef();
        translator->Release();
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_STREQ("Bonjour", translator->GetText("HELLO"));
}

}  // namespace
