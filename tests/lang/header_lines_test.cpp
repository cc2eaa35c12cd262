// Headers of several directives, and of several files.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "lang/header_directives.h"
#include "lang/lang_file_cases.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Header : public testing::TestWithParam<LangFileCase> {};

TEST_P(Header, StoresAndReports) {
  const LangFileCase& c = GetParam();
  ExpectStoresAndReports(c.bytes, c.stored, c.problems);
}

TEST_P(Header, StoresAndReportsTheSameWithCarriageReturns) {
  const LangFileCase& c = GetParam();
  ExpectStoresAndReports(WithCarriageReturns(c.bytes), c.stored, c.problems);
}

const LangFileCase kOverriding[] = {
    {"DescriptionReplacesName", "Name A\nDescription B\n", {"name = B"}, {}},
    {"NameReplacesDescription", "Description B\nName A\n", {"name = A"}, {}},
    {"LastOfTheFourNamesWins",
     "Long Name A\nDescription B\nName C\nLongName D\n",
     {"name = D"},
     {}},
    {"LastOfTheThreeImagesWins",
     "Images A\nImage Directory B\nImage Path C\nImages D\n",
     {"images = D"},
     {}},
    {"LastPromptSuffixWins", "Prompt Suffix :\nPrompt Suffix ?\n", {"prompt = ?"}, {}},
    {"LastDirectionWins", "Direction LTR\nDirection RTL\nDirection LTR\n", {"direction = LTR"}, {}},
    {"IgnoredDirectionReplacesNone",
     "Direction RTL\nDirection ltr\nDirection \v\n",
     {"direction = RTL"},
     {}},
    {"DebugTwiceIsDebug", "Debug\ndebug\n", {"debug"}, {}},
    {"EmptyNameReplacesName", "Name A\nName \v\n", {"name = "}, {}},
    {"LastDirectoryOfANameWins",
     "Directory a /x\nDirectory b /y\nDirectory A /z\n",
     {"directory a = /z", "directory b = /y"},
     {}},
    {"EmptyDirectoryReplacesDirectory", "Directory a /x\nDirectory A\n", {"directory a = "}, {}},
    {"DirectoriesAreManyWhereImagesAreOne",
     "Directory images /x\nDirectory Image /y\nImages /z\nImage Directory /i\n",
     {"images = /i", "directory image = /y", "directory images = /x"},
     {}},
    {"IllegalDirectivesReplaceNothing",
     "Name A\nName\nDebug off\nNames B\n",
     {"name = A"},
     {Illegal(2, "Name"), Illegal(3, "Debug off"), Illegal(4, "Names B")}},
};

INSTANTIATE_TEST_SUITE_P(Overriding, Header, testing::ValuesIn(kOverriding), NameOfLangFileCase);

const LangFileCase kCharsets[] = {
    {"NotSetStaysEmpty", "Name A\n\n", {"name = A"}, {}},
    {"SameTwiceIsNoProblem", "Charset UTF-8\nCharset UTF-8\n", {"charset = UTF-8"}, {}},
    {"SameInOtherCaseIsNoProblemAndReplaces",
     "Charset UTF-8\nCharacter Set utf-8\n",
     {"charset = utf-8"},
     {}},
    {"DifferingIsReportedAndReplaces",
     "Charset UTF-8\nCharset ISO-8859-1\n",
     {"charset = ISO-8859-1"},
     {OtherCharset()}},
    {"DifferingInItsEndIsReported",
     "Charset UTF-8\nCharset UTF-81\nCharset UTF-8\n",
     {"charset = UTF-8"},
     {OtherCharset(), OtherCharset()}},
    {"DifferingInPunctuationIsReported",
     "Charset A[\nCharset A{\n",
     {"charset = A{"},
     {OtherCharset()}},
    {"DifferingInBytesAbove127IsReported",
     "Charset \xC3\x89\nCharset \xC3\xA9\n",
     {"charset = \xC3\xA9"},
     {OtherCharset()}},
    {"EachDifferenceIsReported",
     "Charset A\nCharset B\nCharset B\nCharacter Set A\n",
     {"charset = A"},
     {OtherCharset(), OtherCharset()}},
    {"ReportedAmongTheOthersInOrder",
     "Charset A\njunk\nCharset B\njunk\n",
     {"charset = B"},
     {Illegal(2, "junk"), OtherCharset(), Illegal(4, "junk")}},
    {"EmptyDiffersAndReplaces", "Charset A\nCharset \v\n", {}, {OtherCharset()}},
    {"BehindAnEmptyOneIsNoDifference", "Charset \v\nCharset A\n", {"charset = A"}, {}},
    {"BehindOneEmptiedIsNoDifference",
     "Charset A\nCharset \v\nCharset B\n",
     {"charset = B"},
     {OtherCharset()}},
    {"NeedNotExist", "Charset no such set\n", {"charset = no such set"}, {}},
};

INSTANTIATE_TEST_SUITE_P(Charset, Header, testing::ValuesIn(kCharsets), NameOfLangFileCase);

const LangFileCase kTogether[] = {
    {"EveryDirectiveOnce",
     "Directory a /x\nPrompt Suffix :\nDirection RTL\nDebug\nImages /i\nCharset X\nName F\n",
     {"name = F", "images = /i", "charset = X", "direction = RTL", "prompt = :", "debug",
      "directory a = /x"},
     {}},
    {"ThatNeverEndsTakesNoPairs",
     "Name F\nKey a\nValue x\n",
     {"name = F"},
     {Illegal(2, "Key a"), Illegal(3, "Value x")}},
    {"ThatNeverBeginsTakesNoPairs",
     "Key x\n\n\nValue y\n\n",
     {},
     {Illegal(1, "Key x"), Illegal(4, "Value y")}},
    {"LateDirectiveEndsAtTheNextBlankLine",
     "Key a\n\nDebug\nKey b\n\nKey c\nValue x\n",
     {"debug", "text c = x"},
     {Illegal(1, "Key a"), Illegal(4, "Key b")}},
    {"WithoutALineEnd", "Name F\nDirection RTL", {"name = F", "direction = RTL"}, {}},
};

INSTANTIATE_TEST_SUITE_P(Together, Header, testing::ValuesIn(kTogether), NameOfLangFileCase);

// ---------------------------------------------------------------------------------------------

class HeadersOfTwoFiles : public testing::Test {
 protected:
  void Read(const std::string& common, const std::string& agent) {
    reading_.Read(common, "FR/(Common).lang");
    reading_.Read(agent, "FR/agent.lang");
  }
  void ExpectStored(const std::vector<std::string>& stored) {
    EXPECT_EQ(stored, reading_.Stored({"a", "b", "c"}).Lines());
  }
  const std::vector<std::string>& Problems() const { return reading_.problems.Lines(); }

  LangReading reading_;
};

TEST_F(HeadersOfTwoFiles, LastNameWinsWhicheverDirectiveSetsIt) {
  Read("Name A\n\n", "Description B\n\n");
  ExpectStored({"name = B"});
  EXPECT_THAT(Problems(), IsEmpty());
}

TEST_F(HeadersOfTwoFiles, WhatTheLaterDoesNotSetStays) {
  Read("Name A\nImages /i\nPrompt Suffix :\nDebug\nDirection RTL\nCharset X\nDirectory a /a\n\n",
       "Directory b /b\n\n");
  ExpectStored({"name = A", "images = /i", "charset = X", "direction = RTL", "prompt = :", "debug",
                "directory a = /a", "directory b = /b"});
  EXPECT_THAT(Problems(), IsEmpty());
}

TEST_F(HeadersOfTwoFiles, LaterDirectoryReplacesOneOfItsNameInAnyCase) {
  Read("Directory help /a\nDirectory a /a\n\n", "Directory A /b\n\n");
  ExpectStored({"directory a = /b"});
  EXPECT_STREQ("/a", reading_.contents.directories.Find("Help"));
}

TEST_F(HeadersOfTwoFiles, IgnoredDirectionOfTheLaterReplacesNone) {
  Read("Direction RTL\n\n", "Direction ltr\n\n");
  ExpectStored({"direction = RTL"});
}

TEST_F(HeadersOfTwoFiles, DifferingCharsetIsReportedForTheLaterAndReplaces) {
  Read("Charset UTF-8\n\n", "Character Set ISO-8859-1\n\n");
  ExpectStored({"charset = ISO-8859-1"});
  EXPECT_THAT(Problems(), ElementsAre("FR/agent.lang contains a differing value for CHARSET from "
                                      "default language"));
}

TEST_F(HeadersOfTwoFiles, SameCharsetInAnotherCaseIsNotReported) {
  Read("Charset utf-8\n\n", "Charset UTF-8\n\n");
  ExpectStored({"charset = UTF-8"});
  EXPECT_THAT(Problems(), IsEmpty());
}

TEST_F(HeadersOfTwoFiles, CharsetOfTheLaterAloneIsNoDifference) {
  Read("Name F\n\n", "Charset UTF-8\n\n");
  ExpectStored({"name = F", "charset = UTF-8"});
  EXPECT_THAT(Problems(), IsEmpty());
}

TEST_F(HeadersOfTwoFiles, EachNeedsADirectiveOfItsOwn) {
  Read("Name F\n\nKey a\nValue x\n", "Key b\nValue y\n\nKey c\n");
  ExpectStored({"name = F", "text a = x"});
  EXPECT_THAT(Problems(),
              ElementsAre(Illegal(1, "Key b"), Illegal(2, "Value y"), Illegal(4, "Key c")));
}

TEST_F(HeadersOfTwoFiles, HeaderLeftOpenByOneDoesNotConcernTheNext) {
  Read("Name F\nDebug", "\nKey b\nName G\n\nKey c\nValue z\n");
  ExpectStored({"name = G", "debug", "text c = z"});
  EXPECT_THAT(Problems(), ElementsAre(Illegal(2, "Key b")));
}

// ---------------------------------------------------------------------------------------------

class HeaderLine : public testing::Test {
 protected:
  bool IsDirective(std::string_view text) {
    kx::LangFileParser parser(kAgentFile, reading_.problems, reading_.strings);
    parser.line = text;
    parser.cursor = text;
    parser.lineNumber = 7;
    return kx::ParseHeaderDirective(parser, reading_.contents);
  }

  LangReading reading_;
};

TEST_F(HeaderLine, IsADirectiveAlsoWhenItsValueIsOfNoUse) {
  EXPECT_TRUE(IsDirective("Name F"));
  EXPECT_TRUE(IsDirective("Charset X"));
  EXPECT_TRUE(IsDirective("Directory a"));
  EXPECT_TRUE(IsDirective("DEBUG"));
  EXPECT_TRUE(IsDirective("Direction RTL"));
  EXPECT_TRUE(IsDirective("Direction rtl"));
  EXPECT_THAT(reading_.problems.Lines(), IsEmpty());
}

TEST_F(HeaderLine, IsADirectiveAlsoWhenItsCharsetDiffers) {
  EXPECT_TRUE(IsDirective("Charset X"));
  EXPECT_TRUE(IsDirective("Charset Y"));
  EXPECT_THAT(reading_.problems.Lines(), ElementsAre(OtherCharset()));
}

TEST_F(HeaderLine, IsNoDirectiveWhenItIsReported) {
  EXPECT_FALSE(IsDirective("Debug on"));
  EXPECT_FALSE(IsDirective("Key a"));
  EXPECT_THAT(reading_.problems.Lines(), ElementsAre(Illegal(7, "Debug on"), Illegal(7, "Key a")));
}

}  // namespace
