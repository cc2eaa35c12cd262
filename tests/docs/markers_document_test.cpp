// Runs what docs/markers.md says: each row of its tables that begin with a text and its values.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdarg>
#include <cstddef>
#include <fstream>
#include <functional>
#include <map>
#include <span>
#include <sstream>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include "CKxXlate.h"

namespace {

using Value = std::variant<int, double, std::string>;

struct Row {
  std::string place;  ///< heading and line
  std::string text;
  std::vector<Value> values;
  std::map<std::string, std::string> results;  ///< by the function that gives them
};

// The document.

std::string Trimmed(const std::string& text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string::npos) return "";
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::vector<std::string> CellsOf(const std::string& line) {
  std::vector<std::string> cells;
  std::istringstream rest(line.substr(1));
  for (std::string cell; std::getline(rest, cell, '|');) cells.push_back(Trimmed(cell));
  return cells;
}

/// What stands in code quotes in a cell.
std::vector<std::string> CodeIn(const std::string& cell) {
  std::vector<std::string> codes;
  std::size_t start = cell.find('`');
  while (start != std::string::npos) {
    const std::size_t end = cell.find('`', start + 1);
    if (end == std::string::npos) throw std::runtime_error("code without its end: " + cell);
    codes.push_back(cell.substr(start + 1, end - start - 1));
    start = cell.find('`', end + 1);
  }
  return codes;
}

/// The one text in code quotes; the word "nothing" is the empty one.
std::string TextIn(const std::string& cell) {
  if (cell == "nothing") return "";
  const std::vector<std::string> codes = CodeIn(cell);
  if (codes.size() != 1) throw std::runtime_error("not one text: " + cell);
  return codes.front();
}

Value ValueOf(const std::string& code) {
  if (code.front() == '"') return code.substr(1, code.size() - 2);
  if (code.find('.') != std::string::npos) return std::stod(code);
  return std::stoi(code);
}

Row RowOf(const std::vector<std::string>& header, const std::string& line) {
  const std::vector<std::string> cells = CellsOf(line);
  if (cells.size() != header.size()) throw std::runtime_error("not as its header: " + line);
  Row row;
  row.text = TextIn(cells[0]);
  for (const std::string& code : CodeIn(cells[1])) row.values.push_back(ValueOf(code));
  for (std::size_t i = 2; i < cells.size(); ++i) {
    for (const std::string& function : CodeIn(header[i])) row.results[function] = TextIn(cells[i]);
  }
  return row;
}

std::vector<Row> RowsOfTheDocument() {
  std::ifstream document(KXXLATE_MARKERS_DOCUMENT);
  if (!document.is_open()) throw std::runtime_error("no " KXXLATE_MARKERS_DOCUMENT);
  std::vector<Row> rows;
  std::string heading;
  std::vector<std::string> header;  // of the table that the line stands in
  int number = 0;
  for (std::string line; std::getline(document, line);) {
    ++number;
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (line.starts_with('#')) heading = line.substr(line.find(' ') + 1);
    if (!line.starts_with('|')) {
      header.clear();
    } else if (header.empty()) {
      header = CellsOf(line);
    } else if (header[0] == "Text" && header[1] == "Values" && !line.starts_with("|---")) {
      Row& row = rows.emplace_back(RowOf(header, line));
      row.place = heading + ", line " + std::to_string(number);
    }
  }
  return rows;
}

// The functions.

constexpr KxSize kAmple = 256;

std::string AsText(const Value& value) {
  if (const std::string* const text = std::get_if<std::string>(&value)) return *text;
  std::ostringstream text;
  if (const int* const number = std::get_if<int>(&value)) text << *number;
  if (const double* const fraction = std::get_if<double>(&value)) text << *fraction;
  return text.str();
}

std::string Insert(const std::string& text, const std::vector<Value>& values) {
  std::vector<std::string> texts;
  std::transform(values.begin(), values.end(), std::back_inserter(texts), AsText);
  char buffer[kAmple];
  CKxXlate::FormatMessageA(buffer, kAmple - 1, text.c_str(), texts.size(), texts.data());
  return buffer;
}

void InsertVariableVA(char* buffer, KxSize size, const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  CKxXlate::InsertVariableVA(buffer, size, format, arguments);
  va_end(arguments);
}

using Variadic = void (*)(char* buffer, KxSize size, const char* format, ...);

/// Passes values one by one, each as its type.
template <class... Passed>
std::string Pass(Variadic function, const std::string& text, std::span<const Value> values,
                 Passed... passed) {
  if (values.empty()) {
    std::array<char, kAmple> buffer{};
    function(buffer.data(), kAmple, text.c_str(), passed...);
    return buffer.data();
  }
  if constexpr (sizeof...(Passed) < 3) {
    const auto passOn = [&](const auto& value) {
      if constexpr (std::is_same_v<const std::string&, decltype(value)>) {
        return Pass(function, text, values.subspan(1), passed..., value.c_str());
      } else {
        return Pass(function, text, values.subspan(1), passed..., value);
      }
    };
    return std::visit(passOn, values.front());
  }
  throw std::runtime_error("more values than this test passes: " + text);
}

std::string Result(const std::string& function, const Row& row) {
  if (function == "Insert") return Insert(row.text, row.values);
  if (function == "InsertVariable") return Pass(&CKxXlate::InsertVariable, row.text, row.values);
  if (function == "InsertVariableVA") return Pass(&InsertVariableVA, row.text, row.values);
  throw std::runtime_error("no function: " + function);
}

TEST(MarkersDocument, EachRowGivesWhatItSays) {
  for (const Row& row : RowsOfTheDocument()) {
    for (const auto& [function, expected] : row.results) {
      EXPECT_EQ(expected, Result(function, row)) << row.place << ": " << function;
    }
  }
}

TEST(MarkersDocument, TellsOfEachFunctionWhatBecomesOfTheHabitsOfPrintf) {
  std::vector<std::string> texts;
  for (const Row& row : RowsOfTheDocument()) {
    if (!row.place.starts_with("printf habits that bite")) continue;
    texts.push_back(row.text);
    EXPECT_EQ(3U, row.results.size()) << row.place;
  }
  EXPECT_THAT(texts, testing::IsSupersetOf(
                         {"[%5d]", "[%-5s]", "%2$s, %1$s", "Load: %g", "100% sure", "100%% sure"}));
}

TEST(MarkersDocument, ShowsEachFunctionInATableOfItsOwn) {
  std::map<std::string, int> rowsOfOneFunction;
  for (const Row& row : RowsOfTheDocument()) {
    if (row.results.size() == 1) ++rowsOfOneFunction[row.results.begin()->first];
  }
  for (const char* function : {"Insert", "InsertVariable", "InsertVariableVA"}) {
    EXPECT_GE(rowsOfOneFunction[function], 5) << function;
  }
}

}  // namespace
