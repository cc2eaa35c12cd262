// What is left of bundles, and of the whole road of a request, when memory runs out in the middle.

#include <gtest/gtest.h>

#include <string>
#include <thread>

#include "bundles/properties_xlate.h"
#include "bundles/xlate_manager.h"
#include "core/counted_new.h"
#include "support/held_reference.h"
#include "support/temp_tree.h"

namespace {

using Held = HeldReference<CKxXlate>;

constexpr int kKeys = 6;

/// Longer than what a std::string holds without allocating.
std::string Long(const std::string& text) { return text + " which is not a short one at all"; }

class BundleAllocationFailure : public testing::Test {
 protected:
  /// One round with texts whose keys begin with `start`.
  bool Round(long number, const std::string& start) {
    std::string bytes;
    for (int key = 0; key < kKeys; ++key) bytes += Key(start, key) + "=" + Long("text") + "\n";
    tree_.Write("agent_fr.properties", bytes);
    tree_.Write("other_fr.properties", "K=other\n");
    XlateManager manager(tree_.Path());
    manager.AddBundleFile("agent_fr.properties", "agent", "fr");
    manager.AddBundleFile("other_fr.properties", "other", "fr");
    manager.CompleteDefaults();
    const Held other(kx::GetPropertiesBundle(&manager, "other", "fr-CA"));

    CKxXlate* result = nullptr;
    const bool failed = CallWithFailure(number, result, [&manager] {
      return kx::GetPropertiesBundle(&manager, "agent", "fr-CA-a-locale-of-many-parts");
    });
    const Held first(result);
    EXPECT_TRUE(failed || first != nullptr);
    if (first != nullptr) ExpectComplete(*first, start);
    std::thread([&] {
      const Held second(kx::GetPropertiesBundle(&manager, "agent", "fr-CA"));
      ExpectComplete(*second, start);
      EXPECT_TRUE(first == nullptr || first == second);
    }).join();
    EXPECT_EQ(other, Held(kx::GetPropertiesBundle(&manager, "other", "fr-CA")));
    return failed;
  }

  static std::string Key(const std::string& start, int key) {
    return start + "_A_LONG_KEY_OF_A_TEXT_" + std::to_string(key);
  }

  static void ExpectComplete(CKxXlate& translator, const std::string& start) {
    for (int key = 0; key < kKeys; ++key) {
      EXPECT_EQ(Long("text"), translator.GetText(Key(start, key).c_str()));
    }
  }

  TempTree tree_;
};

TEST_F(BundleAllocationFailure, LeavesOthersAndTheNextCallAlone) {
  FailEachCountedAllocation([this](long number) { return Round(number, "SAME"); });
}

// Not counted: the keys of the process last.
TEST_F(BundleAllocationFailure, OfNewKeysLeavesThePoolUsable) {
  FailEachAllocation([this](long number) { return Round(number, "NEW" + std::to_string(number)); });
}

// The whole road of a request, with nothing of the process made before: a round for each process.

class FirstLookupAllocationFailure : public testing::TestWithParam<long> {};

TEST_P(FirstLookupAllocationFailure, HoldsNoLockAfterwards) {
  // English has no line to write to this process's log when its files are missing.
  const auto find = [] { return CKxXlate::GetBundle("an agent of no catalogue", "en-US"); };
  CKxXlate* result = nullptr;
  CallWithFailure(GetParam(), result, find);
  const Held first(result);
  std::thread([&] {
    const Held second(find());
    ASSERT_NE(nullptr, second);
    EXPECT_STREQ("EN", second->GetLanguageCode());
    EXPECT_STREQ("US", second->GetCountryCode());
    EXPECT_TRUE(first == nullptr || first == second);
    CKxXlate::FreeCache();
  }).join();
}

INSTANTIATE_TEST_SUITE_P(Allocations, FirstLookupAllocationFailure, testing::Range(1L, 51L));

}  // namespace
