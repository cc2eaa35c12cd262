#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>

#include "KxXlate.hpp"
#include "support/temp_tree.h"

namespace {

class FaceMessage : public testing::Test {
 protected:
  FaceMessage() {
    tree_.Write("agent_fr.properties", "K=Bonjour, %0 (%1)\n");
    tree_.Write("agent_de.properties", "K=Hallo, %0 (%1)\n");
    CKxXlate::SetResourceDirectory(tree_.Path().c_str());
  }

  const TempTree tree_;
};

TEST_F(FaceMessage, ShowsATextWithItsValues) {
  kx::Message message("agent", std::string("fr"));
  message.set_values("Ann", 3);
  EXPECT_STREQ("Bonjour, Ann (3)", message.format("K"));
  message.set_values(std::string("Bob\0and more", 12), 2.5);
  EXPECT_STREQ("Bonjour, Bob (2.5)", message.format(std::string("K")));
  EXPECT_STREQ("Absent (Bob, 2.5)", message.format("Absent"));
  message.show_keys(true);
  EXPECT_STREQ("[K] Bonjour, Bob (2.5)", message.format("K"));
}

TEST_F(FaceMessage, ANullValueIsEmpty) {
  kx::Message message("agent", "fr");
  message.set_values(nullptr, "x");
  EXPECT_STREQ("Bonjour,  (x)", message.format("K"));
  message.set_values();
  EXPECT_STREQ("Bonjour, %0 (%1)", message.format("K"));
}

TEST_F(FaceMessage, RefusesASeventeenthValue) {
  kx::Message message("agent", "fr");
  for (int value = 0; value < 16; ++value) EXPECT_TRUE(message.add_value(value));
  EXPECT_FALSE(message.add_value("one more"));
  EXPECT_STREQ("15", message.format("%15"));
}

TEST_F(FaceMessage, IsShownInAnotherLocale) {
  kx::Message message("agent", "fr");
  message.set_values("Ann", 3);
  EXPECT_STREQ("Bonjour, Ann (3)", message.format("K"));
  message.set_locale("de");
  EXPECT_STREQ("Hallo, Ann (3)", message.format("K"));
}

TEST_F(FaceMessage, OfNoBundleShowsItsKeys) {
  kx::Message message(nullptr, nullptr);
  message.set_values(1);
  EXPECT_STREQ("K (1)", message.format("K"));
  EXPECT_STREQ("(1)", message.format(nullptr));
}

TEST_F(FaceMessage, ACopyStandsForItself) {
  kx::Message message("agent", "fr");
  message.set_values("Ann", 3);
  EXPECT_STREQ("Bonjour, Ann (3)", message.format("K"));
  kx::Message copy(message);
  copy.set_locale("de");
  EXPECT_STREQ("Hallo, Ann (3)", copy.format("K"));
  EXPECT_STREQ("Bonjour, Ann (3)", message.format("K"));
  copy = message;
  EXPECT_STREQ("Bonjour, Ann (3)", copy.format("K"));
}

TEST_F(FaceMessage, AMoveTakesEverything) {
  kx::Message message("agent", "fr");
  message.set_values("Ann", 3);
  EXPECT_STREQ("Bonjour, Ann (3)", message.format("K"));
  kx::Message moved(std::move(message));
  EXPECT_STREQ("Bonjour, Ann (3)", moved.format("K"));
  EXPECT_STREQ("K", message.format("K"));  // NOLINT(bugprone-use-after-move)
}

}  // namespace
