#include "bundles/property_key_pool.h"

#include <gtest/gtest.h>

#include <latch>
#include <set>
#include <string>
#include <thread>
#include <vector>

namespace {

constexpr std::size_t kThreads = 8;

TEST(PropertyKeyPool, NullIsNull) {
  kx::PropertyKeyPool pool;
  EXPECT_EQ(nullptr, pool.InternPropertyKey(nullptr));
}

TEST(PropertyKeyPool, KeyIsACopy) {
  kx::PropertyKeyPool pool;
  char key[] = "Title";
  const char* const pooled = pool.InternPropertyKey(key);
  EXPECT_NE(key, pooled);
  EXPECT_STREQ("Title", pooled);

  key[0] = 'X';
  EXPECT_STREQ("Title", pooled);
}

TEST(PropertyKeyPool, SameTextIsPooledOnce) {
  kx::PropertyKeyPool pool;
  const char* const pooled = pool.InternPropertyKey("Title");
  EXPECT_EQ(pooled, pool.InternPropertyKey("Title"));
  EXPECT_EQ(pooled, pool.InternPropertyKey(std::string("Title").c_str()));
  EXPECT_EQ(pooled, pool.InternPropertyKey(pooled));
}

TEST(PropertyKeyPool, SpellingCounts) {
  kx::PropertyKeyPool pool;
  const char* const title = pool.InternPropertyKey("Title");
  const char* const capitals = pool.InternPropertyKey("TITLE");
  EXPECT_NE(title, capitals);
  EXPECT_STREQ("Title", title);
  EXPECT_STREQ("TITLE", capitals);
  EXPECT_EQ(title, pool.InternPropertyKey("Title"));
  EXPECT_EQ(capitals, pool.InternPropertyKey("TITLE"));
}

TEST(PropertyKeyPool, EmptyKeyIsAKey) {
  kx::PropertyKeyPool pool;
  const char* const pooled = pool.InternPropertyKey("");
  ASSERT_NE(nullptr, pooled);
  EXPECT_STREQ("", pooled);
  EXPECT_EQ(pooled, pool.InternPropertyKey(""));
}

TEST(PropertyKeyPool, PrefixIsAnotherKey) {
  kx::PropertyKeyPool pool;
  const char* const longer = pool.InternPropertyKey("abc");
  const char* const shorter = pool.InternPropertyKey("ab");
  EXPECT_STREQ("abc", longer);
  EXPECT_STREQ("ab", shorter);
}

TEST(PropertyKeyPool, BytesAreKeptAsTheyAre) {
  kx::PropertyKeyPool pool;
  EXPECT_STREQ(" \xC3\xA9\xFF\t", pool.InternPropertyKey(" \xC3\xA9\xFF\t"));
  const std::string megabyte(std::size_t{1} << 20, 'k');
  EXPECT_EQ(megabyte, pool.InternPropertyKey(megabyte.c_str()));
}

TEST(PropertyKeyPool, KeysStayWhereTheyAreWhileItGrows) {
  kx::PropertyKeyPool pool;
  std::vector<const char*> pooled;
  for (int i = 0; i < 50000; ++i) {
    pooled.push_back(pool.InternPropertyKey(("key" + std::to_string(i)).c_str()));
  }
  for (std::size_t i = 0; i < pooled.size(); ++i) {
    const std::string key = "key" + std::to_string(i);
    ASSERT_EQ(key, pooled[i]);
    ASSERT_EQ(pooled[i], pool.InternPropertyKey(key.c_str()));
  }
}

TEST(PropertyKeyPool, PoolsAreApart) {
  kx::PropertyKeyPool one;
  kx::PropertyKeyPool other;
  EXPECT_NE(one.InternPropertyKey("Title"), other.InternPropertyKey("Title"));
}

TEST(PropertyKeyPool, ProcessHasOne) {
  EXPECT_EQ(&kx::ProcessKeyPool(), &kx::ProcessKeyPool());
  const char* const pooled = kx::ProcessKeyPool().InternPropertyKey("Title");
  EXPECT_EQ(pooled, kx::ProcessKeyPool().InternPropertyKey("Title"));
}

/// Runs `work(thread number)` on all threads, which start together.
template <class Work>
void RunTogether(Work work) {
  std::latch start(kThreads);
  std::vector<std::thread> threads;
  for (std::size_t i = 0; i < kThreads; ++i) {
    threads.emplace_back([&start, &work, i] {
      start.arrive_and_wait();
      work(i);
    });
  }
  for (std::thread& thread : threads) thread.join();
}

TEST(PropertyKeyPool, ThreadsThatInternTheSameKeysShareThem) {
  constexpr std::size_t kKeys = 3000;
  kx::PropertyKeyPool pool;
  std::vector<std::vector<const char*>> pooled(kThreads, std::vector<const char*>(kKeys));
  RunTogether([&](std::size_t thread) {
    for (std::size_t i = 0; i < kKeys; ++i) {
      const std::size_t key = (i + thread * 7) % kKeys;  // so that each leads at some keys
      pooled[thread][key] = pool.InternPropertyKey(("key" + std::to_string(key)).c_str());
    }
  });
  for (const std::vector<const char*>& ofThread : pooled) EXPECT_EQ(pooled[0], ofThread);
  for (std::size_t i = 0; i < kKeys; ++i) ASSERT_EQ("key" + std::to_string(i), pooled[0][i]);
}

TEST(PropertyKeyPool, ThreadsThatInternDifferentKeysGetThemAll) {
  constexpr std::size_t kKeys = 3000;
  kx::PropertyKeyPool pool;
  std::vector<std::vector<const char*>> pooled(kThreads);
  const auto keyOf = [](std::size_t thread, std::size_t i) {
    return std::to_string(thread) + "." + std::to_string(i);
  };
  RunTogether([&](std::size_t thread) {
    for (std::size_t i = 0; i < kKeys; ++i) {
      pooled[thread].push_back(pool.InternPropertyKey(keyOf(thread, i).c_str()));
    }
  });
  std::set<const char*> all;
  for (std::size_t thread = 0; thread < kThreads; ++thread) {
    for (std::size_t i = 0; i < kKeys; ++i) {
      ASSERT_EQ(keyOf(thread, i), pooled[thread][i]);
      all.insert(pooled[thread][i]);
    }
  }
  EXPECT_EQ(kThreads * kKeys, all.size());
}

}  // namespace
