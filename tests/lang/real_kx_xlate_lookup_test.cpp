#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

#include "lang/language_tree.h"
#include "support/guarded_buffer.h"

namespace {

class LanguageLookup : public LanguageTree {};

TEST_F(LanguageLookup, FindsKeysInAnyAsciiCase) {
  const Held translator = Read(kFileForLookups);
  for (const char* key : {"Login", "LOGIN", "login", "lOGIN"}) {
    EXPECT_STREQ("abcdef", translator->GetText(key)) << key;
    EXPECT_EQ(translator->GetText("Login"), translator->GetText(key)) << key;
  }
  EXPECT_STREQ("D'accord", translator->GetLabel("ok"));
  EXPECT_EQ(translator->GetLabel("ok"), translator->GetLabel("OK"));
  EXPECT_STREQ("/docs/fr", translator->GetDirectory("HELP"));
  EXPECT_EQ(translator->GetDirectory("help"), translator->GetDirectory("Help"));
  EXPECT_EQ("(no file)", Log());
}

TEST_F(LanguageLookup, ComparesOtherLettersExactly) {
  const Held translator =
      Read("Name n\n\nKey \xC3\xA9\nValue small\nKey \xC3\x89\nValue capital\n");
  EXPECT_STREQ("small", translator->GetText("\xC3\xA9"));
  EXPECT_STREQ("capital", translator->GetText("\xC3\x89"));
}

TEST_F(LanguageLookup, FindsEmptyValues) {
  const Held translator = Read(kFileForLookups);
  EXPECT_STREQ("", translator->GetText("empty"));
  EXPECT_STREQ("", translator->GetLabel("blank"));
  EXPECT_STREQ("", translator->GetDirectory("none"));
  EXPECT_EQ("(no file)", Log());
}

TEST_F(LanguageLookup, ThreeTablesDoNotAnswerForOneAnother) {
  const Held translator = Read(kFileForLookups);
  EXPECT_EQ(nullptr, translator->GetText("Ok"));
  EXPECT_EQ(nullptr, translator->GetText("help"));
  EXPECT_EQ(nullptr, translator->GetLabel("Login"));
  EXPECT_EQ(nullptr, translator->GetDirectory("Login"));
}

TEST_F(LanguageLookup, AMissIsLoggedOnceWithTheDisplayName) {
  const Held translator = Read(kFileForLookups);
  EXPECT_EQ(nullptr, translator->GetText("LOGIN_PROMPT"));
  EXPECT_EQ("FR-ca (agent) key not found: LOGIN_PROMPT\n", Log());
  EXPECT_EQ(nullptr, translator->GetText("LOGIN_PROMPT"));
  EXPECT_EQ(nullptr, translator->GetText("Login_Prompt"));
  char buffer[20];
  EXPECT_FALSE(translator->GetText(buffer, sizeof buffer, "login_prompt", "default"));
  EXPECT_FALSE(translator->GetPrompt(buffer, sizeof buffer, "login_prompt", "default"));
  EXPECT_EQ("FR-ca (agent) key not found: LOGIN_PROMPT\n", Log());
}

TEST_F(LanguageLookup, AMissIsLoggedForEachTable) {
  const Held translator = Read(kFileForLookups);
  for (int round = 0; round < 2; ++round) {
    EXPECT_EQ(nullptr, translator->GetDirectory("Absent"));
    EXPECT_EQ(nullptr, translator->GetText("ABSENT"));
    EXPECT_EQ(nullptr, translator->GetLabel("absent"));
  }
  EXPECT_EQ(
      "FR-ca (agent) key not found: Absent\n"
      "FR-ca (agent) key not found: ABSENT\n"
      "FR-ca (agent) key not found: absent\n",
      Log());
}

TEST_F(LanguageLookup, AMissIsLoggedForEachTranslator) {
  const Held first = Read(kFileForLookups);
  const Held second = Load("agent", "fr", nullptr);
  EXPECT_EQ(nullptr, first->GetText("ABSENT"));
  EXPECT_EQ(nullptr, second->GetText("ABSENT"));
  EXPECT_EQ(nullptr, first->GetText("ABSENT"));
  EXPECT_EQ(
      "FR-ca (agent) key not found: ABSENT\n"
      "FR (agent) key not found: ABSENT\n",
      Log());
}

TEST_F(LanguageLookup, AMissInABufferIsLoggedToo) {
  const Held translator = Read(kFileForLookups);
  char buffer[20];
  EXPECT_FALSE(translator->GetDirectory(buffer, sizeof buffer, "A"));
  EXPECT_FALSE(translator->GetText(buffer, sizeof buffer, "B", nullptr));
  EXPECT_FALSE(translator->GetLabel(buffer, sizeof buffer, "C"));
  EXPECT_FALSE(translator->GetPrompt(buffer, sizeof buffer, "D", nullptr));
  EXPECT_EQ(
      "FR-ca (agent) key not found: A\n"
      "FR-ca (agent) key not found: B\n"
      "FR-ca (agent) key not found: C\n"
      "FR-ca (agent) key not found: D\n",
      Log());
}

TEST_F(LanguageLookup, AMissDoesNotHideOtherKeys) {
  const Held translator = Read(kFileForLookups);
  for (int key = 0; key < 200; ++key) {
    EXPECT_EQ(nullptr, translator->GetText(("ABSENT" + std::to_string(key)).c_str()));
  }
  EXPECT_STREQ("abcdef", translator->GetText("Login"));
  EXPECT_EQ(nullptr, translator->GetText("Logi"));
  EXPECT_EQ(nullptr, translator->GetText("Login "));
}

TEST_F(LanguageLookup, ALineEndInAKeyDoesNotMakeASecondLine) {
  const Held translator = Read(kFileForLookups);
  EXPECT_EQ(nullptr, translator->GetText("A\r\nFR (agent) key not found: B"));
  EXPECT_EQ("FR-ca (agent) key not found: A\\r\\nFR (agent) key not found: B\n", Log());
}

TEST_F(LanguageLookup, ALineEndInANameDoesNotMakeASecondLine) {
  const Held translator = Load("a\nb", "de", nullptr);
  EXPECT_EQ("No \"DE (a\\nb)\" files found, trying EN.\n", Log());
}

TEST_F(LanguageLookup, NullAndEmptyKeysAreNotFoundAndNotLogged) {
  // The vertical tab makes an empty key name: it is skipped as white space but not stripped.
  const Held translator = Read("Name n\n\nKey \v\nValue x\nButton \v\nLabel y\n");
  for (const char* key : {"", static_cast<const char*>(nullptr)}) {
    EXPECT_EQ(nullptr, translator->GetDirectory(key));
    EXPECT_EQ(nullptr, translator->GetText(key));
    EXPECT_EQ(nullptr, translator->GetLabel(key));
    GuardedBuffer buffer(10);
    EXPECT_FALSE(translator->GetLabel(buffer.Data(), buffer.Size(), key));
    EXPECT_EQ("", buffer.Text());
    EXPECT_EQ(1u, buffer.BytesWritten());
    EXPECT_FALSE(translator->GetDirectory(buffer.Data(), buffer.Size(), key));
    EXPECT_EQ("", buffer.Text());
    EXPECT_FALSE(translator->GetText(buffer.Data(), buffer.Size(), key, "default"));
    EXPECT_EQ("default", buffer.Text());
    EXPECT_FALSE(translator->GetPrompt(buffer.Data(), buffer.Size(), key, nullptr));
    EXPECT_EQ("", buffer.Text());
  }
  EXPECT_EQ("(no file)", Log());
}

TEST_F(LanguageLookup, WithoutFilesLogsNoMiss) {
  for (const char* language : {"de", "en"}) {
    const Held translator = Load("agent", language, nullptr);
    EXPECT_EQ(nullptr, translator->GetText("A"));
    EXPECT_EQ(nullptr, translator->GetLabel("A"));
    EXPECT_EQ(nullptr, translator->GetDirectory("A"));
    GuardedBuffer buffer(10);
    EXPECT_FALSE(translator->GetPrompt(buffer.Data(), buffer.Size(), "A", "default"));
    EXPECT_EQ("default", buffer.Text());
  }
  EXPECT_EQ("No \"DE (agent)\" files found, trying EN.\n", Log());
}

TEST_F(LanguageLookup, AFileWithoutTextsIsEnoughToLogMisses) {
  const Held translator = Read("");
  EXPECT_EQ(nullptr, translator->GetText("A"));
  EXPECT_EQ("FR-ca (agent) key not found: A\n", Log());
}

TEST_F(LanguageLookup, MissesOfManyThreadsAreLoggedOnceEach) {
  const Held translator = Read(kFileForLookups);
  std::vector<std::thread> threads;
  for (int thread = 0; thread < 8; ++thread) {
    threads.emplace_back([&translator] {
      for (int key = 0; key < 50; ++key) {
        EXPECT_EQ(nullptr, translator->GetText(("ABSENT" + std::to_string(key)).c_str()));
        EXPECT_STREQ("abcdef", translator->GetText("LOGIN"));
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  const std::string log = Log();
  std::size_t lines = 0;
  for (int key = 0; key < 50; ++key) {
    const std::string line = "FR-ca (agent) key not found: ABSENT" + std::to_string(key) + "\n";
    EXPECT_NE(std::string::npos, log.find(line)) << line;
    lines += line.size();
  }
  EXPECT_EQ(lines, log.size());
}

}  // namespace
