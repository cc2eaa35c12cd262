#ifndef KX_TESTS_BUNDLES_PROPERTIES_ROWS_H
#define KX_TESTS_BUNDLES_PROPERTIES_ROWS_H

#include <cstddef>
#include <istream>
#include <map>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include "bundles/properties_reader.h"
#include "support/problem_list.h"

/// Keys, as the table spells them, with their texts.
using PropertyTexts = std::map<std::string, std::string>;

/// A file called "agent.properties", what is read from it, and all the problems told.
struct PropertiesCase {
  const char* name;
  std::string bytes;
  PropertyTexts texts;
  std::vector<std::string> problems;
};

inline void PrintTo(const PropertiesCase& c, std::ostream* os) { *os << c.bytes; }

struct PropertiesReading {
  PropertyTexts texts;
  std::vector<std::string> problems;
};

inline PropertyTexts TextsOf(const kx::PropertyTable& table) {
  PropertyTexts texts;
  table.ForEach([&texts](const char* key, const char* text) { texts.emplace(key, text); });
  return texts;
}

inline PropertiesReading ReadProperties(const std::string& bytes) {
  std::istringstream stream(bytes);
  kx::PropertyTable table;
  ProblemList problems;
  kx::ReadPropertiesStream("agent.properties", stream, table, problems);
  return {TextsOf(table), problems.Lines()};
}

/// The same text with the line ends of the other system.
inline std::string WithCarriageReturns(const std::string& bytes) {
  std::string result;
  for (const char c : bytes) {
    if (c == '\n') result += '\r';
    result += c;
  }
  return result;
}

inline std::string NotUtf8(std::size_t line) {
  return "agent.properties:" + std::to_string(line) + " contains non-UTF-8 character(s). Skipped";
}

inline std::string NoEqualsSign(std::size_t line) {
  return "agent.properties:" + std::to_string(line) + " does not contain '='. Skipped";
}

#endif  // KX_TESTS_BUNDLES_PROPERTIES_ROWS_H
