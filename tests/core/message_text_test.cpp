#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <new>
#include <string>
#include <vector>

#include "CKxXlate.h"
#include "Xlate.h"

namespace {

std::vector<std::string> g_calls;

/// What a host's own build of the class may be: of the same size, with operations of its own.
class RecordingText final : public CKxText {
 public:
  void Clear() override {
    g_calls.emplace_back("Clear");
    CKxText::Clear();
  }
  void Set(const char* replacement) override {
    g_calls.push_back(std::string("Set ") + replacement);
    CKxText::Set(replacement);
  }
  void Append(const char* more) override {
    g_calls.push_back(std::string("Append ") + more);
    CKxText::Append(more);
  }
  void AppendString(const std::string& more) override {
    g_calls.push_back("AppendString " + more);
    CKxText::AppendString(more);
  }
};
static_assert(sizeof(RecordingText) == sizeof(CKxText));

TEST(MessageText, IsChangedByTheHostsOwnOperations) {
  Xlate message;
  message.output.~CKxText();
  CKxText* const output = new (&message.output) RecordingText;
  message.resolved = true;
  message.showKeys = true;

  EXPECT_STREQ("[K1] K1", CKxXlate::Format(&message, "K1"));

  EXPECT_THAT(g_calls, testing::ElementsAre("Clear", "Append [", "Append K1", "Append ] ",
                                            "AppendString K1"));
  output->~CKxText();
  new (&message.output) CKxText;
}

}  // namespace
