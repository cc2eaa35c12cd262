#include "bundles/utf8_check.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <ostream>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace {

using std::string_literals::operator""s;

struct Utf8Case {
  const char* name;
  std::string text;
  bool wellFormed;
};

void PrintTo(const Utf8Case& c, std::ostream* os) { *os << c.name; }

std::string NameOf(const testing::TestParamInfo<Utf8Case>& row) { return row.param.name; }

class Utf8Check : public testing::TestWithParam<Utf8Case> {};

TEST_P(Utf8Check, Judges) {
  EXPECT_EQ(GetParam().wellFormed, kx::IsWellFormedUtf8(GetParam().text));
}

TEST_P(Utf8Check, JudgesTheSameInsideAText) {
  EXPECT_EQ(GetParam().wellFormed, kx::IsWellFormedUtf8("a\xC3\xA9" + GetParam().text + "z"));
}

TEST_P(Utf8Check, JudgesTheSameBehindALongText) {
  for (std::size_t length = 0; length < 40; ++length) {
    const std::string text = std::string(length, 'a') + GetParam().text + std::string(length, 'z');
    EXPECT_EQ(GetParam().wellFormed, kx::IsWellFormedUtf8(text)) << "behind " << length;
  }
}

const Utf8Case kAccepted[] = {
    {"Empty", "", true},
    {"Ascii", "plain text ~\x7F", true},
    {"ControlCharacters", "\x01\x1F\t\r\n", true},
    {"NulByte", "a\0b"s, true},
    {"FirstOfTwoBytes", "\xC2\x80", true},
    {"LastOfTwoBytes", "\xDF\xBF", true},
    {"FirstOfThreeBytes", "\xE0\xA0\x80", true},
    {"LastOfThreeBytes", "\xEF\xBF\xBF", true},
    {"FirstOfFourBytes", "\xF0\x90\x80\x80", true},
    {"LastOfFourBytes", "\xF7\xBF\xBF\xBF", true},
    {"FirstOfFiveBytes", "\xF8\x88\x80\x80\x80", true},
    {"LastOfFiveBytes", "\xFB\xBF\xBF\xBF\xBF", true},
    {"FirstOfSixBytes", "\xFC\x84\x80\x80\x80\x80", true},
    {"LastOfSixBytes", "\xFD\xBF\xBF\xBF\xBF\xBF", true},
    {"FirstHighSurrogate", "\xED\xA0\x80", true},
    {"LastLowSurrogate", "\xED\xBF\xBF", true},
    {"SurrogatePair", "\xED\xA0\xBD\xED\xB8\x80", true},
    {"LastCodePointOfUnicode", "\xF4\x8F\xBF\xBF", true},
    {"FirstAboveUnicode", "\xF4\x90\x80\x80", true},
    {"NonCharacters", "\xEF\xBF\xBE\xEF\xB7\x90", true},
    {"ByteOrderMark", "\xEF\xBB\xBF", true},
    {"AllLengthsInARow",
     "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80\xF9\x80\x80\x80\x80\xFD\x80\x80\x80\x80\x80", true},
};

INSTANTIATE_TEST_SUITE_P(Accepted, Utf8Check, testing::ValuesIn(kAccepted), NameOf);

const Utf8Case kOverlong[] = {
    {"TwoBytesC0", "\xC0\x80", false},
    {"TwoBytesC0Last", "\xC0\xBF", false},
    {"TwoBytesC1", "\xC1\x80", false},
    {"TwoBytesC1Last", "\xC1\xBF", false},
    {"ThreeBytesFirst", "\xE0\x80\x80", false},
    {"ThreeBytesLast", "\xE0\x9F\xBF", false},
    {"FourBytesFirst", "\xF0\x80\x80\x80", false},
    {"FourBytesLast", "\xF0\x8F\xBF\xBF", false},
    {"FiveBytesFirst", "\xF8\x80\x80\x80\x80", false},
    {"FiveBytesLast", "\xF8\x87\xBF\xBF\xBF", false},
    {"SixBytesFirst", "\xFC\x80\x80\x80\x80\x80", false},
    {"SixBytesLast", "\xFC\x83\xBF\xBF\xBF\xBF", false},
    {"SlashInTwoBytes", "\xC0\xAF", false},
    {"SlashInSixBytes", "\xFC\x80\x80\x80\x80\xAF", false},
};

INSTANTIATE_TEST_SUITE_P(Overlong, Utf8Check, testing::ValuesIn(kOverlong), NameOf);

const Utf8Case kBroken[] = {
    {"LoneC0", "\xC0", false},
    {"LoneC1", "\xC1", false},
    {"FirstContinuationByteAlone", "\x80", false},
    {"LastContinuationByteAlone", "\xBF", false},
    {"ContinuationByteTooMany", "\xC3\xA9\xA9", false},
    {"ByteFE", "\xFE", false},
    {"ByteFF", "\xFF", false},
    {"ByteFEWithContinuation", "\xFE\x80\x80\x80\x80\x80\x80", false},
    {"ByteFFWithContinuation", "\xFF\x80\x80\x80\x80\x80\x80\x80", false},
    {"ByteFEInsideASequence", "\xC3\xFE", false},
    {"ByteFFInsideASequence", "\xE2\x82\xFF", false},
    {"TwoBytesCut", "\xC3", false},
    {"ThreeBytesCutToTwo", "\xE2\x82", false},
    {"ThreeBytesCutToOne", "\xE2", false},
    {"FourBytesCutToThree", "\xF0\x9F\x98", false},
    {"FiveBytesCutToFour", "\xF8\x88\x80\x80", false},
    {"SixBytesCutToFive", "\xFC\x84\x80\x80\x80", false},
    {"SixBytesCutToOne", "\xFC", false},
    {"AsciiInPlaceOfTheSecondByte", "\xE2z\xAC", false},
    {"AsciiInPlaceOfTheLastByte", "\xF0\x9F\x98z", false},
    {"LeadByteInPlaceOfTheSecondByte", "\xC3\xC3\xA9", false},
    {"LeadByteInPlaceOfTheLastByte", "\xE2\x82\xC3\xA9", false},
    {"NulInPlaceOfTheSecondByte", "\xC3\0"s, false},
    {"LatinOne", "caf\xE9 au lait", false},
    {"SixteenBitText",
     "\xFF\xFE"
     "a\0"s,
     false},
};

INSTANTIATE_TEST_SUITE_P(Broken, Utf8Check, testing::ValuesIn(kBroken), NameOf);

// A cut at the very end, with nothing behind that could be taken for a wrong byte.
TEST(Utf8CheckEnd, SequenceMustNotRunPastTheEndOfAView) {
  const std::string whole = "ab\xFD\x80\x80\x80\x80\x80";
  for (std::size_t length = 3; length < whole.size(); ++length) {
    EXPECT_FALSE(kx::IsWellFormedUtf8(std::string_view(whole).substr(0, length))) << length;
  }
  EXPECT_TRUE(kx::IsWellFormedUtf8(whole));
  EXPECT_TRUE(kx::IsWellFormedUtf8(std::string_view()));
}

// The slow model works out each code point and refuses those that need fewer bytes.
bool IsWellFormedInTheModel(std::string_view text) {
  static constexpr std::array<std::uint32_t, 7> kSmallestOfLength = {
      0, 0, 0x80, 0x800, 0x10000, 0x200000, 0x4000000};
  while (!text.empty()) {
    const unsigned lead = static_cast<unsigned char>(text[0]);
    std::size_t length = 0;
    while (length < 8 && ((lead << length) & 0x80U) != 0) ++length;
    if (length == 1 || length > 6) return false;
    if (length == 0) length = 1;
    if (length > text.size()) return false;
    std::uint32_t codePoint = length == 1 ? lead : lead & (0x7FU >> length);
    for (const char c : text.substr(1, length - 1)) {
      const unsigned byte = static_cast<unsigned char>(c);
      if (byte / 0x40U != 2) return false;
      codePoint = codePoint * 0x40U + byte % 0x40U;
    }
    if (codePoint < kSmallestOfLength[length]) return false;
    text.remove_prefix(length);
  }
  return true;
}

TEST(Utf8CheckModel, AgreesOnAllTextsOfOneAndTwoBytes) {
  for (unsigned first = 0; first < 256; ++first) {
    std::string text(1, static_cast<char>(first));
    EXPECT_EQ(IsWellFormedInTheModel(text), kx::IsWellFormedUtf8(text)) << first;
    text += ' ';
    for (unsigned second = 0; second < 256; ++second) {
      text[1] = static_cast<char>(second);
      ASSERT_EQ(IsWellFormedInTheModel(text), kx::IsWellFormedUtf8(text)) << first << ' ' << second;
    }
  }
}

TEST(Utf8CheckModel, AgreesOnEverySecondByteOfEveryLeadByte) {
  for (unsigned lead = 0xC0; lead < 256; ++lead) {
    for (unsigned second = 0; second < 256; ++second) {
      for (std::size_t rest = 0; rest < 7; ++rest) {
        std::string text{static_cast<char>(lead), static_cast<char>(second)};
        text.append(rest, '\x80');
        ASSERT_EQ(IsWellFormedInTheModel(text), kx::IsWellFormedUtf8(text))
            << lead << ' ' << second << " and " << rest << " more";
      }
    }
  }
}

TEST(Utf8CheckModel, AgreesOnRandomTexts) {
  const std::string bytes =
      "az\x7F\x80\x80\x80\x80\x83\x84\x87\x88\x8F\x90\x9F\xA0\xBF\xBF\xBF"
      "\xC0\xC1\xC2\xDF\xE0\xED\xEF\xF0\xF4\xF7\xF8\xFB\xFC\xFD\xFE\xFF";
  std::mt19937 random(19991231);
  std::size_t accepted = 0;
  for (int i = 0; i < 200000; ++i) {
    std::string text(random() % 30, ' ');
    for (char& c : text) c = bytes[random() % bytes.size()];
    const bool expected = IsWellFormedInTheModel(text);
    ASSERT_EQ(expected, kx::IsWellFormedUtf8(text)) << testing::PrintToString(text);
    accepted += expected ? 1 : 0;
  }
  EXPECT_GT(accepted, 1000U);  // the mix must hold both kinds
}

TEST(Utf8CheckModel, AgreesOnSentencesInWhichOneByteIsChanged) {
  const std::vector<std::string> letters = {"a",
                                            " ",
                                            "\xC3\xA9",
                                            "\xDF\xBF",
                                            "\xE0\xA0\x80",
                                            "\xE2\x82\xAC",
                                            "\xEF\xBF\xBF",
                                            "\xF0\x90\x80\x80",
                                            "\xF7\xBF\xBF\xBF",
                                            "\xF8\x88\x80\x80\x80"};
  std::mt19937 random(20);
  std::size_t accepted = 0;
  constexpr int kRounds = 100000;
  for (int round = 0; round < kRounds; ++round) {
    std::string text;
    // Of a few kinds each, so that most have no sequence of five bytes.
    const std::size_t kinds = 1 + random() % letters.size();
    const std::size_t size = random() % 80;
    while (text.size() < size) text += letters[random() % kinds];
    ASSERT_TRUE(kx::IsWellFormedUtf8(text)) << testing::PrintToString(text);
    if (!text.empty()) text[random() % text.size()] = static_cast<char>(random() % 256);
    const bool expected = IsWellFormedInTheModel(text);
    ASSERT_EQ(expected, kx::IsWellFormedUtf8(text)) << testing::PrintToString(text);
    accepted += expected ? 1 : 0;
  }
  EXPECT_GT(accepted, kRounds / 10U);
  EXPECT_LT(accepted, kRounds - kRounds / 10U);
}

}  // namespace
