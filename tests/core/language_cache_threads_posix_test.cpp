// Threads that ask for a language while its file is replaced, which Windows does not do to a file
// that somebody looks at.

#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <string>

#include "core/language_threads.h"

namespace {

TEST_F(LanguageCacheThreads, NeverGetAnOlderTextThanTheyHaveSeen) {
  Write("FR/agent.lang", File("0"));
  Request("");
  std::atomic<int> written = 0;
  RunWhile(
      100,
      [&](int number) {
        tree_.Write("new", File(std::string(static_cast<std::size_t>(number), 'x')));
        std::filesystem::rename(PathFromUtf8(tree_.Path("new")),
                                PathFromUtf8(tree_.Path("lang/FR/agent.lang")));
        written = number;
      },
      [&](int thread) {
        const int before = written;
        const Held translator = Request(thread % 2 == 0 ? "" : "CA");
        const std::string text = translator->GetText("K");
        EXPECT_GE(text == "0" ? 0 : static_cast<int>(text.size()), before);
      });
}

}  // namespace
