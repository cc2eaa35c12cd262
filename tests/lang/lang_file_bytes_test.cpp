// White space, unusual bytes and the last line of a file.

#include <gtest/gtest.h>

#include <string>

#include "lang/lang_file_reader_cases.h"

namespace {

using std::string_literals::operator""s;

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

}  // namespace
