#include "bundles/xlate_manager.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "platform/directories.h"
#include "support/temp_tree.h"

namespace {

using Entry = bnd::BundleBase<CKxXlate>;

std::string PathOf(Entry* entry) {
  return entry == nullptr ? "(nothing)" : entry->GetFile()->Path();
}

/// A manager that is told its entries one by one, in the test's order.
class ToldXlateManager : public testing::Test {
 protected:
  std::string Answer(const char* bundle, const char* locale) {
    return PathOf(manager_.FindEntry(bundle, locale));
  }

  XlateManager manager_{"root"};
};

TEST_F(ToldXlateManager, KeepsItsRootAsGiven) {
  EXPECT_EQ("root", manager_.Root());
  EXPECT_EQ("/some//where/", XlateManager("/some//where/").Root());
}

TEST_F(ToldXlateManager, KnowsNothingAtFirst) {
  manager_.CompleteDefaults();

  EXPECT_EQ("(nothing)", Answer("msg", "fr"));
  EXPECT_EQ("(nothing)", Answer("", ""));
}

TEST_F(ToldXlateManager, WantsAllEntries) {
  EXPECT_TRUE(manager_.OnEntry("msg_fr.properties", false));
  EXPECT_TRUE(manager_.OnEntry("msg_fr.properties", false));
  EXPECT_TRUE(manager_.OnEntry("msg_de.properties", true));
  EXPECT_TRUE(manager_.OnEntry("readme.txt", false));
  EXPECT_TRUE(manager_.OnEntry("", false));
}

TEST_F(ToldXlateManager, PathIsRootSlashName) {
  manager_.OnEntry("Msg_fr.PROPERTIES", false);

  EXPECT_EQ("root/Msg_fr.PROPERTIES", Answer("Msg", "fr"));
}

TEST_F(ToldXlateManager, SlashAtTheRootsEndIsNotTakenAway) {
  XlateManager manager("root/");
  manager.OnEntry("msg.properties", false);

  EXPECT_EQ("root//msg.properties", PathOf(manager.FindEntry("msg", "")));
}

TEST_F(ToldXlateManager, DirectoriesAreNoBundles) {
  manager_.OnEntry("msg_fr.properties", true);
  manager_.OnEntry("msg.properties", true);

  EXPECT_EQ("(nothing)", Answer("msg", "fr"));
  EXPECT_EQ("(nothing)", Answer("msg", ""));
}

TEST_F(ToldXlateManager, OtherFilesAreNoBundles) {
  manager_.OnEntry("msg_fr.lang", false);
  manager_.OnEntry("msg_fr.properties.bak", false);
  manager_.OnEntry("properties", false);

  EXPECT_EQ("(nothing)", Answer("msg", "fr"));
  EXPECT_EQ("(nothing)", Answer("properties", ""));
}

TEST_F(ToldXlateManager, BundleNamesAreCaseSensitive) {
  manager_.OnEntry("Msg_fr.properties", false);
  manager_.OnEntry("msg_de.properties", false);

  EXPECT_EQ("root/Msg_fr.properties", Answer("Msg", "FR"));
  EXPECT_EQ("root/msg_de.properties", Answer("msg", "DE"));
  EXPECT_EQ("(nothing)", Answer("Msg", "de"));
  EXPECT_EQ("(nothing)", Answer("msg", "fr"));
  EXPECT_EQ("(nothing)", Answer("MSG", "fr"));
}

TEST_F(ToldXlateManager, FirstFileOfALocaleWins) {
  manager_.OnEntry("msg_fr.properties", false);
  manager_.OnEntry("msg_FR.properties", false);
  manager_.OnEntry("msg_de.properties", false);
  manager_.OnEntry("msg_de.PROPERTIES", false);

  EXPECT_EQ("root/msg_fr.properties", Answer("msg", "FR"));
  EXPECT_EQ("root/msg_de.properties", Answer("msg", "de"));
}

TEST_F(ToldXlateManager, BundleNameEndsAtTheFirstUnderscore) {
  manager_.OnEntry("my_msgs_de.properties", false);

  EXPECT_EQ("root/my_msgs_de.properties", Answer("my", "msgs_de"));
  EXPECT_EQ("(nothing)", Answer("my_msgs", "de"));
}

TEST_F(ToldXlateManager, FileWithoutABundlesNameServesTheEmptyName) {
  manager_.OnEntry(".properties", false);
  manager_.OnEntry("_fr.properties", false);

  EXPECT_EQ("root/.properties", Answer("", "de"));
  EXPECT_EQ("root/_fr.properties", Answer("", "fr"));
}

TEST_F(ToldXlateManager, PathSeparatorIsPartOfTheName) {
  manager_.OnEntry("sub/msg_fr.properties", false);

  EXPECT_EQ("root/sub/msg_fr.properties", Answer("sub/msg", "fr"));
  EXPECT_EQ("(nothing)", Answer("msg", "fr"));
}

TEST_F(ToldXlateManager, EveryBundleGetsItsDefault) {
  manager_.OnEntry("a_en.properties", false);
  manager_.OnEntry("b_en.properties", false);
  manager_.OnEntry("b.properties", false);
  manager_.OnEntry("c_fr.properties", false);
  manager_.CompleteDefaults();

  EXPECT_EQ("root/a_en.properties", Answer("a", "de"));
  EXPECT_EQ("root/b.properties", Answer("b", "de"));
  EXPECT_EQ("(nothing)", Answer("c", "de"));
}

TEST_F(ToldXlateManager, SameRequestIsAnsweredTheSameFile) {
  manager_.OnEntry("msg.properties", false);

  Entry* first = manager_.FindEntry("msg", "de-DE");
  ASSERT_NE(nullptr, first);
  for (const char* locale : {"de-DE", "DE_de", "", "xx"}) {
    SCOPED_TRACE(locale);
    Entry* again = manager_.FindEntry("msg", locale);
    ASSERT_NE(nullptr, again);
    EXPECT_EQ(first->GetFile(), again->GetFile());
    EXPECT_TRUE(again->IsDefault());
  }
}

TEST_F(ToldXlateManager, OneBundlesLocalesAreNotAnothers) {
  manager_.OnEntry("a.properties", false);
  manager_.OnEntry("b_fr.properties", false);

  EXPECT_EQ("root/a.properties", Answer("a", "fr"));
  EXPECT_EQ("root/b_fr.properties", Answer("b", "fr-CA"));
  EXPECT_EQ("(nothing)", Answer("b", "de"));
}

/// A manager that has read the test's tree.
class XlateManagerOfDirectory : public testing::Test {
 protected:
  void Traverse() {
    EXPECT_EQ(0, KxTraverseDirectory(manager_.Root().c_str(), &manager_));
    manager_.CompleteDefaults();
  }

  /// The name of the file that answers, within the tree.
  std::string Answer(const char* bundle, const char* locale) {
    const std::string path = PathOf(manager_.FindEntry(bundle, locale));
    const std::string root = tree_.Path() + "/";
    return path.rfind(root, 0) == 0 ? path.substr(root.size()) : path;
  }

  TempTree tree_;
  XlateManager manager_{tree_.Path()};
};

TEST_F(XlateManagerOfDirectory, RegistersTheBundleFiles) {
  tree_.Write("msg.properties", "");
  tree_.Write("msg_fr.properties", "");
  tree_.Write("msg_fr_CA.properties", "");
  tree_.Write("other_EN.PROPERTIES", "");
  tree_.Write("readme.txt", "");
  Traverse();

  EXPECT_EQ("msg.properties", Answer("msg", "de"));
  EXPECT_EQ("msg_fr.properties", Answer("msg", "fr"));
  EXPECT_EQ("msg_fr_CA.properties", Answer("msg", "fr-CA"));
  EXPECT_EQ("other_EN.PROPERTIES", Answer("other", "de"));
  EXPECT_EQ("(nothing)", Answer("readme", ""));
}

TEST_F(XlateManagerOfDirectory, EmptyDirectoryHasNoBundles) {
  Traverse();

  EXPECT_EQ("(nothing)", Answer("msg", ""));
}

TEST_F(XlateManagerOfDirectory, MissingDirectoryHasNoBundles) {
  XlateManager manager(tree_.Path("missing"));

  EXPECT_NE(0, KxTraverseDirectory(manager.Root().c_str(), &manager));
  manager.CompleteDefaults();
  EXPECT_EQ(nullptr, manager.FindEntry("msg", ""));
}

TEST_F(XlateManagerOfDirectory, SubdirectoriesAreNotVisited) {
  tree_.Write("sub/msg_fr.properties", "");
  tree_.Write("sub_de.properties/msg_de.properties", "");
  tree_.Write("msg.properties", "");
  Traverse();

  EXPECT_EQ("msg.properties", Answer("msg", "fr"));
  EXPECT_EQ("msg.properties", Answer("msg", "de"));
  EXPECT_EQ("(nothing)", Answer("sub", "de"));
  EXPECT_EQ("(nothing)", Answer("sub/msg", "fr"));
}

TEST_F(XlateManagerOfDirectory, NamesComeInByteOrder) {
  // "." comes before "_", and "-" before "_".
  tree_.Write("msg_.properties", "");
  tree_.Write("msg.properties", "");
  tree_.Write("msg_fr_CA.properties", "");
  tree_.Write("msg_fr-CA.properties", "");
  Traverse();

  EXPECT_EQ("msg.properties", Answer("msg", ""));
  EXPECT_EQ("msg_fr-CA.properties", Answer("msg", "fr-CA"));
  EXPECT_EQ("msg_fr_CA.properties", Answer("msg", "fr_CA"));
}

TEST_F(XlateManagerOfDirectory, CapitalsComeFirst) {
  tree_.Write("msg_fr.properties", "");
  tree_.Write("msg_FR.properties", "");
  tree_.Write("msg_de.properties", "");
  tree_.Write("msg_de.PROPERTIES", "");
  Traverse();

  EXPECT_EQ("msg_FR.properties", Answer("msg", "fr"));
  EXPECT_EQ("msg_de.PROPERTIES", Answer("msg", "de"));
}

TEST_F(XlateManagerOfDirectory, FileThatCannotBeOpenedIsRegistered) {
  tree_.Write("msg.properties", "");
  std::filesystem::create_symlink("gone", PathFromUtf8(tree_.Path("msg_fr.properties")));
  Traverse();

  EXPECT_EQ("msg_fr.properties", Answer("msg", "fr"));
  EXPECT_EQ("msg_fr.properties", Answer("msg", "fr-CA"));
}

TEST_F(XlateManagerOfDirectory, LinkToADirectoryIsADirectory) {
  tree_.MakeDirectory("sub");
  std::filesystem::create_directory_symlink("sub", PathFromUtf8(tree_.Path("msg_fr.properties")));
  Traverse();

  EXPECT_EQ("(nothing)", Answer("msg", "fr"));
}

TEST_F(XlateManagerOfDirectory, LaterFilesAreNotSeenAndFormerOnesNotForgotten) {
  tree_.Write("msg_fr.properties", "");
  Traverse();
  tree_.Write("msg_de.properties", "");
  std::filesystem::remove(PathFromUtf8(tree_.Path("msg_fr.properties")));

  EXPECT_EQ("(nothing)", Answer("msg", "de"));
  EXPECT_EQ("msg_fr.properties", Answer("msg", "fr"));
}

TEST_F(XlateManagerOfDirectory, NamesNeedNotBeAscii) {
  tree_.Write("\xC3\xA9t\xC3\xA9_\xC3\xA9.properties", "");
  Traverse();

  EXPECT_EQ("\xC3\xA9t\xC3\xA9_\xC3\xA9.properties", Answer("\xC3\xA9t\xC3\xA9", "\xC3\xA9"));
}

}  // namespace
