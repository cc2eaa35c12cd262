#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <new>
#include <ostream>
#include <string>
#include <type_traits>

#include "CKxXlate.h"

namespace {

static_assert(sizeof(KxSize) == 4);
static_assert(sizeof(CKxXlate) == sizeof(void*), "a translator of the base holds its table alone");
static_assert(std::is_abstract_v<CKxXlate>);
static_assert(!std::is_destructible_v<CKxXlate>, "only Release destroys a translator");
static_assert(std::is_copy_assignable_v<CKxXlate>);

/// What an operation of a SlotProbe noted last.
const char* g_called = nullptr;

/// Overrides every operation to note its own name.
class SlotProbe : public CKxXlate {
 public:
  ~SlotProbe() override { g_called = "destructor"; }

  void Release() override { g_called = "Release"; }
  void AddRef() override { g_called = "AddRef"; }
  const char* GetName() override { return Note("GetName"); }
  const char* GetLanguageCode() override { return Note("GetLanguageCode"); }
  const char* GetCountryCode() override { return Note("GetCountryCode"); }
  const char* GetLongName() override { return Note("GetLongName"); }
  const char* GetCharset() override { return Note("GetCharset"); }
  std::uint32_t GetId() override {
    Note("GetId");
    return 77;
  }
  const char* GetImageDirectory() override { return Note("GetImageDirectory"); }
  const char* GetDirection() override { return Note("GetDirection"); }
  const char* GetPromptSuffix() override { return Note("GetPromptSuffix"); }
  const char* GetDirectory(const char*) override { return Note("GetDirectory, pointer"); }
  bool GetDirectory(char*, KxSize, const char*) override {
    return Note("GetDirectory, buffer") != nullptr;
  }
  const char* GetText(const char*) override { return Note("GetText, pointer"); }
  bool GetText(char*, KxSize, const char*, const char*) override {
    return Note("GetText, buffer") != nullptr;
  }
  const char* GetLabel(const char*) override { return Note("GetLabel, pointer"); }
  bool GetLabel(char*, KxSize, const char*) override { return Note("GetLabel, buffer") != nullptr; }
  bool GetPrompt(char*, KxSize, const char*, const char*) override {
    return Note("GetPrompt") != nullptr;
  }

 private:
  static const char* Note(const char* name) { return g_called = name; }
};

/// An entry of the dispatch table as a host compiled long ago calls it. Argument registers that the
/// operation does not use do no harm.
using Entry = void (*)(CKxXlate*, void*, KxSize, const char*, const char*);

Entry EntryOf(CKxXlate& translator, std::size_t slot) {
  const Entry* table = nullptr;
  std::memcpy(&table, static_cast<const void*>(&translator), sizeof table);
  return table[slot];
}

std::string CallSlot(std::size_t slot) {
  SlotProbe probe;
  g_called = "nothing";
  EntryOf(probe, slot)(&probe, nullptr, 0, nullptr, nullptr);
  return g_called;
}

struct SlotCase {
  const char* name;
  std::size_t slot;
  const char* operation;
};

void PrintTo(const SlotCase& c, std::ostream* os) { *os << c.slot; }

class SlotOrder : public testing::TestWithParam<SlotCase> {};

TEST_P(SlotOrder, IsKept) { EXPECT_EQ(GetParam().operation, CallSlot(GetParam().slot)); }

const SlotCase kSlots[] = {
    {"Release", 0, "Release"},
    {"AddRef", 1, "AddRef"},
    {"GetName", 2, "GetName"},
    {"GetLanguageCode", 3, "GetLanguageCode"},
    {"GetCountryCode", 4, "GetCountryCode"},
    {"GetLongName", 5, "GetLongName"},
    {"GetCharset", 6, "GetCharset"},
    {"GetId", 7, "GetId"},
    {"GetImageDirectory", 8, "GetImageDirectory"},
    {"GetDirection", 9, "GetDirection"},
    {"GetPromptSuffix", 10, "GetPromptSuffix"},
    {"GetDirectoryPointer", 11, "GetDirectory, pointer"},
    {"GetDirectoryBuffer", 12, "GetDirectory, buffer"},
    {"GetTextPointer", 13, "GetText, pointer"},
    {"GetTextBuffer", 14, "GetText, buffer"},
    {"GetLabelPointer", 15, "GetLabel, pointer"},
    {"GetLabelBuffer", 16, "GetLabel, buffer"},
    {"GetPrompt", 17, "GetPrompt"},
};

INSTANTIATE_TEST_SUITE_P(Slots, SlotOrder, testing::ValuesIn(kSlots),
                         [](const auto& row) { return std::string(row.param.name); });

// This layout spends two entries on the destructor: the first leaves the storage alone, the second
// frees it.
TEST(DestructorSlot, DestroysAndTheNextFreesToo) {
  alignas(SlotProbe) std::byte memory[sizeof(SlotProbe)];
  auto* const probe = new (memory) SlotProbe;

  g_called = "nothing";
  EntryOf(*probe, 18)(probe, nullptr, 0, nullptr, nullptr);
  EXPECT_STREQ("destructor", g_called);

  CKxXlate* const freed = new SlotProbe;
  g_called = "nothing";
  EntryOf(*freed, 19)(freed, nullptr, 0, nullptr, nullptr);
  EXPECT_STREQ("destructor", g_called);
}
/// A translator of another class, with a state of its own.
class NamedProbe final : public SlotProbe {
 public:
  explicit NamedProbe(const char* name) : name_(name) {}
  const char* GetName() override { return name_; }

 private:
  const char* name_;
};

TEST(DerivedTranslator, IsMadeAndCalledThroughItsBase) {
  NamedProbe probe("mine");
  CKxXlate& translator = probe;

  EXPECT_STREQ("mine", translator.GetName());
  EXPECT_EQ(77u, translator.GetId());
  translator.Release();
  EXPECT_STREQ("Release", g_called);
}

TEST(DerivedTranslator, IsCopied) {
  const NamedProbe original("mine");
  NamedProbe copy(original);

  EXPECT_STREQ("mine", static_cast<CKxXlate&>(copy).GetName());
  EXPECT_STREQ("GetText, pointer", static_cast<CKxXlate&>(copy).GetText("K"));
}

TEST(DerivedTranslator, AssignmentAnswersTheObjectItself) {
  NamedProbe one("one");
  NamedProbe two("two");
  CKxXlate& base = one;

  EXPECT_EQ(&base, &(base = static_cast<CKxXlate&>(two)));
  EXPECT_EQ(&base, &one.CKxXlate::operator=(two));
  EXPECT_EQ(&one, &(one = two));
}

TEST(DerivedTranslator, AssignmentToTheBaseCopiesNothing) {
  NamedProbe one("one");
  SlotProbe two;
  CKxXlate& base = one;

  base = two;
  EXPECT_STREQ("one", base.GetName());
  static_cast<CKxXlate&>(two) = one;
  EXPECT_STREQ("GetName", static_cast<CKxXlate&>(two).GetName());
}

TEST(DerivedTranslator, MayBeAssignedToItself) {
  NamedProbe one("one");
  CKxXlate& base = one;
  const CKxXlate& same = one;

  EXPECT_EQ(&base, &(base = same));
  EXPECT_STREQ("one", base.GetName());
}

}  // namespace
