#include "docs/markdown_parts.h"

#include <algorithm>
#include <fstream>
#include <stdexcept>

#include "support/temp_tree.h"

namespace {

bool StartsWith(const std::string& line, const std::string& start) {
  return line.compare(0, start.size(), start) == 0;
}

/// A table may stand in a list, further to the right.
std::string WithoutIndent(const std::string& line) {
  return line.substr(std::min(line.find_first_not_of(' '), line.size()));
}

std::vector<std::string> Split(const std::string& text, char separator) {
  std::vector<std::string> parts(1);
  for (const char c : text) {
    if (c == separator) {
      parts.emplace_back();
    } else {
      parts.back() += c;
    }
  }
  return parts;
}

Spans SpansOf(const std::string& cell) {
  const std::vector<std::string> parts = Split(cell, '`');
  Spans spans;
  for (std::size_t at = 1; at + 1 < parts.size(); at += 2) spans.push_back(parts[at]);
  return spans;
}

std::vector<Spans> CellsOf(const std::string& row) {
  std::vector<Spans> cells;
  const std::vector<std::string> parts = Split(row, '|');
  for (std::size_t at = 1; at + 1 < parts.size(); ++at) cells.push_back(SpansOf(parts[at]));
  return cells;
}

}  // namespace

MarkdownParts::MarkdownParts(const std::string& name) {
  std::ifstream file(PathFromUtf8(KXXLATE_DOCUMENTS "/" + name), std::ios::binary);
  if (!file) throw std::runtime_error("no document " + name);
  for (std::string line; std::getline(file, line);) lines_.push_back(line);
}

std::string MarkdownParts::Block(const std::string& heading, std::size_t number) const {
  auto line = std::find(lines_.begin(), lines_.end(), "## " + heading);
  const auto isFence = [](const std::string& text) { return StartsWith(text, "```"); };
  while (line != lines_.end()) {
    const auto isEnd = [&](const std::string& text) {
      return isFence(text) || StartsWith(text, "## ");
    };
    const auto begin = std::find_if(line + 1, lines_.end(), isEnd);
    if (begin == lines_.end() || !isFence(*begin)) break;
    const auto end = std::find_if(begin + 1, lines_.end(), isFence);
    if (number-- == 0) {
      std::string block;
      for (auto at = begin + 1; at != end; ++at) block += *at + '\n';
      return block;
    }
    line = end;
  }
  throw std::runtime_error("not so many blocks under " + heading);
}

std::vector<std::vector<Spans>> MarkdownParts::Table(const std::string& heading) const {
  std::vector<std::vector<Spans>> rows;
  auto line = std::find_if(lines_.begin(), lines_.end(), [&](const std::string& text) {
    return StartsWith(WithoutIndent(text), "| " + heading + " |");
  });
  // The line behind the heading row only draws a line.
  for (std::size_t skipped = 0; line != lines_.end(); ++line, ++skipped) {
    const std::string text = WithoutIndent(*line);
    if (!StartsWith(text, "|")) break;
    if (skipped >= 2) rows.push_back(CellsOf(text));
  }
  if (rows.empty()) throw std::runtime_error("no table of " + heading);
  return rows;
}
