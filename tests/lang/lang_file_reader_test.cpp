#include <gtest/gtest.h>

#include <string>

#include "lang/lang_file_cases.h"

namespace {

using std::string_literals::operator""s;

class LangFileReader : public testing::TestWithParam<LangFileCase> {};

TEST_P(LangFileReader, StoresAndReports) {
  const LangFileCase& c = GetParam();
  ExpectStoresAndReports(c.bytes, c.stored, c.problems);
}

TEST_P(LangFileReader, StoresAndReportsTheSameWithCarriageReturns) {
  const LangFileCase& c = GetParam();
  ExpectStoresAndReports(WithCarriageReturns(c.bytes), c.stored, c.problems);
}

const LangFileCase kWithoutContents[] = {
    {"EmptyFile", "", {}, {}},
    {"OneBlank", " ", {}, {}},
    {"OneLineEnd", "\n", {}, {}},
    {"BlankLinesOfEveryKind", "\n  \n\t\n\v\n\f\n\r\n \t\v\f\r\n", {}, {}},
    {"CommentsOfEveryKind", "; a\n# b\n// c\n;\n#\n//\n;;\n///", {}, {}},
    {"IndentedComments", "  ; a\n\t# b\n\v// c\n\f; d\n \t\v\f\r# e\n", {}, {}},
    {"CommentsAndBlankLines", "; a\n\n# b\n\n\n// c\n  \n", {}, {}},
    {"CommentsThatLookLikeDirectives",
     ";Name F\n#Debug\n//Charset X\n; Name F\n\n# Key a\n",
     {},
     {}},
    {"NulAlone", "\0"s, {}, {}},
    {"LinesThatBeginWithNul", "\0Name F\n  \0junk\n\0\0\n"s, {}, {}},
};

INSTANTIATE_TEST_SUITE_P(WithoutContents, LangFileReader, testing::ValuesIn(kWithoutContents),
                         NameOfLangFileCase);

const LangFileCase kComments[] = {
    {"SlashAloneIsNone",
     "/\n/ x\n/ / y\n/x/\n",
     {},
     {Illegal(1, "/"), Illegal(2, "/ x"), Illegal(3, "/ / y"), Illegal(4, "/x/")}},
    {"SlashAloneIsNoneInTheBody",
     "Name F\n\n/\n/ x\n/x/\n",
     {"name = F"},
     {Unrecognized(3, "/"), Unrecognized(4, "/ x"), Unrecognized(5, "/x/")}},
    {"OtherMarksAreNone",
     "! a\n-- b\n' c\n* d\n",
     {},
     {Illegal(1, "! a"), Illegal(2, "-- b"), Illegal(3, "' c"), Illegal(4, "* d")}},
    {"BehindOtherTextIsNone",
     "Name F ; a\n\nKey k # b\nValue v // c\n",
     {"name = F ; a", "text k # b = v // c"},
     {}},
    {"BehindAKeywordIsNone",
     "Name ; a\n\nKey # b\nValue // c\n",
     {"name = ; a", "text # b = // c"},
     {}},
    {"BehindAnAmpersandIsNone",
     "Name F\n\nKey a\nValue x\n&; y\n&// z\n",
     {"name = F", "text a = x; y// z"},
     {}},
    {"IsNotABlankLine",
     "Name F\n; c\nKey a\n#\n//\nValue x\n",
     {"name = F"},
     {Illegal(3, "Key a"), Illegal(6, "Value x")}},
    {"CountsAsALine", "; a\n# b\n// c\njunk\n", {}, {Illegal(4, "junk")}},
    {"ChangesNothingInTheBody",
     "Name F\n\n; a\nKey a\n# b\n&b\n// c\nValue x\n  ; d\n&y\n; e\n",
     {"name = F", "text ab = xy"},
     {}},
};

INSTANTIATE_TEST_SUITE_P(Comment, LangFileReader, testing::ValuesIn(kComments), NameOfLangFileCase);

// The header goes on until a blank line behind the first directive.
const LangFileCase kHeaderEnd[] = {
    {"BlankLinesBeforeItAreNone",
     "\n \n\nName F\nDebug\n\nKey a\nValue x\n",
     {"name = F", "debug", "text a = x"},
     {}},
    {"BlankLineBehindOneDirective", "Debug\n\nKey a\nValue x\n", {"debug", "text a = x"}, {}},
    {"LineOfWhiteSpace", "Name F\n \t\v\f\nKey a\nValue x\n", {"name = F", "text a = x"}, {}},
    {"LineThatBeginsWithNul", "Name F\n\0x\nKey a\nValue x\n"s, {"name = F", "text a = x"}, {}},
    {"LineOfWhiteSpaceBeforeANul",
     "Name F\n \t\v\0x\nKey a\nValue x\n"s,
     {"name = F", "text a = x"},
     {}},
    {"CommentBeforeTheBlankLine",
     "Name F\n; c\n\n; d\nKey a\nValue x\n",
     {"name = F", "text a = x"},
     {}},
    {"IllegalDirectiveBeforeTheBlankLine",
     "Name F\njunk\n\nKey a\nValue x\n",
     {"name = F", "text a = x"},
     {Illegal(2, "junk")}},
    {"IllegalDirectivesAloneDoNotBringIt",
     "junk\n\nKey a\n\nName F\n\nKey b\nValue x\n",
     {"name = F", "text b = x"},
     {Illegal(1, "junk"), Illegal(3, "Key a")}},
    {"UselessDirectiveBringsIt", "Direction up\n\nKey a\nValue x\n", {"text a = x"}, {}},
    {"DirectivesBehindItAreText",
     "Name F\n\nName G\nDebug\nCharset X\nDirection RTL\n\nName H\n",
     {"name = F"},
     {Unrecognized(3, "Name G"), Unrecognized(4, "Debug"), Unrecognized(5, "Charset X"),
      Unrecognized(6, "Direction RTL"), Unrecognized(8, "Name H")}},
    {"BlankLinesInTheBodyDoNothing",
     "Name F\n\n\nKey a\n\n&b\n\n \nValue x\n\n&y\n\nKey c\n\n\n",
     {"name = F", "text ab = xy"},
     {NoValue(16, "")}},
    {"NeverWithoutABlankLine",
     "Name F\nKey a\nValue x\n&y\nButton b\nLabel l\n",
     {"name = F"},
     {Illegal(2, "Key a"), Illegal(3, "Value x"), Illegal(4, "&y"), Illegal(5, "Button b"),
      Illegal(6, "Label l")}},
    {"NeverWithoutADirective",
     "\nKey a\nValue x\n\nKey b\nValue y\n\n\nKey c\n",
     {},
     {Illegal(2, "Key a"), Illegal(3, "Value x"), Illegal(5, "Key b"), Illegal(6, "Value y"),
      Illegal(9, "Key c")}},
    {"HeaderAlone", "Name F\nDebug", {"name = F", "debug"}, {}},
};

INSTANTIATE_TEST_SUITE_P(HeaderEnd, LangFileReader, testing::ValuesIn(kHeaderEnd),
                         NameOfLangFileCase);

// At the start of a line all six kinds are skipped; at its end four are removed.
const LangFileCase kWhiteSpace[] = {
    {"IsSkippedAtTheStart",
     " \t\v\f\rName F\n\n \t\v\f\rKey a\n\v \fValue x\n\t\v&y\n",
     {"name = F", "text a = xy"},
     {}},
    {"IsRemovedAtTheEnd",
     "Name F \t\r\n\nKey a\r \nValue x\t \r\t\n&y \n",
     {"name = F", "text a = xy"},
     {}},
    {"VerticalTabStaysAtTheEnd",
     "Name F\v\n\nKey a\v\n&b\v\nValue x\v\n&y\v\n",
     {"name = F\v", "text a\vb\v = x\vy\v"},
     {}},
    {"FormFeedStaysAtTheEnd",
     "Name F\f\n\nButton a\f\n&b\f\nLabel x\f\n&y\f\n",
     {"name = F\f", "label a\fb\f = x\fy\f"},
     {}},
    {"IsRemovedUpToAVerticalTabOrFormFeed",
     "Name F \v \t\n\nKey a\t\f\r \nValue x\n",
     {"name = F \v", "text a\t\f = x"},
     {}},
    {"IsKeptWithinALine",
     "Name a \t\v\f\rb\n\nKey c  d\nValue e\t\tf\n",
     {"name = a \t\v\f\rb", "text c  d = e\t\tf"},
     {}},
    {"IsSkippedBehindAKeyword",
     "Name  \t\v\f\r F\n\nKey  \t\v\f\r a\nVal  \t\v\f\r x\n",
     {"name = F", "text a = x"},
     {}},
    {"IsShownAtTheStart", " \t\v\fjunk\n", {}, {Illegal(1, " \t\v\fjunk")}},
    {"IsNotShownAtTheEnd", "junk \t\r \n", {}, {Illegal(1, "junk")}},
    {"VerticalTabAndFormFeedAreShownAtTheEnd",
     "junk\v \njunk\f\t\njunk \v\f\n",
     {},
     {Illegal(1, "junk\v"), Illegal(2, "junk\f"), Illegal(3, "junk \v\f")}},
    {"CarriageReturnAloneEndsNoLine",
     "Name F\rDebug\n\nKey a\rValue x\nValue y\n",
     {"name = F\rDebug", "text a\rvalue x = y"},
     {}},
};

INSTANTIATE_TEST_SUITE_P(WhiteSpace, LangFileReader, testing::ValuesIn(kWhiteSpace),
                         NameOfLangFileCase);

const LangFileCase kUnusualBytes[] = {
    {"NulEndsTheText",
     "Name F\0G\n\nKey a\0b\nValue x\0y\n&z\0\0z\n"s,
     {"name = F", "text a = xz"},
     {}},
    {"NulEndsAShownLine", "junk\0 more\nNam\0e F\n"s, {}, {Illegal(1, "junk"), Illegal(2, "Nam")}},
    {"WhiteSpaceBeforeNulIsRemoved",
     "Name F \t\0G\n\nKey a \0b\nValue \0x\n"s,
     {"name = F", "text a = "},
     {}},
    {"NulDoesNotEndTheFile",
     "Name F\n\nKey a\0\nValue x\n; \0\nKey b\nValue y"s,
     {"name = F", "text a = x", "text b = y"},
     {}},
    {"BytesAbove127AreText",
     "Name \xC3\xA9\n\nKey \xE2\x82\xAC\nValue \xFF\x80\xFE\n",
     {"name = \xC3\xA9", "text \xE2\x82\xAC = \xFF\x80\xFE"},
     {}},
    // 85 and A0 are white space in some character sets.
    {"BytesAbove127AreNotSkipped",
     "\xA0Name F\n\x85Name F\nName \xA0 \x85\n",
     {"name = \xA0 \x85"},
     {Illegal(1, "\xA0Name F"), Illegal(2, "\x85Name F")}},
    {"BytesAbove127AreNotRemoved",
     "Name F\xA0\n\nKey a\x85\nValue \xA0 x \xA0 \n",
     {"name = F\xA0", "text a\x85 = \xA0 x \xA0"},
     {}},
    {"BytesAbove127MakeNoBlankLine",
     "Name F\n\xA0\nKey a\n",
     {"name = F"},
     {Illegal(2, "\xA0"), Illegal(3, "Key a")}},
    {"BytesAbove127BeforeACommentMakeItNone", "\xA0; c\n", {}, {Illegal(1, "\xA0; c")}},
    {"ByteOrderMarkIsText",
     "\xEF\xBB\xBFName F\nDebug\n",
     {"debug"},
     {Illegal(1, "\xEF\xBB\xBFName F")}},
    {"OtherControlCharactersAreText",
     "\x1FName F\n\x7F\nName \x1B\b\x01\n",
     {"name = \x1B\b\x01"},
     {Illegal(1, "\x1FName F"), Illegal(2, "\x7F")}},
    {"PercentSignsAreText", "%s%n\nName %d\n", {"name = %d"}, {Illegal(1, "%s%n")}},
};

INSTANTIATE_TEST_SUITE_P(UnusualBytes, LangFileReader, testing::ValuesIn(kUnusualBytes),
                         NameOfLangFileCase);

// Behind a line end at the end of a file one more line is read, an empty one.
const LangFileCase kEndOfFile[] = {
    {"StoresACompletePair", "Name F\n\nKey a\nValue x\n", {"name = F", "text a = x"}, {}},
    {"StoresACompletePairWithoutALineEnd",
     "Name F\n\nKey a\nValue x",
     {"name = F", "text a = x"},
     {}},
    {"StoresALabelWithoutALineEnd",
     "Name F\n\nButton a\nLabel x\n&y",
     {"name = F", "label a = xy"},
     {}},
    {"StoresAnEmptyValueWithoutALineEnd", "Name F\n\nKey a\nVal", {"name = F", "text a = "}, {}},
    {"HandlesADirectiveWithoutALineEnd",
     "Charset X\nDirection RTL",
     {"charset = X", "direction = RTL"},
     {}},
    {"ReportsALineWithoutALineEnd", "junk", {}, {Illegal(1, "junk")}},
    {"ReportsAKeyAtTheEmptyLine", "Name F\n\nKey a\n", {"name = F"}, {NoValue(4, "")}},
    {"ReportsAKeyAtItsLineWithoutALineEnd", "Name F\n\nKey a", {"name = F"}, {NoValue(3, "Key a")}},
    {"ReportsAButtonAtTheEmptyLine", "Name F\n\nButton a\n", {"name = F"}, {NoValue(4, "")}},
    {"ReportsAButtonAtItsLineWithoutALineEnd",
     "Name F\n\n Button a \t",
     {"name = F"},
     {NoValue(3, " Button a")}},
    {"ReportsAKeyBehindBlankLines", "Name F\n\nKey a\n\n \n\n", {"name = F"}, {NoValue(7, "")}},
    {"ReportsAKeyAtBlanks", "Name F\n\nKey a\n \t", {"name = F"}, {NoValue(4, "")}},
    {"ReportsAKeyAtAVerticalTab", "Name F\n\nKey a\n \v ", {"name = F"}, {NoValue(4, " \v")}},
    {"ReportsAKeyAtAComment", "Name F\n\nKey a\n; c", {"name = F"}, {NoValue(4, "; c")}},
    {"ReportsAKeyAtACommentWithoutItsBlanks",
     "Name F\n\nKey a\n  // c \t",
     {"name = F"},
     {NoValue(4, "  // c")}},
    {"ReportsAKeyBehindAComment", "Name F\n\nKey a\n; c\n", {"name = F"}, {NoValue(5, "")}},
    {"ReportsAKeyAtItsContinuation", "Name F\n\nKey a\n&b", {"name = F"}, {NoValue(4, "&b")}},
    {"ReportsAKeyAtTextItDoesNotKnow",
     "Name F\n\nKey a\njunk",
     {"name = F"},
     {Unrecognized(4, "junk"), NoValue(4, "junk")}},
    {"ReportsAKeyAtANul", "Name F\n\nKey a\n\0x"s, {"name = F"}, {NoValue(4, "")}},
    {"ReportsTwoKeysAtTheLast",
     "Name F\n\nKey a\nKey b",
     {"name = F"},
     {NoValue(4, "Key b"), NoValue(4, "Key b")}},
    {"ReportsAnEmptyKey", "Name F\n\nKey \v\n", {"name = F"}, {NoValue(4, "")}},
};

INSTANTIATE_TEST_SUITE_P(EndOfFile, LangFileReader, testing::ValuesIn(kEndOfFile),
                         NameOfLangFileCase);

const LangFileCase kWholeFiles[] = {
    {"FrenchCommonFile",
     "; comment\n"
     "Long Name Fran\xC3\xA7"
     "ais\n"
     "Charset ISO-8859-1\n"
     "Directory help /docs/fr\n"
     "Direction LTR\n"
     "\n"
     "Key LOGIN_PROMPT\n"
     "Value Nom d'utilisateur\n"
     "&  (facultatif)\n"
     "Button OK\n"
     "Label D'accord\n",
     {"name = Fran\xC3\xA7"
      "ais",
      "charset = ISO-8859-1", "direction = LTR", "directory help = /docs/fr",
      "text login_prompt = Nom d'utilisateur  (facultatif)", "label ok = D'accord"},
     {}},
    {"PairLostToAStrayValueAtTheEnd",
     "; comment\nName F\nCharset X\nDebug\nDirection LTR\n\n"
     "Key LOGIN_PROMPT\nValue Nom\n&  (fac)\nButton OK\nLabel D'accord\n"
     "Key\n"
     "Val\n",
     {"name = F", "charset = X", "direction = LTR", "debug", "text login_prompt = Nom  (fac)"},
     {Unrecognized(12, "Key"), NoKey(13, "Val")}},
};

INSTANTIATE_TEST_SUITE_P(WholeFile, LangFileReader, testing::ValuesIn(kWholeFiles),
                         NameOfLangFileCase);

}  // namespace
