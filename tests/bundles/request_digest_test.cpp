#include "bundles/request_digest.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <unordered_set>
#include <vector>

namespace {

using kx::RequestDigest;

constexpr kx::HashSeed kSeed = {0x0123456789ABCDEF, 0xFEDCBA9876543210};

/// Sizes on both sides of each way in which a text is taken.
const std::size_t kSizes[] = {0, 1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 31, 32, 33, 64};

RequestDigest Digest(const std::string& bundle, const std::string& locale) {
  return {bundle, locale, kSeed};
}

std::string TextOf(std::size_t size) {
  return std::string("Ab-cD_eF9").append(size, 'x').substr(0, size);
}

TEST(RequestDigest, CaseCountsInTheBundleAlone) {
  for (const std::size_t size : kSizes) {
    for (std::size_t place = 0; place < size; ++place) {
      for (unsigned byte = 1; byte < 256; ++byte) {
        const bool isCapital = byte >= 'A' && byte <= 'Z';
        std::string one = TextOf(size);
        std::string other = one;
        one[place] = static_cast<char>(byte);
        other[place] = static_cast<char>(byte ^ 0x20);
        const bool isLetter = isCapital || (byte >= 'a' && byte <= 'z');
        ASSERT_EQ(isLetter, Digest("bundle", one) == Digest("bundle", other)) << size << byte;
        ASSERT_FALSE(Digest(one, "locale") == Digest(other, "locale")) << size << byte;
      }
    }
  }
}

TEST(RequestDigest, EachByteCountsInEachPlace) {
  for (const std::size_t size : kSizes) {
    const std::string text = TextOf(size);
    for (std::size_t place = 0; place < size; ++place) {
      for (const char byte : {'!', '~', '\x01', '\xC3'}) {
        std::string other = text;
        other[place] = byte;
        EXPECT_FALSE(Digest(text, "fr") == Digest(other, "fr"));
        EXPECT_FALSE(Digest("agent", text) == Digest("agent", other));
      }
    }
  }
}

TEST(RequestDigest, SizesCount) {
  for (const std::size_t size : kSizes) {
    for (const std::size_t other : kSizes) {
      const std::string text(size, 'x');
      const std::string longer(other, 'x');
      EXPECT_EQ(size == other, Digest(text, "fr") == Digest(longer, "fr"));
      EXPECT_EQ(size == other, Digest("agent", text) == Digest("agent", longer));
    }
  }
}

TEST(RequestDigest, TellsWhereTheBundleEnds) {
  EXPECT_FALSE(Digest("ab", "c") == Digest("a", "bc"));
  EXPECT_FALSE(Digest("abc", "") == Digest("", "abc"));
  EXPECT_FALSE(Digest("fr", "agent") == Digest("agent", "fr"));
}

TEST(RequestDigest, HoldsBothTextsWhenTheyAreShort) {
  for (const std::size_t bundle : kSizes) {
    for (const std::size_t locale : kSizes) {
      EXPECT_EQ(bundle < 16 && locale < 16, RequestDigest::Holds(TextOf(bundle), TextOf(locale)));
    }
  }
}

TEST(RequestDigest, EqualOnesHashAlikeAndOthersDoNot) {
  std::unordered_set<std::uint64_t> hashes;
  for (const std::size_t bundle : kSizes) {
    for (const std::size_t locale : kSizes) {
      const RequestDigest digest = Digest(std::string(bundle, 'b'), std::string(locale, 'l'));
      const RequestDigest capital = Digest(std::string(bundle, 'b'), std::string(locale, 'L'));
      EXPECT_EQ(digest.Hash(kSeed), capital.Hash(kSeed));
      hashes.insert(digest.Hash(kSeed));
    }
  }
  EXPECT_EQ(std::size(kSizes) * std::size(kSizes), hashes.size());
}

TEST(RequestDigest, HashesOtherwiseByEitherHalfOfAnotherSeed) {
  for (const kx::HashSeed& seed : {kx::HashSeed{1, kSeed.second}, kx::HashSeed{kSeed.first, 1}}) {
    for (const std::size_t size : kSizes) {
      const std::string text = TextOf(size);
      EXPECT_NE(Digest("agent", text).Hash(kSeed), RequestDigest("agent", text, seed).Hash(seed));
    }
  }
}

}  // namespace
