#include "bundles/resolved_translators.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdint>
#include <cstring>
#include <string>
#include <thread>
#include <vector>

#include "bundles/properties_xlate.h"
#include "support/held_reference.h"
#include "support/temp_tree.h"

namespace {

using Held = HeldReference<PropertiesXlate>;

class ResolvedTranslators : public testing::Test {
 protected:
  ResolvedTranslators() {
    tree_.Write("file", "K=text\n");
    for (int number = 0; number < 3; ++number) {
      translators_.emplace_back(new PropertiesXlate(&file_));
    }
  }

  PropertiesXlate& Translator(std::size_t number) { return *translators_[number % 3]; }

  const TempTree tree_;
  const bnd::BundleFile<CKxXlate> file_{"agent", "fr", tree_.Path("file")};
  std::vector<Held> translators_;
  kx::ResolvedTranslators resolved_;
};

TEST_F(ResolvedTranslators, AreNoneAtFirst) {
  EXPECT_EQ(nullptr, resolved_.Find("", ""));
  EXPECT_EQ(nullptr, resolved_.Find("agent", "fr"));
}

TEST_F(ResolvedTranslators, AreFoundByTheBundleAndByTheLocaleInAnyCase) {
  resolved_.Remember("Agent", "fr-CA", Translator(0));
  resolved_.Remember("Agent", "", Translator(1));
  resolved_.Remember("", "fr-CA", Translator(2));

  EXPECT_EQ(&Translator(0), resolved_.Find("Agent", "fr-CA"));
  EXPECT_EQ(&Translator(0), resolved_.Find("Agent", "FR-ca"));
  EXPECT_EQ(&Translator(1), resolved_.Find("Agent", ""));
  EXPECT_EQ(&Translator(2), resolved_.Find("", "fr-ca"));
  EXPECT_EQ(nullptr, resolved_.Find("agent", "fr-CA"));
  EXPECT_EQ(nullptr, resolved_.Find("Agent", "fr_CA"));
  EXPECT_EQ(nullptr, resolved_.Find("Agent", "fr"));
  EXPECT_EQ(nullptr, resolved_.Find("Agen", "tfr-CA"));
  EXPECT_EQ(nullptr, resolved_.Find("", ""));
}

TEST_F(ResolvedTranslators, KeepTheirFirstAnswer) {
  resolved_.Remember("agent", "fr", Translator(0));
  resolved_.Remember("agent", "FR", Translator(1));

  EXPECT_EQ(&Translator(0), resolved_.Find("agent", "fr"));
  EXPECT_EQ(&Translator(0), resolved_.Find("agent", "FR"));
}

TEST_F(ResolvedTranslators, MayBeOfRequestsOfAnyLength) {
  const std::size_t sizes[] = {0, 1, 2, 3, 4, 7, 8, 15, 16, 17, 40, 300};
  std::size_t number = 0;
  for (const std::size_t bundle : sizes) {
    for (const std::size_t locale : sizes) {
      resolved_.Remember(std::string(bundle, 'b'), std::string(locale, 'l'), Translator(number++));
    }
  }
  number = 0;
  for (const std::size_t bundle : sizes) {
    for (const std::size_t locale : sizes) {
      const std::string name(bundle, 'b');
      EXPECT_EQ(&Translator(number), resolved_.Find(name, std::string(locale, 'l')));
      EXPECT_EQ(&Translator(number), resolved_.Find(name, std::string(locale, 'L')));
      ++number;
      EXPECT_EQ(nullptr, resolved_.Find(name, std::string(locale, 'l') + "m"));
      EXPECT_EQ(nullptr, resolved_.Find(name + "m", std::string(locale, 'l')));
      if (bundle == 0) continue;
      EXPECT_EQ(nullptr, resolved_.Find(std::string(bundle, 'B'), std::string(locale, 'l')));
    }
  }
}

TEST_F(ResolvedTranslators, MayBeOfManyRequests) {
  constexpr std::size_t kRequests = 20'000;
  const auto bundle = [](std::size_t number) { return "component" + std::to_string(number); };
  for (std::size_t number = 0; number < kRequests; ++number) {
    ASSERT_EQ(nullptr, resolved_.Find(bundle(number), "de-AT"));
    resolved_.Remember(bundle(number), "de-AT", Translator(number));
  }
  for (std::size_t number = 0; number < kRequests; ++number) {
    ASSERT_EQ(&Translator(number), resolved_.Find(bundle(number), "DE-at"));
    ASSERT_EQ(nullptr, resolved_.Find(bundle(number), "de"));
  }
}

// A seed that is the locale's own text makes every hash 0.
TEST_F(ResolvedTranslators, OfEqualHashesAreToldApart) {
  std::uint64_t locale = 0;
  std::memcpy(&locale, "zh-hant-", sizeof locale);
  kx::ResolvedTranslators resolved({locale, 1});
  for (std::size_t number = 0; number < 100; ++number) {
    resolved.Remember("agent" + std::to_string(number), "zh-Hant-TW", Translator(number));
  }
  for (std::size_t number = 0; number < 100; ++number) {
    const std::string bundle = "agent" + std::to_string(number);
    EXPECT_EQ(&Translator(number), resolved.Find(bundle, "zh-hant-tw"));
    EXPECT_EQ(nullptr, resolved.Find(bundle, "zh-hant-cn"));
  }
}

TEST_F(ResolvedTranslators, AreFoundWhileThreadsRememberThemAndOthers) {
  constexpr int kThreads = 4;
  constexpr std::size_t kRequests = 1000;
  std::atomic<int> wrong = 0;
  {
    std::vector<std::jthread> threads;
    for (int thread = 0; thread < kThreads; ++thread) {
      threads.emplace_back([&] {
        for (std::size_t number = 0; number < kRequests; ++number) {
          // Every other one too long to be held by its digest.
          const std::string bundle = std::string(number % 2 * 20, 'x') + std::to_string(number);
          resolved_.Remember(bundle, "fr", Translator(number));
          if (resolved_.Find(bundle, "FR") != &Translator(number)) ++wrong;
          if (resolved_.Find(bundle, "de") != nullptr) ++wrong;
        }
      });
    }
  }
  EXPECT_EQ(0, wrong);
}

}  // namespace
