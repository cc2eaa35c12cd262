#include <gtest/gtest.h>

#include <type_traits>
#include <utility>

#include "KxXlate.hpp"
#include "face/probe_translator.h"

namespace {

TEST(FaceTranslator, GivesBackTheReferenceThatItAdopted) {
  ProbeTranslator probe;
  {
    const kx::Translator texts = kx::Translator::adopt(&probe);
    EXPECT_EQ(1, probe.references);
  }
  EXPECT_EQ(0, probe.references);
}

TEST(FaceTranslator, SharesByTakingAReferenceOfItsOwn) {
  ProbeTranslator probe;
  {
    const kx::Translator texts = kx::Translator::share(&probe);
    EXPECT_EQ(2, probe.references);
  }
  EXPECT_EQ(1, probe.references);
}

TEST(FaceTranslator, ACopyTakesOneMoreAndGivesItBack) {
  ProbeTranslator probe;
  const kx::Translator texts = kx::Translator::adopt(&probe);
  {
    const kx::Translator copy = texts;  // NOLINT(performance-unnecessary-copy-initialization)
    EXPECT_EQ(2, probe.references);
    EXPECT_EQ(&probe, copy.get());
    EXPECT_TRUE(copy == texts);
  }
  EXPECT_EQ(1, probe.references);
}

TEST(FaceTranslator, AMoveHandsTheReferenceOver) {
  ProbeTranslator probe;
  {
    kx::Translator texts = kx::Translator::adopt(&probe);
    const kx::Translator moved = std::move(texts);
    EXPECT_EQ(1, probe.references);
    EXPECT_EQ(&probe, moved.get());
    EXPECT_FALSE(texts);  // NOLINT(bugprone-use-after-move)
  }
  EXPECT_EQ(0, probe.references);
  EXPECT_TRUE(std::is_nothrow_move_constructible_v<kx::Translator>);
  EXPECT_TRUE(std::is_nothrow_move_assignable_v<kx::Translator>);
}

TEST(FaceTranslator, AnAssignmentGivesBackWhatWasHeld) {
  ProbeTranslator first;
  ProbeTranslator second;
  kx::Translator texts = kx::Translator::adopt(&first);
  const kx::Translator other = kx::Translator::adopt(&second);
  texts = other;
  EXPECT_EQ(0, first.references);
  EXPECT_EQ(2, second.references);
  texts = kx::Translator();
  EXPECT_EQ(1, second.references);
  EXPECT_FALSE(texts);
}

TEST(FaceTranslator, AnAssignmentToItselfChangesNothing) {
  ProbeTranslator probe;
  kx::Translator texts = kx::Translator::adopt(&probe);
  const kx::Translator& same = texts;
  texts = same;
  EXPECT_EQ(1, probe.references);
  EXPECT_EQ(&probe, texts.get());
}

TEST(FaceTranslator, HandsItsReferenceBackToTheHost) {
  ProbeTranslator probe;
  {
    kx::Translator texts = kx::Translator::adopt(&probe);
    EXPECT_EQ(&probe, texts.release());
    EXPECT_EQ(nullptr, texts.release());
  }
  EXPECT_EQ(1, probe.references);
}

TEST(FaceTranslator, OfNullIsEmpty) {
  EXPECT_FALSE(kx::Translator());
  EXPECT_FALSE(kx::Translator::adopt(nullptr));
  EXPECT_FALSE(kx::Translator::share(nullptr));
  EXPECT_FALSE(kx::Translator::find("", "fr"));
  EXPECT_FALSE(kx::Translator::find(nullptr, nullptr));
  EXPECT_TRUE(kx::Translator() == kx::Translator::adopt(nullptr));
  EXPECT_FALSE(kx::Translator() != kx::Translator());
}

}  // namespace
