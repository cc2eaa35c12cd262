// Whole files, and where their header ends.

#include <gtest/gtest.h>

#include <string>

#include "lang/lang_file_reader_cases.h"

namespace {

using std::string_literals::operator""s;

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
