#ifndef KX_TESTS_CORE_FORMAT_FIXTURE_H
#define KX_TESTS_CORE_FORMAT_FIXTURE_H

#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <ostream>
#include <string>
#include <vector>

#include "CKxXlate.h"
#include "Xlate.h"

/// Answers texts from a table, and counts what is done with it.
class FakeTranslator final : public CKxXlate {
 public:
  ~FakeTranslator() override = default;

  void Release() override { ++released; }
  void AddRef() override { ++added; }
  const char* GetText(const char* key) override {
    keysAsked.emplace_back(key);
    const auto found = texts.find(key);
    return found == texts.end() ? nullptr : found->second.c_str();
  }

  const char* GetName() override { return Unexpected(); }
  const char* GetLanguageCode() override { return Unexpected(); }
  const char* GetCountryCode() override { return Unexpected(); }
  const char* GetLongName() override { return Unexpected(); }
  const char* GetCharset() override { return Unexpected(); }
  std::uint32_t GetId() override { return Unexpected() == nullptr ? 0 : 1; }
  const char* GetImageDirectory() override { return Unexpected(); }
  const char* GetDirection() override { return Unexpected(); }
  const char* GetPromptSuffix() override { return Unexpected(); }
  const char* GetDirectory(const char*) override { return Unexpected(); }
  bool GetDirectory(char*, KxSize, const char*) override { return Unexpected() != nullptr; }
  bool GetText(char*, KxSize, const char*, const char*) override { return Unexpected() != nullptr; }
  const char* GetLabel(const char*) override { return Unexpected(); }
  bool GetLabel(char*, KxSize, const char*) override { return Unexpected() != nullptr; }
  bool GetPrompt(char*, KxSize, const char*, const char*) override {
    return Unexpected() != nullptr;
  }

  std::map<std::string, std::string> texts;
  int added = 0;
  int released = 0;
  std::vector<std::string> keysAsked;

 private:
  static const char* Unexpected() {
    ADD_FAILURE() << "only the text by its key is to be asked for";
    return nullptr;
  }
};

/// Each text with its NUL, in a string that holds nothing more.
inline std::string Packed(const std::vector<std::string>& texts) {
  std::string packed;
  for (const std::string& text : texts) packed += text + '\0';
  packed.shrink_to_fit();
  return packed;
}

/// A message whose translator is given, so that none is looked up.
inline Xlate MessageOf(FakeTranslator& translator, const std::vector<std::string>& arguments = {}) {
  Xlate message;
  message.translator = &translator;
  message.resolved = true;
  message.argCount = arguments.size();
  message.args = Packed(arguments);
  return message;
}

struct FormatCase {
  const char* name;
  const char* key;
  std::vector<std::string> arguments;
  bool showKeys;
  const char* expected;
};

inline void PrintTo(const FormatCase& c, std::ostream* os) {
  *os << (c.key == nullptr ? "null" : c.key);
}

class Format : public testing::TestWithParam<FormatCase> {
 protected:
  Format() {
    translator_.texts = {{"K1", "Hello"},
                         {"GREET", "Hello %0, %1 new"},
                         {"BRACES", "{1} before {0}"},
                         {"EMPTY", ""},
                         {"", "text of the empty key"}};
  }

  FakeTranslator translator_;
};

#endif  // KX_TESTS_CORE_FORMAT_FIXTURE_H
