#ifndef KX_TESTS_SUPPORT_FAILING_NEW_H
#define KX_TESTS_SUPPORT_FAILING_NEW_H

#include <new>

/// While it lives, one allocation of this thread fails: the one behind the first `allowed` ones.
/// Programs that use it list failing_new.cpp, which replaces the global operator new.
class FailingNew {
 public:
  explicit FailingNew(int allowed);
  ~FailingNew();
  FailingNew(const FailingNew&) = delete;
  FailingNew& operator=(const FailingNew&) = delete;
};

/// Calls `work` until it gets all the memory that it asks for: first with none, then with one
/// allocation, then with two, and so on. `afterFailure` is called each time that it threw
/// std::bad_alloc.
///
/// @return how often it threw
template <class Work, class AfterFailure>
int FailEachAllocation(Work work, AfterFailure afterFailure) {
  for (int allowed = 0;; ++allowed) {
    try {
      const FailingNew failing(allowed);
      work();
      return allowed;
    } catch (const std::bad_alloc&) {
      afterFailure();
    }
  }
}

#endif  // KX_TESTS_SUPPORT_FAILING_NEW_H
