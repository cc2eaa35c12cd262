#ifndef KX_LANG_LANGUAGE_LOAD_H
#define KX_LANG_LANGUAGE_LOAD_H

#include <string>

#include "lang/lang_loader.h"
#include "lang/language_contents.h"
#include "lang/language_paths.h"

namespace kx {

/// What a translator is called by.
struct LanguageNames {
  /// @param givenName  of the component, not null; "" for the common files alone
  /// @param language   in any case; not null
  /// @param country    in any case; null or "" for none
  LanguageNames(const char* givenName, const char* language, const char* country);

  std::string name;
  std::string languageCode;  ///< upper case
  std::string countryCode;   ///< upper case
  std::string displayName;   ///< such as "FR-ca (agent)"
};

/// What a translator is made of.
struct LoadedLanguage {
  LangCandidates candidates;
  SharedContents contents;  ///< null when no file was found
  bool anyFileFound = false;
};

/// What a translator says for which there are no files.
SharedContents EmptyContents();

/// Reads the files of a language, merged in the order of their candidates; or shares what another
/// translator has read, when the files of the language are as they were then and the region has
/// none. Problems, and the lack of any file for a language other than English, are written to the
/// log in either case. Under CacheLock.
///
/// Throws std::bad_alloc only.
LoadedLanguage LoadLanguage(const LanguageContext& context, const LanguageNames& names);

}  // namespace kx

#endif  // KX_LANG_LANGUAGE_LOAD_H
