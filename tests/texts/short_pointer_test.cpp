#include "texts/short_pointer.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>

namespace {

const char* AtAddress(std::uint64_t address) { return reinterpret_cast<const char*>(address); }

class ShortPointer : public testing::TestWithParam<std::uint64_t> {};

TEST_P(ShortPointer, IsReadFromEitherEndAndTakesSixBytes) {
  const char* const pointer = AtAddress(GetParam());
  ASSERT_TRUE(kx::IsShortPointer(pointer));
  for (const char around : {'\0', '\xFF'}) {
    std::array<char, 10> bytes;
    bytes.fill(around);
    kx::StoreShortPointer(bytes.data() + 2, pointer);
    EXPECT_EQ(pointer, kx::LoadShortPointerAt(bytes.data() + 2));
    EXPECT_EQ(pointer, kx::LoadShortPointerBefore(bytes.data() + 8));
    for (const std::size_t beside : {0u, 1u, 8u, 9u}) EXPECT_EQ(around, bytes[beside]) << beside;
  }
}

INSTANTIATE_TEST_SUITE_P(Addresses, ShortPointer,
                         testing::Values(std::uint64_t{0}, std::uint64_t{1},
                                         std::uint64_t{0x0000123456789ABC},
                                         std::uint64_t{0x00007FFFFFFFFFFF},
                                         std::uint64_t{0x0000FFFFFFFFFFFF}));

TEST(ShortPointerOfAText, IsNoneBeyondFortyEightBits) {
  EXPECT_FALSE(kx::IsShortPointer(AtAddress(std::uint64_t{1} << 48)));
  EXPECT_FALSE(kx::IsShortPointer(AtAddress(~std::uint64_t{0})));
}

}  // namespace
