#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "log/translation_log.h"
#include "support/lasting_log.h"
#include "support/temp_tree.h"

namespace {

constexpr int kThreads = 8;
constexpr int kLines = 500;

void InThreads(const std::function<void(int)>& work) {
  std::atomic<bool> go = false;
  std::vector<std::thread> threads;
  for (int index = 0; index < kThreads; ++index) {
    threads.emplace_back([&, index] {
      while (!go) std::this_thread::yield();
      work(index);
    });
  }
  go = true;
  for (std::thread& thread : threads) thread.join();
}

const std::string& Filling() {
  static const std::string filling(150, 'x');
  return filling;
}

void WriteLines(kx::TranslationLog& log, const std::string& root, int thread) {
  for (int line = 0; line < kLines; ++line) {
    log.WriteLine(root, {std::to_string(thread), " ", std::to_string(line), Filling(), "\n end"});
  }
}

/// The lines of each thread must stand in their order, each whole.
void ExpectWholeLines(const std::string& written) {
  std::vector<int> next(kThreads, 0);
  std::istringstream lines(written);
  int count = 0;
  for (std::string line; std::getline(lines, line); ++count) {
    const int thread = line.empty() ? -1 : line[0] - '0';
    ASSERT_TRUE(thread >= 0 && thread < kThreads) << line;
    const int number = next[static_cast<std::size_t>(thread)]++;
    ASSERT_EQ(std::to_string(thread) + " " + std::to_string(number) + Filling() + "\\n end", line);
  }
  EXPECT_EQ(kThreads * kLines, count);
}

TEST(TranslationLogThreads, LinesNeverMix) {
  const TempTree tree;
  kx::TranslationLog& log = LastingLog();
  InThreads([&](int thread) { WriteLines(log, tree.Path(), thread); });
  ExpectWholeLines(tree.Read("log/translate.log"));
}

TEST(TranslationLogThreads, LinesNeverMixOnStandardOutput) {
  const TempTree tree;
  kx::TranslationLog& log = LastingLog();
  testing::internal::CaptureStdout();
  InThreads([&](int thread) { WriteLines(log, tree.Path("missing"), thread); });
  ExpectWholeLines(testing::internal::GetCapturedStdout());
}

TEST(TranslationLogThreads, OnlyOneOpensTheLog) {
  const TempTree tree;
  std::vector<std::string> roots;
  for (int thread = 0; thread < kThreads; ++thread) {
    roots.push_back("r" + std::to_string(thread));
    tree.MakeDirectory(roots.back());
  }
  kx::TranslationLog& log = LastingLog();
  InThreads([&](int thread) {
    WriteLines(log, tree.Path(roots[static_cast<std::size_t>(thread)]), thread);
  });

  std::vector<std::string> used;
  for (const std::string& root : roots) {
    if (tree.Exists(root + "/log")) used.push_back(root);
  }
  ASSERT_EQ(1u, used.size());
  ExpectWholeLines(tree.Read(used[0] + "/log/translate.log"));
}

}  // namespace
