// New texts are rolled out by a program that keeps the file to itself while it writes.

#include <gtest/gtest.h>
#include <windows.h>

#include <atomic>
#include <memory>
#include <string>
#include <thread>

#include "core/language_cache.h"
#include "lang/interned_strings.h"
#include "support/lasting_log.h"
#include "support/temp_tree.h"

namespace {

struct ReleaseTranslator {
  void operator()(CKxXlate* translator) const { translator->Release(); }
};
using Held = std::unique_ptr<CRealKxXlate, ReleaseTranslator>;

constexpr int kRollOuts = 20;

std::string TextsOf(int rollOut) {
  return "Name n\n\nKey K\nValue " + std::to_string(rollOut) + "\n";
}

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

TEST(LanguageOnWindows, HasItsTextsThroughoutManyRollOuts) {
  const TempTree tree;
  const std::string file = "lang/FR/agent.lang";
  tree.Write(file, TextsOf(0));
  kx::LanguagePaths paths{true, tree.Path(), tree.Path("lang") + "/"};
  kx::InternTable strings;
  std::uint32_t nextId = 1;
  kx::CRealKxXlateCache cache({paths, strings, nextId, LastingLog()});
  const Held before(cache.FindOrLoad("agent", "fr", nullptr));
  std::atomic<bool> isOver = false;
  std::jthread writer([&] {
    for (int rollOut = 1; rollOut <= kRollOuts; ++rollOut)
      RollOut(tree.Path(file), TextsOf(rollOut));
    isOver = true;
  });
  int requests = 0;
  for (; !isOver; ++requests) {
    const Held french(cache.FindOrLoad("agent", "fr", nullptr));
    ASSERT_NE(nullptr, french);
    ASSERT_NE(nullptr, french->GetText("K")) << "request " << requests;
  }
  EXPECT_GT(requests, 0);
  const Held french(cache.FindOrLoad("agent", "fr", nullptr));
  EXPECT_STREQ(std::to_string(kRollOuts).c_str(), french->GetText("K"));
  cache.Clear();
}

}  // namespace
