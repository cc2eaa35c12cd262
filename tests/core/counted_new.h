#ifndef KX_TESTS_CORE_COUNTED_NEW_H
#define KX_TESTS_CORE_COUNTED_NEW_H

#include <gtest/gtest.h>

#include <new>
#include <vector>

// Programs that use this list counted_new.cpp, which replaces the global operator new and delete.

/// How many blocks of this process are allocated now.
long LiveBlocks();

/// Makes the `number`-th allocation of this thread from now on fail; 0 lets all succeed.
void FailAllocation(long number);

/// How many allocations are left until one fails; 0 when none will.
long AllocationsUntilFailure();

/// Notes from now on which of some blocks (at most 8) are freed, and in which order.
void WatchBlocks(const std::vector<void*>& blocks);

/// Those that were freed since; ends the watch.
std::vector<void*> FreedBlocks();

/// Those that are freed while `call` runs.
template <class Call>
std::vector<void*> FreedBy(const std::vector<void*>& blocks, const Call& call) {
  WatchBlocks(blocks);
  call();
  return FreedBlocks();
}

/// Calls `call` with its `number`-th allocation failing.
///
/// @param result  what the call answered; null after std::bad_alloc
/// @return whether there was an allocation of that number
template <class Pointer, class Call>
bool CallWithFailure(long number, Pointer& result, const Call& call) {
  result = nullptr;
  FailAllocation(number);
  try {
    result = call();
  } catch (const std::bad_alloc&) {
  }
  const bool failed = AllocationsUntilFailure() == 0;
  FailAllocation(0);
  return failed;
}

/// Runs `round(1)`, `round(2)`, ... until one answers that nothing failed.
template <class Round>
void FailEachAllocation(const Round& round) {
  bool failed = true;
  for (long number = 1; failed && !testing::Test::HasFailure(); ++number) {
    SCOPED_TRACE(number);
    ASSERT_LT(number, 2000) << "there is no end to it";
    failed = round(number);
  }
}

/// The same for rounds that free all that they allocate, but for what the first one of all makes.
template <class Round>
void FailEachCountedAllocation(const Round& round) {
  constexpr long kNone = 1000000;
  ASSERT_FALSE(round(kNone));
  FailEachAllocation([&round](long number) {
    const long before = LiveBlocks();
    const bool failed = round(number);
    EXPECT_EQ(before, LiveBlocks());
    return failed;
  });
}

#endif  // KX_TESTS_CORE_COUNTED_NEW_H
