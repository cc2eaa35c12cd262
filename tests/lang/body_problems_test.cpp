// Bodies with lines that are reported, and what is lost with them.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "lang/body_cases.h"

namespace {

using std::string_literals::operator""s;

class BodyProblems : public BodyOfRow {};

TEST_P(BodyProblems, AreReportedAndLoseNoMore) { ExpectOfBody(bytes_); }

TEST_P(BodyProblems, AreReportedAndLoseNoMoreWithCarriageReturns) {
  ExpectOfBody(WithCarriageReturns(bytes_));
}

const LangFileCase kKeyWithoutValue[] = {
    {"ReportedAtTheNextKeyAndDropped",
     "Key a\nKey b\nValue x\n",
     {"text b = x"},
     {NoValue(4, "Key b")}},
    {"ReportedAtTheNextButton",
     "Key a\nButton b\nLabel x\n",
     {"label b = x"},
     {NoValue(4, "Button b")}},
    {"ButtonReportedAtTheNextButton",
     "Button a\nButton b\nLabel x\n",
     {"label b = x"},
     {NoValue(4, "Button b")}},
    {"ButtonReportedAtTheNextKey",
     "Button a\nKey b\nValue x\n",
     {"text b = x"},
     {NoValue(4, "Key b")}},
    {"EachReportedAtTheNext",
     "Key a\nKey b\nKey c\nKey d\nValue x\n",
     {"text d = x"},
     {NoValue(4, "Key b"), NoValue(5, "Key c"), NoValue(6, "Key d")}},
    {"ReportedBehindBlankLinesAndComments",
     "Key a\n\n; c\nKey b\nValue x\n",
     {"text b = x"},
     {NoValue(6, "Key b")}},
    {"DroppedWithItsContinuations",
     "Key a\n&b\nKey c\n&d\nValue x\n",
     {"text cd = x"},
     {NoValue(5, "Key c")}},
    {"ReportedAtTheEnd", "Key a\n", {}, {NoValue(4, "")}},
    {"ReportedWithTheBlanksOfTheNextKey",
     "Key a\n \t Key b \t\nValue x\n",
     {"text b = x"},
     {NoValue(4, " \t Key b")}},
    {"NotReportedWhenTheNextKeyIsBare",
     "Key a\nKey\nValue x\n",
     {"text a = x"},
     {Unrecognized(4, "Key")}},
};

INSTANTIATE_TEST_SUITE_P(KeyWithoutValue, BodyProblems, testing::ValuesIn(kKeyWithoutValue),
                         NameOfLangFileCase);

const LangFileCase kValueWithoutKey[] = {
    {"ValueAlone", "Value x\n", {}, {NoKey(3, "Value x")}},
    {"ValAlone", "Val x\n", {}, {NoKey(3, "Val x")}},
    {"LabelAlone", "Label x\n", {}, {NoKey(3, "Label x")}},
    {"BareOnesAlone",
     "Value\nVal\nLabel\n",
     {},
     {NoKey(3, "Value"), NoKey(4, "Val"), NoKey(5, "Label")}},
    {"ShownWithItsBlanksInFront", " \tValue x \t\n", {}, {NoKey(3, " \tValue x")}},
    {"TwoValuesForOneKeyNeitherIsStored", "Key a\nValue x\nValue y\n", {}, {NoKey(5, "Value y")}},
    {"TwoLabelsForOneButtonNeitherIsStored",
     "Button a\nLabel x\nLabel y\n",
     {},
     {NoKey(5, "Label y")}},
    {"ThreeValuesForOneKeyAreReportedTwice",
     "Key a\nVal x\nVal\nValue z\n",
     {},
     {NoKey(5, "Val"), NoKey(6, "Value z")}},
    {"LabelBehindACompleteKeyLosesIt", "Key a\nValue x\nLabel y\n", {}, {NoKey(5, "Label y")}},
    {"ValueBehindACompleteButtonLosesIt", "Button a\nLabel x\nVal y\n", {}, {NoKey(5, "Val y")}},
    {"LabelBehindAKeyLosesTheKey",
     "Key a\nLabel x\nValue y\n",
     {},
     {NoKey(4, "Label x"), NoKey(5, "Value y")}},
    {"ValueBehindAButtonLosesTheButton",
     "Button a\nVal x\nLabel y\n",
     {},
     {NoKey(4, "Val x"), NoKey(5, "Label y")}},
    {"KeyLostSoIsNotReportedAgain",
     "Key a\nLabel x\nKey b\nValue y\n",
     {"text b = y"},
     {NoKey(4, "Label x")}},
    {"KeyLostSoIsNotReportedAtTheEnd", "Key a\nLabel x\n", {}, {NoKey(4, "Label x")}},
    {"PairsStoredBeforeStay",
     "Key a\nValue x\nKey b\nValue y\nValue z\n",
     {"text a = x"},
     {NoKey(7, "Value z")}},
    {"PairsBehindItAreStored", "Value x\nKey a\nValue y\n", {"text a = y"}, {NoKey(3, "Value x")}},
    {"OlderPairOfTheKeyStays",
     "Key a\nValue x\nKey a\nValue y\nValue z\n",
     {"text a = x"},
     {NoKey(7, "Value z")}},
    {"ItsContinuationIsStray",
     "Key a\nValue x\nValue y\n&z\n",
     {},
     {NoKey(5, "Value y"), StrayContinuation(6, "&z")}},
    {"ValueBehindAKeyThatIsNone",
     "Key\tx\nValue x\n",
     {},
     {Unrecognized(3, "Key\tx"), NoKey(4, "Value x")}},
};

INSTANTIATE_TEST_SUITE_P(ValueWithoutKey, BodyProblems, testing::ValuesIn(kValueWithoutKey),
                         NameOfLangFileCase);

const LangFileCase kStrayContinuations[] = {
    {"BeforeAnyClause", "&x\nKey a\nValue y\n", {"text a = y"}, {StrayContinuation(3, "&x")}},
    {"EachIsReported",
     "&\n& x\n&&\n",
     {},
     {StrayContinuation(3, "&"), StrayContinuation(4, "& x"), StrayContinuation(5, "&&")}},
    {"ShownWithItsBlanksInFront", "\t &  x \n", {}, {StrayContinuation(3, "\t &  x")}},
    {"BehindAStrayValue", "Value x\n&y\n", {}, {NoKey(3, "Value x"), StrayContinuation(4, "&y")}},
    {"BehindUnrecognizedText",
     "junk\n&y\n",
     {},
     {Unrecognized(3, "junk"), StrayContinuation(4, "&y")}},
    {"BehindABareKey", "Key\n&y\n", {}, {Unrecognized(3, "Key"), StrayContinuation(4, "&y")}},
};

INSTANTIATE_TEST_SUITE_P(StrayContinuation, BodyProblems, testing::ValuesIn(kStrayContinuations),
                         NameOfLangFileCase);

const LangFileCase kUnrecognized[] = {
    {"OtherWords",
     "junk\nName x\nDebug\n",
     {},
     {Unrecognized(3, "junk"), Unrecognized(4, "Name x"), Unrecognized(5, "Debug")}},
    {"ShownWithBlanksInFrontAndNoneBehind",
     " \t\v junk  x \t\r\n",
     {},
     {Unrecognized(3, " \t\v junk  x")}},
    {"BareKeyAndButton",
     "Key\nButton\nKEY\nbutton \n",
     {},
     {Unrecognized(3, "Key"), Unrecognized(4, "Button"), Unrecognized(5, "KEY"),
      Unrecognized(6, "button")}},
    {"KeyAndButtonWithATab",
     "Key\ta\nButton\ta\n",
     {},
     {Unrecognized(3, "Key\ta"), Unrecognized(4, "Button\ta")}},
    {"KeyAndButtonWithAVerticalTab",
     "Key\v\nButton\va\n",
     {},
     {Unrecognized(3, "Key\v"), Unrecognized(4, "Button\va")}},
    {"ValuesWithATab",
     "Key a\nVal\tx\nValue\tx\nValue y\nButton b\nLabel\tx\nLabel y\n",
     {"text a = y", "label b = y"},
     {Unrecognized(4, "Val\tx"), Unrecognized(5, "Value\tx"), Unrecognized(8, "Label\tx")}},
    {"ValuesWithAVerticalTabOrFormFeed",
     "Key a\nVal\v\nValue\f\nVal x\nButton b\nLabel\v\nLabel\n",
     {"text a = x", "label b = "},
     {Unrecognized(4, "Val\v"), Unrecognized(5, "Value\f"), Unrecognized(8, "Label\v")}},
    {"WordsThatBeginWithAKeyword",
     "Keys a\nButtons a\nValues x\nValuex\nVals x\nLabels x\nKey: a\n",
     {},
     {Unrecognized(3, "Keys a"), Unrecognized(4, "Buttons a"), Unrecognized(5, "Values x"),
      Unrecognized(6, "Valuex"), Unrecognized(7, "Vals x"), Unrecognized(8, "Labels x"),
      Unrecognized(9, "Key: a")}},
    {"WordsThatBeginAKeyword",
     "Ke a\nBut a\nVa x\nValu x\nVa\nValu\nLabe\n",
     {},
     {Unrecognized(3, "Ke a"), Unrecognized(4, "But a"), Unrecognized(5, "Va x"),
      Unrecognized(6, "Valu x"), Unrecognized(7, "Va"), Unrecognized(8, "Valu"),
      Unrecognized(9, "Labe")}},
    {"KeywordsWithAByteAbove127",
     "Key\xA0"
     "a\nVal\xA0\n",
     {},
     {Unrecognized(3,
                   "Key\xA0"
                   "a"),
      Unrecognized(4, "Val\xA0")}},
    {"ClausesBehindOtherText",
     "x Key a\n-Value x\n",
     {},
     {Unrecognized(3, "x Key a"), Unrecognized(4, "-Value x")}},
    {"ChangesNothingOfAnOpenPair",
     "Key a\njunk\nValue x\njunk\n&y\n",
     {"text a = xy"},
     {Unrecognized(4, "junk"), Unrecognized(6, "junk")}},
    {"CutByANul", "Key\0 a\nju\0nk\n"s, {}, {Unrecognized(3, "Key"), Unrecognized(4, "ju")}},
};

INSTANTIATE_TEST_SUITE_P(Unrecognized, BodyProblems, testing::ValuesIn(kUnrecognized),
                         NameOfLangFileCase);

const LangFileCase kTogether[] = {
    {"InTheOrderOfTheirLines",
     "&a\nVal\njunk\nKey b\nKey c\nLabel\nKey d\n",
     {},
     {StrayContinuation(3, "&a"), NoKey(4, "Val"), Unrecognized(5, "junk"), NoValue(7, "Key c"),
      NoKey(8, "Label"), NoValue(10, "")}},
};

INSTANTIATE_TEST_SUITE_P(Together, BodyProblems, testing::ValuesIn(kTogether), NameOfLangFileCase);

}  // namespace
