// Systems list a directory in orders of their own, of which none may be seen.

#include <gtest/gtest.h>

#include <string>

#include "bundles/install_manager.h"
#include "bundles/xlate_manager.h"
#include "support/temp_tree.h"

namespace {

// So many bundles that some of their files are listed in the wrong order anywhere.
TEST(InstalledManager, LetsTheNamesOfFilesTellWhichIsFirst) {
  const TempTree tree;
  constexpr int kBundles = 40;
  for (int number = 0; number < kBundles; ++number) {
    for (const char* locale : {"_fr_CA", "_fr-CA", "_en"}) {
      tree.Write("b" + std::to_string(number) + locale + ".properties", "");
    }
  }
  static kx::InstalledManagers managers;
  kx::ResourceLocation resources;
  ASSERT_TRUE(managers.InstallXlateManager(tree.Path().c_str(), resources));
  for (int number = 0; number < kBundles; ++number) {
    const std::string bundle = "b" + std::to_string(number);
    const auto path = [&](const char* locale) {
      auto* const entry = managers.Current()->FindEntry(bundle, locale);
      return entry == nullptr ? "(nothing)" : entry->GetFile()->Path();
    };
    EXPECT_EQ(tree.Path(bundle + "_fr-CA.properties"), path("FR-ca"));
    EXPECT_EQ(tree.Path(bundle + "_fr_CA.properties"), path("fr_CA"));
    EXPECT_EQ(tree.Path(bundle + "_en.properties"), path("de"));
  }
}

}  // namespace
