#include "bundles/install_manager.h"

#include <gtest/gtest.h>

#include <atomic>
#include <latch>
#include <string>
#include <thread>
#include <type_traits>
#include <vector>

#include "bundles/properties_xlate.h"
#include "bundles/xlate_manager.h"
#include "support/temp_tree.h"

namespace {

static_assert(!std::is_copy_constructible_v<kx::InstalledManagers>);
static_assert(!std::is_copy_assignable_v<kx::InstalledManagers>);

/// Three directories that can be installed. What a test installs is static, because managers are
/// never destroyed.
class InstalledManagers : public testing::Test {
 protected:
  InstalledManagers() {
    for (const std::string name : {"first", "second", "third"}) {
      tree_.Write(name + "/msg_en.properties", "K=" + name + "\n");
    }
  }

  bool Install(kx::InstalledManagers& managers, const std::string& directory) {
    return managers.InstallXlateManager(tree_.Path(directory).c_str(), resources_);
  }

  static std::string Text(const XlateManager* manager) {
    CKxXlate* translator = kx::GetPropertiesBundle(manager, "msg", "fr");
    if (translator == nullptr) return "(nothing)";
    const std::string text = translator->GetText("K");
    translator->Release();
    return text;
  }

  TempTree tree_;
  kx::ResourceLocation resources_;
};

TEST_F(InstalledManagers, AreNoneAtFirst) {
  static kx::InstalledManagers managers;

  EXPECT_EQ(nullptr, managers.Current());
}

TEST_F(InstalledManagers, FirstIsInUseWithItsDefaultsCompleted) {
  static kx::InstalledManagers managers;

  EXPECT_TRUE(Install(managers, "first"));
  ASSERT_NE(nullptr, managers.Current());
  EXPECT_EQ(tree_.Path("first"), managers.Current()->Root());
  EXPECT_EQ("first", Text(managers.Current()));
}

TEST_F(InstalledManagers, OneIsReplaced) {
  static kx::InstalledManagers managers;
  ASSERT_TRUE(Install(managers, "first"));
  const XlateManager* const first = managers.Current();

  EXPECT_TRUE(Install(managers, "second"));
  EXPECT_NE(first, managers.Current());
  EXPECT_EQ(tree_.Path("second"), managers.Current()->Root());
  EXPECT_EQ("second", Text(managers.Current()));
}

TEST_F(InstalledManagers, SecondReplacementIsRefusedForGood) {
  static kx::InstalledManagers managers;
  ASSERT_TRUE(Install(managers, "first"));
  ASSERT_TRUE(Install(managers, "second"));
  const XlateManager* const second = managers.Current();

  for (const char* directory : {"third", "first", "second", "missing"}) {
    SCOPED_TRACE(directory);
    EXPECT_FALSE(Install(managers, directory));
    EXPECT_EQ(second, managers.Current());
  }
  EXPECT_EQ("second", Text(managers.Current()));
}

TEST_F(InstalledManagers, SameDirectoryAgainIsAReplacement) {
  static kx::InstalledManagers managers;
  ASSERT_TRUE(Install(managers, "first"));
  tree_.Write("first/new.properties", "K=new\n");

  EXPECT_EQ(nullptr, managers.Current()->FindEntry("new", ""));
  EXPECT_TRUE(Install(managers, "first"));
  EXPECT_NE(nullptr, managers.Current()->FindEntry("new", ""));
  EXPECT_FALSE(Install(managers, "first"));
}

TEST_F(InstalledManagers, RetiredOneStillWorks) {
  static kx::InstalledManagers managers;
  ASSERT_TRUE(Install(managers, "first"));
  const XlateManager* const retired = managers.Current();
  CKxXlate* const held = kx::GetPropertiesBundle(retired, "msg", "de");
  ASSERT_NE(nullptr, held);

  ASSERT_TRUE(Install(managers, "second"));
  ASSERT_FALSE(Install(managers, "third"));

  EXPECT_STREQ("first", held->GetText("K"));
  EXPECT_STREQ("msg", held->GetName());
  EXPECT_EQ("first", Text(retired));
  EXPECT_EQ("second", Text(managers.Current()));
  held->Release();
}

TEST_F(InstalledManagers, MissingDirectoryIsOneWithoutBundles) {
  static kx::InstalledManagers managers;

  EXPECT_TRUE(Install(managers, "missing"));
  ASSERT_NE(nullptr, managers.Current());
  EXPECT_EQ("(nothing)", Text(managers.Current()));
  EXPECT_TRUE(Install(managers, "first"));
  EXPECT_EQ("first", Text(managers.Current()));
}

TEST_F(InstalledManagers, MissingDirectoryReplacesAnother) {
  static kx::InstalledManagers managers;
  ASSERT_TRUE(Install(managers, "first"));

  EXPECT_TRUE(Install(managers, "missing"));
  EXPECT_EQ("(nothing)", Text(managers.Current()));
  EXPECT_FALSE(Install(managers, "first"));
  EXPECT_EQ("(nothing)", Text(managers.Current()));
}

TEST_F(InstalledManagers, FileOrEmptyNameInPlaceOfADirectoryHasNoBundles) {
  static kx::InstalledManagers managers;

  EXPECT_TRUE(Install(managers, "first/msg_en.properties"));
  EXPECT_EQ("(nothing)", Text(managers.Current()));
  kx::ResourceLocation resources;
  EXPECT_TRUE(managers.InstallXlateManager("", resources));
  EXPECT_EQ("(nothing)", Text(managers.Current()));
}

TEST_F(InstalledManagers, AreKeptApartFromOthers) {
  static kx::InstalledManagers managers;
  static kx::InstalledManagers others;
  ASSERT_TRUE(Install(managers, "first"));
  ASSERT_TRUE(Install(managers, "second"));

  EXPECT_EQ(nullptr, others.Current());
  EXPECT_TRUE(Install(others, "third"));
  EXPECT_EQ("second", Text(managers.Current()));
  EXPECT_EQ("third", Text(others.Current()));
}

TEST_F(InstalledManagers, OfManyThreadsTwoInstall) {
  constexpr int kThreads = 8;
  static kx::InstalledManagers managers;
  std::atomic<int> installed = 0;
  std::atomic<int> wrong = 0;
  std::latch start(kThreads);
  {
    std::vector<std::jthread> threads;
    for (int thread = 0; thread < kThreads; ++thread) {
      threads.emplace_back([&] {
        start.arrive_and_wait();
        if (Install(managers, "first")) ++installed;
        if (Text(managers.Current()) != "first") ++wrong;
      });
    }
  }

  EXPECT_EQ(2, installed);
  EXPECT_EQ(0, wrong);
}

}  // namespace
