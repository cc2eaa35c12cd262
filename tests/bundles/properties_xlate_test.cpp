#include "bundles/properties_xlate.h"

#include <gtest/gtest.h>

#include <atomic>
#include <ctime>
#include <filesystem>
#include <latch>
#include <limits>
#include <ostream>
#include <string>
#include <thread>
#include <type_traits>
#include <vector>

#include "support/guarded_buffer.h"
#include "support/temp_tree.h"

// No test here asks for an absent key: that would write to the log of this process.

namespace {

using File = bnd::BundleFile<CKxXlate>;

static_assert(!std::is_destructible_v<PropertiesXlate>, "only Release destroys a translator");

constexpr KxSize kHugeSize = std::numeric_limits<KxSize>::max();

/// A translator of the file "agent_fr_CA.properties".
class PropertiesTranslator : public testing::Test {
 protected:
  ~PropertiesTranslator() override {
    if (translator_ != nullptr) translator_->Release();
  }

  PropertiesXlate& Read(const std::string& bytes) {
    tree_.Write("agent_fr_CA.properties", bytes);
    translator_ = new PropertiesXlate(&file_);
    return *translator_;
  }

  TempTree tree_;
  File file_{"agent", "fr_CA", tree_.Path("agent_fr_CA.properties")};
  PropertiesXlate* translator_ = nullptr;
};

struct NamesCase {
  const char* name;
  const char* locale;
  const char* language;
  const char* country;
};

void PrintTo(const NamesCase& c, std::ostream* os) { *os << '"' << c.locale << '"'; }

class PropertiesTranslatorNames : public testing::TestWithParam<NamesCase> {};

TEST_P(PropertiesTranslatorNames, AreThoseOfItsFile) {
  const NamesCase& c = GetParam();
  TempTree tree;
  tree.Write("file", "");
  const File file("My.Bundle", c.locale, tree.Path("file"));
  auto* const translator = new PropertiesXlate(&file);

  EXPECT_STREQ("My.Bundle", translator->GetName());
  EXPECT_STREQ(c.language, translator->GetLanguageCode());
  EXPECT_STREQ(c.country, translator->GetCountryCode());
  translator->Release();
}

const NamesCase kNames[] = {
    {"Default", "", "", ""},
    {"Language", "fr", "fr", ""},
    {"Underscore", "fr_CA", "fr", "CA"},
    {"Hyphen", "fr-CA", "fr", "CA"},
    {"AsSpelled", "FR_ca", "FR", "ca"},
    {"NumericRegionIsDropped", "es_419", "es", ""},
    {"ScriptWithHyphens", "zh-Hant-TW", "zh", "TW"},
    {"ScriptWithUnderscores", "zh_Hant_TW", "zh", ""},
    {"CountryRunsIntoTheRest", "en-US-x", "en", "US-x"},
};

INSTANTIATE_TEST_SUITE_P(Locales, PropertiesTranslatorNames, testing::ValuesIn(kNames),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(PropertiesTranslator, HasNoHeader) {
  CKxXlate& translator = Read("Name=n\nCharset=c\nImages=i\nDirection=d\nPrompt Suffix=p\n");

  EXPECT_EQ(nullptr, translator.GetLongName());
  EXPECT_EQ(nullptr, translator.GetCharset());
  EXPECT_EQ(0u, translator.GetId());
  EXPECT_EQ(nullptr, translator.GetImageDirectory());
  EXPECT_EQ(nullptr, translator.GetDirection());
  EXPECT_EQ(nullptr, translator.GetPromptSuffix());
}

TEST_F(PropertiesTranslator, HasNoDirectoriesAndLabels) {
  CKxXlate& translator = Read("Hello=Bonjour\n");

  for (const char* name : {"Hello", "absent", "", static_cast<const char*>(nullptr)}) {
    SCOPED_TRACE(name == nullptr ? "(null)" : name);
    EXPECT_EQ(nullptr, translator.GetDirectory(name));
    EXPECT_EQ(nullptr, translator.GetLabel(name));
    for (const KxSize size : {1u, 8u}) {
      GuardedBuffer directory(size);
      EXPECT_FALSE(translator.GetDirectory(directory.Data(), size, name));
      EXPECT_EQ("", directory.Text());
      EXPECT_EQ(1u, directory.BytesWritten());
      EXPECT_TRUE(directory.IsFrontUntouched());
      GuardedBuffer label(size);
      EXPECT_FALSE(translator.GetLabel(label.Data(), size, name));
      EXPECT_EQ("", label.Text());
      EXPECT_EQ(1u, label.BytesWritten());
      EXPECT_TRUE(label.IsFrontUntouched());
    }
  }
}

TEST_F(PropertiesTranslator, HasNoPromptsAndDoesNotUseTheirDefault) {
  CKxXlate& translator = Read("Hello=Bonjour\n");

  for (const char* key : {"Hello", "absent", "", static_cast<const char*>(nullptr)}) {
    for (const char* dflt : {"default", "", static_cast<const char*>(nullptr)}) {
      SCOPED_TRACE(key == nullptr ? "(null)" : key);
      GuardedBuffer buffer(16);
      EXPECT_FALSE(translator.GetPrompt(buffer.Data(), buffer.Size(), key, dflt));
      EXPECT_EQ("", buffer.Text());
      EXPECT_EQ(1u, buffer.BytesWritten());
      EXPECT_TRUE(buffer.IsFrontUntouched());
    }
  }
}

TEST_F(PropertiesTranslator, FindsKeysInAnyAsciiCase) {
  CKxXlate& translator = Read("Title=Titre\n\xC3\xA9=small\n\xC3\x89=capital\n=empty key\n");

  EXPECT_STREQ("Titre", translator.GetText("Title"));
  EXPECT_STREQ("Titre", translator.GetText("TITLE"));
  EXPECT_STREQ("Titre", translator.GetText("tItLe"));
  EXPECT_STREQ("small", translator.GetText("\xC3\xA9"));
  EXPECT_STREQ("capital", translator.GetText("\xC3\x89"));
  EXPECT_STREQ("empty key", translator.GetText(""));
}

TEST_F(PropertiesTranslator, NullKeyIsNotFound) {
  CKxXlate& translator = Read("=empty key\n(null)=x\n");

  EXPECT_EQ(nullptr, translator.GetText(nullptr));
}

TEST_F(PropertiesTranslator, TextStaysWhereItIs) {
  CKxXlate& translator = Read("Hello=Bonjour\nBye=Adieu\n");

  const char* const text = translator.GetText("Hello");
  EXPECT_STREQ("Adieu", translator.GetText("Bye"));
  EXPECT_EQ(text, translator.GetText("HELLO"));
  EXPECT_STREQ("Bonjour", text);
}

struct CopyCase {
  const char* name;
  KxSize size;
  const char* expected;
};

void PrintTo(const CopyCase& c, std::ostream* os) { *os << c.size; }

class PropertiesTranslatorCopies : public PropertiesTranslator,
                                   public testing::WithParamInterface<CopyCase> {};

TEST_P(PropertiesTranslatorCopies, WhatFitsAndAnswersThatItWasFound) {
  const CopyCase& c = GetParam();
  CKxXlate& translator = Read("K=Hello\n");
  GuardedBuffer buffer(c.size);

  EXPECT_TRUE(translator.GetText(buffer.Data(), c.size, "k", "default"));
  EXPECT_EQ(c.expected, buffer.Text());
  EXPECT_EQ(std::string(c.expected).size() + 1, buffer.BytesWritten());
  EXPECT_TRUE(buffer.IsFrontUntouched());
}

TEST_P(PropertiesTranslatorCopies, WhatFitsOfTheDefault) {
  const CopyCase& c = GetParam();
  CKxXlate& translator = Read("K=x\n");
  GuardedBuffer buffer(c.size);

  EXPECT_FALSE(translator.GetText(buffer.Data(), c.size, nullptr, "Hello"));
  EXPECT_EQ(c.expected, buffer.Text());
  EXPECT_EQ(std::string(c.expected).size() + 1, buffer.BytesWritten());
  EXPECT_TRUE(buffer.IsFrontUntouched());
}

const CopyCase kCopies[] = {
    {"TerminatorOnly", 1, ""}, {"OneByte", 2, "H"},           {"SomeBytes", 4, "Hel"},
    {"OneTooFew", 5, "Hell"},  {"ExactlyEnough", 6, "Hello"}, {"OneToSpare", 7, "Hello"},
    {"Much", 200, "Hello"},
};

INSTANTIATE_TEST_SUITE_P(Sizes, PropertiesTranslatorCopies, testing::ValuesIn(kCopies),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(PropertiesTranslator, CopyIsCutBetweenBytes) {
  CKxXlate& translator = Read("K=\xC3\xA9\xC3\xA9\n");
  GuardedBuffer buffer(4);

  EXPECT_TRUE(translator.GetText(buffer.Data(), buffer.Size(), "K", nullptr));
  EXPECT_EQ("\xC3\xA9\xC3", buffer.Text());
}

TEST_F(PropertiesTranslator, EmptyTextIsFound) {
  CKxXlate& translator = Read("K=\n");
  GuardedBuffer buffer(8);

  EXPECT_STREQ("", translator.GetText("K"));
  EXPECT_TRUE(translator.GetText(buffer.Data(), buffer.Size(), "K", "default"));
  EXPECT_EQ("", buffer.Text());
  EXPECT_EQ(1u, buffer.BytesWritten());
}

TEST_F(PropertiesTranslator, NullDefaultIsTheEmptyText) {
  CKxXlate& translator = Read("K=x\n");
  GuardedBuffer buffer(8);

  EXPECT_FALSE(translator.GetText(buffer.Data(), buffer.Size(), nullptr, nullptr));
  EXPECT_EQ("", buffer.Text());
  EXPECT_EQ(1u, buffer.BytesWritten());
}

TEST_F(PropertiesTranslator, BufferMayBeItsOwnDefault) {
  CKxXlate& translator = Read("K=x\n");
  char buffer[16] = "as before";

  EXPECT_FALSE(translator.GetText(buffer, sizeof buffer, nullptr, buffer));
  EXPECT_STREQ("as before", buffer);
}

TEST_F(PropertiesTranslator, SizeMayBeTheLargest) {
  CKxXlate& translator = Read("K=Hello\n");
  GuardedBuffer buffer(8);

  EXPECT_TRUE(translator.GetText(buffer.Data(), kHugeSize, "K", nullptr));
  EXPECT_EQ("Hello", buffer.Text());
  EXPECT_EQ(6u, buffer.BytesWritten());
}

TEST_F(PropertiesTranslator, SizeZeroWritesNothing) {
  CKxXlate& translator = Read("K=Hello\n");
  GuardedBuffer buffer(8);
  char* const dst = buffer.Data();

  EXPECT_FALSE(translator.GetText(dst, 0, "K", "default"));
  EXPECT_FALSE(translator.GetText(dst, 0, nullptr, "default"));
  EXPECT_FALSE(translator.GetText(dst, 0, nullptr, nullptr));
  EXPECT_FALSE(translator.GetPrompt(dst, 0, "K", "default"));
  EXPECT_FALSE(translator.GetDirectory(dst, 0, "K"));
  EXPECT_FALSE(translator.GetLabel(dst, 0, "K"));
  EXPECT_EQ(0u, buffer.BytesWritten());
  EXPECT_TRUE(buffer.IsFrontUntouched());
}

TEST_F(PropertiesTranslator, NullBufferAnswersFalse) {
  CKxXlate& translator = Read("K=Hello\n");

  for (const KxSize size : {KxSize{0}, KxSize{1}, KxSize{8}, kHugeSize}) {
    SCOPED_TRACE(size);
    EXPECT_FALSE(translator.GetText(nullptr, size, "K", "default"));
    EXPECT_FALSE(translator.GetText(nullptr, size, nullptr, "default"));
    EXPECT_FALSE(translator.GetPrompt(nullptr, size, "K", "default"));
    EXPECT_FALSE(translator.GetDirectory(nullptr, size, "K"));
    EXPECT_FALSE(translator.GetLabel(nullptr, size, "K"));
  }
}

TEST_F(PropertiesTranslator, NotesWhenTheFileWasRead) {
  const std::int64_t before = std::time(nullptr);
  const PropertiesXlate& translator = Read("K=Hello\n");
  const std::int64_t after = std::time(nullptr);

  // The coarse clock behind some systems' calls may be a second behind the fine one.
  EXPECT_GE(translator.LoadTime(), before - 1);
  EXPECT_LE(translator.LoadTime(), after + 1);
}

std::string Dump(const PropertiesXlate& translator) {
  testing::internal::CaptureStdout();
  translator.DumpTable();
  return testing::internal::GetCapturedStdout();
}

TEST_F(PropertiesTranslator, DumpShowsNameLocaleAndTexts) {
  EXPECT_EQ("Xlate agent/fr_CA\n   Hello=>Bonjour %s\n\n", Dump(Read("Hello = Bonjour %s\n")));
}

TEST_F(PropertiesTranslator, DumpShowsTheKeyAsFirstWrittenWithItsLastText) {
  EXPECT_EQ("Xlate agent/fr_CA\n   Title=>y\n\n", Dump(Read("Title=x\nTITLE=y\n")));
}

TEST_F(PropertiesTranslator, DumpOfNoTextsIsItsFrame) {
  EXPECT_EQ("Xlate agent/fr_CA\n\n", Dump(Read("")));
}

TEST_F(PropertiesTranslator, FileThatCannotBeOpenedGivesNoTexts) {
  testing::internal::CaptureStderr();
  translator_ = new PropertiesXlate(&file_);

  EXPECT_EQ("cannot open file: " + file_.Path() + "\n", testing::internal::GetCapturedStderr());
  EXPECT_EQ("Xlate agent/fr_CA\n\n", Dump(*translator_));
  EXPECT_STREQ("agent", translator_->GetName());
  EXPECT_STREQ("fr", translator_->GetLanguageCode());
}

TEST_F(PropertiesTranslator, KeepsItsTextsWhenTheFileChangesOrGoes) {
  CKxXlate& translator = Read("K=before\n");

  tree_.Write("agent_fr_CA.properties", "K=after\n");
  EXPECT_STREQ("before", translator.GetText("K"));
  std::filesystem::remove(PathFromUtf8(file_.Path()));
  EXPECT_STREQ("before", translator.GetText("K"));
}

TEST_F(PropertiesTranslator, ThreadsTakeAndGiveBackReferencesAndLookTextsUp) {
  constexpr int kThreads = 8;
  CKxXlate& translator = Read("Hello=Bonjour\nBye=Adieu\n");
  std::atomic<int> wrong = 0;
  std::latch start(kThreads);
  {
    std::vector<std::jthread> threads;
    for (int thread = 0; thread < kThreads; ++thread) {
      threads.emplace_back([&] {
        start.arrive_and_wait();
        for (int round = 0; round < 500; ++round) {
          translator.AddRef();
          if (translator.GetText("HELLO") != std::string("Bonjour")) ++wrong;
          translator.AddRef();
          translator.Release();
          if (translator.GetText("bye") != std::string("Adieu")) ++wrong;
          translator.Release();
        }
      });
    }
  }

  EXPECT_EQ(0, wrong);
  EXPECT_STREQ("Bonjour", translator.GetText("Hello"));
}

}  // namespace
