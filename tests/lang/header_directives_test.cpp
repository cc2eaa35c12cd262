#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "lang/lang_file_cases.h"

namespace {

using std::string_literals::operator""s;

/// A directive begins a header, which the blank line ends, so that the pair is stored.
void ExpectDirective(const std::string& line, std::vector<std::string> stored) {
  SCOPED_TRACE(line);
  stored.emplace_back("text pair = stored");
  for (const char* const lineEnd : {"\n", "\r\n"}) {
    ExpectStoresAndReports(ReplacedAll(line + "\n\nKey pair\nValue stored\n", "\n", lineEnd),
                           stored, {});
  }
}

/// Any other line does not begin one, so that the pair is taken for lines of the header, too.
void ExpectIllegal(const std::string& line, const std::string& shown) {
  for (const char* const lineEnd : {"\n", "\r\n"}) {
    ExpectStoresAndReports(ReplacedAll(line + "\n\nKey pair\nValue stored\n", "\n", lineEnd), {},
                           {Illegal(1, shown), Illegal(3, "Key pair"), Illegal(4, "Value stored")});
  }
}

// ---------------------------------------------------------------------------------------------

struct Spelling {
  const char* name;
  const char* keyword;
  const char* altered;  ///< in another mix of cases
  const char* value;
  const char* stored;
};

void PrintTo(const Spelling& c, std::ostream* os) { *os << c.keyword; }

std::string InCapitals(std::string text) {
  for (char& c : text) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return text;
}

class HeaderKeyword : public testing::TestWithParam<Spelling> {
 protected:
  const std::string keyword_ = GetParam().keyword;
  const std::string value_ = GetParam().value;
};

TEST_P(HeaderKeyword, IsKnownInAnyCase) {
  for (const std::string& spelling : {keyword_, InSmallLetters(keyword_), InCapitals(keyword_),
                                      std::string(GetParam().altered)}) {
    ExpectDirective(spelling + " " + value_, {GetParam().stored});
  }
}

TEST_P(HeaderKeyword, MayHaveWhiteSpaceAroundItAndItsValue) {
  ExpectDirective(" \t\v\f\r" + keyword_ + "  \t\v\f\r " + value_ + " \t ", {GetParam().stored});
}

TEST_P(HeaderKeyword, IsIllegalWithoutABlankBehindIt) {
  for (const char* const end :
       {"", " ", "\t", " \r\t", "\tx", "\vx", ":x", "=x", "x", "-", "\xA0x"}) {
    const std::string line = keyword_ + end;
    ExpectIllegal(line, line.substr(0, line.find_last_not_of(" \t\r") + 1));
  }
}

TEST_P(HeaderKeyword, IsIllegalBehindOtherText) {
  for (const char* const start : {"x", "x ", "\xA0", "&", "/ ", "The "}) {
    const std::string line = start + keyword_ + " " + value_;
    ExpectIllegal(line, line);
  }
}

const Spelling kSpellings[] = {
    {"LongName", "Long Name", "lOnG nAmE",
     "Fran\xC3\xA7"
     "ais",
     "name = Fran\xC3\xA7"
     "ais"},
    {"LongNameInOneWord", "LongName", "lONGnAME", "French", "name = French"},
    {"Name", "Name", "nAme", "French (France)", "name = French (France)"},
    {"Description", "Description", "dEscriptioN", "Texts  in French", "name = Texts  in French"},
    {"Images", "Images", "imaGES", "/img/fr", "images = /img/fr"},
    {"ImageDirectory", "Image Directory", "image dIRECTORY", "/img /fr", "images = /img /fr"},
    {"ImagePath", "Image Path", "IMAGE path", "../img", "images = ../img"},
    {"Charset", "Charset", "charSet", "ISO-8859-1", "charset = ISO-8859-1"},
    {"CharacterSet", "Character Set", "CHARACTER set", "windows 1252", "charset = windows 1252"},
    {"PromptSuffix", "Prompt Suffix", "prompt SUFFIX", ": ?", "prompt = : ?"},
    {"Directory", "Directory", "DIRectory", "help /docs", "directory help = /docs"},
    {"Direction", "Direction", "dIRECTION", "RTL", "direction = RTL"},
};

INSTANTIATE_TEST_SUITE_P(Each, HeaderKeyword, testing::ValuesIn(kSpellings),
                         [](const auto& tested) { return std::string(tested.param.name); });

// ---------------------------------------------------------------------------------------------

struct DirectiveCase {
  const char* name;
  std::string line;
  std::vector<std::string> stored;
};

void PrintTo(const DirectiveCase& c, std::ostream* os) { *os << testing::PrintToString(c.line); }

std::string NameOfDirective(const testing::TestParamInfo<DirectiveCase>& tested) {
  return tested.param.name;
}

class HeaderDirective : public testing::TestWithParam<DirectiveCase> {};

TEST_P(HeaderDirective, Stores) { ExpectDirective(GetParam().line, GetParam().stored); }

const DirectiveCase kValues[] = {
    {"IsTheRestOfTheLine", "Name a  b\tc ; d", {"name = a  b\tc ; d"}},
    {"MayLookLikeADirective", "Name Name Debug", {"name = Name Debug"}},
    {"OfLongNameMayBeginWithName", "Long Name Name F", {"name = Name F"}},
    {"MayLookLikeAComment", "Name // F", {"name = // F"}},
    {"MayBeOneCharacter", "Prompt Suffix :", {"prompt = :"}},
    {"NeitherBeginsNorEndsWithBlanks", "Prompt Suffix :  ", {"prompt = :"}},
    {"MayEndWithAFormFeed", "Images /i\f", {"images = /i\f"}},
    {"MayEndWithAVerticalTab", "Charset X\v ", {"charset = X\v"}},
    {"EndsAtANul", "Name a\0b"s, {"name = a"}},
    {"MayBeginWithAByteAbove127", "Name \xA0 x", {"name = \xA0 x"}},
    // Only what stays at the end of a line keeps the blank behind the keyword.
    {"OfANameMayBeEmpty", "Name \v", {"name = "}},
    {"OfADescriptionMayBeEmpty", "Description \f", {"name = "}},
    {"OfImagesMayBeEmpty", "Image Path \t\v\f", {"images = "}},
    {"OfAPromptSuffixMayBeEmpty", "Prompt Suffix \v", {"prompt = "}},
    {"OfACharsetMayBeEmpty", "Charset \v", {}},
};

INSTANTIATE_TEST_SUITE_P(Value, HeaderDirective, testing::ValuesIn(kValues), NameOfDirective);

const DirectiveCase kDirections[] = {
    {"LeftToRight", "Direction LTR", {"direction = LTR"}},
    {"RightToLeft", "Direction RTL", {"direction = RTL"}},
    {"InSmallLettersIsIgnored", "Direction rtl", {}},
    {"InMixedCaseIsIgnored", "Direction Ltr", {}},
    {"WithMoreBehindItIsIgnored", "Direction RTL LTR", {}},
    {"WithMoreLettersIsIgnored", "Direction RTLx", {}},
    {"CutShortIsIgnored", "Direction LT", {}},
    {"WithAVerticalTabBehindItIsIgnored", "Direction RTL\v", {}},
    {"WithAByteAbove127BehindItIsIgnored", "Direction RTL\xA0", {}},
    {"InQuotesIsIgnored", "Direction \"RTL\"", {}},
    {"EmptyIsIgnored", "Direction \v", {}},
    {"EndsAtANul", "Direction RTL\0LTR"s, {"direction = RTL"}},
};

INSTANTIATE_TEST_SUITE_P(Direction, HeaderDirective, testing::ValuesIn(kDirections),
                         NameOfDirective);

const DirectiveCase kDebug[] = {
    {"InOneSpelling", "Debug", {"debug"}},
    {"InCapitals", "DEBUG", {"debug"}},
    {"InSmallLetters", "debug", {"debug"}},
    {"InMixedCase", "dEbUg", {"debug"}},
    {"WithBlanksAroundIt", " \t\v Debug \t ", {"debug"}},
    {"EndsAtANul", "Debug\0 on"s, {"debug"}},
};

INSTANTIATE_TEST_SUITE_P(Debug, HeaderDirective, testing::ValuesIn(kDebug), NameOfDirective);

const DirectiveCase kDirectories[] = {
    {"HasANameAndAValue", "Directory help /docs/fr", {"directory help = /docs/fr"}},
    {"WithoutValueHasAnEmptyOne", "Directory help", {"directory help = "}},
    {"WithBlanksForAValueHasAnEmptyOne", "Directory help  \t ", {"directory help = "}},
    {"WithAFormFeedForAValueHasAnEmptyOne", "Directory help \f", {"directory help = "}},
    {"NameBeginsBehindWhiteSpace", "Directory  \t\v\f\r help /d", {"directory help = /d"}},
    {"ValueBeginsBehindWhiteSpace", "Directory help  \t\v\f\r /d", {"directory help = /d"}},
    {"ValueIsTheRestOfTheLine", "Directory help C:/a b\tc", {"directory help = C:/a b\tc"}},
    {"NameMayHoldATab", "Directory he\tlp /d", {"directory he\tlp = /d"}},
    {"TabDoesNotEndTheName", "Directory help\t/d", {"directory help\t/d = "}},
    {"TabBeforeTheBlankBelongsToTheName", "Directory help\t /d", {"directory help\t = /d"}},
    {"NameMayHoldOtherWhiteSpace", "Directory h\ve\fl\rp /d", {"directory h\ve\fl\rp = /d"}},
    {"NameMayEndWithAVerticalTab", "Directory help\v", {"directory help\v = "}},
    {"NameMayHoldBytesAbove127", "Directory \xA0h\x85 /d", {"directory \xA0h\x85 = /d"}},
    {"NameMayHoldMarks", "Directory // ; /d", {"directory // = ; /d"}},
    {"NameMayBeEmpty", "Directory \v", {"directory  = "}},
    {"NameInCapitalsIsFoundInSmallLetters", "Directory HELP /D", {"directory help = /D"}},
    {"EndsAtANul", "Directory help /d\0/e"s, {"directory help = /d"}},
};

INSTANTIATE_TEST_SUITE_P(Directory, HeaderDirective, testing::ValuesIn(kDirectories),
                         NameOfDirective);

// ---------------------------------------------------------------------------------------------

struct IllegalCase {
  const char* name;
  std::string line;
  std::string shown;
};

void PrintTo(const IllegalCase& c, std::ostream* os) { *os << testing::PrintToString(c.line); }

class IllegalHeaderDirective : public testing::TestWithParam<IllegalCase> {};

TEST_P(IllegalHeaderDirective, IsReportedAndBeginsNoHeader) {
  ExpectIllegal(GetParam().line, GetParam().shown);
}

const IllegalCase kIllegal[] = {
    {"DebugWithAValue", "Debug on", "Debug on"},
    {"DebugWithATabAndAValue", "Debug\ton", "Debug\ton"},
    {"DebugWithMoreLetters", "Debugging", "Debugging"},
    {"DebugWithAVerticalTab", "Debug\v", "Debug\v"},
    {"DebugWithAByteAbove127", "Debug\xA0", "Debug\xA0"},
    {"DebugCutShort", "Debu", "Debu"},
    {"TwoBlanksInLongName", "Long  Name F", "Long  Name F"},
    {"TabInLongName", "Long\tName F", "Long\tName F"},
    {"TwoBlanksInCharacterSet", "Character  Set X", "Character  Set X"},
    {"CharacterSetInOneWord", "CharacterSet X", "CharacterSet X"},
    {"CharsetInTwoWords", "Char Set X", "Char Set X"},
    {"PromptSuffixInOneWord", "PromptSuffix :", "PromptSuffix :"},
    {"PromptAlone", "Prompt :", "Prompt :"},
    {"ImageAlone", "Image /i", "Image /i"},
    {"ImageDirectoryInOneWord", "ImageDirectory /i", "ImageDirectory /i"},
    {"LongAlone", "Long F", "Long F"},
    {"KeyOfTheBody", "Key x", "Key x"},
    {"ButtonOfTheBody", "Button x", "Button x"},
    {"ValueOfTheBody", "Value x", "Value x"},
    {"LabelOfTheBody", "Label x", "Label x"},
    {"Continuation", "& x", "& x"},
    {"SectionOfAnotherFormat", "[Header]", "[Header]"},
    {"PairOfAnotherFormat", "name=F", "name=F"},
    {"UnknownWordWithWhiteSpaceAroundIt", " \t junk  x \t ", " \t junk  x"},
    {"UnknownWordWithANul", "junk \0x"s, "junk"},
    {"KeywordCutByANul", "Name \0F"s, "Name"},
};

INSTANTIATE_TEST_SUITE_P(Lines, IllegalHeaderDirective, testing::ValuesIn(kIllegal),
                         [](const auto& tested) { return std::string(tested.param.name); });

}  // namespace
