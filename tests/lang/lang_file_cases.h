#ifndef KX_TESTS_LANG_LANG_FILE_CASES_H
#define KX_TESTS_LANG_LANG_FILE_CASES_H

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <ostream>
#include <set>
#include <string>
#include <vector>

#include "lang/lang_reading.h"

/// A file, all that it stores and all the problems that it has.
struct LangFileCase {
  const char* name;
  std::string bytes;
  std::vector<std::string> stored;  ///< as StoredLanguage::Lines() has them
  std::vector<std::string> problems;
};

inline void PrintTo(const LangFileCase& c, std::ostream* os) {
  *os << testing::PrintToString(c.bytes);
}

inline std::string NameOfLangFileCase(const testing::TestParamInfo<LangFileCase>& tested) {
  return tested.param.name;
}

inline std::string ReplacedAll(std::string text, const std::string& from, const std::string& to) {
  for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at)) {
    text.replace(at, from.size(), to);
    at += to.size();
  }
  return text;
}

inline std::string WithCarriageReturns(const std::string& bytes) {
  return ReplacedAll(bytes, "\n", "\r\n");
}

/// Every piece of a file that could have become a key, also one put together by continuations, so
/// that a table that holds more than it should is noticed.
inline std::set<std::string> PossibleKeys(const std::string& bytes) {
  constexpr std::size_t kLongestKey = 32;
  std::set<std::string> keys;
  const std::string joined = ReplacedAll(ReplacedAll(bytes, "\r\n", "\n"), "\n&", "");
  for (const std::string& text : {bytes, joined}) {
    for (std::size_t begin = 0; begin <= text.size(); ++begin) {
      const std::size_t most = std::min(kLongestKey, text.size() - begin);
      for (std::size_t size = 0; size <= most; ++size) keys.insert(text.substr(begin, size));
    }
  }
  return keys;
}

/// The keys in lines of StoredLanguage::Lines().
inline std::set<std::string> KeysOf(const std::vector<std::string>& stored) {
  std::set<std::string> keys;
  for (const std::string& line : stored) {
    const std::size_t begin = line.find(' ');
    const std::size_t end = line.find(" = ");
    if (end != std::string::npos && begin < end)
      keys.insert(line.substr(begin + 1, end - begin - 1));
  }
  return keys;
}

inline void ExpectStoredAndReported(LangReading& reading, const std::string& bytes,
                                    const std::vector<std::string>& stored,
                                    const std::vector<std::string>& problems) {
  std::set<std::string> keys = PossibleKeys(bytes);
  keys.merge(KeysOf(stored));
  EXPECT_EQ(stored, reading.Stored(keys).Lines());
  EXPECT_EQ(problems, reading.problems.Lines());
}

/// Reads one file into nothing and checks all that comes of it.
inline void ExpectStoresAndReports(const std::string& bytes, const std::vector<std::string>& stored,
                                   const std::vector<std::string>& problems) {
  LangReading reading;
  reading.Read(bytes);
  ExpectStoredAndReported(reading, bytes, stored, problems);
}

#endif  // KX_TESTS_LANG_LANG_FILE_CASES_H
