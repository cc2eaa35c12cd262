// Calls the library's own translators by the places of their operations alone, as a host does that
// was built by another compiler, or long ago.

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

#include "CKxXlate.h"
#include "support/guarded_buffer.h"
#include "support/temp_tree.h"

namespace {

/// A translator as such a host sees it: what it points to begins with the table of operations.
class ForeignTranslator {
 public:
  explicit ForeignTranslator(CKxXlate* translator) : translator_(translator) {}

  bool IsThere() const { return translator_ != nullptr; }

  template <class Result, class... Arguments>
  Result Call(std::size_t slot, Arguments... arguments) const {
    using Operation = Result (*)(void*, Arguments...);
    const Operation* table = nullptr;
    std::memcpy(&table, translator_, sizeof table);
    return table[slot](translator_, arguments...);
  }

  const char* Text(std::size_t slot) const { return Call<const char*>(slot); }
  const char* Text(std::size_t slot, const char* key) const { return Call<const char*>(slot, key); }

  /// Whether it was found, and what was copied.
  std::string Copy(std::size_t slot, const char* key) const {
    return Copied([&](char* to, KxSize size) { return Call<bool>(slot, to, size, key); });
  }
  std::string Copy(std::size_t slot, const char* key, const char* otherwise) const {
    return Copied(
        [&](char* to, KxSize size) { return Call<bool>(slot, to, size, key, otherwise); });
  }

 private:
  template <class Operation>
  static std::string Copied(Operation operation) {
    GuardedBuffer buffer(8);
    const bool found = operation(buffer.Data(), buffer.Size());
    EXPECT_EQ(buffer.Text().size() + 1, buffer.BytesWritten());
    return (found ? "found " : "not found ") + buffer.Text();
  }

  void* translator_;
};

constexpr std::size_t kRelease = 0;
constexpr std::size_t kAddRef = 1;

/// Holds a reference more, and gives both back.
void ExpectReferencesAreCounted(const ForeignTranslator& translator, const char* name) {
  translator.Call<void>(kAddRef);
  translator.Call<void>(kRelease);
  EXPECT_STREQ(name, translator.Text(2));
  translator.Call<void>(kRelease);
}

class TranslatorSlots : public testing::Test {
 protected:
  TempTree tree_;
};

TEST_F(TranslatorSlots, OfALanguageFileAreThoseDocumented) {
  tree_.Write("FR-CA/agent.lang",
              "Long Name Agent\nCharset UTF-8\nImages /i\nPrompt Suffix :\nDirection LTR\n"
              "Directory help /docs\n\nKey K\nValue text\nButton B\nLabel label\n");
  ASSERT_TRUE(CKxXlate::SetResourceDirectory(tree_.Path().c_str()));
  const ForeignTranslator translator(CKxXlate::GetLanguage("agent", "fr", "ca"));
  ASSERT_TRUE(translator.IsThere());

  EXPECT_STREQ("agent", translator.Text(2));
  EXPECT_STREQ("FR", translator.Text(3));
  EXPECT_STREQ("CA", translator.Text(4));
  EXPECT_STREQ("Agent", translator.Text(5));
  EXPECT_STREQ("UTF-8", translator.Text(6));
  EXPECT_EQ(1U, translator.Call<std::uint32_t>(7));
  EXPECT_STREQ("/i", translator.Text(8));
  EXPECT_STREQ("LTR", translator.Text(9));
  EXPECT_STREQ(":", translator.Text(10));
  EXPECT_STREQ("/docs", translator.Text(11, "help"));
  EXPECT_EQ("found /docs", translator.Copy(12, "help"));
  EXPECT_STREQ("text", translator.Text(13, "K"));
  EXPECT_EQ("found text", translator.Copy(14, "K", "other"));
  EXPECT_STREQ("label", translator.Text(15, "B"));
  EXPECT_EQ("found label", translator.Copy(16, "B"));
  EXPECT_EQ("found text:", translator.Copy(17, "K", "other"));
  ExpectReferencesAreCounted(translator, "agent");
}

TEST_F(TranslatorSlots, OfAPropertyFileAreThoseDocumented) {
  tree_.Write("agent_fr_CA.properties", "K=text\n");
  ASSERT_TRUE(CKxXlate::SetResourceDirectory(tree_.Path().c_str()));
  const ForeignTranslator translator(CKxXlate::GetBundle("agent", "fr-CA"));
  ASSERT_TRUE(translator.IsThere());

  EXPECT_STREQ("agent", translator.Text(2));
  EXPECT_STREQ("fr", translator.Text(3));
  EXPECT_STREQ("CA", translator.Text(4));
  for (const std::size_t absent : {5U, 6U, 8U, 9U, 10U}) {
    EXPECT_EQ(nullptr, translator.Text(absent)) << absent;
  }
  EXPECT_EQ(0U, translator.Call<std::uint32_t>(7));
  EXPECT_EQ(nullptr, translator.Text(11, "help"));
  EXPECT_EQ("not found ", translator.Copy(12, "help"));
  EXPECT_STREQ("text", translator.Text(13, "K"));
  EXPECT_EQ("found text", translator.Copy(14, "K", "other"));
  EXPECT_EQ(nullptr, translator.Text(15, "B"));
  EXPECT_EQ("not found ", translator.Copy(16, "B"));
  EXPECT_EQ("not found ", translator.Copy(17, "K", "other"));
  ExpectReferencesAreCounted(translator, "agent");
}

}  // namespace
