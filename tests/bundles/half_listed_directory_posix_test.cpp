// A resource directory that the system stops to list half way.

#include <gtest/gtest.h>

#include "bundles/install_manager.h"
#include "bundles/xlate_manager.h"
#include "support/system_calls.h"
#include "support/temp_tree.h"

namespace {

TEST(HalfListedDirectory, HoldsNoBundles) {
  const TempTree tree;
  for (const char* file : {"a.properties", "b.properties", "c.properties", "d.properties"}) {
    tree.Write(file, "K=text\n");
  }
  static kx::InstalledManagers managers;
  kx::ResourceLocation resources;
  Calls().namedEntries = 5;  // two of them may be "." and ".."
  EXPECT_TRUE(managers.InstallXlateManager(tree.Path().c_str(), resources));
  EXPECT_EQ(1, Calls().meddled);
  ASSERT_NE(nullptr, managers.Current());
  EXPECT_EQ(tree.Path(), managers.Current()->Root());
  for (const char* bundle : {"a", "b", "c", "d"}) {
    EXPECT_EQ(nullptr, managers.Current()->FindEntry(bundle, "")) << bundle;
  }
}

}  // namespace
