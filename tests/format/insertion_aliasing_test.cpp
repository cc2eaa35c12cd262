// The buffer may be the same memory as the text or a value, wholly or in part: each one of them at
// each place of it, and around its ends.

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "CKxXlate.h"
#include "format/varied_calls.h"

namespace {

using Texts = std::vector<const char*>;

struct Form {
  const char* name;
  void (*insert)(char* buffer, KxSize size, const Texts& texts);
  std::vector<std::string> texts;  ///< the format and two values
  const char* expected;
};

void PrintTo(const Form& form, std::ostream* os) { *os << form.name; }

const Form kForms[] = {
    {"Insert",
     [](char* buffer, KxSize size, const Texts& t) {
       CKxXlate::Insert(buffer, size, t[0], t[1], t[2]);
     },
     {"%1 on a line, %0 and %1, then %0", "a value of more than a block", "short"},
     "short on a line, a value of more than a block and short, then a value of more than a block"},
    {"FormatMessage",
     [](char* buffer, KxSize size, const Texts& t) {
       const char* arguments[] = {t[1], t[2]};
       CKxXlate::FormatMessageA(buffer, size, t[0], 2, arguments);
     },
     {"{1} on a line, {0} and {1}, then {0}", "a value of more than a block", "short"},
     "short on a line, a value of more than a block and short, then a value of more than a block"},
    {"InsertVariable",
     [](char* buffer, KxSize size, const Texts& t) {
       CKxXlate::InsertVariable(buffer, size, t[0], t[1], t[2], 2.5);
     },
     {"%s:2 on a line, %s:1 and %f:3", "a value of more than a block", "short"},
     "short on a line, a value of more than a block and 2.500000"},
    {"InsertVariableVA",
     [](char* buffer, KxSize size, const Texts& t) { Vary(buffer, size, t[0], t[1], t[2], 2.5); },
     {"%s:2 on a line, %-30s:1 and %.2f:3", "a value of more than a block", "short"},
     "short on a line, a value of more than a block   and 2.50"},
};

class AliasedInsertion : public testing::TestWithParam<Form> {
 protected:
  static constexpr std::size_t kBegin = 40;  // of the buffer, within its memory
  static constexpr std::size_t kSize = 100;  // of the buffer
  static constexpr std::size_t kMemory = 180;

  /// Inserts with one of the texts at a place of the memory, the others elsewhere.
  static std::string InsertWith(std::size_t which, std::size_t place) {
    const Form& form = GetParam();
    char memory[kMemory];
    std::memset(memory, '#', sizeof memory);
    Texts texts;
    for (const std::string& text : form.texts) texts.push_back(text.c_str());
    std::memcpy(memory + place, texts[which], form.texts[which].size() + 1);
    texts[which] = memory + place;
    form.insert(memory + kBegin, kSize, texts);
    return memory + kBegin;
  }
};

TEST_P(AliasedInsertion, MayHaveEachOfItsTextsAtEachPlaceOfTheBuffer) {
  for (std::size_t which = 0; which < 3; ++which) {
    const std::size_t last = kMemory - GetParam().texts[which].size() - 1;
    for (std::size_t place = 0; place <= last; ++place) {
      ASSERT_EQ(GetParam().expected, InsertWith(which, place)) << which << " at " << place;
    }
  }
}

TEST_P(AliasedInsertion, MayHaveAllOfItsTextsInTheBuffer) {
  const Form& form = GetParam();
  std::string all;
  std::vector<std::size_t> places;
  for (const std::string& text : form.texts) {
    places.push_back(all.size());
    all += text + '\0';
  }
  for (std::size_t begin = 0; begin < kSize - all.size(); ++begin) {
    char buffer[kSize + 1];
    std::memset(buffer, '#', sizeof buffer);
    all.copy(buffer + begin, all.size());
    Texts texts;
    for (const std::size_t place : places) texts.push_back(buffer + begin + place);
    form.insert(buffer, kSize, texts);
    ASSERT_STREQ(form.expected, buffer) << begin;
  }
}

INSTANTIATE_TEST_SUITE_P(Forms, AliasedInsertion, testing::ValuesIn(kForms),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
