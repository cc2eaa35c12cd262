// What is left of languages when memory runs out in the middle of a lookup: every single allocation
// of a call gets its turn to fail.

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <string>
#include <thread>
#include <vector>

#include "core/counted_new.h"
#include "core/language_cache.h"
#include "lang/interned_strings.h"
#include "support/held_reference.h"
#include "support/lasting_log.h"
#include "support/temp_tree.h"

namespace {

using Held = HeldReference<CRealKxXlate>;

const char* const kFiles[] = {"FR/(Common).lang", "FR/agent.lang", "FR-CA/(Common).lang",
                              "FR-CA/agent.lang"};
constexpr int kKeys = 6;

/// Longer than what a std::string holds without allocating.
std::string Long(const std::string& text) { return text + " which is not a short one at all"; }

/// A cache of its own, with all that goes with it.
struct Languages {
  explicit Languages(const TempTree& tree, kx::TranslationLog& log)
      : paths{true, tree.Path(), tree.Path("lang") + "/"},
        context{paths, strings, nextId, log},
        cache(context) {}
  ~Languages() { cache.Clear(); }
  Languages(const Languages&) = delete;
  Languages& operator=(const Languages&) = delete;

  CRealKxXlate* Find(const char* language) { return cache.FindOrLoad("agent", language, "ca"); }

  kx::LanguagePaths paths;
  kx::InternTable strings;
  std::uint32_t nextId = 1;
  kx::LanguageContext context;
  kx::CRealKxXlateCache cache;
};

class LanguageAllocationFailure : public testing::Test {
 protected:
  LanguageAllocationFailure() {
    for (const std::string file : kFiles) {
      std::string bytes = "Name " + Long(file) + "\nCharset " + Long(file) + "\nno directive\n" +
                          "Directory " + file + " " + Long(file) + "\n\nodd\nKey open\n";
      for (int key = 0; key < kKeys; ++key) {
        const std::string name = Long(file + std::to_string(key));
        bytes += "Key " + name + "\nValue " + name + " text\n";
      }
      tree_.Write("lang/" + file, bytes + "Button " + file + "\nLabel " + Long(file) + "\n");
      Touch(file, 1000);
    }
    tree_.Write("lang/DE/agent.lang", "Name German\n");
    log_.WriteLine(tree_.Path(), {"opened"});
  }

  void Touch(const std::string& file, std::int64_t seconds) {
    tree_.SetModified("lang/" + file, std::chrono::seconds(seconds));
  }

  static void ExpectComplete(CRealKxXlate& translator) {
    EXPECT_EQ(Long(kFiles[3]), translator.GetLongName());
    EXPECT_EQ(Long(kFiles[3]), translator.GetCharset());
    EXPECT_STREQ("FR-ca (agent)", translator.GetDisplayName());
    for (const std::string file : kFiles) {
      EXPECT_EQ(Long(file), translator.GetDirectory(file.c_str()));
      EXPECT_EQ(Long(file), translator.GetLabel(file.c_str()));
      for (int key = 0; key < kKeys; ++key) {
        const std::string name = Long(file + std::to_string(key));
        EXPECT_EQ(name + " text", translator.GetText(name.c_str()));
      }
    }
  }

  TempTree tree_;
  kx::TranslationLog& log_ = LastingLog();
};

TEST_F(LanguageAllocationFailure, OfALoadLeavesTheCacheAsItWas) {
  FailEachCountedAllocation([this](long number) {
    Languages languages(tree_, log_);
    const Held german(languages.Find("de"));

    CRealKxXlate* result = nullptr;
    const bool failed =
        CallWithFailure(number, result, [&languages] { return languages.Find("fr"); });
    const Held first(result);
    EXPECT_TRUE(failed || first != nullptr);
    if (first != nullptr) ExpectComplete(*first);

    const Held second(languages.Find("fr"));
    ExpectComplete(*second);
    EXPECT_TRUE(first == nullptr || first == second);
    EXPECT_EQ(german, Held(languages.Find("de")));
    return failed;
  });
}

TEST_F(LanguageAllocationFailure, OfAReloadLeavesTheOldTranslatorInTheCache) {
  FailEachCountedAllocation([this](long number) {
    Touch("FR/agent.lang", 1000);
    Languages languages(tree_, log_);
    const std::uint32_t oldId = Held(languages.Find("fr"))->GetId();
    Touch("FR/agent.lang", 2000);

    CRealKxXlate* result = nullptr;
    const bool failed =
        CallWithFailure(number, result, [&languages] { return languages.Find("fr"); });
    const Held reloaded(result);
    EXPECT_TRUE(failed || reloaded != nullptr);
    if (reloaded != nullptr) {
      ExpectComplete(*reloaded);
      EXPECT_NE(oldId, reloaded->GetId());
    } else {
      Touch("FR/agent.lang", 1000);
      const Held old(languages.Find("fr"));
      EXPECT_EQ(oldId, old->GetId());
      ExpectComplete(*old);
      Touch("FR/agent.lang", 2000);
    }
    const Held last(languages.Find("fr"));
    EXPECT_NE(oldId, last->GetId());
    ExpectComplete(*last);
    return failed;
  });
}

TEST_F(LanguageAllocationFailure, OfAReloadDoesNotReachThoseWhoHoldTheOldTranslator) {
  FailEachCountedAllocation([this](long number) {
    Touch("FR-CA/agent.lang", 1000);
    Languages languages(tree_, log_);
    const Held old(languages.Find("fr"));
    Touch("FR-CA/agent.lang", 2000);

    CRealKxXlate* result = nullptr;
    const bool failed =
        CallWithFailure(number, result, [&languages] { return languages.Find("fr"); });
    const Held reloaded(result);
    EXPECT_NE(old, reloaded);
    ExpectComplete(*old);
    return failed;
  });
}

TEST_F(LanguageAllocationFailure, OfAnAbsentLanguageLeavesNothing) {
  FailEachCountedAllocation([this](long number) {
    Languages languages(tree_, log_);
    CRealKxXlate* result = nullptr;
    const bool failed =
        CallWithFailure(number, result, [&languages] { return languages.Find("nl"); });
    EXPECT_EQ(nullptr, result);
    EXPECT_EQ(nullptr, languages.Find("nl"));
    return failed;
  });
}

TEST_F(LanguageAllocationFailure, OfEnglishWithoutFilesLeavesNothing) {
  FailEachCountedAllocation([this](long number) {
    Languages languages(tree_, log_);
    CRealKxXlate* result = nullptr;
    const bool failed =
        CallWithFailure(number, result, [&languages] { return languages.Find("en"); });
    const Held first(result);
    const Held second(languages.Find("en"));
    EXPECT_STREQ("EN-ca (agent)", second->GetDisplayName());
    EXPECT_STREQ("ISO-8859-1", second->GetCharset());
    EXPECT_TRUE(first == nullptr || first == second);
    return failed;
  });
}

// Not counted, since each round opens a log, which lasts.
TEST_F(LanguageAllocationFailure, WhileTheLogIsOpenedDoesNotCloseItForGood) {
  FailEachAllocation([](long number) {
    const TempTree tree;
    tree.Write("lang/FR/agent.lang", "no directive\nName French\n\nKey K\nValue text\n");
    Languages languages(tree, LastingLog());
    CRealKxXlate* result = nullptr;
    const bool failed =
        CallWithFailure(number, result, [&languages] { return languages.Find("fr"); });
    const Held first(result);
    EXPECT_TRUE(first == nullptr || first->GetText("K") == std::string("text"));
    const Held second(languages.Find("fr"));
    EXPECT_STREQ("text", second->GetText("K"));
    EXPECT_EQ(nullptr, second->GetText("ABSENT"));
    const std::string log = tree.Read("log/translate.log");
    const std::string end = "FR-ca (agent) key not found: ABSENT\n";
    EXPECT_EQ(end, log.substr(log.size() - std::min(log.size(), end.size())));
    return failed;
  });
}

TEST_F(LanguageAllocationFailure, OfAMissLeavesTheTranslatorUsable) {
  FailEachCountedAllocation([this](long number) {
    Languages languages(tree_, log_);
    const Held translator(languages.Find("fr"));
    const std::string key = Long("ABSENT" + std::to_string(number));
    const char* result = nullptr;
    const bool failed =
        CallWithFailure(number, result, [&] { return translator->GetText(key.c_str()); });
    EXPECT_EQ(nullptr, result);
    std::thread([&] { EXPECT_EQ(nullptr, translator->GetText(key.c_str())); }).join();
    ExpectComplete(*translator);

    const std::string log = tree_.Read("log/translate.log");
    const std::string line = "FR-ca (agent) key not found: " + key + "\n";
    EXPECT_EQ(log.find(line), log.rfind(line)) << "logged more than once";
    return failed;
  });
}

}  // namespace
