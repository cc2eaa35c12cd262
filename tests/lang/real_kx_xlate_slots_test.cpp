// Where the operations stand in the table that hosts call by position.

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "lang/language_translator.h"

namespace {

/// Calls an entry of the dispatch table by its number, as a host compiled long ago would.
template <class Result, class... Arguments>
Result CallEntry(const Held& translator, std::size_t entry, Arguments... arguments) {
  using Entry = Result (*)(CKxXlate*, Arguments...);
  CKxXlate* const object = translator.get();
  Entry* table = nullptr;
  std::memcpy(&table, static_cast<const void*>(object), sizeof table);
  return table[entry](object, arguments...);
}

TEST_F(LanguageTranslator, EveryOperationStandsAtItsSlot) {
  Write("FR/agent.lang", kWholeFile);
  const Held translator = Load("agent", "fr", "ca");
  const auto text = [&](std::size_t slot) { return CallEntry<const char*>(translator, slot); };
  EXPECT_STREQ("agent", text(2));
  EXPECT_STREQ("FR", text(3));
  EXPECT_STREQ("CA", text(4));
  EXPECT_STREQ(
      "Fran\xC3\xA7"
      "ais",
      text(5));
  EXPECT_STREQ("UTF-8", text(6));
  EXPECT_EQ(1u, CallEntry<std::uint32_t>(translator, 7));
  EXPECT_STREQ("/pictures", text(8));
  EXPECT_STREQ("RTL", text(9));
  EXPECT_STREQ(":", text(10));

  char buffer[20];
  const KxSize size = sizeof buffer;
  char* const dst = buffer;
  EXPECT_STREQ("/docs", CallEntry<const char*>(translator, 11, "help"));
  EXPECT_TRUE(CallEntry<bool>(translator, 12, dst, size, "help"));
  EXPECT_STREQ("/docs", buffer);
  EXPECT_STREQ("Bonjour", CallEntry<const char*>(translator, 13, "HELLO"));
  EXPECT_TRUE(CallEntry<bool>(translator, 14, dst, size, "HELLO", "default"));
  EXPECT_STREQ("Bonjour", buffer);
  EXPECT_STREQ("D'accord", CallEntry<const char*>(translator, 15, "OK"));
  EXPECT_TRUE(CallEntry<bool>(translator, 16, dst, size, "OK"));
  EXPECT_STREQ("D'accord", buffer);
  EXPECT_TRUE(CallEntry<bool>(translator, 17, dst, size, "HELLO", "default"));
  EXPECT_STREQ("Bonjour:", buffer);

  // The destructor, slot 18, takes two entries here, so that slot 19 is entry 20.
  EXPECT_STREQ("FR-ca (agent)", text(20));
}

TEST_F(LanguageTranslator, IsCountedAtTheFirstTwoSlots) {
  Write("FR/agent.lang", kWholeFile);
  const Held translator = Load("agent", "fr", nullptr);
  CallEntry<void>(translator, 1);
  CallEntry<void>(translator, 1);
  CallEntry<void>(translator, 1);
  CallEntry<void>(translator, 0);
  CallEntry<void>(translator, 0);
  EXPECT_STREQ("Bonjour", translator->GetText("HELLO"));
}

}  // namespace
