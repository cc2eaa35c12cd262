#include <gtest/gtest.h>

#include <atomic>
#include <cstddef>
#include <latch>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "bundles/bundle_of_files.h"

namespace {

// As they are promised, whatever the code says.
constexpr std::size_t kLongestRemembered = 64;
constexpr std::size_t kMostRemembered = 4096;

class BundleMemory : public BundleOfFiles {};

TEST_F(BundleMemory, FallbackIsRememberedWithAllThatLieBetween) {
  Add({"", "fr", "fr_CA"});

  Entry* answer = Ask("de-DE-x");
  ASSERT_NE(nullptr, answer);
  for (const char* locale : {"de-DE-x", "de-DE", "de"}) {
    SCOPED_TRACE(locale);
    Entry* remembered = Known(locale);
    ASSERT_NE(nullptr, remembered);
    EXPECT_FALSE(remembered->IsFile());
    EXPECT_TRUE(remembered->IsDefault());
    EXPECT_EQ("msg", remembered->BundleName());
    EXPECT_EQ(locale, remembered->Locale());
    EXPECT_EQ(Known(""), remembered->GetFile());
  }
}

TEST_F(BundleMemory, RememberedFallbackToALanguageIsNoDefault) {
  Add({"", "fr"});

  ASSERT_NE(nullptr, Ask("fr-BE"));
  Entry* remembered = Known("fr-BE");
  ASSERT_NE(nullptr, remembered);
  EXPECT_FALSE(remembered->IsDefault());
  EXPECT_EQ(Known("fr"), remembered->GetFile());
}

TEST_F(BundleMemory, RememberedFallbackToTheCompletedDefaultIsDefault) {
  Add({"en"});
  bundle_.CompleteDefault();

  ASSERT_NE(nullptr, Ask("de-DE"));
  EXPECT_TRUE(Known("de-DE")->IsDefault());
  EXPECT_TRUE(Known("de")->IsDefault());
  EXPECT_EQ(Known("en"), Known("de")->GetFile());
  ASSERT_NE(nullptr, Ask("en-GB"));
  EXPECT_FALSE(Known("en-GB")->IsDefault());
}

TEST_F(BundleMemory, RememberedLocaleKeepsTheFirstSpelling) {
  Add({"fr"});

  ASSERT_NE(nullptr, Ask("FR-be-X"));
  Entry* remembered = Known("fr-BE-x");
  ASSERT_NE(nullptr, remembered);
  EXPECT_EQ("FR-be-X", remembered->Locale());
  EXPECT_EQ("FR-be", Known("fr-BE")->Locale());
  EXPECT_EQ(remembered, Ask("fr-be-x"));
  EXPECT_EQ("FR-be-X", remembered->Locale());
}

TEST_F(BundleMemory, RememberedLocaleIsAnsweredTheSameEntry) {
  Add({""});

  ASSERT_NE(nullptr, Ask("de-DE"));
  Entry* remembered = Known("de-DE");
  EXPECT_EQ(remembered, Ask("de-DE"));
  EXPECT_EQ(remembered, Ask("DE-de"));
  EXPECT_EQ(Known("de"), Ask("de"));
}

TEST_F(BundleMemory, FailedLocaleIsNotRemembered) {
  Add({"fr"});

  EXPECT_EQ(nullptr, Ask("de-DE"));
  EXPECT_EQ(nullptr, Known("de-DE"));
  EXPECT_EQ(nullptr, Known("de"));
  Add({"de"});
  EXPECT_EQ("msg_de", Answer("de-DE"));
}

/// "fr-xxx...", of so many bytes.
std::string FrenchOfLength(std::size_t bytes) { return "fr-" + std::string(bytes - 3, 'x'); }

TEST_F(BundleMemory, LocaleOfTheLongestLengthIsRemembered) {
  Add({"", "fr"});
  const std::string locale = FrenchOfLength(kLongestRemembered);

  EXPECT_EQ("msg_fr", Answer(locale));
  EXPECT_EQ("msg_fr", PathOf(Known(locale)));
}

TEST_F(BundleMemory, LongerLocaleIsAnsweredButNotRemembered) {
  Add({"", "fr"});
  const std::string locale = FrenchOfLength(kLongestRemembered + 1);

  for (int request = 0; request < 3; ++request) {
    Entry* answer = Ask(locale);
    ASSERT_NE(nullptr, answer);
    EXPECT_EQ("msg_fr", PathOf(answer));
    EXPECT_FALSE(answer->IsDefault());
    EXPECT_EQ(nullptr, Known(locale));
  }
}

TEST_F(BundleMemory, LongLocaleOfNoFileIsTheDefault) {
  Add({"", "fr"});
  const std::string locale(10'000, 'x');

  Entry* answer = Ask(locale);
  ASSERT_NE(nullptr, answer);
  EXPECT_EQ("msg", PathOf(answer));
  EXPECT_TRUE(answer->IsDefault());
  EXPECT_EQ(nullptr, Known(locale));
}

TEST_F(BundleMemory, ShortParentsOfALongLocaleAreRemembered) {
  Add({"", "fr"});

  EXPECT_EQ("msg_fr", Answer("fr-BE-" + std::string(100, 'x')));
  EXPECT_EQ("msg_fr", PathOf(Known("fr-BE")));
}

TEST_F(BundleMemory, FilesMayHaveLongLocales) {
  const std::string longName = "fr_" + std::string(200, 'x');
  Add({"", "fr", longName});

  EXPECT_EQ("msg_" + longName, Answer(longName));
  EXPECT_EQ("msg_" + longName, Answer("FR-" + std::string(200, 'X')));
  EXPECT_EQ("msg_" + longName, Answer(longName + "-more"));
  EXPECT_EQ("msg_fr", Answer("fr_" + std::string(199, 'x')));
}

TEST_F(BundleMemory, LocaleOfHundredThousandPartsIsAnswered) {
  Add({"", "a"});
  for (const char* part : {"-a", "_a", "-", "_"}) {
    SCOPED_TRACE(part);
    std::string locale = "a";
    while (locale.size() < 200'000) locale += part;
    EXPECT_EQ("msg_a", Answer(locale));
    EXPECT_EQ("msg", Answer("x" + locale));
  }
}

TEST_F(BundleMemory, NumberOfRememberedLocalesIsBounded) {
  Add({"", "fr", "fr_CA"});
  constexpr std::size_t kAsked = kMostRemembered + 500;
  for (std::size_t number = 0; number < kAsked; ++number) {
    ASSERT_EQ("msg_fr", Answer("fr-x" + std::to_string(number)));
  }

  std::size_t remembered = 0;
  for (std::size_t number = 0; number < kAsked; ++number) {
    if (Known("fr-x" + std::to_string(number)) != nullptr) ++remembered;
  }
  EXPECT_EQ(kMostRemembered, remembered);
}

TEST_F(BundleMemory, AnswersAreTheSameWhenNothingMoreIsRemembered) {
  Add({"", "fr", "fr_CA", "en"});
  for (std::size_t number = 0; number < kMostRemembered; ++number) {
    ASSERT_EQ("msg", Answer("x" + std::to_string(number)));
  }

  for (int request = 0; request < 3; ++request) {
    EXPECT_EQ("msg_fr_CA", Answer("FR-ca-x"));
    EXPECT_EQ("msg_fr", Answer("fr-BE"));
    EXPECT_EQ("msg_en", Answer("en-GB"));
    EXPECT_EQ("msg", Answer("de-DE"));
    EXPECT_EQ("msg", Answer("x0"));
    EXPECT_EQ("msg", Answer(""));
    EXPECT_FALSE(Ask("fr-BE")->IsDefault());
    EXPECT_TRUE(Ask("de-DE")->IsDefault());
  }
  EXPECT_EQ(nullptr, Known("fr-BE"));
  EXPECT_EQ(nullptr, Known("de-DE"));
  EXPECT_EQ(nullptr, Known("de"));
}

TEST_F(BundleMemory, ThreadsGetTheSameAnswers) {
  constexpr int kThreads = 8;
  constexpr int kLocales = 400;
  Add({"", "fr", "fr_CA"});
  std::atomic<int> wrong = 0;
  std::latch start(kThreads);
  {
    std::vector<std::jthread> threads;
    for (int thread = 0; thread < kThreads; ++thread) {
      threads.emplace_back([this, &wrong, &start, thread] {
        start.arrive_and_wait();
        for (int number = 0; number < kLocales; ++number) {
          // Half of the locales are the thread's own, half are everybody's.
          const std::string suffix =
              std::to_string(number % 2 == 0 ? thread : -1) + "_" + std::to_string(number);
          if (Answer("fr-CA-" + suffix) != "msg_fr_CA") ++wrong;
          if (Answer("FR_be" + suffix) != "msg_fr") ++wrong;
          if (Answer("de" + suffix) != "msg") ++wrong;
          if (Known("FR-ca") == nullptr || Known("nothing") != nullptr) ++wrong;
        }
      });
    }
  }

  EXPECT_EQ(0, wrong);
}

}  // namespace
