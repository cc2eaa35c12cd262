// New texts are rolled out by a program that keeps the file to itself while it writes.

#include <gtest/gtest.h>
#include <windows.h>

#include <atomic>
#include <string>
#include <thread>

#include "core/language_cache_fixture.h"

namespace {

constexpr int kRollOuts = 20;

void RollOut(const std::string& path, const std::string& bytes) {
  constexpr DWORD kShareNothing = 0;
  HANDLE file;
  do {  // a reader may have it open
    file = ::CreateFileW(PathFromUtf8(path).c_str(), GENERIC_WRITE, kShareNothing, nullptr,
                         CREATE_ALWAYS, 0, nullptr);
  } while (file == INVALID_HANDLE_VALUE);
  DWORD written = 0;
  ::WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
  ::Sleep(15);
  ::CloseHandle(file);
}

using LanguageOnWindows = LanguageCache;

TEST_F(LanguageOnWindows, HasItsTextsThroughoutManyRollOuts) {
  LanguageTree::Write("FR/agent.lang", File("0"));
  const Held before = FindFrench();
  std::atomic<bool> isOver = false;
  std::jthread writer([&] {
    for (int rollOut = 1; rollOut <= kRollOuts; ++rollOut) {
      RollOut(tree_.Path("lang/FR/agent.lang"), File(std::to_string(rollOut)));
    }
    isOver = true;
  });
  int requests = 0;
  for (; !isOver; ++requests) {
    const Held french = FindFrench();
    ASSERT_NE(nullptr, french);
    ASSERT_NE(nullptr, french->GetText("K")) << "request " << requests;
  }
  EXPECT_GT(requests, 0);
  EXPECT_STREQ(std::to_string(kRollOuts).c_str(), FindFrench()->GetText("K"));
}

}  // namespace
