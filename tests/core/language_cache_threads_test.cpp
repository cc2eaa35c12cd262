// Threads that acquire, look up and release while files change and the cache is emptied.

#include <gtest/gtest.h>

#include <chrono>
#include <future>

#include "core/language_threads.h"

namespace {

TEST_F(LanguageCacheThreads, FindTextsWhileFilesChangeAndTheCacheIsEmptied) {
  Write("FR/agent.lang", File("text"));
  Write("FR-CH/agent.lang", File("Swiss"));
  const char* const regions[] = {"", "CA", "BE", "CH"};
  RunWhile(
      300,
      [this](int number) {
        Touch("FR/agent.lang", 1000 + number);
        const kx::CriticalSectionGuard guard(lock_);
        if (number % 3 == 0) cache_->Clear();
      },
      [&](int thread) {
        const Held translator = Request(regions[thread]);
        ASSERT_NE(nullptr, translator);
        EXPECT_STREQ(thread == 3 ? "Swiss" : "text", translator->GetText("K"));
        EXPECT_EQ(nullptr, translator->GetText("ABSENT"));
      });
}

// A slow disk under one language, or a file that another program keeps to itself, holds up only
// those who want it.
TEST(LanguageRequest, ForWhatIsCachedDoesNotWaitForALoad) {
  CKxXlate* const first = kx::FindOrLoadLanguage("agent", "en", nullptr);
  {
    const kx::CriticalSectionGuard loading(kx::CacheLock());
    auto second = std::async(std::launch::async,
                             [] { return kx::FindOrLoadLanguage("agent", "en", nullptr); });
    const bool isDone = second.wait_for(std::chrono::seconds(30)) == std::future_status::ready;
    ASSERT_TRUE(isDone);
    EXPECT_EQ(first, second.get());
  }
  first->Release();
  first->Release();
  kx::ClearLanguages();
}

}  // namespace
