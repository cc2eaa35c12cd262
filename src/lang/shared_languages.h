#ifndef KX_LANG_SHARED_LANGUAGES_H
#define KX_LANG_SHARED_LANGUAGES_H

#include <array>
#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "lang/lang_loader.h"
#include "lang/language_contents.h"

namespace kx {

/// The common and the named file of a language: the first candidates.
constexpr std::size_t kOwnCandidates = 2;

/// What a language's own two files say, whatever the region.
struct SharedLanguage {
  struct File {
    LangCandidate candidate;
    bool isWithin = false;  ///< it may be looked for
    KxFileStatus seen;      ///< of whatever had its name when it was looked for
  };

  using Files = std::array<File, kOwnCandidates>;

  Files files;
  /// The lines that their problems gave. Each translator reports what it was read from, whether or
  /// not it was read for another before.
  std::vector<std::string> problems;
  LanguageContents contents;
};

/// The languages whose own files somebody has in memory: a region without files of its own says the
/// same as its language, and so needs no tables (region/bytes/ours: 1 KiB for 130) and no reading.
///
/// Not locked: used under CacheLock, as all loads are. Holds nothing alive.
class SharedLanguages {
 public:
  /// A language's code and a component's name. Not the path of the named file: both may hold
  /// separators, and then two languages with a common file each have a named file in common.
  using Key = std::pair<std::string, std::string>;

  /// The language of that key; null when nobody has it, or when a look at the disk shows that its
  /// files are not what they were: one has changed in any way, is new or gone.
  std::shared_ptr<const SharedLanguage> FindUnchanged(const Key& key) const;

  /// Remembers a language for as long as somebody has it.
  void Remember(const Key& key, const std::shared_ptr<const SharedLanguage>& language);

  void Clear() { languages_.clear(); }

 private:
  std::map<Key, std::weak_ptr<const SharedLanguage>> languages_;
};

}  // namespace kx

#endif  // KX_LANG_SHARED_LANGUAGES_H
