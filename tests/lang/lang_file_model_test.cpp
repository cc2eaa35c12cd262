// Compares the reader with the model of lang_file_model.h, on random files.

#include <gtest/gtest.h>

#include <cstddef>
#include <initializer_list>
#include <ostream>
#include <random>
#include <string>
#include <vector>

#include "lang/lang_file_model.h"
#include "lang/lang_reading.h"

namespace {

using std::string_literals::operator""s;

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
