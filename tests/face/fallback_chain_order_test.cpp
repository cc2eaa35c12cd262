#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "KxXlate.hpp"
#include "support/temp_tree.h"

namespace {

struct ChainCase {
  const char* locale;
  std::vector<std::string> texts;  ///< of "K", in the order of the chain
};

// Where "-" and "_" stand in one locale, the library reads another language than below it:
// "de_AT" of "de_AT-1996", "DE" of "de_AT". Nothing is installed for the first of these.
const ChainCase kCases[] = {
    {"de-AT", {"DE-AT", "DE", "EN"}},
    {"de_AT", {"DE-AT", "DE", "EN"}},
    {"de_AT-1996", {"DE-AT", "DE", "EN"}},
    {"zh_Hant-TW", {"ZH", "EN"}},
    {"ja", {"EN"}},
    {"en", {"EN"}},
    {"", {"EN"}},
};

TEST(FaceFallbackChain, HasEnglishBehindAllThatIsInstalled) {
  const TempTree tree;
  for (const std::string name : {"EN", "DE", "DE-AT", "ZH"}) {
    tree.Write(name + "/agent.lang", "Name x\n\nKey K\nValue " + name + "\n");
  }
  ASSERT_TRUE(CKxXlate::SetResourceDirectory(tree.Path().c_str()));
  for (const ChainCase& c : kCases) {
    std::vector<std::string> texts;
    for (const kx::Translator& each : kx::fallback_chain("agent", c.locale)) {
      texts.emplace_back(each.text_or("K", "none"));
    }
    EXPECT_EQ(c.texts, texts) << c.locale;
  }
  CKxXlate::FreeCache();
}

}  // namespace
