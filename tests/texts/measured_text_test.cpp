#include "texts/measured_text.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include "platform/copy_bytes.h"

namespace {

constexpr char kGuard = '\x55';

/// Memory with guards behind it, in which a measured text lies.
struct Measured {
  explicit Measured(const std::string& text)
      : memory(kx::MeasuredBytes(text.size()) + 8, kGuard),
        copy(kx::PutMeasuredText(memory.data(), text)) {}

  std::string memory;
  const char* const copy;
};

std::string TextOf(std::size_t size) {
  std::string text;
  for (std::size_t at = 0; at < size; ++at) text += static_cast<char>('a' + at % 23);
  return text;
}

class MeasuredTextOfSize : public testing::TestWithParam<std::size_t> {};

TEST_P(MeasuredTextOfSize, HasItsBytesAndItsSize) {
  const std::string text = TextOf(GetParam());
  const Measured measured(text);
  EXPECT_EQ(text, measured.copy);
  EXPECT_EQ(text.size(), kx::MeasuredSize(measured.copy));
  EXPECT_EQ(std::string(8, kGuard), measured.memory.substr(measured.memory.size() - 8));
}

TEST_P(MeasuredTextOfSize, IsCopiedAsFarAsThereIsRoom) {
  const std::string text = TextOf(GetParam());
  const Measured measured(text);
  for (const std::size_t room : {std::size_t{1}, std::size_t{2}, GetParam() / 2 + 1, GetParam() + 1,
                                 GetParam() + 2, GetParam() + 100}) {
    std::string buffer(room + 8, kGuard);
    kx::CopyMeasuredText(buffer.data(), room, measured.copy);
    std::string expected = text.substr(0, room - 1) + '\0';
    expected.resize(room + 8, kGuard);
    EXPECT_EQ(expected, buffer) << room;
  }
}

INSTANTIATE_TEST_SUITE_P(Sizes, MeasuredTextOfSize,
                         testing::Values(0u, 1u, 15u, 66u, 255u, 4096u, 65533u, 65534u, 65535u,
                                         65536u, 200000u),
                         [](const auto& row) { return std::to_string(row.param); });

TEST(CopyBytes, CopiesAsManyAsAreAskedFor) {
  const std::string from = TextOf(400);
  for (std::size_t size = 0; size <= 300; ++size) {
    for (std::size_t begin : {0u, 1u, 63u}) {
      std::string to(400, kGuard);
      kx::CopyBytes(to.data() + begin, from.data() + begin, size);
      std::string expected(400, kGuard);
      expected.replace(begin, size, from, begin, size);
      ASSERT_EQ(expected, to) << size << " from " << begin;
    }
  }
}

}  // namespace
