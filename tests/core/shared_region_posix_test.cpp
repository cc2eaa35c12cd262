// A host that has hardly any file left to open.

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include "core/language_cache_fixture.h"

namespace {

/// While it lives, this process can open one file more, and no second one beside it.
class OneFileLeft {
 public:
  OneFileLeft() {
    ::getrlimit(RLIMIT_NOFILE, &before_);
    const int next = ::dup(STDERR_FILENO);
    ::close(next);
    const rlimit few = {static_cast<rlim_t>(next) + 1, before_.rlim_max};
    ::setrlimit(RLIMIT_NOFILE, &few);
  }
  ~OneFileLeft() { ::setrlimit(RLIMIT_NOFILE, &before_); }
  OneFileLeft(const OneFileLeft&) = delete;
  OneFileLeft& operator=(const OneFileLeft&) = delete;

 private:
  rlimit before_;
};

class LanguageWithOneFileLeft : public LanguageCache {
 protected:
  // A sanitizer opens files of its own when it first meets an object of a class: so that it has met
  // all of them by then.
  LanguageWithOneFileLeft() {
    for (const char* const file :
         {"DE/(Common).lang", "DE/agent.lang", "DE-AT/(Common).lang", "DE-AT/agent.lang"}) {
      Write(file, File("text"));
    }
    Find("agent", "de", nullptr);
    Find("agent", "de", "AT");
  }
};

TEST_F(LanguageWithOneFileLeft, IsReadWhole) {
  Write("FR/(Common).lang", "Images /common\n");
  Write("FR/agent.lang", File("text"));
  Held french;
  {
    const OneFileLeft few;
    french = FindFrench();
  }
  EXPECT_STREQ("/common", french->GetImageDirectory());
  EXPECT_STREQ("text", french->GetText("K"));
  EXPECT_EQ(french, FindFrench()) << "not kept";
}

TEST_F(LanguageWithOneFileLeft, IsReadWholeWithItsRegion) {
  Write("FR/(Common).lang", "Images /common\n");
  Write("FR/agent.lang", "Prompt Suffix :\n");
  Write("FR-CA/(Common).lang", "Name Canadian\n");
  Write("FR-CA/agent.lang", "Direction LTR\n\nKey K\nValue text\n");
  Held canadian;
  {
    const OneFileLeft few;
    canadian = Find("agent", "fr", "CA");
  }
  EXPECT_STREQ("/common", canadian->GetImageDirectory());
  EXPECT_STREQ(":", canadian->GetPromptSuffix());
  EXPECT_STREQ("Canadian", canadian->GetLongName());
  EXPECT_STREQ("text", canadian->GetText("K"));
  EXPECT_EQ(canadian, Find("agent", "fr", "CA")) << "not kept";
}

}  // namespace
