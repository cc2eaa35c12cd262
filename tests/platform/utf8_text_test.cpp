#include "platform/utf8_text.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace {

struct TrimCase {
  const char* name;
  std::string text;
  std::string trimmed;
};

void PrintTo(const TrimCase& c, std::ostream* os) { *os << '"' << c.text << '"'; }

class Utf8Trim : public testing::TestWithParam<TrimCase> {};

TEST_P(Utf8Trim, LeavesInPlace) {
  // A block of exactly the text's size, so that a look behind it is noticed by the sanitizers.
  const std::vector<char> bytes(GetParam().text.begin(), GetParam().text.end());
  const std::string_view trimmed = KxUTF8Trim({bytes.data(), bytes.size()});
  EXPECT_EQ(GetParam().trimmed, trimmed);
  if (!trimmed.empty()) {
    EXPECT_GE(trimmed.data(), bytes.data());
    EXPECT_LE(trimmed.data() + trimmed.size(), bytes.data() + bytes.size());
  }
}

const TrimCase kTexts[] = {
    {"Empty", "", ""},
    {"NothingToTrim", "text", "text"},
    {"OneLetter", "x", "x"},
    {"OneBlank", " ", ""},
    {"WhiteSpaceOnly", " \t\n\v\f\r ", ""},
    {"Front", " \t\n\v\f\rtext", "text"},
    {"Back", "text \t\n\v\f\r", "text"},
    {"BothEnds", "\r\n a b\t\v\f", "a b"},
    {"InsideStays", "a \t\n\v\f\r b", "a \t\n\v\f\r b"},
    {"OneLetterBetween", " x ", "x"},
    {"LettersOfSeveralBytes", " \xC3\xA9\xE2\x82\xAC ", "\xC3\xA9\xE2\x82\xAC"},
    {"BytesThatAreNotUtf8", " \xFF\x80 ", "\xFF\x80"},
    {"ByteOrderMarkStays", "\xEF\xBB\xBF text", "\xEF\xBB\xBF text"},
    {"BlankBeforeByteOrderMarkGoes", " \xEF\xBB\xBF ", "\xEF\xBB\xBF"},
    {"NoBreakSpaceStays", "\xC2\xA0text\xC2\xA0", "\xC2\xA0text\xC2\xA0"},
    {"NextLineStays", "\xC2\x85", "\xC2\x85"},
    {"OghamSpaceStays", "\xE1\x9A\x80", "\xE1\x9A\x80"},
    {"EmQuadStays", "\xE2\x80\x81", "\xE2\x80\x81"},
    {"LineAndParagraphSeparatorStay", "\xE2\x80\xA8\xE2\x80\xA9", "\xE2\x80\xA8\xE2\x80\xA9"},
    {"IdeographicSpaceStays", "\xE3\x80\x80", "\xE3\x80\x80"},
    {"BytesA0And85Stay", "\xA0\x85", "\xA0\x85"},
};

INSTANTIATE_TEST_SUITE_P(Texts, Utf8Trim, testing::ValuesIn(kTexts),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(Utf8TrimSet, IsBlankTabLineFeedVerticalTabFormFeedAndCarriageReturn) {
  const std::string whiteSpace = " \t\n\v\f\r";
  for (unsigned byte = 1; byte < 256; ++byte) {
    const char c = static_cast<char>(byte);
    char text[] = {c, c, 'x', c, '\0'};
    const bool goes = whiteSpace.find(c) != std::string::npos;
    EXPECT_EQ(goes ? "x" : std::string(text), KxUTF8Trim(text)) << byte;
  }
}

TEST(Utf8TrimSet, LongRunsOfWhiteSpaceGo) {
  const std::string run(100000, ' ');
  const std::string text = run + "a b" + run;
  EXPECT_EQ("a b", KxUTF8Trim(text));
  EXPECT_EQ("", KxUTF8Trim(run));
}

}  // namespace
