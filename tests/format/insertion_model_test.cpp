// Compares the insertion with a slow model that reads like the rules for markers: a pattern for
// each style whose alternatives are the kinds of marker.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <random>
#include <regex>
#include <string>
#include <vector>

#include "format/positional_insertion.h"

namespace {

class InsertionModel {
 public:
  std::string Insert(const std::string& text, const std::vector<const char*>& arguments) {
    arguments_ = arguments;
    high_ = 0;
    const std::size_t first = text.find_first_of("%{");
    std::string result =
        first == std::string::npos ? text : Replaced(text, text[first] == '%' ? percent_ : brace_);
    if (high_ < arguments_.size()) result += (result.empty() ? "" : " ") + Leftovers();
    return result;
  }

 private:
  using Match = std::smatch;

  std::string Replaced(const std::string& text, const std::regex& marker) {
    std::string result;
    std::string::const_iterator rest = text.begin();
    for (Match found; std::regex_search(rest, text.end(), found, marker); rest = found[0].second) {
      result += found.prefix().str();
      result += &marker == &percent_ ? PercentMarker(found) : BraceMarker(found);
    }
    return result + std::string(rest, text.end());
  }

  std::string PercentMarker(const Match& found) {
    const std::string marker = found.str();
    if (found[1].matched) return Argument(std::stoul(found[1]), "%" + LastOf(marker));
    if (found[2].matched) return Argument(high_, "%" + LastOf(marker));
    return "%";  // doubled, or at the end
  }

  std::string BraceMarker(const Match& found) {
    if (found[1].matched) return Argument(std::stoul(found[1]), "{" + LastOf(found[1]) + "}");
    if (found[2].matched) return "{" + std::to_string(std::stoul(found[2])) + found[3].str();
    if (found[4].matched) return "{" + found[4].str();
    return "{";  // doubled, or at the end
  }

  static std::string LastOf(const std::string& text) { return text.substr(text.size() - 1); }

  std::string Argument(std::size_t index, const std::string& whenAbsent) {
    high_ = std::max(high_, index + 1);
    const bool present = index < arguments_.size() && arguments_[index] != nullptr;
    return present ? arguments_[index] : whenAbsent;
  }

  std::string Leftovers() const {
    std::string list;
    for (std::size_t i = high_; i < arguments_.size(); ++i) {
      if (i > high_) list += ", ";
      if (arguments_[i] != nullptr) list += arguments_[i];
    }
    return "(" + list + ")";
  }

  // Alternatives are tried from left to right; [^] is any byte.
  const std::regex percent_{"%%|%([0-9]{1,2})|%(l[^]|[^])|%"};
  const std::regex brace_{R"(\{\{|\{([0-9]{1,2})\}|\{([0-9]{1,2})([^]?)|\{([^])|\{)"};
  std::vector<const char*> arguments_;
  std::size_t high_ = 0;
};

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

  std::vector<const char*> Arguments(std::size_t maxCount) {
    static constexpr const char* kTexts[] = {nullptr, nullptr, "",    "a",   "bc",
                                             "%0",    "{1}",   "%%%", "d e", "longer than most"};
    std::vector<const char*> arguments(Below(maxCount + 1));
    for (const char*& argument : arguments) argument = kTexts[Below(std::size(kTexts))];
    return arguments;
  }

 private:
  std::mt19937 random_{20240229};
};

struct Mix {
  const char* name;
  const char* alphabet;
  std::size_t maxLength;
  std::size_t maxCount;
};

void PrintTo(const Mix& mix, std::ostream* os) { *os << mix.alphabet; }

class InsertionOfRandomTexts : public testing::TestWithParam<Mix> {};

TEST_P(InsertionOfRandomTexts, AgreesWithTheModel) {
  InsertionModel model;
  RandomInput input;
  for (int i = 0; i < 15000; ++i) {
    const std::string text = input.Text(GetParam().alphabet, GetParam().maxLength);
    const std::vector<const char*> arguments = input.Arguments(GetParam().maxCount);
    std::string result;
    kx::InsertArguments(result, text.c_str(), arguments.size(), arguments.data());
    ASSERT_EQ(model.Insert(text, arguments), result)
        << "text \"" << text << "\" with " << arguments.size() << " arguments";
  }
}

const Mix kMixes[] = {
    {"BothStyles", "%{}0159lds x", 14, 7},   {"PercentHeavy", "%%%0159lds x\xC3", 12, 14},
    {"BraceHeavy", "{{{}}}0159l%", 12, 14},  {"NumbersOnly", "%019", 8, 105},
    {"BracedNumbersOnly", "{}019", 10, 105},
};

INSTANTIATE_TEST_SUITE_P(Mixes, InsertionOfRandomTexts, testing::ValuesIn(kMixes),
                         [](const auto& row) { return std::string(row.param.name); });

// The model itself, on texts that people worked out.
TEST(InsertionModel, KnowsTheRules) {
  InsertionModel model;
  EXPECT_EQ("Hello Ann, 3 new", model.Insert("Hello %0, %1 new", {"Ann", "3"}));
  EXPECT_EQ("b then c", model.Insert("%1 then %s", {"a", "b", "c"}));
  EXPECT_EQ("%2 %s", model.Insert("%12 %ls", {}));
  EXPECT_EQ("{2} {1x {5x {", model.Insert("{12} {1x {05x {", {}));
  EXPECT_EQ("d (e)", model.Insert("%3", {"a", "b", "c", "d", "e"}));
}

}  // namespace
