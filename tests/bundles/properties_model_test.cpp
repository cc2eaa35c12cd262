// Compares the reader with a slow model on random files: the model splits the file first and then
// walks the lines, and takes each text apart by a pattern.

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <regex>
#include <string>
#include <vector>

#include "bundles/properties_rows.h"

namespace {

class PropertiesModel {
 public:
  PropertiesReading Read(const std::string& bytes) {
    lines_ = SplitLines(bytes);
    next_ = 0;
    result_ = {};
    std::string line;
    while (TakeLine(line)) {
      if (line.empty() || line[0] == '#') continue;
      const std::size_t separator = line.find('=');
      if (separator == std::string::npos) {
        result_.problems.push_back(NoEqualsSign(next_));
      } else {
        Entry(Trimmed(line.substr(0, separator))) = Text(Trimmed(line.substr(separator + 1)));
      }
    }
    return result_;
  }

 private:
  static std::vector<std::string> SplitLines(const std::string& bytes) {
    std::vector<std::string> lines(1);
    for (const char c : bytes) {
      if (c == '\n') {
        lines.emplace_back();
      } else {
        lines.back() += c;
      }
    }
    if (lines.back().empty()) lines.pop_back();
    return lines;
  }

  // The random files hold these bytes above 127 only: a letter of two bytes, a byte-order mark and
  // a byte that is never right.
  bool TakeLine(std::string& line) {
    if (next_ == lines_.size()) return false;
    line = lines_[next_++];
    if (line.find('\xFF') != std::string::npos) {
      result_.problems.push_back(NotUtf8(next_));
      line.clear();
    }
    if (next_ == 1 && line.rfind("\xEF\xBB\xBF", 0) == 0) line.erase(0, 3);
    line = Trimmed(line.substr(0, line.find('\0')));
    return true;
  }

  static std::string Trimmed(const std::string& text) {
    const std::size_t first = text.find_first_not_of(" \t\n\v\f\r");
    if (first == std::string::npos) return "";
    return text.substr(first, text.find_last_not_of(" \t\n\v\f\r") - first + 1);
  }

  std::string& Entry(const std::string& key) {
    const auto found = std::find_if(result_.texts.begin(), result_.texts.end(),
                                    [&](const auto& e) { return Small(e.first) == Small(key); });
    return found != result_.texts.end() ? found->second : result_.texts[key];
  }

  static std::string Small(std::string text) {
    for (char& c : text) {
      if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    }
    return text;
  }

  std::string Text(std::string line) {
    std::string text;
    while (std::regex_match(line, continued_)) {
      line.pop_back();
      text += Unescaped(line);
      if (!TakeLine(line) || line.empty()) return text;
    }
    return text + Unescaped(line);
  }

  static std::string Unescaped(const std::string& text) {
    static constexpr char kLetters[] = "abnrt";
    static constexpr char kControls[] = "\x07\x08\n\r\t";
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
      if (text[i] != '\\') {
        result += text[i];
      } else {
        const std::size_t letter = std::string(kLetters).find(text[++i]);
        result += letter == std::string::npos ? text[i] : kControls[letter];
      }
    }
    return result;
  }

  // Whole pairs of a backslash and its character, and then one backslash at the end.
  const std::regex continued_{R"((?:[^\\]|\\[^])*\\)"};
  std::vector<std::string> lines_;
  std::size_t next_ = 0;
  PropertiesReading result_;
};

std::string RandomFile(std::mt19937& random) {
  static const std::vector<std::string> kPieces = {
      "\n", "\n",   "\n", "\r\n", "=", "=", "=", "\\", "\\", "\\", "\\\n",     "\\\n", " ",  "\t",
      "\v", "\f\r", "#",  "a",    "b", "A", "n", "t",  "u",  "!",  "\xC3\xA9", "a=",   "b=", "A ="};
  static const std::vector<std::string> kRarePieces = {"\xEF\xBB\xBF", "\xFF",
                                                       std::string(1, '\0')};
  std::string bytes = random() % 8 == 0 ? kRarePieces[0] : "";
  for (std::size_t count = random() % 40; count > 0; --count) {
    bytes += random() % 40 == 0 ? kRarePieces[random() % 3] : kPieces[random() % kPieces.size()];
  }
  return bytes;
}

// Whether a byte that is not UTF-8 counts behind a NUL byte of its line is left open here; files
// that might ask are left out.
bool IsLeftOpen(const std::string& bytes) {
  const std::size_t nul = bytes.find('\0');
  return nul != std::string::npos && bytes.find('\xFF', nul) != std::string::npos;
}

TEST(PropertiesModel, AgreesOnRandomFiles) {
  PropertiesModel model;
  std::mt19937 random(20240301);
  std::size_t texts = 0;
  for (int i = 0; i < 10000; ++i) {
    const std::string bytes = RandomFile(random);
    if (IsLeftOpen(bytes)) continue;
    const PropertiesReading expected = model.Read(bytes);
    const PropertiesReading read = ReadProperties(bytes);
    ASSERT_EQ(expected.texts, read.texts) << testing::PrintToString(bytes);
    ASSERT_EQ(expected.problems, read.problems) << testing::PrintToString(bytes);
    texts += read.texts.size();
  }
  EXPECT_GT(texts, 10000U);  // the mix must make entries
}

}  // namespace
