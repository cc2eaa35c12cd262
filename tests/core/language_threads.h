#ifndef KX_TESTS_CORE_LANGUAGE_THREADS_H
#define KX_TESTS_CORE_LANGUAGE_THREADS_H

#include <atomic>
#include <functional>
#include <thread>
#include <vector>

#include "core/language_cache_fixture.h"

/// Threads that use one cache.
class LanguageCacheThreads : public LanguageCache {
 protected:
  /// As the process does.
  Held Request(const char* region) {
    if (auto* const found = cache_->FindUnchanged("agent", "fr", region)) return Held(found);
    const kx::CriticalSectionGuard guard(lock_);
    return Held(cache_->FindOrLoad("agent", "fr", region));
  }

  /// Runs `work` until `change` has been called so often, in threads of their own.
  void RunWhile(int changes, const std::function<void(int)>& change,
                const std::function<void(int)>& work) {
    constexpr int kThreads = 4;
    std::atomic<bool> isDone = false;
    std::vector<std::thread> threads;
    for (int thread = 0; thread < kThreads; ++thread) {
      threads.emplace_back([&, thread] {
        while (!isDone) work(thread);
      });
    }
    for (int number = 0; number < changes; ++number) change(number);
    isDone = true;
    for (std::thread& thread : threads) thread.join();
  }

  kx::CriticalSection lock_;
};

#endif  // KX_TESTS_CORE_LANGUAGE_THREADS_H
