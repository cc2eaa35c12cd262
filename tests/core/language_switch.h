#ifndef KX_TESTS_CORE_LANGUAGE_SWITCH_H
#define KX_TESTS_CORE_LANGUAGE_SWITCH_H

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <string>

#include "core/language_cache_fixture.h"

/// Ways to roll languages out under a process that has read them.
class LanguageSwitch : public LanguageCache {
 protected:
  LanguageSwitch() { paths_.directory = tree_.Path("product/lang/"); }

  /// Two versions of one language, which differ in their sizes.
  void WriteVersion(const std::string& directory, const std::string& text) {
    tree_.Write(directory + "/FR/(Common).lang", "Name n\n");
    tree_.Write(directory + "/FR/agent.lang", File(text));
    for (const char* file : {"/FR/(Common).lang", "/FR/agent.lang"}) {
      tree_.SetModified(directory + file, std::chrono::seconds(1000));
    }
  }

  std::filesystem::path At(const std::string& path) const { return PathFromUtf8(tree_.Path(path)); }

  void Rename(const std::string& from, const std::string& to) {
    std::filesystem::rename(At(from), At(to));
  }

  /// The text after a change, also of a region, whose first request is after it.
  void ExpectText(const std::string& text) {
    EXPECT_EQ(text, FindFrench()->GetText("K"));
    EXPECT_EQ(text, Find("agent", "fr", text.c_str())->GetText("K"));
  }
};

#endif  // KX_TESTS_CORE_LANGUAGE_SWITCH_H
