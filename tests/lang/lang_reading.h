#ifndef KX_TESTS_LANG_LANG_READING_H
#define KX_TESTS_LANG_LANG_READING_H

#include <gtest/gtest.h>

#include <istream>
#include <map>
#include <optional>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "lang/lang_file_parser.h"
#include "lang/language_contents.h"
#include "support/problem_list.h"

// Language files in, and what they left behind as lines that a test can list.

inline const std::string kAgentFile = "FR/agent.lang";

inline std::string InSmallLetters(std::string text) {
  for (char& c : text) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return text;
}

/// What a language says. The case of keys does not count; here they are in small letters.
struct StoredLanguage {
  using Table = std::map<std::string, std::string>;

  std::optional<std::string> longName;
  std::optional<std::string> images;
  std::string charset;
  std::string direction;
  std::optional<std::string> promptSuffix;
  bool debug = false;
  Table directories;
  Table texts;
  Table labels;

  /// "name = French", "text ok = Bon", ...: header values in the order above, then the tables, each
  /// sorted by key. What was not set has no line.
  std::vector<std::string> Lines() const {
    std::vector<std::string> lines;
    if (longName) lines.push_back("name = " + *longName);
    if (images) lines.push_back("images = " + *images);
    if (!charset.empty()) lines.push_back("charset = " + charset);
    if (!direction.empty()) lines.push_back("direction = " + direction);
    if (promptSuffix) lines.push_back("prompt = " + *promptSuffix);
    if (debug) lines.emplace_back("debug");
    for (const auto& [key, value] : directories)
      lines.push_back("directory " + key + " = " + value);
    for (const auto& [key, value] : texts) lines.push_back("text " + key + " = " + value);
    for (const auto& [key, value] : labels) lines.push_back("label " + key + " = " + value);
    return lines;
  }
};

/// Files read one after another into one contents, as for one language.
struct LangReading {
  void Read(const std::string& bytes, const std::string& file = kAgentFile) {
    std::istringstream stream(bytes);
    ReadStream(stream, file);
  }

  void ReadStream(std::istream& stream, const std::string& file = kAgentFile) {
    kx::LangFileParser parser(file, problems, strings);
    EXPECT_TRUE(kx::ReadLangFile(parser, stream, contents));
  }

  /// What was stored; also checks that values are the string table's copies.
  ///
  /// @param keys  those to look for in the tables, which cannot be listed
  StoredLanguage Stored(const std::set<std::string>& keys) {
    StoredLanguage stored;
    stored.longName = Value(contents.longName);
    stored.images = Value(contents.imageDirectory);
    stored.charset = contents.charset;
    stored.direction = contents.direction;
    stored.promptSuffix = Value(contents.promptSuffix);
    stored.debug = contents.debug;
    for (const std::string& key : keys) {
      Find(contents.texts, key, stored.texts);
      Find(contents.labels, key, stored.labels);
      Find(contents.directories, key, stored.directories);
    }
    return stored;
  }

  kx::InternTable strings;
  kx::LanguageContents contents;
  ProblemList problems;

 private:
  std::optional<std::string> Value(const char* value) {
    if (value == nullptr) return std::nullopt;
    EXPECT_EQ(strings.InternString(value), value) << "not interned: " << value;
    return value;
  }

  void Find(const kx::LanguageTable& table, const std::string& key, StoredLanguage::Table& stored) {
    if (const auto value = Value(table.Find(key))) stored[InSmallLetters(key)] = *value;
  }
};

// The problem lines of FR/agent.lang.

inline std::string ProblemLine(const std::string& words, int line, const std::string& text) {
  return words + " in FR/agent.lang at line #" + std::to_string(line) + ": " + text;
}
inline std::string Illegal(int line, const std::string& text) {
  return ProblemLine("Illegal Header Directive", line, text);
}
inline std::string Unrecognized(int line, const std::string& text) {
  return ProblemLine("Unrecognized text", line, text);
}
inline std::string StrayContinuation(int line, const std::string& text) {
  return ProblemLine("Unrecognized continuation text", line, text);
}
inline std::string NoKey(int line, const std::string& text) {
  return ProblemLine("VALUE found without a KEY", line, text);
}
inline std::string NoValue(int line, const std::string& text) {
  return ProblemLine("Two KEY clauses without intervening VALUE", line, text);
}
inline std::string OtherCharset() {
  return "FR/agent.lang contains a differing value for CHARSET from default language";
}

#endif  // KX_TESTS_LANG_LANG_READING_H
