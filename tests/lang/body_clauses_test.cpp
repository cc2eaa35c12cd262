#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "lang/body_cases.h"

namespace {

using std::string_literals::operator""s;

class BodyClauses : public BodyOfRow {};

TEST_P(BodyClauses, StoreAndReport) { ExpectOfBody(bytes_); }

TEST_P(BodyClauses, StoreAndReportTheSameWithCarriageReturns) {
  ExpectOfBody(WithCarriageReturns(bytes_));
}

const LangFileCase kPairs[] = {
    {"KeyAndValue", "Key a\nValue x\n", {"text a = x"}, {}},
    {"KeyAndVal", "Key a\nVal x\n", {"text a = x"}, {}},
    {"ButtonAndLabel", "Button a\nLabel x\n", {"label a = x"}, {}},
    {"SameNameInBothTables",
     "Key a\nValue x\nButton a\nLabel y\n",
     {"text a = x", "label a = y"},
     {}},
    {"PairsOneBehindTheOther",
     "Button a\nLabel x\nKey b\nVal y\nKey c\nValue z\n",
     {"text b = y", "text c = z", "label a = x"},
     {}},
    {"BlankLinesWithinAPair", "\nKey a\n\n \nValue x\n\n", {"text a = x"}, {}},
    {"WhiteSpaceAroundThem", " \tKey \t a b \t\n\vValue \f x  y \r\n", {"text a b = x  y"}, {}},
    {"NamesMayHoldSpaces",
     "Key a b  c\nValue x\nButton d\te\nLabel y\n",
     {"text a b  c = x", "label d\te = y"},
     {}},
    {"NamesAndValuesMayLookLikeClauses",
     "Key Key a\nValue Value x\nButton Label\nLabel Button b\n",
     {"text key a = Value x", "label label = Button b"},
     {}},
    {"NamesMayLookLikeContinuations", "Key &a\nValue &x\n", {"text &a = &x"}, {}},
    {"BytesAbove127InNamesCount",
     "Key \xC3\x89\nValue x\nKey \xC3\xA9\nValue y\n",
     {"text \xC3\x89 = x", "text \xC3\xA9 = y"},
     {}},
    {"NulEndsANameAndAValue", "Key a\0b\nValue x\0y\n"s, {"text a = x"}, {}},
    {"NoClauses", "", {}, {}},
};

INSTANTIATE_TEST_SUITE_P(Pairs, BodyClauses, testing::ValuesIn(kPairs), NameOfLangFileCase);

const LangFileCase kEmptyOnes[] = {
    {"BareValIsEmpty", "Key a\nVal\n", {"text a = "}, {}},
    {"BareValueIsEmpty", "Key a\nValue\n", {"text a = "}, {}},
    {"BareLabelIsEmpty", "Button a\nLabel\n", {"label a = "}, {}},
    {"BareKeywordsInAnyCase",
     "Key a\nVAL\nKey b\nvaluE\nButton c\nlABEL\n",
     {"text a = ", "text b = ", "label c = "},
     {}},
    {"KeywordsWithBlanksBehindThem",
     "Key a\nVal \t \nKey b\nValue   \nButton c\nLabel\t\r\n",
     {"text a = ", "text b = ", "label c = "},
     {}},
    {"KeywordsBehindBlanks",
     "Key a\n  Val\nKey b\n\tValue\nButton c\n\v Label\n",
     {"text a = ", "text b = ", "label c = "},
     {}},
    {"ValuesOfAVerticalTabOrFormFeed",
     "Key a\nVal \v\nKey b\nValue \f\nButton c\nLabel \v\n",
     {"text a = ", "text b = ", "label c = "},
     {}},
    // The vertical tab keeps the blank behind the keyword.
    {"NameOfAKey", "Key \v\nValue x\n", {"text  = x"}, {}},
    {"NameOfAButton", "Button \t\f\nLabel x\n", {"label  = x"}, {}},
    {"NameAndValue", "Key \v\nVal\n", {"text  = "}, {}},
    {"NameIsAKeyLikeOthers", "Key \v\nKey a\nValue x\n", {"text a = x"}, {NoValue(4, "Key a")}},
    {"ValueReplacesValue", "Key a\nValue x\nKey a\nVal\n", {"text a = "}, {}},
};

INSTANTIATE_TEST_SUITE_P(Empty, BodyClauses, testing::ValuesIn(kEmptyOnes), NameOfLangFileCase);

const LangFileCase kCase[] = {
    {"OfKeywordsDoesNotCount",
     "KEY a\nVALUE x\nkey b\nval y\nkEy c\nvAl z\n",
     {"text a = x", "text b = y", "text c = z"},
     {}},
    {"OfButtonAndLabelDoesNotCount",
     "BUTTON a\nlabel x\nbutton b\nLABEL y\nbuTTon c\nlaBel z\n",
     {"label a = x", "label b = y", "label c = z"},
     {}},
    {"OfKeysDoesNotCount", "key x\nValue 1\nKEY X\nValue 2\n", {"text x = 2"}, {}},
    {"OfButtonsDoesNotCount", "Button Ok\nLabel 1\nButton oK\nLabel 2\n", {"label ok = 2"}, {}},
    {"OfValuesIsKept", "Key A\nValue XyZ\n&ZyX\n", {"text a = XyZZyX"}, {}},
    {"CountsForOtherCharacters",
     "Key a[\nValue 1\nKey a{\nValue 2\nKey @\nVal 3\nKey `\nVal 4\n",
     {"text @ = 3", "text ` = 4", "text a[ = 1", "text a{ = 2"},
     {}},
};

INSTANTIATE_TEST_SUITE_P(Case, BodyClauses, testing::ValuesIn(kCase), NameOfLangFileCase);

const LangFileCase kRepeated[] = {
    {"LastPairOfAKeyWins",
     "Key a\nValue x\nKey b\nValue y\nKey a\nValue z\n",
     {"text a = z", "text b = y"},
     {}},
    {"LastPairOfAButtonWins", "Button a\nLabel x\nButton a\nLabel y\n", {"label a = y"}, {}},
    {"IncompletePairReplacesNothing",
     "Key a\nValue x\nKey a\nKey b\nValue y\n",
     {"text a = x", "text b = y"},
     {NoValue(6, "Key b")}},
    {"KeyAgainBeforeItsValueIsReported",
     "Key a\nKey a\nValue x\n",
     {"text a = x"},
     {NoValue(4, "Key a")}},
};

INSTANTIATE_TEST_SUITE_P(Repeated, BodyClauses, testing::ValuesIn(kRepeated), NameOfLangFileCase);

const LangFileCase kContinuations[] = {
    {"LengthensAKey", "Key abc\n&def\nValue v\n", {"text abcdef = v"}, {}},
    {"LengthensAValue", "Key a\nValue x\n&y\n", {"text a = xy"}, {}},
    {"LengthensAButton", "Button abc\n&def\nLabel v\n", {"label abcdef = v"}, {}},
    {"LengthensALabel", "Button a\nLabel x\n&y\n", {"label a = xy"}, {}},
    {"LengthensAllOfAPair",
     "Key a\n&b\n&c\nValue x\n&y\n&z\nButton d\n&e\nLabel v\n&w\n",
     {"text abc = xyz", "label de = vw"},
     {}},
    {"LengthensOnlyTheLatest",
     "Key a\nValue x\nKey b\n&c\nValue y\n",
     {"text a = x", "text bc = y"},
     {}},
    {"LengthensAnEmptyValue", "Key a\nVal\n&x\n", {"text a = x"}, {}},
    {"LengthensAnEmptyLabel", "Button a\nLabel\n&x\n", {"label a = x"}, {}},
    {"LengthensAnEmptyName", "Key \v\n&a\nValue x\n", {"text a = x"}, {}},
    {"KeepsTheBlanksBehindTheAmpersand",
     "Key a\n&  b\nValue x\n&\t \vy\n",
     {"text a  b = x\t \vy"},
     {}},
    {"LosesTheBlanksAtItsEnd", "Key a\n&b \t\nValue x\n&  \n& y  \n", {"text ab = x y"}, {}},
    {"KeepsAVerticalTabAtItsEnd", "Key a\nValue x\n&\v\n& \f\n&y\n", {"text a = x\v \fy"}, {}},
    {"MayBeEmpty", "Key a\n&\nValue x\n&\n&\n", {"text a = x"}, {}},
    {"MayStandBehindBlanks", "Key a\n  &b\nValue x\n\t\v&y\n", {"text ab = xy"}, {}},
    {"MayFollowBlankLinesAndComments",
     "Key a\n\n; c\n&b\nValue x\n// c\n \n\n#\n&y\n",
     {"text ab = xy"},
     {}},
    {"MayFollowTextThatIsNotRecognized",
     "Key a\njunk\n&b\nValue x\njunk\n&y\n",
     {"text ab = xy"},
     {Unrecognized(4, "junk"), Unrecognized(7, "junk")}},
    {"MayHoldAmpersands", "Key a\n&&b&\nValue x\n&&\n", {"text a&b& = x&"}, {}},
    {"MayLookLikeAClause", "Key a\n&Value x\nValue y\n&Key b\n", {"text avalue x = yKey b"}, {}},
    {"MayLookLikeAComment", "Key a\nValue x\n&;y\n&//z\n", {"text a = x;y//z"}, {}},
    {"MayHoldBytesAbove127", "Key a\nValue \xC3\n&\xA9\n", {"text a = \xC3\xA9"}, {}},
    {"EndsAtANul", "Key a\nValue x\n&y\0z\n&\0\n&w\n"s, {"text a = xyw"}, {}},
    {"MakesAKeyThatIsThereAlready", "Key ab\nValue x\nKey a\n&B\nValue y\n", {"text ab = y"}, {}},
};

INSTANTIATE_TEST_SUITE_P(Continuation, BodyClauses, testing::ValuesIn(kContinuations),
                         NameOfLangFileCase);

}  // namespace
