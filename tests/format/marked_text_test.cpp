// Compares the search for markers with one byte by byte, in memory of the text's exact size, so
// that a sanitizer sees what reads too far.

#include "format/marked_text.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <memory>
#include <string>

namespace {

// Four blocks, and some bytes of a fifth.
constexpr std::size_t kLongest = 70;

class ExactText {
 public:
  explicit ExactText(const std::string& text) : bytes_(new char[text.size() + 1]) {
    std::memcpy(bytes_.get(), text.c_str(), text.size() + 1);
  }

  const char* Get() const { return bytes_.get(); }

 private:
  std::unique_ptr<char[]> bytes_;
};

/// Looks for both markers from each place of a text.
void Compare(const std::string& text) {
  const ExactText exact(text);
  const kx::MarkedText marked(exact.Get());
  ASSERT_EQ(exact.Get(), marked.Begin());
  ASSERT_EQ(text.size(), static_cast<std::size_t>(marked.End() - marked.Begin()));
  for (std::size_t from = 0; from <= text.size(); ++from) {
    const std::size_t one = std::min(text.find('%', from), text.size());
    const std::size_t either = std::min(text.find_first_of("%{", from), text.size());
    const char* const begin = exact.Get() + from;
    EXPECT_EQ(exact.Get() + one, marked.Find(begin, '%')) << text << " from " << from;
    kx::ResultText result;
    result.Append("before|");
    EXPECT_EQ(exact.Get() + either, marked.CopyUpTo(result, begin, '%', '{'))
        << text << " from " << from;
    EXPECT_EQ("before|" + text.substr(from, either - from), result.View());
  }
}

TEST(MarkedText, WithoutMarkersIsCopiedWhole) {
  for (std::size_t size = 0; size <= kLongest; ++size) Compare(std::string(size, 'x'));
}

TEST(MarkedText, AMarkerIsFoundAtEachPlaceOfEachLength) {
  for (std::size_t size = 1; size <= kLongest; ++size) {
    for (std::size_t place = 0; place < size; ++place) {
      std::string text(size, 'x');
      text[place] = place % 2 == 0 ? '%' : '{';
      Compare(text);
    }
  }
}

TEST(MarkedText, TheFirstOfManyMarkersIsFound) {
  for (std::size_t size = 1; size <= kLongest; ++size) {
    for (std::size_t step = 1; step < 20; ++step) {
      std::string text(size, 'x');
      for (std::size_t place = step / 2; place < size; place += step) text[place] = '%';
      Compare(text);
    }
  }
}

TEST(MarkedText, BytesLikeMarkersAreNone) {
  // Of which single bits differ, or the sign.
  Compare(
      "$'!-5\x05\xA5z|s;\xFB"
      "another of more than a block: $'!-5\x05\xA5z|s;\xFB");
}

}  // namespace
