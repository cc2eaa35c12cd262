#ifndef KX_LANG_INTERNED_STRINGS_H
#define KX_LANG_INTERNED_STRINGS_H

#include <string_view>

#include "texts/key_table.h"
#include "texts/text_arena.h"

namespace kx {

/// Keeps one copy of every value read from language files, so that translators of one language, and
/// those of its reloads, share their texts. Strings are never removed: a pointer that the table
/// answered is valid for the table's life. Case counts.
///
/// Not locked: the table of the process (ProcessInternTable) is used only while a language is
/// loaded, under CacheLock.
class InternTable {
 public:
  InternTable() = default;
  InternTable(const InternTable&) = delete;
  InternTable& operator=(const InternTable&) = delete;

  /// The table's copy of `text`; null for null. All empty texts have one copy.
  const char* InternString(const char* text) {
    return text == nullptr ? nullptr : InternString(std::string_view(text));
  }

  /// The same for a text without a NUL in it. The copy is a measured text.
  const char* InternString(std::string_view text);

  std::size_t Size() const noexcept { return strings_.Size(); }

  /// As KeyBuckets::Expect.
  void Expect(std::size_t count) noexcept { strings_.Expect(count); }

 private:
  TextArena texts_;
  ExactKeyTable strings_{TableFill::kForMemory};
};

/// The table of this process. Lives in core/process_state.cpp.
InternTable& ProcessInternTable();

}  // namespace kx

#endif  // KX_LANG_INTERNED_STRINGS_H
