// Compares the reader with a slow model that reads like the rules of language files.

#include <gtest/gtest.h>

#include <cstddef>
#include <initializer_list>
#include <optional>
#include <ostream>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "lang/lang_reading.h"

namespace {

using std::string_literals::operator""s;

const std::string kAllWhiteSpace = " \t\n\v\f\r";
const std::string kRemovedAtTheEnd = " \t\n\r";

std::string WithoutStart(const std::string& text) {
  const std::size_t begin = text.find_first_not_of(kAllWhiteSpace);
  return begin == std::string::npos ? "" : text.substr(begin);
}

std::string WithoutEnd(const std::string& text) {
  return text.substr(0, text.find_last_not_of(kRemovedAtTheEnd) + 1);
}

bool BeginsWith(const std::string& text, const std::string& start) {
  return text.compare(0, start.size(), start) == 0;
}

/// What stands behind a keyword, without white space in front; nothing when the line has another.
std::optional<std::string> Behind(const std::string& keyword, const std::string& text) {
  if (!BeginsWith(InSmallLetters(text), InSmallLetters(keyword))) return std::nullopt;
  return WithoutStart(text.substr(keyword.size()));
}

/// The same for the first of several keywords.
std::optional<std::string> BehindAny(const std::vector<std::string>& keywords,
                                     const std::string& text) {
  for (const std::string& keyword : keywords) {
    if (const auto value = Behind(keyword, text)) return value;
  }
  return std::nullopt;
}

bool IsWord(const std::string& word, const std::string& text) {
  return InSmallLetters(text) == InSmallLetters(word);
}

/// One language, read from files whose lines are never too long.
class LangFileModel {
 public:
  void Read(const std::string& bytes, const std::string& file) {
    file_ = file;
    number_ = 0;
    inHeader_ = true;
    accepted_ = false;
    Reset();
    std::size_t begin = 0;
    for (std::size_t end; (end = bytes.find('\n', begin)) != std::string::npos; begin = end + 1) {
      Line(bytes.substr(begin, end - begin));
    }
    Line(bytes.substr(begin));  // what is behind the last line end counts as a line, too
    Commit();
  }

  StoredLanguage stored;
  std::vector<std::string> problems;
  std::set<std::string> names;  ///< of all keys, buttons and directories, also of those dropped

 private:
  void Line(const std::string& bytes) {
    ++number_;
    line_ = WithoutEnd(bytes.substr(0, bytes.find('\0')));
    const std::string text = WithoutStart(line_);
    if (BeginsWith(text, ";") || BeginsWith(text, "#") || BeginsWith(text, "//")) return;
    if (text.empty()) {
      if (accepted_) inHeader_ = false;
    } else if (inHeader_) {
      if (Header(text)) accepted_ = true;
    } else {
      Body(text);
    }
  }

  bool Header(const std::string& text) {
    if (const auto value = BehindAny({"Long Name ", "LongName ", "Name ", "Description "}, text)) {
      stored.longName = value;
    } else if (const auto images =
                   BehindAny({"Images ", "Image Directory ", "Image Path "}, text)) {
      stored.images = images;
    } else if (const auto charset = BehindAny({"Charset ", "Character Set "}, text)) {
      Charset(*charset);
    } else if (const auto suffix = Behind("Prompt Suffix ", text)) {
      stored.promptSuffix = suffix;
    } else if (const auto directory = Behind("Directory ", text)) {
      const std::size_t end = directory->find(' ');
      const std::string name = Named(directory->substr(0, end));
      stored.directories[name] =
          end == std::string::npos ? "" : WithoutStart(directory->substr(end));
    } else if (IsWord("Debug", text)) {
      stored.debug = true;
    } else if (const auto direction = Behind("Direction ", text)) {
      if (*direction == "LTR" || *direction == "RTL") stored.direction = *direction;
    } else {
      Report("Illegal Header Directive");
      return false;
    }
    return true;
  }

  void Charset(const std::string& charset) {
    if (!stored.charset.empty() && !IsWord(stored.charset, charset)) {
      problems.push_back(file_ + " contains a differing value for CHARSET from default language");
    }
    stored.charset = charset;
  }

  void Body(const std::string& text) {
    if (text[0] == '&') {
      Continuation(text.substr(1));
    } else if (const auto key = Behind("Key ", text)) {
      Commit();
      keyName_ = *key;
      keyPending_ = true;
      Named(*key);
    } else if (const auto button = Behind("Button ", text)) {
      Commit();
      buttonName_ = *button;
      buttonPending_ = true;
      Named(*button);
    } else if (const auto value = BehindAny({"Val ", "Value "}, text)) {
      Value(*value);
    } else if (IsWord("Val", text) || IsWord("Value", text)) {
      Value("");
    } else if (const auto label = Behind("Label ", text)) {
      Label(*label);
    } else if (IsWord("Label", text)) {
      Label("");
    } else {
      Report("Unrecognized text");
    }
  }

  void Value(const std::string& text) {
    if (!keyPending_) return ReportAndReset("VALUE found without a KEY");
    keyPending_ = false;
    valueRead_ = true;
    valueText_ = text;
  }

  void Label(const std::string& text) {
    if (!buttonPending_) return ReportAndReset("VALUE found without a KEY");
    buttonPending_ = false;
    labelRead_ = true;
    labelText_ = text;
  }

  void Continuation(const std::string& text) {
    if (buttonPending_) {
      Named(buttonName_ += text);
    } else if (labelRead_) {
      labelText_ += text;
    } else if (keyPending_) {
      Named(keyName_ += text);
    } else if (valueRead_) {
      valueText_ += text;
    } else {
      Report("Unrecognized continuation text");
    }
  }

  void Commit() {
    if (valueRead_) stored.texts[Named(keyName_)] = valueText_;
    if (labelRead_) stored.labels[Named(buttonName_)] = labelText_;
    if (keyPending_ || buttonPending_) Report("Two KEY clauses without intervening VALUE");
    Reset();
  }

  void ReportAndReset(const std::string& words) {
    Report(words);
    Reset();
  }

  void Report(const std::string& words) {
    problems.push_back(words + " in " + file_ + " at line #" + std::to_string(number_) + ": " +
                       line_);
  }

  void Reset() {
    keyPending_ = buttonPending_ = valueRead_ = labelRead_ = false;
    keyName_ = valueText_ = buttonName_ = labelText_ = "";
  }

  std::string Named(const std::string& name) {
    names.insert(name);
    return InSmallLetters(name);
  }

  std::string file_;
  int number_ = 0;
  std::string line_;
  bool inHeader_ = true;
  bool accepted_ = false;
  bool keyPending_ = false;
  bool buttonPending_ = false;
  bool valueRead_ = false;
  bool labelRead_ = false;
  std::string keyName_;
  std::string valueText_;
  std::string buttonName_;
  std::string labelText_;
};

// ---------------------------------------------------------------------------------------------

using Fragments = std::vector<std::string>;

const Fragments kNameFragments = {
    "Name N",       "name \v",   "Long Name L",        "LONGNAME n",    "Description D",
    "Name",         "Images /i", "Image Directory /d", "image path /p", "Prompt Suffix :",
    "Prompt Suffix"};

const Fragments kDirectiveFragments = {
    "Charset UTF-8",  "charset A",     "Character Set a", "Charset \v",
    "Directory d /x", "directory D",   "Directory d\t/y", "Directory \te  /z z",
    "Directory \f",   "Debug",         "Debug on",        "DEBUG\v",
    "Direction RTL",  "Direction LTR", "Direction rtl",   "Direction"};

const Fragments kBodyFragments = {
    "Key a",    "Key A",  "key b",    "Key ",    "Key",       "Key \v", "Key\tc", "Button B",
    "Button a", "Button", "BUTTON b", "Value x", "value y z", "Value",  "Value ", "VALUE \f",
    "Value\tx", "Val",    "VAL v",    "val ",    "Label L",   "label",  "Label ", "Labels",
    "& more",   "&",      "&b",       "&& ",     "&\t\v"};

const Fragments kOtherFragments = {
    "",    "",     "  ", "\t", "\v",  "\f",   "\r",   "\0"s,    " \0x"s,    "Key n\0ul"s, "; c",
    "# c", "// c", "//", "/",  "/ c", "junk", "\xA0", "\x85 x", "\xC3\xA9", "\xFF\xFE",   "x"};

class RandomFile {
 public:
  bool OneIn(std::size_t count) { return Below(count) == 0; }

  std::string Bytes(const Fragments& fragments, bool endsItsHeader) {
    const std::string lineEnd = OneIn(3) ? "\r\n" : "\n";
    std::string bytes = endsItsHeader ? "Debug" + lineEnd + lineEnd : "";
    for (std::size_t lines = Below(12); lines > 0; --lines) bytes += Line(fragments) + lineEnd;
    return bytes + (OneIn(2) ? Line(fragments) : "");
  }

 private:
  std::size_t Below(std::size_t limit) {
    return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random_);
  }

  const std::string& OneOf(const Fragments& fragments) {
    return fragments[Below(fragments.size())];
  }

  std::string Line(const Fragments& fragments) {
    static const Fragments kSpaces = {" ", "  ", "\t", "\v", "\f", " \r", "\t \v", "\0"s, "\xA0"};
    std::string line = OneIn(5) ? OneOf(kSpaces) : "";
    line += OneOf(fragments);
    if (OneIn(8)) line += OneOf(fragments);
    if (OneIn(4)) line += OneOf(kSpaces);
    return line;
  }

  std::mt19937 random_{20240229};
};

Fragments Together(std::initializer_list<const Fragments*> lists) {
  Fragments all;
  for (const Fragments* list : lists) all.insert(all.end(), list->begin(), list->end());
  return all;
}

struct Mix {
  const char* name;
  Fragments fragments;
  bool endsItsHeader;
};

void PrintTo(const Mix& mix, std::ostream* os) { *os << mix.name; }

class RandomLangFiles : public testing::TestWithParam<Mix> {};

TEST_P(RandomLangFiles, AreReadAsByTheModel) {
  RandomFile random;
  for (int i = 0; i < 5000; ++i) {
    LangFileModel model;
    LangReading reading;
    std::string all;
    for (const char* const file : {"FR/(Common).lang", "FR/agent.lang"}) {
      const std::string bytes = random.Bytes(GetParam().fragments, GetParam().endsItsHeader);
      model.Read(bytes, file);
      reading.Read(bytes, file);
      all += "\n--- " + testing::PrintToString(bytes);
      if (random.OneIn(2)) break;
    }
    model.names.insert({"", "a", "b", "c", "d", "e", "n", "x"});
    ASSERT_EQ(model.stored.Lines(), reading.Stored(model.names).Lines()) << all;
    ASSERT_EQ(model.problems, reading.problems.Lines()) << all;
  }
}

const Mix kMixes[] = {
    {"OfHeaders", Together({&kNameFragments, &kDirectiveFragments, &kOtherFragments}), false},
    {"OfBodies", Together({&kBodyFragments}), true},
    {"OfBodiesAndOddities", Together({&kBodyFragments, &kOtherFragments}), true},
    {"OfEverything",
     Together({&kNameFragments, &kDirectiveFragments, &kBodyFragments, &kOtherFragments}), false},
    {"OfOddities", Together({&kOtherFragments}), true},
};

INSTANTIATE_TEST_SUITE_P(Mixes, RandomLangFiles, testing::ValuesIn(kMixes),
                         [](const auto& tested) { return std::string(tested.param.name); });

// The model itself, on a file that people worked out.
TEST(LangFileModel, KnowsTheRules) {
  LangFileModel model;
  model.Read(
      "; comment\nLong Name F\nCharset A\nCharset B\nDirectory help /docs\nDirection LTR\n\n"
      "Key A\nValue it\n&  (x)\nButton OK\nLabel Yes\nKey\nVal\n&\nKey b\nKey c\r\nVal\nKey d\n",
      kAgentFile);
  const std::vector<std::string> stored = {"name = F",         "charset = B",
                                           "direction = LTR",  "directory help = /docs",
                                           "text a = it  (x)", "text c = "};
  const std::vector<std::string> problems = {OtherCharset(),       Unrecognized(13, "Key"),
                                             NoKey(14, "Val"),     StrayContinuation(15, "&"),
                                             NoValue(17, "Key c"), NoValue(20, "")};
  EXPECT_EQ(stored, model.stored.Lines());
  EXPECT_EQ(problems, model.problems);
}

}  // namespace
