// Wide texts in a locale with characters of several bytes.

#include <gtest/gtest.h>

#include <clocale>
#include <cwchar>
#include <memory>
#include <string>

#include "format/inserted.h"

namespace {

class WideTextInUtf8 : public testing::Test {
 protected:
  void SetUp() override { ASSERT_NE(nullptr, std::setlocale(LC_ALL, "C.UTF-8")); }
  void TearDown() override { std::setlocale(LC_ALL, "C"); }
};

const wchar_t* const kEuros = L"\x20AC\x20AC";

TEST_F(WideTextInUtf8, HasTheEncodingOfTheLocale) {
  EXPECT_EQ("<\xE2\x82\xAC\xE2\x82\xAC|\xC3\xA9> 7",
            Inserted("<%ls|%lc> %d", kEuros, wint_t{0xE9}, 7));
}

TEST_F(WideTextInUtf8, WidthCountsBytes) {
  EXPECT_EQ("<  \xE2\x82\xAC\xE2\x82\xAC|\xC3\xA9   >",
            Inserted("<%8ws|%-5lc>", kEuros, wint_t{0xE9}));
}

TEST_F(WideTextInUtf8, PrecisionCountsBytesAndCutsNoCharacter) {
  EXPECT_EQ("<|\xE2\x82\xAC|\xE2\x82\xAC|    \xE2\x82\xAC|\xE2\x82\xAC\xE2\x82\xAC>",
            Inserted("<%.2ls|%.3ls|%.5ls|%7.4ls|%.6ls>", kEuros, kEuros, kEuros, kEuros, kEuros));
}

TEST_F(WideTextInUtf8, WithoutAnEndIsReadToItsPrecision) {
  const auto text = std::make_unique<wchar_t[]>(2);
  text[0] = text[1] = wchar_t{0x20AC};
  EXPECT_EQ("\xE2\x82\xAC\xE2\x82\xAC", Inserted("%.6ls", static_cast<const wchar_t*>(text.get())));
}

TEST_F(WideTextInUtf8, IsCutAt16383BytesWithinNoCharacter) {
  const std::wstring text(6000, wchar_t{0x20AC});
  const std::string result = Inserted("%.0s%ls:2", "", text.c_str());
  EXPECT_EQ(16383U, result.size());
  EXPECT_EQ("\xE2\x82\xAC", result.substr(16380));
  const std::string behindOneByte = Inserted("%ls", (L"a" + text).c_str());
  EXPECT_EQ(16381U, behindOneByte.size()) << "a character has three bytes";
  EXPECT_EQ("\xE2\x82\xAC", behindOneByte.substr(16378));
}

TEST_F(WideTextInUtf8, IsNothingWithACharacterThatIsNone) {
  EXPECT_EQ("<> 7", Inserted("<%ls> %d", L"a\xD800", 7));
}

}  // namespace
