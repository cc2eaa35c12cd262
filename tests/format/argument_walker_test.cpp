#include "format/argument_walker.h"

#include <gtest/gtest.h>

#include <bit>
#include <climits>
#include <cstdarg>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

using kx::ArgumentKind;
using Kinds = std::vector<ArgumentKind>;
using Words = std::vector<std::uint64_t>;

constexpr ArgumentKind kUnread = ArgumentKind::kUnread;
constexpr ArgumentKind kWord = ArgumentKind::kWord;
constexpr ArgumentKind kDouble = ArgumentKind::kDouble;

Words TakeFrom(const Kinds* kinds, ...) {
  std::va_list arguments;
  va_start(arguments, kinds);
  kx::ArgumentWalker walker(arguments);
  for (const ArgumentKind kind : *kinds) walker.Take(kind);
  va_end(arguments);
  Words words;
  for (std::size_t i = 0; i < walker.Taken(); ++i) words.push_back(walker[i].Word());
  return words;
}

template <class... Arguments>
Words Take(const Kinds& kinds, Arguments... arguments) {
  return TakeFrom(&kinds, arguments...);
}

std::uint64_t BitsOf(double value) { return std::bit_cast<std::uint64_t>(value); }

TEST(ArgumentWalker, TakesNothingWithoutKinds) { EXPECT_EQ(Words{}, Take({}, 1, 2.5, "c")); }

TEST(ArgumentWalker, TakesOnlyAsManyAsThereAreKinds) {
  EXPECT_EQ((Words{1, 2}), Take({kWord, kWord}, std::int64_t{1}, std::int64_t{2}, 3));
}

TEST(ArgumentWalker, TakesAnIntAsTheLowHalfOfAWord) {
  const auto intsOf = [](const Words& words) {
    std::vector<int> ints;
    for (const std::uint64_t word : words) ints.push_back(static_cast<int>(word));
    return ints;
  };
  EXPECT_EQ((std::vector<int>{0, -1, INT_MIN, INT_MAX}),
            intsOf(Take({kWord, kWord, kWord, kWord}, 0, -1, INT_MIN, INT_MAX)));
  EXPECT_EQ((std::vector<int>{-1, 5}), intsOf(Take({kWord, kWord}, UINT_MAX, 5)));
}

TEST(ArgumentWalker, TakesAllBytesOfAWord) {
  const char* const text = "text";
  EXPECT_EQ((Words{0x8000000000000000, UINT64_MAX, 0x0123456789ABCDEF,
                   reinterpret_cast<std::uintptr_t>(text)}),
            Take({kWord, kWord, kWord, kWord}, INT64_MIN, UINT64_MAX,
                 std::uint64_t{0x0123456789ABCDEF}, text));
}

TEST(ArgumentWalker, TakesTheBytesOfADouble) {
  using Limits = std::numeric_limits<double>;
  EXPECT_EQ((Words{BitsOf(0.5), 0x8000000000000000, BitsOf(Limits::infinity()), 1}),
            Take({kDouble, kDouble, kDouble, kDouble}, 0.5, -0.0, Limits::infinity(),
                 Limits::denorm_min()));
}

TEST(ArgumentWalker, StepsOverWhatIsNotRead) {
  const Words words = Take({kUnread, kWord, kUnread, kDouble, kUnread, kWord}, 1, std::int64_t{2},
                           "three", 4.5, std::int64_t{5}, std::int64_t{6});
  ASSERT_EQ(6U, words.size());
  EXPECT_EQ(2U, words[1]);
  EXPECT_EQ(BitsOf(4.5), words[3]);
  EXPECT_EQ(6U, words[5]);
}

TEST(ArgumentWalker, StepsOverMoreThanTheRegistersHold) {
  Kinds kinds(20, kUnread);
  kinds.push_back(kWord);
  kinds.push_back(kDouble);
  const Words words = Take(kinds, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18,
                           19, std::int64_t{-20}, 2.1);
  ASSERT_EQ(22U, words.size());
  EXPECT_EQ(static_cast<std::uint64_t>(-20), words[20]);
  EXPECT_EQ(BitsOf(2.1), words[21]);
}

TEST(ArgumentWalker, TakesMoreDoublesThanTheRegistersHold) {
  EXPECT_EQ((Words{BitsOf(0), BitsOf(1), BitsOf(2), BitsOf(3), BitsOf(4), BitsOf(5), BitsOf(6),
                   BitsOf(7), BitsOf(8), BitsOf(9), BitsOf(10), 11}),
            Take({kDouble, kDouble, kDouble, kDouble, kDouble, kDouble, kDouble, kDouble, kDouble,
                  kDouble, kDouble, kWord},
                 0.0, 1.0, 2.0, 3.0, 4.0, 5.0, 6.0, 7.0, 8.0, 9.0, 10.0, std::int64_t{11}));
}

// Long lists of mixed kinds, made by the compiler: the kind at each place follows from a seed.

constexpr std::size_t kArguments = 40;

constexpr std::size_t Mixed(std::size_t seed, std::size_t place) {
  std::size_t bits = (seed * 40503 + place + 1) * 2654435761U;
  bits ^= bits >> 15U;
  bits *= 2246822519U;
  return bits >> 13U;
}

template <std::size_t kSeed, std::size_t kPlace>
auto ArgumentAt() {
  constexpr std::size_t kMixed = Mixed(kSeed, kPlace);
  // In the first two seeds one kind prevails.
  constexpr std::size_t kKind = kSeed < 2 && kPlace % 8 != 0 ? kSeed : kMixed % 3;
  if constexpr (kKind == 0) {
    return static_cast<int>(static_cast<std::uint32_t>(kMixed));
  } else if constexpr (kKind == 1) {
    return static_cast<double>(kMixed) / 3.0;
  } else {
    return static_cast<std::int64_t>(kMixed * 0x9E3779B97F4A7C15);
  }
}

template <class Argument>
constexpr ArgumentKind KindOf() {
  return std::is_same_v<Argument, double> ? kDouble : kWord;
}

template <class Argument>
std::uint64_t WordOf(Argument argument) {
  if constexpr (std::is_same_v<Argument, double>) {
    return BitsOf(argument);
  } else {
    return static_cast<std::uint64_t>(std::int64_t{argument});
  }
}

/// What lies above an int in its place is nobody's.
template <class Argument>
std::uint64_t SeenOf(std::uint64_t word) {
  return std::is_same_v<Argument, int> ? WordOf(static_cast<int>(word)) : word;
}

template <class... Arguments>
void TakeMixedList(std::size_t seed, Arguments... arguments) {
  const Words words = Take({KindOf<Arguments>()...}, arguments...);
  ASSERT_EQ(sizeof...(Arguments), words.size());
  std::size_t place = 0;
  EXPECT_EQ(Words{WordOf(arguments)...}, (Words{SeenOf<Arguments>(words[place++])...}))
      << "seed " << seed;
}

template <std::size_t kSeed, std::size_t... kPlaces>
void TakeMixedList(std::index_sequence<kPlaces...> /*unused*/) {
  TakeMixedList(kSeed, ArgumentAt<kSeed, kPlaces>()...);
}

template <std::size_t... kSeeds>
void TakeMixedLists(std::index_sequence<kSeeds...> /*unused*/) {
  (TakeMixedList<kSeeds>(std::make_index_sequence<kArguments>{}), ...);
}

TEST(ArgumentWalker, TakesFortyOfMixedKinds) { TakeMixedLists(std::make_index_sequence<24>{}); }

}  // namespace
