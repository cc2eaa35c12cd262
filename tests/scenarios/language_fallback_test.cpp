// What a language's files say together, and when English answers instead: each row is a tree of
// files, a request, and all that the translator then says of them.

#include <gtest/gtest.h>

#include <map>
#include <ostream>
#include <string>
#include <vector>

#include "scenarios/language_files.h"

namespace {

struct FallbackCase {
  const char* name;
  std::map<std::string, std::string> files;
  Request request;
  std::vector<const char*> values;  // text, label and directory of K; null when absent
  const char* header;
  const char* log = "(no file)";  // as it is before anything is looked up
};

void PrintTo(const FallbackCase& c, std::ostream* os) { *os << c.name; }

class LanguageFallback : public LanguageFiles, public testing::WithParamInterface<FallbackCase> {};

TEST_P(LanguageFallback, Yields) {
  const FallbackCase& c = GetParam();
  for (const auto& [path, bytes] : c.files) Write(path, bytes);
  const Held translator = Find(c.request);
  ASSERT_NE(nullptr, translator);
  EXPECT_EQ(c.log, Log());
  EXPECT_STREQ(c.values[0], translator->GetText("K"));
  EXPECT_STREQ(c.values[1], translator->GetLabel("K"));
  EXPECT_STREQ(c.values[2], translator->GetDirectory("K"));
  EXPECT_EQ(c.header, HeaderOf(*translator));
}

const std::vector<const char*> kNoValues = {nullptr, nullptr, nullptr};
const char* const kNoHeader = "-|ISO-8859-1|-||-|";
const char* const kNoFrench = "No \"FR (agent)\" files found, trying EN.\n";
const char* const kEnglishFile = "Name en\nDirectory K en\n\nKey K\nValue en\nButton K\nLabel en\n";

const FallbackCase kMerged[] = {
    {"TablesAreMerged",
     {{kCommon, "Name n\nDirectory K d\n\nKey A\nValue a\nButton K\nLabel b\n"},
      {kNamed, "Charset UTF-8\n\nKey K\nValue t\n"}},
     kFrench,
     {"t", "b", "d"},
     "n|UTF-8|-||-|"},
    {"HeadersAreMerged",
     {{kCommon, "Name n\nDirection LTR\n"},
      {kNamed, "Images i\n"},
      {kCommonOfCountry, "Prompt Suffix :\n"},
      {kNamedOfCountry, "Charset UTF-8\n"}},
     kCanadian,
     kNoValues,
     "n|UTF-8|i|LTR|:|"},
    {"KeysOfOtherCaseAreReplaced",
     {{kCommon, "Name n\nDirectory k d1\n\nKey k\nValue t1\nButton k\nLabel b1\n"},
      {kNamed, "Name n\nDirectory K d2\n\nKEY K\nvalue t2\nBUTTON K\nlabel b2\n"}},
     kFrench,
     {"t2", "b2", "d2"},
     "n|ISO-8859-1|-||-|"},
    {"EmptyValuesReplaceToo",
     {{kCommon, "Name n\nDirectory K d\n\nKey K\nValue t\nButton K\nLabel b\n"},
      {kNamed, "Name n\nDirectory K\n\nKey K\nVal\nButton K\nLabel\n"}},
     kFrench,
     {"", "", ""},
     "n|ISO-8859-1|-||-|"},
    {"DescriptionIsTheLongNameAgain",
     {{kCommon, "Description d\n"}, {kNamed, "LongName l\n"}},
     kFrench,
     kNoValues,
     "l|ISO-8859-1|-||-|"},
    {"AnUnknownDirectionReplacesNothing",
     {{kCommon, "Direction RTL\n"}, {kNamed, "Direction rtl\n"}},
     kFrench,
     kNoValues,
     "-|ISO-8859-1|-|RTL|-|"},
    {"APairDoesNotGoOnInTheNextFile",
     {{kCommon, "Name n\n\nKey K\nValue t\nKey open\n"}, {kNamed, "Name n\n\n& more\nValue t\n"}},
     kFrench,
     {"t", nullptr, nullptr},
     "n|ISO-8859-1|-||-|",
     "Two KEY clauses without intervening VALUE in FR/(Common).lang at line #6: \n"
     "Unrecognized continuation text in FR/agent.lang at line #3: & more\n"
     "VALUE found without a KEY in FR/agent.lang at line #4: Value t\n"},
    {"EachFileHasItsOwnHeader",
     {{kCommon, "Name n\n\nKey K\nValue 1\n"}, {kNamed, "Key K\nValue 2\n"}},
     kFrench,
     {"1", nullptr, nullptr},
     "n|ISO-8859-1|-||-|",
     "Illegal Header Directive in FR/agent.lang at line #1: Key K\n"
     "Illegal Header Directive in FR/agent.lang at line #2: Value 2\n"},
};

const FallbackCase kCharsets[] = {
    {"FirstCharset", {{kCommon, "Charset A\n"}}, kCanadian, kNoValues, "-|A|-||-|"},
    {"CharsetOfALaterFileAlone",
     {{kCommon, "Name n\n"}, {kNamedOfCountry, "Character Set A\n"}},
     kCanadian,
     kNoValues,
     "n|A|-||-|"},
    {"CharsetNotRepeated",
     {{kCommon, "Charset A\n"}, {kNamed, "Name n\n"}},
     kFrench,
     kNoValues,
     "n|A|-||-|"},
    {"SameCharset",
     {{kCommon, "Charset A\n"}, {kNamed, "Charset A\n"}},
     kFrench,
     kNoValues,
     "-|A|-||-|"},
    {"SameCharsetInOtherCaseReplacesSilently",
     {{kCommon, "Charset utf-8\n"}, {kNamed, "Charset UTF-8\n"}},
     kFrench,
     kNoValues,
     "-|UTF-8|-||-|"},
    {"DifferingCharsetReplacesAndIsLogged",
     {{kCommon, "Charset ISO-8859-1\n"}, {kNamedOfCountry, "Charset UTF-8\n"}},
     kCanadian,
     kNoValues,
     "-|UTF-8|-||-|",
     "FR-CA/agent.lang contains a differing value for CHARSET from default language\n"},
    {"TheDefaultIsNotADifferingOne",
     {{kNamed, "Charset UTF-8\n"}},
     kFrench,
     kNoValues,
     "-|UTF-8|-||-|"},
    {"EachDifferingCharsetIsLogged",
     {{kCommon, "Charset A\n"},
      {kNamed, "Charset B\n"},
      {kCommonOfCountry, "Charset b\n"},
      {kNamedOfCountry, "Charset A\n"}},
     kCanadian,
     kNoValues,
     "-|A|-||-|",
     "FR/agent.lang contains a differing value for CHARSET from default language\n"
     "FR-CA/agent.lang contains a differing value for CHARSET from default language\n"},
};

const FallbackCase kEnglish[] = {
    {"EnglishForAnAbsentLanguage",
     {{"EN/agent.lang", kEnglishFile}},
     kFrench,
     {"en", "en", "en"},
     "en|ISO-8859-1|-||-|",
     kNoFrench},
    {"EnglishForAnAbsentLanguageOfACountry",
     {{"EN/(Common).lang", kEnglishFile}},
     kCanadian,
     {"en", "en", "en"},
     "en|ISO-8859-1|-||-|",
     "No \"FR-ca (agent)\" files found, trying EN.\n"},
    {"NotForAnAbsentText",
     {{"EN/agent.lang", kEnglishFile}, {kCommon, "Name n\n"}},
     kFrench,
     kNoValues,
     "n|ISO-8859-1|-||-|"},
    {"NotForAnEmptyFile",
     {{"EN/agent.lang", kEnglishFile}, {kNamed, ""}},
     kFrench,
     kNoValues,
     kNoHeader},
    {"WithoutEnglishNothing",
     {{"DE/agent.lang", kEnglishFile}},
     kFrench,
     kNoValues,
     kNoHeader,
     kNoFrench},
    {"EnglishWithoutFilesSaysNothing", {}, {"agent", "en", nullptr}, kNoValues, kNoHeader},
    {"EnglishOfACountryWithoutFilesSaysNothing", {}, {"agent", "En", "US"}, kNoValues, kNoHeader},
};

std::string NameOf(const testing::TestParamInfo<FallbackCase>& row) { return row.param.name; }

INSTANTIATE_TEST_SUITE_P(Merged, LanguageFallback, testing::ValuesIn(kMerged), NameOf);
INSTANTIATE_TEST_SUITE_P(Charsets, LanguageFallback, testing::ValuesIn(kCharsets), NameOf);
INSTANTIATE_TEST_SUITE_P(English, LanguageFallback, testing::ValuesIn(kEnglish), NameOf);

}  // namespace
