// How many questions to the file system a candidate costs.

#include <gtest/gtest.h>

#include <string>

#include "core/language_cache_fixture.h"
#include "support/file_questions.h"

namespace {

class Questions : public LanguageCache {
 protected:
  Questions() { Write("FR/agent.lang", File("text")); }

  /// What `request` asks of files of the language directory.
  template <class Request>
  FileQuestions Of(const Request& request) {
    CountFileQuestions(paths_.directory);
    request();
    return CountedFileQuestions();
  }
};

TEST_F(Questions, OfAnAbsentLanguageAreOneForEachFile) {
  const FileQuestions asked = Of([this] { EXPECT_EQ(nullptr, Find("agent", "xy", nullptr)); });
  EXPECT_EQ(2, asked.statuses);
  EXPECT_EQ(0, asked.opens);
}

TEST_F(Questions, OfACachedLanguageAreOneForEachFileThatWasRead) {
  Write("FR/(Common).lang", "Name n\n");
  Write("FR-CA/agent.lang", "Name n\n");
  Find("agent", "fr", "CA");
  const FileQuestions asked = Of([this] { Find("agent", "fr", "CA"); });
  EXPECT_EQ(3, asked.statuses);
  EXPECT_EQ(0, asked.opens);
}

TEST_F(Questions, OfARegionWithoutFilesAreOneForEachFileThatThereMightBe) {
  FindFrench();
  const FileQuestions asked = Of([this] { Find("agent", "fr", "CA"); });
  EXPECT_EQ(4, asked.statuses);
  EXPECT_EQ(0, asked.opens);
}

TEST_F(Questions, OfANewLanguageAreOneBeforeEachFileIsOpened) {
  const FileQuestions asked = Of([this] { FindFrench(); });
  EXPECT_EQ(2, asked.statuses);
  EXPECT_EQ(1, asked.opens);
}

}  // namespace
