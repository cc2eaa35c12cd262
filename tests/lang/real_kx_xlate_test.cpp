#include "lang/real_kx_xlate.h"

#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <map>
#include <memory>
#include <ostream>
#include <string>
#include <thread>
#include <type_traits>
#include <vector>

#include "lang/interned_strings.h"
#include "support/lasting_log.h"
#include "support/temp_tree.h"

namespace {

static_assert(!std::is_destructible_v<CRealKxXlate>, "only Release destroys a translator");

struct ReleaseTranslator {
  void operator()(CKxXlate* translator) const { translator->Release(); }
};
/// A new translator carries no reference, so that releasing it once destroys it.
using Held = std::unique_ptr<CRealKxXlate, ReleaseTranslator>;

using Files = std::map<std::string, std::string>;

/// Languages in the directory "lang" of a tree, with a log of their own in the tree.
class LanguageTranslator : public testing::Test {
 protected:
  Held Load(const char* name, const char* language, const char* country) {
    const kx::LanguageContext context = {paths_, strings_, nextId_, log_};
    return Held(new CRealKxXlate(context, name, language, country));
  }

  void Write(const Files& files) {
    for (const auto& [path, bytes] : files) tree_.Write("lang/" + path, bytes);
  }

  std::string Log() const { return tree_.Read("log/translate.log"); }

  TempTree tree_;
  kx::LanguagePaths paths_{true, tree_.Path(), tree_.Path("lang") + "/"};
  kx::InternTable strings_;
  std::uint32_t nextId_ = 1;
  kx::TranslationLog& log_ = LastingLog();
};

const char* const kWholeFile =
    "Long Name Fran\xC3\xA7"
    "ais\n"
    "Images /pictures\n"
    "Charset UTF-8\n"
    "Prompt Suffix :\n"
    "Direction RTL\n"
    "Directory help /docs\n"
    "Debug\n"
    "\n"
    "Key HELLO\n"
    "Value Bonjour\n"
    "Button OK\n"
    "Label D'accord\n";

// Names and identifiers

struct NamesCase {
  const char* name;
  const char* component;
  const char* language;
  const char* country;
  const char* languageCode;
  const char* countryCode;
  const char* displayName;
};

void PrintTo(const NamesCase& c, std::ostream* os) { *os << '"' << c.displayName << '"'; }

class LanguageTranslatorNames : public LanguageTranslator,
                                public testing::WithParamInterface<NamesCase> {};

TEST_P(LanguageTranslatorNames, FollowFromTheRequest) {
  const NamesCase& c = GetParam();
  const Held translator = Load(c.component, c.language, c.country);
  EXPECT_STREQ(c.component, translator->GetName());
  EXPECT_STREQ(c.languageCode, translator->GetLanguageCode());
  EXPECT_STREQ(c.countryCode, translator->GetCountryCode());
  EXPECT_STREQ(c.displayName, translator->GetDisplayName());
}

TEST_P(LanguageTranslatorNames, StandInTheLineOfALanguageWithoutFiles) {
  const NamesCase& c = GetParam();
  const Held translator = Load(c.component, c.language, c.country);
  EXPECT_FALSE(translator->AnyFileFound());
  const std::string line = std::string("No \"") + c.displayName + "\" files found, trying EN.\n";
  EXPECT_EQ(std::string("EN") == c.languageCode ? "(no file)" : line, Log());
}

const NamesCase kNames[] = {
    {"Language", "agent", "fr", nullptr, "FR", "", "FR (agent)"},
    {"EmptyCountry", "agent", "fr", "", "FR", "", "FR (agent)"},
    {"CountryIsShownAsGiven", "agent", "fr", "ca", "FR", "CA", "FR-ca (agent)"},
    {"Capitals", "agent", "FR", "CA", "FR", "CA", "FR-CA (agent)"},
    {"MixedCase", "Agent", "fR", "cA", "FR", "CA", "FR-cA (Agent)"},
    {"EmptyName", "", "fr", nullptr, "FR", "", "FR ()"},
    {"EmptyNameWithCountry", "", "fr", "Ca", "FR", "CA", "FR-Ca ()"},
    {"EmptyLanguage", "agent", "", nullptr, "", "", " (agent)"},
    {"CountryAlone", "agent", "", "at", "", "AT", "-at (agent)"},
    {"OtherLetters", "agent", "\xC3\xA9", "\xC3\xB6", "\xC3\x89", "\xC3\x96",
     "\xC3\x89-\xC3\xB6 (agent)"},
    {"LongCodes", "a.b c", "zh-hant", "tw_x", "ZH-HANT", "TW_X", "ZH-HANT-tw_x (a.b c)"},
    {"English", "agent", "EN", nullptr, "EN", "", "EN (agent)"},
    {"EnglishInSmallLetters", "agent", "en", nullptr, "EN", "", "EN (agent)"},
    {"EnglishOfACountry", "agent", "En", "us", "EN", "US", "EN-us (agent)"},
    {"AlmostEnglish", "agent", "eng", nullptr, "ENG", "", "ENG (agent)"},
};

INSTANTIATE_TEST_SUITE_P(Requests, LanguageTranslatorNames, testing::ValuesIn(kNames),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(LanguageTranslator, IsNamedAfterTheRequestWhateverFilesThereAre) {
  Write({{"FR-CA/(Common).lang", kWholeFile}});
  const Held translator = Load("agent", "fr", "ca");
  EXPECT_STREQ("agent", translator->GetName());
  EXPECT_STREQ("FR", translator->GetLanguageCode());
  EXPECT_STREQ("CA", translator->GetCountryCode());
  EXPECT_STREQ("FR-ca (agent)", translator->GetDisplayName());
}

TEST_F(LanguageTranslator, IdentifiersCountUp) {
  Write({{"FR/agent.lang", kWholeFile}});
  EXPECT_EQ(1u, Load("agent", "fr", nullptr)->GetId());
  EXPECT_EQ(2u, Load("agent", "fr", nullptr)->GetId());
  EXPECT_EQ(3u, Load("agent", "absent", nullptr)->GetId());
  EXPECT_EQ(4u, Load("other", "en", "US")->GetId());
  EXPECT_EQ(5u, nextId_);
}

TEST_F(LanguageTranslator, KeepsItsIdentifier) {
  const Held first = Load("agent", "en", nullptr);
  const Held second = Load("agent", "en", nullptr);
  EXPECT_EQ(1u, first->GetId());
  EXPECT_EQ(2u, second->GetId());
}

// Header and slots

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
  Write({{"FR/agent.lang", ""}});
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
    Write({{file, kWholeFile}});
    const Held translator = Load("agent", "fr", "ca");
    EXPECT_TRUE(translator->AnyFileFound()) << file;
    EXPECT_STREQ("Bonjour", translator->GetText("HELLO")) << file;
    std::filesystem::remove(PathFromUtf8(tree_.Path("lang/" + file)));
  }
  EXPECT_EQ("(no file)", Log());
}

TEST_F(LanguageTranslator, ReadsEachFileOnce) {
  Write({{"FR/(Common).lang", "x\n"}, {"FR/agent.lang", "y\n"}});
  const Held withoutCountry = Load("agent", "fr", "");
  EXPECT_EQ(
      "Illegal Header Directive in FR/(Common).lang at line #1: x\n"
      "Illegal Header Directive in FR/agent.lang at line #1: y\n",
      Log());
}

TEST_F(LanguageTranslator, WithoutANameReadsTheCommonFilesTwice) {
  Write({{"FR/(Common).lang", "x\n"}, {"FR-CA/(Common).lang", "y\n"}, {"FR/.lang", "z\n"}});
  const Held translator = Load("", "fr", "CA");
  EXPECT_EQ(
      "Illegal Header Directive in FR/(Common).lang at line #1: x\n"
      "Illegal Header Directive in FR/(Common).lang at line #1: x\n"
      "Illegal Header Directive in FR-CA/(Common).lang at line #1: y\n"
      "Illegal Header Directive in FR-CA/(Common).lang at line #1: y\n",
      Log());
}

/// Calls an entry of the dispatch table by its number, as a host compiled long ago would.
template <class Result, class... Arguments>
Result CallEntry(const Held& translator, std::size_t entry, Arguments... arguments) {
  using Entry = Result (*)(CKxXlate*, Arguments...);
  CKxXlate* const object = translator.get();
  Entry* table = nullptr;
  std::memcpy(&table, static_cast<const void*>(object), sizeof table);
  return table[entry](object, arguments...);
}

TEST_F(LanguageTranslator, EveryOperationStandsAtItsSlot) {
  Write({{"FR/agent.lang", kWholeFile}});
  const Held translator = Load("agent", "fr", "ca");
  const auto text = [&](std::size_t slot) { return CallEntry<const char*>(translator, slot); };
  EXPECT_STREQ("agent", text(2));
  EXPECT_STREQ("FR", text(3));
  EXPECT_STREQ("CA", text(4));
  EXPECT_STREQ(
      "Fran\xC3\xA7"
      "ais",
      text(5));
  EXPECT_STREQ("UTF-8", text(6));
  EXPECT_EQ(1u, CallEntry<std::uint32_t>(translator, 7));
  EXPECT_STREQ("/pictures", text(8));
  EXPECT_STREQ("RTL", text(9));
  EXPECT_STREQ(":", text(10));

  char buffer[20];
  const KxSize size = sizeof buffer;
  char* const dst = buffer;
  EXPECT_STREQ("/docs", CallEntry<const char*>(translator, 11, "help"));
  EXPECT_TRUE(CallEntry<bool>(translator, 12, dst, size, "help"));
  EXPECT_STREQ("/docs", buffer);
  EXPECT_STREQ("Bonjour", CallEntry<const char*>(translator, 13, "HELLO"));
  EXPECT_TRUE(CallEntry<bool>(translator, 14, dst, size, "HELLO", "default"));
  EXPECT_STREQ("Bonjour", buffer);
  EXPECT_STREQ("D'accord", CallEntry<const char*>(translator, 15, "OK"));
  EXPECT_TRUE(CallEntry<bool>(translator, 16, dst, size, "OK"));
  EXPECT_STREQ("D'accord", buffer);
  EXPECT_TRUE(CallEntry<bool>(translator, 17, dst, size, "HELLO", "default"));
  EXPECT_STREQ("Bonjour:", buffer);

  // The destructor, slot 18, takes two entries here, so that slot 19 is entry 20.
  EXPECT_STREQ("FR-ca (agent)", text(20));
}

TEST_F(LanguageTranslator, IsCountedAtTheFirstTwoSlots) {
  Write({{"FR/agent.lang", kWholeFile}});
  const Held translator = Load("agent", "fr", nullptr);
  CallEntry<void>(translator, 1);
  CallEntry<void>(translator, 1);
  CallEntry<void>(translator, 1);
  CallEntry<void>(translator, 0);
  CallEntry<void>(translator, 0);
  EXPECT_STREQ("Bonjour", translator->GetText("HELLO"));
}

TEST_F(LanguageTranslator, AssigningCopiesNothing) {
  Write({{"FR/agent.lang", kWholeFile}});
  const Held french = Load("agent", "fr", nullptr);
  const Held english = Load("agent", "en", nullptr);
  CKxXlate& target = *english;
  EXPECT_EQ(&target, &(target = *french));
  EXPECT_STREQ("EN", english->GetLanguageCode());
  EXPECT_EQ(2u, english->GetId());
  EXPECT_EQ(nullptr, english->GetText("HELLO"));
}

TEST_F(LanguageTranslator, SharesItsValuesWithOthersOfTheSameTexts) {
  Write({{"FR/agent.lang", kWholeFile}});
  const Held first = Load("agent", "fr", nullptr);
  const Held second = Load("agent", "fr", nullptr);
  EXPECT_EQ(first->GetText("HELLO"), second->GetText("HELLO"));
  EXPECT_EQ(first->GetLongName(), second->GetLongName());
  EXPECT_EQ(strings_.InternString("Bonjour"), first->GetText("HELLO"));
}

TEST_F(LanguageTranslator, IsCountedInManyThreads) {
  Write({{"FR/agent.lang", kWholeFile}});
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
