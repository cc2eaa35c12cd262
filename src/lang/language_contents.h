#ifndef KX_LANG_LANGUAGE_CONTENTS_H
#define KX_LANG_LANGUAGE_CONTENTS_H

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "texts/key_table.h"
#include "texts/short_pointer.h"
#include "texts/text_arena.h"

namespace kx {

/// Interned values by key; a key is found in any ASCII case. Only changed while files are read.
///
/// The pointer to a key's value lies before the key, so that a table finds both by one place.
class LanguageTable {
 public:
  std::uint64_t Hash(std::string_view key) const noexcept { return keys_.Hash(key); }

  /// The value of `key`, which holds no NUL, or null. Allocates nothing.
  const char* Find(std::string_view key, std::uint64_t hash) const noexcept {
    const char* const stored = keys_.Find(key, hash);
    return stored == nullptr ? nullptr : LoadShortPointerBefore(stored);
  }
  const char* Find(std::string_view key) const noexcept { return Find(key, Hash(key)); }

  /// Replaces the value that `key` has in whatever case. Throws std::bad_alloc, with the table as
  /// it was.
  void Set(std::string_view key, const char* value);

  std::size_t Size() const noexcept { return keys_.Size(); }

  /// As KeyBuckets::Expect.
  void Expect(std::size_t count) noexcept { keys_.Expect(count); }

 private:
  TextArena texts_;
  KeyTable keys_;
};

/// What the files of a language say. Each file that is read replaces what it names and leaves the
/// rest, so the file read last wins. All pointers are interned strings.
struct LanguageContents {
  const char* longName = nullptr;
  const char* imageDirectory = nullptr;
  std::string charset;
  std::string direction;
  const char* promptSuffix = nullptr;
  /// Kept for people who look at the object in a debugger; nothing asks for it.
  bool debug = false;
  LanguageTable texts;
  LanguageTable labels;
  LanguageTable directories;
};

/// What one translator or several say; none of them changes it.
using SharedContents = std::shared_ptr<const LanguageContents>;

}  // namespace kx

#endif  // KX_LANG_LANGUAGE_CONTENTS_H
