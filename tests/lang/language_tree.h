#ifndef KX_TESTS_LANG_LANGUAGE_TREE_H
#define KX_TESTS_LANG_LANGUAGE_TREE_H

#include <gtest/gtest.h>

#include <chrono>
#include <cstdint>
#include <string>

#include "lang/interned_strings.h"
#include "lang/real_kx_xlate.h"
#include "support/held_reference.h"
#include "support/lasting_log.h"
#include "support/temp_tree.h"

using Held = HeldReference<CRealKxXlate>;

/// Languages in the directory "lang" of a tree, with a log of their own in the tree.
class LanguageTree : public testing::Test {
 protected:
  void Write(const std::string& file, const std::string& bytes) {
    tree_.Write("lang/" + file, bytes);
  }

  /// Sets a file's time of last change, in seconds since 1970.
  void Touch(const std::string& file, std::int64_t seconds) {
    tree_.SetModified("lang/" + file, std::chrono::seconds(seconds));
  }

  Held Load(const char* name, const char* language, const char* country) {
    return Held(new CRealKxXlate(context_, name, language, country));
  }

  /// A translator for Canadian French that is made of one file.
  Held Read(const std::string& bytes) {
    Write("FR/agent.lang", bytes);
    return Load("agent", "fr", "ca");
  }

  std::string Log() const { return tree_.Read("log/translate.log"); }

  TempTree tree_;
  kx::LanguagePaths paths_{true, tree_.Path(), tree_.Path("lang") + "/"};
  kx::InternTable strings_;
  std::uint32_t nextId_ = 1;
  const kx::LanguageContext context_{paths_, strings_, nextId_, LastingLog()};
};

/// A file that has all that lookups ask for.
inline constexpr char kFileForLookups[] =
    "Prompt Suffix :\n"
    "Directory help /docs/fr\n"
    "Directory none\n"
    "\n"
    "Key Login\n"
    "Value abcdef\n"
    "Key EMPTY\n"
    "Val\n"
    "Button Ok\n"
    "Label D'accord\n"
    "Button BLANK\n"
    "Label\n";

#endif  // KX_TESTS_LANG_LANGUAGE_TREE_H
