#include "lang/lang_loader.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <iterator>
#include <ostream>
#include <string>

#include "lang/interned_strings.h"
#include "support/lasting_log.h"
#include "support/special_files.h"
#include "support/temp_tree.h"

namespace {

// Names of files

struct FileNameCase {
  const char* name;
  const char* language;
  const char* country;
  const char* component;
  const char* expected;
};

void PrintTo(const FileNameCase& c, std::ostream* os) { *os << '"' << c.expected << '"'; }

class LangFileNames : public testing::TestWithParam<FileNameCase> {};

TEST_P(LangFileNames, AreMadeOfTheCodesAndTheName) {
  const FileNameCase& c = GetParam();
  EXPECT_EQ(c.expected, kx::LangFileName(c.language, c.country, c.component));
}

const FileNameCase kFileNames[] = {
    {"CommonOfLanguage", "FR", "", "", "FR/(Common).lang"},
    {"NamedOfLanguage", "FR", "", "agent", "FR/agent.lang"},
    {"CommonOfCountry", "FR", "CA", "", "FR-CA/(Common).lang"},
    {"NamedOfCountry", "FR", "CA", "agent", "FR-CA/agent.lang"},
    {"CodesAreTakenAsTheyAre", "fr", "cA", "Agent", "fr-cA/Agent.lang"},
    {"EmptyLanguage", "", "", "", "/(Common).lang"},
    {"EmptyLanguageWithCountry", "", "AT", "agent", "-AT/agent.lang"},
    {"NameWithDirectory", "FR", "", "sub/agent", "FR/sub/agent.lang"},
    {"NameWithExtension", "FR", "", "agent.lang", "FR/agent.lang.lang"},
    {"NotAscii", "\xC3\x89", "\xC3\x96", "d\xC3\xA9", "\xC3\x89-\xC3\x96/d\xC3\xA9.lang"},
};

INSTANTIATE_TEST_SUITE_P(Files, LangFileNames, testing::ValuesIn(kFileNames),
                         [](const auto& row) { return std::string(row.param.name); });

// Files on disk

constexpr std::int64_t kTime = 1000000;

class LangLoader : public testing::Test {
 protected:
  LangLoader() { candidate_.status.modified = kUnread; }

  bool Load(const std::string& language, const std::string& component,
            const std::string& country = "") {
    const kx::LanguageContext context = {paths_, strings_, nextId_, log_};
    return kx::LoadLangFile(context, {language, country, component}, contents_, candidate_);
  }

  /// The same for the component "agent" or another, by the file's name in a language's directory.
  bool Load(const std::string& relative) {
    const std::size_t slash = relative.find('/');
    std::string component = relative.substr(slash + 1, relative.rfind('.') - slash - 1);
    if (component == "(Common)") component.clear();
    return Load(relative.substr(0, slash), component);
  }

  /// Expects that there is nothing to read, and that this is not worth a word.
  void ExpectPassedOver(const std::string& relative) {
    EXPECT_FALSE(Load(relative));
    EXPECT_EQ(paths_.directory + relative, candidate_.path);
    EXPECT_EQ(kUnread, candidate_.status.modified);
    EXPECT_FALSE(candidate_.isUnsettled);
    EXPECT_EQ(nullptr, contents_.longName);
    EXPECT_EQ("(no file)", Log());
  }

  void SetModified(const std::string& relative, std::chrono::milliseconds sinceEpoch) {
    tree_.SetModified("lang/" + relative, sinceEpoch);
  }

  std::string Log() const { return tree_.Read("log/translate.log"); }

  static constexpr std::int64_t kUnread = 7;

  TempTree tree_;
  kx::LanguagePaths paths_{true, tree_.Path(), tree_.Path("lang") + "/"};
  kx::InternTable strings_;
  std::uint32_t nextId_ = 1;
  kx::TranslationLog& log_ = LastingLog();
  kx::LanguageContents contents_;
  kx::LangCandidate candidate_;
};

TEST_F(LangLoader, ReadsAFileAndRecordsIt) {
  tree_.Write("lang/FR/agent.lang", "Name French\n\nKey A\nValue a\nButton B\nLabel b\n");
  SetModified("FR/agent.lang", std::chrono::seconds(kTime));
  EXPECT_TRUE(Load("FR/agent.lang"));
  EXPECT_EQ(tree_.Path("lang/FR/agent.lang"), candidate_.path);
  EXPECT_EQ(kTime, candidate_.status.modified);
  EXPECT_EQ(0u, candidate_.status.modifiedNanoseconds);
  EXPECT_EQ(44u, candidate_.status.size);
  EXPECT_STREQ("French", contents_.longName);
  EXPECT_STREQ("a", contents_.texts.Find("A"));
  EXPECT_STREQ("b", contents_.labels.Find("B"));
  EXPECT_EQ(strings_.InternString("a"), contents_.texts.Find("A"));
  EXPECT_EQ("(no file)", Log());
  EXPECT_EQ(1u, nextId_);
}

TEST_F(LangLoader, RecordsPartsOfSeconds) {
  tree_.Write("lang/FR/agent.lang", "");
  SetModified("FR/agent.lang", std::chrono::milliseconds(kTime * 1000 + 999));
  EXPECT_TRUE(Load("FR/agent.lang"));
  EXPECT_EQ(kTime, candidate_.status.modified);
  EXPECT_EQ(999'000'000u, candidate_.status.modifiedNanoseconds);
}

TEST_F(LangLoader, RecordsTheBeginningOfTimeAsNone) {
  tree_.Write("lang/FR/agent.lang", "");
  SetModified("FR/agent.lang", std::chrono::milliseconds(0));
  EXPECT_TRUE(Load("FR/agent.lang"));
  EXPECT_EQ(0, candidate_.status.modified);
}

TEST_F(LangLoader, ReplacesWhatIsThereAndLeavesTheRest) {
  tree_.Write("lang/FR/1.lang", "Name one\nImages i\n\nKey A\nValue a1\nKey B\nValue b1\n");
  tree_.Write("lang/FR/2.lang", "Name two\n\nKey b\nValue b2\nKey C\nValue c2\n");
  EXPECT_TRUE(Load("FR/1.lang"));
  EXPECT_TRUE(Load("FR/2.lang"));
  EXPECT_STREQ("two", contents_.longName);
  EXPECT_STREQ("i", contents_.imageDirectory);
  EXPECT_STREQ("a1", contents_.texts.Find("A"));
  EXPECT_STREQ("b2", contents_.texts.Find("B"));
  EXPECT_STREQ("c2", contents_.texts.Find("C"));
}

TEST_F(LangLoader, NamesAFileByItsPlaceInTheLanguageDirectory) {
  tree_.Write("lang/FR-CA/(Common).lang",
              "first\nCharset UTF-8\nCharset ISO-8859-1\n\nKey a\nvalue x\n& y\nodd\n\xC3\xA9\n");
  EXPECT_TRUE(Load("FR-CA/(Common).lang"));
  EXPECT_STREQ("x y", contents_.texts.Find("a"));
  EXPECT_EQ(
      "Illegal Header Directive in FR-CA/(Common).lang at line #1: first\n"
      "FR-CA/(Common).lang contains a differing value for CHARSET from default language\n"
      "Unrecognized text in FR-CA/(Common).lang at line #8: odd\n"
      "Unrecognized text in FR-CA/(Common).lang at line #9: \xC3\xA9\n",
      Log());
}

TEST_F(LangLoader, EndsEachProblemLineWithItsOwnLineEnd) {
  tree_.Write("lang/FR/agent.lang", "a\rb\n");
  EXPECT_TRUE(Load("FR/agent.lang"));
  EXPECT_EQ("Illegal Header Directive in FR/agent.lang at line #1: a\\rb\n", Log());
}

TEST_F(LangLoader, FollowsLinksToFiles) {
  tree_.Write("elsewhere", "Name linked\n\n");
  tree_.MakeDirectory("lang/FR");
  std::filesystem::create_symlink("../../elsewhere",
                                  PathFromUtf8(tree_.Path("lang/FR/agent.lang")));
  EXPECT_TRUE(Load("FR/agent.lang"));
  EXPECT_STREQ("linked", contents_.longName);
}

TEST_F(LangLoader, OpensUtf8Paths) {
  tree_.Write("lang/\xC3\x89/d\xC3\xA9p\xC3\xB4t \xE2\x82\xAC.lang", "Name found\n");
  EXPECT_TRUE(Load("\xC3\x89/d\xC3\xA9p\xC3\xB4t \xE2\x82\xAC.lang"));
  EXPECT_STREQ("found", contents_.longName);
}

TEST_F(LangLoader, PassesOverAMissingFile) { ExpectPassedOver("FR/agent.lang"); }

TEST_F(LangLoader, PassesOverAFileOfAnotherCase) {
  tree_.Write("lang/fr/agent.lang", "Name wrong\n");
  tree_.Write("lang/FR/Agent.lang", "Name wrong\n");
  ExpectPassedOver("FR/agent.lang");
}

TEST_F(LangLoader, PassesOverADirectory) {
  tree_.MakeDirectory("lang/FR/agent.lang");
  ExpectPassedOver("FR/agent.lang");
}

TEST_F(LangLoader, DoesNotWaitForAPipe) {
  tree_.MakeDirectory("lang/FR");
  MakeNamedPipe(tree_.Path("lang/FR/agent.lang"));
  ExpectPassedOver("FR/agent.lang");
}

TEST_F(LangLoader, DoesNotReadADevice) {
  tree_.MakeDirectory("lang/FR");
  std::filesystem::create_symlink("/dev/zero", PathFromUtf8(tree_.Path("lang/FR/agent.lang")));
  ExpectPassedOver("FR/agent.lang");
}

TEST_F(LangLoader, PassesOverALinkThatLeadsNowhere) {
  tree_.MakeDirectory("lang/FR");
  std::filesystem::create_symlink("agent.lang", PathFromUtf8(tree_.Path("lang/FR/agent.lang")));
  ExpectPassedOver("FR/agent.lang");
}

TEST_F(LangLoader, PassesOverANameThatIsTooLong) {
  tree_.MakeDirectory("lang/FR");
  ExpectPassedOver("FR/" + std::string(5000, 'x') + ".lang");
}

TEST_F(LangLoader, PassesOverAFileThatMayNotBeRead) {
  tree_.Write("lang/FR/agent.lang", "Name secret\n");
  const Restricted file(tree_.Path("lang/FR/agent.lang"), std::filesystem::perms::none);
  ExpectPassedOver("FR/agent.lang");
}

TEST_F(LangLoader, PassesOverAFileInADirectoryThatMayNotBeEntered) {
  tree_.Write("lang/FR/agent.lang", "Name secret\n");
  const Restricted directory(tree_.Path("lang/FR"), std::filesystem::perms::none);
  ExpectPassedOver("FR/agent.lang");
}

TEST_F(LangLoader, ClosesItsFiles) {
  const auto openFiles = [] {
    const std::filesystem::directory_iterator files("/proc/self/fd");
    return std::distance(begin(files), end(files));
  };
  tree_.Write("lang/FR/agent.lang", "Name French\n");
  const auto before = openFiles();
  for (int round = 0; round < 20; ++round) {
    EXPECT_TRUE(Load("FR/agent.lang"));
    EXPECT_FALSE(Load("FR/absent.lang"));
  }
  EXPECT_EQ(before, openFiles());
}

TEST_F(LangLoader, DoesNotLeaveTheLanguageDirectory) {
  tree_.Write("outside.lang", "Name outside\n");
  tree_.Write("lang/FR/..\\..\\outside.lang", "Name outside\n");
  for (const char* relative :
       {"../outside.lang", "FR/../../outside.lang", "FR/..\\..\\outside.lang"}) {
    SCOPED_TRACE(relative);
    ExpectPassedOver(relative);
  }
}

// Where such a name leads depends on what lies there: a link may stand for any place.
TEST_F(LangLoader, DoesNotGoBackWithinTheLanguageDirectoryEither) {
  tree_.Write("lang/FR/agent.lang", "Name inside\n");
  ExpectPassedOver("FR/../FR/agent.lang");
  tree_.Write("lang/..-X/agent.lang", "Name odd\n");
  EXPECT_FALSE(Load("..", "agent", "X"));
}

TEST_F(LangLoader, DoesNotLookBesideWhereALinkLeads) {
  tree_.Write("shared/French/agent.lang", "Name linked\n");
  tree_.Write("shared/secret.lang", "Name secret\n");
  tree_.MakeDirectory("lang");
  std::filesystem::create_directory_symlink("../shared/French",
                                            PathFromUtf8(tree_.Path("lang/FR")));
  ExpectPassedOver("FR/../secret.lang");
  EXPECT_TRUE(Load("FR/agent.lang"));
  EXPECT_STREQ("linked", contents_.longName);
}

TEST_F(LangLoader, ReadsAFileOfNoLanguage) {
  tree_.Write("lang/(Common).lang", "Images top\n");
  EXPECT_TRUE(Load("/(Common).lang"));
  EXPECT_STREQ("top", contents_.imageDirectory);
  EXPECT_EQ(tree_.Path("lang") + "//(Common).lang", candidate_.path);
}

}  // namespace
