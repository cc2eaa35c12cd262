#ifndef KX_LANG_LANGUAGE_PATHS_H
#define KX_LANG_LANGUAGE_PATHS_H

#include <cstdint>
#include <string>

#include "platform/critical_section.h"

namespace kx {

class InternTable;
class SharedLanguages;
class TranslationLog;

/// Where language files lie. Computed once, by the first lookup of a language, and constant from
/// then on.
struct LanguagePaths {
  bool computed = false;
  std::string root;       ///< the log lies under it
  std::string directory;  ///< the parent of FR/, FR-CA/, ...; ends with "/"
};

/// What all languages of a process share. Used under CacheLock, but for the root and the log, which
/// translators need for as long as they live.
struct LanguageContext {
  const LanguagePaths& paths;
  InternTable& strings;
  std::uint32_t& nextId;  ///< the identifier of the translator that is made next
  TranslationLog& log;
  SharedLanguages* shared = nullptr;  ///< null: each translator reads all that it says
};

/// Serialises every lookup of a language in this process and with it every load of language files:
/// a slow disk makes all of them wait, and in return no file is read twice at once and interned
/// strings need no lock of their own. Lives in core/process_state.cpp.
CriticalSection& CacheLock();

/// The shared things of this process. Live in core/process_state.cpp.
LanguagePaths& ProcessLanguagePaths();
LanguageContext ProcessLanguageContext();

}  // namespace kx

#endif  // KX_LANG_LANGUAGE_PATHS_H
