#include "log/problem_sink.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

namespace {

std::string WrittenForLine(const std::string& text) {
  testing::internal::CaptureStderr();
  kx::StandardErrorSink().Line(text);
  return testing::internal::GetCapturedStderr();
}

TEST(StandardErrorSink, WritesEachProblemAsALine) {
  testing::internal::CaptureStderr();
  kx::StandardErrorSink sink;
  sink.Line("cannot open file: a.properties");
  sink.Line("a.properties:2 does not contain '='. Skipped");
  EXPECT_EQ(
      "cannot open file: a.properties\n"
      "a.properties:2 does not contain '='. Skipped\n",
      testing::internal::GetCapturedStderr());
}

TEST(StandardErrorSink, AnEmptyProblemIsAnEmptyLine) { EXPECT_EQ("\n", WrittenForLine("")); }

TEST(StandardErrorSink, TextIsNotAFormat) {
  EXPECT_EQ("100%n of %s%d %%\n", WrittenForLine("100%n of %s%d %%"));
}

TEST(StandardErrorSink, BytesAboveAsciiPassUnchanged) {
  EXPECT_EQ("d\xC3\xA9p\xC3\xB4t \xFF\xC0\n", WrittenForLine("d\xC3\xA9p\xC3\xB4t \xFF\xC0"));
}

TEST(StandardErrorSink, ALongLineIsWrittenWhole) {
  const std::string text(300000, 'x');
  EXPECT_TRUE(text + '\n' == WrittenForLine(text));
}

TEST(StandardErrorSink, NothingGoesToStandardOutput) {
  testing::internal::CaptureStdout();
  EXPECT_EQ("a problem\n", WrittenForLine("a problem"));
  EXPECT_EQ("", testing::internal::GetCapturedStdout());
}

TEST(StandardErrorSink, LinesOfDifferentThreadsDoNotMix) {
  constexpr int kThreads = 8;
  constexpr int kLines = 500;
  std::vector<std::string> expected;
  for (int line = 0; line < kThreads * kLines; ++line) {
    expected.push_back("line " + std::to_string(line) + std::string(200, 'x') + " ends");
  }

  testing::internal::CaptureStderr();
  std::vector<std::thread> threads;
  for (int thread = 0; thread < kThreads; ++thread) {
    threads.emplace_back([&expected, thread] {
      kx::StandardErrorSink sink;
      for (int line = 0; line < kLines; ++line) {
        sink.Line(expected[static_cast<std::size_t>(thread * kLines + line)]);
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  std::istringstream written(testing::internal::GetCapturedStderr());

  std::vector<std::string> lines;
  for (std::string line; std::getline(written, line);) lines.push_back(line);
  std::sort(lines.begin(), lines.end());
  std::sort(expected.begin(), expected.end());
  EXPECT_EQ(expected, lines);
}

}  // namespace
