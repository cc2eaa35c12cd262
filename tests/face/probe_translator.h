#ifndef KX_TESTS_FACE_PROBE_TRANSLATOR_H
#define KX_TESTS_FACE_PROBE_TRANSLATOR_H

#include <algorithm>
#include <cstring>
#include <map>
#include <string>
#include <string_view>

#include "CKxXlate.h"

/// A translator that a test owns and whose references it counts. It begins with one.
class ProbeTranslator : public CKxXlate {
 public:
  int references = 1;
  std::map<std::string, std::string> texts;
  const char* said = nullptr;  ///< what it says of itself, whatever it is asked

  void Release() override { --references; }
  void AddRef() override { ++references; }
  const char* GetName() override { return said; }
  const char* GetLanguageCode() override { return said; }
  const char* GetCountryCode() override { return said; }
  const char* GetLongName() override { return said; }
  const char* GetCharset() override { return said; }
  std::uint32_t GetId() override { return 7; }
  const char* GetImageDirectory() override { return said; }
  const char* GetDirection() override { return said; }
  const char* GetPromptSuffix() override { return said; }
  const char* GetDirectory(const char* name) override { return Find("directory ", name); }
  bool GetDirectory(char* /*dst*/, KxSize /*size*/, const char* /*name*/) override { return false; }
  const char* GetText(const char* key) override { return Find("", key); }
  bool GetText(char* /*dst*/, KxSize /*size*/, const char* /*key*/, const char* /*d*/) override {
    return false;
  }
  const char* GetLabel(const char* key) override { return Find("label ", key); }
  bool GetLabel(char* /*dst*/, KxSize /*size*/, const char* /*key*/) override { return false; }

  /// As the library: the suffix is appended only where all of it fits.
  bool GetPrompt(char* dst, KxSize size, const char* key, const char* /*dflt*/) override {
    const char* const text = GetText(key);
    std::string whole = text == nullptr ? "" : text;
    if (said != nullptr && whole.size() + std::strlen(said) < size) whole += said;
    whole.resize(std::min<std::size_t>(whole.size(), size - 1));
    std::memcpy(dst, whole.c_str(), whole.size() + 1);
    return text != nullptr;
  }

 private:
  const char* Find(const char* kind, const char* key) const {
    if (key == nullptr) return nullptr;
    const auto found = texts.find(std::string(kind) + key);
    return found == texts.end() ? nullptr : found->second.c_str();
  }
};

#endif  // KX_TESTS_FACE_PROBE_TRANSLATOR_H
