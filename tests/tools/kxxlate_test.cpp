#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/host_tree.h"

namespace {

class Kxxlate : public testing::Test {
 protected:
  Kxxlate() {
    tree_.Write("texts/agent_en.properties", "Hello=Hello, %0\nRate=50%%\n");
    tree_.Write("texts/agent_fr.properties", "Hello=Bonjour, %0\n");
    tree_.Write("texts/agent_fr_CA.properties", "Hello=Salut, %0\n");
    tree_.Write("texts/menu.properties", "Open=Open\n");
    tree_.Write("texts/EN/(Common).lang", "Name English\n\nKey Yes\nValue Yes, %0\n");
    tree_.Write("texts/FR/setup.lang",
                "Name Francais\nCharset UTF-8\nImages /img/fr\nDirection LTR\n"
                "Prompt Suffix :\nDirectory help /docs/fr\n\n"
                "Key User\nValue Utilisateur\nButton Ok\nLabel D'accord\n");
  }

  /// Runs the tool from a copy in the tree, so that what it logs stays in the tree.
  HostRun Run(const std::vector<std::string>& arguments) const {
    return tree_.RunCopyIn("a/b/c/bin", KXXLATE_TOOL, arguments);
  }

  HostRun RunOnTexts(std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), {"--resources", tree_.Path("texts")});
    return Run(arguments);
  }

  HostTree tree_;
};

void ExpectRun(int exitCode, const std::string& output, const std::string& errors,
               const HostRun& run) {
  EXPECT_EQ(exitCode, run.exitCode);
  EXPECT_EQ(output, run.output);
  EXPECT_EQ(errors, run.errors);
}

TEST_F(Kxxlate, GetPrintsTheTextWithItsArguments) {
  ExpectRun(0, "Bonjour, Ann\n", "", RunOnTexts({"get", "agent", "fr", "Hello", "Ann"}));
  ExpectRun(0, "Salut, Ann (3)\n", "", RunOnTexts({"get", "agent", "fr-CA", "Hello", "Ann", "3"}));
  ExpectRun(0, "50%\n", "", RunOnTexts({"get", "agent", "", "Rate"}));
}

TEST_F(Kxxlate, GetTakesArgumentsThatLookLikeOptionsBehindTwoHyphens) {
  ExpectRun(0, "Hello, -1\n", "", RunOnTexts({"get", "agent", "en", "Hello", "--", "-1"}));
}

TEST_F(Kxxlate, TakesAndPrintsLettersOfEveryLanguage) {
  // Letters of two, three and four bytes in UTF-8.
  const std::string word = "\xC3\xA9\xD0\xAF\xE6\x97\xA5\xF0\x9F\x98\x80";
  const std::string directory = tree_.Path("texts in " + word);
  tree_.Write("texts in " + word + "/" + word + "_fr.properties", word + "=" + word + " %0\n");

  ExpectRun(0, word + " " + word + "!\n", "",
            Run({"--resources", directory, "get", word, "fr", word, word + "!"}));
  ExpectRun(0, word + ": fr\n", "", Run({"--resources", directory, "bundles"}));
  ExpectRun(1, "",
            "kxxlate: no key \"x" + word + "\" in bundle \"" + word + "\" for locale \"fr\"\n",
            Run({"--resources", directory, "get", word, "fr", "x" + word}));
  ExpectRun(2, "", "kxxlate: not a directory: " + directory + "x\n",
            Run({"--resources", directory + "x", "bundles"}));
}

TEST_F(Kxxlate, TakesArgumentsAsTheyWereGiven) {
  for (const std::string argument : {"a b", "\"", "a\"b c\"", "\\", "a\\\\", "\\\"", "*", "*.lang",
                                     "?", "%PATH%", "\t", "/h", "/dev/x"}) {
    ExpectRun(0, "Hello, " + argument + "\n", "",
              RunOnTexts({"get", "agent", "en", "Hello", argument}));
  }
}

TEST_F(Kxxlate, GetPrintsLongTextsWhole) {
  // One around each size of the buffer that the tool tries.
  for (const std::size_t length : {240U, 247U, 248U, 249U, 250U, 503U, 504U, 505U, 5000U}) {
    const std::string name(length, 'x');
    ExpectRun(0, "Hello, " + name + '\n', "", RunOnTexts({"get", "agent", "en", "Hello", name}));
  }
}

TEST_F(Kxxlate, AnswersOneForWhatIsNotFound) {
  ExpectRun(1, "", "kxxlate: no bundle \"\" for locale \"fr\"\n",
            RunOnTexts({"get", "", "fr", "Hello"}));
  ExpectRun(1, "", "kxxlate: no key \"NOPE\" in bundle \"agent\" for locale \"fr\"\n",
            RunOnTexts({"get", "agent", "fr", "NOPE"}));
  ExpectRun(1, "", "kxxlate: no label \"NOPE\" in bundle \"setup\" for locale \"fr\"\n",
            RunOnTexts({"label", "setup", "fr", "NOPE"}));
  ExpectRun(1, "", "kxxlate: no prompt \"NOPE\" in bundle \"setup\" for locale \"fr\"\n",
            RunOnTexts({"prompt", "setup", "fr", "NOPE"}));
  ExpectRun(1, "", "kxxlate: no directory \"NOPE\" in bundle \"setup\" for locale \"fr\"\n",
            RunOnTexts({"directory", "setup", "fr", "NOPE"}));
  ExpectRun(1, "", "kxxlate: no bundles found\n", Run({"bundles"}));
}

TEST_F(Kxxlate, AnswersOneForANameWithoutFiles) {
  tree_.MakeDirectory("none");
  for (const char* command : {"info", "get", "label"}) {
    std::vector<std::string> arguments = {"--resources", tree_.Path("none"), command, "nope", "fr"};
    if (command != std::string("info")) arguments.push_back("Hello");
    ExpectRun(1, "", "kxxlate: no bundle \"nope\" for locale \"fr\"\n", Run(arguments));
  }
}

TEST_F(Kxxlate, LooksUpLabelsPromptsAndDirectories) {
  ExpectRun(0, "D'accord\n", "", RunOnTexts({"label", "setup", "fr", "ok"}));
  ExpectRun(0, "Utilisateur:\n", "", RunOnTexts({"prompt", "setup", "fr", "User"}));
  ExpectRun(0, "/docs/fr\n", "", RunOnTexts({"directory", "setup", "fr", "help"}));
}

TEST_F(Kxxlate, FormatShowsAMessageAsHostsDo) {
  ExpectRun(0, "Bonjour, Ann\n", "", RunOnTexts({"format", "agent", "fr", "Hello", "Ann"}));
  ExpectRun(0, "[Hello] Bonjour, Ann\n", "",
            RunOnTexts({"format", "--show-key", "agent", "fr", "Hello", "Ann"}));
  ExpectRun(0, "Yes, Ann\n", "", RunOnTexts({"format", "nope", "fr", "Yes", "Ann"}));
}

TEST_F(Kxxlate, FormatShowsAnUnknownKeyAsItselfAndAnswersOne) {
  ExpectRun(1, "NOPE (Ann)\n", "kxxlate: no key \"NOPE\" in bundle \"agent\" for locale \"fr\"\n",
            RunOnTexts({"format", "agent", "fr", "NOPE", "Ann"}));
}

TEST_F(Kxxlate, FormatTakesTheAdministratorsLocaleWhenAsked) {
  tree_.SetEnvironment("LC_ALL", "fr_CA.UTF-8");
  ExpectRun(0, "Salut, Ann\n", "",
            RunOnTexts({"format", "--admin-locale", "agent", "en", "Hello", "Ann"}));
}

TEST_F(Kxxlate, PrintsTheVersion) {
  ExpectRun(0, "Vantorel version 12.8.0801.3003 [KxXlate.dll in common]\n", "", Run({"--version"}));
}

TEST_F(Kxxlate, AnswersTwoWhenItCannotRun) {
  ExpectRun(2, "", "kxxlate: A subcommand is required\n", Run({}));
  ExpectRun(2, "", "kxxlate: KEY is required\n", Run({"get", "agent", "fr"}));
  const std::string missing = tree_.Path("missing");
  ExpectRun(2, "", "kxxlate: not a directory: " + missing + '\n',
            Run({"--resources", missing, "bundles"}));
}

TEST_F(Kxxlate, InfoPrintsWhatTheTranslatorSays) {
  ExpectRun(0,
            "Name:            agent\n"
            "Language:        fr\n"
            "Country:         CA\n"
            "Long name:       (none)\n"
            "Charset:         (none)\n"
            "Direction:       (none)\n"
            "Image directory: (none)\n"
            "Prompt suffix:   (none)\n"
            "Id:              0\n",
            "", RunOnTexts({"info", "agent", "FR_ca"}));
}

TEST_F(Kxxlate, InfoPrintsTheHeaderOfALanguage) {
  ExpectRun(0,
            "Name:            setup\n"
            "Language:        FR\n"
            "Country:         \n"
            "Long name:       Francais\n"
            "Charset:         UTF-8\n"
            "Direction:       LTR\n"
            "Image directory: /img/fr\n"
            "Prompt suffix:   :\n"
            "Id:              1\n",
            "", RunOnTexts({"info", "setup", "fr"}));
}

TEST_F(Kxxlate, BundlesListsTheirLocales) {
  ExpectRun(0, "agent: en fr fr_CA\nmenu: (default)\n", "", RunOnTexts({"bundles"}));
}

TEST_F(Kxxlate, BundlesMarksFilesThatNobodyGets) {
  tree_.Write("odd/_fr.properties", "Hello=3\n");
  tree_.Write("odd/.properties", "Hello=4\n");
  tree_.Write("odd/x_DE_AT.properties", "Hello=5\n");
  tree_.Write("odd/x_de-at.properties", "Hello=6\n");
  ExpectRun(0,
            "x: DE_AT\n"
            "(not served) .properties: a bundle without a name cannot be asked for\n"
            "(not served) _fr.properties: a bundle without a name cannot be asked for\n"
            "(not served) x_de-at.properties: its locale is served by x_DE_AT.properties\n",
            "", Run({"--resources", tree_.Path("odd"), "bundles"}));
  ExpectRun(0, "5\n", "", Run({"--resources", tree_.Path("odd"), "get", "x", "de-at", "Hello"}));
}

TEST_F(Kxxlate, BundlesMarksTheSecondSpellingOfALocale) {
  tree_.Write("odd/Msgs_FR.properties", "Hello=1\n");
  tree_.Write("odd/Msgs_fr.properties", "Hello=2\n");
  ExpectRun(0,
            "Msgs: FR\n"
            "(not served) Msgs_fr.properties: its locale is served by Msgs_FR.properties\n",
            "", Run({"--resources", tree_.Path("odd"), "bundles"}));
  ExpectRun(0, "1\n", "", Run({"--resources", tree_.Path("odd"), "get", "Msgs", "fr", "Hello"}));
}

TEST_F(Kxxlate, BundlesFindsNoneWhereNobodyCanAskForOne) {
  tree_.Write("odd/_fr.properties", "Hello=1\n");
  ExpectRun(1, "(not served) _fr.properties: a bundle without a name cannot be asked for\n",
            "kxxlate: no bundles found\n", Run({"--resources", tree_.Path("odd"), "bundles"}));
}

TEST_F(Kxxlate, FormatRefusesMoreArgumentsThanAMessageTakes) {
  std::vector<std::string> arguments = {"format", "agent", "fr", "Hello"};
  arguments.insert(arguments.end(), 16, "x");
  ExpectRun(0, "Bonjour, x (x, x, x, x, x, x, x, x, x, x, x, x, x, x, x)\n", "",
            RunOnTexts(arguments));
  arguments.emplace_back("x");
  ExpectRun(2, "", "kxxlate: a message takes at most 16 arguments\n", RunOnTexts(arguments));
}

TEST_F(Kxxlate, UsesTheLibrarysOwnSearchWithoutAnOption) {
  tree_.Write("a/b/resources/tasks_ja.properties", "Open=Hiraku\n");
  ExpectRun(0, "Hiraku\n", "", Run({"get", "tasks", "ja", "Open"}));
  ExpectRun(0, "tasks: ja\n", "", Run({"bundles"}));
}

}  // namespace
