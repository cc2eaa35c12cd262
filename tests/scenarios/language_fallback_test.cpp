// Which of a language's files answers: each row is a tree of files, a request, and all that the
// translator then says of them.

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "core/language_cache.h"
#include "lang/interned_strings.h"
#include "support/lasting_log.h"
#include "support/temp_tree.h"

namespace {

struct Request {
  const char* name;
  const char* language;
  const char* country;
};

constexpr Request kFrench = {"agent", "fr", nullptr};
constexpr Request kCanadian = {"agent", "fr", "ca"};

struct ReleaseTranslator {
  void operator()(CKxXlate* translator) const { translator->Release(); }
};
using Held = std::unique_ptr<CRealKxXlate, ReleaseTranslator>;

class LanguageFiles : public testing::Test {
 protected:
  ~LanguageFiles() override { cache_.Clear(); }

  void Write(const std::string& path, const std::string& bytes) {
    tree_.Write("lang/" + path, bytes);
  }

  /// The request's language or, when there is none, English.
  Held Find(const Request& request) {
    Held found(cache_.FindOrLoad(request.name, request.language, request.country));
    if (found == nullptr) found.reset(cache_.FindOrLoad(request.name, "EN", nullptr));
    return found;
  }

  /// Long name, charset, images, direction and prompt suffix.
  static std::string HeaderOf(CKxXlate& translator) {
    std::string header;
    for (const char* value :
         {translator.GetLongName(), translator.GetCharset(), translator.GetImageDirectory(),
          translator.GetDirection(), translator.GetPromptSuffix()}) {
      header += (value == nullptr ? std::string("-") : value) + "|";
    }
    return header;
  }

  std::string Log() const { return tree_.Read("log/translate.log"); }

 private:
  TempTree tree_;
  kx::LanguagePaths paths_{true, tree_.Path(), tree_.Path("lang") + "/"};
  kx::InternTable strings_;
  std::uint32_t nextId_ = 1;
  kx::CRealKxXlateCache cache_{kx::LanguageContext{paths_, strings_, nextId_, LastingLog()}};
};

// Files that all say everything: one of them wins

struct PrecedenceCase {
  const char* name;
  std::vector<std::string> files;
  Request request;
  std::string winner;
};

void PrintTo(const PrecedenceCase& c, std::ostream* os) { *os << c.winner; }

class LanguagePrecedence : public LanguageFiles,
                           public testing::WithParamInterface<PrecedenceCase> {};

TEST_P(LanguagePrecedence, AnswersFromTheMostSpecificFile) {
  const PrecedenceCase& c = GetParam();
  for (const std::string& file : c.files) {
    Write(file, "Name " + file + "\nImages " + file + "\nCharset UTF-8\nPrompt Suffix " + file +
                    "\nDirectory K " + file + "\n\nKey K\nValue " + file + "\nButton K\nLabel " +
                    file + "\n");
  }
  const Held translator = Find(c.request);
  ASSERT_NE(nullptr, translator);
  EXPECT_EQ(c.winner, translator->GetText("K"));
  EXPECT_EQ(c.winner, translator->GetLabel("K"));
  EXPECT_EQ(c.winner, translator->GetDirectory("K"));
  EXPECT_EQ(c.winner + "|UTF-8|" + c.winner + "||" + c.winner + "|", HeaderOf(*translator));
  EXPECT_EQ("(no file)", Log());
}

const char* const kCommon = "FR/(Common).lang";
const char* const kNamed = "FR/agent.lang";
const char* const kCommonOfCountry = "FR-CA/(Common).lang";
const char* const kNamedOfCountry = "FR-CA/agent.lang";
const std::vector<std::string> kAllFour = {kCommon, kNamed, kCommonOfCountry, kNamedOfCountry};

const PrecedenceCase kPrecedence[] = {
    {"AllFour", kAllFour, kCanadian, kNamedOfCountry},
    {"CommonOfCountryBeforeNamed",
     {kCommon, kNamed, kCommonOfCountry},
     kCanadian,
     kCommonOfCountry},
    {"NamedBeforeCommon", {kCommon, kNamed}, kCanadian, kNamed},
    {"NamedOfCountryBeforeCommonOfCountry",
     {kCommonOfCountry, kNamedOfCountry},
     kCanadian,
     kNamedOfCountry},
    {"CommonAlone", {kCommon}, kCanadian, kCommon},
    {"NamedAlone", {kNamed}, kCanadian, kNamed},
    {"CommonOfCountryAlone", {kCommonOfCountry}, kCanadian, kCommonOfCountry},
    {"NamedOfCountryAlone", {kNamedOfCountry}, kCanadian, kNamedOfCountry},
    {"WithoutCountryItsFilesAreNotRead", kAllFour, kFrench, kNamed},
    {"EmptyCountryIsNone", {kNamed, "FR-/agent.lang"}, {"agent", "fr", ""}, kNamed},
    {"FilesOfOtherComponentsAreNotRead", {kCommon, "FR/other.lang"}, kFrench, kCommon},
    {"FilesOfOtherCountriesAreNotRead", {kNamed, "FR-BE/agent.lang"}, kCanadian, kNamed},
    {"EmptyNameReadsTheCommonFiles", kAllFour, {"", "fr", "ca"}, kCommonOfCountry},
    {"CodesAreFoundInCapitals",
     {kNamedOfCountry, "fr-ca/agent.lang", "Fr/agent.lang"},
     {"agent", "Fr", "cA"},
     kNamedOfCountry},
    {"NamesAreFoundAsGiven", {kNamed, "FR/Agent.lang"}, {"Agent", "fr", nullptr}, "FR/Agent.lang"},
    {"EmptyLanguageReadsTheTop",
     {"(Common).lang", "agent.lang"},
     {"agent", "", nullptr},
     "agent.lang"},
    {"EmptyLanguageWithCountry",
     {"agent.lang", "-AT/agent.lang"},
     {"agent", "", "at"},
     "-AT/agent.lang"},
    {"EnglishOfACountry",
     {"EN/agent.lang", "EN-US/agent.lang"},
     {"agent", "en", "us"},
     "EN-US/agent.lang"},
};

INSTANTIATE_TEST_SUITE_P(Trees, LanguagePrecedence, testing::ValuesIn(kPrecedence),
                         [](const auto& row) { return std::string(row.param.name); });

// Files that say different things

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
