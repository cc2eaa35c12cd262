// Bundle files that are there but cannot be opened for the moment.

#include <gtest/gtest.h>

#include <string>

#include "bundles/properties_xlate.h"
#include "bundles/xlate_manager.h"
#include "platform/directories.h"
#include "support/held_file.h"
#include "support/temp_tree.h"

namespace {

class HeldBundle : public testing::Test {
 protected:
  HeldBundle() {
    tree_.Write("msg_fr.properties", "K=text\n");
    KxTraverseDirectory(manager_.Root().c_str(), &manager_);
  }

  CKxXlate* Get() { return kx::GetPropertiesBundle(&manager_, "msg", "fr"); }

  const TempTree tree_;
  const std::string path_ = tree_.Path() + "/msg_fr.properties";
  XlateManager manager_{tree_.Path()};
};

TEST_F(HeldBundle, IsReadAgainByTheNextRequest) {
  CKxXlate* first;
  CKxXlate* second;
  testing::internal::CaptureStderr();
  {
    const HeldFile held(path_);
    first = Get();
    second = Get();
  }
  const std::string report = "cannot open file: " + path_ + "\n";
  EXPECT_EQ(report + report, testing::internal::GetCapturedStderr());
  CKxXlate* const third = Get();
  ASSERT_NE(nullptr, first);
  ASSERT_NE(nullptr, second);
  EXPECT_NE(first, second);
  EXPECT_NE(second, third);
  EXPECT_STREQ("msg", first->GetName());
  EXPECT_STREQ("text", third->GetText("K"));
  EXPECT_EQ(third, Get());
  first->Release();
  second->Release();
  third->Release();
  third->Release();
  EXPECT_STREQ("text", third->GetText("K"));  // the bundle's own reference is left
}

TEST_F(HeldBundle, IsNotSettled) {
  const bnd::BundleFile<CKxXlate> file("msg", "fr", path_);
  testing::internal::CaptureStderr();
  PropertiesXlate* unsettled;
  {
    const HeldFile held(path_);
    unsettled = new PropertiesXlate(&file);
  }
  testing::internal::GetCapturedStderr();
  EXPECT_FALSE(unsettled->IsSettled());
  unsettled->Release();
  auto* settled = new PropertiesXlate(&file);
  EXPECT_TRUE(settled->IsSettled());
  settled->Release();
}

TEST_F(HeldBundle, ThatIsAbsentIsSettled) {
  const bnd::BundleFile<CKxXlate> file("msg", "de", tree_.Path("absent.properties"));
  testing::internal::CaptureStderr();
  auto* translator = new PropertiesXlate(&file);
  testing::internal::GetCapturedStderr();
  EXPECT_TRUE(translator->IsSettled());
  translator->Release();
}

}  // namespace
