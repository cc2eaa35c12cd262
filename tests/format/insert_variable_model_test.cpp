// Compares InsertVariable with a slow model that reads like its rules: one pattern for collecting
// and one for building, whose alternatives are the kinds of marker.

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <iomanip>
#include <limits>
#include <ostream>
#include <random>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "CKxXlate.h"
#include "support/guarded_buffer.h"

namespace {

constexpr std::size_t kSlots = 9;
// Each count of values of three types is a call of its own for the compiler.
constexpr std::size_t kMostOfThreeTypes = 6;
constexpr std::size_t kMostOfOneType = 16;

/// The values at hand: the conversion at place n of a text takes the n-th of its type.
struct Values {
  std::array<int, kMostOfOneType> numbers{};
  std::array<double, kMostOfOneType> fractions{};
  std::array<std::string, kMostOfOneType> texts;
};

class VariableModel {
 public:
  /// The letters of the text's conversions, in order.
  std::string Letters(const std::string& text) const {
    std::string letters;
    for (std::sregex_iterator at(text.begin(), text.end(), percent_), end; at != end; ++at) {
      if ((*at)[1].matched) letters += (*at)[1].str();
    }
    return letters;
  }

  std::string Insert(const std::string& text, const Values& values) const {
    std::vector<std::string> slots(kSlots);
    const std::string letters = Letters(text);
    for (std::size_t i = 0; i < std::min(letters.size(), kSlots); ++i) {
      slots[i] = Printed(letters[i], i, values);
    }
    std::string result;
    std::string::const_iterator rest = text.begin();
    for (std::smatch found; std::regex_search(rest, text.end(), found, marker_);
         rest = found[0].second) {
      result += found.prefix().str();
      if (found[1].matched) result += slots[std::stoul(found[1]) - 1];
    }
    return result + std::string(rest, text.end());
  }

 private:
  static std::string Printed(char letter, std::size_t place, const Values& values) {
    const int number = values.numbers[place];
    std::ostringstream out;
    switch (letter) {
      case 's': return values.texts[place];
      case 'f': out << std::fixed << std::setprecision(6) << values.fractions[place]; break;
      case 'o': out << std::oct << static_cast<unsigned>(number); break;
      case 'x': out << std::hex << static_cast<unsigned>(number); break;
      default: out << number;
    }
    return out.str();
  }

  // Alternatives are tried from left to right; [^] is any byte.
  const std::regex percent_{"%([diosfx])|%[^]?"};
  const std::regex marker_{"%[diosfx]:([1-9])|%[diosfx]:[^]?|%[diosfx][^]?|%[^]?"};
};

/// Makes the call whose values have the types that `letters` say.
template <class... Taken>
void InsertByTypes(char* buffer, KxSize size, const char* text, const std::string& letters,
                   const Values& values, Taken... taken) {
  constexpr std::size_t kTaken = sizeof...(Taken);
  if (kTaken == letters.size()) {
    CKxXlate::InsertVariable(buffer, size, text, taken...);
    return;
  }
  if constexpr (kTaken < kMostOfThreeTypes) {
    if (letters[kTaken] == 's') {
      InsertByTypes(buffer, size, text, letters, values, taken..., values.texts[kTaken].c_str());
    } else if (letters[kTaken] == 'f') {
      InsertByTypes(buffer, size, text, letters, values, taken..., values.fractions[kTaken]);
    } else {
      InsertByTypes(buffer, size, text, letters, values, taken..., values.numbers[kTaken]);
    }
  }
}

void InsertMixed(char* buffer, KxSize size, const char* text, const Values& values) {
  static const auto& model = *new VariableModel;
  InsertByTypes(buffer, size, text, model.Letters(text), values);
}

// Nine values are all that any text can take.
template <class List>
void InsertNine(char* buffer, KxSize size, const char* text, const List& v) {
  CKxXlate::InsertVariable(buffer, size, text, v[0], v[1], v[2], v[3], v[4], v[5], v[6], v[7],
                           v[8]);
}

void InsertNumbers(char* buffer, KxSize size, const char* text, const Values& values) {
  InsertNine(buffer, size, text, values.numbers);
}

void InsertFractions(char* buffer, KxSize size, const char* text, const Values& values) {
  InsertNine(buffer, size, text, values.fractions);
}

void InsertTexts(char* buffer, KxSize size, const char* text, const Values& values) {
  std::array<const char*, kSlots> pointers{};
  for (std::size_t i = 0; i < kSlots; ++i) pointers[i] = values.texts[i].c_str();
  InsertNine(buffer, size, text, pointers);
}

class RandomInput {
 public:
  std::size_t Below(std::size_t limit) {
    return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random_);
  }

  std::string Text(const std::string& alphabet, std::size_t maxLength) {
    std::string text(Below(maxLength + 1), ' ');
    for (char& c : text) c = alphabet[Below(alphabet.size())];
    return text;
  }

  Values SomeValues() {
    static constexpr int kNumbers[] = {0, 1, -1, 255, std::numeric_limits<int>::min()};
    static constexpr double kFractions[] = {0.0, -0.5, 1e300, 1.0 / 3.0, 123456.75};
    static constexpr const char* kTexts[] = {"", "a", "%s:1", "two words", "%%"};
    Values values;
    for (int& number : values.numbers) number = kNumbers[Below(std::size(kNumbers))];
    for (double& fraction : values.fractions) fraction = kFractions[Below(std::size(kFractions))];
    for (std::string& text : values.texts) text = kTexts[Below(std::size(kTexts))];
    return values;
  }

 private:
  std::mt19937 random_{20240307};
};

struct Mix {
  const char* name;
  const char* alphabet;
  std::size_t maxLength;
  std::size_t maxConversions;
  void (*insert)(char* buffer, KxSize size, const char* text, const Values& values);
};

void PrintTo(const Mix& mix, std::ostream* os) { *os << mix.alphabet; }

class InsertVariableOfRandomTexts : public testing::TestWithParam<Mix> {};

TEST_P(InsertVariableOfRandomTexts, AgreesWithTheModel) {
  const VariableModel model;
  RandomInput input;
  for (int compared = 0; compared < 10000;) {
    const std::string text = input.Text(GetParam().alphabet, GetParam().maxLength);
    if (model.Letters(text).size() > GetParam().maxConversions) continue;
    Values values = input.SomeValues();
    std::string expected = model.Insert(text, values);
    // The model prints numbers whole; that long ones are cut has tests of its own.
    if (expected.size() > 200) {
      values.fractions.fill(-2.5);
      expected = model.Insert(text, values);
    }
    GuardedBuffer buffer(static_cast<KxSize>(expected.size()) + 2);
    GetParam().insert(buffer.Data(), buffer.Size(), text.c_str(), values);
    ASSERT_EQ(expected, buffer.Text()) << '"' << text << '"';
    ASSERT_EQ(buffer.Size(), buffer.BytesWritten());
    ASSERT_TRUE(buffer.IsFrontUntouched());
    ++compared;
  }
}

const Mix kMixes[] = {
    {"AllBytes", "%:dfiosxu0129 l", 24, kMostOfThreeTypes, InsertMixed},
    {"MarkerHeavy", "%%%%:::dfiosxu0129 l", 20, kMostOfThreeTypes, InsertMixed},
    {"ConversionsOnly", "%%%:12dfs", 24, kMostOfThreeTypes, InsertMixed},
    {"ManyNumbers", "%%%%::::dioxu12390 l", 60, kMostOfOneType, InsertNumbers},
    {"ManyFractions", "%%f::129", 40, kMostOfOneType, InsertFractions},
    {"ManyTexts", "%%s::1290", 50, kMostOfOneType, InsertTexts},
};

INSTANTIATE_TEST_SUITE_P(Mixes, InsertVariableOfRandomTexts, testing::ValuesIn(kMixes),
                         [](const auto& row) { return std::string(row.param.name); });

// The model itself, on texts that people worked out.
TEST(VariableModel, KnowsTheRules) {
  const VariableModel model;
  Values values;
  values.numbers = {7, 12, 255};
  values.fractions = {1.5};
  values.texts = {"disk", "cart"};
  EXPECT_EQ("disk has 12 files", model.Insert("%s:1 has %d:2 files", values));
  EXPECT_EQ("cart items in 7", model.Insert("%d:2 items in %s:1", values));
  EXPECT_EQ("7 14 ff", model.Insert("%x:1 %o:2 %x:3", values));
  EXPECT_EQ("1.500000", model.Insert("%f:1", values));
  EXPECT_EQ("100 done", model.Insert("100%% done", values));
  EXPECT_EQ(":1 left, disk", model.Insert("%u:1 left, %s:1", values));
  EXPECT_EQ("", model.Insert("%s.%s:0%s:", values));
  EXPECT_EQ("dioxfs", model.Letters("%d%i:1%%d%o%u%x%f%ls%s%"));
}

}  // namespace
