// docs/lang-files.md: how files are read. What it shows is read from it and run.

#include <string>
#include <vector>

#include "docs/language_document.h"

namespace {

constexpr char kByteOrderMark[] = "\xEF\xBB\xBF";
constexpr std::size_t kMostLineBytes = 4095;

TEST_F(LanguageDocument, FileShownIsReadAsItSays) {
  Write("FR/agent.lang", document_.Block("Lines"));
  CRealKxXlate* const translator = cache_.FindOrLoad("agent", "fr", nullptr);
  ASSERT_NE(nullptr, translator);
  EXPECT_STREQ(
      "Fran\xC3\xA7"
      "ais",
      translator->GetLongName());
  EXPECT_STREQ("UTF-8", translator->GetCharset());
  EXPECT_STREQ("/docs/fr", translator->GetDirectory("help"));
  EXPECT_STREQ("LTR", translator->GetDirection());
  EXPECT_STREQ("Nom d'utilisateur  (facultatif)", translator->GetText("LOGIN_PROMPT"));
  EXPECT_STREQ("D'accord", translator->GetLabel("OK"));
  translator->Release();
  EXPECT_EQ("(no file)", Log());
}

TEST_F(LanguageDocument, LinesOfMostBytesAreReadAndALongerOneEndsItsFile) {
  const std::string fits = "Value " + std::string(kMostLineBytes - 6, 'x');
  Write("FR/agent.lang", "Name n\n\nKey A\n" + fits + "\nKey B\nValue b\n");
  EXPECT_EQ(std::string(kMostLineBytes - 6, 'x'), TextOf("A", "fr"));
  EXPECT_EQ("b", TextOf("B", "fr"));
  EXPECT_EQ("(no file)", Log());
}

TEST_F(LanguageDocument, ALongLineEndsItsFileWithoutAWord) {
  Write("FR/(Common).lang", FileOf("common"));
  Write("FR/agent.lang", "Name n\n\nKey A\nValue a\n; " + std::string(kMostLineBytes - 1, 'x') +
                             "\nKey K\nValue agent\n");
  EXPECT_EQ("a", TextOf("A", "fr"));
  EXPECT_EQ("common", TextOf("K", "fr"));
  EXPECT_EQ("(no file)", Log());
}

TEST_F(LanguageDocument, ALongValueIsReportedAsLacking) {
  const std::string begin = "Value " + std::string(kMostLineBytes - 6, 'x');
  Write("FR/agent.lang", "Name n\n\nKey A\n" + begin + "x\nKey K\nValue agent\n");
  Write("FR-CA/agent.lang", FileOf("Canadian"));
  EXPECT_EQ("Canadian", TextOf("K", "fr", "ca"));
  EXPECT_EQ(
      "Two KEY clauses without intervening VALUE in FR/agent.lang at line #4: " + begin + "\n",
      Log());
}

TEST_F(LanguageDocument, AByteOrderMarkCanCostTheWholeFile) {
  Write("FR/agent.lang", kByteOrderMark + FileOf("lost"));
  EXPECT_EQ("(none)", TextOf("K", "fr"));
  EXPECT_EQ(std::string("Illegal Header Directive in FR/agent.lang at line #1: ") + kByteOrderMark +
                "Name n\n"
                "Illegal Header Directive in FR/agent.lang at line #3: Key K\n"
                "Illegal Header Directive in FR/agent.lang at line #4: Value lost\n"
                "FR (agent) key not found: K\n",
            Log());
}

TEST_F(LanguageDocument, AByteOrderMarkMakesAProblemOfAComment) {
  Write("FR/agent.lang", std::string(kByteOrderMark) + "; comment\n" + FileOf("read"));
  EXPECT_EQ("read", TextOf("K", "fr"));
  EXPECT_EQ(std::string("Illegal Header Directive in FR/agent.lang at line #1: ") + kByteOrderMark +
                "; comment\n",
            Log());
}

TEST_F(LanguageDocument, NothingIsEscapedAndNoCommentStandsBehindAText) {
  for (const std::string text : {"a\\nb", "a ; b", "a # b", "a // b", "\\", "\\\\"}) {
    Write("FR/agent.lang", FileOf(text));
    EXPECT_EQ(text, TextOf("K", "fr"));
    FreeCache();
  }
}

TEST_F(LanguageDocument, HeaderValuesAreReplacedButNotEmptied) {
  Write("FR/(Common).lang", "Name n\nImages i\nCharset UTF-8\nPrompt Suffix :\nDirection RTL\n");
  Write("FR/agent.lang", "Prompt Suffix ?\n");
  Write("FR-CA/agent.lang", "Name \nImages \nCharset \nPrompt Suffix \nDirection \nDebug\n");
  CRealKxXlate* const translator = cache_.FindOrLoad("agent", "fr", "ca");
  ASSERT_NE(nullptr, translator);
  EXPECT_STREQ("n", translator->GetLongName());
  EXPECT_STREQ("i", translator->GetImageDirectory());
  EXPECT_STREQ("UTF-8", translator->GetCharset());
  EXPECT_STREQ("?", translator->GetPromptSuffix());
  EXPECT_STREQ("RTL", translator->GetDirection());
  translator->Release();
  std::string log;
  for (const char* const line :
       {"1: Name", "2: Images", "3: Charset", "4: Prompt Suffix", "5: Direction"}) {
    log += std::string("Illegal Header Directive in FR-CA/agent.lang at line #") + line + "\n";
  }
  EXPECT_EQ(log, Log());
}

TEST_F(LanguageDocument, ADirectoryIsEmptiedByItsNameAlone) {
  Write("FR/(Common).lang", "Directory help /docs\n");
  Write("FR/agent.lang", "Directory help\n");
  CRealKxXlate* const translator = cache_.FindOrLoad("agent", "fr", nullptr);
  ASSERT_NE(nullptr, translator);
  EXPECT_STREQ("", translator->GetDirectory("help"));
  translator->Release();
}

TEST_F(LanguageDocument, ATextIsEmptiedButNotTakenBack) {
  Write("FR/(Common).lang", FileOf("common"));
  Write("FR/agent.lang", "Name n\n\nKey K\nValue\n");
  EXPECT_EQ("", TextOf("K", "fr"));
}

}  // namespace
