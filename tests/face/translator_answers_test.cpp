#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>

#include "KxXlate.hpp"
#include "face/probe_translator.h"
#include "support/temp_tree.h"

namespace {

using std::string_view_literals::operator""sv;

class FaceAnswers : public testing::Test {
 protected:
  FaceAnswers() {
    probe_.texts = {{"K", "text"}, {"Empty", ""}, {"label K", "OK"}, {"directory help", "/docs"}};
  }

  ProbeTranslator probe_;
  const kx::Translator texts_ = kx::Translator::adopt(&probe_);
};

TEST_F(FaceAnswers, ATextOrNone) {
  EXPECT_EQ(std::optional("text"sv), texts_.text("K"));
  EXPECT_EQ(std::optional(""sv), texts_.text("Empty"));
  EXPECT_EQ(std::nullopt, texts_.text("Absent"));
  EXPECT_EQ(std::nullopt, texts_.text(nullptr));
}

TEST_F(FaceAnswers, KeysAreTextsOfAnyKind) {
  const std::string_view part = "Kx"sv.substr(0, 1);
  char writable[] = "K";
  EXPECT_EQ(std::optional("text"sv), texts_.text(std::string("K")));
  EXPECT_EQ(std::optional("text"sv), texts_.text(part));
  EXPECT_EQ(std::optional("text"sv), texts_.text(writable));
  EXPECT_EQ(std::optional("OK"sv), texts_.label(part));
  EXPECT_EQ(std::nullopt, texts_.text(std::string(10000, 'k')));
  const std::string longKey(10000, 'k');
  EXPECT_EQ(std::nullopt, texts_.text(std::string_view(longKey)));
}

TEST_F(FaceAnswers, AFallbackWhereThereIsNone) {
  const std::string kept = "kept";
  const char* const none = nullptr;
  EXPECT_EQ("text"sv, texts_.text_or("K", "fallback"));
  EXPECT_EQ(""sv, texts_.text_or("Empty", "fallback"));
  EXPECT_EQ("fallback"sv, texts_.text_or("Absent", "fallback"));
  EXPECT_EQ("kept"sv, texts_.text_or("Absent", kept));
  EXPECT_EQ("ke"sv, texts_.text_or("Absent", std::string_view(kept).substr(0, 2)));
  EXPECT_EQ(""sv, texts_.text_or("Absent", none));
}

TEST_F(FaceAnswers, TheTextAsTheLibraryAnswersIt) {
  EXPECT_EQ(probe_.GetText("K"), texts_.c_text("K"));
  EXPECT_EQ(nullptr, texts_.c_text("Absent"));
}

TEST_F(FaceAnswers, LabelsAndDirectories) {
  EXPECT_EQ(std::optional("OK"sv), texts_.label("K"));
  EXPECT_EQ(std::nullopt, texts_.label("Absent"));
  EXPECT_EQ(std::optional("/docs"sv), texts_.directory("help"));
  EXPECT_EQ(std::nullopt, texts_.directory("Absent"));
}

TEST_F(FaceAnswers, PromptsHaveTheirSuffix) {
  probe_.said = " >>";
  EXPECT_EQ(std::optional<std::string>("text >>"), texts_.prompt("K"));
  EXPECT_EQ(std::nullopt, texts_.prompt("Absent"));
  probe_.said = nullptr;
  EXPECT_EQ(std::optional<std::string>("text"), texts_.prompt("K"));
  EXPECT_EQ(std::optional<std::string>(""), texts_.prompt("Empty"));
}

TEST_F(FaceAnswers, AKeyWithoutATextIsFormattedItself) {
  probe_.texts["Welcome"] = "Welcome, %0 (%1)";
  EXPECT_EQ("Welcome, Ann (3)", texts_.format("Welcome", "Ann", 3));
  EXPECT_EQ("Absent (Ann, 3)", texts_.format("Absent", "Ann", 3));
}

TEST_F(FaceAnswers, WhatATranslatorSaysOfItself) {
  probe_.said = "said";
  EXPECT_EQ("said"sv, texts_.name());
  EXPECT_EQ("said"sv, texts_.language());
  EXPECT_EQ("said"sv, texts_.country());
  EXPECT_EQ("said"sv, texts_.long_name());
  EXPECT_EQ("said"sv, texts_.charset());
  EXPECT_EQ("said"sv, texts_.image_directory());
  EXPECT_EQ("said"sv, texts_.direction());
  EXPECT_EQ("said"sv, texts_.prompt_suffix());
  EXPECT_EQ(7U, texts_.id());
}

void ExpectNothingSaid(const kx::Translator& texts) {
  EXPECT_EQ(""sv, texts.name());
  EXPECT_EQ(""sv, texts.language());
  EXPECT_EQ(""sv, texts.country());
  EXPECT_EQ(""sv, texts.long_name());
  EXPECT_EQ("UTF-8"sv, texts.charset());
  EXPECT_EQ(""sv, texts.image_directory());
  EXPECT_EQ(""sv, texts.direction());
  EXPECT_EQ(""sv, texts.prompt_suffix());
}

TEST_F(FaceAnswers, NothingWhereATranslatorSaysNothing) { ExpectNothingSaid(texts_); }

TEST(FaceTranslator, AnEmptyOneFindsNothingAndSaysNothing) {
  const kx::Translator none;
  ExpectNothingSaid(none);
  EXPECT_EQ(0U, none.id());
  EXPECT_EQ(nullptr, none.get());
  EXPECT_EQ(nullptr, none.c_text("K"));
  EXPECT_EQ(std::nullopt, none.text("K"));
  EXPECT_EQ(std::nullopt, none.label("K"));
  EXPECT_EQ(std::nullopt, none.directory("K"));
  EXPECT_EQ(std::nullopt, none.prompt("K"));
  EXPECT_EQ("fallback"sv, none.text_or("K", "fallback"));
  EXPECT_EQ("K (1)", none.format("K", 1));
}

TEST(FaceTranslator, IsFoundByBundleAndLocale) {
  const TempTree tree;
  tree.Write("agent_fr.properties", "K=de France\n");
  tree.Write("agent_fr_CA.properties", "K=du Canada\n");
  ASSERT_TRUE(CKxXlate::SetResourceDirectory(tree.Path().c_str()));
  const kx::Translator canada = kx::Translator::find(std::string("agent"), "fr-CA"sv);
  EXPECT_EQ(std::optional("du Canada"sv), canada.text("k"));
  EXPECT_EQ("agent"sv, canada.name());
  EXPECT_EQ("fr"sv, canada.language());
  EXPECT_EQ("CA"sv, canada.country());
  EXPECT_EQ(std::nullopt, canada.prompt("K"));
  EXPECT_TRUE(canada == kx::Translator::find_language("agent", "fr", "CA"));
  const kx::Translator france = kx::Translator::find_language("agent", "fr", nullptr);
  EXPECT_EQ(std::optional("de France"sv), france.text("K"));
}

}  // namespace
