#ifndef KX_TESTS_DOCS_LANGUAGE_DOCUMENT_H
#define KX_TESTS_DOCS_LANGUAGE_DOCUMENT_H

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "core/language_cache.h"
#include "docs/markdown_parts.h"
#include "lang/interned_strings.h"
#include "support/lasting_log.h"
#include "support/temp_tree.h"

/// Language files in a tree, and what is read from them for docs/lang-files.md.
class LanguageDocument : public testing::Test {
 protected:
  ~LanguageDocument() override { cache_.Clear(); }

  void Write(const std::string& path, const std::string& bytes) {
    tree_.Write("lang/" + path, bytes);
  }

  /// A file of one text, "K", whose header is without problems.
  static std::string FileOf(const std::string& text) {
    return "Name n\n\nKey K\nValue " + text + "\n";
  }

  /// What a request for "agent" in a language answers; "(none)" when it has no files or no text.
  std::string TextOf(const char* key, const char* language, const char* region = nullptr) {
    CRealKxXlate* const translator = cache_.FindOrLoad("agent", language, region);
    if (translator == nullptr) return "(none)";
    const char* const text = translator->GetText(key);
    const std::string answer = text == nullptr ? "(none)" : text;
    translator->Release();
    return answer;
  }

  /// As after CKxXlate::FreeCache.
  void FreeCache() { cache_.Clear(); }

  std::string Log() const { return tree_.Read("log/translate.log"); }

  const MarkdownParts document_{"lang-files.md"};
  TempTree tree_;
  kx::LanguagePaths paths_{true, tree_.Path(), tree_.Path("lang") + "/"};
  kx::InternTable strings_;
  std::uint32_t nextId_ = 1;
  kx::CRealKxXlateCache cache_{kx::LanguageContext{paths_, strings_, nextId_, LastingLog()}};
};

#endif  // KX_TESTS_DOCS_LANGUAGE_DOCUMENT_H
